#pragma once

#include <cstdint>

#include "matrix/grid.h"

// Typing into an operand grid. The cell text is not checked as it is typed;
// the keys below are the only ones that change it.
namespace velmora::matrix {

inline constexpr char kBackspaceKey = 8;
inline constexpr char kEnterKey = 13;

// The state of the operand grid being typed into: the length of the text in
// the current cell as backspace counts it.
struct GridTyping {
  std::int16_t EditLength = 0;

  // Makes (row, col) the current cell; entering a cell that holds text sets
  // EditLength to its length, an empty cell leaves it as it was.
  void EnterCell(Grid& grid, int row, int col);

  // One key press in the current cell:
  //   "j", "i", "+", "-", ".", digits: appended, EditLength + 1;
  //   backspace: the text is cut to EditLength - 1 characters (EditLength
  //     never goes below 0);
  //   Enter: the next cell, left to right, then the next row, then back to
  //     cell (0, 0);
  //   "C", "c": the cell is emptied;
  //   "J": appended without raising EditLength, so a later backspace cuts
  //     one character too many;
  //   "=": taken as "+", which spares the Shift key;
  //   anything else: nothing.
  void KeyPress(Grid& grid, char key);
};

}  // namespace velmora::matrix
