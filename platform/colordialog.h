#pragma once

#include <cstdint>
#include <optional>

namespace velmora::platform {

// The platform's colour chooser. Colours are 24-bit integers with red in the
// low byte and blue in the high byte. Choose returns the picked colour, or
// nothing when the user cancels.
class ColorDialog {
 public:
  virtual ~ColorDialog() = default;
  virtual std::optional<std::uint32_t> Choose(std::uint32_t initial) = 0;
};

}  // namespace velmora::platform
