#include "expr/formulatokenizer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace velmora::expr {
namespace {

// Tokens written as a compact listing: numbers as N[text], names as W[text],
// operators and brackets as themselves, an invalid byte as ?[text].
std::string Listing(std::string_view text) {
  std::string out;
  for (const Token& t : Tokenize(text)) {
    if (!out.empty()) out += ' ';
    const std::string spelling(text.substr(t.begin, t.length));
    switch (t.kind) {
      case TokenKind::Number: out += "N[" + spelling + "]"; break;
      case TokenKind::Name: out += "W[" + spelling + "]"; break;
      case TokenKind::Invalid: out += "?[" + spelling + "]"; break;
      case TokenKind::End: out += "$"; break;
      default: out += spelling; break;
    }
  }
  return out;
}

struct TokenCase {
  const char* text;
  const char* listing;
  const char* why;
};

class TokenizeTest : public ::testing::TestWithParam<TokenCase> {};

TEST_P(TokenizeTest, Listing) {
  const auto& c = GetParam();
  EXPECT_EQ(Listing(c.text), c.listing) << c.text << ": " << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TokenizeTest,
    ::testing::Values(
        TokenCase{"", "$", "empty text is just the end"}, TokenCase{"   \t", "$", "blanks only"},
        TokenCase{"SIN((1.25))", "W[SIN] ( ( N[1.25] ) ) $", "evaluation spelling"},
        TokenCase{"sin(x)", "W[sin] ( W[x] ) $", "body spelling"},
        TokenCase{"1E-05", "N[1E-05] $", "exponent with a sign"},
        TokenCase{"2.5E+20", "N[2.5E+20] $", "exponent with plus"},
        TokenCase{"1e3", "N[1e3] $", "lower-case exponent"},
        TokenCase{"2E", "N[2] W[E] $", "no digit after E: the number stops"},
        TokenCase{"2E+", "N[2] W[E] + $", "sign but no digit after E"},
        TokenCase{"2EX", "N[2] W[EX] $", "letters after E are a name"},
        TokenCase{".5", "N[.5] $", "no leading digit"}, TokenCase{"5.", "N[5.] $", "trailing point"},
        TokenCase{".", "?[.] $", "a point with no digit is no number"},
        TokenCase{"1.2.3", "N[1.2] N[.3] $", "a second point starts a new number"},
        TokenCase{"1,5", "N[1] ?[,] N[5] $", "comma is no decimal separator"},
        TokenCase{"CBR2(8)", "W[CBR2] ( N[8] ) $", "digits inside a name belong to it"},
        TokenCase{"SINK", "W[SINK] $", "short form is one name"},
        TokenCase{"a_b", "W[a_b] $", "underscore inside a name"},
        TokenCase{"\xC2\xB2(3)", "W[\xC2\xB2] ( N[3] ) $", "superscript two is a name"},
        TokenCase{"-2^2", "- N[2] ^ N[2] $", "sign and power"},
        TokenCase{"1+2-3*4/5^6", "N[1] + N[2] - N[3] * N[4] / N[5] ^ N[6] $", "every operator"},
        TokenCase{"SIN (1)", "W[SIN] ( N[1] ) $", "blank before the bracket"},
        TokenCase{"2 3", "N[2] N[3] $", "a blank separates numbers"},
        TokenCase{"1#2", "N[1] ?[#] N[2] $", "stray character"},
        TokenCase{"x\r\n", "W[x] $", "CR LF are blanks"}, TokenCase{"00012", "N[00012] $", "leading zeros"},
        TokenCase{"1E5E5", "N[1E5] W[E5] $", "exponent ends at its digits"}));

struct ValueCase {
  const char* text;
  double value;
  const char* why;
};

class NumberValueTest : public ::testing::TestWithParam<ValueCase> {};

TEST_P(NumberValueTest, Value) {
  const auto& c = GetParam();
  EXPECT_EQ(NumberValue(c.text), c.value) << c.text << ": " << c.why;
}

const double kInf = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(Cases, NumberValueTest,
                         ::testing::Values(ValueCase{"1.25", 1.25, "plain decimal"},
                                           ValueCase{"1E-05", 1e-5, "exponent form"},
                                           ValueCase{"2.5E+20", 2.5e20, "large exponent form"},
                                           ValueCase{".5", 0.5, "no leading digit"},
                                           ValueCase{"5.", 5, "trailing point"},
                                           ValueCase{"0.1", 0.1, "nearest double"},
                                           ValueCase{"1E999", kInf, "overflow reads as infinity"},
                                           ValueCase{"1E-999", 0, "underflow reads as 0"},
                                           ValueCase{"4.9E-324", 4.9e-324, "smallest subnormal"},
                                           ValueCase{"123456789012345678901234567890", 1.2345678901234568e29,
                                                     "more digits than a double holds"}));

struct ShapeCase {
  const char* text;
  bool ok;
  const char* shape;
  std::vector<double> literals;
  const char* why;
};

class ScanShapeTest : public ::testing::TestWithParam<ShapeCase> {};

TEST_P(ScanShapeTest, ShapeAndLiterals) {
  const auto& c = GetParam();
  std::string shape = "stale";
  std::vector<double> literals = {99};
  ASSERT_EQ(ScanShape(c.text, shape, literals), c.ok) << c.why;
  if (!c.ok) return;
  EXPECT_EQ(shape, c.shape) << c.why;
  EXPECT_EQ(literals, c.literals) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ScanShapeTest,
    ::testing::Values(
        ShapeCase{"SIN((1.25))", true, "SIN((#))", {1.25}, "one literal"},
        ShapeCase{"SIN((-3))", true, "SIN((-#))", {3}, "the sign stays in the shape"},
        ShapeCase{
            "(2.5)^2-1/(1-(2.5))", true, "(#)^#-#/(#-(#))", {2.5, 2, 1, 1, 2.5}, "literals in text order"},
        ShapeCase{"CBR2(8)", true, "CBR2(#)", {8}, "digits of a name are not literals"},
        ShapeCase{"1E-05+2", true, "#+#", {1e-5, 2}, "exponent inside one literal"},
        ShapeCase{"2E", true, "#E", {2}, "the E without digits stays"},
        ShapeCase{"SIN( 1 )", true, "SIN( # )", {1}, "blanks are kept, so tokens keep their bounds"},
        ShapeCase{"", true, "", {}, "empty"}, ShapeCase{"sin(x)", true, "sin(x)", {}, "no literal"},
        ShapeCase{"1#2", false, "", {}, "the marker itself: no shape"}));

TEST(ScanShapeTest, SameShapeForEverySample) {
  // The point of the shape: the pixel columns of a plot share one key for
  // each sign of the value (the sign before a bracketed value stays a sign).
  struct Row {
    const char* text;
    const char* shape;
  };
  const Row rows[] = {
      {"K/2+SIN((0.5))", "K/#+SIN((#))"},        // a positive value
      {"K/2+SIN((1E-05))", "K/#+SIN((#))"},      // exponent form: the same shape
      {"K/2+SIN((123456789))", "K/#+SIN((#))"},  // more digits: the same shape
      {"K/2+SIN((-9.975))", "K/#+SIN((-#))"},    // a negative value
      {"K/2+SIN((-1E-05))", "K/#+SIN((-#))"},    // negative in exponent form
  };
  std::string shape;
  std::vector<double> literals;
  for (const Row& r : rows) {
    ASSERT_TRUE(ScanShape(r.text, shape, literals));
    EXPECT_EQ(shape, r.shape) << r.text;
  }
}

TEST(ScanShapeTest, MillionCharactersInLinearTime) {
  std::string text;
  for (int i = 0; i < 250000; ++i) text += "1+2*";
  text += "3";
  std::string shape;
  std::vector<double> literals;
  ASSERT_TRUE(ScanShape(text, shape, literals));
  EXPECT_EQ(literals.size(), 500001u);
  EXPECT_EQ(shape.size(), text.size());
}

}  // namespace
}  // namespace velmora::expr
