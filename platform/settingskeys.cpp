#include "platform/settingskeys.h"

namespace velmora::platform {
namespace {

// Colours are 24-bit integers with blue in the high byte, stored as decimal
// text: 0xF5F5F5 = 16119285, 0xC08000 = 12615680, 0xBFBFBF = 12566463.
constexpr SettingKey kKeys[] = {
    {"Grid", "ScaleX", "1", {}, "grid step of the X axis, in user units"},
    {"Grid", "ScaleY", "1", {}, "grid step of the Y axis"},
    {"Grid", "ScaleX1", "1", {}, "first number of the scale note"},
    {"Grid", "ScaleY1", "1", {}, "second number of the scale note"},
    {"Grid", "Skala", "0", {}, "show the scale note"},
    {"Grid", "Axes", "0", {}, "hide the grid, axes only"},
    {"Grid", "Ozna", "0", {}, "axis names and arrows, transparent text"},
    {"Grid", "Crte", "0", {}, "ticks on the axes instead of grid lines"},
    {"Grid", "Rnd", "0", {}, "a random colour for each draw"},
    {"Grid", "Autored", "1", {}, "redraw the functions after a change of view"},
    {"Grid", "PolarP", "0", {}, "polar graph paper"},
    {"Grid", "BrojX", "0", {}, "numbers along the X axis"},
    {"Grid", "BrojY", "0", {}, "numbers along the Y axis"},
    {"Grid", "BrojBoja", "1", "0", "axis numbers in the grid colour"},
    {"Grid", "Trigo", "0", {}, "trigonometric graph paper"},
    {"Grid", "Dash", "0", {}, "dotted grid lines"},
    {"Grid", "Ram", "0", {}, "frame round copies and prints"},
    {"Boje", "Pozadina", "16119285", {}, "background colour"},
    {"Boje", "Grafik", "12615680", {}, "graph colour"},
    {"Boje", "Grid", "12566463", {}, "grid colour"},
    {"Boje", "Ose", "0", {}, "axes colour"},
    {"Print", "levo", "1", {}, "left print margin"},
    {"Print", "desno", "1", {}, "right print margin"},
    {"Print", "gore", "1", {}, "top print margin"},
    {"Print", "dole", "1", {}, "bottom print margin"},
    {"mpad", "font", "Arial", {}, "MathPad font name"},
    {"mpad", "size", "10", {}, "MathPad font size"},
    {"TB", "Rows", "1", {}, "rows of the toolbar bands"},
    {"TB", "TB1", "True", {}, "band 1 visible"},
    {"TB", "TB2", "True", {}, "band 2 visible"},
    {"TB", "TB3", "False", {}, "band 3 visible"},
    {"TB", "TB4", "True", {}, "band 4 visible"},
    {"TBW", "TB1", "1695", {}, "width of band 1 in twips"},
    {"TBW", "TB2", "3600", {}, "width of band 2 in twips"},
    {"TBW", "TB3", "1000", {}, "width of band 3 in twips"},
    {"TBW", "TB4", "2340", {}, "width of band 4 in twips"},
    {"Recent Functions", "Recent1", "", {}, "newest recent function"},
    {"Recent Functions", "Recent2", "", {}, "recent function 2"},
    {"Recent Functions", "Recent3", "", {}, "recent function 3"},
    {"Recent Functions", "Recent4", "", {}, "recent function 4"},
    {"Recent Functions", "Recent5", "", {}, "recent function 5"},
    {"Recent Functions", "Recent6", "", {}, "recent function 6"},
    {"Recent Functions", "Recent7", "", {}, "recent function 7"},
    {"Recent Functions", "Recent8", "", {}, "oldest recent function"},
    {"MathPad", "Recent1", "", {}, "newest recent MathPad file"},
    {"MathPad", "Recent2", "", {}, "recent MathPad file 2"},
    {"MathPad", "Recent3", "", {}, "recent MathPad file 3"},
    {"MathPad", "Recent4", "", {}, "recent MathPad file 4"},
    {"MathPad", "Recent5", "", {}, "recent MathPad file 5"},
    {"MathPad", "Recent6", "", {}, "recent MathPad file 6"},
    {"MathPad", "Recent7", "", {}, "recent MathPad file 7"},
    {"MathPad", "Recent8", "", {}, "oldest recent MathPad file"},
    {"Mat", "Fajl", "False", {}, "the .mcf file type has been registered"},
};

}  // namespace

std::span<const SettingKey> SettingKeys() { return kKeys; }

std::string_view DefaultOf(std::string_view section, std::string_view name, SettingReader reader) {
  for (const auto& key : kKeys) {
    if (key.section != section || key.name != name) continue;
    if (reader == SettingReader::PlottingOptions && !key.optionsDefault.empty()) return key.optionsDefault;
    return key.defaultValue;
  }
  return {};
}

std::string ReadSetting(SettingsStore& store, std::string_view section, std::string_view name,
                        SettingReader reader) {
  return GetRegValue(store, section, name, DefaultOf(section, name, reader));
}

double ReadSettingNumber(SettingsStore& store, std::string_view section, std::string_view name,
                         SettingReader reader) {
  return GetRegNumber(store, section, name, DefaultOf(section, name, reader));
}

}  // namespace velmora::platform
