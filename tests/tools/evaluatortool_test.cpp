// The Evaluator window's logic over the formula engine.
#include "tools/evaluatortool.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/tools/toolfixture.h"

namespace velmora::tools {
namespace {

using Fixture = ToolOverEngine<EvaluatorTool>;

TEST(EvaluatorTool, TheResultLabel) {
  struct Case {
    const char* expression;
    const char* label;
    const char* why;
  };
  const Case cases[] = {
      {"2+3", "5", "a plain result, unrounded"},
      {"1/3", "0.333333333333333", "15 significant digits"},
      {"1.23456789012346E+38", "Error", "the bound itself is Error"},
      {"1.23456789012345E+38", "1.23456789012345E+38", "just below the bound the value shows"},
      {"-2E+39", "Error", "the bound holds for negative values too"},
  };
  for (const Case& c : cases) {
    Fixture f;
    f.tool.expression = c.expression;
    EXPECT_TRUE(f.tool.Evaluate()) << c.why;
    EXPECT_EQ(f.tool.ResultLabel(), c.label) << c.why;
    EXPECT_EQ(f.tool.History(), std::string(c.expression) + " = " + c.label + "\r\n") << c.why;
  }
}

TEST(EvaluatorTool, TwiceGivesTwoHistoryLinesAndOneListEntry) {
  Fixture f;
  f.tool.expression = "2*2";
  f.tool.Evaluate();
  f.tool.Evaluate();
  EXPECT_EQ(f.tool.History(), "2*2 = 4\r\n2*2 = 4\r\n");
  EXPECT_EQ(f.tool.list, (std::vector<std::string>{"2*2"}));
}

TEST(EvaluatorTool, AnEmptyExpressionDoesNothing) {
  Fixture f;
  EXPECT_FALSE(f.tool.Evaluate());
  EXPECT_EQ(f.tool.History(), "");
}

TEST(EvaluatorTool, ReplacePutsTheValueInForX) {
  struct Case {
    const char* expression;
    const char* value;
    const char* out;
    const char* why;
  };
  const Case cases[] = {
      {"exp(x)", "2", "exp((2))", "exp is masked for the replacement"},
      {"fix(x)+X", "-1", "fix((-1))+(-1)", "fix too, and any case of x"},
      {"sin (k)", "pi", "sin((pi))", "blanks go and k is the variable too"},
  };
  for (const Case& c : cases) {
    Fixture f;
    f.tool.expression = c.expression;
    f.tool.xValue = c.value;
    EXPECT_TRUE(f.tool.Replace()) << c.why;
    EXPECT_EQ(f.tool.expression, c.out) << c.why;
    EXPECT_EQ(f.tool.list, (std::vector<std::string>{c.expression})) << c.why;
  }
}

TEST(EvaluatorTool, ReplaceWithAnEmptyBoxShowsTheMessage) {
  Fixture f;
  f.tool.expression = "x";
  EXPECT_FALSE(f.tool.Replace());
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Enter Function and value for X.");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::Information);
}

TEST(EvaluatorTool, TheAccuracyRoundsTheLastResult) {
  Fixture f;
  f.tool.expression = "pi";
  f.tool.Evaluate();
  f.tool.SetDecimals(3);
  EXPECT_EQ(f.tool.ResultLabel(), "3.142");
  f.tool.SetDecimals(10);
  EXPECT_EQ(f.tool.ResultLabel(), "3.1415926536") << "from the kept result, not the label";
  f.tool.expression = "2E+39";
  f.tool.Evaluate();
  f.tool.SetDecimals(2);
  EXPECT_EQ(f.tool.ResultLabel(), "Error") << "Error stays";
}

TEST(EvaluatorTool, ClearEmptiesTheBoxesAndTheHistory) {
  Fixture f;
  f.tool.expression = "1";
  f.tool.xValue = "2";
  f.tool.Evaluate();
  f.tool.Clear();
  EXPECT_EQ(f.tool.expression, "");
  EXPECT_EQ(f.tool.xValue, "");
  EXPECT_EQ(f.tool.History(), "");
  EXPECT_EQ(f.tool.ResultLabel(), "");
}

TEST(EvaluatorTool, FortyFunctionNames) {
  const auto& names = EvaluatorTool::FunctionNames();
  EXPECT_EQ(names.front(), "Exp");
  EXPECT_EQ(names[30], "Stef");
  EXPECT_EQ(names.back(), "Fah");
}

}  // namespace
}  // namespace velmora::tools
