#pragma once

#include "platform/messagebox.h"

namespace velmora::qtplatform {

// Message boxes as QMessageBox: the program's exact title, text, icon and
// buttons, parented to the active window. Escape answers Cancel, or No in a
// Yes/No box.
class QtMessageBox final : public platform::MessageBox {
 public:
  platform::MsgResult Show(const std::string& text, const std::string& title, platform::MsgIcon icon,
                           platform::MsgButtons buttons) override;
};

}  // namespace velmora::qtplatform
