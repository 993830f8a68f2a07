#pragma once

#include <string>

namespace velmora::base {

// The icon of a message box. The logic picks it; the window layer draws it.
enum class MsgIcon { None, Critical, Question, Exclamation, Information };

// The button set of a message box.
enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel, RetryCancel, AbortRetryIgnore };

// The button the user pressed. A box closed without a choice answers Cancel
// (or No for a Yes/No box, which has no Cancel).
enum class MsgResult { Ok, Cancel, Yes, No, Retry, Abort, Ignore };

// A modal message box. Every fixed text of the program reaches the user
// through this interface, so tests can read the exact text, title and icon.
// It lives at the foundation because the expression engine reports its
// errors through it too and must not depend on the platform layer; the
// platform layer names it platform::MessageBox (platform/messagebox.h).
class MessageBox {
 public:
  virtual ~MessageBox() = default;
  virtual MsgResult Show(const std::string& text, const std::string& title, MsgIcon icon,
                         MsgButtons buttons = MsgButtons::Ok) = 0;
};

// A message box that shows nothing and answers every box with its default
// button. Used where the logic runs without a user (batch runs).
class SilentMessageBox final : public MessageBox {
 public:
  MsgResult Show(const std::string&, const std::string&, MsgIcon, MsgButtons buttons) override {
    switch (buttons) {
      case MsgButtons::YesNo:
      case MsgButtons::YesNoCancel: return MsgResult::Yes;
      case MsgButtons::RetryCancel: return MsgResult::Retry;
      case MsgButtons::AbortRetryIgnore: return MsgResult::Abort;
      default: return MsgResult::Ok;
    }
  }
};

}  // namespace velmora::base
