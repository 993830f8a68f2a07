#include "app/screenshots.h"

#include <cstdio>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QPixmap>

#include "app/framemenus.h"
#include "app/frmmain.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/frmgridopt.h"
#include "graph/qt/qimagesurface.h"
#include "output/qt/frmjpg.h"
#include "output/qt/frmpagesetup.h"
#include "platform/memorysettingsstore.h"

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

// A file dialog that is never answered: the pictures show the dialogs
// before anything is chosen.
class NoFileDialog final : public platform::FileDialog {
 public:
  std::optional<std::string> Open(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> Save(const std::string&, const std::string&, const std::string&,
                                  const std::string&) override {
    return std::nullopt;
  }
};

// The JPEG dialog on the active window's picture at quality 40, and Page
// Setup on fresh margins.
int OutputScreenshots(FrmMain& frame, const QDir& dir) {
  graph_qt::FrmFunc* active = frame.ActiveGraphWindow();
  if (active == nullptr) return 2;
  int failures = 0;
  NoFileDialog files;
  platform::SilentMessageBox messages;
  {
    output_qt::FrmJPG jpeg(active->Picture().Image(), files, messages, &frame);
    jpeg.show();
    Settle();
    jpeg.txtQuality()->setText(QStringLiteral("40"));
    Settle();
    if (!Save(jpeg, dir, QStringLiteral("jpeg.png"))) ++failures;
  }
  platform::MemorySettingsStore settings;
  {
    output_qt::FrmPageSetup setup(settings, &frame);
    setup.show();
    Settle();
    if (!Save(setup, dir, QStringLiteral("pagesetup.png"))) ++failures;
  }
  return failures;
}

// On a screen scaled to 200% (QT_SCALE_FACTOR=2): the frame with one graph,
// its picture drawn at twice the pixels.
int HighDpiScreenshot(FrmMain& frame, const QDir& dir) {
  frame.resize(900, 640);
  Settle();
  for (graph_qt::FrmFunc* window : frame.GraphWindows()) window->SettleSize();
  Choose(frame, "mnuPred2", 20);  // Damped Oscillations
  Settle();
  return Save(frame, dir, QStringLiteral("frame-scale2.png")) ? 0 : 1;
}

}  // namespace

int TakeScreenshots(FrmMain& frame, const QString& folder) {
  QDir dir(folder);
  dir.mkpath(QStringLiteral("."));
  if (frame.devicePixelRatio() >= 2) return HighDpiScreenshot(frame, dir);
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
  failures += OutputScreenshots(frame, dir);
  return failures;
}

}  // namespace velmora::app
