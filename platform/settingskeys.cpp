#include "platform/settingskeys.h"

#include <iterator>
#include <stdexcept>

namespace velmora::platform {
namespace {

using namespace keys;

// Colours are 24-bit integers with blue in the high byte, stored as decimal
// text: 0xF5F5F5 = 16119285, 0xC08000 = 12615680, 0xBFBFBF = 12566463.
constexpr SettingKey kKeys[] = {
    {kGrid, grid::kScaleX, "1", {}, "grid step of the X axis, in user units"},
    {kGrid, grid::kScaleY, "1", {}, "grid step of the Y axis"},
    {kGrid, grid::kScaleX1, "1", {}, "first number of the scale note"},
    {kGrid, grid::kScaleY1, "1", {}, "second number of the scale note"},
    {kGrid, grid::kSkala, "0", {}, "show the scale note"},
    {kGrid, grid::kAxes, "0", {}, "hide the grid, axes only"},
    {kGrid, grid::kOzna, "0", {}, "axis names and arrows, transparent text"},
    {kGrid, grid::kCrte, "0", {}, "ticks on the axes instead of grid lines"},
    {kGrid, grid::kRnd, "0", {}, "a random colour for each draw"},
    {kGrid, grid::kAutored, "1", {}, "redraw the functions after a change of view"},
    {kGrid, grid::kPolarP, "0", {}, "polar graph paper"},
    {kGrid, grid::kBrojX, "0", {}, "numbers along the X axis"},
    {kGrid, grid::kBrojY, "0", {}, "numbers along the Y axis"},
    {kGrid, grid::kBrojBoja, "1", "0", "axis numbers in the grid colour"},
    {kGrid, grid::kTrigo, "0", {}, "trigonometric graph paper"},
    {kGrid, grid::kDash, "0", {}, "dotted grid lines"},
    {kGrid, grid::kRam, "0", {}, "frame round copies and prints"},
    {kBoje, boje::kPozadina, "16119285", {}, "background colour"},
    {kBoje, boje::kGrafik, "12615680", {}, "graph colour"},
    {kBoje, boje::kGrid, "12566463", {}, "grid colour"},
    {kBoje, boje::kOse, "0", {}, "axes colour"},
    {kPrint, print::kLevo, "1", {}, "left print margin"},
    {kPrint, print::kDesno, "1", {}, "right print margin"},
    {kPrint, print::kGore, "1", {}, "top print margin"},
    {kPrint, print::kDole, "1", {}, "bottom print margin"},
    {kMpad, mpad::kFont, "Arial", {}, "MathPad font name"},
    {kMpad, mpad::kSize, "10", {}, "MathPad font size"},
    {kTB, tb::kRows, "1", {}, "rows of the toolbar bands"},
    {kTB, tb::kBands[0], "True", {}, "band 1 visible"},
    {kTB, tb::kBands[1], "True", {}, "band 2 visible"},
    {kTB, tb::kBands[2], "False", {}, "band 3 visible"},
    {kTB, tb::kBands[3], "True", {}, "band 4 visible"},
    {kTBW, tb::kBands[0], "1695", {}, "width of band 1 in twips"},
    {kTBW, tb::kBands[1], "3600", {}, "width of band 2 in twips"},
    {kTBW, tb::kBands[2], "1000", {}, "width of band 3 in twips"},
    {kTBW, tb::kBands[3], "2340", {}, "width of band 4 in twips"},
    {kRecentFunctions, recent::kEntries[0], "", {}, "newest recent function"},
    {kRecentFunctions, recent::kEntries[1], "", {}, "recent function 2"},
    {kRecentFunctions, recent::kEntries[2], "", {}, "recent function 3"},
    {kRecentFunctions, recent::kEntries[3], "", {}, "recent function 4"},
    {kRecentFunctions, recent::kEntries[4], "", {}, "recent function 5"},
    {kRecentFunctions, recent::kEntries[5], "", {}, "recent function 6"},
    {kRecentFunctions, recent::kEntries[6], "", {}, "recent function 7"},
    {kRecentFunctions, recent::kEntries[7], "", {}, "oldest recent function"},
    {kMathPad, recent::kEntries[0], "", {}, "newest recent MathPad file"},
    {kMathPad, recent::kEntries[1], "", {}, "recent MathPad file 2"},
    {kMathPad, recent::kEntries[2], "", {}, "recent MathPad file 3"},
    {kMathPad, recent::kEntries[3], "", {}, "recent MathPad file 4"},
    {kMathPad, recent::kEntries[4], "", {}, "recent MathPad file 5"},
    {kMathPad, recent::kEntries[5], "", {}, "recent MathPad file 6"},
    {kMathPad, recent::kEntries[6], "", {}, "recent MathPad file 7"},
    {kMathPad, recent::kEntries[7], "", {}, "oldest recent MathPad file"},
    {kMat, mat::kFajl, "False", {}, "the .mcf file type has been registered"},
    {kFrame, frame::kGeometry, "", {}, "place, size and maximized state of the main window"},
};

}  // namespace

std::span<const SettingKey> SettingKeys() { return kKeys; }

std::string_view keys::BandName(int band) {
  if (band < 1 || band > static_cast<int>(std::size(tb::kBands))) throw std::out_of_range("toolbar band");
  return tb::kBands[band - 1];
}

std::string_view keys::RecentName(int i) {
  if (i < 1 || i > static_cast<int>(std::size(recent::kEntries))) throw std::out_of_range("recent entry");
  return recent::kEntries[i - 1];
}

const SettingKey* FindKey(std::string_view section, std::string_view name) {
  for (const auto& key : kKeys) {
    if (key.section == section && key.name == name) return &key;
  }
  return nullptr;
}

std::string_view DefaultOf(std::string_view section, std::string_view name, SettingReader reader) {
  const SettingKey* key = FindKey(section, name);
  if (key == nullptr) return {};
  if (reader == SettingReader::PlottingOptions && !key->optionsDefault.empty()) return key->optionsDefault;
  return key->defaultValue;
}

std::string ReadSetting(SettingsStore& store, std::string_view section, std::string_view name,
                        SettingReader reader) {
  return GetRegValue(store, section, name, DefaultOf(section, name, reader));
}

}  // namespace velmora::platform
