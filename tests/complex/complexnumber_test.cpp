#include "complex/complexnumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "complex/printshortcut.h"
#include "expr/fault.h"

namespace velmora::complex {
namespace {

const double kPi = std::atan(1.0) * 4;
const char* const kBadRect = "You must enter a valid complex number.";
const char* const kBadPolar = "You must enter a valid complex number in polar form.";

ComplexNumber Rect(const std::string& text) {
  ComplexNumber z;
  z.SetRectText(text);
  return z;
}

ComplexNumber Parts(double re, double im) {
  ComplexNumber z;
  z.SetReal(re);
  z.SetImaginary(im);
  z.RectangularToPolar();
  return z;
}

// Runs every test both with and without the print shortcuts, so each case
// also shows that the shortcuts change nothing.
class ComplexNumberTest : public ::testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    saved_ = PrintShortcuts();
    SetPrintShortcuts(GetParam());
  }
  void TearDown() override { SetPrintShortcuts(saved_); }

 private:
  bool saved_ = true;
};

INSTANTIATE_TEST_SUITE_P(Roads, ComplexNumberTest, ::testing::Values(true, false),
                         [](const ::testing::TestParamInfo<bool>& road) {
                           return road.param ? std::string("Shortcuts") : std::string("TextOnly");
                         });

TEST_P(ComplexNumberTest, NewObjectIsEmpty) {
  const ComplexNumber z;
  EXPECT_EQ(z.Real(), 0);
  EXPECT_EQ(z.Imaginary(), 0);
  EXPECT_EQ(z.ConjImaginary(), 0);
  EXPECT_EQ(z.Modulus(), 0);
  EXPECT_EQ(z.Angle(), 0);
  EXPECT_EQ(z.RectText(), "");
  EXPECT_EQ(z.PolarText(), "");
  EXPECT_EQ(z.ConjText(), "");
  EXPECT_EQ(z.RootCount(), 0U);
  EXPECT_EQ(z.ErrNumber(), 0);
  EXPECT_EQ(z.ErrDescription(), "");
}

struct ParseCase {
  const char* text;
  double re;
  double im;
  const char* squeezed;
  const char* why;
};

const ParseCase kParseCases[] = {
    {"3+j4", 3, 4, "3+j4", "unit before the digits"},
    {"3-j4", 3, -4, "3-j4", "negative imaginary part"},
    {"-2.5+i.5", -2.5, 0.5, "-2.5+i.5", "i is a unit too"},
    {"j4", 0, 4, "j4", "no real part"},
    {"3-j", 3, -1, "3-j", "a bare unit is 1"},
    {"j", 0, 1, "j", "the unit alone"},
    {"+j", 0, 1, "+j", "a signed unit alone"},
    {"3 + j 4", 3, 4, "3+j4", "blanks are removed from the stored text"},
    {"3", 3, 0, "3", "no letter: all real"},
    {"1+", 1, 0, "1+", "no letter: the real text stops at the sign"},
    {"3+4j", 3, 4, "3+4j", "unit behind: works from the character before it"},
    {"3-4j", 3, 4, "3-4j", "unit behind: the sign is lost"},
    {"3+14j", 3, 4, "3+14j", "unit behind: the 1 is swallowed into the real text"},
    {"1e5", 0, 15, "1e5", "an exponent letter counts as the unit"},
    {"1.5E-05", 1, 5, "1.5E-05", "a print in exponent form: E is the unit, 5 its sign"},
    {".5", 0.5, 0, ".5", "no zero before the point"},
};

TEST_P(ComplexNumberTest, ParseRectangular) {
  for (const auto& c : kParseCases) {
    const ComplexNumber z = Rect(c.text);
    EXPECT_EQ(z.Real(), c.re) << c.why;
    EXPECT_EQ(z.Imaginary(), c.im) << c.why;
    EXPECT_EQ(z.ConjImaginary(), -c.im) << c.why;
    EXPECT_EQ(z.RectText(), c.squeezed) << c.why;
    EXPECT_EQ(z.ErrNumber(), 0) << c.why;
  }
}

