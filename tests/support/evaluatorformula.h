#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "expr/evaluator.h"
#include "expr/fault.h"
#include "expr/replacetext.h"
#include "tests/support/evaluatorstate.h"
#include "tests/support/scriptedformula.h"

namespace velmora::testing {

// A script for ScriptedFormula that computes plain values with the
// program's text evaluator (silent; any error is a fault) and "diff(f)" as a
// central difference at the last pushed point. It lets the graph logic be
// tested on real functions without the formula engine.
// A window with empty fraction fields: powers are plain powers.
class PlainPowerWindow final : public expr::ActiveWindow, public expr::GraphFields {
 public:
  expr::GraphFields* ActiveGraph() override { return this; }
  std::string TxtImenilac() override { return {}; }
  std::string TxtY3() override { return {}; }
  std::string TxtY2() override { return {}; }
  std::string LblY3() override { return {}; }
  void Boje2() override {}
  void Boje3() override {}
};

inline ScriptedFormula::Script EvaluatorScript(ScriptedFormula*& self) {
  return [&self](std::string_view formula) -> std::optional<double> {
    static PlainPowerWindow window;
    expr::Evaluator evaluator(nullptr, &window);
    const auto value = [&evaluator](const std::string& text) -> std::optional<double> {
      try {
        const double v = evaluator.Evaluate(text, true);
        if (evaluator.Error() != 0) return std::nullopt;
        return v;
      } catch (const expr::Fault&) {
        return std::nullopt;
      }
    };
    if (formula.rfind("diff(", 0) == 0) {
      const std::string f(formula.substr(5, formula.size() - 6));
      const double x = self->Pushes().back();
      const double h = 1e-5;
      const auto a = value(expr::ReplaceAll(f, "x", "(" + std::to_string(x - h) + ")"));
      const auto b = value(expr::ReplaceAll(f, "x", "(" + std::to_string(x + h) + ")"));
      if (!a || !b) return std::nullopt;
      return (*b - *a) / (2 * h);
    }
    return value(std::string(formula));
  };
}

}  // namespace velmora::testing
