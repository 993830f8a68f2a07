#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "expr/formulacontrol.h"
#include "graph/graphtooltarget.h"

namespace velmora::tools {

// The graph window's scan for critical points on behalf of the Critical
// Points tool (`CrtajFJUKrit`): one sample a pixel column between the
// tool's X limits, the derivative at each through the formula engine, and
// every sample whose derivative rounds (to 1 decimal) to at most 0.3 in size
// taken as a candidate, its X rounded to the tool's accuracy. Candidates of
// a rising slope (the rounded derivative 0 or above) go to the first list,
// those of a falling one to the second; doubles are dropped. The derivative
// itself is what the window plots, upside down, as the scan goes.
class DerivativeScan {
 public:
  static constexpr double kCandidateSlope = 0.3;

  // Called at each sample with the share done (0 to 100); false stops the scan.
  using Pulse = std::function<bool(int percent)>;
  // Called at each sample whose derivative could be had, with X and the
  // derivative: the plot of the scan.
  using Plot = std::function<void(double x, double derivative)>;

  explicit DerivativeScan(expr::FormulaControl& engine) : engine_(engine) {}

  // Scans from xmin to xmax at `zoom` samples a unit, the X of each sample
  // cut to three decimals as the plot loop cuts it. Returns false when
  // stopped.
  bool Run(const std::string& function, double xmin, double xmax, double zoom, int accuracy,
           const Pulse& pulse = {}, const Plot& plot = {});

  const std::vector<std::string>& Rising() const { return rising_; }
  const std::vector<std::string>& Falling() const { return falling_; }
  // The curve the graph window draws for the scan: at each sample whose
  // derivative could be had, X and the derivative upside down.
  const std::vector<graph::CurvePoint>& Curve() const { return curve_; }
  // The scan's pen: red from 0 to 199, green from 0 to 24, blue from 0 to
  // 254, each drawn from `draw` (a value in [0, 1)), as 24-bit colour with
  // blue in the high byte.
  static std::uint32_t PenColour(const std::function<double()>& draw);
  int Samples() const { return samples_; }

 private:
  expr::FormulaControl& engine_;
  std::vector<std::string> rising_;
  std::vector<std::string> falling_;
  std::vector<graph::CurvePoint> curve_;
  int samples_ = 0;
};

}  // namespace velmora::tools
