#pragma once

#include <QAbstractTableModel>

#include "graph/valuetable.h"

namespace velmora::tools_qt {

// A value table as a view reads it: every cell of the grid, row 0 the grey
// header row, read straight from the logic's table, so a table of tens of
// thousands of rows shows at once.
class ValueTableModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  ValueTableModel(const graph::ValueTable& table, QObject* parent)
      : QAbstractTableModel(parent), table_(table) {}

  // The table changed: the view reads it again.
  void Refresh() {
    beginResetModel();
    endResetModel();
  }

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const graph::ValueTable& table_;
};

}  // namespace velmora::tools_qt
