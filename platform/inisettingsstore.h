#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/settingsstore.h"

namespace velmora::platform {

// The settings tree in a per-user INI file, in the layout the Qt settings
// class writes (IniFormat): "[Section]" lines with "%XX" escapes in names,
// "name=value" lines, values quoted when they hold ";", "," or "=" or begin
// or end with a blank, a ";" outside quotes starting a comment, and an
// unquoted "," making a list (which reads as an empty text). The file is
// read again at every query, so a change by another process shows at once;
// a write rewrites the file through a temporary file and a rename.
//
// This is the store of the batch front end, which has no Qt; the program
// uses the Qt one on the same file, and both read what the other writes.
class IniSettingsStore final : public SettingsStore {
 public:
  explicit IniSettingsStore(std::string path) : path_(std::move(path)) {}

  std::optional<std::string> Query(std::string_view section, std::string_view name) override;
  void Store(std::string_view section, std::string_view name, std::string_view text) override;

  const std::string& Path() const { return path_; }

  // The escapes of the file format, public for the tests.
  static std::string EscapeName(std::string_view name);
  static std::string UnescapeName(std::string_view escaped);
  static std::string EscapeValue(std::string_view value);
  static std::string UnescapeValue(std::string_view raw);

 private:
  std::string path_;
};

// The user's folders by the XDG base directory rules: $XDG_CONFIG_HOME or
// ~/.config, $XDG_DATA_HOME or ~/.local/share (a relative XDG value is
// ignored, as the rules say).
std::string UserConfigFolder();
std::string UserDataFolder();
// The user's settings file: <config>/Velmora/Velmora.ini, the file the Qt
// settings class uses for organisation and application "Velmora".
std::string UserSettingsPath();

}  // namespace velmora::platform
