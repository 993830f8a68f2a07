#pragma once

#include <string_view>

#include "expr/fault.h"
#include "expr/numtext.h"
#include "platform/settingskeys.h"

namespace velmora::graph {

// A setting read as a number: the stored text (or the table's default when
// the value is absent) by the leading-number parse of expr/numtext.h, so a
// text that holds no number reads 0, and so does a number beyond the range
// of a double. The settings store gives text only and stays below expr/;
// this is where the two meet.
inline double ReadSettingNumber(platform::SettingsStore& store, std::string_view section,
                                std::string_view name,
                                platform::SettingReader reader = platform::SettingReader::Window) {
  try {
    return expr::TextToNumber(platform::ReadSetting(store, section, name, reader));
  } catch (const expr::Fault&) {
    return 0.0;
  }
}

}  // namespace velmora::graph
