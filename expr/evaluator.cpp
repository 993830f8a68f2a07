#include "expr/evaluator.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <utility>

#include "base/asciicase.h"
#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/functionlibrary.h"
#include "expr/numtext.h"
#include "expr/rationalpower.h"
#include "expr/replacetext.h"

namespace velmora::expr {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The module's state beside the class: the argument Evaluate3 names in its
// failure box and the flag it raises after every failure it reports.
struct ModuleState {
  std::string argument;
  bool failed = false;
};

ModuleState& Module() {
  static ModuleState state;
  return state;
}

// Each sum opened inside another (a bracket or a function argument) counts
// one level; past the limit the platform would run out of stack, and that is
// the fault this raises.
class NestingGuard {
 public:
  explicit NestingGuard(int& depth) : depth_(depth) {
    if (depth_ >= Evaluator::kMaxNesting) throw Fault(Fault::kOutOfStackSpace);
    ++depth_;
  }
  ~NestingGuard() { --depth_; }
  NestingGuard(const NestingGuard&) = delete;
  NestingGuard& operator=(const NestingGuard&) = delete;

 private:
  int& depth_;
};

// The messages of the error codes that have one.
struct ErrorText {
  int code;
  std::string_view text;
};
constexpr std::array kErrorTexts = {
    ErrorText{Evaluator::kDecimalSeparator, "Check decimal separator placement!"},
    ErrorText{Evaluator::kSyntax, "Check syntax!"},
    ErrorText{Evaluator::kSymbols, "Check symbols placement!"},
    ErrorText{Evaluator::kBrackets, "Check bracket placement!"},
};

// The lines of Evaluate3's failure box; the argument goes between the
// fourth line's two halves.
constexpr std::array<std::string_view, 4> kFailedLinesBefore = {
    "Evaluation failed.",
    "Probable reasons are:",
    "- Invalid input",
    "- Function is undefined for this argument (X = ",
};
constexpr std::string_view kFailedArgumentEnd = ")";
constexpr std::array<std::string_view, 2> kFailedLinesAfter = {
    "- In this form, function is undefined for negative argument.",
    "(Try to use PREDEFINED functions.)",
};

}  // namespace

Evaluator::Evaluator(base::MessageBox* messages, ActiveWindow* window)
    : messages_(messages), window_(window) {}

// ---------------------------------------------------------------------------
// Public surface

void Evaluator::SetExpression(std::string_view text) {
  expression_ = ReplaceText(base::UpperCase(RemoveSpaces(text)), ".", ",");
  MapBrackets();
}

double Evaluator::Result() {
  error_ = kOk;
  depth_ = 0;
  // The outermost sum runs without a trap: a fault of its additions leaves
  // through here, and the stored state stays as it was.
  const double value = EvalSum(expression_);
  result_ = value;
  assigned_ = error_ == kOk;
  return value;
}

double Evaluator::Evaluate(std::string_view text, bool silent) {
  SetExpression(text);
  Result();
  if (!silent && error_ != kOk) {
    const std::string_view message = ErrorMessage(error_);
    if (!message.empty()) {
      if (messages_ != nullptr) {
        messages_->Show(std::string(message), std::string(kErrorTitle), base::MsgIcon::Critical);
      }
    } else {
      // A run-time fault in the trial is an undefined point, not a wrong text.
      error_ = kOk;
    }
  }
  return result_;
}

double Evaluator::Evaluate3(std::string_view text, bool silent) {
  SetExpression(text);
  Result();
  if (silent) return result_;
  if (error_ != kOk) {
    const std::string_view message = ErrorMessage(error_);
    const std::string shown = message.empty() ? EvaluationFailedMessage() : std::string(message);
    if (messages_ != nullptr) {
      messages_->Show(shown, std::string(kErrorTitle), base::MsgIcon::Critical);
    }
    Module().failed = true;
  } else if (result_ == kSentinel) {
    if (messages_ != nullptr) {
      messages_->Show(std::string(kUndefinedMessage), std::string(kUndefinedTitle),
                      base::MsgIcon::Information);
    }
  }
  return result_;
}

