#pragma once

#include <cstdio>
#include <string>

#include "platform/messagebox.h"

namespace velmora::platform {

// A message box that writes each box to a stream instead of showing it, as
// "message box: TITLE: TEXT" with the icon's name, and answers with the
// default button. The program uses it when its boxes are to be read by a
// test harness rather than a person.
class PrintingMessageBox final : public MessageBox {
 public:
  explicit PrintingMessageBox(std::FILE* out = stderr) : out_(out) {}

  MsgResult Show(const std::string& text, const std::string& title, MsgIcon icon,
                 MsgButtons buttons) override {
    std::fprintf(out_, "message box [%s]: %s: %s\n", IconName(icon), title.c_str(), text.c_str());
    std::fflush(out_);
    return SilentMessageBox().Show(text, title, icon, buttons);
  }

  static const char* IconName(MsgIcon icon) {
    switch (icon) {
      case MsgIcon::Critical: return "critical";
      case MsgIcon::Question: return "question";
      case MsgIcon::Exclamation: return "exclamation";
      case MsgIcon::Information: return "information";
      case MsgIcon::None: break;
    }
    return "none";
  }

 private:
  std::FILE* out_;
};

}  // namespace velmora::platform
