#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/settingsstore.h"

namespace velmora::platform {

// One value of the settings tree with the default its readers use.
struct SettingKey {
  std::string_view section;
  std::string_view name;
  std::string_view defaultValue;  // as the graph window and the frame read it
  // The default of the Plotting Options dialog where it differs (empty when
  // it is the same); only BrojBoja has one, and the difference is kept.
  std::string_view optionsDefault;
  std::string_view meaning;
};

// Every value the program reads or writes, in the order of its sections.
std::span<const SettingKey> SettingKeys();

// Who reads a value: the Plotting Options dialog has its own default for BrojBoja.
enum class SettingReader { Window, PlottingOptions };

// The default of a key from the table; empty for a key that is not in it.
std::string_view DefaultOf(std::string_view section, std::string_view name,
                           SettingReader reader = SettingReader::Window);

// GetRegValue and GetRegNumber with the table's default.
std::string ReadSetting(SettingsStore& store, std::string_view section, std::string_view name,
                        SettingReader reader = SettingReader::Window);
double ReadSettingNumber(SettingsStore& store, std::string_view section, std::string_view name,
                         SettingReader reader = SettingReader::Window);

}  // namespace velmora::platform
