#pragma once

#include <vector>

#include "platform/messagebox.h"

namespace velmora::matrix_qt {

// The calculator's message box. Normally it passes every box on; while a
// calculation runs on a worker thread it keeps the boxes (answering each
// with its default button, as only OK boxes come from a calculation) and
// shows them on the window's thread when the calculation is over.
class RelayMessageBox final : public platform::MessageBox {
 public:
  explicit RelayMessageBox(platform::MessageBox& target) : target_(target) {}

  platform::MsgResult Show(const std::string& text, const std::string& title, platform::MsgIcon icon,
                           platform::MsgButtons buttons) override;

  // From now on the boxes are kept.
  void Hold() { holding_ = true; }
  // Shows the kept boxes in order and passes boxes on again.
  void Release();

 private:
  struct Held {
    std::string text;
    std::string title;
    platform::MsgIcon icon;
    platform::MsgButtons buttons;
  };
  platform::MessageBox& target_;
  bool holding_ = false;
  std::vector<Held> held_;
};

}  // namespace velmora::matrix_qt
