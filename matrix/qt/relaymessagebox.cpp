#include "matrix/qt/relaymessagebox.h"

namespace velmora::matrix_qt {

platform::MsgResult RelayMessageBox::Show(const std::string& text, const std::string& title,
                                          platform::MsgIcon icon, platform::MsgButtons buttons) {
  if (!holding_) return target_.Show(text, title, icon, buttons);
  held_.push_back(Held{text, title, icon, buttons});
  return base::SilentMessageBox().Show(text, title, icon, buttons);
}

void RelayMessageBox::Release() {
  holding_ = false;
  std::vector<Held> held;
  held.swap(held_);
  for (const Held& box : held) target_.Show(box.text, box.title, box.icon, box.buttons);
}

}  // namespace velmora::matrix_qt
