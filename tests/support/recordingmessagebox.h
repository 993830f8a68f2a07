#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/messagebox.h"

namespace velmora::testing {

// A message box that records every box it is asked to show and answers from
// a queue of scripted answers. A box shown with no scripted answer left fails
// the running test and answers with the first button, so a test never hangs.
class RecordingMessageBox final : public platform::MessageBox {
 public:
  struct Shown {
    std::string text;
    std::string title;
    platform::MsgIcon icon;
    platform::MsgButtons buttons;
  };

  platform::MsgResult Show(const std::string& text, const std::string& title, platform::MsgIcon icon,
                           platform::MsgButtons buttons) override;

  // Queues the answer to the next box that asks a question.
  void Answer(platform::MsgResult result) { answers_.push_back(result); }
  // Boxes with only an OK button are answered without a scripted answer.
  const std::vector<Shown>& Boxes() const { return boxes_; }
  void Clear() { boxes_.clear(); }

 private:
  std::vector<Shown> boxes_;
  std::deque<platform::MsgResult> answers_;
};

}  // namespace velmora::testing
