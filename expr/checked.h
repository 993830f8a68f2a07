#pragma once

#include <cmath>
#include <limits>

#include "expr/fault.h"

// The program's checked floating-point arithmetic and its one fault policy.
// Every step is checked the moment it happens, as the platform's arithmetic
// is, so infinities and NaNs never come out of the program's own arithmetic:
//
//   a result that is not finite (an overflow, or an invalid operation such
//   as inf - inf or 0 * inf)                         Fault::kOverflow       (6)
//   x / 0 with x not 0                               Fault::kDivisionByZero (11)
//   0 / 0                                            Fault::kOverflow       (6)
//   a negative base to a fractional power, 0 to a
//   negative power, the square root of a negative
//   number, the logarithm of a number <= 0           Fault::kInvalidCall    (5)
//   a double narrowed to single precision beyond
//   its range                                        Fault::kOverflow       (6)
//
// Underflow is not a fault. Code that hands a fault on as a value instead of
// raising it uses kFaultValue (a quiet NaN) through FiniteOrFault.
namespace velmora::expr {

// The value itself when it is finite; otherwise faults as above.
double Checked(double value);

double CheckedAdd(double a, double b);
double CheckedSub(double a, double b);
double CheckedMul(double a, double b);
double CheckedDiv(double a, double b);
double CheckedPow(double base, double exponent);
double CheckedSqrt(double x);
double CheckedLog(double x);
double CheckedExp(double x);
float CheckedToSingle(double x);

// The value that stands for a fault where one is returned, not raised.
inline constexpr double kFaultValue = std::numeric_limits<double>::quiet_NaN();
// The value itself when it is finite, kFaultValue otherwise. Inline: the
// function library applies it to every sample of a plot.
inline double FiniteOrFault(double value) { return std::isfinite(value) ? value : kFaultValue; }

// Runs one statement in the "resume next" manner: a Fault it raises ends
// that statement only, and the caller goes on with the next one, the fields
// the statement assigned before the fault keeping what they got. Returns
// true when the statement ran to its end. Other exceptions pass through.
template <class Statement>
bool ResumeNext(Statement&& statement) {
  try {
    statement();
    return true;
  } catch (const Fault&) {
    return false;
  }
}

}  // namespace velmora::expr
