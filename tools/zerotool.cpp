#include "tools/zerotool.h"

#include <cmath>

#include "expr/checked.h"
#include "expr/normalise.h"
#include "expr/numtext.h"

namespace velmora::tools {
namespace {

constexpr const char* kTitle = "Velmora";
// Beyond this a solved Y shows "Error".
constexpr double kLargestY = 1e38 * 1.23456789012346;

std::string Text(double value) { return expr::NumberToText(value); }

}  // namespace

std::string ZeroTool::Expression() const {
  if (kind_ != ZeroKind::Intersection) return expr::ToolTextForm(inputs_.function);
  if (inputs_.function.empty() || inputs_.function2.empty() || inputs_.function == inputs_.function2)
    return {};
  return expr::ToolTextForm(inputs_.function + "-(" + inputs_.function2 + ")");
}

void ZeroTool::Close() {
  newton_.SetFormula("PopAll()");
  other_.SetFormula("PopAll()");
}

void ZeroTool::Calculate(const NewtonSearch::Pulse& pulse) {
  const std::string expression = Expression();
  if (kind_ == ZeroKind::Intersection && expression.empty()) {
    messages_.Show("Please select two different functions.", kTitle, platform::MsgIcon::Information);
    return;
  }
  if (kind_ == ZeroKind::PointEvaluate && !inputs_.rangeMode) {
    SolveForY(expression);
    return;
  }
  if (!inputs_.rangeMode) {
    Guess(expression);
    return;
  }
  if (inputs_.target.empty() || inputs_.xmin.empty() || inputs_.xmax.empty()) {
    messages_.Show(
        kind_ == ZeroKind::PointEvaluate ? "Value for Y or range not defined" : "Range not defined", kTitle,
        platform::MsgIcon::Information);
    return;
  }
  double xmin = 0;
  double xmax = 0;
  double target = 0;
  expr::ResumeNext(
      [&] { xmin = expr::RoundTo(search_.Evaluate(inputs_.xmin), NewtonSearch::kBoundDecimals); });
  expr::ResumeNext(
      [&] { xmax = expr::RoundTo(search_.Evaluate(inputs_.xmax), NewtonSearch::kBoundDecimals); });
  expr::ResumeNext([&] { target = search_.Evaluate(inputs_.target); });
  const std::string scanned = NewtonSearch::ScannedExpression(expression, target);
  NewtonSearch::Candidates candidates = search_.Scan(xmin, xmax, ScanStep(), scanned, pulse);
  const std::string range = "[" + Text(xmin) + "; " + Text(xmax) + "]";
  if (candidates.Empty()) {
    switch (kind_) {
      case ZeroKind::Zeros: Append("Zeros not found in range " + range); break;
      case ZeroKind::Intersection: Append("Intersections not found in range " + range); break;
      case ZeroKind::PointEvaluate:
        messages_.Show(
            "Values for Y not found in range " + range + "\r\nPlease try to redefine range or search value.",
            kTitle, platform::MsgIcon::None);
        Append("NotFound in range " + range);
        break;
    }
    return;
  }
  // Zeros and Intersection refine on the function itself (the target is
  // always 0 there); Point Evaluate keeps the target.
  const std::string refined = kind_ == ZeroKind::PointEvaluate ? scanned : expression;
  for (const std::string& item : NewtonSearch::Merge(std::move(candidates))) {
    const double value = expr::TextToNumber(item);
    if (value < xmin || value > xmax) continue;  // a zero Newton found outside the range
    const std::string zero = RefineZero(item, refined);
    switch (kind_) {
      case ZeroKind::Zeros: Append("Zero:  X = " + zero); break;
      case ZeroKind::Intersection: Append("Intersection: X = " + zero); break;
      case ZeroKind::PointEvaluate: Append(" X = " + zero + " for Y = " + Text(target)); break;
    }
  }
}

void ZeroTool::Guess(const std::string& expression) {
  if (inputs_.guess.empty()) {
    messages_.Show("Value for X (Guess) not defined.\r\n", kTitle, platform::MsgIcon::None);
    return;
  }
  double guess = 0;
  expr::ResumeNext([&] { guess = search_.Evaluate(inputs_.guess); });
  const double x = search_.NewtonSeries(guess, expression);
  const double f = search_.ValueOr(expression, x, 0);
  const bool zero = NewtonSearch::IsZeroResidual(f);
  std::string xText;
  if (zero) expr::ResumeNext([&] { xText = Text(expr::RoundTo(x, Decimals())); });
  if (kind_ == ZeroKind::Intersection) {
    Append(zero ? "Intersection:  X = " + xText : "Intersection not found near the X = " + Text(guess) + ".");
  } else {
    Append(zero ? "Zero:  X = " + xText : "Zero not found near the X = " + Text(guess) + ".");
  }
}

void ZeroTool::SolveForY(const std::string& expression) {
  if (inputs_.guess.empty()) {
    messages_.Show("Value for X not defined.", kTitle, platform::MsgIcon::Information);
    return;
  }
  double x = 0;
  double y = 0;
  expr::ResumeNext([&] { x = search_.Evaluate(inputs_.guess); });
  y = search_.ValueOr(expression, x, y);
  const std::string yText = Text(y);
  if (expr::PrcniFunc(yText)) {
    Append(yText + " ; X = " + Text(x));
  } else if (std::fabs(y) > kLargestY) {
    Append("Error ; X = " + Text(x));
  } else {
    Append(" Y = " + yText + " ; X = " + Text(x));
  }
}

std::string ZeroTool::RefineZero(const std::string& item, const std::string& expression) {
  if (item.empty()) return {};
  double start = 0;
  expr::ResumeNext([&] { start = search_.Evaluate(item); });
  const double x = search_.NewtonSeries(start, expression);
  const double f = search_.ValueOr(expression, x, 0);
  std::string text;
  if (NewtonSearch::IsZeroResidual(f)) expr::ResumeNext([&] { text = Text(expr::RoundTo(x, Decimals())); });
  return text;
}

}  // namespace velmora::tools
