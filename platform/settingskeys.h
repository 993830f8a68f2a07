#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/settingsstore.h"

namespace velmora::platform {

// The names of the settings tree, one constant for each section and each
// value name: every read and write names its key through these, and the
// key table below is made of them. The names are the program's own words
// and are kept exactly, case and language included.
namespace keys {

// Sections.
inline constexpr std::string_view kGrid = "Grid";                         // graph paper, plotting options
inline constexpr std::string_view kBoje = "Boje";                         // colours of the graph window
inline constexpr std::string_view kPrint = "Print";                       // print margins
inline constexpr std::string_view kMpad = "mpad";                         // MathPad's font
inline constexpr std::string_view kTB = "TB";                             // toolbar rows and bands shown
inline constexpr std::string_view kTBW = "TBW";                           // toolbar band widths
inline constexpr std::string_view kRecentFunctions = "Recent Functions";  // recent function list
inline constexpr std::string_view kMathPad = "MathPad";                   // recent MathPad files
inline constexpr std::string_view kMat = "Mat";                           // matrix calculator
inline constexpr std::string_view kFrame = "Frame";

// Values of Grid.
namespace grid {
inline constexpr std::string_view kScaleX = "ScaleX";      // grid step in X
inline constexpr std::string_view kScaleY = "ScaleY";      // grid step in Y
inline constexpr std::string_view kScaleX1 = "ScaleX1";    // scale note, first number
inline constexpr std::string_view kScaleY1 = "ScaleY1";    // scale note, second number
inline constexpr std::string_view kSkala = "Skala";        // show the scale note
inline constexpr std::string_view kAxes = "Axes";          // hide the grid, axes only
inline constexpr std::string_view kOzna = "Ozna";          // axis names and arrows
inline constexpr std::string_view kCrte = "Crte";          // ticks instead of grid lines
inline constexpr std::string_view kRnd = "Rnd";            // a random colour for each draw
inline constexpr std::string_view kAutored = "Autored";    // redraw the functions after a change
inline constexpr std::string_view kPolarP = "PolarP";      // polar graph paper
inline constexpr std::string_view kBrojX = "BrojX";        // numbers along X
inline constexpr std::string_view kBrojY = "BrojY";        // numbers along Y
inline constexpr std::string_view kBrojBoja = "BrojBoja";  // axis numbers in the grid colour
inline constexpr std::string_view kTrigo = "Trigo";        // trigonometric graph paper
inline constexpr std::string_view kDash = "Dash";          // dotted grid lines
inline constexpr std::string_view kRam = "Ram";            // frame round copies and prints
}  // namespace grid

// Values of Boje: the four colours.
namespace boje {
inline constexpr std::string_view kPozadina = "Pozadina";  // background
inline constexpr std::string_view kGrafik = "Grafik";      // graph
inline constexpr std::string_view kGrid = "Grid";          // grid
inline constexpr std::string_view kOse = "Ose";            // axes
}  // namespace boje

// Values of Print: the margins.
namespace print {
inline constexpr std::string_view kLevo = "levo";    // left
inline constexpr std::string_view kDesno = "desno";  // right
inline constexpr std::string_view kGore = "gore";    // top
inline constexpr std::string_view kDole = "dole";    // bottom
}  // namespace print

// Values of mpad.
namespace mpad {
inline constexpr std::string_view kFont = "font";
inline constexpr std::string_view kSize = "size";
}  // namespace mpad

// Values of TB and TBW: the row count (TB only) and one value per band,
// TB1 to TB4 in both sections.
namespace tb {
inline constexpr std::string_view kRows = "Rows";
inline constexpr std::string_view kBands[] = {"TB1", "TB2", "TB3", "TB4"};
}  // namespace tb

// Values of Recent Functions and MathPad: Recent1 (newest) to Recent8.
namespace recent {
inline constexpr std::string_view kEntries[] = {"Recent1", "Recent2", "Recent3", "Recent4",
                                                "Recent5", "Recent6", "Recent7", "Recent8"};
}  // namespace recent

// Values of Mat.
namespace mat {
inline constexpr std::string_view kFajl = "Fajl";  // the .mcf file type is registered
}  // namespace mat

// Values of Frame: the main window's own place, size and maximized state.
namespace frame {
inline constexpr std::string_view kGeometry = "Geometry";  // Qt's geometry record as base64 text
}  // namespace frame

// The value name of toolbar band `band` (1 to 4) and of recent entry `i`
// (1 to 8); out of range is a programming error and throws.
std::string_view BandName(int band);
std::string_view RecentName(int i);

}  // namespace keys

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

// The entry of a key in the table, or null for a section and name that are
// not in it (a misspelt key: the test fakes fail on it).
const SettingKey* FindKey(std::string_view section, std::string_view name);

// The default of a key from the table; empty for a key that is not in it.
std::string_view DefaultOf(std::string_view section, std::string_view name,
                           SettingReader reader = SettingReader::Window);

// GetRegValue with the table's default. A number is read from the text by
// the caller (graph/settingnumber.h), so that this folder stays below expr/.
std::string ReadSetting(SettingsStore& store, std::string_view section, std::string_view name,
                        SettingReader reader = SettingReader::Window);

}  // namespace velmora::platform
