// From Enter in txtY to the finished curve in a graph window whose pDraw is
// 800 x 600 pixels, on the offscreen platform: the key event, the syntax
// trial, 800 samples through the formula engine with the event pump and the
// screen-rate repaints, the history record, the recent line, the value
// table and the widgets brought up to date. The goal is 50 ms for each
// function of the example catalogue. The reference in the same run is the
// same draw on the window logic alone (no widgets, no event pump), so the
// difference is the cost of the view.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>

#include "bench/offscreenhome.h"
#include "graph/examplecatalogue.h"
#include "graph/graphwindow.h"
#include "graph/historylog.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/pdrawview.h"
#include "graph/qt/qimagesurface.h"
#include "platform/memorysettingsstore.h"
#include "platform/recentlist.h"

namespace {

using namespace velmora;

// One curve of the example catalogue, as a user would type it.
struct Function {
  std::string name;
  int type;
  std::string y;
  std::string x;
};

// Every entry of the seven example menus, with its first curve (an entry of
// several curves draws them one after another; each is a draw of its own).
std::vector<Function> CatalogueFunctions() {
  std::vector<Function> functions;
  for (const auto& menu : graph::ExampleMenus()) {
    int index = 0;
    for (const auto& entry : menu.entries) {
      const auto curves = graph::ExampleCurves(entry);
      if (curves.empty()) continue;
      functions.push_back(
          {std::string(menu.array) + "(" + std::to_string(index++) + ") " + std::string(entry.caption),
           entry.type, curves[0].first, curves[0].second});
    }
  }
  return functions;
}

class NoInput final : public platform::InputBox {
 public:
  std::optional<std::string> Ask(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
};

// Services that live for the whole run: settings in memory, the history in
// a temporary folder.
struct Services {
  Services() : history(dir.filePath(QStringLiteral("GraphLog.txt")).toStdString()) {}
  QTemporaryDir dir;
  platform::MemorySettingsStore settings;
  platform::SilentMessageBox messages;
  NoInput input;
  graph::HistoryLog history;
  platform::RecentList recent{settings, platform::RecentList::kFunctions};
};

Services& Shared() {
  static Services services;
  return services;
}

void PressEnter(QWidget* target) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(target, &press);
}

// A shown graph window of 800 x 600 on the shared services, in the type of
// the function.
std::unique_ptr<graph_qt::FrmFunc> ShownWindow(Services& s, const Function& f) {
  graph_qt::FrmFuncServices services;
  services.settings = &s.settings;
  services.messages = &s.messages;
  services.input = &s.input;
  services.history = &s.history;
  services.recent = &s.recent;
  auto window = std::make_unique<graph_qt::FrmFunc>(services);
  window->pDraw()->setFixedSize(800, 600);
  window->show();
  QApplication::processEvents();
  window->SettleSize();
  window->Logic().optFunk(f.type);
  window->SyncFromLogic();
  return window;
}

void BM_EnterToCurve(benchmark::State& state, Function f) {
  Services& s = Shared();
  auto shown = ShownWindow(s, f);
  graph_qt::FrmFunc& window = *shown;
  QComboBox* box = f.type == graph::kParametric ? window.txtX() : window.txtY();
  for (auto _ : state) {
    state.PauseTiming();
    s.history.Clear();  // the record is read back whole after each draw
    window.ClearScreen();
    window.txtY()->lineEdit()->setText(QString::fromStdString(f.y));
    window.txtX()->lineEdit()->setText(QString::fromStdString(f.x));
    state.ResumeTiming();
    PressEnter(box);
  }
  if (window.Logic().State().KolkoFunkc() == 0) state.SkipWithError("nothing was drawn");
}

void BM_LogicOnly(benchmark::State& state, Function f) {
  Services& s = Shared();
  graph_qt::QImageSurface surface(800, 600);
  graph::GraphServices services = graph::StandardServices(s.settings, s.messages, s.input);
  services.history = &s.history;
  services.recent = &s.recent;
  graph::GraphWindow window(surface, std::move(services));
  window.optFunk(f.type);
  for (auto _ : state) {
    state.PauseTiming();
    s.history.Clear();
    window.ClearGraph(false);
    window.SetFunctionTexts(f.y, f.x);
    state.ResumeTiming();
    if (f.type == graph::kParametric) {
      window.CrtajFJU();
    } else {
      window.DrawFromTxtY();
    }
    benchmark::DoNotOptimize(surface.Image().constBits());
  }
}

// One Enter per function, timed on the wall clock: the slowest and how many
// miss the goal.
void Survey(const std::vector<Function>& functions) {
  constexpr double kGoalMs = 50;
  std::vector<std::pair<double, std::string>> times;
  for (const Function& f : functions) {
    Services& s = Shared();
    auto shown = ShownWindow(s, f);
    graph_qt::FrmFunc& window = *shown;
    window.txtY()->lineEdit()->setText(QString::fromStdString(f.y));
    window.txtX()->lineEdit()->setText(QString::fromStdString(f.x));
    s.history.Clear();
    QElapsedTimer clock;
    clock.start();
    PressEnter(f.type == graph::kParametric ? window.txtX() : window.txtY());
    times.emplace_back(static_cast<double>(clock.nsecsElapsed()) / 1e6, f.name);
  }
  std::sort(times.begin(), times.end(), std::greater<>());
  const auto over =
      std::count_if(times.begin(), times.end(), [](const auto& t) { return t.first >= kGoalMs; });
  std::printf("\nEnter to curve, 800 x 600, %zu catalogue functions: %td at or over %.0f ms; slowest:\n",
              times.size(), over, kGoalMs);
  for (std::size_t i = 0; i < times.size() && i < 5; ++i)
    std::printf("  %8.2f ms  %s\n", times[i].first, times[i].second.c_str());
}

}  // namespace

int main(int argc, char** argv) {
  QTemporaryDir home;
  velmora::bench::UseOffscreenHome(home);
  QApplication app(argc, argv);
  const std::vector<Function> functions = CatalogueFunctions();
  for (const Function& f : functions) {
    // Short runs: the catalogue has well over a hundred entries.
    benchmark::RegisterBenchmark(("EnterToCurve/" + f.name).c_str(), BM_EnterToCurve, f)
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.05);
    benchmark::RegisterBenchmark(("LogicOnly/" + f.name).c_str(), BM_LogicOnly, f)
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.05);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  Survey(functions);
  return 0;
}
