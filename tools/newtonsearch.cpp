#include "tools/newtonsearch.h"

#include <cmath>

#include "expr/checked.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"
#include "graph/forstep.h"
#include "tools/toollists.h"

namespace velmora::tools {

double NewtonSearch::ValueAt(expr::FormulaControl& control, const std::string& expression, double x) {
  control.SetFormula(expr::ReplaceAll(expression, "x", expr::NumberToText(x)));
  double value = 0;
  const bool ok = expr::ResumeNext([&] { value = control.Result(); });
  control.SetFormula("PopAll()");
  if (!ok) throw expr::Fault(expr::Fault::kInvalidCall);
  return value;
}

double NewtonSearch::Evaluate(std::string_view text) {
  other_.SetFormula(text);
  double value = 0;
  const bool ok = expr::ResumeNext([&] { value = other_.Result(); });
  other_.SetFormula("PopAll()");
  if (!ok) throw expr::Fault(expr::Fault::kInvalidCall);
  return value;
}

double NewtonSearch::NewtonSeries(double start, const std::string& expression) {
  double x = 0;
  expr::ResumeNext([&] { x = expr::TextToNumber(expr::NumberToText(start)); });
  double f = 0;
  double d = 0;
  double next = 0;
  for (int step = 0; step < kSteps; ++step) {
    expr::ResumeNext([&] { f = ValueAt(newton_, expression, x); });
    const std::string xText = expr::NumberToText(x);
    newton_.SetFormula("Push(2000)");
    newton_.SetFormula("Push(" + xText + ")");
    newton_.SetFormula("diff(" + expression + ")");
    expr::ResumeNext([&] { d = newton_.Result(); });
    newton_.SetFormula("PopAll()");
    expr::ResumeNext(
        [&] { next = expr::CheckedSub(x, expr::CheckedDiv(expr::Checked(f), expr::Checked(d))); });
    expr::ResumeNext([&] { x = expr::RoundTo(next, kIterateDecimals); });
  }
  return next;
}

double NewtonSearch::ValueOr(const std::string& expression, double x, double previous) {
  double value = previous;
  expr::ResumeNext([&] { value = ValueAt(other_, expression, x); });
  return value;
}

bool NewtonSearch::IsZeroResidual(double f) {
  bool zero = false;
  expr::ResumeNext([&] { zero = expr::RoundTo(f, kResidualDecimals) == 0; });
  return zero;
}

std::string NewtonSearch::ScannedExpression(const std::string& expression, double target) {
  if (target > 0) return expression + "-" + expr::NumberToText(target);
  if (target < 0) return expression + "+" + expr::NumberToText(-target);
  return expression;
}

NewtonSearch::Candidates NewtonSearch::Scan(double xmin, double xmax, double step, const std::string& scanned,
                                            const Pulse& pulse) {
  Candidates out;
  double f = 0;
  const double width = xmax - xmin;
  graph::ForStep(xmin, xmax, step, [&](double k) {
    double x = NewtonSeries(k, scanned);
    f = ValueOr(scanned, x, f);
    if (IsZeroResidual(f)) {
      x = NewtonSeries(k, scanned);
      std::string text;
      if (expr::ResumeNext([&] { text = expr::NumberToText(expr::RoundTo(x, kCandidateDecimals)); })) {
        if (x >= 0) AddUnique(out.positive, text);
        if (x <= 0) AddUnique(out.negative, text);
      }
    }
    if (!pulse) return true;
    const int percent = width > 0 ? static_cast<int>(100 * (k - xmin) / width) : 100;
    return pulse(percent);
  });
  return out;
}

std::vector<std::string> NewtonSearch::Merge(Candidates candidates) {
  std::vector<std::string> list = std::move(candidates.negative);
  for (const std::string& item : candidates.positive) AddUnique(list, item);
  RemoveNearValues(list);
  RemoveNearValues(list);
  RemoveDuplicates(list);
  return list;
}

}  // namespace velmora::tools