std::string Evaluator::ReplaceText(std::string_view text, std::string_view find, std::string_view replace) {
  return expr::ReplaceText(text, find, replace);
}

bool Evaluator::IsItOdd(std::string_view text) {
  // The last character converted to a 16-bit integer: anything but a digit
  // is a type mismatch.
  if (text.empty() || !IsDigit(text.back())) throw Fault(Fault::kTypeMismatch);
  return ((text.back() - '0') & 1) != 0;
}

bool Evaluator::IsNumber(std::string_view value) { return IsNumericText(value); }

std::string Evaluator::MidMbcs(std::string_view text, int start, int length) {
  // Counted in bytes of the text's multi-byte form, which is how the text is
  // stored here. A start below 1 or a negative length is an invalid call.
  if (start < 1 || length < 0) throw Fault(Fault::kInvalidCall);
  const auto from = static_cast<std::size_t>(start - 1);
  if (from >= text.size()) return std::string();
  return std::string(text.substr(from, static_cast<std::size_t>(length)));
}

double Evaluator::factorial2(int n) {
  const double value = Factorial2(n);
  if (std::isnan(value)) throw Fault(Fault::kOverflow);
  return value;
}

double Evaluator::Gamma(double x) {
  const double value = expr::Gamma(x);
  if (std::isnan(value)) throw Fault(Fault::kInvalidCall);
  return value;
}

double Evaluator::Beta(double x, double y) {
  const double value = expr::Beta(x, y);
  if (std::isnan(value)) throw Fault(Fault::kInvalidCall);
  return value;
}

void Evaluator::SetCurrentArgument(std::string argument) { Module().argument = std::move(argument); }

bool& Evaluator::FailureFlag() { return Module().failed; }

void Evaluator::ResetModuleState() { Module() = ModuleState{}; }

std::string_view Evaluator::ErrorMessage(int code) {
  for (const auto& entry : kErrorTexts) {
    if (entry.code == code) return entry.text;
  }
  return {};
}

std::string Evaluator::EvaluationFailedMessage() {
  std::string text;
  for (const auto line : kFailedLinesBefore) {
    if (!text.empty()) text += '\n';
    text += line;
  }
  text += Module().argument;
  text += kFailedArgumentEnd;
  for (const auto line : kFailedLinesAfter) {
    text += '\n';
    text += line;
  }
  return text;
}

// ---------------------------------------------------------------------------
// The evaluation. Every text below is a slice of expression_.

std::string Evaluator::RemoveSpaces(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    if (c != ' ') out.push_back(c);
  }
  return out;
}

double Evaluator::EvalSum(std::string_view text) {
  const NestingGuard guard(depth_);
  // No trap here: a fault of these additions goes to the caller, which is a
  // trapping term or function, or, for the outermost sum, Result's caller.
  double sum = 0.0;
  for (const std::string_view piece : SplitTerms(text, '+', '-')) {
    sum = CheckedAdd(sum, EvalTerm(piece));
  }
  return sum;
}

std::vector<std::string_view> Evaluator::SplitTerms(std::string_view text, char opA, char opB) {
  std::vector<std::string_view> pieces;
  std::string_view rest = text;
  for (;;) {
    const auto at = FindOperator(rest, opA, opB, 0);
    if (!at) {
      pieces.push_back(rest);
      return pieces;
    }
    pieces.push_back(rest.substr(0, *at));
    rest.remove_prefix(*at);  // the next piece begins with its operator
  }
}

