#include "matrix/complexmatrix.h"

#include <gtest/gtest.h>

#include "expr/fault.h"
#include "tests/matrix/matrixbuild.h"

namespace velmora::matrix {
namespace {

using testing::MakeMatrix;
using testing::Rows;
using testing::Sized;
using testing::Texts;

TEST(ComplexMatrix, NewMatrixIsEmpty) {
  const ComplexMatrix m;
  EXPECT_EQ(m.Name(), "");
  EXPECT_EQ(m.NumRows(), 0);
  EXPECT_EQ(m.NumCollumns(), 0);
  EXPECT_FALSE(m.IsDefined());
  EXPECT_FALSE(m.IsSquare());
  EXPECT_EQ(m.ErrNumber(), 0);
  EXPECT_THROW(m.Item(0, 0), expr::Fault);
}

TEST(ComplexMatrix, WritingToTheItemCopyChangesNothing) {
  ComplexMatrix m = MakeMatrix("Matrix A", {{"1+j2"}});
  complex::ComplexNumber copy = m.Item(0, 0);
  copy.SetRectText("9");
  copy.SetReal(42);
  EXPECT_EQ(m.Item(0, 0).RectText(), "1+j2");
  EXPECT_EQ(m.Item(0, 0).Real(), 1);
}

TEST(ComplexMatrix, AnEntryNeverWrittenReadsAsZero) {
  const ComplexMatrix m = Sized("Matrix A", 2, 2);
  const complex::ComplexNumber z = m.Item(1, 1);
  EXPECT_EQ(z.RectText(), "");
  EXPECT_EQ(z.Real(), 0);
  EXPECT_EQ(z.Imaginary(), 0);
}

TEST(ComplexMatrix, ItemTravelsThroughTheText) {
  ComplexMatrix m = Sized("Matrix A", 1, 1);
  complex::ComplexNumber z;
  z.SetReal(1.0 / 3.0);  // a value never printed does not travel
  m.SetItem(0, 0, z);
  EXPECT_EQ(m.Item(0, 0).Real(), 0);
  z.FormatRectangular(4);
  m.SetItem(0, 0, z);
  EXPECT_EQ(m.Item(0, 0).Real(), 0.3333);
  EXPECT_EQ(m.Item(0, 0).RectText(), ".3333");
}

TEST(ComplexMatrix, ItemOutsideTheArrayIsTheCallersFault) {
  ComplexMatrix m = Sized("Matrix A", 2, 3);
  EXPECT_NO_THROW(m.Item(1, 2));
  EXPECT_THROW(m.Item(2, 0), expr::Fault);
  EXPECT_THROW(m.Item(0, 3), expr::Fault);
  EXPECT_THROW(m.Item(-1, 0), expr::Fault);
  EXPECT_THROW(m.SetItem(0, 3, complex::ComplexNumber()), expr::Fault);
}

TEST(ComplexMatrix, ComputedEntryReadsBackWithThePrecisionsPlaces) {
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"1"}});
  complex::ComplexNumber three;
  three.SetRectText("3");
  ComplexMatrix s;
  s.ScalarDivide(a, three, 2);
  EXPECT_EQ(s.Item(0, 0).RectText(), ".33");
  EXPECT_EQ(s.Item(0, 0).Real(), 0.33);
}

struct SizeCase {
  const char* text;
  int rows;
  int cols;
  int err;
  const char* description;
  const char* why;
};

const SizeCase kSizeCases[] = {
    {"3x4", 3, 4, 0, "", "the usual form"},
    {"3 x 4", 3, 4, 0, "", "blanks are separators too"},
    {"3abc4", 3, 4, 0, "", "every later separator is skipped"},
    {"50x50", 50, 50, 0, "", "the largest size passes"},
    {"51x2", 51, 2, 2, " maximum size is 50x50.", "too many rows"},
    {"2x51", 2, 51, 2, " maximum size is 50x50.", "too many columns"},
    {"-2x3", 0, 23, 0, "", "a minus sign closes an empty row count"},
    {"3.5x2", 3, 52, 2, " maximum size is 50x50.", "a point closes the row count"},
    {"12", 7, 12, 0, "", "no separator: all digits are columns, rows unchanged"},
    {"99999x2", 7, 7, 2, " maximum size is 50x50.", "a count past 16 bits"},
};

TEST(ComplexMatrix, ParseSize) {
  for (const auto& c : kSizeCases) {
    ComplexMatrix m;
    m.SetNumRows(7);
    m.SetNumCollumns(7);
    m.SetSizeText(c.text);
    EXPECT_EQ(m.SizeText(), c.text) << c.why;
    EXPECT_EQ(m.NumRows(), c.rows) << c.why;
    EXPECT_EQ(m.NumCollumns(), c.cols) << c.why;
    EXPECT_EQ(m.ErrNumber(), c.err) << c.why;
    EXPECT_EQ(m.ErrDescription(), c.description) << c.why;
  }
}

