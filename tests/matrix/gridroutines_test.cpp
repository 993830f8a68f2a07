#include "matrix/gridroutines.h"

#include <gtest/gtest.h>

#include <string>

#include "expr/fault.h"
#include "matrix/gridtyping.h"
#include "tests/matrix/matrixbuild.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::matrix {
namespace {

using testing::GridTexts;
using testing::MakeGrid;
using testing::MakeMatrix;
using testing::Rows;
using testing::Sized;
using testing::Texts;
using velmora::testing::RecordingMessageBox;

struct ShowErrorCase {
  int code;
  const char* name;
  const char* text;
  const char* message;
};

const ShowErrorCase kShowErrorCases[] = {
    {1, "Matrix A", " maximum size is 50x50.", "Matrix A maximum size is 50x50."},
    {14, "Matrix B", " maximum size is 50x50.", "Matrix B maximum size is 50x50."},
    {2, "Matrix A", "", "Invalid number of columns in Matrix A. A valid matrix must have at least 1 column."},
    {3, "Matrix B", "",
     "Invalid number of rows and columns in Matrix B. A valid matrix must have at least 1 row and 1 column."},
    {4, "Matrix A", "", "You entered an invalid order for Matrix A."},
    {5, "Matrix A and Matrix B", " must be the same size.",
     "Matrix A and Matrix B must be the same order to perform addition."},
    {6, "Matrix A and Matrix B", " must be the same size.",
     "Matrix A and Matrix B must be the same order to perform subtraction."},
    {7, "Matrix A and Matrix B", "ignored",
     "In order to multiply Matrix A and Matrix B the number of columns in the first matrix must equal the "
     "number "
     "of rows in the second matrix."},
    {10, "Matrix A", " must be a square matrix.",
     "Matrix A must be square to compute the inverse and determinant."},
    {11, "Matrix A", " must be a square matrix.", "Matrix A must be square compute the solution set."},
    {12, "Matrix B", "ignored",
     "The number of rows in Matrix B must equal the number of rows in the solution set."},
    {13, "Scalar Constant", "You must enter a valid complex number.",
     "The Scalar Constant must be a valid complex number."},
};

TEST(ShowError, EveryMessage) {
  for (const auto& c : kShowErrorCases) {
    RecordingMessageBox box;
    GridRoutines routines(box);
    routines.ShowError(c.code, c.name, c.text);
    ASSERT_EQ(box.Boxes().size(), 1U) << c.code;
    EXPECT_EQ(box.Boxes()[0].text, c.message) << c.code;
    EXPECT_EQ(box.Boxes()[0].title, "Error") << c.code;
    EXPECT_EQ(box.Boxes()[0].icon, platform::MsgIcon::Exclamation) << c.code;
    EXPECT_EQ(box.Boxes()[0].buttons, platform::MsgButtons::Ok) << c.code;
  }
}

TEST(ShowError, CodeWithoutMessageShowsNothing) {
  RecordingMessageBox box;
  GridRoutines routines(box);
  routines.ShowError(8, "Matrix A", "text");
  routines.ShowError(0, "Matrix A", "text");
  EXPECT_TRUE(box.Boxes().empty());
}

struct CheckCase {
  int aRows, aCols, bRows, bCols;
  int operation;
  int code;
  const char* name;
  const char* text;
  const char* why;
};

const CheckCase kCheckCases[] = {
    {51, 2, 2, 2, kAdd, 14, "Matrix A", " maximum size is 50x50.", "[A] too large comes first"},
    {2, 2, 2, 60, kScalarMultiply, 14, "Matrix B", " maximum size is 50x50.", "[B] too large, any operation"},
    {2, 2, 2, 2, kAdd, 0, "", "", "same size adds"},
    {2, 2, 2, 3, kAdd, 5, "Matrix A and Matrix B", " must be the same size.", "add of two sizes"},
    {3, 2, 2, 2, kSubtract, 6, "Matrix A and Matrix B", " must be the same size.", "subtract of two sizes"},
    {2, 3, 3, 1, kMultiply, 0, "", "", "columns of [A] = rows of [B]"},
    {2, 3, 2, 3, kMultiply, 7, "Matrix A and Matrix B",
     "[A] must have the same number of columns as [B] has rows.", "multiply of unfit sizes"},
    {2, 3, 0, 0, kScalarMultiply, 0, "", "", "scalar operations have no check"},
    {2, 3, 0, 0, kScalarDivide, 0, "", "", "scalar operations have no check"},
    {2, 3, 2, 1, kDeterminantInverse, 10, "Matrix A", " must be a square matrix.", "inverse of a non-square"},
    {3, 3, 3, 1, kDeterminantInverse, 0, "", "", "inverse of a square"},
    {2, 3, 2, 1, kSolutionSet, 11, "Matrix A", " must be a square matrix.", "solve with a non-square"},
    {2, 2, 3, 1, kSolutionSet, 12, "Matrix B",
     " [A] and [B] must have the same number of rows, and number of matrix [B] columns must be 1.",
     "solve with too many rows in [B]"},
    {2, 2, 2, 2, kSolutionSet, 12, "Matrix B",
     " [A] and [B] must have the same number of rows, and number of matrix [B] columns must be 1.",
     "solve with two columns in [B]"},
    {2, 2, 2, 1, kSolutionSet, 0, "", "", "solve of fit sizes"},
};

TEST(CheckSizes, ByOperation) {
  for (const auto& c : kCheckCases) {
    RecordingMessageBox box;
    GridRoutines routines(box);
    const ComplexMatrix a = Sized("Matrix A", c.aRows, c.aCols);
    const ComplexMatrix b = Sized("Matrix B", c.bRows, c.bCols);
    routines.CheckSizes(a, b, c.operation);
    EXPECT_EQ(routines.ErrCode, c.code) << c.why;
    EXPECT_EQ(routines.ErrName, c.name) << c.why;
    EXPECT_EQ(routines.ErrText, c.text) << c.why;
    EXPECT_TRUE(box.Boxes().empty()) << "the check itself shows nothing: " << c.why;
  }
}

TEST(GridToMatrix, MovesEveryCell) {
  RecordingMessageBox box;
  GridRoutines routines(box);
  ComplexMatrix m = Sized("Matrix A", 2, 2);
  EXPECT_EQ(routines.GridToMatrix(MakeGrid({{"1 + j 2", "3"}, {"-j", ".5-j.5"}}), m), 0);
  EXPECT_FALSE(routines.ReadFailed);
  EXPECT_EQ(Texts(m), (Rows{{"1+j2", "3"}, {"-j", ".5-j.5"}}));
  EXPECT_EQ(m.Item(1, 0).Imaginary(), -1);
  EXPECT_TRUE(box.Boxes().empty());
}

TEST(GridToMatrix, ACellIsParsedAsItStands) {
  // With no letter the whole text is the real part: "1+" reads as 1. The
  // unit makes the difference: "1+j" is 1 + j1.
  RecordingMessageBox box;
  GridRoutines routines(box);
  ComplexMatrix m = Sized("Matrix A", 1, 3);
  routines.GridToMatrix(MakeGrid({{"1+", "1+j", "ab"}}), m);
  EXPECT_EQ(m.Item(0, 0).Real(), 1);
  EXPECT_EQ(m.Item(0, 0).Imaginary(), 0);
  EXPECT_EQ(m.Item(0, 1).Real(), 1);
  EXPECT_EQ(m.Item(0, 1).Imaginary(), 1);
  // A malformed cell goes in as its text and reads as 0.
  EXPECT_EQ(m.Item(0, 2).RectText(), "ab");
  EXPECT_EQ(m.Item(0, 2).Real(), 0);
  EXPECT_EQ(m.Item(0, 2).ErrNumber(), 1002);
}

TEST(GridToMatrix, AnEmptyCellStopsWithItsMessage) {
  RecordingMessageBox box;
  GridRoutines routines(box);
  ComplexMatrix m = Sized("Matrix B", 2, 2);
  EXPECT_EQ(routines.GridToMatrix(MakeGrid({{"1", "2"}, {"", "4"}}), m), 1);
  ASSERT_EQ(box.Boxes().size(), 1U);
  EXPECT_EQ(box.Boxes()[0].text, "All cells must contain an entry.");
  EXPECT_EQ(box.Boxes()[0].title, "Invalid Entry in Matrix Matrix B");
  EXPECT_EQ(box.Boxes()[0].icon, platform::MsgIcon::Exclamation);
  EXPECT_EQ(m.Item(0, 1).RectText(), "2");  // the cells before it went in
  EXPECT_EQ(m.Item(1, 1).RectText(), "");
}

TEST(GridToMatrix, ANumberTooLargeToHoldIsRefused) {
  // Such a cell used to go in as whatever the shared scratch number held
  // (the cell before it, or 0) or with a stale modulus: it is refused with
  // the entry's own message instead.
  struct Row {
    std::string cell;
    const char* why;
  };
  const Row rows[] = {
      {"1" + std::string(200, '0'), "201 digits: its square for the modulus overflows"},
      {std::string(400, '9'), "400 digits: beyond the range of a double"},
      {"3+j" + std::string(400, '9'), "an imaginary part beyond the range"},
      {"-" + std::string(310, '1') + ".5", "a negative real part beyond the range"},
  };
  for (const auto& r : rows) {
    RecordingMessageBox box;
    GridRoutines routines(box);
    ComplexMatrix m = Sized("Matrix A", 1, 3);
    EXPECT_EQ(routines.GridToMatrix(MakeGrid({{"7", r.cell, "2"}}), m), 1) << r.why;
    ASSERT_EQ(box.Boxes().size(), 1U) << r.why;
    EXPECT_EQ(box.Boxes()[0].text, "You must enter a valid complex number.") << r.why;
    EXPECT_EQ(box.Boxes()[0].title, "Invalid Entry in Matrix Matrix A") << r.why;
    EXPECT_EQ(box.Boxes()[0].icon, platform::MsgIcon::Exclamation) << r.why;
    EXPECT_EQ(m.Item(0, 1).RectText(), "") << r.why << ": nothing of it went in";
  }
}

TEST(GridToMatrix, TheLargestNumbersThatFitGoIn) {
  // A square of 1E+150 still fits a double, so its modulus can be taken.
  RecordingMessageBox box;
  GridRoutines routines(box);
  ComplexMatrix m = Sized("Matrix A", 1, 1);
  EXPECT_EQ(routines.GridToMatrix(MakeGrid({{"1" + std::string(150, '0')}}), m), 0);
  EXPECT_TRUE(box.Boxes().empty());
  EXPECT_EQ(m.Item(0, 0).Real(), 1e150);
}

TEST(GridToMatrix, WithZerosAddedTheRunGoesThrough) {
  RecordingMessageBox box;
  GridRoutines routines(box);
  ComplexMatrix m = Sized("Matrix A", 2, 2);
  Grid a = MakeGrid({{"1", ""}, {"", "4"}});
  Grid b = MakeGrid({{""}});
  AddZeros(false, a, b);
  EXPECT_EQ(GridTexts(a), (Rows{{"1", ""}, {"", "4"}}));
  AddZeros(true, a, b);
  EXPECT_EQ(GridTexts(a), (Rows{{"1", "0"}, {"0", "4"}}));
  EXPECT_EQ(GridTexts(b), (Rows{{"0"}}));
  EXPECT_EQ(routines.GridToMatrix(a, m), 0);
  EXPECT_TRUE(box.Boxes().empty());
}

TEST(GridToMatrix, AGridSmallerThanTheMatrixFails) {
  RecordingMessageBox box;
  GridRoutines routines(box);
  ComplexMatrix m = Sized("Matrix A", 3, 3);
  EXPECT_EQ(routines.GridToMatrix(MakeGrid({{"1", "2"}, {"3", "4"}}), m), 0);
  EXPECT_TRUE(routines.ReadFailed);
  ASSERT_EQ(box.Boxes().size(), 1U);
  EXPECT_EQ(box.Boxes()[0].text, "Invalid Matrix order.");
  EXPECT_EQ(box.Boxes()[0].title, "Error");
  routines.GridToMatrix(MakeGrid({{"1"}}), m = Sized("Matrix A", 1, 1));
  EXPECT_FALSE(routines.ReadFailed);
}

TEST(MatrixToGrid, ShowsTheEntriesTexts) {
  const ComplexMatrix m = MakeMatrix("Matrix S", {{"1 - j2", "3"}, {"0", ".25"}});
  Grid g;
  SizeGrid(m, g);
  EXPECT_EQ(g.Rows(), 2);
  EXPECT_EQ(g.Cols(), 2);
  EXPECT_EQ(g.CellAlignment(), Grid::kAlignCenter);
  EXPECT_EQ(g.Row(), 0);
  EXPECT_EQ(g.Col(), 0);
  MatrixToGrid(m, g);
  EXPECT_EQ(GridTexts(g), (Rows{{"1-j2", "3"}, {"0", ".25"}}));
  EXPECT_EQ(ShowDeterminant(m), "1+j0");
}

TEST(GridEdits, TransposeSwapsAndCopies) {
  const Grid g = MakeGrid({{"1", "2", "3"}, {"4", "", "6"}});
  Grid swap;
  TransposeGrid(g, swap);
  EXPECT_EQ(GridTexts(swap), (Rows{{"1", "4"}, {"2", ""}, {"3", "6"}}));
  SwapRowsGrid(g, 0, 1, swap);
  EXPECT_EQ(GridTexts(swap), (Rows{{"4", "", "6"}, {"1", "2", "3"}}));
  SwapColumnsGrid(g, 0, 2, swap);
  EXPECT_EQ(GridTexts(swap), (Rows{{"3", "2", "1"}, {"6", "", "4"}}));
  EXPECT_THROW(SwapRowsGrid(g, 0, 2, swap), expr::Fault);
  Grid copy;
  Grid target(5, 5);
  CopyGrid(g, copy);
  PasteGrid(copy, target);
  EXPECT_EQ(target, g);
  Grid self = g;
  TransposeGrid(self, self);  // the swap grid may be the grid itself
  EXPECT_EQ(GridTexts(self), (Rows{{"1", "4"}, {"2", ""}, {"3", "6"}}));
}

struct TypingCase {
  const char* keys;  // '<' is backspace, '>' is Enter
  Rows expected;
  int row;
  int col;
  int editLength;
  const char* why;
};

const TypingCase kTypingCases[] = {
    {"3+j4<<", {{"3+", ""}, {"", ""}}, 0, 0, 2, "two backspaces after 3+j4"},
    {"12.5-i7", {{"12.5-i7", ""}, {"", ""}}, 0, 0, 7, "every entry key"},
    {"1=j2", {{"1+j2", ""}, {"", ""}}, 0, 0, 4, "= is taken as +"},
    {"3J<", {{"", ""}, {"", ""}}, 0, 0, 0, "J is not counted, so backspace cuts one too many"},
    {"12C", {{"", ""}, {"", ""}}, 0, 0, 2, "C empties the cell"},
    {"1c", {{"", ""}, {"", ""}}, 0, 0, 1, "c too"},
    {"1xyz*", {{"1", ""}, {"", ""}}, 0, 0, 1, "other keys do nothing"},
    {"<<", {{"", ""}, {"", ""}}, 0, 0, 0, "backspace on nothing"},
    {"1>2>3>4>5", {{"15", "2"}, {"3", "4"}}, 0, 0, 2, "Enter runs right, down, then back to the start"},
    {"12>>1<",
     {{"12", ""}, {"1", ""}},
     1,
     0,
     2,
     "an empty cell keeps the old EditLength: backspace cuts nothing"},
};

TEST(GridTyping, Keys) {
  for (const auto& c : kTypingCases) {
    Grid g(2, 2);
    GridTyping typing;
    typing.EnterCell(g, 0, 0);
    for (const char* k = c.keys; *k != 0; ++k) {
      const char key = *k == '<' ? kBackspaceKey : *k == '>' ? kEnterKey : *k;
      typing.KeyPress(g, key);
    }
    EXPECT_EQ(GridTexts(g), c.expected) << c.why;
    EXPECT_EQ(g.Row(), c.row) << c.why;
    EXPECT_EQ(g.Col(), c.col) << c.why;
    EXPECT_EQ(typing.EditLength, c.editLength) << c.why;
  }
}

TEST(GridTyping, EnterStaysOnTheOnlyCell) {
  Grid g(1, 1);
  GridTyping typing;
  typing.EnterCell(g, 0, 0);
  typing.KeyPress(g, '7');
  typing.KeyPress(g, kEnterKey);
  EXPECT_EQ(g.Row(), 0);
  EXPECT_EQ(g.Col(), 0);
  EXPECT_EQ(g.Text(), "7");
  EXPECT_EQ(typing.EditLength, 1);
}

TEST(GridTyping, EnteringACellWithTextTakesItsLength) {
  Grid g = MakeGrid({{"1+j22", ""}});
  GridTyping typing;
  typing.EnterCell(g, 0, 0);
  EXPECT_EQ(typing.EditLength, 5);
  typing.KeyPress(g, kBackspaceKey);
  EXPECT_EQ(g.Text(), "1+j2");
}

}  // namespace
}  // namespace velmora::matrix
