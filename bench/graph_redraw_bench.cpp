// A full redraw of an 800 x 600 graph window, as after a zoom or a change of
// option: clear, the paper with grid, numbers and arrows, then RedrawFunc of
// ten example functions into the Qt image surface. The goal is one frame
// (16 ms). The other benchmarks split that time: the paper alone, the redraw
// on a surface that paints nothing (formula engine, text work and tables),
// and the formula engine alone on the very formulas a redraw sends.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "graph/basicsurface.h"
#include "graph/graphwindow.h"
#include "graph/qt/headlessgui.h"
#include "graph/qt/qimagesurface.h"
#include "platform/memorysettingsstore.h"

namespace {

using namespace velmora;

// Ten functions of the example catalogue: seven Cartesian, two parametric, one polar.
struct Example {
  int type;
  const char* y;
  const char* x;
};
constexpr Example kExamples[] = {
    {1, "X/2+SinX", "K"},
    {1, "SinX*Sin(2*X)", "K"},
    {1, "2*Sin(2*X)-Sin(4*X)", "K"},
    {1, "(SinX)^3-(CosX)^3", "K"},
    {1, "X+2*AtnX", "K"},
    {1, "Exp(AtnX)", "K"},
    {1, "2*Exp(-X/4)*Cos(3*X)", "K"},
    {2, "4*(SinK)^3", "4*(CosK)^3"},
    {2, "(1-CosK)", "(K-SinK)"},
    {3, "4*Sin(3*K)", "K"},
};

// Keeps every formula a redraw sends, for the engine-only benchmark.
class RecordingControl final : public expr::FormulaControl {
 public:
  explicit RecordingControl(std::vector<std::string>* sink)
      : inner_(expr::MakeFormulaControl()), sink_(sink) {}
  void SetFormula(std::string_view text) override {
    if (sink_ != nullptr) sink_->emplace_back(text);
    inner_->SetFormula(text);
  }
  double Result() override { return inner_->Result(); }

 private:
  std::unique_ptr<expr::FormulaControl> inner_;
  std::vector<std::string>* sink_;
};

class NoInput final : public platform::InputBox {
 public:
  std::optional<std::string> Ask(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
};

// A window with the ten functions drawn once, grid, numbers and arrows on.
struct Scene {
  explicit Scene(graph::Surface& surface, std::vector<std::string>* formulas = nullptr) {
    for (const char* key : {"BrojX", "BrojY", "Ozna", "Skala"}) settings.Store("Grid", key, "1");
    graph::GraphServices services;
    services.settings = &settings;
    services.messages = &messages;
    services.input = &input;
    services.evaluator1 = std::make_unique<RecordingControl>(nullptr);
    services.makeChecker = &graph::MakeEvaluatorChecker;
    window = std::make_unique<graph::GraphWindow>(surface, std::move(services));
    for (const auto& e : kExamples) {
      window->optFunk(e.type);
      window->SetFunctionTexts(e.y, e.x);
      window->DrawFromTxtY();
    }
    if (formulas != nullptr) {
      // Swap in a recording engine for the replay.
      graph::GraphServices again;
      again.settings = &settings;
      again.messages = &messages;
      again.input = &input;
      again.evaluator1 = std::make_unique<RecordingControl>(formulas);
      auto replay = std::make_unique<graph::GraphWindow>(surface, std::move(again));
      replay->AdoptListsOf(*window);
      window = std::move(replay);
    }
  }
  void Redraw() {
    window->Clearwith();
    window->DrawLines();
    window->RedrawFunc();
  }

  platform::MemorySettingsStore settings;
  platform::SilentMessageBox messages;
  NoInput input;
  std::unique_ptr<graph::GraphWindow> window;
};

graph_qt::HeadlessGui& Gui() {
  static graph_qt::HeadlessGui gui;
  return gui;
}

void BM_FullRedraw(benchmark::State& state) {
  Gui();
  graph_qt::QImageSurface surface(800, 600);
  Scene scene(surface);
  for (auto _ : state) {
    scene.Redraw();
    benchmark::DoNotOptimize(surface.Image().constBits());
  }
}
BENCHMARK(BM_FullRedraw)->Unit(benchmark::kMillisecond);

void BM_PaperOnly(benchmark::State& state) {
  Gui();
  graph_qt::QImageSurface surface(800, 600);
  Scene scene(surface);
  for (auto _ : state) {
    scene.window->Clearwith();
    scene.window->DrawLines();
    benchmark::DoNotOptimize(surface.Image().constBits());
  }
}
BENCHMARK(BM_PaperOnly)->Unit(benchmark::kMillisecond);

// Everything but painting: the loop, the text of each sample, the engine and the tables.
void BM_RedrawWithoutPainting(benchmark::State& state) {
  graph::BasicSurface surface(800, 600);
  Scene scene(surface);
  for (auto _ : state) scene.Redraw();
}
BENCHMARK(BM_RedrawWithoutPainting)->Unit(benchmark::kMillisecond);

// The formula engine alone on the formulas of one redraw.
void BM_EngineOnly(benchmark::State& state) {
  graph::BasicSurface surface(800, 600);
  std::vector<std::string> formulas;
  Scene scene(surface, &formulas);
  scene.Redraw();
  auto engine = expr::MakeFormulaControl();
  for (auto _ : state) {
    for (const auto& f : formulas) {
      engine->SetFormula(f);
      if (f != "PopAll()" && f.rfind("Push(", 0) != 0) {
        try {
          benchmark::DoNotOptimize(engine->Result());
        } catch (...) {
        }
      }
    }
  }
  state.counters["formulas"] = static_cast<double>(formulas.size());
}
BENCHMARK(BM_EngineOnly)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
