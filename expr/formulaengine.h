#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace velmora::expr {

// The formula engine: a small stack machine driven by text. A form assigns a
// formula and reads a number back. Plain expressions are evaluated; the
// command formulas "Push(v)", "PopAll()", "diff(f)", "Intg(f)" and "Trap(f)"
// work on the value stack. It shows no message of its own: an undefined value
// comes back as a fault (Faulted() true, Result() a quiet NaN) or as a value
// that is not finite.
//
// The language is the one of expr/formulacompiler.h: both the upper-case
// evaluation spelling with the value already put in ("SIN((1.25))",
// "EP((-0.5))^2", "PI(1)*(2)") and the lower-case spelling of command bodies
// ("sin(x)", "(x)^2", "pi*(x)", "e^(x)"), names in any letter case, numbers
// with "." and an optional exponent. Every arithmetic step is checked: a step
// that is not finite, or a function that faults, makes the formula a fault.
//
// Commands, each only as a whole formula (names in any case, blanks allowed):
//   Push(v)   evaluates v (a number or any constant expression) and pushes it;
//             Result is the value pushed. The stack holds at most kMaxStack values.
//   PopAll()  empties the stack; Result is 0.
//   diff(f)   the first derivative of f at the value pushed last; the value
//             pushed before it (always 2000) is the number of steps per unit,
//             so the step is 1/2000, and the rule is the five-point central
//             difference (expr/formulacalculus.h).
//   Intg(f)   Simpson's rule; the three values pushed last are, in push order,
//             the segment count, the lower bound and the upper bound.
//   Trap(f)   the same inputs; Result is the plain trapezoid sum
//             f(a)/2 + f(x1) + ... + f(b)/2, which the caller multiplies by
//             (b - a) / segments.
// The commands read the stack and leave it as it is; "PopAll()" ends every
// use. In a body the variable is written x, X, k or K (bare, in brackets, or
// joined to a function name as in "SinK"). A command with too few values on
// the stack, a variable outside a body, and an unknown command are faults.
//
// Compiled formulas are cached by shape (the text with its number literals
// taken out), so a plot's per-pixel formulas cost a scan, a lookup and a run
// of the cached program; the values are bit for bit those of a fresh compile.
class FormulaEngine {
 public:
  // What the formula last assigned was.
  enum class Kind { Value, Push, PopAll, Derivative, Integral, TrapezoidSum };

  static constexpr std::size_t kMaxStack = 65536;

  FormulaEngine();
  // `cacheShapes` false compiles every formula afresh: the reference the
  // cache is tested against.
  explicit FormulaEngine(bool cacheShapes);
  ~FormulaEngine();
  FormulaEngine(const FormulaEngine&) = delete;
  FormulaEngine& operator=(const FormulaEngine&) = delete;

  // Assigns and evaluates a formula.
  void SetFormula(std::string_view text);
  // The value of the formula last assigned; reading it twice gives the same value.
  double Result() const;
  // True when the formula last assigned could not be evaluated.
  bool Faulted() const;

  // The kind of the formula last assigned (Value for a text that is no command).
  Kind LastKind() const;
  // Values on the stack.
  std::size_t StackSize() const;
  // Shapes held by the cache (0 when caching is off).
  std::size_t CachedShapes() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace velmora::expr
