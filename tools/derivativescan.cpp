#include "tools/derivativescan.h"

#include <algorithm>
#include <cmath>

#include "expr/checked.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "tools/toollists.h"

namespace velmora::tools {

bool DerivativeScan::Run(const std::string& function, double xmin, double xmax, double zoom, int accuracy,
                         const Pulse& pulse, const Plot& plot) {
  rising_.clear();
  falling_.clear();
  curve_.clear();
  samples_ = 0;
  if (!(zoom > 0) || !(xmax >= xmin)) return true;
  const std::string expression = expr::ToolTextForm(function);
  const long columns = std::lround(std::floor((xmax - xmin) * zoom));
  for (long column = 0; column <= columns; ++column) {
    // The plot loop's X: the column's value cut to three decimals.
    const double x = std::trunc((xmin + static_cast<double>(column) / zoom) * 1000) / 1000;
    ++samples_;
    engine_.SetFormula("Push(2000)");
    engine_.SetFormula("Push(" + expr::NumberToText(x) + ")");
    engine_.SetFormula("diff(" + expression + ")");
    double d = 0;
    const bool ok = expr::ResumeNext([&] { d = expr::Checked(engine_.Result()); });
    engine_.SetFormula("PopAll()");
    if (ok) {
      curve_.push_back({x, -d});
      if (plot) plot(x, d);
      double rounded = 0;
      std::string text;
      if (expr::ResumeNext([&] {
            rounded = expr::RoundTo(d, 1);
            text = expr::NumberToText(expr::RoundTo(x, accuracy));
          }) &&
          std::fabs(rounded) <= kCandidateSlope) {
        AddUnique(rounded >= 0 ? rising_ : falling_, text);
      }
    }
    if (pulse && !pulse(columns > 0 ? static_cast<int>(100 * column / columns) : 100)) return false;
  }
  return true;
}

std::uint32_t DerivativeScan::PenColour(const std::function<double()>& draw) {
  const auto part = [&draw](int range) {
    return static_cast<std::uint32_t>(std::clamp(static_cast<int>(draw() * range), 0, range - 1));
  };
  const std::uint32_t red = part(200);
  const std::uint32_t green = part(25);
  const std::uint32_t blue = part(255);
  return red | (green << 8) | (blue << 16);
}

}  // namespace velmora::tools
