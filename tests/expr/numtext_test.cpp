#include "expr/numtext.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "expr/fault.h"

namespace velmora::expr {
namespace {

struct TextCase {
  double value;
  const char* text;
  const char* why;
};

class NumberToTextTest : public ::testing::TestWithParam<TextCase> {};

TEST_P(NumberToTextTest, Spelling) {
  const auto& c = GetParam();
  EXPECT_EQ(NumberToText(c.value), c.text) << c.why;
}

const double kInf = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Cases, NumberToTextTest,
    ::testing::Values(
        TextCase{100, "100", "integer value has no decimal point"},
        TextCase{1.0 / 3.0, "0.333333333333333", "15 significant digits"},
        TextCase{2.0 / 3.0, "0.666666666666667", "last digit rounded"},
        TextCase{0.5, "0.5", "leading zero kept"}, TextCase{-0.5, "-0.5", "negative keeps its zero"},
        TextCase{0, "0", "zero"}, TextCase{-0.0, "0", "negative zero prints as 0"},
        TextCase{1e-5, "1E-05", "below 1E-04 goes to exponent form"},
        TextCase{0.0001, "0.0001", "1E-04 still plain"},
        TextCase{1.5e20, "1.5E+20", "large values in exponent form"},
        TextCase{123456789012345.0, "123456789012345", "15 digits fit"},
        TextCase{1e15, "1E+15", "16 digits do not fit"},
        TextCase{1234567890123456.0, "1.23456789012346E+15", "cut to 15 digits"},
        TextCase{-4.567, "-4.567", "a K value of a plot"},
        TextCase{0.1 + 0.2, "0.3", "binary noise beyond 15 digits is not shown"},
        TextCase{1e100, "1E+100", "three-digit exponent"}, TextCase{1.25e-300, "1.25E-300", "tiny value"},
        TextCase{kInf, "1.#INF", "positive infinity"}, TextCase{-kInf, "-1.#INF", "negative infinity"},
        TextCase{std::numeric_limits<double>::quiet_NaN(), "1.#IND", "indefinite, positive sign"},
        TextCase{-std::numeric_limits<double>::quiet_NaN(), "-1.#IND", "indefinite, negative sign"}));

TEST(NumberToText, ZeroOverZeroIsNegativeIndefinite) {
  volatile double zero = 0.0;
  EXPECT_EQ(NumberToText(zero / zero), "-1.#IND");
}

TEST(NumberToText, NanWithPayloadIsQuietNan) { EXPECT_EQ(NumberToText(std::nan("5")), "1.#QNAN"); }

TEST(NumberToText, BufferFormMatchesStringForm) {
  char buffer[kNumberTextMax];
  for (double v : {0.0, -1.5, 1e-7, 123.456, -1e300, kInf}) {
    const std::size_t n = NumberToText(v, buffer);
    EXPECT_EQ(std::string(buffer, n), NumberToText(v));
  }
}

struct ParseCase {
  const char* text;
  double value;
  const char* why;
};

class TextToNumberTest : public ::testing::TestWithParam<ParseCase> {};

TEST_P(TextToNumberTest, LeadingNumber) {
  const auto& c = GetParam();
  EXPECT_DOUBLE_EQ(TextToNumber(c.text), c.value) << c.why << " [" << c.text << "]";
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TextToNumberTest,
    ::testing::Values(
        ParseCase{"", 0, "empty text"}, ParseCase{"   2.5x", 2.5, "blanks before, a word after"},
        ParseCase{"-.5", -0.5, "sign and no leading digit"}, ParseCase{"1e3", 1000, "exponent"},
        ParseCase{"1E-05", 1e-5, "the formula engine's own spelling"},
        ParseCase{".", 0, "a point alone is no number"}, ParseCase{"12abc", 12, "trailing word ignored"},
        ParseCase{"1,5", 1, "comma is no decimal separator"}, ParseCase{"+7", 7, "plus sign"},
        ParseCase{"1e", 1, "exponent letter without digits"},
        ParseCase{"1e+", 1, "exponent sign without digits"}, ParseCase{"abc", 0, "no number at all"},
        ParseCase{"- 5", 0, "blank after the sign"}, ParseCase{"1.2.3", 1.2, "second point stops"},
        ParseCase{"1.#INF", 1, "non-finite spelling reads as 1"},
        ParseCase{"-1.#IND", -1, "negative indefinite reads as -1"},
        ParseCase{"1e-400", 0, "underflow reads as 0"}, ParseCase{"\t 3", 3, "tab is a blank"}));

TEST(TextToNumber, OverflowFaults) {
  EXPECT_THROW(TextToNumber("1e400"), Fault);
  EXPECT_THROW(TextToNumber("-9999e999"), Fault);
}

struct RoundCase {
  double value;
  int places;
  double expected;
  const char* why;
};

class RoundToTest : public ::testing::TestWithParam<RoundCase> {};

TEST_P(RoundToTest, BankersOnDecimalForm) {
  const auto& c = GetParam();
  EXPECT_EQ(RoundTo(c.value, c.places), c.expected) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RoundToTest,
    ::testing::Values(RoundCase{2.5, 0, 2, "tie to even, down"}, RoundCase{3.5, 0, 4, "tie to even, up"},
                      RoundCase{-2.5, 0, -2, "negative tie"}, RoundCase{0.125, 2, 0.12, "decimal tie down"},
                      RoundCase{0.135, 2, 0.14, "decimal tie up"},
                      RoundCase{2.675, 2, 2.68, "tie judged on the decimal form, not binary"},
                      RoundCase{1.0 / 3.0, 5, 0.33333, "geometry rounding"},
                      RoundCase{2.0 / 3.0, 5, 0.66667, "rounds up"},
                      RoundCase{9.999995, 5, 10, "carry through the nines"},
                      RoundCase{0.000004, 5, 0, "below half of the last place"},
                      RoundCase{0.000006, 5, 0.00001, "above half of the last place"},
                      RoundCase{123.0, 2, 123, "nothing to cut"}, RoundCase{0, 3, 0, "zero"},
                      RoundCase{0.1 + 0.2, 5, 0.3, "binary noise goes"},
                      RoundCase{1234.5678, 0, 1235, "no decimals"}));

TEST(RoundTo, NegativePlacesFault) { EXPECT_THROW(RoundTo(1.5, -1), Fault); }

TEST(RoundTo, NonFiniteFaults) { EXPECT_THROW(RoundTo(std::numeric_limits<double>::infinity(), 2), Fault); }

struct IntCase {
  double value;
  int expected;
  const char* why;
};

class ToShortTest : public ::testing::TestWithParam<IntCase> {};

TEST_P(ToShortTest, TiesToEven) {
  EXPECT_EQ(ToShort(GetParam().value), GetParam().expected) << GetParam().why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ToShortTest,
    ::testing::Values(IntCase{2.5, 2, "tie down to even"}, IntCase{3.5, 4, "tie up to even"},
                      IntCase{-0.5, 0, "negative tie to zero"}, IntCase{2.4, 2, "below half"},
                      IntCase{32767, 32767, "upper bound"}, IntCase{-32768, -32768, "lower bound"},
                      IntCase{32767.4, 32767, "rounds into range"}));

TEST(ToShort, OutOfRangeFaults) {
  EXPECT_THROW(ToShort(32767.5), Fault);  // rounds to 32768
  EXPECT_THROW(ToShort(-32768.6), Fault);
  EXPECT_THROW(ToShort(std::nan("")), Fault);
}

TEST(ToLong, RangeAndTies) {
  EXPECT_EQ(ToLong(2147483647.0), 2147483647);
  EXPECT_EQ(ToLong(-2.5), -2);
  EXPECT_THROW(ToLong(2147483648.0), Fault);
  EXPECT_THROW(ToLong(-2147483649.0), Fault);
}

struct PositionalCase {
  double value;
  const char* text;
  const char* why;
};

TEST(NumberToPositionalText, SameDigitsWithoutExponent) {
  const PositionalCase cases[] = {
      {1e-5, "0.00001", "tiny: the exponent becomes leading zeros"},
      {-1.25e-7, "-0.000000125", "the sign stays in front"},
      {2.1952410910289e20, "219524109102890000000", "large: the exponent becomes trailing zeros"},
      {1.5e15, "1500000000000000", "the first exponent form NumberToText uses"},
      {1.23456789012345e-10, "0.000000000123456789012345", "all 15 digits kept"},
      {0.5, "0.5", "plain values as NumberToText writes them"},
      {100, "100", "integers without a point"},
      {0, "0", "zero"},
      {std::numeric_limits<double>::infinity(), "1.#INF", "non-finite spellings as they are"},
  };
  for (const auto& c : cases) EXPECT_EQ(NumberToPositionalText(c.value), c.text) << c.why;
}

TEST(NumberToPositionalText, ReadsBackAsTheSameNumber) {
  // The 15-digit value of every print reads back exactly, whatever its size.
  const double values[] = {1e-5,
                           3.3333333333333e-9,
                           7.25741561530799e306,
                           1.79769313486231e308,
                           4.94065645841247e-308,
                           123456789012345,
                           0.1};
  for (const double v : values) {
    EXPECT_EQ(TextToNumber(NumberToPositionalText(v)), TextToNumber(NumberToText(v))) << v;
    EXPECT_EQ(NumberToPositionalText(v).find_first_of("Ee"), std::string::npos) << v;
  }
}

struct NumericCase {
  const char* text;
  bool numeric;
  const char* why;
};

TEST(IsNumericText, Cases) {
  const NumericCase cases[] = {
      {"5", true, "digits"},
      {" -1.5 ", true, "sign, point, blanks around"},
      {"\t12\t", true, "tabs count as blanks"},
      {".5", true, "no digit before the point"},
      {"1e5", true, "exponent"},
      {"1E-05", true, "signed exponent"},
      {"1/2", false, "a second separator"},
      {"", false, "empty"},
      {".", false, "a point alone"},
      {"+", false, "a sign alone"},
      {"1e", false, "exponent without digits"},
      {"12abc", false, "text left on it"},
      {"45deg", false, "a unit left on it"},
      {"1.2.3", false, "two points"},
  };
  for (const auto& c : cases) EXPECT_EQ(IsNumericText(c.text), c.numeric) << c.why;
}

TEST(PrcniFunc, FiveSpellings) {
  for (const char* text : {"1.#INF", "-1.#INF", "1.#IND", "-1.#IND", "1.#QNAN"}) {
    EXPECT_TRUE(PrcniFunc(std::string_view(text))) << text;
  }
  EXPECT_FALSE(PrcniFunc(std::string_view("0")));
  EXPECT_FALSE(PrcniFunc(std::string_view("1.#inf")));
  EXPECT_FALSE(PrcniFunc(std::string_view("inf")));
}

TEST(PrcniFunc, ValuesByTheirText) {
  EXPECT_TRUE(PrcniFunc(std::numeric_limits<double>::infinity()));
  EXPECT_TRUE(PrcniFunc(-std::numeric_limits<double>::quiet_NaN()));
  EXPECT_FALSE(PrcniFunc(0.0));
  EXPECT_FALSE(PrcniFunc(1e308));
}

}  // namespace
}  // namespace velmora::expr

