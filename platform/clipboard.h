#pragma once

#include <string>

namespace velmora::platform {

// The system clipboard as the calculators' Copy buttons use it: a result
// text replaces whatever the clipboard held.
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void SetText(const std::string& text) = 0;
};

}  // namespace velmora::platform
