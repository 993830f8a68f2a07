#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "expr/formulacontrol.h"

namespace velmora::tools {

// The zero search shared by Zeros, Intersection and Point Evaluate: a short
// Newton run of a fixed five steps, and a scan of starting points over a
// range. Only a function value and a derivative at a point come from the
// formula engine; the run itself is the program's own. Every statement runs
// with faults ignored: a value that cannot be had leaves the one before it.
class NewtonSearch {
 public:
  static constexpr int kSteps = 5;
  static constexpr int kIterateDecimals = 12;
  // A residual that rounds to 0 at 2 decimals counts as a zero.
  static constexpr int kResidualDecimals = 2;
  static constexpr int kBoundDecimals = 1;
  static constexpr int kCandidateDecimals = 2;

  // `newton` runs the Newton steps (`Evaluator1`), `other` everything else
  // (`Evaluator2`).
  NewtonSearch(expr::FormulaControl& newton, expr::FormulaControl& other) : newton_(newton), other_(other) {}

  // The value of a tool-form expression at x: every "x" replaced by the
  // number's text, "PopAll()" after. Faults when the engine cannot evaluate.
  static double ValueAt(expr::FormulaControl& control, const std::string& expression, double x);
  // A typed expression evaluated on `other`, "PopAll()" after. Faults when
  // the engine cannot evaluate.
  double Evaluate(std::string_view text);

  // Five Newton steps from `start`, with no test for convergence; the
  // iterate is rounded to 12 decimals between steps and the last step is
  // returned unrounded. A step that fails (a zero derivative) keeps the
  // earlier iterate; a failure at the first step counts as 0.
  double NewtonSeries(double start, const std::string& expression);
  // The value of the expression at x on `other`, or `previous` when it
  // cannot be had.
  double ValueOr(const std::string& expression, double x, double previous);
  static bool IsZeroResidual(double f);

  // The expression scanned for a target value: expr - target, expr + (-target),
  // or expr itself at 0.
  static std::string ScannedExpression(const std::string& expression, double target);

  // The scan of starting points from xmin to xmax by `step`: a start whose
  // Newton run ends on a zero adds the zero, rounded to 2 decimals, to the
  // list of values >= 0 or of values <= 0 (an exact zero to both). Both
  // lists come back with their exact duplicates dropped. `pulse` is called
  // once for each start with the share done (0 to 100); it returns false to
  // stop the scan.
  struct Candidates {
    std::vector<std::string> positive;
    std::vector<std::string> negative;
    bool Empty() const { return positive.empty() && negative.empty(); }
  };
  using Pulse = std::function<bool(int percent)>;
  Candidates Scan(double xmin, double xmax, double step, const std::string& scanned, const Pulse& pulse = {});

  // The candidates as one list: the positive ones added to the negative ones,
  // near values thinned twice, exact duplicates dropped.
  static std::vector<std::string> Merge(Candidates candidates);

 private:
  expr::FormulaControl& newton_;
  expr::FormulaControl& other_;
};

}  // namespace velmora::tools