namespace velmora::expr {
namespace {

// NumberToText takes a short road for values with few digits; whatever road
// it takes, it must write what the C library's "%.15G" writes (with the
// platform's "0" for -0). Values of every kind: random bit patterns, the
// plot's three-decimal samples, short decimals, powers of ten and their
// neighbours, the range's edges.
double ReadDouble(const std::string& text) { return std::strtod(text.c_str(), nullptr); }

std::string Reference15G(double x) {
  if (x == 0) return "0";
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.15G", x);
  return buf;
}

TEST(NumberToTextAgreementTest, MatchesPercent15GOnManyValues) {
  std::mt19937_64 rng(20240611);
  std::vector<double> values;
  for (int i = 0; i < 100000; ++i) {
    const double v = std::bit_cast<double>(rng());
    if (std::isfinite(v)) values.push_back(v);
  }
  for (int i = -20000; i <= 20000; ++i) values.push_back(std::floor((i / 40.0) * 1000) / 1000);
  std::uniform_int_distribution<int> digits(1, 17);
  std::uniform_int_distribution<int> exps(-320, 308);
  for (int i = 0; i < 100000; ++i) {
    const int d = digits(rng);
    const long long mant =
        static_cast<long long>(rng() % 100000000000000000ULL) % static_cast<long long>(std::pow(10.0, d));
    values.push_back(ReadDouble(std::to_string(mant) + "e" + std::to_string(exps(rng))));
  }
  for (int e = -320; e <= 308; ++e) {
    const double p = ReadDouble("1e" + std::to_string(e));
    values.push_back(p);
    values.push_back(std::nextafter(p, 0.0));
    values.push_back(std::nextafter(p, std::numeric_limits<double>::infinity()));
    values.push_back(p * 0.999999999999999);
    values.push_back(p * 9.99999999999999);
  }
  values.push_back(std::numeric_limits<double>::max());
  values.push_back(std::numeric_limits<double>::min());
  values.push_back(std::numeric_limits<double>::denorm_min());
  values.push_back(999999999999999.5);
  values.push_back(99999.99999999999);
  int checked = 0;
  for (double v : values) {
    for (double x : {v, -v}) {
      if (!std::isfinite(x)) continue;
      ASSERT_EQ(NumberToText(x), Reference15G(x)) << std::hexfloat << x;
      ++checked;
    }
  }
  EXPECT_GT(checked, 400000);
}

}  // namespace
}  // namespace velmora::expr
