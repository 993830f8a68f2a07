#include "expr/formulacalculus.h"

#include <cmath>

#include "expr/checked.h"

namespace velmora::expr {
namespace {

// These routines hand a fault back as a value, as the formula engine does.
constexpr double kFault = kFaultValue;

}  // namespace

double DerivativeStep(double parameter) {
  if (!(parameter > 0) || !std::isfinite(parameter)) return kFault;
  return std::ldexp(1.0, -static_cast<int>(std::lround(std::log2(parameter))));
}

double Derivative(const RealFunction& f, double parameter, double x) {
  if (!(parameter > 0) || !std::isfinite(parameter) || !std::isfinite(x)) return kFault;
  const double h = DerivativeStep(parameter);
  if (!std::isfinite(h) || h == 0) return kFault;
  const double points[4] = {x - 2 * h, x - h, x + h, x + 2 * h};
  double values[4] = {};
  for (int i = 0; i < 4; ++i) {
    if (!std::isfinite(points[i])) return kFault;
    values[i] = f(points[i]);
    if (std::isnan(values[i])) return kFault;
  }
  const double fm2 = values[0];
  const double fm1 = values[1];
  const double fp1 = values[2];
  const double fp2 = values[3];
  // Once a step is infinite the result cannot come back to a finite value,
  // so the check at the end covers every step.
  // The symmetric pairs are taken apart first, so that equal values cancel
  // exactly before anything is scaled.
  return FiniteOrFault(((fm2 - fp2) + 8 * (fp1 - fm1)) / (12 * h));
}

long SegmentCount(double segments) {
  if (!std::isfinite(segments)) return 0;
  const double n = std::nearbyint(segments);
  if (n < 1 || n > kMaxSegments) return 0;
  return static_cast<long>(n);
}

double SimpsonIntegral(const RealFunction& f, double segments, double a, double b) {
  long n = SegmentCount(segments);
  if (n == 0 || !std::isfinite(a) || !std::isfinite(b)) return kFault;
  if (n % 2 != 0) ++n;
  const double h = (b - a) / static_cast<double>(n);
  if (!std::isfinite(h)) return kFault;
  double ends = f(a);
  if (std::isnan(ends)) return kFault;
  const double fb = f(b);
  if (std::isnan(fb)) return kFault;
  ends = ends + fb;
  double odd = 0;
  double even = 0;
  for (long i = 1; i < n; ++i) {
    const double y = f(a + static_cast<double>(i) * h);
    if (std::isnan(y)) return kFault;
    if (i % 2 != 0) {
      odd += y;
    } else {
      even += y;
    }
  }
  return FiniteOrFault((ends + 4 * odd + 2 * even) * h / 3);
}

double TrapezoidSum(const RealFunction& f, double segments, double a, double b) {
  const long n = SegmentCount(segments);
  if (n == 0 || !std::isfinite(a) || !std::isfinite(b)) return kFault;
  const double h = (b - a) / static_cast<double>(n);
  if (!std::isfinite(h)) return kFault;
  const double fa = f(a);
  if (std::isnan(fa)) return kFault;
  const double fb = f(b);
  if (std::isnan(fb)) return kFault;
  double inner = 0;
  for (long i = 1; i < n; ++i) {
    const double y = f(a + static_cast<double>(i) * h);
    if (std::isnan(y)) return kFault;
    inner += y;
  }
  return FiniteOrFault(fa / 2 + inner + fb / 2);
}

}  // namespace velmora::expr
