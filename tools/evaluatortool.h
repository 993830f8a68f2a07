#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "expr/formulacontrol.h"
#include "platform/messagebox.h"

namespace velmora::tools {

// The Evaluator window (`frmTast`): a one-line calculator over the formula
// engine with a history of results, value substitution for X and a chosen
// number of decimals shown.
class EvaluatorTool {
 public:
  // The names of the "Functions:" list, in order.
  static const std::array<std::string_view, 40>& FunctionNames();
  // At and beyond this a result shows "Error".
  static constexpr double kLargestResult = 1e38 * 1.23456789012346;

  EvaluatorTool(expr::FormulaControl& engine, platform::MessageBox& messages)
      : engine_(engine), messages_(messages) {}

  std::string expression;  // `Text1`
  std::string xValue;      // `Text2`
  // The expressions evaluated, the list of `Text1`.
  std::vector<std::string> list;

  // "Evaluate": sets the result label and appends "expression = label" to the
  // history. Nothing happens for an empty expression. Returns whether it ran.
  bool Evaluate();
  // "Replace": the X value put into the expression in place of every x
  // (and k), "exp" and "fix" kept whole. False with the message when a box
  // is empty.
  bool Replace();
  // The accuracy list changed: the label shows the last result rounded to
  // that many decimals (not when it is empty or shows "Error").
  void SetDecimals(int decimals);
  // "Clear" after its question was answered yes.
  void Clear();

  const std::string& ResultLabel() const { return label_; }
  // The history, each line ended by CR LF.
  const std::string& History() const { return history_; }
  double LastResult() const { return lastResult_; }
  const std::string& LastText() const { return lastText_; }

 private:
  expr::FormulaControl& engine_;
  platform::MessageBox& messages_;
  std::string label_;
  std::string history_;
  double lastResult_ = 0;
  std::string lastText_;
};

}  // namespace velmora::tools
