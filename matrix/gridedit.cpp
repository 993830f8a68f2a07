#include "matrix/gridedit.h"

#include <cmath>

#include "complex/complexnumber.h"
#include "expr/fault.h"
#include "expr/numtext.h"
#include "matrix/matrixcontext.h"

namespace velmora::matrix {
namespace {

// The number a dialog box holds, as the program reads a typed number; a
// text too large to hold reads as a value no line number can have.
double Val(const std::string& text) {
  try {
    return expr::TextToNumber(text);
  } catch (const expr::Fault&) {
    return 1e300;
  }
}

}  // namespace

bool DeleteGridRow(Grid& grid, int row) {
  if (row < 0 || row >= grid.Rows()) return false;
  const Grid source = grid;
  grid.SetRows(source.Rows() - 1);
  for (int r = 0; r < grid.Rows(); ++r)
    for (int c = 0; c < grid.Cols(); ++c) grid.SetTextMatrix(r, c, source.TextMatrix(r < row ? r : r + 1, c));
  return true;
}

bool DeleteGridColumn(Grid& grid, int col) {
  if (col < 0 || col >= grid.Cols()) return false;
  const Grid source = grid;
  grid.SetCols(source.Cols() - 1);
  for (int r = 0; r < grid.Rows(); ++r)
    for (int c = 0; c < grid.Cols(); ++c) grid.SetTextMatrix(r, c, source.TextMatrix(r, c < col ? c : c + 1));
  return true;
}

void SetIdentityGrid(Grid& grid) {
  for (int r = 0; r < grid.Rows(); ++r)
    for (int c = 0; c < grid.Cols(); ++c) grid.SetTextMatrix(r, c, r == c ? "1" : "0");
}

std::string MathPadText(const std::string& tabName, const Grid& grid) {
  std::string text = tabName + "\r\n\r\n";
  for (int r = 0; r < grid.Rows(); ++r) {
    text += '|';
    for (int c = 0; c < grid.Cols(); ++c) {
      if (c > 0) text += '\t';
      const std::string& cell = grid.TextMatrix(r, c);
      // A real number without its minus sign gets the blank the sign would take.
      if (expr::IsNumericText(cell) && Val(cell) >= 0) text += ' ';
      text += cell;
    }
    text += "|\r\n";
  }
  return text;
}

std::optional<LinePair> CheckLinePair(const std::string& text1, const std::string& text2, int count,
                                      platform::MessageBox& messages) {
  const double a = Val(text1);
  const double b = Val(text2);
  if (a != std::floor(a) || b != std::floor(b)) {
    messages.Show("Number of row and column must be an integer.", kCalculatorTitle,
                  platform::MsgIcon::Information);
    return std::nullopt;
  }
  if (a < 1 || a > count || b < 1 || b > count) {
    messages.Show(text1 + "; " + text2 + " \r\nInvalid input.", kCalculatorTitle,
                  platform::MsgIcon::Information);
    return LinePair{};
  }
  return LinePair{static_cast<int>(a) - 1, static_cast<int>(b) - 1};
}

LineFactor CheckLineFactor(const std::string& line, const std::string& factor, int count,
                           platform::MessageBox& messages) {
  const double n = Val(line);
  if (n != std::floor(n) || n < 1 || n > count) {
    messages.Show("Invalid input: " + line, kCalculatorTitle, platform::MsgIcon::Critical);
    return LineFactor{};
  }
  return LineFactor{static_cast<int>(n) - 1, factor};
}

}  // namespace velmora::matrix
