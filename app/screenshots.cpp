#include "app/screenshots.h"

#include <cstdio>
#include <initializer_list>
#include <utility>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMdiArea>
#include <QPixmap>

#include "app/framemenus.h"
#include "app/frmmain.h"
#include "app/toolwindowhost.h"
#include "complex/qt/frmcomplex.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/frmgridopt.h"

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

// Clicks the calculator's keys named in order ("cmdBroj(1)", "Number(3)").
void Press(complex_qt::FrmComplex& calculator, std::initializer_list<std::pair<const char*, int>> keys) {
  for (const auto& [name, index] : keys) {
    if (QAbstractButton* key = calculator.Button(name, index)) key->click();
  }
  Settle();
}

// The Complex Calculator after (3 + j4) * (1 - j2) typed on its keypad, with
// the panel beside it; then in simple mode with sin 30 deg on its readout.
int ComplexScreenshots(FrmMain& frame, const QDir& dir) {
  frame.Tools().Show(platform::ToolWindow::Complex);
  auto* calculator =
      qobject_cast<complex_qt::FrmComplex*>(frame.Tools().Window(platform::ToolWindow::Complex));
  if (calculator == nullptr) return 2;
  Settle();
  Press(*calculator, {{"cmdBroj", 1},
                      {"Number", 3},
                      {"cmdBroj", 2},
                      {"Number", 4},
                      {"cmdBroj", 3},
                      {"Number", 1},
                      {"cmdBroj", 4},
                      {"Number", 2},
                      {"cmdPlusMinus", -1},
                      {"cmdPan", -1},
                      {"cmdmnozenje", -1},
                      {"cmdMemory1", -1}});
  int failures = Save(*calculator, dir, QStringLiteral("complex.png")) ? 0 : 1;
  calculator->SetSimpleMode(true);
  Press(*calculator, {{"Number", 3}, {"Number", 0}});
  if (auto* deg = calculator->findChild<QAbstractButton*>(QStringLiteral("Check2"))) deg->click();
  Press(*calculator, {{"cmdsing", -1}});
  if (!Save(*calculator, dir, QStringLiteral("complex_simple.png"))) ++failures;
  calculator->close();
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
  failures += ComplexScreenshots(frame, dir);
  return failures;
}

}  // namespace velmora::app
