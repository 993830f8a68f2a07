#pragma once

#include <optional>
#include <string>

namespace velmora::platform {

// The platform's open and save dialogs. `filter` uses the program's own
// "Description (*.ext)|*.ext" pairs joined by "|"; an implementation turns
// it into its native form. A save dialog does not ask about replacing an
// existing file: the routines that save ask that themselves, in their own
// words. Both return the chosen path, or nothing when the user cancels.
class FileDialog {
 public:
  virtual ~FileDialog() = default;
  virtual std::optional<std::string> Open(const std::string& title, const std::string& filter,
                                          const std::string& initialDir) = 0;
  virtual std::optional<std::string> Save(const std::string& title, const std::string& filter,
                                          const std::string& initialDir, const std::string& defaultName) = 0;
};

}  // namespace velmora::platform
