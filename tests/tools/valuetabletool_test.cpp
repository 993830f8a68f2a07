// The Value Tables window's logic: its boxes, lists and commands over the
// shared row loops.
#include "tools/valuetabletool.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/tools/toolfixture.h"

namespace velmora::tools {
namespace {

using Fixture = ToolOverEngine<ValueTableTool>;

TEST(ValueTableTool, ACartesianTableOverTheDefaultRange) {
  Fixture f;
  f.tool.y = "x^2";
  EXPECT_TRUE(f.tool.Calculate());
  const graph::ValueTable& t = f.tool.Table();
  ASSERT_EQ(t.Rows(), 12) << "the header and -5 to 5 by 1";
  EXPECT_EQ(t.TextMatrix(0, 2), "Y'");
  EXPECT_EQ(t.TextMatrix(1, 0), "-5");
  EXPECT_EQ(t.TextMatrix(1, 1), "25");
  EXPECT_EQ(t.TextMatrix(1, 2), "-10");
  EXPECT_EQ(f.tool.yList, (std::vector<std::string>{"x^2"}));
  EXPECT_EQ(f.tool.xList, (std::vector<std::string>{"K"}));
  EXPECT_TRUE(f.tool.HasRows());
}

TEST(ValueTableTool, TheStepIsAnExpressionRoundedToFiveDecimals) {
  struct Case {
    const char* step;
    double value;
    const char* why;
  };
  const Case cases[] = {
      {"pi/4", 0.7854, "pi/4 steps by 0.7854 exactly"},
      {"e/2", 1.35914, "e/2 by 1.35914"},
      {"0.1", 0.1, "a plain number"},
  };
  for (const Case& c : cases) {
    Fixture f;
    f.tool.y = "x";
    f.tool.step = c.step;
    f.tool.Calculate();
    EXPECT_EQ(f.tool.StepValue(), c.value) << c.why;
  }
}

TEST(ValueTableTool, AnEmptyRangeIsRefused) {
  Fixture f;
  f.tool.y = "x";
  f.tool.xmax = "";
  EXPECT_FALSE(f.tool.Calculate());
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Range not defined");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::Information);
  EXPECT_FALSE(f.tool.HasRows());
}

TEST(ValueTableTool, AnEmptyStepEndsInTheReset) {
  Fixture f;
  f.tool.y = "x";
  f.tool.step = "";
  f.tool.Calculate();
  EXPECT_EQ(f.tool.StepValue(), 0) << "the engine's answer to an empty formula";
  EXPECT_EQ(f.tool.Table().Rows(), 2) << "a zero step overflows the row counter: the grid is reset";
}

TEST(ValueTableTool, XminAboveXmaxLeavesTheHeaderAlone) {
  Fixture f;
  f.tool.y = "x";
  f.tool.xmin = "5";
  f.tool.xmax = "-5";
  f.tool.Calculate();
  EXPECT_EQ(f.tool.Table().Rows(), 1);
}

TEST(ValueTableTool, KInACartesianFunctionIsRefusedAndExpIsRead) {
  Fixture f;
  f.tool.y = "sin(k)";
  EXPECT_FALSE(f.tool.Calculate());
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].title, "Error Calculating Values");
  f.tool.y = "exp(x)";
  f.tool.xmin = "0";
  f.tool.xmax = "0";
  EXPECT_TRUE(f.tool.Calculate());
  EXPECT_EQ(f.tool.Table().TextMatrix(1, 1), "1");
}

TEST(ValueTableTool, TheLimitOf300AndTheDecimals) {
  struct Case {
    const char* y;
    const char* decimals;
    const char* yCell;
    const char* dCell;
    const char* why;
  };
  const Case cases[] = {
      {"300", "3", "300", "0", "exactly 300 is shown"},
      {"300.0001", "4", "Error", "Error", "just above 300 is Error, and the derivative beside it too"},
      {"x*400", "3", "0", "Error",
       "a derivative beyond 300 beside a fine value: Error in the third column only"},
      {"pi", "14", "3.14159265358979", "0", "14 decimals show at most 15 significant digits"},
  };
  for (const Case& c : cases) {
    Fixture f;
    f.tool.y = c.y;
    f.tool.decimals = c.decimals;
    f.tool.xmin = "0";
    f.tool.xmax = "0";
    ASSERT_TRUE(f.tool.Calculate()) << c.why;
    EXPECT_EQ(f.tool.Table().TextMatrix(1, 1), c.yCell) << c.why;
    EXPECT_EQ(f.tool.Table().TextMatrix(1, 2), c.dCell) << c.why;
  }
}

TEST(ValueTableTool, TheOptionsSetTheLabelAndTheXBox) {
  Fixture f;
  f.tool.x = "cos(k)";
  f.tool.SetType(2);
  EXPECT_EQ(f.tool.YLabel(), "Y (K) =");
  EXPECT_EQ(f.tool.x, "cos(k)");
  f.tool.SetType(3);
  EXPECT_EQ(f.tool.YLabel(), "R (K) =");
  EXPECT_EQ(f.tool.x, "K");
  f.tool.SetType(1);
  EXPECT_EQ(f.tool.YLabel(), "Y (X) =");
}

TEST(ValueTableTool, ChoosingFromTheListGuessesTheType) {
  struct Case {
    const char* y;
    int type;
    int rows;
    const char* why;
  };
  const Case cases[] = {
      {"x^2", 1, 2, "no K: Cartesian, over the unset bounds 0 to 0"},
      {"sin(k)", 2, 20, "a K function in the parametric list: parametric from -9 to 9"},
      {"2*k", 3, 14, "any other K function is polar"},
  };
  for (const Case& c : cases) {
    Fixture f;
    f.tool.parametric = {"sin(k)"};
    f.tool.xList = {"cos(k)"};
    f.tool.y = "x";
    f.tool.Calculate();  // the stored step of the last calculation: 1
    f.tool.y = c.y;
    f.tool.ChooseFromList();
    EXPECT_EQ(f.tool.Type(), c.type) << c.why;
    EXPECT_EQ(f.tool.Table().Rows(), c.rows) << c.why;
  }
}

TEST(ValueTableTool, ThePolarYColumnRepeatsX) {
  Fixture f;
  f.tool.SetType(3);
  f.tool.y = "1";
  f.tool.Calculate();
  const graph::ValueTable& t = f.tool.Table();
  ASSERT_EQ(t.Rows(), 14);
  EXPECT_EQ(t.TextMatrix(4, 0), "pi/2");
  EXPECT_EQ(t.TextMatrix(2, 2), "0.866");
  EXPECT_EQ(t.TextMatrix(2, 3), "0.866") << "not sin(pi/6) = 0.5";
}

TEST(ValueTableTool, ClearEmptiesTheGrid) {
  Fixture f;
  f.tool.y = "x";
  f.tool.Calculate();
  f.tool.InitTableGrid();
  EXPECT_EQ(f.tool.Table().Rows(), 2);
  EXPECT_FALSE(f.tool.HasRows());
}

}  // namespace
}  // namespace velmora::tools
