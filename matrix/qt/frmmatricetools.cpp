// The Edit and Tools commands of the Matrix Calculator: whole grids copied,
// cleared, cut down, swapped, transposed and set, and the tools that read
// the grid of the active tab.
#include <QCheckBox>
#include <QLineEdit>
#include <QTabWidget>

#include "expr/fault.h"
#include "expr/numtext.h"
#include "matrix/gridedit.h"
#include "matrix/mcffile.h"
#include "matrix/qt/frmmatrice.h"
#include "matrix/qt/gridview.h"
#include "matrix/qt/linedialog.h"
#include "matrix/qt/relaymessagebox.h"

namespace velmora::matrix_qt {
namespace {

using matrix::MatrixCalculator;
using platform::MsgIcon;

const char* const kTabNames[] = {"[A]", "[B]", "[S]", "[I]", "[T]"};

std::string SizeText(const matrix::Grid& grid) {
  return std::to_string(grid.Rows()) + "x" + std::to_string(grid.Cols());
}

// The size line of the row and column dialogs.
std::string DialogSize(const matrix::Grid& grid) {
  return "Matrix Size: " + std::to_string(grid.Rows()) + " x " + std::to_string(grid.Cols());
}

}  // namespace

int FrmMatrice::ActiveTab() const { return tabs_->currentIndex(); }

GridView* FrmMatrice::ActiveGrid() const { return views_[static_cast<std::size_t>(ActiveTab())]; }

QLineEdit* FrmMatrice::EntryOf(int tab) const {
  if (tab == MatrixCalculator::kTabA) return txtEntry1_;
  if (tab == MatrixCalculator::kTabB) return txtEntry2_;
  return nullptr;
}

void FrmMatrice::SetEntrySize(int tab) {
  if (QLineEdit* entry = EntryOf(tab)) {
    entry->setText(QString::fromStdString(SizeText(views_[static_cast<std::size_t>(tab)]->Model().Grid())));
  }
}

void FrmMatrice::CopyMatrix() {
  matrix::CopyGrid(ActiveGrid()->Model().Grid(), calc_.grdCopy);
  SetStatus(QStringLiteral("Matrix copied"));
}

void FrmMatrice::PasteMatrix() {
  const int tab = ActiveTab();
  matrix::PasteGrid(calc_.grdCopy, ActiveGrid()->Model().Grid());
  ActiveGrid()->Refresh();
  SetEntrySize(tab);
  SetStatus(QStringLiteral("Matrix pasted"));
}

void FrmMatrice::CutMatrix() {
  CopyMatrix();
  ActiveGrid()->Model().Grid().Clear();
  ActiveGrid()->Refresh();
}

void FrmMatrice::ClearMatrix() {
  const int tab = ActiveTab();
  if (tab != MatrixCalculator::kTabA && tab != MatrixCalculator::kTabB) {
    relay_->Show("Select Matrix [A] or [B] to clear.", matrix::kCalculatorTitle, MsgIcon::Information,
                 platform::MsgButtons::Ok);
    return;
  }
  if (relay_->Show("Clear active matrix?", matrix::kCalculatorTitle, MsgIcon::Question,
                   platform::MsgButtons::YesNo) != platform::MsgResult::Yes)
    return;
  ActiveGrid()->Model().Grid().Clear();
  ActiveGrid()->Refresh();
}

void FrmMatrice::ClearAll() {
  for (GridView* view : views_) view->Model().Grid().Clear();
  calc_.txtDet.clear();
  calc_.txtEq.clear();
  RefreshGrids();
}

void FrmMatrice::DeleteLine(bool column) {
  const int tab = ActiveTab();
  if (tab != MatrixCalculator::kTabA && tab != MatrixCalculator::kTabB) {
    relay_->Show("Select Matrix [A] or [B] to edit.", matrix::kCalculatorTitle, MsgIcon::Information,
                 platform::MsgButtons::Ok);
    return;
  }
  matrix::Grid& grid = ActiveGrid()->Model().Grid();
  const std::string what = column ? "column" : "row";
  const std::string title = "Delete " + what + " (Matrix size: " + SizeText(grid) + ")";
  for (;;) {
    const auto answer = services_.input->Ask("Eneter " + what + " number to delete.", title, "");
    if (!answer) return;
    double n = 0;
    try {
      n = expr::TextToNumber(*answer);
    } catch (const expr::Fault&) {
      n = 0;
    }
    const int count = column ? grid.Cols() : grid.Rows();
    if (n >= 1 && n <= count && n == static_cast<int>(n)) {
      if (column) {
        matrix::DeleteGridColumn(grid, static_cast<int>(n) - 1);
      } else {
        matrix::DeleteGridRow(grid, static_cast<int>(n) - 1);
      }
      ActiveGrid()->Refresh();
      SetEntrySize(tab);
      return;
    }
    relay_->Show(*answer + " is an invalid input for the " + what + " to delete.",
                 "Delete " + what + " Error", MsgIcon::Exclamation, platform::MsgButtons::Ok);
  }
}

void FrmMatrice::ShowSwapTab(const char* caption, const QString& status) {
  calc_.SwapCaption = caption;
  const int tab = ActiveTab();
  if (chkApply_->isChecked()) {
    // The source takes the result; [T] keeps what the source held.
    matrix::Grid& source = views_[static_cast<std::size_t>(tab)]->Model().Grid();
    if (services_.scratchFolder.empty() ||
        !matrix::SwapGridsThroughFiles(services_.scratchFolder, source, calc_.grdSwap)) {
      std::swap(source, calc_.grdSwap);
    }
    SetEntrySize(tab);
  }
  RefreshGrids();
  tabs_->setCurrentIndex(MatrixCalculator::kTabSwap);
  SetStatus(status);
}

// Asks for two lines of `count` until the answer can be checked (a text
// that is no whole number asks again); nothing when the user cancels or a
// line is out of range.
std::optional<matrix::LinePair> FrmMatrice::AskLinePair(const LineDialogCaptions& captions, int count) {
  for (;;) {
    const auto texts = services_.lines->Ask(captions);
    if (!texts) return std::nullopt;
    const auto pair = matrix::CheckLinePair(texts->first, texts->second, count, *relay_);
    if (!pair) continue;
    if (pair->first < 0) return std::nullopt;
    return pair;
  }
}

void FrmMatrice::SwapLines(bool column) {
  const int tab = ActiveTab();
  if (tab != MatrixCalculator::kTabA && tab != MatrixCalculator::kTabB) {
    relay_->Show(
        column ? "Select Matrix [A] or [B] to swap columns" : "Select Matrix [A] or [B] to swap rows",
        matrix::kCalculatorTitle, MsgIcon::Information, platform::MsgButtons::Ok);
    return;
  }
  const matrix::Grid& grid = ActiveGrid()->Model().Grid();
  const std::string size = DialogSize(grid);
  const LineDialogCaptions captions =
      column ? LineDialogCaptions{"Swap Columns", size, "Swap column:", "with the column:"}
             : LineDialogCaptions{"Swap Rows", size, "Swap row:", "with the row:"};
  const auto pair = AskLinePair(captions, column ? grid.Cols() : grid.Rows());
  if (!pair) return;
  try {
    if (column) {
      matrix::SwapColumnsGrid(grid, pair->first, pair->second, calc_.grdSwap);
    } else {
      matrix::SwapRowsGrid(grid, pair->first, pair->second, calc_.grdSwap);
    }
  } catch (const expr::Fault& fault) {
    relay_->Show(fault.what(), captions.title, MsgIcon::Critical, platform::MsgButtons::Ok);
    return;
  }
  ShowSwapTab("Swap", QStringLiteral("Matrix %1: Swap %2")
                          .arg(QString::fromUtf8(kTabNames[tab]),
                               column ? QStringLiteral("columns") : QStringLiteral("rows")));
}

void FrmMatrice::SwapMatrixes(int first, int second) {
  matrix::Grid& a = views_[static_cast<std::size_t>(first)]->Model().Grid();
  matrix::Grid& b = views_[static_cast<std::size_t>(second)]->Model().Grid();
  if (services_.scratchFolder.empty() || !matrix::SwapGridsThroughFiles(services_.scratchFolder, a, b)) {
    std::swap(a, b);
  }
  SetEntrySize(first);
  SetEntrySize(second);
  RefreshGrids();
  SetStatus(QStringLiteral("Swap matrix: %1<->%2")
                .arg(QString::fromUtf8(kTabNames[first]), QString::fromUtf8(kTabNames[second])));
}

void FrmMatrice::Transpose() {
  const int tab = ActiveTab();
  if (tab != MatrixCalculator::kTabA && tab != MatrixCalculator::kTabB) {
    relay_->Show("Select Matrix [A] or [B] to transpose.", matrix::kCalculatorTitle, MsgIcon::Information,
                 platform::MsgButtons::Ok);
    return;
  }
  matrix::TransposeGrid(ActiveGrid()->Model().Grid(), calc_.grdSwap);
  ShowSwapTab("Trans", QStringLiteral("Transpose ") + QString::fromUtf8(kTabNames[tab]));
}

void FrmMatrice::Adjoint() {
  if (busy_) return;
  const int tab = ActiveTab();
  TakeOptions();
  RunInBackground([tab](MatrixCalculator& c) { return c.Adjoint(tab); },
                  [this](bool ok) {
                    if (!ok) return;
                    tabs_->setCurrentIndex(MatrixCalculator::kTabSwap);
                    SetStatus(QStringLiteral("Adjoint [A]"));
                  });
}

void FrmMatrice::Identity() {
  const int tab = ActiveTab();
  if (tab != MatrixCalculator::kTabA && tab != MatrixCalculator::kTabB) {
    relay_->Show("Select Matrix [ A ] or Matrix [ B ] to set Identity Matrix.", matrix::kCalculatorTitle,
                 MsgIcon::Information, platform::MsgButtons::Ok);
    return;
  }
  matrix::SetIdentityGrid(ActiveGrid()->Model().Grid());
  ActiveGrid()->Refresh();
  SetEntrySize(tab);
  SetStatus(QStringLiteral("Identity ") + QString::fromUtf8(kTabNames[tab]));
}

void FrmMatrice::Trace() { calc_.Trace(ActiveTab()); }

void FrmMatrice::CharacteristicEquation() {
  TakeOptions();
  calc_.CharacteristicEquation(ActiveTab());
  RefreshGrids();
}

// The row and column tools work on [A] only; elsewhere they say so.
bool FrmMatrice::OnMatrixA() {
  if (ActiveTab() == MatrixCalculator::kTabA) return true;
  relay_->Show("Available only for matrix [A]", matrix::kCalculatorTitle, MsgIcon::Information,
               platform::MsgButtons::Ok);
  return false;
}

// The precision and "Add zeros in empty cells" as the window shows them.
void FrmMatrice::TakeOptions() {
  calc_.txtPrecision = txtPrecision_->text().toStdString();
  calc_.chNule = chNule_->isChecked();
}

void FrmMatrice::MultiplyLine(bool column) {
  if (!OnMatrixA()) return;
  const matrix::Grid& grid = calc_.grdGrid1;
  const std::string size = DialogSize(grid);
  const auto texts =
      services_.lines->Ask(column ? LineDialogCaptions{"Multiply Column", size, "Column number:", "Factor:"}
                                  : LineDialogCaptions{"Multiply Row", size, "Row number:", "Factor:"});
  if (!texts) return;
  const auto line =
      matrix::CheckLineFactor(texts->first, texts->second, column ? grid.Cols() : grid.Rows(), *relay_);
  if (line.index < 0) return;
  TakeOptions();
  calc_.MultiplyLine(column, line.index, line.factor);
  RefreshGrids();
}

void FrmMatrice::SubmitLine(bool column) {
  if (!OnMatrixA()) return;
  const matrix::Grid& grid = calc_.grdGrid1;
  const std::string size = DialogSize(grid);
  const LineDialogCaptions captions =
      column ? LineDialogCaptions{"Submit column", size, "Submit column", "to the column"}
             : LineDialogCaptions{"Submit row", size, "Submit row", "to the row"};
  const auto pair = AskLinePair(captions, column ? grid.Cols() : grid.Rows());
  if (!pair) return;
  TakeOptions();
  calc_.SubmitLine(column, pair->first, pair->second);
  RefreshGrids();
}

}  // namespace velmora::matrix_qt
