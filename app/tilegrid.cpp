#include "app/tilegrid.h"

#include <cmath>

namespace velmora::app {

std::vector<TileCell> TileGrid(int count, int width, int height) {
  std::vector<TileCell> cells;
  if (count < 1 || width < 1 || height < 1) return cells;
  // Columns first: on a screen wider than high, 12 windows lie 4 x 3.
  const int columns = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(count))));
  const int rows = (count + columns - 1) / columns;
  cells.reserve(static_cast<std::size_t>(count));
  for (int row = 0; row < rows; ++row) {
    const int inRow = row + 1 < rows ? columns : count - columns * (rows - 1);
    // Edges from the whole area, so the rounding never leaves a gap.
    const int top = height * row / rows;
    const int bottom = height * (row + 1) / rows;
    for (int column = 0; column < inRow; ++column) {
      const int left = width * column / inRow;
      const int right = width * (column + 1) / inRow;
      cells.push_back({left, top, right - left, bottom - top});
    }
  }
  return cells;
}

}  // namespace velmora::app
