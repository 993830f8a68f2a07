// The Evaluator window with the windows around it: the "Mode" popup of its
// result label, what others write at its caret, the side panel and the help.
#include "tools/qt/frmtast.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTextEdit>

#include "mathpad/qt/frm2text.h"
#include "platform/evaluatortarget.h"
#include "tests/support/fakegraphtarget.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::tools_qt {
namespace {

// The frame's tool windows: none but the Evaluator's own, and what is shown.
class FakeTools final : public platform::ToolWindows {
 public:
  bool Has(platform::ToolWindow) const override { return false; }
  void Show(platform::ToolWindow window) override { shown.push_back(window); }
  void ShowGraphMode() override {}
  platform::MathPadTarget* MathPad() override { return nullptr; }
  platform::EvaluatorTarget* Evaluator(bool) override { return nullptr; }
  std::vector<platform::ToolWindow> shown;
};

class RecordingLauncher final : public platform::ShellLauncher {
 public:
  int Execute(const std::string& file, const std::string&, const std::string&, const std::string& verb,
              bool) override {
    opened.push_back(verb + " " + file);
    return answer;
  }
  int answer = 42;
  std::vector<std::string> opened;
};

struct Fixture {
  ToolServices Services() {
    ToolServices s;
    s.messages = &boxes;
    s.tools = &tools;
    s.shell = &shell;
    s.activeGraph = [this]() -> graph::GraphToolTarget* { return &graph; };
    s.helpFile = helpFile;
    return s;
  }
  testing::FakeGraphTarget graph;
  testing::RecordingMessageBox boxes;
  FakeTools tools;
  RecordingLauncher shell;
  QString helpFile;
};

QAction* Named(const QWidget* menu, const QString& name) {
  for (QAction* a : menu->findChildren<QAction*>()) {
    if (a->objectName() == name) return a;
  }
  for (QMenu* sub : menu->findChildren<QMenu*>()) {
    for (QAction* a : sub->actions()) {
      if (a->objectName() == name) return a;
    }
  }
  return nullptr;
}

TEST(FrmTastWrite, OthersWriteAtTheCaretReplacingTheSelection) {
  const struct {
    const char* before;
    int from;
    int length;  // 0: only the caret at `from`
    const char* text;
    const char* after;
    const char* why;
  } rows[] = {
      {"", 0, 0, "1010", "1010", "an empty box takes the text"},
      {"2*", 2, 0, "6.022137*10^(23)", "2*6.022137*10^(23)", "a constant goes on after what is typed"},
      {"1+*3", 2, 0, "x", "1+x*3", "in the middle, at the caret"},
      {"1+abc*3", 2, 3, "2", "1+2*3", "the selection is replaced"},
      {"255", 0, 3, "FF", "FF", "a fully selected expression is replaced whole"},
  };
  for (const auto& row : rows) {
    Fixture f;
    FrmTast w(nullptr, f.Services());
    w.Text1()->setEditText(row.before);
    if (row.length > 0) {
      w.Text1()->lineEdit()->setSelection(row.from, row.length);
    } else {
      w.Text1()->lineEdit()->setCursorPosition(row.from);
    }
    static_cast<platform::EvaluatorTarget&>(w).WriteText(row.text);
    EXPECT_EQ(w.Text1()->currentText().toStdString(), row.after) << row.why;
  }
}

TEST(FrmTastMode, TheResultLabelPopsUpTheModeMenu) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  w.show();
  ASSERT_NE(w.ModeMenu(), nullptr);
  EXPECT_EQ(w.ModeMenu()->title(), "Mode");
  EXPECT_FALSE(w.ModeMenu()->isVisible());
  emit w.LbRezultat()->customContextMenuRequested(QPoint(2, 2));
  EXPECT_TRUE(w.ModeMenu()->isVisible()) << "the right button on lbRezultat";
  w.ModeMenu()->hide();
  EXPECT_EQ(w.LbRezultat()->contextMenuPolicy(), Qt::CustomContextMenu)
      << "the label's own menu, not the window's Eval popup";
}

TEST(FrmTastMode, AConstantGoesInAtTheCaretAndEvaluatesInPlace) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  QAction* amu = Named(w.ModeMenu(), "mnuconst4");
  ASSERT_NE(amu, nullptr);
  EXPECT_EQ(amu->text(), "Atomic mas unit");
  EXPECT_TRUE(amu->isEnabled()) << "the Evaluator is this window itself";
  w.Text1()->setEditText("2*");
  amu->trigger();
  EXPECT_EQ(w.Text1()->currentText(), "2*1.66054*10^(-27)");
  QAction* apha = Named(w.ModeMenu(), "mnuconst223");
  ASSERT_NE(apha, nullptr);
  w.Text1()->setEditText("");
  apha->trigger();
  EXPECT_EQ(w.Text1()->currentText(), "1.6726485*10^(-27)") << "the proton's rest mass, as the entry has it";
  EXPECT_TRUE(f.tools.shown.empty()) << "no other window is opened for it";
}