struct ParseFailureCase {
  const char* text;
  int err;
  const char* why;
};

const ParseFailureCase kParseFailures[] = {
    {"1+2+3+j", 1001, "more than 2 signs"},
    {"ab", 1002, "more than 1 letter"},
    {"-1E-05-j2E-05", 1001, "a print in exponent form has too many signs"},
    {"1E+20+j1E+20", 1002, "the second letter comes before the third sign"},
    {"1.5 - j2E-05", 1002, "an imaginary part in exponent form"},
    {"2E5j", 1002, "two letters"},
};

TEST_P(ComplexNumberTest, ParseFailuresLeaveTheNumbers) {
  for (const auto& c : kParseFailures) {
    ComplexNumber z = Rect("7-j8");
    z.SetRectText(c.text);
    EXPECT_EQ(z.ErrNumber(), c.err) << c.why;
    EXPECT_EQ(z.ErrDescription(), kBadRect) << c.why;
    EXPECT_EQ(z.Real(), 7) << c.why;
    EXPECT_EQ(z.Imaginary(), -8) << c.why;
  }
}

TEST_P(ComplexNumberTest, ParsersNeverClearTheError) {
  ComplexNumber z = Rect("ab");
  ASSERT_EQ(z.ErrNumber(), 1002);
  z.SetRectText("3+j4");
  EXPECT_EQ(z.ErrNumber(), 1002);
  EXPECT_EQ(z.Real(), 3);
  z.SetPolarText("5/1");
  EXPECT_EQ(z.ErrNumber(), 1002);
}

TEST_P(ComplexNumberTest, EmptyTextChangesNothing) {
  ComplexNumber z = Rect("3+j4");
  z.SetRectText("");
  EXPECT_EQ(z.Real(), 3);
  EXPECT_EQ(z.Imaginary(), 4);
  EXPECT_EQ(z.RectText(), "");
}

TEST_P(ComplexNumberTest, ParseOverflowIsRecorded) {
  ComplexNumber z = Rect("1" + std::string(400, '0'));
  EXPECT_EQ(z.ErrNumber(), 6);
  EXPECT_EQ(z.ErrDescription(), "Overflow");
}

struct FormatCase {
  double re;
  double im;
  int places;
  const char* rect;
  const char* conj;
  const char* why;
};

const FormatCase kFormatCases[] = {
    {3, 4, 15, "3 + j4", "3 - j4", "plain parts"},
    {0, -1, 15, "0 - j1", "0 + j1", "negative imaginary"},
    {0.5, 0, 15, ".5", ".5", "no j0 and no zero before the point"},
    {2, 1e-20, 15, "2", "2", "a part that rounds to zero disappears"},
    {3, 0, 15, "3", "3", "real only"},
    {1.0 / 3.0, 0, 2, ".33", ".33", "rounded to two places"},
    {-1.0 / 3.0, 2.0 / 3.0, 3, "-.333 + j.667", "-.333 - j.667", "both parts rounded"},
    {1.0 / 3.0, 0, 0, ".333333333333333", ".333333333333333", "0 places means 15"},
    {1.0 / 3.0, 0, -1, ".333333333333333", ".333333333333333", "negative places mean 15"},
    {1.0 / 3.0, 0, 99, ".333333333333333", ".333333333333333", "too many places mean 15"},
    {2.5, -0.125, 2, "2.5 - j.12", "2.5 + j.12", "ties go to the even digit"},
    {1.5e-5, 2e20, 15, ".000015 + j200000000000000000000", ".000015 - j200000000000000000000",
     "tiny and huge parts are positional: an exponent letter would read back as the unit"},
    {-1e-5, -2.1952410910289e20, 15, "-.00001 - j219524109102890000000", "-.00001 + j219524109102890000000",
     "the same with negative parts"},
};

