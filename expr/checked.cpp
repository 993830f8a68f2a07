#include "expr/checked.h"

#include <cfloat>
#include <cmath>

namespace velmora::expr {

double Checked(double value) {
  if (!std::isfinite(value)) throw Fault(Fault::kOverflow);
  return value;
}

double CheckedAdd(double a, double b) { return Checked(a + b); }
double CheckedSub(double a, double b) { return Checked(a - b); }
double CheckedMul(double a, double b) { return Checked(a * b); }

double CheckedDiv(double a, double b) {
  if (b == 0) throw Fault(a == 0 || std::isnan(a) ? Fault::kOverflow : Fault::kDivisionByZero);
  return Checked(a / b);
}

double CheckedPow(double base, double exponent) {
  if (base == 0 && exponent < 0) throw Fault(Fault::kInvalidCall);
  if (base < 0 && exponent != std::trunc(exponent)) throw Fault(Fault::kInvalidCall);
  return Checked(std::pow(base, exponent));
}

double CheckedSqrt(double x) {
  if (x < 0) throw Fault(Fault::kInvalidCall);
  return Checked(std::sqrt(x));
}

double CheckedLog(double x) {
  if (x <= 0) throw Fault(Fault::kInvalidCall);
  return Checked(std::log(x));
}

double CheckedExp(double x) { return Checked(std::exp(x)); }

float CheckedToSingle(double x) {
  if (!(std::fabs(x) <= static_cast<double>(FLT_MAX))) throw Fault(Fault::kOverflow);
  return static_cast<float>(x);
}

}  // namespace velmora::expr
