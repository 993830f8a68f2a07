#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "platform/messagebox.h"

namespace velmora::cli {

// The message box of a batch run: the text of each box goes to a stream as
// one output line after a prefix (such as "message: "), its CR LF line ends
// as plain line feeds. A yes/no question is printed after "question: " and
// answered as the command line said (--yes / --no) when it said so; any
// other box is answered with its default button.
class StreamMessageBox final : public platform::MessageBox {
 public:
  explicit StreamMessageBox(std::ostream& out, std::string prefix = {},
                            std::optional<bool> answerYes = std::nullopt)
      : out_(out), prefix_(std::move(prefix)), answerYes_(answerYes) {}

  platform::MsgResult Show(const std::string& text, const std::string& title, platform::MsgIcon icon,
                           platform::MsgButtons buttons) override {
    ++shown_;
    const bool question =
        buttons == platform::MsgButtons::YesNo || buttons == platform::MsgButtons::YesNoCancel;
    if (question && answerYes_) {
      out_ << "question: " << Plain(text) << '\n';
      return *answerYes_ ? platform::MsgResult::Yes : platform::MsgResult::No;
    }
    out_ << prefix_ << Plain(text) << '\n';
    return silent_.Show(text, title, icon, buttons);
  }

  int Shown() const { return shown_; }

 private:
  static std::string Plain(const std::string& text) {
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
      plain.push_back(text[i]);
    }
    return plain;
  }

  std::ostream& out_;
  std::string prefix_;
  std::optional<bool> answerYes_;
  platform::SilentMessageBox silent_;
  int shown_ = 0;
};

}  // namespace velmora::cli
