#pragma once

#include <compare>

// The calculator's floating-point arithmetic. Every operation is checked the
// moment it happens, as the platform's arithmetic is: an overflow, a division
// by zero or a function outside its domain raises expr::Fault at once, so a
// solver stops at the step that failed and the boxes written before it keep
// their text. Infinities and NaNs therefore never reach a box.
namespace velmora::geometry {

class Real {
 public:
  constexpr Real(double value = 0.0) : value_(value) {}  // NOLINT: numbers mix freely with literals

  constexpr double Value() const { return value_; }

  friend Real operator+(Real a, Real b);
  friend Real operator-(Real a, Real b);
  friend Real operator*(Real a, Real b);
  // x / 0 faults with division by zero; 0 / 0 faults with overflow, as the
  // platform reports it.
  friend Real operator/(Real a, Real b);
  friend constexpr Real operator-(Real a) { return Real(-a.value_); }

  friend constexpr bool operator==(Real a, Real b) { return a.value_ == b.value_; }
  friend constexpr std::partial_ordering operator<=>(Real a, Real b) { return a.value_ <=> b.value_; }

 private:
  double value_;
};

// The square root; a negative argument faults (invalid call).
Real Sqr(Real x);
// The arctangent, in radians.
Real Atn(Real x);
Real Sin(Real x);
Real Cos(Real x);
Real Tan(Real x);
Real Abs(Real x);
// The natural logarithm; an argument <= 0 faults (invalid call).
Real Ln(Real x);
// x ^ y: a negative base with a fractional exponent, or 0 to a negative
// power, faults (invalid call); a result too large faults (overflow).
Real Pow(Real x, Real y);

}  // namespace velmora::geometry
