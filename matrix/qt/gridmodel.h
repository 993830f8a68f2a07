#pragma once

#include <QAbstractTableModel>

#include "matrix/grid.h"

namespace velmora::matrix_qt {

// A matrix grid of the calculator as a Qt table model: one cell a text,
// centred, read straight from the grid it binds. The calculator changes its
// grids itself (a calculation's results are copied into them, so a grid's
// address never changes); Refresh tells the views.
class GridModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  GridModel(matrix::Grid& grid, QObject* parent = nullptr) : QAbstractTableModel(parent), grid_(&grid) {}

  matrix::Grid& Grid() const { return *grid_; }
  // Size and texts may have changed.
  void Refresh();
  // One cell's text changed.
  void CellChanged(int row, int col);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  matrix::Grid* grid_;
};

}  // namespace velmora::matrix_qt
