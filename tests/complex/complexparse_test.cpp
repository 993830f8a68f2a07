#include "complex/complexparse.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/recordingmessagebox.h"

namespace velmora::complex {
namespace {

using platform::MsgIcon;

constexpr const char* kNoUnit = "Check input. The Complex number must contain either j or i for imaginary.";
constexpr const char* kBracket = "The real part of complex cannot contain brackets or other nonnumerics.";
constexpr const char* kCheckBrackets = "Check brackets.";

struct ParseCase {
  const char* name;
  const char* text;
  const char* oldReal;  // the part fields before the call
  const char* oldImaginary;
  const char* textAfter;  // the text as it comes back
  const char* real;
  const char* imaginary;
  const char* message;  // "" for none
  MsgIcon icon;
};

void PrintTo(const ParseCase& c, std::ostream* os) { *os << c.name; }

void ExpectMessage(const testing::RecordingMessageBox& box, const ParseCase& c) {
  if (std::string(c.message).empty()) {
    EXPECT_TRUE(box.Boxes().empty()) << c.name;
    return;
  }
  ASSERT_EQ(box.Boxes().size(), 1u) << c.name;
  EXPECT_EQ(box.Boxes()[0].text, c.message);
  EXPECT_EQ(box.Boxes()[0].title, "Velmora");
  EXPECT_EQ(box.Boxes()[0].icon, c.icon);
}

class ParseZ1Test : public ::testing::TestWithParam<ParseCase> {};

TEST_P(ParseZ1Test, FillsFirstParts) {
  const auto& c = GetParam();
  testing::RecordingMessageBox box;
  ComplexFields fields;
  fields.lbla = c.oldReal;
  fields.lblb = c.oldImaginary;
  std::string text = c.text;
  ParseZ1(text, fields, box);
  EXPECT_EQ(text, c.textAfter);
  EXPECT_EQ(fields.lbla, c.real);
  EXPECT_EQ(fields.lblb, c.imaginary);
  // The second operand's fields are never touched.
  EXPECT_EQ(fields.lblc, "0");
  EXPECT_EQ(fields.lbld, "0");
  ExpectMessage(box, c);
}

constexpr MsgIcon kNone = MsgIcon::None;

INSTANTIATE_TEST_SUITE_P(
    Cases, ParseZ1Test,
    ::testing::Values(
        // The sign before the unit separates the parts.
        ParseCase{"PlusJ", "3+j4", "7", "8", "3+j4", "3", "4", "", kNone},
        ParseCase{"MinusJ", "3-j4", "7", "8", "3-j4", "3", "-4", "", kNone},
        // The keypad's negative imaginary part: s is "+", the part "-4".
        ParseCase{"KeypadNegative", "3+j-4", "7", "8", "3+j-4", "3", "-4", "", kNone},
        // A "-" before the unit negates what follows: -1 * -4 = 4.
        ParseCase{"DoubleNegative", "3-j-4", "7", "8", "3-j-4", "3", "4", "", kNone},
        // Bracket form: "-4)" loses its last character, then is negated.
        ParseCase{"BracketNegated", "3-j(-4)", "7", "8", "3-j(-4)", "3", "4", "", kNone},
        ParseCase{"Bracket", "3+j(4)", "7", "8", "3+j(4)", "3", "4", "", kNone},
        // No closing bracket: the last character dropped is the digit.
        ParseCase{"BracketUnclosed", "3+j(45", "7", "8", "3+j(45", "3", "4", "", kNone},
        // Empty brackets: ")" dropped leaves an empty part, not "0".
        ParseCase{"BracketEmpty", "3+j()", "7", "8", "3+j()", "3", "", "", kNone},
        // No sign before the unit: "3" is taken as the sign, the real part
        // Mid(text, 1, 0) is empty and becomes "0".
        ParseCase{"NoSign", "3j4", "7", "8", "3j4", "0", "4", "", kNone},
        // Blanks go first; the text comes back without them.
        ParseCase{"Blanks", "1 + i 2", "7", "8", "1+i2", "1", "2", "", kNone},
        ParseCase{"DesignValue", "0+i0", "7", "8", "0+i0", "0", "0", "", kNone},
        ParseCase{"Negatives", "-3-j2.5", "7", "8", "-3-j2.5", "-3", "-2.5", "", kNone},
        ParseCase{"UpperI", "1.5+I2", "7", "8", "1.5+I2", "1.5", "2", "", kNone},
        // Unit first: Mid(text, 1, -1) fails, the real part keeps its text.
        ParseCase{"UnitFirstKeepsReal", "J5", "7", "8", "J5", "7", "5", "", kNone},
        // ... or becomes "0" when it was empty.
        ParseCase{"UnitFirstEmptyReal", "I5", "", "8", "I5", "0", "5", "", kNone},
        // "5i": p = 2, real Mid(text, 1, 0) empty so "0", s = "5", nothing
        // after the unit so "0": the 5 is lost.
        ParseCase{"TrailingUnit", "5i", "7", "8", "5i", "0", "0", "", kNone},
        // The "i" of the word is found first: p = 2.
        ParseCase{"WordWithI", "sin+j2", "7", "8", "sin+j2", "0", "n+j2", "", kNone},
        // "i" is looked for before "j": p = 5, real Mid(text, 1, 3) = "2+j",
        // s = "3", nothing after the unit.
        ParseCase{"IBeforeJ", "2+j3i", "7", "8", "2+j3i", "2+j", "0", "", kNone},
        // Nothing after the unit: "0", negated or not.
        ParseCase{"EmptyImaginary", "3+j", "7", "8", "3+j", "3", "0", "", kNone},
        ParseCase{"EmptyImaginaryNegated", "3-j", "7", "8", "3-j", "3", "0", "", kNone},
        // Val of 1e999 overflows: the negation is skipped, the text stays.
        ParseCase{"NegationOverflow", "3-j1e999", "7", "8", "3-j1e999", "3", "1e999", "", kNone},
        // No unit at all: message with no icon, fields as they were.
        ParseCase{"Empty", "", "7", "8", "", "7", "8", kNoUnit, kNone},
        ParseCase{"RealOnly", "2", "7", "8", "2", "7", "8", kNoUnit, kNone},
        // A bracket first: the information icon, fields as they were.
        ParseCase{"LeadingBracket", ")3+j4", "7", "8", ")3+j4", "7", "8", kBracket, MsgIcon::Information},
        // The bracket test is on the text without blanks.
        ParseCase{"LeadingBracketAfterBlank", " )3+j4", "7", "8", ")3+j4", "7", "8", kBracket,
                  MsgIcon::Information}),
    [](const auto& row) { return std::string(row.param.name); });

class ParseZ2Test : public ::testing::TestWithParam<ParseCase> {};

TEST_P(ParseZ2Test, FillsSecondParts) {
  const auto& c = GetParam();
  testing::RecordingMessageBox box;
  ComplexFields fields;
  fields.lblc = c.oldReal;
  fields.lbld = c.oldImaginary;
  std::string text = c.text;
  ParseZ2(text, fields, box);
  EXPECT_EQ(text, c.textAfter);
  EXPECT_EQ(fields.lblc, c.real);
  EXPECT_EQ(fields.lbld, c.imaginary);
  EXPECT_EQ(fields.lbla, "0");
  EXPECT_EQ(fields.lblb, "0");
  ExpectMessage(box, c);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ParseZ2Test,
    ::testing::Values(
        ParseCase{"PlusJ", "1+j2", "7", "8", "1+j2", "1", "2", "", kNone},
        ParseCase{"MinusJ", "1-j2", "7", "8", "1-j2", "1", "-2", "", kNone},
        ParseCase{"Bracket", "1-j(2)", "7", "8", "1-j(2)", "1", "-2", "", kNone},
        // Unlike ParseZ1: no closing bracket is a message, the
        // imaginary part stays, the real part is already taken.
        ParseCase{"BracketUnclosed", "3+j(45", "7", "8", "3+j(45", "3", "8", kCheckBrackets, kNone},
        ParseCase{"UnitFirst", "j5", "7", "8", "j5", "7", "5", "", kNone},
        ParseCase{"Empty", "", "7", "8", "", "7", "8", kNoUnit, kNone},
        ParseCase{"LeadingBracket", ")1+j2", "7", "8", ")1+j2", "7", "8", kBracket, MsgIcon::Information}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace velmora::complex
