#pragma once

#include <optional>
#include <string>

#include "matrix/grid.h"
#include "platform/messagebox.h"

// Edits of a whole grid that the Matrix Calculator's Edit and Tools menus
// make, and the checks of the small dialogs that pick rows and columns.
namespace velmora::matrix {

// The grid without one row (column), 0-based; an index outside the grid
// leaves it as it is and answers false.
bool DeleteGridRow(Grid& grid, int row);
bool DeleteGridColumn(Grid& grid, int col);

// "1" on the diagonal, "0" elsewhere; the size stays.
void SetIdentityGrid(Grid& grid);

// The text "Edit matrix in MathPad..." hands over: the tab's name, a blank
// line, then one line a row, "|", the cells separated by tabs with a blank
// before each non-negative real number, "|". Lines end with CR LF.
std::string MathPadText(const std::string& tabName, const Grid& grid);

// The answer of the swap and submit dialog: two 0-based indices, or -1 in
// both after a cancel or a refused entry.
struct LinePair {
  int first = -1;
  int second = -1;
};

// The check of the dialog's OK: both texts whole numbers ("Number of row and
// column must be an integer." otherwise, and the dialog stays open: nothing
// comes back), then both 1 to `count`; out of range shows the two texts and
// "Invalid input." and answers -1, -1.
std::optional<LinePair> CheckLinePair(const std::string& text1, const std::string& text2, int count,
                                      platform::MessageBox& messages);

// The answer of the multiply dialog: a 0-based line and the factor's text,
// or -1 and an empty factor.
struct LineFactor {
  int index = -1;
  std::string factor;
};

// The check of the multiply dialog's OK: a line number 1 to `count`; any
// other shows "Invalid input: " and the text (critical) and answers -1.
LineFactor CheckLineFactor(const std::string& line, const std::string& factor, int count,
                           platform::MessageBox& messages);

}  // namespace velmora::matrix
