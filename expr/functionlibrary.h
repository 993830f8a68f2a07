#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

// The vocabulary of the expression language: every one-argument function and
// constant, shared by the text evaluator and the formula engine so that both
// compute the same value for the same name.
namespace velmora::expr {

enum class Fn : std::uint8_t {
  // Powers and roots.
  Square,
  Cube,
  Fourth,
  Fifth,
  Sqrt,
  Nil,   // NIL: x^(2/3), of |x| for a negative x
  Cbr,   // CBR: the real cube root
  Cbr2,  // CBR2: one over the real cube root
  Qvr,   // QVR: the fourth root ("quartic root")
  Pbr,   // PBR: the real fifth root ("pentic root")
  // Trigonometric and plain functions.
  Sin,
  Cos,
  Tan,
  Cot,
  Sec,
  Csc,
  Atn,
  Asin,
  Acos,
  Acot,
  Exp,
  Ln,
  Log,
  Fix,
  Int,
  Sgn,
  Abs,
  Rnd,
  // Inverse secant and cosecant, with the sentinel value outside their domain.
  Asec,
  Acsc,
  // Hyperbolic functions, built from exponentials.
  HSin,
  HCos,
  HTan,
  HSec,
  HCsc,
  HCot,
  HAsin,
  HAcos,
  HAtan,
  HAsec,
  HAcsc,
  HAcot,
  // Series and curves, gamma and factorial.
  Stef,   // STEF: 10 sin x cos x, the curve of the example of that name
  Four,   // FOUR: a Fourier series of a square wave
  Blanc,  // BLANC: the Blancmange (Takagi) curve
  Gamma,
  Beta,
  Fac,
  // Clock functions: the argument is evaluated and ignored.
  Timer,
  Year,
  Month,
  Day,
  Weekday,
  Hour,
  Minute,
  Second,
  // Constants, called with a dummy argument: PI(1), D(1), E(1).
  Pi,
  Degree,
  E,
  // Names only the formula engine knows: degrees to radians and back.
  Rad,
  Deg,
};

struct FunctionName {
  std::string_view name;  // upper case
  Fn fn;
};

// The names the text evaluator compares, in the order it compares them.
std::span<const FunctionName> EvaluatorFunctionNames();

// Looks up an upper-case name among the evaluator's names (exact match).
std::optional<Fn> FindEvaluatorFunction(std::string_view upperName);

// Looks up a name for the formula engine: any letter case, the evaluator's
// names plus the engine's own spellings (STL for FIX, RAD, DEG).
std::optional<Fn> FindEngineFunction(std::string_view name);

// The value the inverse secant and cosecant give outside their domain. It
// also tells the active graph window to hide the point.
inline constexpr double kSentinel = 100.0;

// True when Asec or Acsc is outside its domain at x (and so gives kSentinel):
// |x| < 1 for Asec, |x| <= 1 for Acsc. False for every other function.
bool OutsideSentinelDomain(Fn fn, double x);

// Computes fn(x). A computation that faults (division by zero, overflow, an
// argument outside the domain of a primitive, a failed range check) gives a
// quiet NaN: every operation is checked, so a fault in any step makes the
// whole value a fault even where plain floating point would recover.
double Apply(Fn fn, double x);

// factorial2(n): 1 for n = 0, n * factorial2(n - 1) for n > 0 in floats
// (170 is the last that does not overflow), 0 for n < 0. NaN on overflow.
double Factorial2(int n);

// The six-coefficient Lanczos gamma, written directly; NaN where it faults.
double Gamma(double x);

// (x + y) * Gamma(x + 1) * Gamma(y + 1) / (x * y * Gamma(x + y + 1)); NaN on fault.
double Beta(double x, double y);

// The uniform generator behind RND, with the usual selector: x < 0 restarts
// the sequence from x, x = 0 repeats the last value, x > 0 gives the next.
// Values are single precision in [0, 1). One sequence per process.
float NextRandom(double selector);

}  // namespace velmora::expr
