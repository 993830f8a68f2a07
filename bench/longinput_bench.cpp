// Long lines and deep nesting through the text evaluator and the
// normalisation chains: each answer comes in time proportional to the
// length of its line. A line must be answered within 0.5 s and the seven
// chains together within 2 s; a run over its budget is reported as an
// error. The reference in the same run is one plain pass over the same
// bytes (std::count), the least a linear algorithm can cost.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "expr/evaluator.h"
#include "expr/fault.h"
#include "expr/normalise.h"
#include "tests/expr/fakegraphwindow.h"
#include "tests/expr/longinput.h"

namespace {

using velmora::expr::Evaluator;
using Clock = std::chrono::steady_clock;

constexpr double kLineBudgetSeconds = 0.5;
constexpr double kChainsBudgetSeconds = 2.0;

const std::vector<velmora::testing::LongCase>& Cases() {
  static const auto cases = velmora::testing::LongCases();
  return cases;
}

double Seconds(Clock::time_point since) {
  return std::chrono::duration<double>(Clock::now() - since).count();
}

void BM_LongLine(benchmark::State& state) {
  const auto& c = Cases()[static_cast<std::size_t>(state.range(0))];
  state.SetLabel(c.why);
  for (auto _ : state) {
    velmora::testing::FakeGraphWindow window;
    Evaluator ev(nullptr, &window);
    const auto start = Clock::now();
    benchmark::DoNotOptimize(ev.Evaluate(c.text, true));
    if (Seconds(start) > kLineBudgetSeconds) {
      state.SkipWithError("over the budget of 0.5 s per line");
      break;
    }
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * c.text.size()));
}
BENCHMARK(BM_LongLine)->DenseRange(0, static_cast<int>(Cases().size()) - 1)->Unit(benchmark::kMillisecond);

void BM_Reference_LinearPass(benchmark::State& state) {
  const auto& c = Cases()[static_cast<std::size_t>(state.range(0))];
  state.SetLabel(c.why);
  for (auto _ : state) benchmark::DoNotOptimize(std::count(c.text.begin(), c.text.end(), '('));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * c.text.size()));
}
BENCHMARK(BM_Reference_LinearPass)
    ->DenseRange(0, static_cast<int>(Cases().size()) - 1)
    ->Unit(benchmark::kMillisecond);

void BM_NormalisationChains(benchmark::State& state) {
  using namespace velmora::expr;
  const std::string text = velmora::testing::LongTypedText();
  for (auto _ : state) {
    const auto start = Clock::now();
    for (auto chain :
         {CleanUp, EvaluationForm, ProveriSyn, Zagrade, NormalizeShortForms, ZameniSve, ToolTextForm}) {
      benchmark::DoNotOptimize(chain(text));
    }
    benchmark::DoNotOptimize(SubstituteValue(EvaluationForm(text), -1.5));
    if (Seconds(start) > kChainsBudgetSeconds) {
      state.SkipWithError("over the budget of 2 s for the chains");
      break;
    }
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size() * 8));
}
BENCHMARK(BM_NormalisationChains)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
