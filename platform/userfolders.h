#pragma once

#include <string>

namespace velmora::platform {

// The user's data folder by the XDG base directory rules: $XDG_DATA_HOME,
// or ~/.local/share when it is unset or relative (a relative value is
// ignored, as the rules say). The settings file's folder is QSettings'
// business (platform/qt/qtsettingsstore.h).
std::string UserDataFolder();

}  // namespace velmora::platform
