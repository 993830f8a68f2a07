#include "platform/settingsstore.h"

#include <exception>

namespace velmora::platform {

std::string KeyPath(std::string_view prefix, std::string_view product, std::string_view section) {
  std::string path;
  for (const std::string_view part : {prefix, product, section}) {
    if (part.empty()) continue;
    if (!path.empty()) path += '\\';
    path += part;
  }
  return path;
}

std::string GetRegValue(SettingsStore& store, std::string_view section, std::string_view name,
                        std::string_view defaultText) {
  try {
    if (auto value = store.Query(section, name)) return std::move(*value);
  } catch (const std::exception&) {
    // A store that fails to answer reads as an absent value.
  }
  return std::string(defaultText);
}

void SetRegValue(SettingsStore& store, std::string_view section, std::string_view name,
                 std::string_view text) {
  try {
    store.Store(section, name, text);
  } catch (const std::exception&) {
    // A failed write is ignored, as the store promises.
  }
}

void SetRegValue(SettingsStore& store, std::string_view section, std::string_view name, std::int32_t number) {
  SetRegValue(store, section, name, std::to_string(number));
}

}  // namespace velmora::platform
