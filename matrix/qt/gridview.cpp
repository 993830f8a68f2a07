#include "matrix/qt/gridview.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

namespace velmora::matrix_qt {
namespace {

constexpr int kCellWidth = 90;

}  // namespace

GridView::GridView(matrix::Grid& grid, bool typing, QWidget* parent)
    : QTableView(parent), model_(new GridModel(grid, this)), typingOn_(typing), cellMenu_(new QMenu(this)) {
  setModel(model_);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  horizontalHeader()->setDefaultSectionSize(kCellWidth);
  verticalHeader()->setDefaultSectionSize(24);
  cellMenu_->setObjectName(QStringLiteral("mnue"));
  QAction* copy = cellMenu_->addAction(QStringLiteral("Copy Cell"));
  QAction* paste = cellMenu_->addAction(QStringLiteral("Paste to Cell"));
  QAction* clear = cellMenu_->addAction(QStringLiteral("Clear Cell"));
  connect(copy, &QAction::triggered, this, [this] {
    const QModelIndex cell = currentIndex();
    if (cell.isValid()) QApplication::clipboard()->setText(model_->data(cell, Qt::DisplayRole).toString());
  });
  connect(paste, &QAction::triggered, this, [this] {
    const QModelIndex cell = currentIndex();
    if (!cell.isValid()) return;
    model_->Grid().SetTextMatrix(cell.row(), cell.column(), QApplication::clipboard()->text().toStdString());
    model_->CellChanged(cell.row(), cell.column());
    FitColumns();
  });
  connect(clear, &QAction::triggered, this, [this] {
    const QModelIndex cell = currentIndex();
    if (!cell.isValid()) return;
    model_->Grid().SetTextMatrix(cell.row(), cell.column(), std::string());
    model_->CellChanged(cell.row(), cell.column());
  });
}

void GridView::Refresh() {
  moving_ = true;
  model_->Refresh();
  const matrix::Grid& grid = model_->Grid();
  if (grid.Rows() > 0 && grid.Cols() > 0) {
    setCurrentIndex(
        model_->index(std::min(grid.Row(), grid.Rows() - 1), std::min(grid.Col(), grid.Cols() - 1)));
  }
  moving_ = false;
  FitColumns();
}

void GridView::SetAutoResize(bool on) {
  autoResize_ = on;
  if (!on) {
    for (int c = 0; c < model_->columnCount(); ++c) setColumnWidth(c, kCellWidth);
  }
  FitColumns();
}

void GridView::FitColumns() {
  if (autoResize_) resizeColumnsToContents();
}

void GridView::Type(char key) {
  matrix::Grid& grid = model_->Grid();
  if (!typingOn_ || grid.Rows() < 1 || grid.Cols() < 1) return;
  typing_.KeyPress(grid, key);
  moving_ = true;
  setCurrentIndex(model_->index(grid.Row(), grid.Col()));
  moving_ = false;
  model_->CellChanged(grid.Row(), grid.Col());
  FitColumns();
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (!typingOn_) {
    QTableView::keyPressEvent(event);
    return;
  }
  switch (event->key()) {
    case Qt::Key_Backspace: Type(matrix::kBackspaceKey); return;
    case Qt::Key_Return:
    case Qt::Key_Enter: Type(matrix::kEnterKey); return;
    default: break;
  }
  const QString text = event->text();
  if (text.size() == 1 && text.at(0).unicode() > 32 && text.at(0).unicode() < 127) {
    Type(static_cast<char>(text.at(0).unicode()));
    return;
  }
  // Arrows, Tab and the page keys move the current cell as in any table.
  QTableView::keyPressEvent(event);
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (moving_ || !current.isValid()) return;
  matrix::Grid& grid = model_->Grid();
  if (current.row() >= grid.Rows() || current.column() >= grid.Cols()) return;
  typing_.EnterCell(grid, current.row(), current.column());
  emit CellEntered();
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  const QModelIndex cell = indexAt(event->pos());
  if (cell.isValid()) setCurrentIndex(cell);
  cellMenu_->popup(event->globalPos());
}

}  // namespace velmora::matrix_qt
