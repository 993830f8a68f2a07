#pragma once

#include <memory>
#include <string_view>

namespace velmora::expr {

// The formula engine: a small stack machine driven by text. A form assigns a
// formula and reads a number back. Plain expressions are evaluated; the
// command formulas "Push(v)", "PopAll()", "diff(f)", "Intg(f)" and "Trap(f)"
// work on the value stack. It shows no message of its own: an undefined value
// comes back as a fault (Faulted() true, Result() a quiet NaN) or as a value
// that is not finite.
class FormulaEngine {
 public:
  FormulaEngine();
  ~FormulaEngine();
  FormulaEngine(const FormulaEngine&) = delete;
  FormulaEngine& operator=(const FormulaEngine&) = delete;

  // Assigns and evaluates a formula.
  void SetFormula(std::string_view text);
  // The value of the formula last assigned; reading it twice gives the same value.
  double Result() const;
  // True when the formula last assigned could not be evaluated.
  bool Faulted() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace velmora::expr