TEST(FrmTastMode, ConvertResultWritesTheConvertedResultBack) {
  const struct {
    const char* expression;
    int index;
    const char* written;
    const char* why;
  } rows[] = {
      {"255", 2, "FF", "hexadecimal, upper case"},
      {"8", 3, "10", "octal"},
      {"6", 1, "11", "binary, lowest digit first, read as a number"},
      {"2+3", 0, "5", "decimal: the result as it is"},
  };
  for (const auto& row : rows) {
    Fixture f;
    FrmTast w(nullptr, f.Services());
    w.Text1()->setEditText(row.expression);
    w.Evaluate();
    // After Evaluate the expression stands selected, so the converted
    // result takes its place.
    w.Text1()->lineEdit()->selectAll();
    QAction* convert = Named(w.ModeMenu(), QStringLiteral("mnuconv") + QString::number(row.index));
    ASSERT_NE(convert, nullptr);
    convert->trigger();
    EXPECT_EQ(w.Text1()->currentText().toStdString(), row.written) << row.why;
    EXPECT_TRUE(f.boxes.Boxes().empty()) << row.why;
  }
}

TEST(FrmTastMode, BinaryRefusesAResultAbove32767) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  w.Text1()->setEditText("32768");
  w.Evaluate();
  Named(w.ModeMenu(), "mnuconv1")->trigger();
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "To convert to binary, the result value must be <= 32767.");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::Critical);
  EXPECT_EQ(w.Text1()->currentText(), "32768") << "nothing written";
}

TEST(FrmTastPanel, MoreShowsAndHidesThePanelBesideTheWindow) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  w.show();
  EXPECT_EQ(w.Command4()->text(), "More...");
  EXPECT_TRUE(w.Command4()->isEnabled());
  EXPECT_EQ(w.Panel(), nullptr) << "made at its first showing";
  w.Command4()->click();
  ASSERT_NE(w.Panel(), nullptr);
  EXPECT_TRUE(w.PanelShown());
  EXPECT_EQ(w.findChild<QWidget*>(QStringLiteral("frm2text")), w.Panel()) << "the panel goes with the window";
  w.Command4()->click();
  EXPECT_FALSE(w.PanelShown());
  w.Command4()->click();
  EXPECT_TRUE(w.PanelShown()) << "the same panel again, with its text";
}

TEST(FrmTastPanel, TheEvalEntryCyclesItsCaption) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  w.show();
  QAction* entry = Named(w.EvalMenu(), "mnupanelev");
  ASSERT_NE(entry, nullptr);
  const struct {
    const char* before;
    bool shownAfter;
    const char* after;
    const char* why;
  } steps[] = {
      {"&Show Panel", true, "&Hide Panel", "shows the panel"},
      {"&Hide Panel", false, "&Show Panel", "hides it again"},
      {"&Show Panel", true, "&Hide Panel", "and shows it once more"},
  };
  for (const auto& step : steps) {
    emit w.EvalMenu()->aboutToShow();
    EXPECT_EQ(entry->text().toStdString(), step.before) << step.why;
    EXPECT_TRUE(entry->isEnabled()) << step.why;
    entry->trigger();
    EXPECT_EQ(w.PanelShown(), step.shownAfter) << step.why;
    EXPECT_EQ(entry->text().toStdString(), step.after) << step.why;
  }
  // The user closes the panel: the caption is the third spelling, and the
  // next click hides the hidden panel and brings "&Show Panel" back.
  if (QWidget* panel = w.Panel()) panel->close();
  EXPECT_FALSE(w.PanelShown());
  EXPECT_EQ(entry->text(), "Show &Panel");
  entry->trigger();
  EXPECT_FALSE(w.PanelShown());
  EXPECT_EQ(entry->text(), "&Show Panel");
}

TEST(FrmTastHelp, HelpOpensTheHelpFileWhenItIsThere) {
  const std::filesystem::path file = std::filesystem::temp_directory_path() / "velmora_evalhelp_test.chm";
  std::ofstream(file) << "help";
  Fixture f;
  f.helpFile = QString::fromStdString(file.string());
  FrmTast w(nullptr, f.Services());
  QAction* help = Named(w.EvalMenu(), "mnuhev");
  ASSERT_NE(help, nullptr);
  EXPECT_EQ(help->text(), "&Help");
  emit w.EvalMenu()->aboutToShow();
  EXPECT_TRUE(help->isEnabled());
  help->trigger();
  EXPECT_EQ(f.shell.opened, (std::vector<std::string>{"open " + file.string()}));
  EXPECT_TRUE(f.boxes.Boxes().empty());
  std::filesystem::remove(file);
  emit w.EvalMenu()->aboutToShow();
  EXPECT_FALSE(help->isEnabled()) << "no help file beside the program";
}

TEST(FrmTastHelp, WithoutAHelpFileTheEntryStaysDisabled) {
  Fixture f;
  FrmTast w(nullptr, f.Services());
  emit w.EvalMenu()->aboutToShow();
  QAction* help = Named(w.EvalMenu(), "mnuhev");
  ASSERT_NE(help, nullptr);
  EXPECT_FALSE(help->isEnabled());
  help->trigger();
  EXPECT_TRUE(f.shell.opened.empty());
}

}  // namespace
}  // namespace velmora::tools_qt
