#pragma once

#include <string>
#include <vector>

// The plain model of a flexible grid that holds a matrix: a number of rows
// and columns, one text per cell, a current cell, and the two display
// settings the matrix routines touch. A Qt grid binds to it.
namespace velmora::matrix {

class Grid {
 public:
  // flexAlignCenterCenter, the alignment the matrix grids use.
  static constexpr int kAlignCenter = 4;

  Grid() = default;
  Grid(int rows, int cols);

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }
  // Resizing keeps the texts of the cells that remain, as the grid control
  // does. A negative count is an invalid property value and a grid too large
  // to hold is out of memory: both fault (expr::Fault).
  void SetRows(int rows);
  void SetCols(int cols);

  // The current cell; moving outside the grid faults.
  int Row() const { return row_; }
  int Col() const { return col_; }
  void SetRow(int row);
  void SetCol(int col);
  const std::string& Text() const { return TextMatrix(row_, col_); }
  void SetText(std::string text) { SetTextMatrix(row_, col_, std::move(text)); }

  // A cell outside the grid is a subscript fault.
  const std::string& TextMatrix(int row, int col) const;
  void SetTextMatrix(int row, int col, std::string text);

  // Empties every cell; the size stays.
  void Clear();

  int CellAlignment() const { return alignment_; }
  void SetCellAlignment(int alignment) { alignment_ = alignment; }
  bool Redraw() const { return redraw_; }
  void SetRedraw(bool redraw) { redraw_ = redraw; }

  bool operator==(const Grid& other) const {
    return rows_ == other.rows_ && cols_ == other.cols_ && cells_ == other.cells_;
  }

 private:
  void Resize(int rows, int cols);

  int rows_ = 0;
  int cols_ = 0;
  int row_ = 0;
  int col_ = 0;
  int alignment_ = 0;
  bool redraw_ = true;
  std::vector<std::string> cells_;  // row by row
};

}  // namespace velmora::matrix
