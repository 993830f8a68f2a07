// velmora-cli on lines no user types on purpose (a million brackets, a
// million random bytes, ten thousand nested calls ...): each run of the
// evaluator and normalise commands over all of them must end within 10 s,
// and a run over that budget is reported as an error. The reference in the
// same run is the same program answering one line "1+1": the cost of
// starting the process alone.
#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <vector>

#include "tests/cli/badlines.h"
#include "tests/cli/clirun.h"

namespace {

using velmora::testing::RunCli;
using Clock = std::chrono::steady_clock;

constexpr double kBudgetSeconds = 10.0;

const std::string& Input() {
  static const std::string input = velmora::testing::BadInput();
  return input;
}

void Run(benchmark::State& state, const std::vector<std::string>& args, const std::string& input) {
  for (auto _ : state) {
    const auto start = Clock::now();
    const auto run = RunCli(args, input);
    if (run.status != 0) {
      state.SkipWithError("velmora-cli failed");
      break;
    }
    if (std::chrono::duration<double>(Clock::now() - start).count() > kBudgetSeconds) {
      state.SkipWithError("over the budget of 10 s per run");
      break;
    }
  }
}

// Arguments: trial (0, 1) and window (0, 1), as the test of the answers.
void BM_CliEvaluator(benchmark::State& state) {
  std::vector<std::string> args = {"evaluator"};
  if (state.range(0) != 0) args.push_back("--trial");
  if (state.range(1) == 0) args.push_back("--no-window");
  Run(state, args, Input());
}
BENCHMARK(BM_CliEvaluator)->ArgsProduct({{0, 1}, {0, 1}})->Unit(benchmark::kMillisecond)->Iterations(2);

void BM_CliNormalise(benchmark::State& state) {
  const auto& chains = velmora::testing::NormaliseChains();
  const std::string& chain = chains[static_cast<std::size_t>(state.range(0))];
  state.SetLabel(chain);
  Run(state, {"normalise", chain}, Input());
}
BENCHMARK(BM_CliNormalise)
    ->DenseRange(0, static_cast<int>(velmora::testing::NormaliseChains().size()) - 1)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(2);

void BM_Reference_CliStart(benchmark::State& state) { Run(state, {"evaluator"}, "1+1\n"); }
BENCHMARK(BM_Reference_CliStart)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace

BENCHMARK_MAIN();
