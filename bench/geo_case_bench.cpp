// A case chosen from a Geometry Calculator page's "Select Case:" menu, to
// the filled boxes and the figure painted again, on the offscreen platform:
// the boxes read, the solver, every box written, the figure built, fitted
// and painted into its picture box. The goal is 10 ms for each page. The
// reference in the same run is the solver alone on its record, so the
// difference is the cost of the window and the drawing.
#include <benchmark/benchmark.h>

#include <string>
#include <utility>
#include <vector>

#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>

#include "bench/offscreenhome.h"
#include "geometry/catalogue.h"
#include "geometry/qt/figureview.h"
#include "geometry/qt/frmgeo.h"
#include "geometry/qt/geopagewidget.h"
#include "platform/messagebox.h"

namespace {

using namespace velmora;

struct Case {
  std::string page;
  std::string option;
  std::string word;
  std::string entry;
  std::vector<std::pair<std::string, std::string>> typed;
};

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = {
      {"Triangle", "", "triangle", "mnuabc", {{"txtta", "3"}, {"txttb", "4"}, {"txttc", "5"}}},
      {"Polygon", "", "polygon", "a", {{"txtPN", "16"}, {"txtPA", "2"}}},
      {"Euclid", "", "euclid", "mn", {{"txtecm", "1"}, {"txtecn", "4"}}},
      {"Circle", "Ring", "ring", "mnuprsten1", {{"txtKR", "3"}, {"txtKrmalo", "1"}}},
      {"Sphere", "", "sphere", "mnulopta1", {{"txtSR", "3"}}},
      {"Frustrum", "Cone", "cfrustrum", "mnufrcone1", {{"txtFR", "3"}, {"txtFH", "4"}, {"txtFA", "1"}}},
      {"Ellipsoid",
       "Ellipsoid",
       "ellipsoid",
       "mnuElipsoidVolume",
       {{"txtRe1", "1"}, {"txtRe2", "2"}, {"txtRe3", "3"}}},
      {"Cone", "", "cone", "mnuK1", {{"txtCR", "3"}, {"txtCH", "4"}}},
  };
  return cases;
}

void BM_CaseToFigure(benchmark::State& state, const Case& c) {
  platform::SilentMessageBox messages;
  geometry_qt::FrmGeo window(nullptr, {&messages, nullptr, nullptr});
  window.resize(940, 620);
  window.show();
  geometry_qt::GeoPageWidget* page = window.Page(c.page);
  window.Tabs()->setCurrentWidget(page);
  page->SelectOption(c.option);
  QApplication::processEvents();
  for (auto _ : state) {
    for (const auto& [box, text] : c.typed) page->Box(box)->setText(QString::fromStdString(text));
    page->Choose(c.entry);
    page->Figure()->repaint();
  }
}

void BM_SolverOnly(benchmark::State& state, const Case& c) {
  const geometry::FigureKind* kind = nullptr;
  const geometry::MenuEntry* entry = geometry::FindEntry(c.word, c.entry, &kind);
  platform::SilentMessageBox messages;
  for (auto _ : state) {
    geometry::Figure figure{geometry::BoxRecord(kind->boxes)};
    for (const auto& [box, text] : c.typed) figure.boxes.SetText(box, text);
    entry->solve(figure, messages);
    benchmark::DoNotOptimize(figure.result);
  }
}

// The offscreen platform says on every window that it cannot pass size
// hints on; that is noise in the results.
void QuietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains(QStringLiteral("does not support propagateSizeHints"))) return;
  qt_message_output(type, context, message);
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(&QuietHandler);
  QTemporaryDir home;
  velmora::bench::UseOffscreenHome(home);
  QApplication app(argc, argv);
  for (const Case& c : Cases()) {
    benchmark::RegisterBenchmark(("CaseToFigure/" + c.page + "/" + c.entry).c_str(), BM_CaseToFigure, c)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("SolverOnly/" + c.page + "/" + c.entry).c_str(), BM_SolverOnly, c)
        ->Unit(benchmark::kMicrosecond);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
