#include "mathpad/historyhandover.h"

#include <gtest/gtest.h>

#include "tests/support/fakemathpad.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::mathpad {
namespace {

using platform::MsgResult;

TEST(HistoryHandover, SaveHistoryAppendsWithItsHead) {
  testing::RecordingMessageBox messages;
  testing::MathPadOnlyTools tools;
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
  testing::MathPadOnlyTools tools;
  messages.Answer(MsgResult::Yes);
  EXPECT_TRUE(OpenHistoryInMathPad(messages, tools, "/tmp/GraphLog.txt"));
  EXPECT_EQ(messages.Boxes()[0].text, "Open function history in MathPad and edit it, save or print?");
  EXPECT_EQ(tools.pad.opened, "/tmp/GraphLog.txt");
}

}  // namespace
}  // namespace velmora::mathpad
