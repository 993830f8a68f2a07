#include "tools/integraltool.h"

#include <cmath>

#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/normalise.h"
#include "expr/numtext.h"

namespace velmora::tools {
namespace {

constexpr const char* kTitle = "Velmora";

}  // namespace

double IntegralTool::Evaluate(const std::string& text) {
  engine_.SetFormula(text);
  double value = 0;
  const bool ok = expr::ResumeNext([&] { value = engine_.Result(); });
  engine_.SetFormula("PopAll()");
  if (!ok) throw expr::Fault(expr::Fault::kInvalidCall);
  return value;
}

std::string IntegralTool::Shown(double value) const {
  if (!std::isfinite(value) || std::fabs(value) > kLargestResult) return "Error";
  return expr::NumberToText(expr::RoundTo(value, decimals));
}

void IntegralTool::Integral() { Run(false); }
void IntegralTool::Average() { Run(true); }

void IntegralTool::Run(bool average) {
  if (integrand.empty() || minText.empty() || maxText.empty()) {
    messages_.Show("Please, Enter function and define range.", kTitle, platform::MsgIcon::Information);
    return;
  }
  try {
    const std::string expression = expr::ToolTextForm(integrand);
    const double min = Evaluate(minText);
    const double max = Evaluate(maxText);
    const std::string minT = expr::NumberToText(min);
    const std::string maxT = expr::NumberToText(max);
    std::string integrandText = expression;
    if (average) {
      const double inverse = expr::CheckedDiv(1.0, expr::CheckedSub(max, min));
      integrandText = "(" + expr::NumberToText(inverse) + ")*(" + expression + ")";
    }
    double count = expr::TextToNumber(segments);
    if (!(count > 0)) {
      count = average ? kAverageSegments : kIntegralSegments;
      segments = " " + expr::NumberToText(count);
    }
    const std::string countText = expr::NumberToText(count);
    engine_.SetFormula("Push(" + countText + ")");
    // The average pushes its bounds the other way round.
    engine_.SetFormula("Push(" + (average ? maxT : minT) + ")");
    engine_.SetFormula("Push(" + (average ? minT : maxT) + ")");
    double value = 0;
    if (simpson) {
      engine_.SetFormula("Intg(" + integrandText + ")");
      value = engine_.Result();
    } else {
      engine_.SetFormula("Trap(" + integrandText + ")");
      // The engine returns the plain sum; the window scales it.
      value = expr::CheckedDiv(expr::CheckedMul(engine_.Result(), expr::CheckedSub(max, min)), count);
    }
    fullIntegral_ = expr::NumberToText(value);
    resultText_ = Shown(value);
    engine_.SetFormula("PopAll()");
    caption_ = average ? "Average:" : "Integral:";
  } catch (const expr::Fault& fault) {
    engine_.SetFormula("PopAll()");
    messages_.Show(fault.what(), kTitle, platform::MsgIcon::None);
  }
}

void IntegralTool::Derivative() {
  if (derivand.empty() || point.empty()) {
    messages_.Show("Please, enter function and point value.", kTitle, platform::MsgIcon::Information);
    return;
  }
  try {
    const std::string expression = expr::ToolTextForm(derivand);
    const std::string at = expr::NumberToText(Evaluate(point));
    engine_.SetFormula("PopAll()");
    engine_.SetFormula("Push(2000)");
    engine_.SetFormula("Push(" + at + ")");
    engine_.SetFormula("diff(" + expression + ")");
    const double value = engine_.Result();
    fullDerivative_ = expr::NumberToText(value);
    derivativeText_ = Shown(value);
    engine_.SetFormula("PopAll()");
  } catch (const expr::Fault& fault) {
    engine_.SetFormula("PopAll()");
    messages_.Show(fault.what(), kTitle, platform::MsgIcon::None);
  }
}

bool IntegralTool::SegmentsChanged() {
  if (expr::TextToNumber(segments) <= kMaxSegments) return false;
  messages_.Show("Please, define step in range [200 ; 2000].", "Invalid Input",
                 platform::MsgIcon::Information);
  segments = " 2000";
  return true;
}

void IntegralTool::SetDecimals(int value) {
  decimals = value;
  const auto reround = [this](std::string& shown, const std::string& full) {
    if (expr::TextToNumber(shown) == 0 || full.empty()) return;
    expr::ResumeNext([&] { shown = Shown(expr::TextToNumber(full)); });
  };
  reround(derivativeText_, fullDerivative_);
  reround(resultText_, fullIntegral_);
}

void IntegralTool::IntegralInputEdited() {
  resultText_.clear();
  fullIntegral_.clear();
}

void IntegralTool::DerivativeInputEdited() {
  derivativeText_.clear();
  fullDerivative_.clear();
}

}  // namespace velmora::tools
