// NumberToText runs once per plotted sample, so its cost is part of every
// curve. Compared with the C library's "%.15G", which gives the same digits.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <vector>

#include "expr/numtext.h"

namespace {

std::vector<double> SampleValues() {
  std::vector<double> values;
  for (int i = 0; i <= 800; ++i) values.push_back(static_cast<int>((-10.0 + i / 40.0) * 1000) / 1000.0);
  return values;
}

void BM_NumberToText(benchmark::State& state) {
  const auto values = SampleValues();
  char buffer[velmora::expr::kNumberTextMax];
  for (auto _ : state) {
    for (double v : values) benchmark::DoNotOptimize(velmora::expr::NumberToText(v, buffer));
  }
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * values.size()));
}
BENCHMARK(BM_NumberToText);

void BM_Reference_Snprintf15G(benchmark::State& state) {
  const auto values = SampleValues();
  char buffer[64];
  for (auto _ : state) {
    for (double v : values) benchmark::DoNotOptimize(std::snprintf(buffer, sizeof buffer, "%.15G", v));
  }
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * values.size()));
}
BENCHMARK(BM_Reference_Snprintf15G);

void BM_TextToNumber(benchmark::State& state) {
  std::vector<std::string> texts;
  for (double v : SampleValues()) texts.push_back(velmora::expr::NumberToText(v));
  for (auto _ : state) {
    for (const auto& t : texts) benchmark::DoNotOptimize(velmora::expr::TextToNumber(t));
  }
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * texts.size()));
}
BENCHMARK(BM_TextToNumber);

}  // namespace

BENCHMARK_MAIN();
