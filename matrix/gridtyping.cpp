#include "matrix/gridtyping.h"

#include <string>

namespace velmora::matrix {
namespace {

bool IsEntryKey(char key) {
  return key == 'j' || key == 'i' || key == '+' || key == '-' || key == '.' || (key >= '0' && key <= '9');
}

}  // namespace

void GridTyping::EnterCell(Grid& grid, int row, int col) {
  grid.SetRow(row);
  grid.SetCol(col);
  if (!grid.Text().empty()) EditLength = static_cast<std::int16_t>(grid.Text().size());
}

void GridTyping::KeyPress(Grid& grid, char key) {
  if (grid.Rows() == 0 || grid.Cols() == 0) return;
  if (IsEntryKey(key)) {
    grid.SetText(grid.Text() + key);
    ++EditLength;
  } else if (key == kBackspaceKey) {
    if (EditLength >= 1) {
      --EditLength;
      grid.SetText(grid.Text().substr(0, static_cast<std::size_t>(EditLength)));
    }
  } else if (key == kEnterKey) {
    int row = grid.Row();
    int col = grid.Col() + 1;
    if (col >= grid.Cols()) {
      col = 0;
      ++row;
      if (row >= grid.Rows()) row = 0;
    }
    EnterCell(grid, row, col);
  } else if (key == 'C' || key == 'c') {
    grid.SetText(std::string());
  } else if (key == 'J') {
    grid.SetText(grid.Text() + key);
  } else if (key == '=') {
    grid.SetText(grid.Text() + '+');
    ++EditLength;
  }
}

}  // namespace velmora::matrix