TEST_P(ComplexNumberTest, FormatRectangular) {
  for (const auto& c : kFormatCases) {
    ComplexNumber z = Parts(c.re, c.im);
    z.FormatRectangular(c.places);
    EXPECT_EQ(z.RectText(), c.rect) << c.why;
    EXPECT_EQ(z.ConjText(), c.conj) << c.why;
    EXPECT_EQ(z.ConjImaginary(), -c.im) << c.why;
  }
}

TEST_P(ComplexNumberTest, ThreeParsesAndPrintsAsThree) {
  ComplexNumber z = Rect("3");
  EXPECT_EQ(z.Real(), 3);
  EXPECT_EQ(z.Imaginary(), 0);
  z.FormatRectangular(15);
  EXPECT_EQ(z.RectText(), "3");
  EXPECT_EQ(z.ConjText(), "3");
}

TEST_P(ComplexNumberTest, AngleOfZeroIsAQuarterPi) {
  ComplexNumber z = Rect("0+j0");
  EXPECT_EQ(z.Modulus(), 0);
  EXPECT_EQ(z.Angle(), std::atan(1.0));
  z.FormatPolar(15);
  EXPECT_EQ(z.PolarText(), "0 / .785398163397448 rad\r\n0 / 45 deg");
}

struct AngleCase {
  const char* text;
  double angle;
  const char* why;
};

const AngleCase kAngleCases[] = {
    {"1", 0, "positive real axis"},
    {"j1", kPi / 2, "positive imaginary axis"},
    {"0-j1", 3 * kPi / 2, "negative imaginary axis lies at 3 pi / 2"},
    {"-1+j0", kPi, "negative real axis"},
    {"-1-j1", std::atan(1.0) + kPi, "third quadrant"},
    {"1-j1", -std::atan(1.0) + 2 * kPi, "fourth quadrant gets 2 pi added"},
};

TEST_P(ComplexNumberTest, AngleLiesFromZeroToTwoPi) {
  for (const auto& c : kAngleCases) EXPECT_DOUBLE_EQ(Rect(c.text).Angle(), c.angle) << c.why;
}

TEST_P(ComplexNumberTest, FormatPolarHasTwoLines) {
  ComplexNumber z = Rect("3+j4");
  z.FormatPolar(3);
  EXPECT_EQ(z.PolarText(), "5 / .927 rad\r\n5 / 53.13 deg");
}

struct PolarCase {
  const char* text;
  double modulus;
  double angle;
  const char* stored;
  const char* why;
};

const PolarCase kPolarCases[] = {
    {"5/90d", 5, kPi / 2, "5/90d", "degrees"},
    {"5 / 1.5 r", 5, 1.5, "5/1.5r", "radians named, blanks removed"},
    {"5/1.5", 5, 1.5, "5/1.5", "radians by default"},
    {"2\\0.5", 2, 0.5, "2\\0.5", "a backslash separates too"},
};

TEST_P(ComplexNumberTest, ParsePolar) {
  for (const auto& c : kPolarCases) {
    ComplexNumber z;
    z.SetPolarText(c.text);
    EXPECT_EQ(z.Modulus(), c.modulus) << c.why;
    EXPECT_DOUBLE_EQ(z.Angle(), c.angle) << c.why;
    EXPECT_EQ(z.PolarText(), c.stored) << c.why;
    EXPECT_EQ(z.Real(), std::cos(z.Angle()) * c.modulus) << c.why;
    EXPECT_EQ(z.ConjImaginary(), -z.Imaginary()) << c.why;
    EXPECT_EQ(z.ErrNumber(), 0) << c.why;
  }
}

TEST_P(ComplexNumberTest, NinetyDegreesLeavesARealPartNearZero) {
  ComplexNumber z;
  z.SetPolarText("5/90d");
  EXPECT_NE(z.Real(), 0);
  EXPECT_NEAR(z.Real(), 3e-16, 1e-16);
  EXPECT_EQ(z.Imaginary(), 5);
}

