#include "mathpad/historyhandover.h"

#include "platform/mathpadtarget.h"

namespace velmora::mathpad {

namespace {

// The program's title on boxes that name no other.
constexpr const char* kTitle = "Velmora";

bool Yes(platform::MessageBox& messages, const char* question) {
  return messages.Show(question, kTitle, platform::MsgIcon::Question, platform::MsgButtons::YesNo) ==
         platform::MsgResult::Yes;
}

}  // namespace

bool SendHistoryToMathPad(platform::MessageBox& messages, platform::ToolWindows& tools,
                          const std::string& history, const std::string& date) {
  if (!Yes(messages, "Open function history in MathPad?")) return false;
  platform::MathPadTarget* pad = tools.MathPad();
  if (pad == nullptr) return false;
  // The history keeps its lines as the log has them, ended by CR LF.
  std::string text = "\r\n\r\nFunction History:" + date + "\r\n";
  for (const char c : history) text += c == '\n' ? std::string("\r\n") : std::string(1, c);
  pad->AppendText(text);
  return true;
}

bool OpenHistoryInMathPad(platform::MessageBox& messages, platform::ToolWindows& tools,
                          const std::string& historyPath) {
  if (!Yes(messages, "Open function history in MathPad and edit it, save or print?")) return false;
  platform::MathPadTarget* pad = tools.MathPad();
  if (pad == nullptr) return false;
  pad->OpenFile(historyPath);
  return true;
}

}  // namespace velmora::mathpad
