#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <QSettings>

#include "platform/settingsstore.h"

namespace velmora::qtplatform {

// The settings tree on QSettings in IniFormat, the one store of the program
// and of velmora-cli: by default the user's file under the config folder for
// organisation and application "Velmora" ($XDG_CONFIG_HOME/Velmora/Velmora.ini,
// ~/.config/... without it), or a given file. Sections are groups and values
// are text. QSettings keeps a copy in memory; every read syncs first, so a
// change written by another window or process is seen at the next read.
// Needs QtCore only, no QCoreApplication.
class QtSettingsStore final : public platform::SettingsStore {
 public:
  QtSettingsStore();
  explicit QtSettingsStore(const QString& iniFile);
  ~QtSettingsStore() override;

  std::optional<std::string> Query(std::string_view section, std::string_view name) override;
  void Store(std::string_view section, std::string_view name, std::string_view text) override;

  QString FileName() const;
  // The outcome of the last write: AccessError when the file could not be
  // replaced (the old one then stays), FormatError for an unreadable file.
  QSettings::Status Status() const;

 private:
  std::unique_ptr<QSettings> settings_;
};

}  // namespace velmora::qtplatform