double Evaluator::EvalTerm(std::string_view text) {
  if (error_ != kOk) return 0.0;
  try {
    double accumulator = 0.0;
    for (const std::string_view piece : SplitTerms(text, '*', '/')) {
      char op = '\0';
      const double value = EvalFactor(piece, op);
      // A factor that failed is not applied: its code stands, and nothing
      // after it in this evaluation runs.
      if (error_ != kOk) break;
      switch (op) {
        case '+': accumulator = CheckedAdd(accumulator, value); break;
        case '*': accumulator = CheckedMul(accumulator, value); break;
        case '/': accumulator = CheckedDiv(accumulator, value); break;
        default: break;
      }
    }
    return accumulator;
  } catch (const Fault&) {
    // A fault met after an earlier failure does not replace its code.
    if (error_ == kOk) error_ = kRuntime;
    return 0.0;
  }
}

double Evaluator::EvalFactor(std::string_view text, char& op) {
  op = '\0';  // a factor that does nothing leaves the accumulator alone
  if (error_ != kOk) return 0.0;
  op = '+';
  bool negate = false;
  if (!text.empty()) {
    const char first = text.front();
    if (first == '-') {
      negate = true;
      text.remove_prefix(1);
    } else if (first == '+' || first == '*' || first == '/') {
      op = first;
      text.remove_prefix(1);
    }
  }
  double value = ReadOperand(text);
  if (error_ != kOk) return value;
  if (!text.empty()) {
    const char joiner = text.front();
    text.remove_prefix(1);
    const double exponent = ReadOperand(text);
    if (error_ != kOk) return value;
    if (joiner == '^') {
      value = Power(value, exponent);
    } else {
      error_ = kSymbols;
    }
    // Text behind the second operand is a syntax error, whatever the joiner.
    if (!text.empty()) error_ = kSyntax;
  }
  if (negate) value = -value;
  return value;
}

double Evaluator::ReadOperand(std::string_view& text) {
  if (!text.empty() && text.front() == '(') {
    const std::string_view inside = ExtractBracket(text);
    if (error_ != kOk) return 0.0;
    return EvalSum(inside);
  }
  if (!text.empty() && IsDigit(text.front())) return ParseNumber(text);
  std::string_view inner;
  const std::string_view name = GetFunctionName(text, inner);
  return EvalFunction(name, inner);
}

double Evaluator::ParseNumber(std::string_view& text) {
  std::string buffer;
  bool separator = false;
  std::size_t i = 0;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (IsDigit(c)) {
      buffer.push_back(c);
    } else if (c == ',') {
      if (separator) {
        error_ = kDecimalSeparator;
        break;
      }
      if (buffer.empty()) buffer.push_back('0');
      buffer.push_back('.');
      separator = true;
    } else {
      break;
    }
  }
  text.remove_prefix(i);
  if (buffer.empty()) error_ = kSyntax;
  return TextToNumber(buffer);
}

std::optional<std::size_t> Evaluator::FindOperator(std::string_view text, char opA, char opB,
                                                   std::size_t start) {
  for (std::size_t i = start; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '(') {
      // Everything up to the matching ")" lies deeper than 0; without one in
      // this text the depth never comes back to 0.
      const auto close = ClosingBracket(text, i);
      if (!close) return std::nullopt;
      i = *close;
    } else if (c == ')') {
      error_ = kBrackets;  // a ")" with no "(" before it at this level
      return std::nullopt;
    } else if (i > 0 && (c == opA || c == opB)) {
      return i;  // a sign in the first position never cuts
    }
  }
  return std::nullopt;
}

std::string_view Evaluator::ExtractBracket(std::string_view& text) {
  const auto close = ClosingBracket(text, 0);
  if (!close) {
    error_ = kBrackets;
    return text.substr(text.size());
  }
  const std::string_view inside = text.substr(1, *close - 1);
  text.remove_prefix(*close + 1);
  return inside;
}

std::string_view Evaluator::GetFunctionName(std::string_view& text, std::string_view& inner) {
  const std::size_t open = text.find('(');
  if (open == kNone) {
    error_ = kSyntax;
    inner = text.substr(text.size());
    return text.substr(0, 0);
  }
  const std::string_view name = text.substr(0, open);
  text.remove_prefix(open);
  inner = ExtractBracket(text);
  return name;
}

