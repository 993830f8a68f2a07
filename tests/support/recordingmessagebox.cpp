#include "tests/support/recordingmessagebox.h"

#include <gtest/gtest.h>

namespace velmora::testing {

platform::MsgResult RecordingMessageBox::Show(const std::string& text, const std::string& title,
                                              platform::MsgIcon icon, platform::MsgButtons buttons) {
  boxes_.push_back({text, title, icon, buttons});
  if (buttons == platform::MsgButtons::Ok) return platform::MsgResult::Ok;
  if (answers_.empty()) {
    ADD_FAILURE() << "unexpected question box: " << title << ": " << text;
    switch (buttons) {
      case platform::MsgButtons::YesNo:
      case platform::MsgButtons::YesNoCancel: return platform::MsgResult::Yes;
      case platform::MsgButtons::RetryCancel: return platform::MsgResult::Retry;
      case platform::MsgButtons::AbortRetryIgnore: return platform::MsgResult::Abort;
      default: return platform::MsgResult::Ok;
    }
  }
  const auto answer = answers_.front();
  answers_.pop_front();
  return answer;
}

}  // namespace velmora::testing
