#include "geometry/real.h"

#include <cmath>

#include "expr/checked.h"

namespace velmora::geometry {

Real operator+(Real a, Real b) { return Real(expr::CheckedAdd(a.value_, b.value_)); }
Real operator-(Real a, Real b) { return Real(expr::CheckedSub(a.value_, b.value_)); }
Real operator*(Real a, Real b) { return Real(expr::CheckedMul(a.value_, b.value_)); }
Real operator/(Real a, Real b) { return Real(expr::CheckedDiv(a.value_, b.value_)); }

Real Sqr(Real x) { return Real(expr::CheckedSqrt(x.Value())); }
Real Atn(Real x) { return Real(std::atan(x.Value())); }
Real Sin(Real x) { return Real(expr::Checked(std::sin(x.Value()))); }
Real Cos(Real x) { return Real(expr::Checked(std::cos(x.Value()))); }
Real Tan(Real x) { return Real(expr::Checked(std::tan(x.Value()))); }
Real Abs(Real x) { return Real(std::fabs(x.Value())); }
Real Ln(Real x) { return Real(expr::CheckedLog(x.Value())); }
Real Pow(Real x, Real y) { return Real(expr::CheckedPow(x.Value(), y.Value())); }

}  // namespace velmora::geometry