TEST_P(ComplexNumberTest, RadiansNamedOrNotAreTheSame) {
  ComplexNumber a;
  a.SetPolarText("5/1.5r");
  ComplexNumber b;
  b.SetPolarText("5/1.5");
  EXPECT_EQ(a.Real(), b.Real());
  EXPECT_EQ(a.Imaginary(), b.Imaginary());
}

TEST_P(ComplexNumberTest, PolarWithoutSeparatorFails) {
  ComplexNumber z = Rect("1+j1");
  z.SetPolarText("5");
  EXPECT_EQ(z.ErrNumber(), 1001);
  EXPECT_EQ(z.ErrDescription(), kBadPolar);
  EXPECT_EQ(z.Real(), 1);
  EXPECT_EQ(z.Imaginary(), 1);
}

TEST_P(ComplexNumberTest, LastSeparatorCountsAndStaleModulusIsUsed) {
  ComplexNumber z = Rect("3+j4");  // modulus 5
  z.SetPolarText("1/2/3");
  EXPECT_EQ(z.ErrNumber(), 1002);
  EXPECT_EQ(z.ErrDescription(), kBadPolar);
  EXPECT_EQ(z.Modulus(), 5);
  EXPECT_EQ(z.Angle(), 3);
  EXPECT_EQ(z.Real(), std::cos(3.0) * 5);
}

TEST_P(ComplexNumberTest, NonNumericAngleKeepsTheOldAngle) {
  ComplexNumber z = Rect("j2");  // angle pi / 2
  z.SetPolarText("4/xd");
  EXPECT_EQ(z.ErrNumber(), 1002);
  EXPECT_EQ(z.Modulus(), 4);
  EXPECT_DOUBLE_EQ(z.Angle(), kPi / 2 * kPi / 180);  // the stale angle is still read as degrees
}

struct ArithmeticCase {
  const char* a;
  const char* b;
  char op;
  double re;
  double im;
  const char* why;
};

const ArithmeticCase kArithmeticCases[] = {
    {"1+j2", "3-j4", '+', 4, -2, "sum"},
    {"1+j2", "3-j4", '-', -2, 6, "difference"},
    {"1+j2", "3-j4", '*', 11, 2, "product"},
    {"1+j2", "3-j4", '/', -0.2, 0.4, "quotient with fresh conjugate"},
    {"2", "4", '/', 0.5, 0, "real quotient"},
};

TEST_P(ComplexNumberTest, Arithmetic) {
  for (const auto& c : kArithmeticCases) {
    const ComplexNumber a = Rect(c.a);
    const ComplexNumber b = Rect(c.b);
    ComplexNumber z;
    switch (c.op) {
      case '+': EXPECT_TRUE(z.Add(a, b)); break;
      case '-': EXPECT_TRUE(z.Subtract(a, b)); break;
      case '*': EXPECT_TRUE(z.Multiply(a, b)); break;
      default: z.Divide(a, b); break;
    }
    EXPECT_DOUBLE_EQ(z.Real(), c.re) << c.why;
    EXPECT_DOUBLE_EQ(z.Imaginary(), c.im) << c.why;
    EXPECT_DOUBLE_EQ(z.Modulus(), std::hypot(c.re, c.im)) << c.why;
    EXPECT_EQ(z.ErrNumber(), 0) << c.why;
    EXPECT_EQ(a.RectText(), c.a) << "operand unchanged: " << c.why;
  }
}

TEST_P(ComplexNumberTest, AddLeavesConjugateAlone) {
  ComplexNumber z = Rect("1+j1");  // conjugate field -1
  z.Add(Rect("1+j5"), Rect("1+j5"));
  EXPECT_EQ(z.Imaginary(), 10);
  EXPECT_EQ(z.ConjImaginary(), -1);
}

