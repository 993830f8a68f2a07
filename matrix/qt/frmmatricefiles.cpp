// The file side of the Matrix Calculator: .mcf files opened into and saved
// from the grid of the active tab, the HTML report with its preview, and
// the hand-over of a grid to MathPad.
#include <sstream>

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QTabWidget>

#include "matrix/gridedit.h"
#include "matrix/htmlreport.h"
#include "matrix/mcffile.h"
#include "matrix/qt/frmmatrice.h"
#include "matrix/qt/gridview.h"
#include "matrix/qt/relaymessagebox.h"
#include "platform/mathpadtarget.h"
#include "platform/qt/qtsavefile.h"

namespace velmora::matrix_qt {
namespace {

using matrix::MatrixCalculator;
using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;

// Reads a .mcf file into a grid; a file that cannot be read leaves the grid
// 1 x 1 and empty, as a failed load does.
void LoadInto(const QString& path, matrix::Grid& grid) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    matrix::LoadGrid(std::filesystem::path(), grid);
    return;
  }
  std::istringstream in(file.readAll().toStdString());
  matrix::ReadMcf(in, grid);
}

}  // namespace

bool FrmMatrice::WriteAtomically(const std::string& path, const std::string& bytes) {
  return qtplatform::SaveFileAtomically(QString::fromStdString(path), [&bytes](QIODevice& device) {
    return device.write(bytes.data(), static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size());
  });
}

void FrmMatrice::OpenFile(const QString& path) {
  if (busy_) return;
  tabs_->setCurrentIndex(MatrixCalculator::kTabA);
  LoadInto(path, calc_.grdGrid1);
  views_[0]->Refresh();
  SetEntrySize(MatrixCalculator::kTabA);
  // The "Enter values" route: the sizes come from the grids when the
  // calculation starts.
  const int op = calc_.Operation;
  const bool both =
      op == matrix::kAdd || op == matrix::kSubtract || op == matrix::kMultiply || op == matrix::kSolutionSet;
  SetStatus(both ? QStringLiteral("Enter values for matrix [A] and [B]")
                 : QStringLiteral("Enter values for matrix [A]"));
  ToolbarButton(11)->setEnabled(true);
}

void FrmMatrice::OpenMatrix() {
  if (busy_ || services_.files == nullptr) return;
  const int tab = ActiveTab();
  if (tab != MatrixCalculator::kTabA && tab != MatrixCalculator::kTabB) {
    relay_->Show("Select Matrix [ A ] or Matrix [ B ] to open Matrix file.", matrix::kCalculatorTitle,
                 MsgIcon::Information, MsgButtons::Ok);
    return;
  }
  const auto path = services_.files->Open("Open", matrix::kMcfFilter, std::string());
  if (!path) return;
  LoadInto(QString::fromStdString(*path), views_[static_cast<std::size_t>(tab)]->Model().Grid());
  views_[static_cast<std::size_t>(tab)]->Refresh();
  SetEntrySize(tab);
  SetStatus(tab == MatrixCalculator::kTabA ? QStringLiteral("Enter values for matrix [A]")
                                           : QStringLiteral("Enter values for matrix [A] and [B]"));
  ToolbarButton(11)->setEnabled(true);
}

void FrmMatrice::SaveMatrix() {
  if (busy_ || services_.files == nullptr) return;
  const auto path = services_.files->Save("Save as Text", matrix::kMcfFilter, std::string(), std::string());
  if (!path) return;
  if (QFileInfo::exists(QString::fromStdString(*path)) &&
      relay_->Show(*path + " already exists.\r\nDo you want to replace it?", "Save As", MsgIcon::Exclamation,
                   MsgButtons::YesNo) != MsgResult::Yes) {
    return;
  }
  if (!WriteAtomically(*path, matrix::McfText(ActiveGrid()->Model().Grid()))) {
    relay_->Show("Path/File access error", matrix::kCalculatorTitle, MsgIcon::Critical, MsgButtons::Ok);
  }
}

void FrmMatrice::PublishHtml() {
  if (busy_ || services_.files == nullptr) return;
  const auto path = services_.files->Save("Publish Table", matrix::kHtmlFilter, std::string(), std::string());
  if (!path) return;
  if (calc_.Operation == matrix::kDeterminantInverse) {
    // The inverse report carries the adjoint, which [T] must hold first.
    calc_.txtPrecision = txtPrecision_->text().toStdString();
    calc_.Adjoint(MatrixCalculator::kTabA);
    RefreshGrids();
  }
  calc_.txtEntry2 = txtEntry2_->text().toStdString();
  matrix::PublishHtml(
      *path, calc_.Report(), *relay_,
      [this](const std::filesystem::path& file) {
        if (services_.shell == nullptr) return false;
        return platform::ShellOpen(*services_.shell, file.string()).ok;
      },
      [this](const std::filesystem::path& file, const std::string& bytes) {
        return WriteAtomically(file.string(), bytes);
      });
}

void FrmMatrice::EditInMathPad() {
  platform::MathPadTarget* pad = services_.tools != nullptr ? services_.tools->MathPad() : nullptr;
  if (pad == nullptr) return;
  const char* const names[] = {"Matrix [A]", "Matrix [B]", "Solution Matrix [S]", "Inverse Matrix [A]",
                               "Matrix [T]"};
  const int tab = ActiveTab();
  pad->NewDocument(matrix::MathPadText(names[tab], ActiveGrid()->Model().Grid()));
}

}  // namespace velmora::matrix_qt
