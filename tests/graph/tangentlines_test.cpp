#include "graph/tangentlines.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "expr/formulacontrol.h"

namespace velmora::graph {
namespace {

struct LineCase {
  const char* why;
  const char* function;
  double x0;
  const char* text;
  const char* slope;
};

class DrawTangTest : public ::testing::TestWithParam<LineCase> {};

TEST_P(DrawTangTest, WritesTheLineOfTheTangent) {
  const auto& c = GetParam();
  auto engine = expr::MakeFormulaControl();
  const LineText line = TangentLines::DrawTang(*engine, c.function, c.x0);
  EXPECT_EQ(line.text, c.text) << c.why;
  EXPECT_EQ(line.slope, c.slope) << c.why;
  EXPECT_FALSE(line.vertical);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DrawTangTest,
    ::testing::Values(LineCase{"the worked example: X^2 at 1", "X^2", 1, "2*x-1", "2"},
                      LineCase{"a positive intercept is written with blanks round the plus", "-X^2+2", 1,
                               "-2*x + 3", "-2"},
                      LineCase{"a negative intercept: the minus without blanks", "X^2", -1, "-2*x-1", "-2"},
                      LineCase{"slope 1 drops its coefficient, the text starts with the asterisk", "X^2", 0.5,
                               "*x-0.25", "1"},
                      LineCase{"a horizontal tangent keeps its zero slope", "X^2", 0, "0*x + 0", "0"},
                      LineCase{"K and x are the same variable", "K^2+1", 2, "4*x-3", "4"},
                      LineCase{"a domain error leaves the long form", "Sqr(X)", -1,
                               "1.#IND*(x-(-1)) +(1.#IND)", "1.#IND"}));

class DrawNormalTest : public ::testing::TestWithParam<LineCase> {};

TEST_P(DrawNormalTest, WritesTheLineOfTheNormal) {
  const auto& c = GetParam();
  auto engine = expr::MakeFormulaControl();
  const LineText line = TangentLines::DrawNormal(*engine, c.function, c.x0);
  EXPECT_EQ(line.text, c.text) << c.why;
  EXPECT_EQ(line.slope, c.slope) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DrawNormalTest,
    ::testing::Values(LineCase{"X^2 at 1: slope -1/2 through (1, 1)", "X^2", 1, "-0.5*x + 1.5", "-0.5"},
                      LineCase{"a negative intercept is written with blanks round the minus", "-X^2", 1,
                               "0.5*x - 1.5", "0.5"},
                      LineCase{"a horizontal tangent gives the vertical line x", "X^2", 0, "x", "0"}));

TEST(DrawNormal, AHorizontalTangentGivesAVerticalLineThroughThePoint) {
  auto engine = expr::MakeFormulaControl();
  const LineText line = TangentLines::DrawNormal(*engine, "CosX", 0);
  EXPECT_TRUE(line.vertical);
  EXPECT_EQ(line.text, "x");
  EXPECT_EQ(line.verticalX, "0");
}

struct ParamCase {
  const char* why;
  const char* y;
  const char* x;
  double k;
  bool normal;
  const char* text;
  bool vertical;
};

class ParametricLineTest : public ::testing::TestWithParam<ParamCase> {};

TEST_P(ParametricLineTest, WritesTheLineOfThePair) {
  const auto& c = GetParam();
  auto y = expr::MakeFormulaControl();
  auto x = expr::MakeFormulaControl();
  const LineText line = TangentLines::Parametric(*y, *x, c.y, c.x, c.k, c.normal);
  EXPECT_EQ(line.text, c.text) << c.why;
  EXPECT_EQ(line.vertical, c.vertical) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ParametricLineTest,
    ::testing::Values(
        // Y = K^2, X = K at k = 1: the point (1, 1), slope 2, b' = 2*1-1 = 1.
        ParamCase{"tangent: b' above 0 is subtracted", "K^2", "K", 1, false, "2*x-1", false},
        ParamCase{"tangent: b' below 0 is added", "K^2+3", "K", 1, false, "2*x+2", false},
        ParamCase{"tangent through the origin has no constant", "2*K", "K", 1, false, "2*x", false},
        // The normal at (1, 1): slope -0.5, b = 1 + 0.5 = 1.5 above 0: "+".
        ParamCase{"normal: signs the other way round", "K^2", "K", 1, true, "-0.5*x+1.5", false},
        ParamCase{"dX of 0 gives the vertical line", "K", "3", 1, false, "x", true}));

}  // namespace
}  // namespace velmora::graph
