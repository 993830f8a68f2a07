// The side panel frm2text beside the calculator, its toolbar's questions,
// the "Complex" popup with the entries of tools this version may lack, and
// OFF.
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextEdit>

#include "mathpad/qt/frm2text.h"
#include "tests/complex/qt/complexwindowfixture.h"

namespace velmora::complex_qt {
namespace {

using platform::ToolWindow;

class PanelTest : public ComplexWindowTest {
 protected:
  mathpad_qt::Frm2Text& Panel() { return Must(W().Panel()); }
  void PanelButton(const char* key) { Panel().Button(QString::fromLatin1(key))->trigger(); }
};

TEST_F(PanelTest, ThePanelKeyShowsAndHidesThePanelAndItsToolTipFollows) {
  EXPECT_EQ(W().Panel(), nullptr);
  EXPECT_EQ(Key("cmdPan")->toolTip(), QStringLiteral("Show panel"));
  Click("cmdPan");
  ASSERT_NE(W().Panel(), nullptr);
  EXPECT_TRUE(Panel().isVisible());
  EXPECT_EQ(Key("cmdPan")->toolTip(), QStringLiteral("Hide panel"));
  // It stands beside the calculator, not over it.
  EXPECT_FALSE(Panel().frameGeometry().intersects(W().frameGeometry()));
  EXPECT_EQ(Panel().frameGeometry().top(), W().frameGeometry().top());
  Click("cmdPan");
  EXPECT_FALSE(Panel().isVisible());
  EXPECT_EQ(Key("cmdPan")->toolTip(), QStringLiteral("Show panel"));
}

TEST_F(PanelTest, AnOpenPanelCollectsABlockPerOperation) {
  ClearAll();
  Enter("A3B4C1D2~");
  Keypad(Qt::Key_Asterisk);  // the panel is closed: nothing is kept
  Click("cmdPan");
  Keypad(Qt::Key_Asterisk);
  Click("Command2");
  Click("Command1");
  Action("mnugdeg")->trigger();
  W().PopupMenu()->hide();
  EXPECT_EQ(Panel().Text().toStdString(),
            "(3+j4 * 1+j-2)\n= 11+j-2\n"
            "(z1^2(3+j4))\n= -6.999991+j24.000007\n"
            "(Arg(3+j4))\n= 53.130102 deg\n");
  // Hidden, it collects nothing more.
  Click("cmdPan");
  Keypad(Qt::Key_Plus);
  EXPECT_EQ(Panel().Text().count(QLatin1Char('=')), 3);
}

TEST_F(PanelTest, TheShowPanelEntryTurnsItsCaption) {
  QAction* entry = Action("mnupanel");
  EXPECT_EQ(entry->text(), QStringLiteral("&Show Panel"));
  entry->trigger();
  EXPECT_TRUE(Panel().isVisible());
  EXPECT_EQ(entry->text(), QStringLiteral("&Hide Panel"));
  entry->trigger();
  EXPECT_FALSE(Panel().isVisible());
  EXPECT_EQ(entry->text(), QStringLiteral("&Show Panel"));
  // Closed by itself, the caption reads "Show &Panel" and the next click
  // only brings "&Show Panel" back.
  entry->trigger();
  Panel().close();
  EXPECT_FALSE(Panel().isVisible());
  EXPECT_EQ(entry->text(), QStringLiteral("Show &Panel"));
  EXPECT_FALSE(W().Fields().frm2textOpen);
  entry->trigger();
  EXPECT_FALSE(Panel().isVisible());
  EXPECT_EQ(entry->text(), QStringLiteral("&Show Panel"));
  entry->trigger();
  EXPECT_TRUE(Panel().isVisible());
}

TEST_F(PanelTest, NewAsksOnlyWhenThereIsText) {
  Click("cmdPan");
  PanelButton("New");
  EXPECT_TRUE(box.Boxes().empty());  // an empty panel is not asked about
  Panel().AppendText(QStringLiteral("kept\r\n"));
  box.Answer(platform::MsgResult::No);
  PanelButton("New");
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_EQ(box.Boxes()[0].text, "This will clear current panel. Continue?");
  EXPECT_EQ(box.Boxes()[0].title, "New panel");
  EXPECT_EQ(box.Boxes()[0].buttons, platform::MsgButtons::YesNo);
  EXPECT_EQ(Panel().Text(), QStringLiteral("kept\n"));
  box.Clear();
  box.Answer(platform::MsgResult::Yes);
  PanelButton("New");
  EXPECT_EQ(Panel().Text(), QString());
}

TEST_F(PanelTest, CopyAndClearWantASelection) {
  Click("cmdPan");
  Panel().AppendText(QStringLiteral("one two"));
  PanelButton("Copy");
  ExpectBox("Select text you want to copy.", "Velmora");
  PanelButton("Clear");
  ExpectBox("Select text you want to erase.", "Velmora");
  QTextCursor cursor = Panel().rt1()->textCursor();
  cursor.setPosition(0);
  cursor.setPosition(4, QTextCursor::KeepAnchor);
  Panel().rt1()->setTextCursor(cursor);
  PanelButton("Copy");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("one "));
  PanelButton("Clear");
  EXPECT_EQ(Panel().Text(), QStringLiteral("two"));
  EXPECT_TRUE(box.Boxes().empty());
}

TEST_F(PanelTest, PadShowsMathPadOrStaysDisabledWithoutIt) {
  Click("cmdPan");
  EXPECT_FALSE(Panel().Button(QStringLiteral("Pad"))->isEnabled());
  Click("cmdPan");
  tools.present.insert(ToolWindow::MathPad);
  Click("cmdPan");
  ASSERT_TRUE(Panel().Button(QStringLiteral("Pad"))->isEnabled());
  PanelButton("Pad");
  ASSERT_EQ(tools.shown.size(), 1u);
  EXPECT_EQ(tools.shown[0], ToolWindow::MathPad);
}

TEST_F(PanelTest, TheComplexPopupDisablesTheToolsThisVersionLacks) {
  tools.present = {ToolWindow::Matrix};
  W().ShowComplexMenu(QPoint(10, 10));
  QMenu* menu = W().ComplexMenu();
  ASSERT_TRUE(menu->isVisible());
  struct Case {
    const char* name;
    const char* caption;
    bool enabled;
  };
  const Case cases[] = {
      {"mnupad", "Ma&thPad", false},
      {"mnugraph", "&Graph Mode", true},
      {"mnuevaluator", "&Evaluator", false},
      {"mnumatrix", "&Matrix Calculator", true},
      {"mnugeometry", "Ge&ometry Calculator", false},
      {"mnupanel", "&Show Panel", true},
      {"mnuhelp", "&Help", false},  // no help file beside the program
      {"mnuexit3", "&Close", true},
  };
  for (const auto& c : cases) {
    QAction* action = Action(c.name);
    EXPECT_EQ(action->text().toStdString(), c.caption);
    EXPECT_EQ(action->isEnabled(), c.enabled) << c.name;
  }
  Action("mnumatrix")->trigger();
  Action("mnugraph")->trigger();
  menu->hide();
  ASSERT_EQ(tools.shown.size(), 1u);
  EXPECT_EQ(tools.shown[0], ToolWindow::Matrix);
  EXPECT_EQ(tools.graphMode, 1);
  // A tool that lands later comes alive at the next opening.
  tools.present.insert(ToolWindow::Geometry);
  W().ShowComplexMenu(QPoint(10, 10));
  EXPECT_TRUE(Action("mnugeometry")->isEnabled());
  menu->hide();
}

// A desktop that records what it is asked to open.
struct RecordingShell final : platform::ShellLauncher {
  int Execute(const std::string& file, const std::string&, const std::string&, const std::string&,
              bool) override {
    opened.push_back(file);
    return result;
  }
  int result = 42;
  std::vector<std::string> opened;
};

TEST_F(PanelTest, TheHelpEntryOpensTheHelpFileWhenItIsThere) {
  QTemporaryDir folder;
  const QString help = folder.filePath(QStringLiteral("Qelcalc.chm"));
  RecordingShell shell;
  delete guard.data();
  window = new FrmComplex(nullptr, ComplexServices{&box, &tools, &shell, help});
  guard = window;
  W().ShowComplexMenu(QPoint(5, 5));
  EXPECT_FALSE(Action("mnuhelp")->isEnabled());  // not there yet
  W().ComplexMenu()->hide();
  QFile file(help);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  W().ShowComplexMenu(QPoint(5, 5));
  ASSERT_TRUE(Action("mnuhelp")->isEnabled());
  Action("mnuhelp")->trigger();
  W().ComplexMenu()->hide();
  ASSERT_EQ(shell.opened.size(), 1u);
  EXPECT_EQ(shell.opened[0], help.toStdString());
  EXPECT_TRUE(box.Boxes().empty());
  // A desktop that cannot open it: the message names the file.
  shell.result = 31;
  Action("mnuhelp")->trigger();
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_NE(box.Boxes()[0].text.find("Qelcalc.chm"), std::string::npos);
}

TEST_F(PanelTest, TypingInThePanelTypesText) {
  // The panel is a window of its own: its keys never reach the calculator.
  Click("cmdPan");
  QTest::keyClicks(Panel().rt1(), QStringLiteral("ab"));
  QTest::keyClick(Panel().rt1(), Qt::Key_5, Qt::KeypadModifier);
  EXPECT_EQ(Panel().Text(), QStringLiteral("ab5"));
  EXPECT_TRUE(Key("cmdBroj", 1)->isChecked());
  EXPECT_EQ(Text("lblZ1"), "0+i0");
}

TEST_F(PanelTest, ARightClickOnTheCaseOpensTheComplexPopup) {
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), W().mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(window, &event);
  EXPECT_TRUE(W().ComplexMenu()->isVisible());
  W().ComplexMenu()->hide();
  // The Complex key opens it too.
  Click("cmdMenu");
  EXPECT_TRUE(W().ComplexMenu()->isVisible());
  W().ComplexMenu()->hide();
}

TEST_F(PanelTest, OffHidesThePanelAndClosesTheCalculator) {
  Click("cmdPan");
  QPointer<mathpad_qt::Frm2Text> panel = W().Panel();
  Click("cmdOff");
  QApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(guard.isNull());  // closed and deleted
  EXPECT_TRUE(panel.isNull());
}

TEST_F(PanelTest, TheCloseEntryClosesTheCalculator) {
  Action("mnuexit3")->trigger();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(guard.isNull());
}

}  // namespace
}  // namespace velmora::complex_qt
