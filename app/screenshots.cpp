#include "app/screenshots.h"

#include <cstdio>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>

#include "app/framemenus.h"
#include "app/frmmain.h"
#include "app/toolwindowhost.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/frmgridopt.h"
#include "matrix/qt/frmmatrice.h"
#include "matrix/qt/gridview.h"

namespace velmora::app {
namespace {

void Settle() {
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
}

bool Save(QWidget& widget, const QDir& folder, const QString& name) {
  const QString path = folder.filePath(name);
  const bool saved = widget.grab().save(path, "PNG");
  std::fprintf(stderr, "screenshot: %s %s\n", path.toLocal8Bit().constData(), saved ? "saved" : "NOT SAVED");
  return saved;
}

// Chooses an entry of the Examples menu as a user would.
void Choose(FrmMain& frame, const char* array, int index) {
  if (QAction* action = frame.Menus().Action(QString::fromLatin1(array), index)) action->trigger();
  Settle();
}

// Types cells into a grid of the Matrix Calculator, Enter after each.
void TypeCells(matrix_qt::GridView* grid, std::initializer_list<const char*> cells) {
  for (const char* cell : cells) {
    for (const char* k = cell; *k != '\0'; ++k) grid->Type(*k);
    grid->Type('\r');
  }
}

// One calculation of the Matrix Calculator as a user makes it: the
// operation, the sizes, "&Continue", the cells, then the toolbar's go.
void Calculate(matrix_qt::FrmMatrice& m, const char* option, const char* size,
               std::initializer_list<const char*> a, std::initializer_list<const char*> b) {
  m.NewMatrices();  // typing adds to a cell's text: start from empty grids
  m.findChild<QRadioButton*>(QString::fromLatin1(option))->click();
  m.findChild<QLineEdit*>(QStringLiteral("txtEntry1"))->setText(QString::fromLatin1(size));
  m.findChild<QPushButton*>(QStringLiteral("cmdGo"))->click();
  TypeCells(m.Grid(0), a);
  TypeCells(m.Grid(1), b);
  m.ToolbarButton(11)->trigger();
  while (m.Busy()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  Settle();
}

// The Matrix Calculator after a 4 x 4 inverse with its determinant, and
// after a system of three equations with its solution.
int MatrixScreenshots(FrmMain& frame, const QDir& dir) {
  frame.Tools().Show(platform::ToolWindow::Matrix);
  auto* m = qobject_cast<matrix_qt::FrmMatrice*>(frame.Tools().Window(platform::ToolWindow::Matrix));
  if (m == nullptr) return 2;
  m->resize(1100, 560);
  Settle();
  Calculate(*m, "optDetInv", "4x4",
            {"4", "3", "2", "1", "3", "4", "3", "2", "2", "3", "4", "3", "1", "2", "3", "4"}, {});
  int failures = Save(*m, dir, QStringLiteral("matrix-inverse.png")) ? 0 : 1;
  Calculate(*m, "optSolutionSet", "3x3", {"2", "1", "-1", "-3", "-1", "2", "-2", "1", "2"},
            {"8", "-11", "-3"});
  if (!Save(*m, dir, QStringLiteral("matrix-solution.png"))) ++failures;
  m->close();
  Settle();
  return failures;
}

}  // namespace

int TakeScreenshots(FrmMain& frame, const QString& folder) {
  QDir dir(folder);
  dir.mkpath(QStringLiteral("."));
  frame.resize(1440, 1000);
  Settle();
  // Three windows tiled, each drawn after the tiling has sized it.
  while (frame.Windows().WindowCount() < 3) frame.NewGraphWindow();
  frame.Tile();
  Settle();
  for (graph_qt::FrmFunc* window : frame.GraphWindows()) window->SettleSize();
  const auto windows = frame.GraphWindows();
  struct Shot {
    const char* array;
    int index;
  };
  const Shot shots[] = {
      {"mnuPred2", 20},  // Damped Oscillations
      {"mnupf1", 11},    // Epicycloid
      {"mnuPolar", 11},  // Butterfly
  };
  for (std::size_t i = 0; i < windows.size() && i < std::size(shots); ++i) {
    frame.Activate(windows[i]);
    Settle();
    Choose(frame, shots[i].array, shots[i].index);
  }
  Settle();
  int failures = Save(frame, dir, QStringLiteral("frame.png")) ? 0 : 1;

  graph_qt::FrmFunc* active = frame.ActiveGraphWindow();
  graph_qt::FrmGridOpt* options = active != nullptr ? active->OpenPlottingOptions() : nullptr;
  if (options == nullptr) return failures + 1;
  Settle();
  if (!Save(*options, dir, QStringLiteral("options.png"))) ++failures;
  options->close();
  Settle();
  failures += MatrixScreenshots(frame, dir);
  return failures;
}

}  // namespace velmora::app
