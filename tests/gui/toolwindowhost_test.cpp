// The frame's tool-window host: one window of a kind, made at first use,
// made again after it was closed, restored when minimised; MathPad and the
// Evaluator reached through their targets.
#include "app/toolwindowhost.h"

#include <gtest/gtest.h>

#include <string>

#include <QApplication>
#include <QWidget>

#include "platform/evaluatortarget.h"
#include "platform/mathpadtarget.h"

namespace velmora::app {
namespace {

using platform::ToolWindow;

class PadWindow final : public QWidget, public platform::MathPadTarget {
 public:
  explicit PadWindow(QWidget* owner) : QWidget(owner) { setAttribute(Qt::WA_DeleteOnClose); }
  void AppendText(const std::string& text) override { appended += text; }
  void InsertText(const std::string& text, const std::string&) override { inserted += text; }
  void NewDocument(const std::string&) override {}
  void OpenFile(const std::string&) override {}
  std::string appended;
  std::string inserted;
};

class EvalWindow final : public QWidget, public platform::EvaluatorTarget {
 public:
  explicit EvalWindow(QWidget* owner) : QWidget(owner) { setAttribute(Qt::WA_DeleteOnClose); }
  void WriteText(const std::string& text) override { written = text; }
  std::string written;
};

struct Fixture {
  QWidget frame;
  ToolWindowHost host{&frame};
  int made = 0;
  Fixture() {
    host.Register(ToolWindow::MathPad, [this](QWidget* owner) {
      ++made;
      return new PadWindow(owner);
    });
    host.Register(ToolWindow::Evaluator, [](QWidget* owner) { return new EvalWindow(owner); });
  }
};

TEST(ToolWindowHostTest, AMissingWindowIsReportedAndNeverMade) {
  Fixture f;
  EXPECT_FALSE(f.host.Has(ToolWindow::Matrix));
  f.host.Show(ToolWindow::Matrix);  // does nothing
  EXPECT_EQ(f.host.Window(ToolWindow::Matrix), nullptr);
}

TEST(ToolWindowHostTest, OneWindowOfAKindMadeAtFirstUseAsATopLevelOwnedByTheFrame) {
  Fixture f;
  EXPECT_TRUE(f.host.Has(ToolWindow::MathPad));
  EXPECT_EQ(f.host.Window(ToolWindow::MathPad), nullptr);  // not made before its first use
  f.host.Show(ToolWindow::MathPad);
  f.host.Show(ToolWindow::MathPad);
  QWidget* pad = f.host.Window(ToolWindow::MathPad);
  ASSERT_NE(pad, nullptr);
  EXPECT_EQ(f.made, 1);
  EXPECT_TRUE(pad->isWindow());
  EXPECT_EQ(pad->parentWidget(), &f.frame);
  EXPECT_TRUE(pad->isVisible());
}

TEST(ToolWindowHostTest, AClosedWindowIsMadeAgain) {
  Fixture f;
  f.host.Show(ToolWindow::MathPad);
  f.host.Window(ToolWindow::MathPad)->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(f.host.Window(ToolWindow::MathPad), nullptr);
  f.host.Show(ToolWindow::MathPad);
  EXPECT_NE(f.host.Window(ToolWindow::MathPad), nullptr);
  EXPECT_EQ(f.made, 2);
}

TEST(ToolWindowHostTest, AMinimisedWindowIsRestored) {
  Fixture f;
  f.host.Show(ToolWindow::MathPad);
  QWidget* pad = f.host.Window(ToolWindow::MathPad);
  pad->showMinimized();
  f.host.Show(ToolWindow::MathPad);
  EXPECT_FALSE(pad->isMinimized());
}

TEST(ToolWindowHostTest, MathPadTextGoesToTheMadeWindow) {
  Fixture f;
  platform::MathPadTarget* pad = f.host.MathPad();
  ASSERT_NE(pad, nullptr);
  pad->AppendText("Function History:");
  EXPECT_EQ(static_cast<PadWindow*>(f.host.Window(ToolWindow::MathPad))->appended, "Function History:");
}

TEST(ToolWindowHostTest, TheEvaluatorIsMadeOnlyWhenAsked) {
  Fixture f;
  EXPECT_EQ(f.host.Evaluator(false), nullptr);  // not open: nothing written anywhere
  platform::EvaluatorTarget* evaluator = f.host.Evaluator(true);
  ASSERT_NE(evaluator, nullptr);
  EXPECT_EQ(f.host.Evaluator(false), evaluator);
  evaluator->WriteText("1010");
  EXPECT_EQ(static_cast<EvalWindow*>(f.host.Window(ToolWindow::Evaluator))->written, "1010");
}

TEST(ToolWindowHostTest, ToolsMissingFromTheRegistryHaveNoTargets) {
  QWidget frame;
  ToolWindowHost host(&frame);
  EXPECT_EQ(host.MathPad(), nullptr);
  EXPECT_EQ(host.Evaluator(true), nullptr);
}

}  // namespace
}  // namespace velmora::app
