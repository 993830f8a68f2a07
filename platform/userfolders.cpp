#include "platform/userfolders.h"

#include <cstdlib>

namespace velmora::platform {

std::string UserDataFolder() {
  const char* value = std::getenv("XDG_DATA_HOME");
  if (value != nullptr && value[0] == '/') return value;
  const char* home = std::getenv("HOME");
  return (home != nullptr ? std::string(home) : std::string(".")) + "/.local/share";
}

}  // namespace velmora::platform
