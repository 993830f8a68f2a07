// The analysis tool windows: their commands and messages, driven through
// their controls, the graph window a fake tool target.
#include <gtest/gtest.h>

#include <filesystem>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include "platform/evaluatortarget.h"
#include "tests/support/fakefiledialogs.h"
#include "tests/support/fakegraphtarget.h"
#include "tests/support/fakemathpad.h"
#include "tests/support/filebytes.h"
#include "tests/support/recordinglauncher.h"
#include "tests/support/recordingmessagebox.h"
#include "tools/qt/frmanalizanew.h"
#include "tools/qt/frmintav.h"
#include "tools/qt/frmnjutn.h"
#include "tools/qt/frmtabela.h"
#include "tools/qt/frmtast.h"

namespace velmora::tools_qt {
namespace {

struct Fixture {
  Fixture() {
    graph.y = "x^2-1";
    graph.drawn = {"x^2-1", "sin(k)", "x"};
    graph.drawnX = {"cos(k)"};
    graph.drawnParametricY = {"sin(k)"};
    graph.bounds = {-3, 3, 2, -2};
    tools.withPad = false;  // MathPad is not open unless a test opens it
  }
  ToolServices Services() {
    ToolServices s;
    s.messages = &boxes;
    s.tools = &tools;
    s.files = &files;
    s.shell = &shell;
    s.activeGraph = [this]() -> graph::GraphToolTarget* { return &graph; };
    return s;
  }
  testing::FakeGraphTarget graph;
  testing::RecordingMessageBox boxes;
  testing::MathPadOnlyTools tools;
  testing::SaveAnswerFileDialog files;
  testing::RecordingLauncher shell;
};

TEST(FrmTast, EvaluateShowsTheLabelAndTheHistory) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  EXPECT_EQ(w.windowTitle(), "Evaluator");
  EXPECT_EQ(w.Text1()->count(), 2) << "the functions of X of the graph window";
  EXPECT_EQ(w.BoxC1()->count(), 40);
  w.Text1()->setEditText("2*3");
  QTest::keyClick(w.Text1()->lineEdit(), Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(w.LbRezultat()->text(), "6");
  EXPECT_EQ(w.Rtf()->toPlainText(), "2*3 = 6\n");
  EXPECT_EQ(w.Text1()->lineEdit()->selectedText(), "2*3");
}

TEST(FrmTast, ReplaceAndTheFunctionList) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  w.Text1()->setEditText("exp(x)");
  w.Text2()->setText("2");
  w.Replace();
  EXPECT_EQ(w.Text1()->currentText(), "exp((2))");
  w.Text1()->setEditText("");
  w.BoxC1()->setCurrentRow(4);
  emit w.BoxC1()->itemClicked(w.BoxC1()->currentItem());
  EXPECT_EQ(w.Text1()->currentText(), "Sin");
  w.Text2()->clear();
  w.Replace();
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Enter Function and value for X.");
}

TEST(FrmTast, OthersWriteIntoTheExpressionBox) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  platform::EvaluatorTarget& target = w;
  target.WriteText("1010");
  EXPECT_EQ(w.Text1()->currentText(), "1010");
}

TEST(FrmTast, TheEvalPopupEnablesOnlyWindowsThatExist) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  emit w.EvalMenu()->aboutToShow();
  const auto entry = [&w](const QString& caption) -> QAction* {
    for (QAction* a : w.EvalMenu()->actions()) {
      if (a->text() == caption) return a;
    }
    return nullptr;
  };
  ASSERT_NE(entry("Ma&thPad"), nullptr);
  EXPECT_FALSE(entry("Ma&thPad")->isEnabled());
  EXPECT_TRUE(entry("&Show Panel")->isEnabled()) << "the panel is this window's own";
  EXPECT_TRUE(entry("Copy &Result")->isEnabled());
  f.tools.withPad = true;
  emit w.EvalMenu()->aboutToShow();
  EXPECT_TRUE(entry("Ma&thPad")->isEnabled()) << "alive once the window exists";
  entry("Ma&thPad")->trigger();
  EXPECT_EQ(f.tools.shown, (std::vector<platform::ToolWindow>{platform::ToolWindow::MathPad}));
}

