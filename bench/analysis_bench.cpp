// The analysis tools at the sizes a user meets: critical points of every
// Cartesian function of the example catalogue over [-10, 10] (goal: under
// 50 ms each), a value table of 10,000 rows (under 50 ms) and its HTML page
// (under 100 ms), and the zeros over the default range of a graph window
// (under 10 ms). The reference in the same run is the formula engine alone
// doing the evaluations of a 10,000-row table (a value and a derivative a
// row), which no table can undercut.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "expr/formulacontrol.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"
#include "graph/examplecatalogue.h"
#include "platform/messagebox.h"
#include "tools/criticalpoints.h"
#include "tools/tablepublisher.h"
#include "tools/valuetabletool.h"
#include "tools/zerotool.h"

namespace {

using namespace velmora;

std::vector<std::string> CartesianCatalogue() {
  std::vector<std::string> out;
  for (const auto& menu : graph::ExampleMenus()) {
    for (const auto& entry : menu.entries) {
      if (entry.type == 1 && entry.loader.empty()) out.emplace_back(entry.y);
    }
  }
  return out;
}

void BM_CriticalPointsOfTheCatalogue(benchmark::State& state) {
  const std::vector<std::string> functions = CartesianCatalogue();
  const std::string& function = functions[static_cast<std::size_t>(state.range(0)) % functions.size()];
  const auto engine = expr::MakeFormulaControl();
  platform::SilentMessageBox messages;
  for (auto _ : state) {
    tools::CriticalPoints tool(*engine, messages);
    tool.minText = "-10";
    tool.maxText = "10";
    tool.Calculate(function);
    benchmark::DoNotOptimize(tool.Log());
  }
  state.SetLabel(function);
}
BENCHMARK(BM_CriticalPointsOfTheCatalogue)
    ->DenseRange(0, static_cast<int>(CartesianCatalogue().size()) - 1)
    ->Unit(benchmark::kMillisecond);

// A table of 10,000 rows: X from 0 to 9999 by 1.
void Table10000(tools::ValueTableTool& tool) {
  tool.y = "sin(x)*x^2";
  tool.xmin = "0";
  tool.xmax = "9999";
  tool.step = "1";
}

void BM_ValueTable10000Rows(benchmark::State& state) {
  const auto engine = expr::MakeFormulaControl();
  platform::SilentMessageBox messages;
  tools::ValueTableTool tool(*engine, messages);
  Table10000(tool);
  for (auto _ : state) {
    tool.Calculate();
    benchmark::DoNotOptimize(tool.Table().Rows());
  }
  state.counters["rows"] = tool.Table().Rows() - 1;
}
BENCHMARK(BM_ValueTable10000Rows)->Unit(benchmark::kMillisecond);

void BM_HtmlPageOf10000Rows(benchmark::State& state) {
  const auto engine = expr::MakeFormulaControl();
  platform::SilentMessageBox messages;
  tools::ValueTableTool tool(*engine, messages);
  Table10000(tool);
  tool.Calculate();
  const tools::TableHead head{false, tool.YLabel(), tool.y, tool.xmin, tool.xmax, tool.step};
  for (auto _ : state) {
    const std::string page = tools::TablePublisher::HtmlPage(tool.Table(), head);
    benchmark::DoNotOptimize(page.data());
  }
}
BENCHMARK(BM_HtmlPageOf10000Rows)->Unit(benchmark::kMillisecond);

void BM_ZerosOverTheDefaultRange(benchmark::State& state) {
  const char* functions[] = {"x^2-1", "sin(x)", "x^3-2*x", "cos(x)*x"};
  const auto newton = expr::MakeFormulaControl();
  const auto other = expr::MakeFormulaControl();
  platform::SilentMessageBox messages;
  const char* function = functions[state.range(0)];
  for (auto _ : state) {
    tools::ZeroTool tool(tools::ZeroKind::Zeros, *newton, *other, messages);
    tool.Inputs().function = function;
    tool.Inputs().rangeMode = true;
    tool.Inputs().xmin = "-10";
    tool.Inputs().xmax = "10";
    tool.Calculate();
    benchmark::DoNotOptimize(tool.Log());
  }
  state.SetLabel(function);
}
BENCHMARK(BM_ZerosOverTheDefaultRange)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

// The reference: the engine's own work of the 10,000-row table.
void BM_ReferenceEngineOf10000Rows(benchmark::State& state) {
  const auto engine = expr::MakeFormulaControl();
  const std::string text = "sin((x))*(x)^2";
  for (auto _ : state) {
    double sum = 0;
    for (int i = 0; i < 10000; ++i) {
      const std::string x = expr::NumberToText(i);
      engine->SetFormula(expr::ReplaceAll(text, "x", x));
      sum += engine->Result();
      engine->SetFormula("PopAll()");
      engine->SetFormula("Push(2000)");
      engine->SetFormula("Push(" + x + ")");
      engine->SetFormula("diff(" + text + ")");
      sum += engine->Result();
      engine->SetFormula("PopAll()");
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(BM_ReferenceEngineOf10000Rows)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