TEST_P(ComplexNumberTest, MultiplyWithItselfAsFirstOperandUsesTheNewRealPart) {
  ComplexNumber det = Rect("1+j0");
  det.Multiply(det, Rect("2+j1"));
  EXPECT_EQ(det.Real(), 2);
  EXPECT_EQ(det.Imaginary(), 2);  // 0 * 2 + 1 * 2, where the true product has 1
  det.FormatRectangular(0);
  EXPECT_EQ(det.RectText(), "2 + j2");
}

TEST_P(ComplexNumberTest, DivideReadsTheStoredConjugate) {
  ComplexNumber b = Rect("1+j1");  // fresh conjugate -1
  b.SetImaginary(2);               // conjugate now stale
  ComplexNumber z;
  z.Divide(Rect("2"), b);
  // D = (2 * -1 * -1) + 1 = 3; real = (0 + 1 * 2) / 3; imaginary = (0 + -1 * 2) / 3
  EXPECT_DOUBLE_EQ(z.Real(), 2.0 / 3.0);
  EXPECT_DOUBLE_EQ(z.Imaginary(), -2.0 / 3.0);
  EXPECT_EQ(z.ConjImaginary(), -z.Imaginary());
}

struct GuardedFailureCase {
  const char* a;
  const char* b;
  int err;
  const char* description;
  const char* why;
};

// With a fresh conjugate a zero divisor makes both numerators 0, so the
// quotient is 0 / 0, an overflow; only a stale conjugate gives 1 / 0.
const GuardedFailureCase kDivideFailures[] = {
    {"1+j1", "0", 6, "Overflow", "zero divisor with fresh conjugate: 0 / 0"},
    {"0", "0", 6, "Overflow", "zero by zero is an overflow"},
    {"1+j1", "j1", 11, "Division by zero", "zero divisor whose conjugate field is stale"},
};

TEST_P(ComplexNumberTest, DivideFailuresAndTheirClearing) {
  for (const auto& c : kDivideFailures) {
    ComplexNumber z = Rect("7+j7");
    ComplexNumber divisor = Rect(c.b);
    divisor.SetImaginary(0);  // the conjugate field keeps minus the parsed part
    z.Divide(Rect(c.a), divisor);
    EXPECT_EQ(z.ErrNumber(), c.err) << c.why;
    EXPECT_EQ(z.ErrDescription(), c.description) << c.why;
    EXPECT_EQ(z.Real(), 7) << "fields keep what they held: " << c.why;
    z.Divide(Rect("1"), Rect("2"));
    EXPECT_EQ(z.ErrNumber(), 0) << "a success clears the fields: " << c.why;
    EXPECT_EQ(z.ErrDescription(), "") << c.why;
  }
}

TEST_P(ComplexNumberTest, PowerLeavesConjugateStale) {
  ComplexNumber z = Rect("1+j1");
  z.Power(2);
  EXPECT_NEAR(z.Real(), 0, 1e-15);
  EXPECT_DOUBLE_EQ(z.Imaginary(), 2);
  EXPECT_EQ(z.ConjImaginary(), -1);  // still the conjugate of 1 + j1
  z.FormatRectangular(15);
  EXPECT_DOUBLE_EQ(z.ConjImaginary(), -2);
  EXPECT_EQ(z.RectText(), "0 + j2");
}

struct PowerFailureCase {
  const char* text;
  double n;
  int err;
  const char* why;
};

const PowerFailureCase kPowerFailures[] = {
    {"0", -1, 5, "zero to a negative power"},
    {"10", 400, 6, "overflow"},
};

TEST_P(ComplexNumberTest, PowerFailures) {
  for (const auto& c : kPowerFailures) {
    ComplexNumber z = Rect(c.text);
    z.Power(c.n);
    EXPECT_EQ(z.ErrNumber(), c.err) << c.why;
  }
  ComplexNumber z;
  z.SetModulus(-8);  // only a stored modulus can be negative
  z.Power(0.5);
  EXPECT_EQ(z.ErrNumber(), 5);
  EXPECT_EQ(z.ErrDescription(), "Invalid procedure call or argument");
  z.SetModulus(2);
  z.Power(2);
  EXPECT_EQ(z.ErrNumber(), 0);
}

