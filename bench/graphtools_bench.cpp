// The graph window's own tools on an 800 x 600 Qt image surface with the
// program's formula engine: a tangent and a normal from the dialog's OK to
// the drawn line (the point evaluated, the line's text, the syntax trial,
// 801 samples, the history record, the lists and the table), and an
// integral fill with its average band (the paper twice, the fill twice and
// the band twice, as frmMini runs them). The goal is 20 ms for each. The
// reference in the same run is the plain draw of the function itself.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "graph/graphwindow.h"
#include "graph/historylog.h"
#include "graph/qt/headlessgui.h"
#include "graph/qt/qimagesurface.h"
#include "platform/memorysettingsstore.h"

namespace {

using namespace velmora;

class NoInput final : public platform::InputBox {
 public:
  std::optional<std::string> Ask(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
};

graph_qt::HeadlessGui& Gui() {
  static graph_qt::HeadlessGui gui;
  return gui;
}

// A window over the real engine with the evaluator's check and a history file.
struct Scene {
  Scene()
      : surface(800, 600),
        history((std::filesystem::temp_directory_path() / "velmora-graphtools-bench.txt").string()) {
    graph::GraphServices services;
    services.settings = &settings;
    services.messages = &messages;
    services.input = &input;
    services.evaluator1 = expr::MakeFormulaControl();
    services.evaluator2 = expr::MakeFormulaControl();
    services.makeChecker = &graph::MakeEvaluatorChecker;
    services.history = &history;
    window = std::make_unique<graph::GraphWindow>(surface, std::move(services));
  }
  ~Scene() { std::filesystem::remove(history.Path()); }

  graph_qt::QImageSurface surface;
  platform::MemorySettingsStore settings;
  platform::SilentMessageBox messages;
  NoInput input;
  graph::HistoryLog history;
  std::unique_ptr<graph::GraphWindow> window;
};

void BM_PlainDraw(benchmark::State& state) {
  Gui();
  Scene scene;
  for (auto _ : state) {
    scene.window->SetFunctionTexts("X^2", "K");
    scene.window->CrtajFJU();
    state.PauseTiming();
    scene.history.Clear();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_PlainDraw)->Unit(benchmark::kMillisecond);

void TangentOk(benchmark::State& state, bool normal) {
  Gui();
  Scene scene;
  scene.window->SetFunctionTexts("X^2", "K");
  scene.window->CrtajFJU();
  for (auto _ : state) {
    state.PauseTiming();
    scene.window->SetFunctionTexts("X^2", "K");
    scene.history.Clear();
    state.ResumeTiming();
    const auto point = scene.window->EvaluatePoint("1");
    scene.window->ApplyTangent(normal, point.value_or(0));
  }
}
void BM_TangentOkToLine(benchmark::State& state) { TangentOk(state, false); }
void BM_NormalOkToLine(benchmark::State& state) { TangentOk(state, true); }
BENCHMARK(BM_TangentOkToLine)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NormalOkToLine)->Unit(benchmark::kMillisecond);

void BM_IntegralWithAverageBand(benchmark::State& state) {
  Gui();
  Scene scene;
  scene.window->SetFunctionTexts("SinX", "K");
  scene.window->CrtajFJU();
  const graph::GraphWindow::IntegralRequest request{
      .xMin = "0", .xMax = "pi", .drawFunction = true, .drawAverage = true, .average = "0.64"};
  for (auto _ : state) scene.window->ApplyIntegral(request);
}
BENCHMARK(BM_IntegralWithAverageBand)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
