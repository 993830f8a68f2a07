#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/messagebox.h"
#include "expr/graphfields.h"

namespace velmora::expr {

// The program's own recursive text evaluator. It keeps no tree and no
// variables: every read of Result walks the prepared text again, cutting it
// into sums, terms and factors. Its grammar is deliberately narrow (no second
// "^", no sign after an operator, no implied product, no exponent numbers);
// the normalisation chains bring typed text into this form.
//
//   sum     = terms joined by "+" and "-" at bracket depth 0
//   term    = factors joined by "*" and "/" at bracket depth 0
//   factor  = [one sign or operator] operand ["^" operand], nothing after
//   operand = "(" sum ")" | number | NAME "(" sum ")"
//
// Errors are kept in Error (the first one found stands, except that text
// left behind a factor turns a 4 into a 2, and an unknown name turns the code
// of its argument into a 2); run-time faults inside a term or a function call
// are trapped as error 16 unless a code is already set. A function whose
// argument failed is not applied, so "LN(1E5)" keeps the argument's 4.
//
// One fault is not trapped: the additions of the outermost sum have no trap
// of their own, so a sum of finite terms that overflows (for example two
// 309-digit numbers) throws expr::Fault out of Result, Evaluate and
// Evaluate3. Callers that evaluate user text trap it themselves.
//
// Cutting works on slices of the prepared text, so a long line costs time in
// proportion to its length; brackets nested deeper than kMaxNesting count as
// the platform's "Out of stack space" fault, which gives error 16.
class Evaluator {
 public:
  // Error codes.
  static constexpr int kOk = 0;
  static constexpr int kDecimalSeparator = 1;
  static constexpr int kSyntax = 2;
  static constexpr int kSymbols = 4;
  static constexpr int kBrackets = 8;
  static constexpr int kRuntime = 16;

  // How many sums may be open inside each other (brackets and function
  // arguments) before the evaluation faults with kOutOfStackSpace.
  static constexpr int kMaxNesting = 1000;

  // `messages` shows the boxes of the loud variants; `window` is the frame's
  // active child for rational powers and the pen routines. Either may be
  // null: with no window, a field read faults (error 16); with no message
  // box, nothing is shown.
  explicit Evaluator(base::MessageBox* messages = nullptr, ActiveWindow* window = nullptr);

  // Strips spaces, upper-cases (ASCII letters only), and turns every "."
  // into ",".
  void SetExpression(std::string_view text);
  const std::string& Expression() const { return expression_; }
  int Error() const { return error_; }
  // Clears Error, evaluates Expression again, stores and returns the value.
  // Throws expr::Fault only for the untrapped outermost addition (see above);
  // then Result, Assigned and the stored value keep their previous state.
  double Result();
  bool Assigned() const { return assigned_; }

  // Sets Expression and reads Result. Loud (silent false): errors 1, 2, 4
  // and 8 show their message (critical icon, title "Error") and keep their
  // code; any other code is cleared to 0 without a message.
  double Evaluate(std::string_view text, bool silent);
  // As Evaluate, but a loud failure also sets FailureFlag, a run-time
  // failure shows the long "Evaluation failed." box naming the current
  // argument, and a clean result of exactly 100 shows "Undefined.".
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
  // Both back to their state at program start (no argument, flag down):
  // the test suites call it between tests.
  static void ResetModuleState();

  // The messages of the error codes, and the lines of Evaluate3's failure
  // box, as shown to the user.
  static std::string_view ErrorMessage(int code);
  static std::string EvaluationFailedMessage();
  static constexpr std::string_view kErrorTitle = "Error";
  static constexpr std::string_view kUndefinedMessage = "Undefined.";
  // The title of the "Undefined." box, which names none of its own: the
  // program's name, as an untitled box shows it.
  static constexpr std::string_view kUndefinedTitle = "Velmora";

 private:
  // The unit tests reach the private steps through this.
  friend struct EvaluatorSteps;

  static std::string RemoveSpaces(std::string_view text);
  double EvalSum(std::string_view text);
  std::vector<std::string_view> SplitTerms(std::string_view text, char opA, char opB);
  double EvalTerm(std::string_view text);
  double EvalFactor(std::string_view text, char& op);
  double ParseNumber(std::string_view& text);
  std::optional<std::size_t> FindOperator(std::string_view text, char opA, char opB, std::size_t start);
  std::string_view ExtractBracket(std::string_view& text);
  std::string_view GetFunctionName(std::string_view& text, std::string_view& inner);
  double EvalFunction(std::string_view name, std::string_view inner);
  static bool IsOddValue(double x);

  // An operand of a factor: a bracket, a number or a function call, chosen
  // by the first character of `text`; shortens `text` by what it reads.
  double ReadOperand(std::string_view& text);
  // a^b, through the rational-power table when the window's fields say so.
  double Power(double a, double b);
  // The active graph window's fields; faults when there is none.
  GraphFields& Graph();
  // Index of the ")" that closes the "(" at `text[open]`, when it lies in
  // `text`; found through the bracket map of the whole expression.
  std::optional<std::size_t> ClosingBracket(std::string_view text, std::size_t open) const;
  void MapBrackets();

  base::MessageBox* messages_;
  ActiveWindow* window_;
  bool assigned_ = false;
  std::string expression_;
  double result_ = 0.0;
  int error_ = kOk;
  // For each "(" of expression_, the index of its ")" (or npos): every slice
  // the evaluation cuts lies in expression_, so one map serves them all.
  std::vector<std::size_t> closing_;
  int depth_ = 0;  // sums open inside each other
};

}  // namespace velmora::expr
