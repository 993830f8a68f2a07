#pragma once

#include <optional>
#include <string>

namespace velmora::platform {

// A modal one-line input box with a prompt, a title and a default answer.
// Ask returns the typed text, or nothing when the user cancels. Routines that
// treat a cancel as an empty answer (as most of the program does) use value_or("").
class InputBox {
 public:
  virtual ~InputBox() = default;
  virtual std::optional<std::string> Ask(const std::string& prompt, const std::string& title,
                                         const std::string& defaultText) = 0;
};

}  // namespace velmora::platform
