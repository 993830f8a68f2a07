// The Geometry Units Converter window, offscreen: the lists, the "choose an
// entry sets the input to 1" rule, the Degrees page, the copy buttons and
// the hand-back to the Evaluator window.
#include "geometry/qt/frmconvert.h"

#include <gtest/gtest.h>

#include <string>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>

#include "platform/evaluatortarget.h"
#include "tests/cli/clirun.h"
#include "tests/support/recordingclipboard.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::geometry_qt {
namespace {

using platform::ToolWindow;
using velmora::testing::RecordingClipboard;
using velmora::testing::RecordingMessageBox;

class FakeEvaluator final : public platform::EvaluatorTarget {
 public:
  void WriteText(const std::string& text) override { written.push_back(text); }
  std::vector<std::string> written;
};

// The frame's tool windows with or without an Evaluator, open or not.
class FakeTools final : public platform::ToolWindows {
 public:
  bool hasEvaluator = false;
  bool evaluatorOpen = false;
  FakeEvaluator evaluator;
  bool Has(ToolWindow window) const override { return window == ToolWindow::Evaluator && hasEvaluator; }
  void Show(ToolWindow) override {}
  void ShowGraphMode() override {}
  platform::MathPadTarget* MathPad() override { return nullptr; }
  platform::EvaluatorTarget* Evaluator(bool create) override {
    if (!hasEvaluator) return nullptr;
    if (create) evaluatorOpen = true;
    return evaluatorOpen ? &evaluator : nullptr;
  }
};

struct Window {
  RecordingMessageBox messages;
  RecordingClipboard clipboard;
  FakeTools tools;
  FrmConvert* window = nullptr;
  Window() {
    window = new FrmConvert(nullptr, {&messages, &tools, &clipboard});
    window->show();
    QApplication::processEvents();
  }
  ~Window() { delete window; }
};

// What velmora-cli convert prints for the output box.
std::string CliOutput(const std::string& page, const std::string& from, const std::string& to,
                      const std::string& value, const std::string& box) {
  const auto run = velmora::testing::RunCli({"convert", page, from, to, value});
  for (const auto& line : velmora::testing::Lines(run.out)) {
    if (line.rfind(box + "=", 0) == 0) return line.substr(box.size() + 1);
  }
  return "(no " + box + ")";
}

TEST(FrmConvertTest, TheWindowHasItsCaptionPagesAndListsInOrder) {
  Window w;
  EXPECT_EQ(w.window->windowTitle(), QStringLiteral("Geometry Units Converter"));
  QStringList tabs;
  for (int i = 0; i < w.window->Tabs()->count(); ++i) tabs << w.window->Tabs()->tabText(i);
  EXPECT_EQ(tabs, (QStringList{"Angles", "Areas", "Lengths", "Degrees"}));
  QStringList angles;
  for (int i = 0; i < w.window->List("List1")->count(); ++i)
    angles << w.window->List("List1")->item(i)->text();
  EXPECT_EQ(angles, (QStringList{QStringLiteral("Degree ( ° )"), "Grad ( g )", "Minute ( ' )",
                                 "Radian ( rad )", "Second ( '' )"}));
  EXPECT_EQ(w.window->List("List6")->count(), 7);
  EXPECT_EQ(w.window->List("List4")->count(), 6);
}

TEST(FrmConvertTest, ChoosingAnEntrySetsTheInputToOneAndShowsTheFactor) {
  Window w;
  w.window->Box("Text5")->setText(QStringLiteral("42"));
  w.window->ChooseUnit("List5", 3);  // Mile
  EXPECT_EQ(w.window->Box("Text5")->text(), QStringLiteral("1"));
  w.window->ChooseUnit("List6", 0);  // Foot
  EXPECT_EQ(w.window->Box("Text5")->text(), QStringLiteral("1"));
  EXPECT_EQ(w.window->Box("Text6")->text().toStdString(), CliOutput("lengths", "mile", "ft", "1", "Text6"));
  EXPECT_EQ(w.window->List("List5")->currentRow(), 3);
}

TEST(FrmConvertTest, EnterConvertsTheTypedValueAsTheCliDoes) {
  Window w;
  w.window->ChooseUnit("List3", 2);  // square meters
  w.window->ChooseUnit("List4", 4);  // acres
  w.window->Box("Text3")->setText(QStringLiteral("10000"));
  w.window->ConvertPage(1);
  EXPECT_EQ(w.window->Box("Text4")->text().toStdString(), CliOutput("areas", "m2", "acre", "10000", "Text4"));
}

TEST(FrmConvertTest, ANegativeValueIsRefused) {
  Window w;
  w.window->Box("Text1")->setText(QStringLiteral("-1"));
  w.window->ConvertPage(0);
  ASSERT_EQ(w.messages.Boxes().size(), 1u);
  EXPECT_EQ(w.messages.Boxes()[0].text, "Invalid input.");
  EXPECT_EQ(w.messages.Boxes()[0].icon, platform::MsgIcon::Critical);
}

TEST(FrmConvertTest, TheDegreesPageGivesRadiansAndGrads) {
  Window w;
  w.window->Box("txtDeg")->setText(QStringLiteral("180"));
  w.window->Box("txtMin")->setText(QStringLiteral("0"));
  w.window->Box("txtSec")->setText(QStringLiteral("0"));
  w.window->Button("Command2")->click();
  EXPECT_EQ(w.window->Box("txtRad")->text(), QStringLiteral("3.14159"));
  EXPECT_EQ(w.window->Box("txtGrad")->text(), QStringLiteral("200"));
  w.window->Box("txtMin")->setText(QStringLiteral("-5"));
  w.window->Button("Command2")->click();
  ASSERT_EQ(w.messages.Boxes().size(), 1u);
  EXPECT_EQ(w.messages.Boxes()[0].text, "Invalid input for Minutes (Min > 0).");
  EXPECT_EQ(w.window->Box("txtMin")->text(), QString());
}

TEST(FrmConvertTest, CopyButtonsAndTheCopyMenuPutTheirBoxOnTheClipboard) {
  Window w;
  w.window->ChooseUnit("List2", 3);  // degrees to radians: pi / 180
  QPushButton* copy = w.window->Button("Command3");
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(copy->text(), QStringLiteral("Copy"));
  EXPECT_EQ(copy->toolTip(), QStringLiteral("Copy result"));
  copy->click();
  EXPECT_EQ(w.clipboard.Last(), w.window->Box("Text2")->text().toStdString());
  EXPECT_FALSE(w.clipboard.Last().empty());

  w.window->Box("txtDeg")->setText(QStringLiteral("90"));
  w.window->ConvertDegrees();
  QMenu* menu = w.window->MakeCopyMenu();
  EXPECT_EQ(menu->objectName(), QStringLiteral("mnuCopy1"));
  QAction* grads = menu->findChild<QAction*>(QStringLiteral("mnugrad"));
  ASSERT_NE(grads, nullptr);
  EXPECT_EQ(grads->text(), QStringLiteral("Grads"));
  grads->trigger();
  EXPECT_EQ(w.clipboard.Last(), "100");
  menu->findChild<QAction*>(QStringLiteral("mnurad"))->trigger();
  EXPECT_EQ(w.clipboard.Last(), "1.5708");
  delete menu;
}

TEST(FrmConvertTest, TheHandBackIsDisabledUntilTheEvaluatorWindowIsOpen) {
  Window w;
  QPushButton* send = w.window->Button("cmdEvaluator1");
  ASSERT_NE(send, nullptr);
  EXPECT_FALSE(send->isEnabled()) << "this version has no Evaluator";
  w.tools.hasEvaluator = true;
  w.window->RefreshHandBack();
  EXPECT_FALSE(send->isEnabled()) << "the Evaluator is not open";
  w.tools.evaluatorOpen = true;
  w.window->ChooseUnit("List2", 1);  // degrees to grads
  EXPECT_TRUE(send->isEnabled());
  send->click();
  ASSERT_EQ(w.tools.evaluator.written.size(), 1u);
  EXPECT_EQ(w.tools.evaluator.written[0], w.window->Box("Text2")->text().toStdString());
  // Closed again behind the converter's back: a click writes nothing.
  w.tools.evaluatorOpen = false;
  w.window->SendToEvaluator();
  EXPECT_EQ(w.tools.evaluator.written.size(), 1u);
  EXPECT_FALSE(send->isEnabled());
}

}  // namespace
}  // namespace velmora::geometry_qt
