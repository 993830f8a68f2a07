#pragma once

#include <vector>

namespace velmora::app {

// One window's place in an area, in pixels from the area's top left.
struct TileCell {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  bool operator==(const TileCell&) const = default;
};

// Window > Tile: `count` windows side by side in rows that fill an area of
// `width` x `height` pixels exactly, none outside it and none over another.
// A row holds the square root of the count, rounded up, of windows (12
// windows lie 4 x 3), and the last row's windows share its whole width.
// Cells are listed row by row, left to right. No cells for a count below 1 or an empty area.
std::vector<TileCell> TileGrid(int count, int width, int height);

}  // namespace velmora::app
