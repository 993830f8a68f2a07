#pragma once

#include <array>

#include "platform/settingsstore.h"

namespace velmora::app {

// The layout of the four toolbar bands as the settings keep it: the number
// of rows (band 3 starts a row of its own unless `rows` is exactly 1), which
// bands are shown, and each band's width in twips (15 to a pixel at 96 dots
// per inch).
struct ToolbarLayout {
  int rows = 1;
  std::array<bool, 4> visible{true, true, false, true};
  std::array<int, 4> widthTwips{1695, 3600, 1000, 2340};
};

// Reads TB\Rows, TB\TB1..TB4 and TBW\TB1..TB4. An absent value reads as its
// default; a value that is no truth value or number leaves that band's
// default as it is.
ToolbarLayout LoadToolbars(platform::SettingsStore& store);

// Writes the same keys ("True"/"False" for the bands). The frame calls it
// only when it closes maximized.
void SaveToolbars(platform::SettingsStore& store, const ToolbarLayout& layout);

// Twips and pixels at 96 dots per inch.
int TwipsToPixels(int twips);
int PixelsToTwips(int pixels);

}  // namespace velmora::app