TEST(FrmTast, ClearAsksFirstAndSaveWritesTheHistory) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  w.WriteText("1+1");
  w.Evaluate();
  const std::filesystem::path file = std::filesystem::temp_directory_path() / "velmora_history_test.txt";
  f.files.answer = file.string();
  w.SaveHistory();
  EXPECT_EQ(f.files.asked, (std::vector<std::string>{"Save As|Text File (*.txt)|*.txt"}));
  EXPECT_EQ(testing::ReadFileBytes(file), "1+1 = 2\r\n");
  std::filesystem::remove(file);
  f.boxes.Answer(platform::MsgResult::No);
  QAction* clear = nullptr;
  for (QAction* a : w.findChildren<QAction*>()) {
    if (a->text() == "Clear") clear = a;
  }
  ASSERT_NE(clear, nullptr);
  clear->trigger();
  EXPECT_EQ(w.Rtf()->toPlainText(), "1+1 = 2\n") << "No keeps everything";
  f.boxes.Answer(platform::MsgResult::Yes);
  clear->trigger();
  EXPECT_EQ(w.Rtf()->toPlainText(), "");
  EXPECT_EQ(w.LbRezultat()->text(), "");
  ASSERT_EQ(f.boxes.Boxes().size(), 2u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Clear All?");
}

TEST(FrmTabela, PublishWritesThePageAndOffersThePreview) {
  Fixture f;
  FrmTabela w(nullptr, f.Services());
  w.CalculateTable();
  const std::filesystem::path file = std::filesystem::temp_directory_path() / "velmora_publish_window.htm";
  std::filesystem::remove(file);
  f.files.answer = file.string();
  f.boxes.Answer(platform::MsgResult::Yes);
  w.RefreshButtons();
  w.Button("HTML")->trigger();
  EXPECT_EQ(f.files.asked, (std::vector<std::string>{"Publish Table|HTML (*.htm;*.html)|*.htm;*.html"}));
  EXPECT_NE(testing::ReadFileBytes(file).find("<TITLE>Value Tables for x^2-1</TITLE>"), std::string::npos);
  EXPECT_EQ(f.shell.opened, (std::vector<std::string>{"open " + file.string()}));
  std::filesystem::remove(file);
}

TEST(FrmTabela, CalculatesTheActiveFunctionAndCopiesTheText) {
  Fixture f;
  FrmTabela w(nullptr, f.Services());
  EXPECT_EQ(w.windowTitle(), "Value Tables");
  EXPECT_EQ(w.TxtY()->currentText(), "x^2-1");
  EXPECT_TRUE(w.OptFunkcije(1)->isChecked());
  EXPECT_EQ(w.GridRows(), 2);
  w.RefreshButtons();
  EXPECT_FALSE(w.Button("Copy")->isEnabled()) << "an empty table";
  EXPECT_FALSE(w.Button("HTML")->isEnabled()) << "an empty table cannot be published";
  w.Button("Calculate")->trigger();
  EXPECT_EQ(w.GridRows(), 12);
  EXPECT_EQ(w.Cell(1, 1), "24");
  EXPECT_FALSE(w.Button("Copy")->isEnabled()) << "re-evaluated on the toolbar's mouse event only";
  w.RefreshButtons();
  EXPECT_TRUE(w.Button("Copy")->isEnabled());
  EXPECT_FALSE(w.Button("Save")->isEnabled()) << "MathPad is missing";
  w.Button("Copy")->trigger();
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(
      "Function: Y = x^2-1\r\nRange:    Xmin = -5  Xmax = 5\r\n"));
}

TEST(FrmTabela, ThirtyThousandRowsAndOneCellCopied) {
  Fixture f;
  FrmTabela w(nullptr, f.Services());
  w.TxtY()->setEditText("x");
  w.TxtDole()->setText("1");
  w.TxtGore()->setText("30000");
  w.CalculateTable();
  ASSERT_EQ(w.GridRows(), 30001);
  EXPECT_EQ(w.Cell(30000, 0), "30000");
  w.MS1()->setCurrentIndex(w.MS1()->model()->index(2, 1));
  QAction* copyCell = w.findChild<QAction*>("copy2");
  ASSERT_NE(copyCell, nullptr);
  copyCell->trigger();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "2");
}

