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

}  // namespace
}  // namespace velmora::complex
