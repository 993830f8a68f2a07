#pragma once

#include <string>
#include <string_view>

#include "expr/graphfields.h"
#include "platform/messagebox.h"

namespace velmora::expr {

// The program's own recursive text evaluator. It keeps no tree and no
// variables: every read of Result walks the prepared text again, cutting it
// into sums, terms and factors. Its grammar is deliberately narrow (no second
// "^", no sign after an operator, no implied product, no exponent numbers);
// the normalisation chains bring typed text into this form.
class Evaluator {
 public:
  // Error codes.
  static constexpr int kOk = 0;
  static constexpr int kDecimalSeparator = 1;
  static constexpr int kSyntax = 2;
  static constexpr int kSymbols = 4;
  static constexpr int kBrackets = 8;
  static constexpr int kRuntime = 16;

  // `messages` shows the boxes of the loud variants; `window` is the frame's
  // active child for rational powers and the pen routines. Either may be
  // null: with no window, a field read faults (error 16); with no message
  // box, nothing is shown.
  explicit Evaluator(platform::MessageBox* messages = nullptr, ActiveWindow* window = nullptr);

  // Strips spaces, upper-cases, and turns every "." into ",".
  void SetExpression(std::string_view text);
  const std::string& Expression() const { return expression_; }
  int Error() const { return error_; }
  // Clears Error, evaluates Expression again, stores and returns the value.
  double Result();
  bool Assigned() const { return assigned_; }

  double Evaluate(std::string_view text, bool silent);
  double Evaluate3(std::string_view text, bool silent);

  static std::string ReplaceText(std::string_view text, std::string_view find, std::string_view replace);
  // Faults (expr::Fault) when the last character is no digit.
  static bool IsItOdd(std::string_view text);
  static bool IsNumber(std::string_view value);
  static std::string MidMbcs(std::string_view text, int start, int length);
  // These fault (expr::Fault) where the function library gives a fault.
  static double factorial2(int n);
  static double Gamma(double x);
  static double Beta(double x, double y);

  // The argument that Evaluate3's failure message names, and the flag it
  // sets after every failure it reports; the drawing loops read the flag.
  static void SetCurrentArgument(std::string argument);
  static bool& FailureFlag();

 private:
  double EvalSum(std::string_view text);
  // ... private steps of the evaluation, added by the implementation.

  platform::MessageBox* messages_;
  ActiveWindow* window_;
  bool assigned_ = false;
  std::string expression_;
  double result_ = 0.0;
  int error_ = kOk;
};

}  // namespace velmora::expr
