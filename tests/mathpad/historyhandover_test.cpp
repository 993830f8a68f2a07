#include "mathpad/historyhandover.h"

#include <gtest/gtest.h>

#include "platform/mathpadtarget.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::mathpad {
namespace {

using platform::MsgResult;

class RecordingPad final : public platform::MathPadTarget {
 public:
  void AppendText(const std::string& text) override { appended += text; }
  void InsertText(const std::string&, const std::string&) override {}
  void NewDocument(const std::string&) override {}
  void OpenFile(const std::string& path) override { opened = path; }
  std::string appended;
  std::string opened;
};

class PadOnlyTools final : public platform::ToolWindows {
 public:
  bool Has(platform::ToolWindow window) const override { return window == platform::ToolWindow::MathPad; }
  void Show(platform::ToolWindow) override {}
  void ShowGraphMode() override {}
  platform::MathPadTarget* MathPad() override { return &pad; }
  platform::EvaluatorTarget* Evaluator(bool) override { return nullptr; }
  RecordingPad pad;
};

TEST(HistoryHandover, SaveHistoryAppendsWithItsHead) {
  testing::RecordingMessageBox messages;
  PadOnlyTools tools;
  messages.Answer(MsgResult::No);
  EXPECT_FALSE(SendHistoryToMathPad(messages, tools, "x", "1/2/2026"));
  EXPECT_EQ(tools.pad.appended, "");
  EXPECT_EQ(messages.Boxes()[0].text, "Open function history in MathPad?");
  EXPECT_EQ(messages.Boxes()[0].icon, platform::MsgIcon::Question);
  messages.Answer(MsgResult::Yes);
  EXPECT_TRUE(SendHistoryToMathPad(messages, tools, "\n Y(X) = sinx\n", "1/2/2026"));
  EXPECT_EQ(tools.pad.appended, "\r\n\r\nFunction History:1/2/2026\r\n\r\n Y(X) = sinx\r\n");
}

TEST(HistoryHandover, PrintHistoryOpensTheFile) {
  testing::RecordingMessageBox messages;
  PadOnlyTools tools;
  messages.Answer(MsgResult::Yes);
  EXPECT_TRUE(OpenHistoryInMathPad(messages, tools, "/tmp/GraphLog.txt"));
  EXPECT_EQ(messages.Boxes()[0].text, "Open function history in MathPad and edit it, save or print?");
  EXPECT_EQ(tools.pad.opened, "/tmp/GraphLog.txt");
}

}  // namespace
}  // namespace velmora::mathpad