TEST(ComplexMatrix, EmptySizeTextLeavesTheCountsAndAsks) {
  ComplexMatrix m;
  m.SetSizeText("");
  EXPECT_EQ(m.ErrNumber(), 0);
  EXPECT_EQ(m.ErrDescription(), " - Enter: Rows x Cols (e.g. 2x3).");
  EXPECT_EQ(m.NumRows(), 0);
}

TEST(ComplexMatrix, NegativeCountSetByHandIsTooSmall) {
  ComplexMatrix m;
  m.SetNumRows(-1);
  m.SetSizeText("5");
  EXPECT_EQ(m.ErrNumber(), 2);
  EXPECT_EQ(m.ErrDescription(), " must have at least 1 row and 1 column.");
}

TEST(ComplexMatrix, InitSetsFlagsArrayAndDeterminant) {
  ComplexMatrix m;
  EXPECT_EQ(m.Determinant().Real(), 0);  // none yet
  m.SetNumRows(2);
  m.SetNumCollumns(2);
  m.Init();
  EXPECT_TRUE(m.IsDefined());
  EXPECT_TRUE(m.IsSquare());
  EXPECT_EQ(m.Determinant().Real(), 1);
  EXPECT_EQ(m.Determinant().Imaginary(), 0);
  EXPECT_EQ(m.Determinant().RectText(), "1+j0");
  m.SetNumCollumns(3);
  m.Init();
  EXPECT_FALSE(m.IsSquare());
  EXPECT_NO_THROW(m.Item(1, 2));
}

TEST(ComplexMatrix, TerminateResetsEverything) {
  ComplexMatrix m = MakeMatrix("Matrix A", {{"1", "2"}});
  m.SetSizeText("51x1");
  m.SetTag(5);
  m.SetIsDisplay(true);
  m.SetIsSolution(true);
  m.SetIsInverse(true);
  m.Terminate();
  EXPECT_EQ(m.Name(), "");
  EXPECT_EQ(m.SizeText(), "");
  EXPECT_EQ(m.ErrNumber(), 0);
  EXPECT_EQ(m.ErrDescription(), "");
  EXPECT_EQ(m.NumRows(), 0);
  EXPECT_EQ(m.NumCollumns(), 0);
  EXPECT_EQ(m.Tag(), 0);
  EXPECT_FALSE(m.IsDefined() || m.IsSquare() || m.IsDisplay() || m.IsSolution() || m.IsInverse());
  EXPECT_EQ(m.Determinant().Real(), 0);
  EXPECT_THROW(m.Item(0, 0), expr::Fault);
}

TEST(ComplexMatrix, ZeroOrHugeSizeAllocatesNothing) {
  ComplexMatrix m;
  m.SetNumRows(3);
  m.SetNumCollumns(0);
  m.Init();
  EXPECT_THROW(m.Item(0, 0), expr::Fault);
  m.SetNumRows(32767);
  m.SetNumCollumns(32767);
  m.Init();
  EXPECT_THROW(m.Item(0, 0), expr::Fault);
}

struct OperationCase {
  const char* name;
  Rows a;
  Rows b;
  int precision;
  Rows expected;
};

TEST(ComplexMatrix, AddAndSubtract) {
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"1+j1", "2"}, {"-3", "j4"}});
  const ComplexMatrix b = MakeMatrix("Matrix B", {{"1-j1", ".5"}, {"3", "1"}});
  ComplexMatrix s;
  s.Add(a, b, 3);
  EXPECT_EQ(Texts(s), (Rows{{"2", "2.5"}, {"0", "1+j4"}}));
  s.Subtract(a, b, 3);
  EXPECT_EQ(Texts(s), (Rows{{"0+j2", "1.5"}, {"-6", "-1+j4"}}));
}

TEST(ComplexMatrix, MultiplyTwoByThreeByThreeByOne) {
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"1", "2", "3"}, {"j1", "0", "-1"}});
  const ComplexMatrix b = MakeMatrix("Matrix B", {{"1"}, {"1"}, {"2"}});
  ComplexMatrix s;
  s.Multiply(a, b, 3);
  EXPECT_EQ(s.NumRows(), 2);
  EXPECT_EQ(s.NumCollumns(), 1);
  EXPECT_EQ(Texts(s), (Rows{{"9"}, {"-2+j1"}}));
}

