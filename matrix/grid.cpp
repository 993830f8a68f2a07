#include "matrix/grid.h"

#include "expr/fault.h"

namespace velmora::matrix {
namespace {

using expr::Fault;

// Far beyond any matrix the calculator makes (50 x 50), but a file may name
// any size.
constexpr long kMaxCells = 1L << 20;

}  // namespace

Grid::Grid(int rows, int cols) { Resize(rows, cols); }

void Grid::Resize(int rows, int cols) {
  if (rows < 0 || cols < 0) throw Fault(Fault::kInvalidCall);
  if (static_cast<long>(rows) * cols > kMaxCells) throw Fault(Fault::kOutOfMemory);
  std::vector<std::string> cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
  for (int r = 0; r < rows && r < rows_; ++r)
    for (int c = 0; c < cols && c < cols_; ++c)
      cells[static_cast<std::size_t>(r * cols + c)] =
          std::move(cells_[static_cast<std::size_t>(r * cols_ + c)]);
  cells_ = std::move(cells);
  rows_ = rows;
  cols_ = cols;
  if (row_ >= rows_) row_ = rows_ > 0 ? rows_ - 1 : 0;
  if (col_ >= cols_) col_ = cols_ > 0 ? cols_ - 1 : 0;
}

void Grid::SetRows(int rows) { Resize(rows, cols_); }
void Grid::SetCols(int cols) { Resize(rows_, cols); }

void Grid::SetRow(int row) {
  if (row < 0 || row >= rows_) throw Fault(Fault::kSubscriptOutOfRange);
  row_ = row;
}

void Grid::SetCol(int col) {
  if (col < 0 || col >= cols_) throw Fault(Fault::kSubscriptOutOfRange);
  col_ = col;
}

const std::string& Grid::TextMatrix(int row, int col) const {
  if (row < 0 || col < 0 || row >= rows_ || col >= cols_) throw Fault(Fault::kSubscriptOutOfRange);
  return cells_[static_cast<std::size_t>(row * cols_ + col)];
}

void Grid::SetTextMatrix(int row, int col, std::string text) {
  if (row < 0 || col < 0 || row >= rows_ || col >= cols_) throw Fault(Fault::kSubscriptOutOfRange);
  cells_[static_cast<std::size_t>(row * cols_ + col)] = std::move(text);
}

void Grid::Clear() {
  for (auto& cell : cells_) cell.clear();
}

}  // namespace velmora::matrix
