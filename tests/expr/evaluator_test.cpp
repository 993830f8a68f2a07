#include "expr/evaluator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "expr/fault.h"
#include "expr/functionlibrary.h"
#include "tests/expr/fakegraphwindow.h"
#include "tests/support/evaluatorstate.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::expr {

// The private steps, for the tests of each step of the algorithm.
struct EvaluatorSteps {
  explicit EvaluatorSteps(Evaluator& e) : ev(e) {}
  Evaluator& ev;

  int& error() { return ev.error_; }
  static std::string RemoveSpaces(std::string_view t) { return Evaluator::RemoveSpaces(t); }
  std::vector<std::string_view> SplitTerms(std::string_view t, char a, char b) {
    return ev.SplitTerms(t, a, b);
  }
  std::optional<std::size_t> FindOperator(std::string_view t, char a, char b, std::size_t s) {
    return ev.FindOperator(t, a, b, s);
  }
  std::string_view ExtractBracket(std::string_view& t) { return ev.ExtractBracket(t); }
  std::string_view GetFunctionName(std::string_view& t, std::string_view& inner) {
    return ev.GetFunctionName(t, inner);
  }
  double ParseNumber(std::string_view& t) { return ev.ParseNumber(t); }
  double EvalFactor(std::string_view t, char& op) { return ev.EvalFactor(t, op); }
  static bool IsOddValue(double x) { return Evaluator::IsOddValue(x); }
};

