#include "tools/evaluatortool.h"

#include <cmath>

#include "base/asciicase.h"
#include "expr/checked.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"
#include "tools/toollists.h"

namespace velmora::tools {

const std::array<std::string_view, 40>& EvaluatorTool::FunctionNames() {
  static constexpr std::array<std::string_view, 40> kNames = {
      "Exp",  "Ln",   "Log",   "Sqr",  "Sin",   "Cos",   "Tan",   "Cot",   "Sec",   "Csc",
      "Rad",  "Deg",  "Asin",  "Acos", "Atan",  "Acot",  "Asec",  "Acsc",  "HSin",  "HCos",
      "HTan", "HSec", "HCsc",  "HCot", "HAsin", "HAcos", "HAtan", "HAsec", "HAcsc", "HAcot",
      "Stef", "Four", "Gamma", "Beta", "Blanc", "Abs",   "Int",   "Fac",   "Cel",   "Fah"};
  return kNames;
}

bool EvaluatorTool::Evaluate() {
  if (expression.empty()) return false;
  engine_.SetFormula(expression);
  double result = 0;
  if (!expr::ResumeNext([&] { result = engine_.Result(); })) {
    // A formula the engine cannot evaluate ends the command.
    engine_.SetFormula("PopAll()");
    return false;
  }
  const std::string text = expr::NumberToText(result);
  lastText_ = expr::PrcniFunc(text) ? text : std::string();
  if (!lastText_.empty()) {
    label_ = lastText_;
  } else if (std::fabs(result) >= kLargestResult) {
    label_ = "Error";
  } else {
    label_ = text;
  }
  lastResult_ = result;
  engine_.SetFormula("PopAll()");
  AddUnique(list, expression);
  history_ += expression + " = " + label_ + "\r\n";
  return true;
}

bool EvaluatorTool::Replace() {
  if (expression.empty() || xValue.empty()) {
    messages_.Show("Enter Function and value for X.", "Velmora", platform::MsgIcon::Information);
    return false;
  }
  AddUnique(list, expression);
  std::string text = base::LowerCase(expression);
  const std::string value = "(" + xValue + ")";
  const std::pair<std::string_view, std::string_view> steps[] = {
      {" ", ""}, {"exp", "ep"}, {"fix", "stl"}, {"k", "x"}, {"x", value}, {"ep", "exp"}, {"stl", "fix"}};
  for (const auto& [find, replace] : steps) text = expr::ReplaceAll(base::LowerCase(text), find, replace);
  expression = text;
  return true;
}

void EvaluatorTool::SetDecimals(int decimals) {
  if (label_.empty() || label_ == "Error") return;
  expr::ResumeNext([&] { label_ = expr::NumberToText(expr::RoundTo(lastResult_, decimals)); });
}

void EvaluatorTool::Clear() {
  expression.clear();
  xValue.clear();
  history_.clear();
  label_.clear();
}

}  // namespace velmora::tools