double Evaluator::EvalFunction(std::string_view name, std::string_view inner) {
  if (error_ != kOk) return 0.0;
  double value = 0.0;  // the value reached so far when a fault strikes
  try {
    // The argument is evaluated for every name, constants and clocks too.
    const double x = EvalSum(inner);
    const std::optional<Fn> fn = FindEvaluatorFunction(name);
    if (!fn) {
      error_ = kSyntax;
      return 0.0;
    }
    // An argument that failed leaves 0 behind: applying the function to it
    // would fault (LN, COT, GAMMA, ...) and overwrite the argument's code
    // with 16, so a wrong text would pass for an undefined point.
    if (error_ != kOk) return 0.0;
    if (*fn == Fn::Asec || *fn == Fn::Acsc) {
      // These two tell the window whether to draw the point.
      if (OutsideSentinelDomain(*fn, x)) {
        value = kSentinel;
        Graph().Boje2();
      } else {
        value = Checked(Apply(*fn, x));
        Graph().Boje3();
      }
      return value;
    }
    value = Checked(Apply(*fn, x));
  } catch (const Fault&) {
    if (error_ == kOk) error_ = kRuntime;
  }
  return value;
}

bool Evaluator::IsOddValue(double x) { return NumberToText(x / 2).find('.') != std::string::npos; }

double Evaluator::Power(double a, double b) {
  GraphFields& graph = Graph();
  const std::string label = graph.LblY3();
  const std::string imenilac = graph.TxtImenilac();
  const std::string y3 = graph.TxtY3();
  const bool rational = label == "OK" && !imenilac.empty() && !y3.empty() && imenilac != y3 &&
                        IsDigit(imenilac.back()) && IsDigit(y3.back());
  if (!rational) return CheckedPow(a, b);
  const bool p = IsItOdd(y3);
  const bool q = IsItOdd(imenilac);
  const bool r = IsItOdd(graph.TxtY2());
  // Equal last digits with an odd Q: the plain power at once, which refuses
  // a negative base with a fractional exponent whatever the table says.
  if (q && imenilac.back() == y3.back()) return CheckedPow(a, b);
  if (const RationalRow* row = FindRationalRow(a, b, p, q, r)) return ApplyRationalForm(row->form, a, b);
  return CheckedPow(a, b);
}

GraphFields& Evaluator::Graph() {
  GraphFields* graph = window_ != nullptr ? window_->ActiveGraph() : nullptr;
  if (graph == nullptr) throw Fault(Fault::kObjectNotSet);
  return *graph;
}

void Evaluator::MapBrackets() {
  closing_.assign(expression_.size(), kNone);
  std::vector<std::size_t> open;
  for (std::size_t i = 0; i < expression_.size(); ++i) {
    if (expression_[i] == '(') {
      open.push_back(i);
    } else if (expression_[i] == ')' && !open.empty()) {
      closing_[open.back()] = i;
      open.pop_back();
    }
  }
}

std::optional<std::size_t> Evaluator::ClosingBracket(std::string_view text, std::size_t open) const {
  const std::less<const char*> before;
  const char* base = expression_.data();
  if (!before(text.data(), base) && !before(base + expression_.size(), text.data() + text.size())) {
    // A slice of the expression: the map of the whole text answers at once.
    // Brackets nest, so a ")" matched inside the slice is the one the depth
    // count would find, and one matched beyond it (or never) means the depth
    // does not come back to 0 within the slice.
    const auto offset = static_cast<std::size_t>(text.data() - base);
    const std::size_t close = closing_[offset + open];
    if (close == kNone || close >= offset + text.size()) return std::nullopt;
    return close - offset;
  }
  int depth = 0;
  for (std::size_t i = open; i < text.size(); ++i) {
    if (text[i] == '(') ++depth;
    if (text[i] == ')' && --depth == 0) return i;
  }
  return std::nullopt;
}

}  // namespace velmora::expr