TEST_P(ComplexNumberTest, RootsOfEight) {
  ComplexNumber z = Rect("8");
  z.Roots(3, 4);
  ASSERT_EQ(z.RootCount(), 3U);
  EXPECT_EQ(z.Root(0), " 2 + j 0");
  EXPECT_EQ(z.Root(1), "-1 + j 1.7321");
  EXPECT_EQ(z.Root(2), "-1 - j 1.7321");
  EXPECT_EQ(z.ErrNumber(), 0);
}

TEST_P(ComplexNumberTest, RootsKeepTheBlankOfStr) {
  ComplexNumber z = Rect("1+j.5");
  z.Roots(1, 15);
  ASSERT_EQ(z.RootCount(), 1U);
  EXPECT_EQ(z.Root(0), " 1 + j .5");
  ComplexNumber minusOne = Rect("-1");
  minusOne.Roots(1, 3);
  EXPECT_EQ(minusOne.Root(0), "-1 + j 0");
}

TEST_P(ComplexNumberTest, RootOutsideIsTheCallersFault) {
  ComplexNumber z = Rect("4");
  z.Roots(2, 15);
  EXPECT_THROW(z.Root(2), expr::Fault);
  EXPECT_THROW(z.Root(-1), expr::Fault);
}

TEST_P(ComplexNumberTest, RootsOfNothingFail) {
  ComplexNumber z = Rect("4");
  z.Roots(0, 15);
  EXPECT_EQ(z.ErrNumber(), expr::Fault::kSubscriptOutOfRange);
  z.Roots(5e6, 15);
  EXPECT_EQ(z.ErrNumber(), expr::Fault::kOutOfMemory);
  z.Roots(1e12, 15);
  EXPECT_EQ(z.ErrNumber(), expr::Fault::kOverflow);
  z.Roots(2, 15);
  EXPECT_EQ(z.ErrNumber(), 0);
}

TEST_P(ComplexNumberTest, NegateFlipsBothParts) {
  ComplexNumber z = Rect("3-j4");
  EXPECT_TRUE(z.Negate());
  EXPECT_EQ(z.Real(), -3);
  EXPECT_EQ(z.Imaginary(), 4);
  EXPECT_DOUBLE_EQ(z.Angle(), std::atan(-4.0 / 3.0) + kPi);
  EXPECT_EQ(z.ConjImaginary(), 4);  // not refreshed
}

TEST_P(ComplexNumberTest, UnguardedOverflowIsRecordedAndReported) {
  ComplexNumber big;
  big.SetReal(1e300);
  ComplexNumber z;
  EXPECT_FALSE(z.Multiply(big, big));
  EXPECT_EQ(z.ErrNumber(), 6);
  EXPECT_EQ(z.ErrDescription(), "Overflow");
  EXPECT_FALSE(z.Add(big, big) && false);
}

TEST_P(ComplexNumberTest, IsLetter) {
  EXPECT_TRUE(ComplexNumber::IsLetter('A'));
  EXPECT_TRUE(ComplexNumber::IsLetter('z'));
  EXPECT_FALSE(ComplexNumber::IsLetter('@'));
  EXPECT_FALSE(ComplexNumber::IsLetter('['));
  EXPECT_FALSE(ComplexNumber::IsLetter('`'));
  EXPECT_FALSE(ComplexNumber::IsLetter('{'));
  EXPECT_FALSE(ComplexNumber::IsLetter('5'));
}

TEST_P(ComplexNumberTest, CopyRectTextReparsesTheText) {
  ComplexNumber source;
  source.SetReal(1.0 / 3.0);
  source.SetImaginary(-2);
  source.FormatRectangular(2);
  ComplexNumber copy;
  copy.CopyRectText(source);
  EXPECT_EQ(copy.RectText(), ".33-j2");
  EXPECT_EQ(copy.Real(), 0.33);
  EXPECT_EQ(copy.Imaginary(), -2);
  ComplexNumber second;
  second.CopyRectText(copy);
  EXPECT_EQ(second.RectText(), ".33-j2");
  EXPECT_EQ(second.Real(), 0.33);
  EXPECT_EQ(second.ConjImaginary(), 2);
}

