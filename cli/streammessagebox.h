#pragma once

#include <ostream>
#include <string>

#include "platform/messagebox.h"

namespace velmora::cli {

// The message box of a batch run: the text of each box goes to a stream
// (standard error), its line ends as plain line feeds, and a question is
// answered with its default button.
class StreamMessageBox final : public platform::MessageBox {
 public:
  explicit StreamMessageBox(std::ostream& out) : out_(out) {}

  platform::MsgResult Show(const std::string& text, const std::string& title, platform::MsgIcon icon,
                           platform::MsgButtons buttons) override {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
      plain.push_back(text[i]);
    }
    out_ << plain << '\n';
    ++shown_;
    return silent_.Show(text, title, icon, buttons);
  }

  int Shown() const { return shown_; }

 private:
  std::ostream& out_;
  platform::SilentMessageBox silent_;
  int shown_ = 0;
};

}  // namespace velmora::cli
