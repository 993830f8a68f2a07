#pragma once

#include <string>
#include <string_view>

#include "expr/formulacontrol.h"
#include "platform/messagebox.h"
#include "tools/newtonsearch.h"

namespace velmora::tools {

// Which window the search serves: Zeros (`frmNjutn`), Intersection
// (`frmNjutnDve`, the zeros of the difference of two functions) or Point
// Evaluate (`frmEvalPoint`, a value at X, or the X of a given value).
enum class ZeroKind { Zeros, Intersection, PointEvaluate };

// The boxes of the window as typed.
struct ZeroInputs {
  std::string function;           // `Text1`
  std::string function2;          // `Text7`, Intersection only
  bool rangeMode = false;         // `Option1(1)`: the range scan (Point Evaluate: solve for X)
  std::string guess;              // `Text2`: the guess, or Point Evaluate's value for X
  std::string xmin;               // `Text5`
  std::string xmax;               // `Text6`
  std::string target = "0";       // `Text4`: hidden and "0" except in Point Evaluate
  bool increaseAccuracy = false;  // `Check1`
};

// The Calculate command of the three windows over NewtonSearch. Results are
// appended to a running log (`Text3`), lines ended by CR LF; the two
// messages of empty inputs go through the message box.
class ZeroTool {
 public:
  ZeroTool(ZeroKind kind, expr::FormulaControl& newton, expr::FormulaControl& other,
           platform::MessageBox& messages)
      : kind_(kind), newton_(newton), other_(other), search_(newton, other), messages_(messages) {}

  ZeroKind Kind() const { return kind_; }
  ZeroInputs& Inputs() { return inputs_; }
  const ZeroInputs& Inputs() const { return inputs_; }
  const std::string& Log() const { return log_; }
  // The user's edits of the log box.
  void SetLog(std::string text) { log_ = std::move(text); }

  // "Calculate" (Enter in any input box). `pulse` is called for each start
  // of a range scan; it returns false to stop the scan early.
  void Calculate(const NewtonSearch::Pulse& pulse = {});
  // Closing the window: "PopAll()" to both controls.
  void Close();

  // Scan step and decimals of a reported zero by the accuracy setting.
  double ScanStep() const { return inputs_.increaseAccuracy ? 0.2 : 0.5; }
  int Decimals() const { return inputs_.increaseAccuracy ? 10 : 5; }

  // The expression searched, in tool text form: the function, or for
  // Intersection "Text1-(Text7)". Empty when Intersection refuses the pair.
  std::string Expression() const;

 private:
  void Guess(const std::string& expression);
  void Range(const std::string& expression);
  void SolveForY(const std::string& expression);
  // The zero near a candidate, as its log text: the number rounded to the
  // accuracy's decimals, or "" when the run from it ends on no zero.
  std::string RefineZero(const std::string& item, const std::string& expression);
  void Append(const std::string& line) { log_ += line + "\r\n"; }

  ZeroKind kind_;
  expr::FormulaControl& newton_;
  expr::FormulaControl& other_;
  NewtonSearch search_;
  platform::MessageBox& messages_;
  ZeroInputs inputs_;
  std::string log_;
};

}  // namespace velmora::tools