TEST(FrmTabela, TheTableGoesToMathPadInCourierNew) {
  Fixture f;
  f.tools.withPad = true;
  FrmTabela w(nullptr, f.Services());
  w.TxtDole()->setText("0");
  w.TxtGore()->setText("1");
  w.CalculateTable();
  w.RefreshButtons();
  ASSERT_TRUE(w.Button("Save")->isEnabled());
  w.Button("Save")->trigger();
  ASSERT_EQ(f.tools.pad.inserted.size(), 1u);
  EXPECT_EQ(f.tools.pad.inserted[0],
            "Courier New|Function: Y = x^2-1\r\nRange:    Xmin = 0  Xmax = 1\r\n\r\n[X;\t\tY;\t\tY';\t\t]\r\n"
            "[0;\t\t-1;\t\t0;\t\t]\r\n[1;\t\t0;\t\t2;\t\t]\r\n\r\n");
}

TEST(FrmTabela, AnEditEmptiesTheTableAndTheOptionsSwitchTheBoxes) {
  Fixture f;
  FrmTabela w(nullptr, f.Services());
  w.CalculateTable();
  w.TxtY()->setEditText("x^3");
  EXPECT_EQ(w.GridRows(), 2);
  w.OptFunkcije(3)->click();
  EXPECT_EQ(w.LabY()->text(), "R (K) =");
  EXPECT_FALSE(w.TxtDole()->isEnabled());
  EXPECT_FALSE(w.TxtX()->isEnabled());
  w.OptFunkcije(2)->click();
  EXPECT_TRUE(w.TxtX()->isEnabled());
  EXPECT_EQ(w.LabY()->text(), "Y (K) =");
}

TEST(FrmTabela, ChoosingAParametricEntryFromTheList) {
  Fixture f;
  FrmTabela w(nullptr, f.Services());
  w.CalculateTable();
  emit w.TxtY()->activated(1);  // "sin(k)", drawn as parametric
  EXPECT_TRUE(w.OptFunkcije(2)->isChecked());
  EXPECT_EQ(w.TxtX()->currentText(), "cos(k)");
  EXPECT_EQ(w.GridRows(), 20) << "-9 to 9 by the stored step";
}

TEST(FrmNjutn, ZerosFromAGuessAndOverTheGraphsRange) {
  Fixture f;
  FrmNjutn w(nullptr, f.Services(), tools::ZeroKind::Zeros);
  EXPECT_EQ(w.windowTitle(), "Zeros");
  EXPECT_EQ(w.Text1()->count(), 2);
  EXPECT_EQ(w.Text5()->text(), "-3");
  EXPECT_FALSE(w.Text5()->isEnabled());
  w.Text2()->setText("3");
  QTest::keyClick(w.Text2(), Qt::Key_Return);
  EXPECT_EQ(w.Text3()->toPlainText(), "Zero:  X = 1\n");
  w.Option1(1)->click();
  EXPECT_TRUE(w.Text5()->isEnabled());
  w.Command1()->click();
  EXPECT_EQ(w.Text3()->toPlainText(), "Zero:  X = 1\nZero:  X = -1\nZero:  X = 1\n");
}

