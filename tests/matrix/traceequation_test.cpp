#include "matrix/traceequation.h"

#include <gtest/gtest.h>

#include <string>

#include "expr/fault.h"
#include "tests/matrix/matrixbuild.h"

namespace velmora::matrix {
namespace {

using testing::MakeGrid;

TEST(Trace, SumsTheDiagonalCells) {
  const TraceSum t = TraceCells(MakeGrid({{"1+j2", "9"}, {"9", "3 - j1"}}));
  EXPECT_EQ(t.re, 4);
  EXPECT_EQ(t.im, 1);
}

struct TraceTextCase {
  double re;
  double im;
  const char* text;
  const char* why;
};

const TraceTextCase kTraceTexts[] = {
    {4, 1, "4 + j1", "positive imaginary part"},
    {4, -1.5, "4 - j1.5", "negative imaginary part"},
    {-0.5, 0, "-0.5", "no sign part for a zero imaginary part"},
};

TEST(Trace, Texts) {
  for (const auto& c : kTraceTexts) EXPECT_EQ(TraceValueText({c.re, c.im}), c.text) << c.why;
  EXPECT_EQ(TraceMessage("[A]", {5, 0}), "Trace Matrix [A]:\r\n5");
  EXPECT_EQ(TraceMessage("[B]", {1, -2}), "Trace Matrix [B]:\r\n1 - j2");
}

TEST(Trace, ReadsTheCellTextsNotAPrecision) {
  const TraceSum t = TraceCells(MakeGrid({{".333333333333333", ""}, {"", "1e5"}}));
  EXPECT_EQ(t.re, 0.333333333333333);
  EXPECT_EQ(t.im, 15);  // the exponent letter is the unit
}

TEST(Trace, ACellTooLargeToHoldIsMarked) {
  // Its number would read as 0 (beyond a double) or as a value whose modulus
  // failed: the sum says so, and the caller refuses the entry.
  EXPECT_TRUE(TraceCells(MakeGrid({{"1", "2"}, {"3", "4"}})).held);
  EXPECT_FALSE(TraceCells(MakeGrid({{std::string(400, '9'), "2"}, {"3", "4"}})).held);
  EXPECT_FALSE(TraceCells(MakeGrid({{"1", "2"}, {"3", "1" + std::string(200, '0')}})).held);
  EXPECT_TRUE(TraceCells(MakeGrid({{"1", std::string(400, '9')}, {"3", "4"}})).held) << "off the diagonal";
}

TEST(Trace, FewerColumnsThanRowsFaults) { EXPECT_THROW(TraceCells(MakeGrid({{"1"}, {"2"}})), expr::Fault); }

struct Equation2Case {
  int tr;
  int ti;
  const char* d;
  const char* equation;
  const char* why;
};

const Equation2Case kEquations2[] = {
    {5, 0, "-2", "X^2 - 5*X -2 = 0", "[[1, 2], [3, 4]]"},
    {0, 0, "-1", "X^2 *X -1 = 0", "a zero trace leaves *X standing"},
    {-3, 0, "2", "X^2 + 3*X +2 = 0", "negative trace, positive determinant"},
    {1, 0, ".5", "X^2 - 1*X +.5 = 0", "one and a half as plain numbers"},
    {2, 3, "1+j2", "X^2 - (2+j3)*X + (1+j2) = 0", "complex trace and determinant"},
    {2, -3, "0", "X^2 - (2-j3)*X  = 0", "zero determinant"},
    {-2, 0, "-0.25", "X^2 + 2*X -0.25 = 0", "negative determinant through its absolute value"},
};

TEST(CharacteristicEquation, TwoByTwo) {
  for (const auto& c : kEquations2) EXPECT_EQ(CharacteristicEquation2(c.tr, c.ti, c.d), c.equation) << c.why;
}

struct Equation3Case {
  int tr;
  int ti;
  long mr;
  long mi;
  const char* d;
  const char* equation;
  const char* why;
};

const Equation3Case kEquations3[] = {
    {6, 0, 11, 0, "6", "X^3 - 6*X^2 + 11*X - 6 = 0", "diag(1, 2, 3)"},
    {-1, 0, 1, 0, "-6", "X^3 + X^2 + X + 6 = 0", "coefficients of -1 and 1"},
    {1, 0, -1, 0, "0", "X^3 - X^2 - X  = 0", "1, -1 and a zero determinant"},
    {-4, 0, -5, 0, "1+j1", "X^3 + 4*X^2 - 5*X - (1+j1) = 0", "below -1, and a complex determinant"},
    {0, 0, 0, 0, "2", "X^3   - 2 = 0", "zero trace and minors"},
    {1, 2, 3, -4, "5", "X^3 - (1+j2)*X^2 + (3-j4)*X - 5 = 0", "complex coefficients"},
};

TEST(CharacteristicEquation, ThreeByThree) {
  for (const auto& c : kEquations3)
    EXPECT_EQ(CharacteristicEquation3(c.tr, c.ti, c.mr, c.mi, c.d), c.equation) << c.why;
}

struct CoefficientCase {
  testing::Rows cells;
  EquationCoefficients expected;
  const char* why;
};

TEST(CharacteristicEquation, CoefficientsAreRoundedToIntegers) {
  const CoefficientCase cases[] = {
      {{{"1", "2", "3"}, {"4", "5", "6"}, {"7", "8", "10"}}, {16, 0, -12, 0}, "integer 3 x 3"},
      {{{".5", "0"}, {"0", "1"}}, {2, 0, 0, 0}, "1.5 rounds to 2"},
      {{{".5", "0"}, {"0", "2"}}, {2, 0, 0, 0}, "2.5 rounds to 2: ties go to even"},
      {{{"1.5", "0", "0"}, {"0", "1.5", "0"}, {"0", "0", "1"}},
       {4, 0, 6, 0},
       "each product rounded: 2 + 2 + 2"},
      {{{"j1", "0", "0"}, {"0", "j1", "0"}, {"0", "0", "1"}}, {1, 2, -1, 2}, "complex products"},
  };
  for (const auto& c : cases) {
    const EquationCoefficients k = CoefficientsOf(MakeGrid(c.cells));
    EXPECT_EQ(k.tr, c.expected.tr) << c.why;
    EXPECT_EQ(k.ti, c.expected.ti) << c.why;
    EXPECT_EQ(k.mr, c.expected.mr) << c.why;
    EXPECT_EQ(k.mi, c.expected.mi) << c.why;
  }
}

TEST(CharacteristicEquation, ImaginaryUnit) {
  EXPECT_TRUE(HoldsImaginaryUnit("1+j2"));
  EXPECT_TRUE(HoldsImaginaryUnit("i"));
  EXPECT_FALSE(HoldsImaginaryUnit("-2.5"));
}

}  // namespace
}  // namespace velmora::matrix
