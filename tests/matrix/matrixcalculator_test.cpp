#include "matrix/matrixcalculator.h"

#include <gtest/gtest.h>

#include "tests/matrix/matrixbuild.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::matrix {
namespace {

using testing::GridTexts;
using testing::MakeGrid;
using testing::Rows;
using velmora::testing::RecordingMessageBox;

class MatrixCalculatorTest : public ::testing::Test {
 protected:
  bool Calculate(std::int16_t operation, const Rows& a, const Rows& b = {{"1"}}) {
    calc_.Operation = operation;
    calc_.grdGrid1 = MakeGrid(a);
    calc_.grdGrid2 = MakeGrid(b);
    return calc_.EnterValues() && calc_.Go2();
  }
  void ExpectOneBox(const std::string& text, const std::string& title, platform::MsgIcon icon) {
    ASSERT_EQ(box_.Boxes().size(), 1U) << text;
    EXPECT_EQ(box_.Boxes()[0].text, text);
    EXPECT_EQ(box_.Boxes()[0].title, title);
    EXPECT_EQ(box_.Boxes()[0].icon, icon);
  }

  RecordingMessageBox box_;
  MatrixCalculator calc_{box_};
};

struct OperationCase {
  std::int16_t operation;
  Rows a;
  Rows b;
  const char* entry2;
  Rows solution;
  const char* why;
};

TEST_F(MatrixCalculatorTest, WholeMatrixOperations) {
  const OperationCase cases[] = {
      {kAdd, {{"1", "2"}}, {{"3", "j1"}}, "", {{"4", "2+j1"}}, "add"},
      {kSubtract, {{"1", "2"}}, {{"3", "j1"}}, "", {{"-2", "2-j1"}}, "subtract"},
      {kMultiply, {{"1", "2"}}, {{"3"}, {"4"}}, "", {{"11"}}, "multiply"},
      {kScalarMultiply, {{"1", "2"}}, {{"1"}}, "2 + j 1", {{"2+j1", "4+j2"}}, "scalar product"},
      {kScalarDivide, {{"1", "3"}}, {{"1"}}, "3", {{".333", "1"}}, "scalar quotient at 3 places"},
  };
  for (const auto& c : cases) {
    calc_.txtEntry2 = c.entry2;
    EXPECT_TRUE(Calculate(c.operation, c.a, c.b)) << c.why;
    EXPECT_EQ(GridTexts(calc_.grdSolution), c.solution) << c.why;
    EXPECT_TRUE(box_.Boxes().empty()) << c.why;
  }
}

TEST_F(MatrixCalculatorTest, InverseAndDeterminant) {
  EXPECT_TRUE(Calculate(kDeterminantInverse, {{"4", "7"}, {"2", "6"}}));
  EXPECT_EQ(GridTexts(calc_.grdInverse), (Rows{{".6", "-.7"}, {"-.2", ".4"}}));
  EXPECT_EQ(calc_.txtDet, "10");
}

TEST_F(MatrixCalculatorTest, SolutionSet) {
  EXPECT_TRUE(Calculate(kSolutionSet, {{"2", "1"}, {"1", "3"}}, {{"3"}, {"5"}}));
  EXPECT_EQ(GridTexts(calc_.grdSolution), (Rows{{".8"}, {"1.4"}}));
  EXPECT_EQ(GridTexts(calc_.grdInverse), (Rows{{".6", "-.2"}, {"-.2", ".4"}}));
  EXPECT_EQ(calc_.txtDet, "5");
}

TEST_F(MatrixCalculatorTest, PrecisionComesFromItsBoxAtEachRun) {
  calc_.txtPrecision = "2";
  EXPECT_TRUE(Calculate(kDeterminantInverse, {{"3"}}));
  EXPECT_EQ(GridTexts(calc_.grdInverse), (Rows{{".33"}}));
  calc_.txtPrecision = "0";
  EXPECT_TRUE(Calculate(kDeterminantInverse, {{"3"}}));
  EXPECT_EQ(GridTexts(calc_.grdInverse), (Rows{{".33"}}));  // not above 0: 2
}

TEST_F(MatrixCalculatorTest, SingularInverse) {
  EXPECT_FALSE(Calculate(kDeterminantInverse, {{"1", "2"}, {"2", "4"}}));
  ExpectOneBox("Matrix A is singular and cannot be inverted.", "Error", platform::MsgIcon::Exclamation);
  EXPECT_TRUE(calc_.Context.SingularFlag);
  EXPECT_EQ(GridTexts(calc_.grdInverse), (Rows{{"", ""}, {"", ""}}));
  EXPECT_EQ(calc_.txtDet, "1+j0");
}

TEST_F(MatrixCalculatorTest, EmptyCellStopsUnlessZerosAreAdded) {
  EXPECT_FALSE(Calculate(kAdd, {{"1", ""}}, {{"1", "1"}}));
  ExpectOneBox("All cells must contain an entry.", "Invalid Entry in Matrix Matrix A",
               platform::MsgIcon::Exclamation);
  box_.Clear();
  calc_.chNule = true;
  EXPECT_TRUE(Calculate(kAdd, {{"1", ""}}, {{"1", "1"}}));
  EXPECT_EQ(GridTexts(calc_.grdSolution), (Rows{{"2", "1"}}));
  EXPECT_TRUE(box_.Boxes().empty());
}

struct RefusedCase {
  std::int16_t operation;
  Rows a;
  Rows b;
  const char* entry2;
  const char* message;
  const char* why;
};

TEST_F(MatrixCalculatorTest, SizeAndScalarChecks) {
  const RefusedCase cases[] = {
      {kAdd,
       {{"1", "2"}},
       {{"1"}},
       "",
       "Matrix A and Matrix B must be the same order to perform addition.",
       "add"},
      {kSubtract,
       {{"1"}},
       {{"1", "2"}},
       "",
       "Matrix A and Matrix B must be the same order to perform subtraction.",
       "subtract"},
      {kMultiply,
       {{"1", "2"}},
       {{"1", "2"}},
       "",
       "In order to multiply Matrix A and Matrix B the number of columns in the first matrix must equal the "
       "number "
       "of rows in the second matrix.",
       "multiply"},
      {kDeterminantInverse,
       {{"1", "2"}},
       {{"1"}},
       "",
       "Matrix A must be square to compute the inverse and determinant.",
       "inverse"},
      {kSolutionSet, {{"1", "2"}}, {{"1"}}, "", "Matrix A must be square compute the solution set.", "solve"},
      {kSolutionSet,
       {{"1"}},
       {{"1"}, {"2"}},
       "",
       "The number of rows in Matrix B must equal the number of rows in the solution set.",
       "solve rows"},
      {kScalarMultiply,
       {{"1"}},
       {{"1"}},
       "1+2+3+j",
       "The Scalar Constant must be a valid complex number.",
       "a scalar that does not parse"},
      {kAdd,
       {},
       {{"1"}},
       "",
       "Invalid number of rows and columns in Matrix A. A valid matrix must have at least 1 row and 1 "
       "column.",
       "an empty grid"},
  };
  for (const auto& c : cases) {
    box_.Clear();
    calc_.txtEntry2 = c.entry2;
    EXPECT_FALSE(Calculate(c.operation, c.a, c.b)) << c.why;
    ExpectOneBox(c.message, "Error", platform::MsgIcon::Exclamation);
  }
  EXPECT_EQ(calc_.txtEntry2, "");  // the bad scalar was emptied
}

TEST_F(MatrixCalculatorTest, OverflowInAnOperationIsShown) {
  // 1E+150 fits, and so does its square; the product's square (for the
  // modulus) does not.
  const std::string large = "1" + std::string(150, '0');
  EXPECT_FALSE(Calculate(kMultiply, {{large}}, {{large}}));
  ExpectOneBox("Overflow", "Error", platform::MsgIcon::Critical);
}

TEST_F(MatrixCalculatorTest, AnEntryTooLargeToHoldIsRefused) {
  // 201 digits: the entry cannot be held (its square overflows), and it is
  // refused before any operation instead of going in with a stale modulus.
  const std::string huge = "1" + std::string(200, '0');
  EXPECT_FALSE(Calculate(kAdd, {{huge}}, {{"1"}}));
  ExpectOneBox("You must enter a valid complex number.", "Invalid Entry in Matrix Matrix A",
               platform::MsgIcon::Exclamation);
  box_.Clear();
  EXPECT_FALSE(Calculate(kAdd, {{"1"}}, {{std::string(400, '9')}}));
  ExpectOneBox("You must enter a valid complex number.", "Invalid Entry in Matrix Matrix B",
               platform::MsgIcon::Exclamation);
}

TEST_F(MatrixCalculatorTest, TraceRefusesACellTooLargeToHold) {
  calc_.grdGrid2 = MakeGrid({{"1", "0"}, {"0", std::string(400, '9')}});
  EXPECT_FALSE(calc_.Trace(MatrixCalculator::kTabB));
  ExpectOneBox("You must enter a valid complex number.", "Invalid Entry in Matrix Matrix B",
               platform::MsgIcon::Exclamation);
}

TEST_F(MatrixCalculatorTest, Adjoint) {
  calc_.grdGrid1 = MakeGrid({{"1", "2"}, {"3", "4"}});
  EXPECT_TRUE(calc_.Adjoint(MatrixCalculator::kTabA));
  EXPECT_EQ(GridTexts(calc_.grdSwap), (Rows{{"4", "-2"}, {"-3", "1"}}));
  EXPECT_EQ(calc_.SwapCaption, "Adjoint");
  EXPECT_EQ(calc_.txtDet, "-2");
  EXPECT_TRUE(box_.Boxes().empty());
}

TEST_F(MatrixCalculatorTest, AdjointRefusals) {
  const Grid before = calc_.grdSwap;
  EXPECT_FALSE(calc_.Adjoint(MatrixCalculator::kTabB));
  ExpectOneBox("Select matrix [A] to compute adjoint matrix.", kCalculatorTitle,
               platform::MsgIcon::Information);
  box_.Clear();
  calc_.grdGrid1 = MakeGrid({{"1", "2"}});
  EXPECT_FALSE(calc_.Adjoint(MatrixCalculator::kTabA));
  ExpectOneBox("Matrix [A] must be the square matrix.", kCalculatorTitle, platform::MsgIcon::Information);
  box_.Clear();
  // A singular matrix ends at its message: the adjoint is never computed.
  calc_.grdGrid1 = MakeGrid({{"1", "2"}, {"2", "4"}});
  EXPECT_FALSE(calc_.Adjoint(MatrixCalculator::kTabA));
  ExpectOneBox("Matrix A is singular and cannot be inverted.", "Error", platform::MsgIcon::Exclamation);
  EXPECT_EQ(calc_.grdSwap, before);
}

TEST_F(MatrixCalculatorTest, Trace) {
  calc_.grdGrid2 = MakeGrid({{"1+j1", "7"}, {"7", "2-j3"}});
  EXPECT_TRUE(calc_.Trace(MatrixCalculator::kTabB));
  ExpectOneBox("Trace Matrix [B]:\r\n3 - j2", "Trace", platform::MsgIcon::Information);
  box_.Clear();
  EXPECT_FALSE(calc_.Trace(MatrixCalculator::kTabSolution));
  ExpectOneBox("Select matrix [A] or [B] to trace.", kCalculatorTitle, platform::MsgIcon::Information);
  box_.Clear();
  calc_.grdGrid1 = MakeGrid({{"1"}, {"2"}});
  EXPECT_FALSE(calc_.Trace(MatrixCalculator::kTabA));
  ExpectOneBox("Subscript out of range", "Trace", platform::MsgIcon::Critical);
}

struct EquationCase {
  Rows a;
  const char* equation;
  std::size_t boxes;
  const char* why;
};

TEST_F(MatrixCalculatorTest, CharacteristicEquation) {
  const EquationCase cases[] = {
      {{{"1", "2"}, {"3", "4"}}, "X^2 - 5*X -2 = 0", 0, "the 2 x 2 example"},
      {{{"1", "0", "0"}, {"0", "2", "0"}, {"0", "0", "3"}}, "X^3 - 6*X^2 + 11*X - 6 = 0", 0, "diag(1, 2, 3)"},
      // The singular run leaves the determinant box at the 1 + j0 its
      // inverse was initialised with.
      {{{"1", "2"}, {"2", "4"}}, "X^2 - 5*X + (1+j0) = 0", 1, "a singular matrix"},
  };
  for (const auto& c : cases) {
    box_.Clear();
    calc_.grdGrid1 = MakeGrid(c.a);
    EXPECT_TRUE(calc_.CharacteristicEquation(MatrixCalculator::kTabA)) << c.why;
    EXPECT_EQ(calc_.txtEq, c.equation) << c.why;
    EXPECT_EQ(box_.Boxes().size(), c.boxes) << c.why;
  }
}

TEST_F(MatrixCalculatorTest, CharacteristicEquationRefusals) {
  calc_.grdGrid2 =
      MakeGrid({{"1", "2", "3", "4"}, {"1", "2", "3", "4"}, {"1", "2", "3", "4"}, {"1", "2", "3", "4"}});
  EXPECT_FALSE(calc_.CharacteristicEquation(MatrixCalculator::kTabB));
  ExpectOneBox("Available only for square matrix (2 x 2) or (3 x 3) in size.", kCalculatorTitle,
               platform::MsgIcon::Information);
  box_.Clear();
  EXPECT_FALSE(calc_.CharacteristicEquation(MatrixCalculator::kTabInverse));
  ExpectOneBox("Select matrix [A] or [B].", kCalculatorTitle, platform::MsgIcon::Information);
}

TEST_F(MatrixCalculatorTest, PrecisionBox) {
  std::string text = "20";
  EXPECT_TRUE(CheckPrecisionText(text, box_));
  EXPECT_EQ(text, "2");
  ExpectOneBox("Invalid input (1 - 15).", kCalculatorTitle, platform::MsgIcon::Information);
  text = "15";
  EXPECT_FALSE(CheckPrecisionText(text, box_));
  text = "0";
  EXPECT_TRUE(CheckPrecisionText(text, box_));
  EXPECT_EQ(PrecisionAtGo("7"), 7);
  EXPECT_EQ(PrecisionAtGo("0"), 2);
  EXPECT_EQ(PrecisionAtGo("abc"), 2);
  EXPECT_EQ(PrecisionAtGo("-3"), 2);
  EXPECT_EQ(MatrixContext(box_).Precision, 3);
}

TEST_F(MatrixCalculatorTest, ReportTakesTheCurrentOperationAndBoxes) {
  calc_.txtEntry2 = "5";
  calc_.txtEq = "eq";
  EXPECT_TRUE(Calculate(kDeterminantInverse, {{"2"}}));
  const MatrixReport report = calc_.Report();
  EXPECT_EQ(report.operation, kDeterminantInverse);
  EXPECT_EQ(report.determinant, "2");
  EXPECT_EQ(report.entry2, "5");
  EXPECT_EQ(report.equation, "eq");
  EXPECT_EQ(&report.inverse, &calc_.grdInverse);
}

// "&Continue" with the sizes typed, one case a row.
struct ContinueCase {
  std::int16_t operation;
  const char* entry1;
  const char* entry2;
  MatrixCalculator::ContinueFocus focus;
  int rowsA, colsA, rowsB, colsB;  // the operand grids afterwards
  const char* message;
  const char* why;
};

TEST_F(MatrixCalculatorTest, ContinueSizesTheGridsOrNamesTheBoxAtFault) {
  using F = MatrixCalculator::ContinueFocus;
  const ContinueCase cases[] = {
      {kAdd, "3x2", "3 x 2", F::None, 3, 2, 3, 2, "", "both operands sized"},
      {kMultiply, "2x3", "3x1", F::None, 2, 3, 3, 1, "", "columns of [A] = rows of [B]"},
      {kSolutionSet, "3x3", "9x9", F::None, 3, 3, 3, 1, "", "the solution's [B] is n x 1 whatever is typed"},
      {kAdd, "51x2", "2x2", F::Entry1, 2, 2, 2, 2, "Matrix A maximum size is 50x50.", "too many rows"},
      {kAdd, "2x2", "-2x3", F::Entry2, 2, 2, 2, 2,
       "Invalid number of rows and columns in Matrix B. A valid matrix must have at least 1 row and 1 "
       "column.",
       "-2x3 passes the parse as 0 rows and is refused here"},
      {kScalarDivide, "2x2", "1+jj", F::Entry2, 2, 2, 2, 2,
       "The Scalar Constant must be a valid complex number.", "a scalar that is no number"},
      {kSubtract, "2x2", "2x3", F::Entry1, 2, 2, 2, 2,
       "Matrix A and Matrix B must be the same order to perform subtraction.", "the check of the operation"},
  };
  for (const ContinueCase& c : cases) {
    RecordingMessageBox box;
    MatrixCalculator calc(box);
    calc.Operation = c.operation;
    EXPECT_EQ(calc.Continue(c.entry1, c.entry2), c.focus) << c.why;
    EXPECT_EQ(calc.grdGrid1.Rows(), c.rowsA) << c.why;
    EXPECT_EQ(calc.grdGrid1.Cols(), c.colsA) << c.why;
    EXPECT_EQ(calc.grdGrid2.Rows(), c.rowsB) << c.why;
    EXPECT_EQ(calc.grdGrid2.Cols(), c.colsB) << c.why;
    if (c.message[0] == '\0') {
      EXPECT_TRUE(box.Boxes().empty()) << c.why;
    } else {
      ASSERT_EQ(box.Boxes().size(), 1U) << c.why;
      EXPECT_EQ(box.Boxes()[0].text, c.message) << c.why;
    }
  }
}

TEST_F(MatrixCalculatorTest, ALineOperationWritesBackOnlyItsLine) {
  calc_.grdGrid1 = MakeGrid({{"1", "2"}, {"3", ""}});
  // The empty cell of the target column becomes 0 on its way through.
  EXPECT_TRUE(calc_.MultiplyLine(true, 1, "10"));
  EXPECT_EQ(GridTexts(calc_.grdGrid1), (Rows{{"1", "20"}, {"3", "0"}}));
  // Row 1 added to row 2; the empty cell elsewhere would stop a whole run,
  // but the line commands fill only their own line.
  calc_.grdGrid1 = MakeGrid({{"1", "2"}, {"3", "4"}});
  EXPECT_TRUE(calc_.SubmitLine(false, 0, 1));
  EXPECT_EQ(GridTexts(calc_.grdGrid1), (Rows{{"1", "2"}, {"4", "6"}}));
  EXPECT_TRUE(box_.Boxes().empty());
  EXPECT_FALSE(calc_.SubmitLine(true, 5, 0));
  ExpectOneBox("Invalid input for the column.", kCalculatorTitle, platform::MsgIcon::Information);
}

}  // namespace
}  // namespace velmora::matrix