TEST(FrmNjutn, EnterInTheFunctionBoxCalculatesOnce) {
  Fixture f;
  FrmNjutn w(nullptr, f.Services(), tools::ZeroKind::Zeros);
  w.Text2()->setText("3");
  QTest::keyClick(w.Text1()->lineEdit(), Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(w.Text3()->toPlainText(), "Zero:  X = 1\n");
}

TEST(FrmNjutn, IntersectionAndPointEvaluate) {
  Fixture f;
  FrmNjutn i(nullptr, f.Services(), tools::ZeroKind::Intersection);
  EXPECT_EQ(i.windowTitle(), "Intersection");
  i.Command1()->click();
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Please select two different functions.");
  FrmNjutn p(nullptr, f.Services(), tools::ZeroKind::PointEvaluate);
  EXPECT_EQ(p.windowTitle(), "Point Evaluate");
  EXPECT_EQ(p.Text4()->text(), "") << "the value for Y is empty at load";
  p.Text2()->setText("2");
  p.Command1()->click();
  EXPECT_EQ(p.Text3()->toPlainText(), " Y = 3 ; X = 2\n");
}

TEST(FrmIntAv, IntegralAverageAndDerivative) {
  Fixture f;
  FrmIntAv w(nullptr, f.Services());
  EXPECT_EQ(w.windowTitle(), "Integral - Derivative");
  w.TxtMin()->setText("0");
  w.TxtMax()->setText("3");
  w.Integral();
  EXPECT_EQ(w.Text10()->text(), "6");
  EXPECT_EQ(w.LblIntg()->text(), "Integral:");
  w.Text8()->setText("2");
  w.Derivative();
  EXPECT_EQ(w.Text11()->text(), "4");
  w.TxtKorak()->setEditText("2048");
  EXPECT_EQ(w.TxtKorak()->currentText(), " 2000");
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].title, "Invalid Input");
  QTest::keyClicks(w.TxtMin(), "1");
  EXPECT_EQ(w.Text10()->text(), "") << "an edit empties the old result";
}

TEST(FrmAnalizaNew, ListsTheExtremaOfTheActiveFunction) {
  Fixture f;
  f.graph.y = "x^2";
  FrmAnalizaNew* w = FrmAnalizaNew::Open(nullptr, f.Services());
  ASSERT_NE(w, nullptr);
  EXPECT_EQ(w->windowTitle(), "Critical Points");
  EXPECT_EQ(w->TxtMin()->text(), "-3");
  w->Calculate();
  EXPECT_EQ(w->TxtRoot()->toPlainText(), "\nRange: (-3; 3)\nFunction: y = x^2\nMin: Y = 0 ; X = 0\n\n");
  EXPECT_TRUE(w->Pb1()->isHidden());
  delete w;
}

TEST(FrmAnalizaNew, TheGraphWindowGetsTheFunctionBackAndTheScanCurve) {
  Fixture f;
  f.graph.y = "X^2";
  f.graph.zoom = 10;
  FrmAnalizaNew w(nullptr, f.Services());
  w.TxtMin()->setText("-1");
  w.TxtMax()->setText("1");
  w.Calculate();
  EXPECT_EQ(f.graph.y, "x^2") << "the function as searched, in txtY";
  ASSERT_EQ(f.graph.curves.size(), 1u) << "the scan drawn in the graph window";
  EXPECT_EQ(f.graph.curves[0].points.size(), 21u) << "one sample a pixel column at 10 a unit";
  EXPECT_NEAR(f.graph.curves[0].points.back().y, -2, 1e-6) << "the derivative upside down";
  EXPECT_EQ(w.Scan().Rising(), (std::vector<std::string>{"0", "0.1"}));
  EXPECT_TRUE(w.Pb1()->isHidden());
  EXPECT_TRUE(f.graph.requests.empty()) << "no function drawn or remembered";
  f.graph.drawing = true;
  EXPECT_FALSE(w.DrawScan(f.graph, -1, 1)) << "not during the window's own draw";
  EXPECT_EQ(f.graph.curves.size(), 1u);
}

TEST(FrmAnalizaNew, EscapeDuringARunStopsIt) {
  Fixture f;
  f.graph.y = "x^2";
  FrmAnalizaNew w(nullptr, f.Services());
  QTimer::singleShot(0, &w, [&w] { QTest::keyClick(&w, Qt::Key_Escape); });
  w.Calculate();
  EXPECT_TRUE(w.StopRequested());
  EXPECT_EQ(w.TxtRoot()->toPlainText(), "") << "a stopped run leaves no log";
  EXPECT_TRUE(w.Pb1()->isHidden());
}

TEST(FrmAnalizaNew, AFunctionOfKIsRefused) {
  Fixture f;
  f.graph.y = "sin(k)";
  EXPECT_EQ(FrmAnalizaNew::Open(nullptr, f.Services()), nullptr);
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Replace K with X, draw the function and try again.");
}

}  // namespace
}  // namespace velmora::tools_qt
