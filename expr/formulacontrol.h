#pragma once

#include <memory>
#include <string_view>

namespace velmora::expr {

// The formula engine as a window drives it (`Evaluator1`, `Evaluator2`):
// assign a formula, read the result, send "PopAll()". Reading Result faults
// (expr::Fault) when the formula could not be evaluated, which is how the
// windows' traps see a failed value; a value that is not finite comes back
// as it is. Windows hold it through this interface so that a test can put a
// scripted engine in its place.
class FormulaControl {
 public:
  virtual ~FormulaControl() = default;
  virtual void SetFormula(std::string_view text) = 0;
  virtual double Result() = 0;
};

// A control over the program's formula engine (expr::FormulaEngine).
std::unique_ptr<FormulaControl> MakeFormulaControl();

}  // namespace velmora::expr
