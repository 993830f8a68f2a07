#pragma once

#include <QTableView>

#include "matrix/gridtyping.h"
#include "matrix/qt/gridmodel.h"

class QMenu;

namespace velmora::matrix_qt {

// A matrix grid on screen. The operand grids take typing by the calculator's
// keys (GridTyping); the result grids are read-only. Every grid has the
// right-click menu "Copy Cell", "Paste to Cell", "Clear Cell".
class GridView final : public QTableView {
  Q_OBJECT

 public:
  GridView(matrix::Grid& grid, bool typing, QWidget* parent = nullptr);

  GridModel& Model() const { return *model_; }
  // The model changed: the view follows, and with `autoResize` the columns
  // fit their longest cell.
  void Refresh();
  void SetAutoResize(bool on);
  // The key the grid takes, as its key code: a character, 8 or 13.
  void Type(char key);
  QMenu* CellMenu() const { return cellMenu_; }

 signals:
  // A cell became current by the mouse or the keyboard.
  void CellEntered();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void FitColumns();

  GridModel* model_;
  matrix::GridTyping typing_;
  bool typingOn_;
  bool autoResize_ = false;
  bool moving_ = false;  // the grid moved its own current cell
  QMenu* cellMenu_;
};

}  // namespace velmora::matrix_qt
