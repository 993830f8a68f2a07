// The frame's entries of the graph window's own tools: enabled with a
// window, routed to the active window, refusing the types they do not serve.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QToolButton>

#include "app/frametoolbars.h"
#include "app/toolwindowhost.h"
#include "graph/qt/frmlabel.h"
#include "graph/qt/frmmini.h"
#include "graph/qt/frmunesit.h"
#include "tests/gui/framefixture.h"

namespace velmora::testing {
namespace {

using app::Command;

graph_qt::FrmFunc& Drawn(FrameFixture& f, int type, const char* y, const char* x = "K") {
  graph_qt::FrmFunc* window = f.frame->ActiveGraphWindow();
  window->Logic().optFunk(type);
  window->Logic().SetFunctionTexts(y, x);
  window->SyncFromLogic();
  window->DrawFunction();
  return *window;
}

TEST(FrmMainTools, TheEntriesAreLiveWithAWindow) {
  FrameFixture f;
  f.Start();
  for (int index : {4, 5, 6}) EXPECT_TRUE(f.Action("mnuFile", index)->isEnabled()) << index;
  EXPECT_TRUE(f.Action("mnuTools", 8)->isEnabled());  // Insert Label
  // Save History hands the history to MathPad, which this build may lack.
  EXPECT_EQ(f.Action("mnuFile", 10)->isEnabled(), f.frame->Tools().Has(platform::ToolWindow::MathPad));
}

TEST(FrmMainTools, DrawTangentOpensTheDialogOfTheActiveWindow) {
  FrameFixture f;
  f.Start();
  graph_qt::FrmFunc& window = Drawn(f, graph::kCartesian, "X^2");
  f.Trigger("mnuFile", 4);
  auto* dialog = window.findChild<graph_qt::FrmUnesit*>();
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(dialog->objectName(), QStringLiteral("frmunesit"));
  dialog->close();
}

TEST(FrmMainTools, DrawIntegralAndLabelOpenTheirDialogs) {
  FrameFixture f;
  f.Start();
  graph_qt::FrmFunc& window = Drawn(f, graph::kCartesian, "SinX");
  f.Trigger("mnuFile", 5);
  auto* mini = window.findChild<graph_qt::FrmMini*>();
  ASSERT_NE(mini, nullptr);
  mini->close();
  QApplication::processEvents();
  f.Trigger("mnuTools", 8);
  EXPECT_NE(window.findChild<graph_qt::FrmLabel*>(), nullptr);
}

TEST(FrmMainTools, APolarFunctionIsRefusedByTangentAndIntegral) {
  FrameFixture f;
  f.Start();
  Drawn(f, graph::kPolar, "1");
  f.messages.Clear();
  f.Trigger("mnuFile", 4);
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Available for Cartesian and Parametric functions.");
  f.Trigger("mnuFile", 5);
  EXPECT_EQ(f.messages.Boxes().back().text, "Available for Cartesian functions only.");
  f.frame->Run(Command::DrawIntegralAverage);
  EXPECT_EQ(f.messages.Boxes().back().text, "Available for Cartesian (standard) functions only.");
}

TEST(FrmMainTools, TheNewtonButtonRefusesAFunctionThatIsNotCartesian) {
  struct Row {
    int type;
    const char* y;
    bool opens;
    const char* why;
  };
  const Row rows[] = {
      {graph::kPolar, "1", false, "a polar curve has no zeros of Y(X)"},
      {graph::kParametric, "SinK", false, "nor has a parametric pair"},
      {graph::kCartesian, "X^2-1", true, "a Cartesian function goes to the Zeros window"},
  };
  for (const Row& row : rows) {
    FrameFixture f;
    f.Start();
    Drawn(f, row.type, row.y);
    f.messages.Clear();
    f.frame->Bars().Button(QStringLiteral("Newton"))->click();
    QApplication::processEvents();
    EXPECT_EQ(f.frame->Tools().Window(platform::ToolWindow::Zeros) != nullptr, row.opens) << row.why;
    if (row.opens) {
      EXPECT_TRUE(f.messages.Boxes().empty()) << row.why;
    } else {
      ASSERT_EQ(f.messages.Boxes().size(), 1u) << row.why;
      EXPECT_EQ(f.messages.Boxes()[0].text, "Available for Cartesian functions only.") << row.why;
    }
  }
}

TEST(FrmMainTools, TheZerosMenuEntryAndTheButtonsMenuDoNotRefuse) {
  // Only the button itself looks at the function type; Tools > Find Zeros
  // and the button's own drop-down entry open the window for any type.
  for (const bool fromMenu : {true, false}) {
    FrameFixture f;
    f.Start();
    Drawn(f, graph::kPolar, "1");
    f.messages.Clear();
    if (fromMenu) {
      f.Trigger("mnuTools", 5);
    } else {
      f.frame->Bars().MenuEntry(QStringLiteral("newt1"))->trigger();
    }
    QApplication::processEvents();
    EXPECT_TRUE(f.messages.Boxes().empty()) << fromMenu;
    EXPECT_NE(f.frame->Tools().Window(platform::ToolWindow::Zeros), nullptr) << fromMenu;
  }
}

TEST(FrmMainTools, WithNoWindowTheNewtonButtonOpensTheZerosWindow) {
  FrameFixture f;
  f.Start();
  f.frame->Run(Command::Close);
  QApplication::processEvents();
  ASSERT_EQ(f.frame->ActiveGraphWindow(), nullptr);
  f.messages.Clear();
  f.frame->Run(Command::ToolZerosCartesian);
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_NE(f.frame->Tools().Window(platform::ToolWindow::Zeros), nullptr);
}

}  // namespace
}  // namespace velmora::testing
