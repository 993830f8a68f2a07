#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::graph {

// A grid of text cells in the manner of a flexible grid control: Rows and
// Cols set its size (cells that still fit keep their text), row 0 is the
// fixed header, and TextMatrix reads or writes one cell. A cell outside the
// grid faults (expr::Fault, invalid call), as the control does.
class ValueTable {
 public:
  ValueTable() = default;
  ValueTable(int rows, int cols) {
    SetCols(cols);
    SetRows(rows);
  }

  int Rows() const { return static_cast<int>(cells_.size()); }
  int Cols() const { return cols_; }
  void SetRows(int rows);
  void SetCols(int cols);
  const std::string& TextMatrix(int row, int col) const;
  void SetTextMatrix(int row, int col, std::string_view text);
  // Empties every cell; the size stays.
  void Clear();

  // Each row as its cells joined by a tab, header first.
  std::vector<std::string> TabLines() const;

 private:
  std::vector<std::vector<std::string>> cells_;
  int cols_ = 0;
};

}  // namespace velmora::graph
