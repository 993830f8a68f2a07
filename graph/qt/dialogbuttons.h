#pragma once

class QDialog;
class QHBoxLayout;
class QPushButton;

namespace velmora::graph_qt {

// The OK and Cancel keys of the graph window's small dialogs, right-aligned
// in a row: OK (Command1) is the default key, Cancel (Command2) rejects the
// dialog. The caller connects OK and places the row.
struct OkCancelRow {
  QPushButton* ok = nullptr;
  QPushButton* cancel = nullptr;
  QHBoxLayout* row = nullptr;
};

OkCancelRow MakeOkCancelRow(QDialog* dialog);

}  // namespace velmora::graph_qt
