#pragma once

#include <cmath>

namespace velmora::graph {

// A counted loop with the platform's rule for floating counters: the end and
// the step are taken once, the counter grows by repeated addition, and the
// end is tested before each pass (counter <= end for a step of 0 or more,
// counter >= end for a negative step). Two guards keep any input from
// hanging the window where the platform would spin forever: a step of 0 or
// one that is not a number runs no pass, and a loop stops after kMaxPasses.
// The body returns false to leave the loop early.
inline constexpr long kMaxPasses = 100000;

template <class Body>
void ForStep(double start, double end, double step, Body&& body) {
  if (!(step != 0) || std::isnan(step)) return;
  long passes = 0;
  for (double x = start; step > 0 ? x <= end : x >= end; x += step) {
    if (++passes > kMaxPasses) return;
    if (!body(x)) return;
  }
}

}  // namespace velmora::graph
