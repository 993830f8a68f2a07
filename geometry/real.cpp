#include "geometry/real.h"

#include <cmath>

#include "expr/fault.h"

namespace velmora::geometry {
namespace {

// A result that left the finite range is the platform's overflow.
Real Checked(double x) {
  if (std::isinf(x)) throw expr::Fault(expr::Fault::kOverflow);
  if (std::isnan(x)) throw expr::Fault(expr::Fault::kInvalidCall);
  return Real(x);
}

}  // namespace

Real operator+(Real a, Real b) { return Checked(a.value_ + b.value_); }
Real operator-(Real a, Real b) { return Checked(a.value_ - b.value_); }
Real operator*(Real a, Real b) { return Checked(a.value_ * b.value_); }

Real operator/(Real a, Real b) {
  if (b.value_ == 0.0) {
    throw expr::Fault(a.value_ == 0.0 ? expr::Fault::kOverflow : expr::Fault::kDivisionByZero);
  }
  return Checked(a.value_ / b.value_);
}

Real Sqr(Real x) {
  if (x.Value() < 0.0) throw expr::Fault(expr::Fault::kInvalidCall);
  return Real(std::sqrt(x.Value()));
}

Real Atn(Real x) { return Real(std::atan(x.Value())); }
Real Sin(Real x) { return Checked(std::sin(x.Value())); }
Real Cos(Real x) { return Checked(std::cos(x.Value())); }
Real Tan(Real x) { return Checked(std::tan(x.Value())); }
Real Abs(Real x) { return Real(std::fabs(x.Value())); }

Real Ln(Real x) {
  if (x.Value() <= 0.0) throw expr::Fault(expr::Fault::kInvalidCall);
  return Real(std::log(x.Value()));
}

Real Pow(Real x, Real y) {
  const double b = x.Value();
  const double e = y.Value();
  if (b < 0.0 && std::trunc(e) != e) throw expr::Fault(expr::Fault::kInvalidCall);
  if (b == 0.0 && e < 0.0) throw expr::Fault(expr::Fault::kInvalidCall);
  return Checked(std::pow(b, e));
}

}  // namespace velmora::geometry
