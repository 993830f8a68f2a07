#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <QSettings>

#include "platform/settingsstore.h"

namespace velmora::qtplatform {

// The settings tree on QSettings in IniFormat: by default the user's file
// under the config folder for organisation and application "Velmora"
// (~/.config/Velmora/Velmora.ini), or a given file. Sections are groups and
// values are text. QSettings keeps a copy in memory; every read syncs first,
// so a change written by another window or process is seen at the next read.
class QtSettingsStore final : public platform::SettingsStore {
 public:
  QtSettingsStore();
  explicit QtSettingsStore(const QString& iniFile);
  ~QtSettingsStore() override;

  std::optional<std::string> Query(std::string_view section, std::string_view name) override;
  void Store(std::string_view section, std::string_view name, std::string_view text) override;

  QString FileName() const;

 private:
  std::unique_ptr<QSettings> settings_;
};

}  // namespace velmora::qtplatform
