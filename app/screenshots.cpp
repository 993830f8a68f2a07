#include "app/screenshots.h"

#include <cstdio>
#include <utility>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QPixmap>
#include <QTabWidget>

#include "app/framemenus.h"
#include "app/frmmain.h"
#include "app/toolwindowhost.h"
#include "geometry/qt/frmconvert.h"
#include "geometry/qt/frmgeo.h"
#include "geometry/qt/geopagewidget.h"
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

// The Geometry Calculator after one case on four of its pages
// (geo-triangle.png, geo-circle.png, geo-polygon.png, geo-cone.png), and the
// units converter after a choice in its lists (converter.png).
int GeometryScreenshots(FrmMain& frame, const QDir& dir) {
  int failures = 0;
  frame.Tools().Show(platform::ToolWindow::Geometry);
  Settle();
  auto* geo = qobject_cast<geometry_qt::FrmGeo*>(frame.Tools().Window(platform::ToolWindow::Geometry));
  if (geo == nullptr) return 5;
  geo->resize(940, 620);
  struct Case {
    const char* page;
    const char* option;
    const char* entry;
    std::vector<std::pair<const char*, const char*>> typed;
    const char* file;
  };
  const Case cases[] = {
      {"Triangle", "", "mnuabc", {{"txtta", "3"}, {"txttb", "4"}, {"txttc", "5"}}, "geo-triangle.png"},
      {"Circle", "Arc", "mnuluk1", {{"txtKR", "2"}, {"txtKFi", "1.2"}}, "geo-circle.png"},
      {"Polygon", "", "a", {{"txtPN", "6"}, {"txtPA", "2"}}, "geo-polygon.png"},
      {"Cone", "", "mnuK1", {{"txtCR", "3"}, {"txtCH", "4"}}, "geo-cone.png"},
  };
  for (const auto& c : cases) {
    geometry_qt::GeoPageWidget* page = geo->Page(c.page);
    if (page == nullptr) {
      ++failures;
      continue;
    }
    geo->Tabs()->setCurrentWidget(page);
    page->SelectOption(c.option);
    for (const auto& [box, text] : c.typed) page->Box(box)->setText(QString::fromLatin1(text));
    page->Choose(c.entry);
    Settle();
    if (!Save(*geo, dir, QString::fromLatin1(c.file))) ++failures;
  }
  geo->close();

  frame.Tools().Show(platform::ToolWindow::Converter);
  Settle();
  auto* convert =
      qobject_cast<geometry_qt::FrmConvert*>(frame.Tools().Window(platform::ToolWindow::Converter));
  if (convert == nullptr) return failures + 1;
  convert->Tabs()->setCurrentIndex(2);  // Lengths: miles to feet
  convert->ChooseUnit("List5", 3);
  convert->ChooseUnit("List6", 0);
  Settle();
  if (!Save(*convert, dir, QStringLiteral("converter.png"))) ++failures;
  convert->close();
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
  failures += GeometryScreenshots(frame, dir);
  return failures;
}

}  // namespace velmora::app
