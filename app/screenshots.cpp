#include "app/screenshots.h"

#include <cstdio>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMdiArea>
#include <QPixmap>

#include "app/framemenus.h"
#include "app/frmmain.h"
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
  return failures;
}

}  // namespace velmora::app
