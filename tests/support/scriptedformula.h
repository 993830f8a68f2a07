#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "expr/fault.h"
#include "expr/formulacontrol.h"

namespace velmora::testing {

// A formula control whose values come from a test's function of the formula
// text: nothing means the engine faults. Every formula sent is recorded, so
// a test can check the text and the order of the calls ("PopAll()" after
// each use, the derivative's pushes).
class ScriptedFormula final : public expr::FormulaControl {
 public:
  using Script = std::function<std::optional<double>(std::string_view formula)>;
  explicit ScriptedFormula(Script script) : script_(std::move(script)) {}

  void SetFormula(std::string_view text) override {
    sent_.emplace_back(text);
    if (text == "PopAll()") {
      pushes_.clear();
      return;
    }
    if (text.rfind("Push(", 0) == 0) {
      pushes_.push_back(std::stod(std::string(text.substr(5, text.size() - 6))));
      return;
    }
    value_ = script_(text);
  }
  double Result() override {
    if (!value_) throw expr::Fault(expr::Fault::kInvalidCall);
    return *value_;
  }

  const std::vector<std::string>& Sent() const { return sent_; }
  // The numbers pushed since the last "PopAll()".
  const std::vector<double>& Pushes() const { return pushes_; }
  void ClearSent() { sent_.clear(); }

 private:
  Script script_;
  std::optional<double> value_;
  std::vector<std::string> sent_;
  std::vector<double> pushes_;
};

// The number inside the first bracket of a formula: what a window put in
// for its variable ("SIN((0.5))" gives 0.5).
inline double BracketedNumber(std::string_view formula) {
  const auto open = formula.find_last_of('(');
  const auto close = formula.find(')', open);
  return std::stod(std::string(formula.substr(open + 1, close - open - 1)));
}

}  // namespace velmora::testing