namespace {

using testing::FakeGraphWindow;
using testing::RecordingMessageBox;

const double kPi = 4 * std::atan(1.0);

// ---------------------------------------------------------------------------
// Expression preparation

struct PrepareCase {
  const char* typed;
  const char* prepared;
  const char* why;
};
void PrintTo(const PrepareCase& c, std::ostream* os) { *os << c.typed; }

class PrepareTest : public ::testing::TestWithParam<PrepareCase> {};

TEST_P(PrepareTest, Expression) {
  const auto& c = GetParam();
  Evaluator ev;
  ev.SetExpression(c.typed);
  EXPECT_EQ(ev.Expression(), c.prepared) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, PrepareTest,
    ::testing::Values(PrepareCase{"sin ( 0.5 )", "SIN(0,5)", "spaces out, upper case, '.' to ','"},
                      PrepareCase{"  ", "", "only spaces"}, PrepareCase{"1.2.3", "1,2,3", "every '.'"},
                      PrepareCase{"a\tb", "A\tB", "only the blank is a space"},
                      PrepareCase{"\xC3\xA4x", "\xC3\xA4X", "non-ASCII bytes stay as they are"},
                      PrepareCase{"Pi(1)*2,5", "PI(1)*2,5", "',' stays"}));

// ---------------------------------------------------------------------------
// The grammar, each error code, and the edge cases of the evaluator and its
// function library. Evaluated silently inside a fresh graph window (its
// fields empty, so rational mode is off).

struct EvalCase {
  const char* text;
  int error;
  double value;
  const char* why;
};
void PrintTo(const EvalCase& c, std::ostream* os) { *os << c.text; }

class GrammarTest : public ::testing::TestWithParam<EvalCase> {};

TEST_P(GrammarTest, ErrorAndValue) {
  const auto& c = GetParam();
  FakeGraphWindow window;
  Evaluator ev(nullptr, &window);
  const double value = ev.Evaluate(c.text, true);
  EXPECT_EQ(ev.Error(), c.error) << c.text << ": " << c.why;
  EXPECT_NEAR(value, c.value, 1e-12 * std::max(1.0, std::fabs(c.value))) << c.text << ": " << c.why;
  EXPECT_EQ(ev.Assigned(), c.error == 0) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    EdgeCases, GrammarTest,
    ::testing::Values(EvalCase{"2*-3", 2, 2, "a sign after an operator is a second sign"},
                      EvalCase{"2*(-3)", 0, -6, "the sign inside brackets"},
                      EvalCase{"1--2", 2, 1, "the second '-' cuts the sum, leaving a bare '-'"},
                      EvalCase{"1-(-2)", 0, 3, "bracketed negative"},
                      EvalCase{"2^-3", 2, 0, "'-' cuts the sum before the power sees it"},
                      EvalCase{"2^(-3)", 0, 0.125, "bracketed exponent"},
                      EvalCase{"-2^2", 0, -4, "the sign applies to the finished power"},
                      EvalCase{"(-2)^2", 0, 4, "rational mode off: plain power"},
                      EvalCase{"2^3^2", 2, 0, "'^' does not associate"},
                      EvalCase{"2(3)", 2, 0, "text left after the second operand turns 4 into 2"},
                      EvalCase{".5", 2, 0, "no leading digit: a function with no bracket"},
                      EvalCase{"0.5", 0, 0.5, "'.' becomes ','"},
                      EvalCase{"0,5", 0, 0.5, "',' is the separator"},
                      EvalCase{"1.2.3", 1, 0, "second decimal separator"},
                      EvalCase{"1E5", 4, 0, "no exponent numbers: E joins two operands"},
                      EvalCase{"1E-05", 2, 0, "cut at '-', leaving '1E'"},
                      EvalCase{"(1+2", 8, 0, "no closing bracket, through ExtractBracket"},
                      EvalCase{"1+2)", 8, 0, "stray closing bracket, through FindOperator"},
                      EvalCase{"SIN()", 2, 0, "an empty argument has no operand"},
                      EvalCase{"PI", 2, 0, "constants need their bracket"},
                      EvalCase{"PI(1)", 0, kPi, "constant"},
                      EvalCase{"1/0", 16, 0, "division by zero, value 0"},
                      EvalCase{"sin ( 0.5 )", 0, std::sin(0.5), "prepared to SIN(0,5)"},
                      EvalCase{"SIN(0,5)", 0, std::sin(0.5), "the same"}, EvalCase{"SIN", 2, 0, "no bracket"},
                      EvalCase{"sinx", 2, 0, "not normalised"}));

INSTANTIATE_TEST_SUITE_P(
    Steps, GrammarTest,
    ::testing::Values(
        // Sums.
        EvalCase{"1+2-3", 0, 0, "terms left to right"}, EvalCase{"-1+2", 0, 1, "leading sign never cuts"},
        EvalCase{"+5", 0, 5, "leading plus"}, EvalCase{"10-2-3", 0, 5, "left to right"},
        EvalCase{"", 2, 0, "empty text: an operand is missing"},
        EvalCase{"1+", 2, 1, "a trailing sign has no operand"},
        EvalCase{"+-2", 2, 0, "a second sign at the start"},
        // Terms.
        EvalCase{"2*3/4", 0, 1.5, "factors left to right"}, EvalCase{"8/2/2", 0, 2, "left to right"},
        EvalCase{"2*3+4*5", 0, 26, "products before sums"},
        EvalCase{"*5", 0, 0, "a leading '*' multiplies the empty accumulator"},
        EvalCase{"/5", 0, 0, "a leading '/' divides it"}, EvalCase{"5/", 2, 5, "missing divisor"},
        EvalCase{"2**3", 2, 2, "second operator"}, EvalCase{"-2*-3", 2, -2, "sign after '*'"},
        // Factors.
        EvalCase{"-(2)", 0, -2, "negated bracket"}, EvalCase{"--2", 2, 0, "second sign at sum level"},
        EvalCase{"-SIN(0)", 0, 0, "negated call"}, EvalCase{"((1))", 0, 1, "nested brackets"},
        EvalCase{"-(2)^2", 0, -4, "sign after the power"}, EvalCase{"2^(1+1)", 0, 4, "bracket exponent"},
        EvalCase{"2^SQR(4)", 0, 4, "call exponent"}, EvalCase{"2^", 2, 0, "missing exponent"},
        EvalCase{"2A3", 4, 0, "joined by a letter"}, EvalCase{"2(3", 4, 0, "joined by '(' with nothing left"},
        EvalCase{"2((3))", 2, 0, "text left behind the second operand"},
        EvalCase{"(1)(2)", 2, 0, "implied product"}, EvalCase{"X", 2, 0, "a bare letter"},
        // Numbers.
        EvalCase{"12,5", 0, 12.5, "decimal comma"}, EvalCase{"007", 0, 7, "leading zeros"},
        EvalCase{"1,", 0, 1, "trailing separator"}, EvalCase{"1,2,3", 1, 0, "second separator"},
        EvalCase{"2^1,2,3", 1, 0, "second separator in the exponent"},
        // Brackets.
        EvalCase{")", 8, 0, "stray ')' at the start"}, EvalCase{"(()", 8, 0, "outer bracket unclosed"},
        EvalCase{"SIN(1", 8, 0, "unclosed call"}, EvalCase{"(1))", 8, 0, "one ')' too many"},
        EvalCase{"()", 2, 0, "empty bracket"},
        // Functions.
        EvalCase{"FOO(1)", 2, 0, "unknown name"}, EvalCase{"(1)", 0, 1, "empty name is a bracket"},
        EvalCase{"PI(1/0)", 16, 0, "the argument is evaluated for constants too"},
        EvalCase{"FOO(1/0)", 2, 0, "the name is checked after the argument: the last code wins"},
        EvalCase{"SIN(1,2,3)", 1, 0, "an error inside the argument"},
        EvalCase{"ABS(-3)+SQR(16)", 0, 7, "calls in a sum"}, EvalCase{"SQR(-1)", 16, 0, "domain fault"},
        // Run-time faults are trapped per term.
        EvalCase{"2+1/0", 16, 2, "the term is 0, earlier terms stand"},
        EvalCase{"0^(-1)", 16, 0, "zero to a negative power"},
        EvalCase{"(-8)^(1/3)", 16, 0, "negative base, fractional exponent"},
        EvalCase{"2/SIN", 2, 2, "a failed factor is not divided by, so no fault replaces its code"},
        EvalCase{"10^400", 16, 0, "overflowing power"},
        EvalCase{"FAC(170)*FAC(170)", 16, 0, "overflowing product"}));

// A failure inside a function's argument keeps its own code: the function
// is not applied to the 0 the failed argument leaves, which for these names
// would fault and hide the wrong text behind a run-time 16.
INSTANTIATE_TEST_SUITE_P(
    ArgumentFailureStands, GrammarTest,
    ::testing::Values(EvalCase{"LN(2(1))", 2, 0, "implied product in the argument of LN"},
                      EvalCase{"LN(1E5)", 4, 0, "exponent number in the argument of LN"},
                      EvalCase{"LN(1.2.3)", 1, 0, "second separator in the argument of LN"},
                      EvalCase{"LOG(5(1))", 2, 0, "LOG faults at 0 as well"},
                      EvalCase{"COT(3(1))", 2, 0, "COT divides by tan(0)"},
                      EvalCase{"CSC(2(1))", 2, 0, "CSC divides by sin(0)"},
                      EvalCase{"GAMMA(2(1))", 2, 0, "GAMMA faults at 0"},
                      EvalCase{"HCSC(1E5)", 4, 0, "HCSC faults at 0"},
                      EvalCase{"HCOT(1,2,3)", 1, 0, "HCOT faults at 0"},
                      EvalCase{"LN((1)", 8, 0, "an unclosed bracket inside the argument"},
                      EvalCase{"2+LN(2(1))", 2, 2, "the earlier term stands, the code is the argument's"},
                      EvalCase{"LN(2(1))*(1/0)", 2, 0, "nothing after the failed factor runs"},
                      EvalCase{"LN(LN(2(1)))", 2, 0, "nested calls keep the innermost code"},
                      EvalCase{"LN(0)", 16, 0, "a clean argument at a fault of the function is still 16"},
                      EvalCase{"FOO(2(1))", 2, 0, "an unknown name over a failed argument is 2 either way"}));

// Every name of the language, fed the three kinds of broken argument: the
// argument's code must come out whatever the function does at 0.
TEST(EvaluatorTest, EveryFunctionKeepsItsArgumentsCode) {
  struct Broken {
    const char* argument;
    int error;
  };
  const Broken broken[] = {
      {"2(1)", Evaluator::kSyntax}, {"1E5", Evaluator::kSymbols}, {"1,2,3", Evaluator::kDecimalSeparator}};
  for (const FunctionName& f : EvaluatorFunctionNames()) {
    for (const Broken& b : broken) {
      FakeGraphWindow window;
      Evaluator ev(nullptr, &window);
      const std::string text = std::string(f.name) + "(" + b.argument + ")";
      ev.Evaluate(text, true);
      EXPECT_EQ(ev.Error(), b.error) << text;
    }
  }
}

TEST(EvaluatorTest, ResultEvaluatesAgainOnEveryRead) {
  Evaluator ev;
  ev.SetExpression("RND(1)");
  const double first = ev.Result();
  const double second = ev.Result();
  EXPECT_NE(first, second) << "each read walks the text again and draws the next random value";
  EXPECT_GE(first, 0.0);
  EXPECT_LT(first, 1.0);
}

TEST(EvaluatorTest, ResultClearsErrorFirst) {
  Evaluator ev;
  ev.Evaluate("1/0", true);
  ASSERT_EQ(ev.Error(), 16);
  ev.SetExpression("2");
  EXPECT_EQ(ev.Result(), 2);
  EXPECT_EQ(ev.Error(), 0);
  EXPECT_TRUE(ev.Assigned());
}

TEST(EvaluatorTest, OutermostAdditionFaultReachesTheCaller) {
  // Two 309-digit numbers are finite, their sum is not. The outermost sum
  // has no trap, so the fault leaves Evaluate; the stored state stays.
  const std::string big = "1" + std::string(308, '0');
  Evaluator ev;
  ev.Evaluate("3", true);
  try {
    ev.Evaluate(big + "+" + big, true);
    ADD_FAILURE() << "the fault was trapped";
  } catch (const Fault& f) {
    EXPECT_EQ(f.Number(), Fault::kOverflow);
  }
  EXPECT_TRUE(ev.Assigned());
  ev.SetExpression(big + "+" + big);
  EXPECT_THROW(ev.Result(), Fault);
  // The same addition inside a bracket or an argument is trapped as 16.
  EXPECT_EQ(ev.Evaluate("(" + big + "+" + big + ")", true), 0);
  EXPECT_EQ(ev.Error(), 16);
  ev.Evaluate("ABS(" + big + "+" + big + ")", true);
  EXPECT_EQ(ev.Error(), 16);
}

TEST(EvaluatorTest, PowerWithoutWindowIsError16) {
  struct Row {
    bool window;    // an ActiveWindow is attached
    bool hasGraph;  // and it has an active graph window
    int error;
  };
  const Row rows[] = {
      {false, false, 16},  // no frame at all
      {true, false, 16},   // a frame with no active graph window
      {true, true, 0},     // a fresh graph window
  };
  for (const auto& r : rows) {
    FakeGraphWindow window;
    window.hasGraph = r.hasGraph;
    Evaluator ev(nullptr, r.window ? &window : nullptr);
    ev.Evaluate("2^2", true);
    EXPECT_EQ(ev.Error(), r.error) << r.window << r.hasGraph;
    // Without a power no field is read, so the window does not matter.
    EXPECT_EQ(ev.Evaluate("2*2", true), 4);
    EXPECT_EQ(ev.Error(), 0);
  }
}

// ---------------------------------------------------------------------------
// Private steps

TEST(EvaluatorStepsTest, RemoveSpaces) {
  EXPECT_EQ(EvaluatorSteps::RemoveSpaces(" a b  c "), "abc");
  EXPECT_EQ(EvaluatorSteps::RemoveSpaces("\t"), "\t");
}

TEST(EvaluatorStepsTest, SplitTerms) {
  struct Row {
    const char* text;
    char a, b;
    std::vector<std::string> pieces;
    int error;
  };
  const std::vector<Row> rows = {
      {"1+2-3", '+', '-', {"1", "+2", "-3"}, 0},            // each piece keeps its sign
      {"-1+2", '+', '-', {"-1", "+2"}, 0},                  // first position never cuts
      {"(1+2)+3", '+', '-', {"(1+2)", "+3"}, 0},            // depth 0 only
      {"1+-2", '+', '-', {"1", "+", "-2"}, 0},              // a sign after a sign cuts again
      {"", '+', '-', {""}, 0},                              // one empty piece
      {"2*3/4", '*', '/', {"2", "*3", "/4"}, 0},            // the term operators
      {"1+2)+3", '+', '-', {"1", "+2)+3"}, 8},              // stray ')' stops the scan
      {"SIN(1+2)-(3)", '+', '-', {"SIN(1+2)", "-(3)"}, 0},  // call arguments are deeper
      {"((1+2)+3", '+', '-', {"((1+2)+3"}, 0},              // never back to depth 0
  };
  for (const auto& r : rows) {
    Evaluator ev;
    EvaluatorSteps steps(ev);
    const auto got = steps.SplitTerms(r.text, r.a, r.b);
    std::vector<std::string> pieces(got.begin(), got.end());
    EXPECT_EQ(pieces, r.pieces) << r.text;
    EXPECT_EQ(steps.error(), r.error) << r.text;
  }
}

TEST(EvaluatorStepsTest, FindOperator) {
  struct Row {
    const char* text;
    std::optional<std::size_t> at;
    int error;
  };
  const Row rows[] = {
      {"+1", std::nullopt, 0},                              // position 1 does not count
      {"1+(2+3)", 1, 0},                                    // first at depth 0
      {"(2+3)-1", 5, 0},                                    // skips the bracket
      {"(1+2", std::nullopt, 0}, {")+1", std::nullopt, 8},  // depth below 0
      {"1*2", std::nullopt, 0},                             // not an operator of this level
  };
  for (const auto& r : rows) {
    Evaluator ev;
    EvaluatorSteps steps(ev);
    EXPECT_EQ(steps.FindOperator(r.text, '+', '-', 0), r.at) << r.text;
    EXPECT_EQ(steps.error(), r.error) << r.text;
  }
}

TEST(EvaluatorStepsTest, ExtractBracket) {
  struct Row {
    const char* text;
    const char* inside;
    const char* rest;
    int error;
  };
  const Row rows[] = {
      {"(1+2)*3", "1+2", "*3", 0}, {"((1))", "(1)", "", 0},
      {"()x", "", "x", 0},         {"(1", "", "(1", 8},  // no closing bracket
      {"((1)", "", "((1)", 8},
  };
  for (const auto& r : rows) {
    Evaluator ev;
    EvaluatorSteps steps(ev);
    std::string_view text = r.text;
    EXPECT_EQ(steps.ExtractBracket(text), r.inside) << r.text;
    EXPECT_EQ(text, r.rest) << r.text;
    EXPECT_EQ(steps.error(), r.error) << r.text;
  }
}

TEST(EvaluatorStepsTest, GetFunctionName) {
  struct Row {
    const char* text;
    const char* name;
    const char* inner;
    const char* rest;
    int error;
  };
  const Row rows[] = {
      {"SIN(1)^2", "SIN", "1", "^2", 0}, {"(1)", "", "1", "", 0},  // the name may be empty
      {"-(3)", "-", "3", "", 0},                                   // a second sign becomes a name
      {"SIN", "", "", "SIN", 2},                                   // no bracket
      {"AB(1", "AB", "", "(1", 8},                                 // no closing bracket
  };
  for (const auto& r : rows) {
    Evaluator ev;
    EvaluatorSteps steps(ev);
    std::string_view text = r.text;
    std::string_view inner;
    EXPECT_EQ(steps.GetFunctionName(text, inner), r.name) << r.text;
    EXPECT_EQ(inner, r.inner) << r.text;
    EXPECT_EQ(text, r.rest) << r.text;
    EXPECT_EQ(steps.error(), r.error) << r.text;
  }
}

TEST(EvaluatorStepsTest, ParseNumber) {
  struct Row {
    const char* text;
    double value;
    const char* rest;
    int error;
  };
  const Row rows[] = {
      {"12,5*3", 12.5, "*3", 0},                           // stops at the first other character
      {"12A", 12, "A", 0},       {"1,2,3", 1.2, ",3", 1},  // second separator: error 1, stops there
      {",5", 0.5, "", 0},                                  // a leading separator is completed to "0,"
      {"1E5", 1, "E5", 0},                                 // no exponent
      {"A", 0, "A", 2},                                    // empty buffer
  };
  for (const auto& r : rows) {
    Evaluator ev;
    EvaluatorSteps steps(ev);
    std::string_view text = r.text;
    EXPECT_EQ(steps.ParseNumber(text), r.value) << r.text;
    EXPECT_EQ(text, r.rest) << r.text;
    EXPECT_EQ(steps.error(), r.error) << r.text;
  }
}

TEST(EvaluatorStepsTest, EvalFactorOperator) {
  struct Row {
    const char* text;
    char op;
    double value;
  };
  const Row rows[] = {
      {"3", '+', 3},    // default operator
      {"*3", '*', 3},   // leading operator
      {"/3", '/', 3},   //
      {"+3", '+', 3},   //
      {"-3", '+', -3},  // a sign is a negation, not an operator
  };
  for (const auto& r : rows) {
    Evaluator ev;
    EvaluatorSteps steps(ev);
    char op = '?';
    EXPECT_EQ(steps.EvalFactor(r.text, op), r.value) << r.text;
    EXPECT_EQ(op, r.op) << r.text;
  }
  // With an error already set the factor does nothing and names no operator.
  Evaluator ev;
  EvaluatorSteps steps(ev);
  steps.error() = 2;
  char op = '?';
  EXPECT_EQ(steps.EvalFactor("5", op), 0);
  EXPECT_EQ(op, '\0');
}

TEST(EvaluatorStepsTest, IsOddValue) {
  struct Row {
    double x;
    bool odd;
  };
  const Row rows[] = {{3, true}, {4, false}, {1, true}, {0, false}, {-7, true}, {2.5, true}};
  for (const auto& r : rows) EXPECT_EQ(EvaluatorSteps::IsOddValue(r.x), r.odd) << r.x;
}

// ---------------------------------------------------------------------------
// Messages

struct MessageCase {
  const char* text;
  const char* message;  // "" for no box
  int errorAfter;       // Error after the loud call
  int errorSilent;      // Error after the silent call
};
void PrintTo(const MessageCase& c, std::ostream* os) { *os << c.text; }

class EvaluateMessageTest : public ::testing::TestWithParam<MessageCase> {};

TEST_P(EvaluateMessageTest, Loud) {
  const auto& c = GetParam();
  RecordingMessageBox box;
  FakeGraphWindow window;
  Evaluator ev(&box, &window);
  ev.Evaluate(c.text, false);
  EXPECT_EQ(ev.Error(), c.errorAfter) << c.text;
  if (std::string(c.message).empty()) {
    EXPECT_TRUE(box.Boxes().empty()) << c.text;
    return;
  }
  ASSERT_EQ(box.Boxes().size(), 1u) << c.text;
  EXPECT_EQ(box.Boxes()[0].text, c.message);
  EXPECT_EQ(box.Boxes()[0].title, "Error");
  EXPECT_EQ(box.Boxes()[0].icon, platform::MsgIcon::Critical);
  EXPECT_EQ(box.Boxes()[0].buttons, platform::MsgButtons::Ok);
}

TEST_P(EvaluateMessageTest, SilentShowsNothingAndKeepsTheCode) {
  const auto& c = GetParam();
  RecordingMessageBox box;
  FakeGraphWindow window;
  Evaluator ev(&box, &window);
  ev.Evaluate(c.text, true);
  EXPECT_TRUE(box.Boxes().empty());
  EXPECT_EQ(ev.Error(), c.errorSilent) << c.text;
}

INSTANTIATE_TEST_SUITE_P(Codes, EvaluateMessageTest,
                         ::testing::Values(MessageCase{"1.2.3", "Check decimal separator placement!", 1, 1},
                                           MessageCase{"SIN", "Check syntax!", 2, 2},
                                           MessageCase{"1E5", "Check symbols placement!", 4, 4},
                                           MessageCase{"(1", "Check bracket placement!", 8, 8},
                                           MessageCase{"1/0", "", 0,
                                                       16},  // 16: no message; loud clears the code
                                           MessageCase{"1+1", "", 0, 0}));

TEST(Evaluate3Test, Messages) {
  struct Row {
    const char* text;
    std::string message;  // "" for no box
    platform::MsgIcon icon;
    const char* title;
    bool flag;  // the failure flag afterwards
  };
  Evaluator::SetCurrentArgument("-2,5");
  const std::string failed =
      "Evaluation failed.\nProbable reasons are:\n- Invalid input\n"
      "- Function is undefined for this argument (X = -2,5)\n"
      "- In this form, function is undefined for negative argument.\n(Try to use PREDEFINED functions.)";
  const Row rows[] = {
      {"1.2.3", "Check decimal separator placement!", platform::MsgIcon::Critical, "Error", true},
      {"SIN", "Check syntax!", platform::MsgIcon::Critical, "Error", true},
      {"1E5", "Check symbols placement!", platform::MsgIcon::Critical, "Error", true},
      {"(1", "Check bracket placement!", platform::MsgIcon::Critical, "Error", true},
      {"LN(0)", failed, platform::MsgIcon::Critical, "Error", true},                  // run-time failure
      {"ASEC(0.5)", "Undefined.", platform::MsgIcon::Information, "Velmora", false},  // the sentinel
      {"99+1", "Undefined.", platform::MsgIcon::Information, "Velmora", false},       // a true 100 too
      {"99", "", platform::MsgIcon::None, "", false},                                 // a plain value
  };
  for (const auto& r : rows) {
    RecordingMessageBox box;
    FakeGraphWindow window;
    Evaluator ev(&box, &window);
    Evaluator::FailureFlag() = false;
    ev.Evaluate3(r.text, false);
    EXPECT_EQ(Evaluator::FailureFlag(), r.flag) << r.text;
    if (r.message.empty()) {
      EXPECT_TRUE(box.Boxes().empty()) << r.text;
      continue;
    }
    ASSERT_EQ(box.Boxes().size(), 1u) << r.text;
    EXPECT_EQ(box.Boxes()[0].text, r.message) << r.text;
    EXPECT_EQ(box.Boxes()[0].title, r.title) << r.text;
    EXPECT_EQ(box.Boxes()[0].icon, r.icon) << r.text;
  }
}

TEST(Evaluate3Test, SilentShowsNothingAndLeavesTheFlag) {
  RecordingMessageBox box;
  Evaluator ev(&box, nullptr);
  EXPECT_EQ(ev.Evaluate3("LN(0)", true), 0);
  EXPECT_EQ(ev.Error(), 16);
  ev.Evaluate3("SIN", true);
  EXPECT_EQ(ev.Error(), 2);
  EXPECT_TRUE(box.Boxes().empty());
  EXPECT_FALSE(Evaluator::FailureFlag());
}

// The text of the failure box of a loud run-time failure: it names the
// current argument.
std::string FailureBoxText() {
  RecordingMessageBox box;
  Evaluator ev(&box, nullptr);
  ev.Evaluate3("LN(0)", false);
  return box.Boxes().size() == 1 ? box.Boxes()[0].text : "no single box";
}

TEST(EvaluatorModuleStateTest, ResetClearsTheArgumentAndTheFlag) {
  Evaluator::SetCurrentArgument("7");
  Evaluator::FailureFlag() = true;
  Evaluator::ResetModuleState();
  EXPECT_FALSE(Evaluator::FailureFlag());
  EXPECT_NE(FailureBoxText().find("(X = )"), std::string::npos) << FailureBoxText();
}

// These two run in this order: the first leaves the state as a failed draw
// leaves it, and the second must not see it (tests/support/evaluatorstate.h).
TEST(EvaluatorModuleStateTest, AReportedFailureRaisesTheFlag) {
  Evaluator::SetCurrentArgument("-2,5");
  EXPECT_NE(FailureBoxText().find("(X = -2,5)"), std::string::npos);
  EXPECT_TRUE(Evaluator::FailureFlag());
}

TEST(EvaluatorModuleStateTest, EveryTestStartsWithTheFlagDownAndNoArgument) {
  EXPECT_FALSE(Evaluator::FailureFlag());
  EXPECT_NE(FailureBoxText().find("(X = )"), std::string::npos) << FailureBoxText();
}

TEST(Evaluate3Test, ReturnsTheStoredResult) {
  Evaluator ev;
  EXPECT_EQ(ev.Evaluate3("6*7", false), 42);
  EXPECT_EQ(ev.Evaluate("6*7", false), 42);
}

TEST(EvaluatorTest, LoudWithoutMessageBoxShowsNothing) {
  Evaluator ev;
  ev.Evaluate("SIN", false);
  EXPECT_EQ(ev.Error(), 2);
  ev.Evaluate3("LN(0)", false);
  EXPECT_EQ(ev.Error(), 16);
}

// ---------------------------------------------------------------------------
// Public helpers

TEST(EvaluatorHelpersTest, ReplaceText) {
  struct Row {
    const char* text;
    const char* find;
    const char* replace;
    const char* result;
  };
  const Row rows[] = {
      {"ab", "x", "x", ""},                  // find equals replace: empty, not the input
      {"ab", "", "y", ""},                   // empty find: empty
      {"SINK", "K", "(1.25)", "SIN(1.25)"},  // the value substitution
      {"aab", "ab", "b", "b"},               // rescans from the start after each replacement
      {"abc", "x", "y", "abc"},              // nothing to replace
      {"AbAB", "ab", "x", "AbAB"},           // binary compare
  };
  for (const auto& r : rows) EXPECT_EQ(Evaluator::ReplaceText(r.text, r.find, r.replace), r.result) << r.text;
}

TEST(EvaluatorHelpersTest, IsItOdd) {
  struct Row {
    const char* text;
    bool odd;
  };
  const Row rows[] = {{"3", true}, {"12", false}, {"abc7", true}, {"0", false}};
  for (const auto& r : rows) EXPECT_EQ(Evaluator::IsItOdd(r.text), r.odd) << r.text;
  for (const char* bad : {"", "3a", "1 ", "x"}) {
    try {
      Evaluator::IsItOdd(bad);
      ADD_FAILURE() << "no fault for '" << bad << "'";
    } catch (const Fault& f) {
      EXPECT_EQ(f.Number(), Fault::kTypeMismatch) << bad;
    }
  }
}

TEST(EvaluatorHelpersTest, IsNumber) {
  struct Row {
    const char* text;
    bool number;
  };
  const Row rows[] = {{"12", true},     {" -1.5 ", true}, {"1e3", true}, {".5", true}, {"", false},
                      {"12abc", false}, {"1e", false},    {".", false},  {"+", false}, {"1.2.3", false}};
  for (const auto& r : rows) EXPECT_EQ(Evaluator::IsNumber(r.text), r.number) << r.text;
}

TEST(EvaluatorHelpersTest, MidMbcs) {
  struct Row {
    const char* text;
    int start, length;
    const char* result;
  };
  const Row rows[] = {
      {"abcdef", 2, 3, "bcd"},
      {"abc", 3, 10, "c"},                 // clipped at the end
      {"abc", 5, 1, ""},                   // past the end
      {"\xC3\xA4\x62", 2, 2, "\xA4\x62"},  // counted in bytes
  };
  for (const auto& r : rows) EXPECT_EQ(Evaluator::MidMbcs(r.text, r.start, r.length), r.result) << r.text;
  EXPECT_THROW(Evaluator::MidMbcs("abc", 0, 1), Fault);
  EXPECT_THROW(Evaluator::MidMbcs("abc", 1, -1), Fault);
}

TEST(EvaluatorHelpersTest, FactorialGammaBeta) {
  EXPECT_EQ(Evaluator::factorial2(0), 1);
  EXPECT_EQ(Evaluator::factorial2(5), 120);
  EXPECT_EQ(Evaluator::factorial2(-3), 0);
  EXPECT_NEAR(Evaluator::factorial2(170), 7.257415615307994e306, 1e293);
  EXPECT_THROW(Evaluator::factorial2(171), Fault);
  EXPECT_NEAR(Evaluator::Gamma(5), 24, 1e-8);
  EXPECT_THROW(Evaluator::Gamma(0), Fault);
  EXPECT_THROW(Evaluator::Gamma(-3), Fault);
  EXPECT_NEAR(Evaluator::Beta(1, 1), 1, 1e-9);
  EXPECT_THROW(Evaluator::Beta(0, 1), Fault);
}

}  // namespace
}  // namespace velmora::expr