TEST_P(ComplexNumberTest, PrintsReadBackAsTheSameNumber) {
  // What the class prints for itself is read back unchanged, at any size.
  const double parts[][2] = {{1e-5, 0}, {0, 3e-9}, {2.1952410910289e20, -1}, {-7.5e-11, 4.25e17}};
  for (const auto& p : parts) {
    ComplexNumber z = Parts(p[0], p[1]);
    z.FormatRectangular(15);
    ComplexNumber back;
    back.CopyRectText(z);
    EXPECT_EQ(back.Real(), p[0]) << z.RectText();
    EXPECT_EQ(back.Imaginary(), p[1]) << z.RectText();
    EXPECT_EQ(Rect(z.RectText()).Real(), p[0]) << z.RectText();
    EXPECT_EQ(Rect(z.RectText()).Imaginary(), p[1]) << z.RectText();
  }
}

TEST_P(ComplexNumberTest, TypedExponentLetterIsStillTheUnit) {
  // Text a person types keeps the letter rule: "1e5" is 0 + j15.
  const ComplexNumber z = Rect("1e5");
  EXPECT_EQ(z.Real(), 0);
  EXPECT_EQ(z.Imaginary(), 15);
}

TEST_P(ComplexNumberTest, PrintAtTheTopOfTheRangeNeverThrows) {
  // The largest double rounds to 15 digits beyond the range: the print
  // cannot be made, which is recorded as an overflow, and a copy of the
  // number through its text neither throws nor reads a wrong value.
  ComplexNumber z;
  z.SetReal(std::numeric_limits<double>::max());
  z.SetImaginary(1);
  EXPECT_NO_THROW(z.FormatRectangular(15));
  EXPECT_EQ(z.ErrNumber(), expr::Fault::kOverflow);
  EXPECT_EQ(z.ErrDescription(), "Overflow");
  EXPECT_EQ(z.RectText(), "");
  ComplexNumber copy;
  EXPECT_NO_THROW(copy.CopyRectText(z));
  EXPECT_EQ(copy.Real(), 0);
  EXPECT_EQ(copy.ErrNumber(), 0);
  // Just below the cut the print is made and reads back as its 15 digits.
  ComplexNumber high;
  high.SetReal(1.79769313486231e308);
  high.FormatRectangular(15);
  EXPECT_EQ(high.ErrNumber(), 0);
  ComplexNumber back;
  EXPECT_NO_THROW(back.CopyRectText(high));
  EXPECT_EQ(back.Real(), 1.79769313486231e308);
}

TEST_P(ComplexNumberTest, ParseOverflowedTellsANumberTooLargeToHold) {
  struct Row {
    std::string text;
    bool overflowed;
    const char* why;
  };
  const Row rows[] = {
      {"3+j4", false, "an ordinary number"},
      {"1" + std::string(200, '0'), true, "its square for the modulus overflows"},
      {std::string(400, '9'), true, "beyond the range of a double"},
      {"ab", false, "a malformed text is another failure"},
      {"1" + std::string(150, '0'), false, "its square still fits"},
  };
  ComplexNumber z;
  for (const auto& r : rows) {
    z.SetRectText(r.text);
    EXPECT_EQ(z.ParseOverflowed(), r.overflowed) << r.why;
  }
}

TEST_P(ComplexNumberTest, CopyOfAnEmptyTextChangesNothing) {
  ComplexNumber z = Rect("5");
  z.CopyRectText(ComplexNumber());
  EXPECT_EQ(z.Real(), 5);
  EXPECT_EQ(z.RectText(), "");
}

}  // namespace
}  // namespace velmora::complex
