// From Enter to the finished curve: every entry of the Examples menu loaded
// into an 800 x 600 graph window on the Qt image surface (type, view, each
// curve checked, sampled, drawn, recorded and tabled). The goal is under
// 50 ms an entry. The reference in the same run is the paper alone (clear
// and grid), which every draw of a new view pays as well.
#include <benchmark/benchmark.h>

#include <memory>

#include "graph/examplecatalogue.h"
#include "graph/graphwindow.h"
#include "graph/qt/headlessgui.h"
#include "graph/qt/qimagesurface.h"
#include "platform/memorysettingsstore.h"

namespace {

using namespace velmora;

struct Window {
  Window() {
    window =
        std::make_unique<graph::GraphWindow>(surface, graph::StandardServices(settings, messages, input));
  }
  graph_qt::QImageSurface surface{800, 600};
  platform::MemorySettingsStore settings;
  platform::SilentMessageBox messages;
  struct NoInput final : platform::InputBox {
    std::optional<std::string> Ask(const std::string&, const std::string&, const std::string&) override {
      return std::nullopt;
    }
  } input;
  std::unique_ptr<graph::GraphWindow> window;
};

const graph::Example& Entry(std::size_t n) {
  for (const auto& menu : graph::ExampleMenus()) {
    if (n < menu.entries.size()) return menu.entries[n];
    n -= menu.entries.size();
  }
  return graph::ExampleMenus()[0].entries[0];
}

std::size_t EntryCount() {
  std::size_t count = 0;
  for (const auto& menu : graph::ExampleMenus()) count += menu.entries.size();
  return count;
}

// One catalogue entry per iteration, round the whole catalogue, each in a
// fresh window as a user's first draw in it.
void BM_ExampleEntry(benchmark::State& state) {
  graph_qt::HeadlessGui gui;
  std::size_t n = 0;
  for (auto _ : state) {
    state.PauseTiming();
    Window w;
    const graph::Example& example = Entry(n++ % EntryCount());
    state.ResumeTiming();
    graph::LoadExample(*w.window, example);
    benchmark::DoNotOptimize(w.window->State().KolkoFunkc());
  }
}
BENCHMARK(BM_ExampleEntry)->Unit(benchmark::kMillisecond)->Iterations(139 * 3);

// The slowest entry of the catalogue, reported once per entry.
void BM_ExampleEntryEach(benchmark::State& state) {
  graph_qt::HeadlessGui gui;
  const graph::Example& example = Entry(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    Window w;
    state.ResumeTiming();
    graph::LoadExample(*w.window, example);
  }
  state.SetLabel(std::string(example.caption));
}
BENCHMARK(BM_ExampleEntryEach)->DenseRange(0, 138)->Unit(benchmark::kMillisecond)->Iterations(3);

// Reference: the paper of a new view alone.
void BM_ReferencePaper(benchmark::State& state) {
  graph_qt::HeadlessGui gui;
  Window w;
  for (auto _ : state) {
    w.window->Clearwith();
    w.window->DrawLines();
  }
}
BENCHMARK(BM_ReferencePaper)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
