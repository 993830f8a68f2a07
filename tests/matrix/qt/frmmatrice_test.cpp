// The Matrix Calculator window driven through its real widgets, offscreen:
// typing into the grids, the sizes and their messages, the calculations and
// the tabs they fill, the tools on the active tab.
#include <QAction>
#include <QCheckBox>
#include <QFocusEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "platform/settingskeys.h"
#include "tests/matrix/qt/matricefixture.h"

namespace velmora::matrix_qt::testing {
namespace {

using matrix::MatrixCalculator;
using platform::MsgIcon;
using platform::MsgResult;

constexpr int kA = MatrixCalculator::kTabA;
constexpr int kB = MatrixCalculator::kTabB;

TEST(FrmMatrice, OpensWithItsCaptionsStatusAndTheFileTypeRegisteredOnce) {
  Matrice m;
  EXPECT_EQ(m.window->windowTitle(), QStringLiteral("Matrix Calculator"));
  const char* tabs[] = {"Matrix [A]", "Matrix [B]", "Solution [S]", "Matrix Inverse and Determinant [A]",
                        "[T]"};
  for (int t = 0; t < 5; ++t) EXPECT_EQ(m.window->Tabs()->tabText(t).toStdString(), tabs[t]);
  EXPECT_EQ(m.window->StatusText(1), QStringLiteral("Define matrix size: 3x3, 2x5... (spaces are ignored)"));
  EXPECT_EQ(m.window->StatusText(2),
            QStringLiteral("Matrix Addition: matrixes [A] and [B] must be the same size"));
  EXPECT_TRUE(m.Child<QRadioButton>("optAdd")->isChecked());
  EXPECT_EQ(m.Child<QLabel>("lblAction")->text(), QStringLiteral("[S] = [A] + [B]"));
  EXPECT_EQ(m.Child<QCheckBox>("chNule")->text(), QStringLiteral("Add &zeros in empty cells"));
  EXPECT_EQ(m.Text("txtPrecision"), "3");
  EXPECT_FALSE(m.window->ToolbarButton(11)->isEnabled());  // no sizes yet
  EXPECT_EQ(m.registrations, 1);
  EXPECT_EQ(platform::GetRegValue(m.settings, "Mat", "Fajl", "False"), "True");
  // Once "True", a later window leaves the desktop alone.
  Matrice again;
  platform::SetRegValue(again.settings, "Mat", "Fajl", "True");
  FrmMatriceServices s;
  s.messages = &again.messages;
  s.input = &again.input;
  s.settings = &again.settings;
  int calls = 0;
  s.registerFileType = [&calls] {
    ++calls;
    return true;
  };
  delete new FrmMatrice(nullptr, s);
  EXPECT_EQ(calls, 0);
}

// Typing into an operand grid: the keys the grid takes, one row a case.
struct TypingCase {
  const char* size;
  const char* keys;
  const char* cell;  // cell (0, 0) afterwards
  const char* why;
};

TEST(FrmMatrice, TypingFollowsTheGridsKeys) {
  const TypingCase cases[] = {
      {"2x2", "3+j4\b\b", "3+", "two backspaces cut the two last characters"},
      {"2x2", "12x3", "123", "a letter the grid does not take is ignored"},
      {"2x2", "1=j2", "1+j2", "= is taken as + to spare the Shift key"},
      {"2x2", "12J\b", "1", "J does not count for backspace, which then cuts one too many"},
      {"2x2", "45c", "", "c empties the cell"},
      {"1x1", "7\n8", "78", "in a 1 x 1 matrix Enter stays on the one cell"},
  };
  for (const TypingCase& c : cases) {
    Matrice m;
    m.Sizes(c.size, c.size);
    m.Type(kA, c.keys);
    EXPECT_EQ(m.Cell(kA, 0, 0), c.cell) << c.why;
  }
}

TEST(FrmMatrice, EnterMovesLeftToRightThenDownThenBackToTheFirstCell) {
  Matrice m;
  m.Sizes("2x2", "2x2");
  m.Fill(kA, {"1", "2", "3", "4", "5"});
  EXPECT_EQ(m.Cell(kA, 0, 0), "15");  // the fifth Enter came back to (0, 0)
  EXPECT_EQ(m.Cell(kA, 0, 1), "2");
  EXPECT_EQ(m.Cell(kA, 1, 0), "3");
  EXPECT_EQ(m.Cell(kA, 1, 1), "4");
  EXPECT_EQ(m.window->StatusText(1), QStringLiteral("Define matrix size: 3x3, 2x5... (spaces are ignored)"));
}

TEST(FrmMatrice, SelectingAnOperandCellNamesTheFormOfItsNumbers) {
  Matrice m;
  m.Sizes("2x2", "2x2");
  GridView* b = m.window->Grid(kB);
  m.window->Tabs()->setCurrentIndex(kB);
  b->setCurrentIndex(b->model()->index(1, 1));
  EXPECT_EQ(m.window->StatusText(1), QStringLiteral("Matrix [B]: complex numbers must be in a form A+jB"));
}

TEST(FrmMatrice, ACellHolding1PlusReachesTheParserAsItStands) {
  // The cell is not checked as it is typed: "1+" goes to the number's parser
  // whole, and the result is whatever that parse gives.
  Matrice m;
  m.Option("optScalarMult");
  m.Sizes("1x1", "1");
  m.Type(kA, "1+");
  EXPECT_EQ(m.Cell(kA, 0, 0), "1+");
  m.Go();
  EXPECT_TRUE(m.messages.Boxes().empty());
  EXPECT_EQ(m.window->Calculator().MatrixA.Item(0, 0).RectText(), "1+");
  complex::ComplexNumber parsed;
  parsed.SetRectText("1+");
  const auto s = m.window->Calculator().MatrixS.Item(0, 0);
  EXPECT_EQ(s.Real(), parsed.Real());
  EXPECT_EQ(s.Imaginary(), parsed.Imaginary());
  EXPECT_EQ(m.Cell(MatrixCalculator::kTabSolution, 0, 0), s.RectText());
  EXPECT_EQ(m.window->Tabs()->currentIndex(), MatrixCalculator::kTabSolution);
  EXPECT_EQ(m.window->StatusText(2), QStringLiteral("Scalar Multiplication"));
}

TEST(FrmMatrice, AnEmptyCellStopsTheRunUnlessZerosAreAdded) {
  Matrice m;
  m.Sizes("2x2", "2x2");
  m.Fill(kA, {"1", "2", "3"});  // (1, 1) stays empty
  m.Fill(kB, {"1", "1", "1", "1"});
  m.Go();
  ASSERT_EQ(m.messages.Boxes().size(), 1u);
  EXPECT_EQ(m.messages.Boxes()[0].text, "All cells must contain an entry.");
  EXPECT_EQ(m.messages.Boxes()[0].title, "Invalid Entry in Matrix Matrix A");
  EXPECT_EQ(m.messages.Boxes()[0].icon, MsgIcon::Exclamation);
  EXPECT_EQ(m.window->Grid(MatrixCalculator::kTabSolution)->Model().Grid().Rows(), 0);
  m.messages.Clear();
  m.Child<QCheckBox>("chNule")->setChecked(true);
  m.Go();
  EXPECT_TRUE(m.messages.Boxes().empty());
  EXPECT_EQ(m.Cell(kA, 1, 1), "0");
  EXPECT_EQ(m.window->Calculator().MatrixS.Item(1, 1).Real(), 1);
  EXPECT_EQ(m.window->Calculator().MatrixS.Item(0, 1).Real(), 3);
  EXPECT_EQ(m.window->StatusText(2), QStringLiteral("Matrix Addition"));
}

// The sizes typed before "&Continue", with the message each refusal shows.
struct SizeCase {
  const char* option;
  const char* entry1;
  const char* entry2;
  const char* message;  // "" when the sizes are taken
  const char* why;
};

TEST(FrmMatrice, ContinueChecksTheSizesForTheOperation) {
  const SizeCase cases[] = {
      {"optAdd", "3x3", "3 x 3", "", "spaces are ignored"},
      {"optAdd", "51x2", "2x2", "Matrix A maximum size is 50x50.", "beyond 50 rows"},
      {"optAdd", "", "2x2",
       "Invalid number of rows and columns in Matrix A. A valid matrix must have at least 1 row and 1 "
       "column.",
       "no size"},
      {"optAdd", "2x2", "3x3", "Matrix A and Matrix B must be the same order to perform addition.",
       "addition needs equal sizes"},
      {"optMultiply", "2x3", "2x3",
       "In order to multiply Matrix A and Matrix B the number of columns in the first matrix must equal the "
       "number of rows in the second matrix.",
       "columns of [A] = rows of [B]"},
      {"optDetInv", "2x3", "", "Matrix A must be square to compute the inverse and determinant.",
       "the inverse needs a square matrix"},
      {"optScalarMult", "2x2", "1+jj", "The Scalar Constant must be a valid complex number.", "a bad scalar"},
  };
  for (const SizeCase& c : cases) {
    Matrice m;
    m.Option(c.option);
    m.Sizes(c.entry1, c.entry2);
    if (c.message[0] == '\0') {
      EXPECT_TRUE(m.messages.Boxes().empty()) << c.why;
      EXPECT_TRUE(m.window->ToolbarButton(11)->isEnabled()) << c.why;
      continue;
    }
    ASSERT_FALSE(m.messages.Boxes().empty()) << c.why;
    EXPECT_EQ(m.messages.Boxes()[0].text, c.message) << c.why;
    EXPECT_EQ(m.messages.Boxes()[0].title, "Error") << c.why;
    EXPECT_FALSE(m.window->ToolbarButton(11)->isEnabled()) << c.why;
  }
}

TEST(FrmMatrice, APrecisionOutsideOneToFifteenFallsBackToTwo) {
  Matrice m;
  QLineEdit* box = m.Child<QLineEdit>("txtPrecision");
  box->setFocus();
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("20"));
  ASSERT_FALSE(m.messages.Boxes().empty());
  EXPECT_EQ(m.messages.Boxes().back().text, "Invalid input (1 - 15).");
  EXPECT_EQ(m.messages.Boxes().back().icon, MsgIcon::Information);
  EXPECT_EQ(box->text(), QStringLiteral("2"));
  QFocusEvent focus(QEvent::FocusIn);
  QApplication::sendEvent(box, &focus);
  EXPECT_EQ(m.window->StatusText(1),
            QStringLiteral("Define matrix calculation precision (up to 15 decimal places)"));
}

TEST(FrmMatrice, TheInverseAndDeterminantFillTheirTab) {
  Matrice m;
  m.Option("optDetInv");
  m.Sizes("4x4");
  m.Fill(kA, {"2", "0", "0", "0", "0", "4", "0", "0", "0", "0", "5", "0", "0", "0", "0", "8"});
  m.Go();
  EXPECT_TRUE(m.messages.Boxes().empty());
  EXPECT_EQ(m.window->Tabs()->currentIndex(), MatrixCalculator::kTabInverse);
  EXPECT_EQ(m.Text("txtDet"), m.window->Calculator().txtDet);
  EXPECT_EQ(m.window->Calculator().MatrixI.Determinant().Real(), 320);
  EXPECT_EQ(m.window->Calculator().MatrixI.Item(3, 3).Real(), 0.125);
  EXPECT_EQ(m.window->Grid(MatrixCalculator::kTabInverse)->model()->rowCount(), 4);
  EXPECT_EQ(m.window->StatusText(2), QStringLiteral("Matrix determinant and inverse"));
}

TEST(FrmMatrice, ASingularMatrixIsReportedAfterTheCalculationEnds) {
  Matrice m;
  m.Option("optDetInv");
  m.Sizes("2x2");
  m.Fill(kA, {"1", "2", "2", "4"});
  m.window->ToolbarButton(11)->trigger();
  // The window keeps answering: the calculation runs on, the box waits for it.
  EXPECT_TRUE(m.window->Busy());
  EXPECT_TRUE(m.messages.Boxes().empty());
  m.window->repaint();
  for (int i = 0; i < 2000 && m.window->Busy(); ++i) QTest::qWait(5);
  ASSERT_EQ(m.messages.Boxes().size(), 1u);
  EXPECT_EQ(m.messages.Boxes()[0].text, "Matrix A is singular and cannot be inverted.");
  EXPECT_EQ(m.messages.Boxes()[0].title, "Error");
}

TEST(FrmMatrice, TheSolutionSetFillsTheSolutionTab) {
  Matrice m;
  m.Option("optSolutionSet");
  m.Sizes("2x2");
  m.Fill(kA, {"2", "1", "1", "3"});
  m.Fill(kB, {"3", "5"});
  m.Go();
  EXPECT_TRUE(m.messages.Boxes().empty());
  EXPECT_EQ(m.window->Tabs()->currentIndex(), MatrixCalculator::kTabSolution);
  EXPECT_EQ(m.window->Calculator().MatrixS.Item(0, 0).Real(), 0.8);
  EXPECT_EQ(m.window->Calculator().MatrixS.Item(1, 0).Real(), 1.4);
  EXPECT_EQ(m.window->StatusText(2), QStringLiteral("System of linear equations"));
}

TEST(FrmMatrice, ToolsNeedTheTabOfAnOperand) {
  Matrice m;
  m.window->Tabs()->setCurrentIndex(MatrixCalculator::kTabSolution);
  m.window->Transpose();
  m.window->Identity();
  m.window->ClearMatrix();
  m.window->SwapLines(false);
  m.window->MultiplyLine(true);
  m.window->Trace();
  const std::vector<std::string> expected = {
      "Select Matrix [A] or [B] to transpose.", "Select Matrix [ A ] or Matrix [ B ] to set Identity Matrix.",
      "Select Matrix [A] or [B] to clear.",     "Select Matrix [A] or [B] to swap rows",
      "Available only for matrix [A]",          "Select matrix [A] or [B] to trace."};
  ASSERT_EQ(m.messages.Boxes().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(m.messages.Boxes()[i].text, expected[i]);
}

TEST(FrmMatrice, TransposeAndSwapGoToTheTTabAndApplyPutsThemInPlace) {
  Matrice m;
  m.Sizes("2x3", "2x3");
  m.Fill(kA, {"1", "2", "3", "4", "5", "6"});
  m.window->Tabs()->setCurrentIndex(kA);
  m.window->Transpose();
  EXPECT_EQ(m.window->Tabs()->currentIndex(), MatrixCalculator::kTabSwap);
  EXPECT_EQ(m.window->Tabs()->tabText(MatrixCalculator::kTabSwap), QStringLiteral("Trans"));
  EXPECT_EQ(m.window->StatusText(1), QStringLiteral("Transpose [A]"));
  EXPECT_EQ(m.Cell(MatrixCalculator::kTabSwap, 2, 1), "6");
  EXPECT_EQ(m.Cell(kA, 0, 2), "3");  // without Apply the source stays

  m.Child<QCheckBox>("chkApply")->setChecked(true);
  m.window->Tabs()->setCurrentIndex(kA);
  m.lines.answers.push_back(std::make_pair("1", "2"));
  m.window->SwapLines(false);
  ASSERT_EQ(m.lines.asked.size(), 1u);
  EXPECT_EQ(m.lines.asked[0].title, "Swap Rows");
  EXPECT_EQ(m.lines.asked[0].size, "Matrix Size: 2 x 3");
  EXPECT_EQ(m.lines.asked[0].label1, "Swap row:");
  EXPECT_EQ(m.lines.asked[0].label2, "with the row:");
  EXPECT_EQ(m.Cell(kA, 0, 0), "4");  // applied: the swap is in [A]
  EXPECT_EQ(m.Cell(MatrixCalculator::kTabSwap, 0, 0), "1");
  EXPECT_EQ(m.window->Tabs()->tabText(MatrixCalculator::kTabSwap), QStringLiteral("Swap"));
  EXPECT_EQ(m.window->StatusText(1), QStringLiteral("Matrix [A]: Swap rows"));
}

TEST(FrmMatrice, ALineNumberOutsideTheMatrixIsRefused) {
  Matrice m;
  m.Sizes("2x2", "2x2");
  m.window->Tabs()->setCurrentIndex(kA);
  m.lines.answers.push_back(std::make_pair("1.5", "2"));  // asked again
  m.lines.answers.push_back(std::make_pair("1", "3"));
  m.window->SwapLines(true);
  ASSERT_EQ(m.messages.Boxes().size(), 2u);
  EXPECT_EQ(m.messages.Boxes()[0].text, "Number of row and column must be an integer.");
  EXPECT_EQ(m.messages.Boxes()[1].text, "1; 3 \r\nInvalid input.");
  EXPECT_EQ(m.lines.asked.size(), 2u);
}

TEST(FrmMatrice, DeleteRowAsksUntilTheNumberIsValid) {
  Matrice m;
  m.Sizes("3x2", "3x2");
  m.Fill(kA, {"1", "2", "3", "4", "5", "6"});
  m.window->Tabs()->setCurrentIndex(kA);
  m.input.Answer("7");
  m.input.Answer("2");
  m.window->DeleteLine(false);
  ASSERT_EQ(m.input.AskedBoxes().size(), 2u);
  EXPECT_EQ(m.input.AskedBoxes()[0].title, "Delete row (Matrix size: 3x2)");
  EXPECT_EQ(m.input.AskedBoxes()[0].prompt, "Eneter row number to delete.");
  ASSERT_EQ(m.messages.Boxes().size(), 1u);
  EXPECT_EQ(m.messages.Boxes()[0].text, "7 is an invalid input for the row to delete.");
  EXPECT_EQ(m.messages.Boxes()[0].title, "Delete row Error");
  EXPECT_EQ(m.Cell(kA, 1, 0), "5");
  EXPECT_EQ(m.Text("txtEntry1"), "2x2");
}

TEST(FrmMatrice, IdentityTraceAndCharacteristicEquation) {
  Matrice m;
  m.Sizes("2x2", "2x2");
  m.window->Tabs()->setCurrentIndex(kB);
  m.window->Identity();
  EXPECT_EQ(m.Cell(kB, 0, 0), "1");
  EXPECT_EQ(m.Cell(kB, 0, 1), "0");
  EXPECT_EQ(m.window->StatusText(1), QStringLiteral("Identity [B]"));
  m.Fill(kA, {"1", "2", "3", "4"});
  m.window->Tabs()->setCurrentIndex(kA);
  m.window->Trace();
  ASSERT_EQ(m.messages.Boxes().size(), 1u);
  EXPECT_EQ(m.messages.Boxes()[0].title, "Trace");
  EXPECT_EQ(m.messages.Boxes()[0].text.rfind("Trace Matrix [A]:", 0), 0u);
  m.window->CharacteristicEquation();
  EXPECT_EQ(m.Text("txtEq"), "X^2 - 5*X -2 = 0");
  EXPECT_EQ(m.Child<QLabel>("lblEq")->text(), QStringLiteral("Characteristic equation:"));
}

TEST(FrmMatrice, ClearMatrixAsksFirst) {
  Matrice m;
  m.Sizes("1x2", "1x2");
  m.Fill(kA, {"1", "2"});
  m.window->Tabs()->setCurrentIndex(kA);
  m.messages.Answer(MsgResult::No);
  m.window->ClearMatrix();
  EXPECT_EQ(m.Cell(kA, 0, 1), "2");
  m.messages.Answer(MsgResult::Yes);
  m.window->ClearMatrix();
  EXPECT_EQ(m.Cell(kA, 0, 1), "");
  EXPECT_EQ(m.messages.Boxes()[0].text, "Clear active matrix?");
}

TEST(FrmMatrice, MultiplyAColumnOfA) {
  Matrice m;
  m.Sizes("2x2", "2x2");
  m.Fill(kA, {"1", "2", "3", "4"});
  m.window->Tabs()->setCurrentIndex(kA);
  m.lines.answers.push_back(std::make_pair("2", "10"));
  m.window->MultiplyLine(true);
  EXPECT_EQ(m.lines.asked.at(0).title, "Multiply Column");
  EXPECT_EQ(m.lines.asked.at(0).label1, "Column number:");
  EXPECT_EQ(m.Cell(kA, 0, 0), "1");
  EXPECT_EQ(m.window->Calculator().grdGrid1.TextMatrix(1, 1),
            m.window->Calculator().MatrixS.Item(1, 1).RectText());
  EXPECT_EQ(m.window->Calculator().MatrixS.Item(1, 1).Real(), 40);
}

TEST(FrmMatrice, EditInMathPadWaitsForMathPad) {
  Matrice m;
  QAction* entry = m.Child<QAction>("mnuMathPad");
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->text(), QStringLiteral("&Edit matrix in MathPad..."));
  EXPECT_FALSE(entry->isEnabled());
}

TEST(FrmMatrice, NewEmptiesTheBoxesAndGrids) {
  Matrice m;
  m.Sizes("3x3", "3x3");
  m.Type(kA, "5");
  m.window->NewMatrices();
  EXPECT_EQ(m.Text("txtEntry1"), "");
  EXPECT_EQ(m.window->Grid(kA)->model()->rowCount(), 2);
  EXPECT_EQ(m.Cell(kA, 0, 0), "");
  EXPECT_FALSE(m.window->ToolbarButton(11)->isEnabled());
}

}  // namespace
}  // namespace velmora::matrix_qt::testing
