#pragma once

#include "platform/inputbox.h"

namespace velmora::qtplatform {

// Input boxes as QInputDialog: one line with the prompt, the title and the
// default answer, parented to the active window.
class QtInputBox final : public platform::InputBox {
 public:
  std::optional<std::string> Ask(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) override;
};

}  // namespace velmora::qtplatform
