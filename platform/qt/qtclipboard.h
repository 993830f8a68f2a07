#pragma once

#include "platform/clipboard.h"

namespace velmora::qtplatform {

// The application's QClipboard.
class QtClipboard final : public platform::Clipboard {
 public:
  void SetText(const std::string& text) override;
};

}  // namespace velmora::qtplatform
