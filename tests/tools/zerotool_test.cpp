// Zeros, Intersection and Point Evaluate over the Newton search.
#include "tools/zerotool.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "expr/formulacontrol.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedformula.h"
#include "tools/newtonsearch.h"

namespace velmora::tools {
namespace {

struct Fixture {
  explicit Fixture(ZeroKind kind) : tool(kind, *newton, *other, boxes) {}
  std::unique_ptr<expr::FormulaControl> newton = expr::MakeFormulaControl();
  std::unique_ptr<expr::FormulaControl> other = expr::MakeFormulaControl();
  testing::RecordingMessageBox boxes;
  ZeroTool tool;
};

std::string Guess(ZeroKind kind, const char* function, const char* guess, const char* function2 = "") {
  Fixture f(kind);
  f.tool.Inputs().function = function;
  f.tool.Inputs().function2 = function2;
  f.tool.Inputs().guess = guess;
  f.tool.Calculate();
  return f.tool.Log();
}

std::string Range(ZeroKind kind, const char* function, const char* xmin, const char* xmax,
                  const char* function2 = "", bool accurate = false) {
  Fixture f(kind);
  f.tool.Inputs().function = function;
  f.tool.Inputs().function2 = function2;
  f.tool.Inputs().rangeMode = true;
  f.tool.Inputs().xmin = xmin;
  f.tool.Inputs().xmax = xmax;
  f.tool.Inputs().increaseAccuracy = accurate;
  f.tool.Calculate();
  return f.tool.Log();
}

TEST(NewtonSearch, FiveStepsWithNoTestAndAFailedStepKeepsTheIterate) {
  testing::ScriptedFormula engine([](std::string_view formula) -> std::optional<double> {
    if (formula.rfind("diff(", 0) == 0) return 0.0;  // a zero derivative everywhere
    return 1.0;
  });
  NewtonSearch search(engine, engine);
  // Every step divides by zero: the first leaves the empty value, 0.
  EXPECT_EQ(search.NewtonSeries(3, "(x)"), 0);
  int derivatives = 0;
  for (const std::string& sent : engine.Sent()) derivatives += sent.rfind("diff(", 0) == 0 ? 1 : 0;
  EXPECT_EQ(derivatives, NewtonSearch::kSteps);
}

TEST(NewtonSearch, TheDerivativeIsPushedAsTheEngineWantsIt) {
  testing::ScriptedFormula engine([](std::string_view) -> std::optional<double> { return 2.0; });
  NewtonSearch search(engine, engine);
  search.NewtonSeries(1.5, "(x)^2");
  const std::vector<std::string> first = {"(1.5)^2",   "PopAll()",    "Push(2000)",
                                          "Push(1.5)", "diff((x)^2)", "PopAll()"};
  EXPECT_EQ(std::vector<std::string>(engine.Sent().begin(), engine.Sent().begin() + 6), first);
}

TEST(NewtonSearch, TheScannedExpressionCarriesTheTarget) {
  EXPECT_EQ(NewtonSearch::ScannedExpression("(x)", 2), "(x)-2");
  EXPECT_EQ(NewtonSearch::ScannedExpression("(x)", -2.5), "(x)+2.5");
  EXPECT_EQ(NewtonSearch::ScannedExpression("(x)", 0), "(x)");
}

TEST(Zeros, FromAGuess) {
  struct Case {
    const char* function;
    const char* guess;
    const char* log;
    const char* why;
  };
  const Case cases[] = {
      {"x^2", "0", "Zero:  X = 0\r\n",
       "a zero derivative at the start: the step fails and the residual decides"},
      {"x^2-2", "1", "Zero:  X = 1.41421\r\n", "five decimals without increased accuracy"},
      {"0.004", "5", "Zero:  X = 0\r\n", "|f| = 0.004 counts as a zero"},
      {"0.006", "5", "Zero not found near the X = 5.\r\n", "|f| = 0.006 does not"},
      {"x^2+1", "2/4", "Zero not found near the X = 0.5.\r\n",
       "the guess is an expression, shown as its value"},
  };
  for (const Case& c : cases) EXPECT_EQ(Guess(ZeroKind::Zeros, c.function, c.guess), c.log) << c.why;
}

TEST(Zeros, IncreasedAccuracyShowsTenDecimals) {
  Fixture f(ZeroKind::Zeros);
  f.tool.Inputs().function = "x^2-2";
  f.tool.Inputs().guess = "1";
  f.tool.Inputs().increaseAccuracy = true;
  f.tool.Calculate();
  EXPECT_EQ(f.tool.Log(), "Zero:  X = 1.4142135624\r\n");
}

TEST(Zeros, AnEmptyGuessOrRange) {
  Fixture f(ZeroKind::Zeros);
  f.tool.Inputs().function = "x";
  f.tool.Calculate();
  f.tool.Inputs().rangeMode = true;
  f.tool.Calculate();
  ASSERT_EQ(f.boxes.Boxes().size(), 2u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Value for X (Guess) not defined.\r\n");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::None);
  EXPECT_EQ(f.boxes.Boxes()[1].text, "Range not defined");
  EXPECT_EQ(f.boxes.Boxes()[1].icon, platform::MsgIcon::Information);
  EXPECT_EQ(f.tool.Log(), "");
}

TEST(Zeros, OverARange) {
  struct Case {
    const char* function;
    const char* xmin;
    const char* xmax;
    const char* log;
    const char* why;
  };
  const Case cases[] = {
      {"x^2-1", "-2", "2", "Zero:  X = -1\r\nZero:  X = 1\r\n", "exact duplicates go, two lines result"},
      {"sin(x)", "-1", "1", "Zero:  X = 0\r\n", "the 0 is kept by the zero seen"},
      {"(x-1)*(x-1.2)", "0", "2", "Zero:  X = 1\r\n", "zeros closer than 0.3 merge into one"},
      {"x-3", "0", "1", "", "a zero reached from the range but outside it is not listed"},
      {"x^2+1", "0.04", "1", "Zeros not found in range [0; 1]\r\n",
       "bounds are rounded to one decimal first"},
      {"sin(x)", "-4", "4", "Zero:  X = -3.14159\r\nZero:  X = 0\r\nZero:  X = 3.14159\r\n",
       "the 0 added at the end is a duplicate of the one kept in place"},
      {"x*(x-0.2)", "-1", "1", "Zero:  X = 0\r\n",
       "a 0 beside a near value: kept by the zero seen, listed last"},
  };
  for (const Case& c : cases) EXPECT_EQ(Range(ZeroKind::Zeros, c.function, c.xmin, c.xmax), c.log) << c.why;
}

TEST(Intersection, TwoDifferentFunctions) {
  Fixture f(ZeroKind::Intersection);
  f.tool.Inputs().function = "x";
  f.tool.Inputs().function2 = "x";
  f.tool.Calculate();
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Please select two different functions.");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::Information);
  EXPECT_EQ(Range(ZeroKind::Intersection, "x", "-1", "1", "x+0"), "Intersection: X = 0\r\n")
      << "x and x+0 are accepted, and every start gives a zero difference";
}

TEST(Intersection, TheTextsOfItsResults) {
  EXPECT_EQ(Guess(ZeroKind::Intersection, "x^2", "1", "x+2"), "Intersection:  X = 2\r\n") << "two blanks";
  EXPECT_EQ(Guess(ZeroKind::Intersection, "x", "1", "x+1"), "Intersection not found near the X = 1.\r\n");
  EXPECT_EQ(Range(ZeroKind::Intersection, "x^2", "-3", "3", "x+2"),
            "Intersection: X = -1\r\nIntersection: X = 2\r\n")
      << "one blank in the range form";
  EXPECT_EQ(Range(ZeroKind::Intersection, "x", "-3", "3", "x+1"),
            "Intersections not found in range [-3; 3]\r\n")
      << "parallel lines";
}

TEST(PointEvaluate, SolveForY) {
  struct Case {
    const char* function;
    const char* x;
    const char* log;
    const char* why;
  };
  const Case cases[] = {
      {"x^2", "3", " Y = 9 ; X = 3\r\n", "the leading blank belongs to the text"},
      {"x/3", "1", " Y = 0.333333333333333 ; X = 1\r\n", "Y is shown unrounded"},
      {"x*1E+38", "2", "Error ; X = 2\r\n", "above 1.23456789012346E+38 Error"},
  };
  for (const Case& c : cases) EXPECT_EQ(Guess(ZeroKind::PointEvaluate, c.function, c.x), c.log) << c.why;
}

TEST(PointEvaluate, ANonFiniteYShowsItsSpellingNotError) {
  // The program's engine faults on 1/0; an engine that answers with an
  // infinity shows its spelling in the log.
  testing::ScriptedFormula engine([](std::string_view formula) -> std::optional<double> {
    if (formula == "0") return 0.0;
    return std::numeric_limits<double>::infinity();
  });
  testing::RecordingMessageBox boxes;
  ZeroTool tool(ZeroKind::PointEvaluate, engine, engine, boxes);
  tool.Inputs().function = "1/x";
  tool.Inputs().guess = "0";
  tool.Calculate();
  EXPECT_EQ(tool.Log(), "1.#INF ; X = 0\r\n");
}

TEST(PointEvaluate, AValueTheEngineCannotGiveLeavesTheEarlierOne) {
  EXPECT_EQ(Guess(ZeroKind::PointEvaluate, "1/x", "0"), " Y = 0 ; X = 0\r\n")
      << "the statement is skipped and Y keeps its empty value";
}

TEST(PointEvaluate, SolveForXKeepsTheTarget) {
  Fixture f(ZeroKind::PointEvaluate);
  f.tool.Inputs().function = "x^2";
  f.tool.Inputs().rangeMode = true;
  f.tool.Inputs().target = "4";
  f.tool.Inputs().xmin = "-3";
  f.tool.Inputs().xmax = "3";
  f.tool.Calculate();
  EXPECT_EQ(f.tool.Log(), " X = -2 for Y = 4\r\n X = 2 for Y = 4\r\n");
}

TEST(PointEvaluate, NotFoundShowsTheBoxBeforeTheLogLine) {
  Fixture f(ZeroKind::PointEvaluate);
  f.tool.Inputs().function = "x^2";
  f.tool.Inputs().rangeMode = true;
  f.tool.Inputs().target = "-4";
  f.tool.Inputs().xmin = "-3";
  f.tool.Inputs().xmax = "3";
  f.tool.Calculate();
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text,
            "Values for Y not found in range [-3; 3]\r\nPlease try to redefine range or search value.");
  EXPECT_EQ(f.tool.Log(), "NotFound in range [-3; 3]\r\n");
}

TEST(PointEvaluate, EmptyBoxes) {
  Fixture f(ZeroKind::PointEvaluate);
  f.tool.Inputs().function = "x";
  f.tool.Calculate();
  f.tool.Inputs().rangeMode = true;
  f.tool.Inputs().target = "";
  f.tool.Calculate();
  ASSERT_EQ(f.boxes.Boxes().size(), 2u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Value for X not defined.");
  EXPECT_EQ(f.boxes.Boxes()[1].text, "Value for Y or range not defined");
}

TEST(Zeros, APulseCanStopTheScan) {
  Fixture f(ZeroKind::Zeros);
  f.tool.Inputs().function = "x^2-1";
  f.tool.Inputs().rangeMode = true;
  f.tool.Inputs().xmin = "-2";
  f.tool.Inputs().xmax = "2";
  int calls = 0;
  f.tool.Calculate([&calls](int) { return ++calls < 2; });
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(f.tool.Log(), "Zero:  X = -1\r\n") << "the starts before the stop still count";
}

}  // namespace
}  // namespace velmora::tools
