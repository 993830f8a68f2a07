#include "complex/strtext.h"

#include <gtest/gtest.h>

namespace velmora::complex {
namespace {

struct StrCase {
  double value;
  const char* untrimmed;
  const char* trimmed;
  const char* why;
};

const StrCase kStrCases[] = {
    {0.5, " .5", ".5", "no zero before the point"},
    {-0.25, "-.25", "-.25", "negative: the sign takes the blank's place"},
    {3, " 3", "3", "no trailing zeros, no point"},
    {0, " 0", "0", "zero keeps its digit"},
    {-0.0, " 0", "0", "negative zero prints as zero"},
    {2, " 2", "2", "the root 2 + j 0 keeps the blank"},
    {1e-5, " 1E-05", "1E-05", "exponent form for tiny values"},
    {1.5e20, " 1.5E+20", "1.5E+20", "exponent form for large values"},
    {1.0 / 3.0, " .333333333333333", ".333333333333333", "15 significant digits"},
    {-12.5, "-12.5", "-12.5", "integer part kept"},
};

TEST(StrText, Cases) {
  for (const auto& c : kStrCases) {
    EXPECT_EQ(StrText(c.value), c.untrimmed) << c.why;
    EXPECT_EQ(ShortText(c.value), c.trimmed) << c.why;
  }
}

struct NumericCase {
  const char* text;
  bool numeric;
  const char* why;
};

const NumericCase kNumericCases[] = {
    {"5", true, "digits"},
    {" -1.5 ", true, "sign, point, blanks around"},
    {".5", true, "no digit before the point"},
    {"1e5", true, "exponent"},
    {"1E-05", true, "signed exponent"},
    {"1/2", false, "a second separator"},
    {"", false, "empty"},
    {".", false, "a point alone"},
    {"1e", false, "exponent without digits"},
    {"45deg", false, "a unit left on it"},
    {"1.2.3", false, "two points"},
};

TEST(IsNumericText, Cases) {
  for (const auto& c : kNumericCases) EXPECT_EQ(IsNumericText(c.text), c.numeric) << c.why;
}

}  // namespace
}  // namespace velmora::complex
