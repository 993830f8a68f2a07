#include "graph/valuetable.h"

#include "expr/fault.h"

namespace velmora::graph {

void ValueTable::SetRows(int rows) {
  if (rows < 0) throw expr::Fault(expr::Fault::kInvalidCall);
  cells_.resize(static_cast<std::size_t>(rows), std::vector<std::string>(static_cast<std::size_t>(cols_)));
}

void ValueTable::SetCols(int cols) {
  if (cols < 0) throw expr::Fault(expr::Fault::kInvalidCall);
  cols_ = cols;
  for (auto& row : cells_) row.resize(static_cast<std::size_t>(cols));
}

const std::string& ValueTable::TextMatrix(int row, int col) const {
  if (row < 0 || row >= Rows() || col < 0 || col >= cols_) throw expr::Fault(expr::Fault::kInvalidCall);
  return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
}

void ValueTable::SetTextMatrix(int row, int col, std::string_view text) {
  if (row < 0 || row >= Rows() || col < 0 || col >= cols_) throw expr::Fault(expr::Fault::kInvalidCall);
  cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] = std::string(text);
}

void ValueTable::Clear() {
  for (auto& row : cells_) {
    for (auto& cell : row) cell.clear();
  }
}

std::vector<std::string> ValueTable::TabLines() const {
  std::vector<std::string> lines;
  lines.reserve(cells_.size());
  for (const auto& row : cells_) {
    std::string line;
    for (std::size_t c = 0; c < row.size(); ++c) {
      if (c > 0) line += '\t';
      line += row[c];
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace velmora::graph
