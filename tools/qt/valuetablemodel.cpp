#include "tools/qt/valuetablemodel.h"

#include <QColor>

#include "platform/qt/qtstring.h"

namespace velmora::tools_qt {

int ValueTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : table_.Rows();
}

int ValueTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : table_.Cols();
}

QVariant ValueTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= table_.Rows() || index.column() >= table_.Cols()) return {};
  switch (role) {
    case Qt::DisplayRole: return qtplatform::ToQString(table_.TextMatrix(index.row(), index.column()));
    case Qt::BackgroundRole: return index.row() == 0 ? QVariant(QColor(0xD6, 0xD6, 0xD6)) : QVariant();
    case Qt::TextAlignmentRole:
      return index.row() == 0 ? QVariant(int(Qt::AlignCenter))
                              : QVariant(int(Qt::AlignLeft | Qt::AlignVCenter));
    default: return {};
  }
}

}  // namespace velmora::tools_qt
