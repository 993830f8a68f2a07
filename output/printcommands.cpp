#include "output/printcommands.h"

#include <string>

namespace velmora::output {

PrintCommands::HistoryRoute PrintCommands::AskHistoryRoute(base::MessageBox& messages, bool mathPadPresent) {
  const auto answer = messages.Show(std::string(kHistoryQuestion), std::string(kTitle),
                                    base::MsgIcon::Question, base::MsgButtons::YesNo);
  return answer == base::MsgResult::Yes && mathPadPresent ? HistoryRoute::MathPad : HistoryRoute::Printer;
}

void PrintCommands::NothingToPrint(base::MessageBox& messages) {
  messages.Show(std::string(kNothingToPrint), std::string(kTitle), base::MsgIcon::None);
}

}  // namespace velmora::output