TEST(ComplexMatrix, MultiplyCarriesThePartialSumsNumbersNotTheirText) {
  // At one place each term .04 prints as 0, but the sum .08 prints as .1.
  const ComplexMatrix a = MakeMatrix("Matrix A", {{".04", ".04"}});
  const ComplexMatrix b = MakeMatrix("Matrix B", {{"1"}, {"1"}});
  ComplexMatrix s;
  s.Multiply(a, b, 1);
  EXPECT_EQ(Texts(s), (Rows{{".1"}}));
}

TEST(ComplexMatrix, ScalarOperations) {
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"1", "j1"}, {"2-j2", "0"}});
  complex::ComplexNumber r;
  r.SetRectText("2+j2");
  ComplexMatrix s;
  s.ScalarMultiply(a, r, 3);
  EXPECT_EQ(Texts(s), (Rows{{"2+j2", "-2+j2"}, {"8", "0"}}));
  s.ScalarDivide(a, r, 3);
  EXPECT_EQ(Texts(s), (Rows{{".25-j.25", ".25+j.25"}, {"0-j1", "0"}}));
}

TEST(ComplexMatrix, ScalarDivideByZeroLeavesZeros) {
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"1", "2"}});
  complex::ComplexNumber zero;
  zero.SetRectText("0");
  ComplexMatrix s;
  s.ScalarDivide(a, zero, 3);
  EXPECT_EQ(Texts(s), (Rows{{"0", "0"}}));
  EXPECT_EQ(s.ErrNumber(), 0);
}

TEST(ComplexMatrix, LineOperationsWriteOnlyTheirLine) {
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"1", "2"}, {"3", "4"}});
  complex::ComplexNumber r;
  r.SetRectText("10");
  ComplexMatrix s;
  s.ScalarMultiplyColumn(a, r, 1, 3);
  EXPECT_EQ(Texts(s), (Rows{{"", "20"}, {"", "40"}}));
  s.ScalarMultiplyRow(a, r, 0, 3);
  EXPECT_EQ(Texts(s), (Rows{{"10", "20"}, {"", ""}}));
  s.AddColumn(a, 0, 1, 3);
  EXPECT_EQ(Texts(s), (Rows{{"3", ""}, {"7", ""}}));
  s.AddRow(a, 1, 0, 3);
  EXPECT_EQ(Texts(s), (Rows{{"", ""}, {"4", "6"}}));
  EXPECT_EQ(s.Item(0, 0).Real(), 0);
}

TEST(ComplexMatrix, OperationDropsEarlierContent) {
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"1"}});
  ComplexMatrix s = MakeMatrix("Matrix S", {{"5", "6"}, {"7", "8"}});
  s.Add(a, a, 3);
  EXPECT_EQ(s.NumRows(), 1);
  EXPECT_EQ(Texts(s), (Rows{{"2"}}));
}

TEST(ComplexMatrix, OverflowBecomesTheMatrixError) {
  const std::string huge = "1" + std::string(200, '0');  // its square overflows
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"1", huge}});
  ComplexMatrix s;
  s.Add(a, a, 3);
  EXPECT_EQ(s.ErrNumber(), 6);
  EXPECT_EQ(s.ErrDescription(), "Overflow");
  EXPECT_EQ(s.Item(0, 0).RectText(), "2");
  EXPECT_EQ(s.Item(0, 1).RectText(), "");  // the operation stopped there
  s.Add(MakeMatrix("Matrix A", {{"1"}}), MakeMatrix("Matrix B", {{"1"}}), 3);
  EXPECT_EQ(s.ErrNumber(), 0);
}

TEST(ComplexMatrix, DeterminantCopiesThroughTheText) {
  ComplexMatrix m = Sized("Matrix A", 1, 1);
  complex::ComplexNumber z;
  z.SetRectText("2 - j 3");
  m.SetDeterminant(z);
  z.SetRectText("7");
  EXPECT_EQ(m.Determinant().RectText(), "2-j3");
  EXPECT_EQ(m.Determinant().Imaginary(), -3);
}

TEST(ComplexMatrix, PlainProperties) {
  ComplexMatrix m;
  m.SetName("Matrix B");
  m.SetTag(-9);
  m.SetIsDefined(true);
  m.SetIsDisplay(true);
  m.SetIsSolution(true);
  m.SetIsInverse(true);
  m.SetNumRows(4);
  EXPECT_EQ(m.Name(), "Matrix B");
  EXPECT_EQ(m.Tag(), -9);
  EXPECT_TRUE(m.IsDefined() && m.IsDisplay() && m.IsSolution() && m.IsInverse());
  EXPECT_EQ(m.NumRows(), 4);
  EXPECT_THROW(m.Item(0, 0), expr::Fault);  // setting a count does not touch the array
}

}  // namespace
}  // namespace velmora::matrix
