// The function library as the text evaluator calls it: the argument first,
// then the name, with every fault trapped as error 16 and the inverse secant
// and cosecant telling the active window how to draw.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "expr/evaluator.h"
#include "expr/functionlibrary.h"
#include "tests/expr/fakegraphwindow.h"
#include "tests/support/evaluatorstate.h"

namespace velmora::expr {
namespace {

using testing::FakeGraphWindow;

const double kPi = 4 * std::atan(1.0);

struct FunctionCase {
  const char* text;
  int error;
  double value;
  double tolerance;
  const char* why;
};
void PrintTo(const FunctionCase& c, std::ostream* os) { *os << c.text; }

class FunctionTest : public ::testing::TestWithParam<FunctionCase> {};

TEST_P(FunctionTest, ThroughTheEvaluator) {
  const auto& c = GetParam();
  FakeGraphWindow window;
  Evaluator ev(nullptr, &window);
  const double value = ev.Evaluate(c.text, true);
  EXPECT_EQ(ev.Error(), c.error) << c.text << ": " << c.why;
  EXPECT_NEAR(value, c.value, c.tolerance) << c.text << ": " << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    EdgeCases, FunctionTest,
    ::testing::Values(
        FunctionCase{"NIL(-8)", 0, 4, 1e-12, "even in x"}, FunctionCase{"NIL(0)", 0, 0, 0, "zero at zero"},
        FunctionCase{"CBR(-8)", 0, -2, 1e-12, "real cube root"},
        FunctionCase{"CBR2(0)", 0, 0, 0, "zero on purpose"},
        FunctionCase{"CBR2(-8)", 0, -0.5, 1e-12, "negative branch"},
        FunctionCase{"QVR(-1)", 16, 0, 0, "fourth root of a negative"},
        FunctionCase{"PBR(-32)", 0, -2, 1e-12, "real fifth root"},
        FunctionCase{"QVT(2)", 0, 16, 0, "fourth power"}, FunctionCase{"QVD(2)", 0, 16, 0, "the same"},
        FunctionCase{"LOG(1000)", 0, 3, 1e-12, "decimal logarithm"},
        FunctionCase{"LOG(0)", 16, 0, 0, "logarithm of zero"},
        FunctionCase{"ASEC(0.5)", 0, 100, 0, "sentinel"},
        FunctionCase{"ASEC(1)", 16, 0, 0, "divides by zero"},
        FunctionCase{"ACSC(1)", 0, 100, 0, "|x| = 1 is outside"},
        FunctionCase{"ACOT(0)", 0, kPi / 2, 1e-15, "stated form"},
        FunctionCase{"ACOT(-1)", 0, kPi / 4, 1e-15, "no jump at 0"},
        FunctionCase{"FAC(2.5)", 0, 2, 0, "2.5 rounds to 2"}, FunctionCase{"FAC(3.5)", 0, 24, 0, "3.5 to 4"},
        FunctionCase{"FAC(-1)", 0, 0, 0, "negative"}, FunctionCase{"FAC(171)", 16, 0, 0, "overflow"},
        FunctionCase{"FAC(40000)", 16, 0, 0, "outside the 16-bit range"},
        FunctionCase{"GAMMA(5)", 0, 24, 1e-8, "Lanczos"},
        FunctionCase{"GAMMA(26)", 0, 0, 0, "outside -25..25"},
        FunctionCase{"GAMMA(0)", 16, 0, 0, "divides by zero"}, FunctionCase{"BLANC(0)", 0, 0, 0, "zero"},
        FunctionCase{"BLANC(0.5)", 0, 0.5, 1e-15, "peak"},
        FunctionCase{"FOUR(1.5707963)", 0, kPi / 4, 1e-3, "square wave"},
        FunctionCase{"D(1)*180-PI(1)", 0, 0, 1e-14, "degree factor"},
        FunctionCase{"PI(1/0)", 16, 0, 0, "the argument of a constant is evaluated"},
        FunctionCase{"SIN", 2, 0, 0, "no bracket"}, FunctionCase{"sinx", 2, 0, 0, "not normalised"},
        FunctionCase{"\xC2\xB2(3)", 0, 9, 0, "superscript two"},
        FunctionCase{"\xC2\xB3(2)", 0, 8, 0, "superscript three"},
        FunctionCase{"HSIN(710)", 16, 0, 0, "built from exponentials: overflows near 709"},
        FunctionCase{"SINH(1)", 0, std::sinh(1.0), 1e-15, "alias"},
        FunctionCase{"ARCSIN(1)", 16, 0, 0, "divides by zero at 1"},
        FunctionCase{"BETA(30)", 0, 0, 0, "outside -25..25"},
        FunctionCase{"E(1)", 0, std::exp(1.0), 0, "constant e"},
        FunctionCase{"sin(pi(1)/2)+cos(0)", 0, 2, 1e-15, "calls in a sum"}));

// Every name of the table is known to the evaluator: whatever its value at
// 0.5, it is never the unknown-name error.
TEST(FunctionNamesTest, EveryNameIsKnown) {
  FakeGraphWindow window;
  Evaluator ev(nullptr, &window);
  for (const auto& entry : EvaluatorFunctionNames()) {
    const std::string text = std::string(entry.name) + "(0,5)";
    ev.Evaluate(text, true);
    EXPECT_NE(ev.Error(), Evaluator::kSyntax) << text;
  }
  // Names match exactly: no prefix, no engine-only spelling.
  for (const char* text : {"SI(1)", "SINE(1)", "STL(1)", "RAD(1)"}) {
    ev.Evaluate(text, true);
    EXPECT_EQ(ev.Error(), Evaluator::kSyntax) << text;
  }
}

TEST(SentinelTest, PenRoutinesOfTheActiveWindow) {
  struct Row {
    const char* text;
    int error;
    int boje2;  // pen to background
    int boje3;  // pen back to the graph colour
  };
  const Row rows[] = {
      {"ASEC(0.5)", 0, 1, 0},  // outside: hidden
      {"ASEC(2)", 0, 0, 1},    // inside: drawn
      {"ASEC(-1)", 16, 0, 0},  // |x| = 1 is inside for ASEC and divides by zero first
      {"ACSC(1)", 0, 1, 0},    // |x| = 1 is outside for ACSC
      {"ACSC(-3)", 0, 0, 1},   //
      {"ARCSEC(0)+ARCCOSEC(0)", 0, 2, 0},
      {"SIN(1)", 0, 0, 0},  // other functions leave the pen alone
  };
  for (const auto& r : rows) {
    FakeGraphWindow window;
    Evaluator ev(nullptr, &window);
    ev.Evaluate(r.text, true);
    EXPECT_EQ(ev.Error(), r.error) << r.text;
    EXPECT_EQ(window.boje2Calls, r.boje2) << r.text;
    EXPECT_EQ(window.boje3Calls, r.boje3) << r.text;
  }
}

TEST(SentinelTest, NoWindowFaults) {
  // The pen routines are reached through the active window: without one the
  // call faults, which is error 16.
  for (const char* text : {"ASEC(0.5)", "ASEC(2)", "ACSC(1)"}) {
    Evaluator ev;
    ev.Evaluate(text, true);
    EXPECT_EQ(ev.Error(), 16) << text;
    FakeGraphWindow window;
    window.hasGraph = false;
    Evaluator ev2(nullptr, &window);
    ev2.Evaluate(text, true);
    EXPECT_EQ(ev2.Error(), 16) << text;
  }
  // Other functions need no window.
  Evaluator ev;
  EXPECT_EQ(ev.Evaluate("SQR(4)", true), 2);
  EXPECT_EQ(ev.Error(), 0);
}

TEST(ClockTest, ValueRanges) {
  struct Row {
    const char* text;
    double low, high;  // inclusive bounds
  };
  const Row rows[] = {
      {"YEAR(1)", 2000, 2200}, {"MONTH(1)", 1, 12},  {"DAY(1)", 1, 31},    {"WEEKDAY(1)", 1, 7},
      {"HOUR(1)", 0, 23},      {"MINUTE(1)", 0, 59}, {"SECOND(1)", 0, 60}, {"TIMER(1)", 0, 86400},
  };
  Evaluator ev;
  for (const auto& r : rows) {
    const double v = ev.Evaluate(r.text, true);
    EXPECT_EQ(ev.Error(), 0) << r.text;
    EXPECT_GE(v, r.low) << r.text;
    EXPECT_LE(v, r.high) << r.text;
  }
  ev.Evaluate("TIMER(1/0)", true);
  EXPECT_EQ(ev.Error(), 16) << "the ignored argument is still evaluated";
}

TEST(RandomTest, Selector) {
  Evaluator ev;
  const double a = ev.Evaluate("RND(-1)", true);  // restart from -1
  const double b = ev.Evaluate("RND(1)", true);   // next
  const double c = ev.Evaluate("RND(0)", true);   // repeat the last
  EXPECT_EQ(ev.Error(), 0);
  EXPECT_EQ(b, c);
  EXPECT_EQ(ev.Evaluate("RND(-1)", true), a) << "the same restart gives the same value";
  EXPECT_EQ(ev.Evaluate("RND(1)", true), b);
  for (double v : {a, b, c}) {
    EXPECT_GE(v, 0.0);
    EXPECT_LT(v, 1.0);
  }
}

}  // namespace
}  // namespace velmora::expr
