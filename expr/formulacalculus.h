#pragma once

#include <functional>

// The numerical rules behind the engine's "diff(", "Intg(" and "Trap("
// commands. Each takes the function as a callable that returns a quiet NaN
// when the function faults at a point; each returns NaN (a fault) when any
// value it needs faults or when a step of its own arithmetic is not finite.
namespace velmora::expr {

using RealFunction = std::function<double(double)>;

// The most segments an integral takes. The integral window caps its own count
// at 2000; the bound keeps a stray push from tying the program up for minutes.
inline constexpr double kMaxSegments = 65536;

// The step of the derivative for the number pushed first before every
// derivative (always 2000). The number is read as steps per unit length, and
// the step is the power of two nearest to 1 / parameter: 2^-11 (0.00048828125)
// for 2000. A power of two keeps x +- h and x +- 2h exact for ordinary x, so
// the rule below is exact for low polynomials (diff(x^2) at 1 is 2). NaN for
// a parameter that is not above 0.
double DerivativeStep(double parameter);

// The first derivative of f at x, by the five-point central difference
//   f'(x) = ((f(x - 2h) - f(x + 2h)) + 8 (f(x + h) - f(x - h))) / (12 h)
// with h = DerivativeStep(parameter). It is exact for polynomials up to
// degree four (up to rounding) and otherwise within about h^4 / 30 times the
// fifth derivative (about 2E-15 for sin), with a rounding error near
// 1E-16 * |f| / h. Every point must be defined: at the edge of a domain
// (sqr(x) at 0) the derivative faults.
double Derivative(const RealFunction& f, double parameter, double x);

// The segment count as the commands read it: rounded to the nearest integer
// (ties to even), or 0 when it is not between 1 and kMaxSegments.
long SegmentCount(double segments);

// Simpson's rule from a to b (signed: b < a gives the negative) over the
// rounded segment count; an odd count is raised by one, since Simpson's rule
// pairs the segments.
double SimpsonIntegral(const RealFunction& f, double segments, double a, double b);

// The plain trapezoid sum f(a)/2 + f(x1) + ... + f(x(n-1)) + f(b)/2 over n
// equal segments, not multiplied by the width: the integral window scales it
// by (max - min) / segments itself.
double TrapezoidSum(const RealFunction& f, double segments, double a, double b);

}  // namespace velmora::expr
