#include "matrix/qt/gridmodel.h"

namespace velmora::matrix_qt {

void GridModel::Refresh() {
  beginResetModel();
  endResetModel();
}

void GridModel::CellChanged(int row, int col) {
  const QModelIndex cell = index(row, col);
  emit dataChanged(cell, cell, {Qt::DisplayRole});
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : grid_->Rows(); }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : grid_->Cols(); }

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= grid_->Rows() || index.column() >= grid_->Cols()) return {};
  switch (role) {
    case Qt::DisplayRole: return QString::fromStdString(grid_->TextMatrix(index.row(), index.column()));
    case Qt::TextAlignmentRole: return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    default: return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation, int role) const {
  // Rows and columns are counted from 1, as the dialogs that pick them do.
  if (role == Qt::DisplayRole) return section + 1;
  return {};
}

}  // namespace velmora::matrix_qt
