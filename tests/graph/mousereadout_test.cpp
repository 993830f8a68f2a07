// The readout and trace under the mouse, on a 600 x 400 window at zoom 30
// (origin at pixel 300, 200: one unit is 30 pixels), with the program's text
// evaluator standing in for the formula engine.
#include "graph/mousereadout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "graph/graphwindow.h"
#include "platform/settingskeys.h"
#include "tests/graph/windowfixture.h"
#include "tests/support/evaluatorformula.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

using testing::EvaluatorScript;
using testing::WindowFixture;

constexpr int kNone = 0;
constexpr int kLeft = MouseReadout::kLeftButton;
constexpr int kRight = MouseReadout::kRightButton;

struct ReadoutCase {
  const char* name;
  int type;
  const char* y;
  const char* x;
  bool plotted;
  int button;
  double mouseX;
  double mouseY;
  const char* text;
};

// The ø of the polar readout, as UTF-8.
#define OSLASH "\xC3\xB8"

const ReadoutCase kCases[] = {
    // Plain readout: no button, or nothing plotted, or not the right button alone.
    {"Plain", kCartesian, "SinX", "K", true, kNone, 330, 185, "   x = 1, y = 0.5"},
    {"PlainNegative", kCartesian, "SinX", "K", true, kNone, 285, 230, "   x = -0.5, y = -1"},
    {"PlainRoundsToOneDecimal", kCartesian, "SinX", "K", true, kNone, 301, 199, "   x = 0, y = 0"},
    {"PlainWithTheLeftButton", kCartesian, "SinX", "K", true, kLeft, 360, 140, "   x = 2, y = 2"},
    {"RightAndLeftTogether", kCartesian, "SinX", "K", true, kLeft + kRight, 360, 140, "   x = 2, y = 2"},
    {"RightWithoutAPlot", kCartesian, "SinX", "K", false, kRight, 330, 185, "   x = 1, y = 0.5"},
    {"NoFunctionAtAll", kCartesian, "", "K", false, kNone, 300, 200, "   x = 0, y = 0"},
    // Cartesian trace: the value at the mouse column with 5 decimals.
    {"TraceSin", kCartesian, "SinX", "K", true, kRight, 330, 200, "    x = 1 [1], y (x) = 0.84147"},
    {"TraceFractionOfAUnit", kCartesian, "X^2", "K", true, kRight, 310, 100,
     "    x = 0.3 [0.33333], y (x) = 0.11111"},
    {"TraceLargeValueIsAnError", kCartesian, "100*X^3", "K", true, kRight, 450, 200,
     "    (x1 , y1) = (5 , Error )"},
    {"TraceAtTheLimitIsAnError", kCartesian, "1000", "K", true, kRight, 330, 200,
     "    (x1 , y1) = (1 , Error )"},
    {"TraceBelowTheLimit", kCartesian, "999.99999", "K", true, kRight, 330, 200,
     "    x = 1 [1], y (x) = 999.99999"},
    // Parametric: k from the mouse column, both functions at it.
    {"Parametric", kParametric, "SinK", "CosK", true, kRight, 330, 200,
     "    k = 1 [1];  x (k) = 0.5403; y (k) = 0.84147"},
    {"ParametricNegativeK", kParametric, "K^2", "2*K", true, kRight, 255, 50,
     "    k = -1.5 [-1.5];  x (k) = -3; y (k) = 2.25"},
    // Polar: the angle and distance of the mouse.
    {"PolarOnTheYAxisAbove", kPolar, "2", "K", true, kRight, 300, 170,
     "    x = 0 [0]; y = 1 [1]; r = 1; " OSLASH " = 1.5708 (0.5*Pi)"},
    {"PolarOnTheYAxisBelow", kPolar, "2", "K", true, kRight, 300, 230,
     "    x = 0 [0]; y = -1 [-1]; r = 1; " OSLASH " = 1.5708 (0.5*Pi)"},
    {"PolarFirstQuadrant", kPolar, "2", "K", true, kRight, 330, 170,
     "    x = 1 [1]; y = 1 [1]; r = 1.41421; " OSLASH " = 0.7854 (0.25*Pi)"},
    {"PolarSecondQuadrant", kPolar, "2", "K", true, kRight, 270, 170,
     "    x = -1 [-1]; y = 1 [1]; r = 1.41421; " OSLASH " = 2.35619 (0.75*Pi)"},
    // Below the X axis on the left the angle is measured the other way: it
    // passes pi.
    {"PolarThirdQuadrant", kPolar, "2", "K", true, kRight, 270, 230,
     "    x = -1 [-1]; y = -1 [-1]; r = 1.41421; " OSLASH " = 3.92699 (1.25*Pi)"},
    {"PolarFourthQuadrantIsNegative", kPolar, "2", "K", true, kRight, 330, 230,
     "    x = 1 [1]; y = -1 [-1]; r = 1.41421; " OSLASH " = -0.7854 (-0.25*Pi)"},
    // On the X axis the angle is 0, on the left too.
    {"PolarOnTheXAxisLeft", kPolar, "2", "K", true, kRight, 240, 200,
     "    x = -2 [-2]; y = 0 [0]; r = 2; " OSLASH " = 0 (0*Pi)"},
};

class ReadoutTest : public ::testing::TestWithParam<ReadoutCase> {};

TEST_P(ReadoutTest, Text) {
  const ReadoutCase& c = GetParam();
  WindowFixture f;
  GraphWindow& w = f.Make(EvaluatorScript(f.engine));
  w.optFunk(c.type);
  w.SettxtY(c.y);
  w.SettxtX(c.x);
  if (c.plotted) w.DrawFromTxtY();  // the trace needs a finished plot
  ASSERT_EQ(w.State().Plotted(), c.plotted);
  MouseReadout readout(w);
  readout.MouseMove(c.button, c.mouseX, c.mouseY);
  EXPECT_EQ(w.LblChart().Caption, c.text);
}

INSTANTIATE_TEST_SUITE_P(Cases, ReadoutTest, ::testing::ValuesIn(kCases),
                         [](const auto& param) { return std::string(param.param.name); });

class ReadoutLines : public ::testing::Test {
 protected:
  GraphWindow& Make(int type, const char* y, const char* x = "K") {
    GraphWindow& w = f.Make(EvaluatorScript(f.engine));
    w.optFunk(type);
    w.SettxtY(y);
    w.SettxtX(x);
    w.DrawFromTxtY();  // the trace needs a finished plot
    return w;
  }
  WindowFixture f;
};

TEST_F(ReadoutLines, CartesianTraceShowsCrossHairsAndTheTangentMark) {
  GraphWindow& w = Make(kCartesian, "SinX");
  MouseReadout readout(w);
  readout.MouseMove(kRight, 330, 200);
  // The horizontal bar at the value: 200 - 0.84147 * 30, three decimals.
  EXPECT_TRUE(w.LineY().Visible);
  EXPECT_DOUBLE_EQ(w.LineY().Y1, 174.756);
  EXPECT_DOUBLE_EQ(w.LineY().Y2, 174.756);
  EXPECT_DOUBLE_EQ(w.LineY().X1, 0);
  EXPECT_DOUBLE_EQ(w.LineY().X2, 600);
  // The vertical bar at the mouse column.
  EXPECT_TRUE(w.Line2().Visible);
  EXPECT_DOUBLE_EQ(w.Line2().X1, 330);
  EXPECT_DOUBLE_EQ(w.Line2().Y1, 0);
  EXPECT_DOUBLE_EQ(w.Line2().Y2, 400);
  // The tangent mark: 4 units either side of (1, sin 1) along the slope of
  // the central difference on values cut to 3 decimals. The cut of
  // 1.001 * 1000 falls to 1000 in binary, so the step is one-sided here and
  // the slope about half of cos 1, as the program computes it.
  const auto& v = readout.Last();
  const auto cut = [](double t) { return std::floor(t * 1000) / 1000; };
  EXPECT_NEAR(v.slope, (std::sin(cut(1.001)) - std::sin(cut(0.999))) / 0.002, 1e-9);
  EXPECT_NEAR(v.ty, std::sin(1.0), 1e-12);
  const double a = std::atan(v.slope);
  EXPECT_TRUE(w.Line1().Visible);
  EXPECT_NEAR(w.Line1().X1, 300 + 30 * (1 - 4 * std::cos(a)), 1e-9);
  EXPECT_NEAR(w.Line1().Y1, 200 - 30 * (std::sin(1.0) - 4 * std::sin(a)), 1e-9);
  EXPECT_NEAR(w.Line1().X2, 300 + 30 * (1 + 4 * std::cos(a)), 1e-9);
  EXPECT_NEAR(w.Line1().Y2, 200 - 30 * (std::sin(1.0) + 4 * std::sin(a)), 1e-9);
  // A release hides all three.
  readout.MouseUp();
  EXPECT_FALSE(w.LineY().Visible);
  EXPECT_FALSE(w.Line1().Visible);
  EXPECT_FALSE(w.Line2().Visible);
}

TEST_F(ReadoutLines, TheHorizontalBarUsesHalfTheHeightNotTheCentre) {
  GraphWindow& w = Make(kCartesian, "2");
  f.settings.Store(keys::kGrid, keys::grid::kScaleX, "1");
  w.ApplyMove(MoveDirection::Down, "2");
  ASSERT_EQ(w.View().CenterY(), 260);  // the origin moved down by 2 units
  MouseReadout readout(w);
  readout.MouseMove(kRight, 300, 100);
  EXPECT_DOUBLE_EQ(w.LineY().Y1, 200 - 2 * 30);
}

TEST_F(ReadoutLines, AnErrorValueLeavesTheHorizontalBarWhereItWas) {
  GraphWindow& w = Make(kCartesian, "1/(X-1)");
  MouseReadout readout(w);
  readout.MouseMove(kRight, 360, 200);  // x = 2: 1
  EXPECT_DOUBLE_EQ(w.LineY().Y1, 170);
  readout.MouseMove(kRight, 330.0003, 200);  // x = 1.00001: 100000
  EXPECT_EQ(w.LblChart().Caption, "    (x1 , y1) = (1 , Error )");
  EXPECT_DOUBLE_EQ(w.LineY().Y1, 170);
}

TEST_F(ReadoutLines, ParametricShowsOnlyTheVerticalBar) {
  GraphWindow& w = Make(kParametric, "SinK", "CosK");
  MouseReadout readout(w);
  readout.MouseMove(kRight, 330, 200);
  EXPECT_TRUE(w.Line2().Visible);
  EXPECT_FALSE(w.Line1().Visible);
  EXPECT_FALSE(w.LineY().Visible);
}

TEST_F(ReadoutLines, PolarShowsNoLinesAndKeepsTheRadiusOfTheFunction) {
  GraphWindow& w = Make(kPolar, "2*K");
  MouseReadout readout(w);
  readout.MouseMove(kRight, 300, 170);
  EXPECT_FALSE(w.Line1().Visible);
  EXPECT_FALSE(w.Line2().Visible);
  EXPECT_FALSE(w.LineY().Visible);
  EXPECT_NEAR(readout.Last().polarR, 2 * 1.5708, 1e-9);
}

TEST_F(ReadoutLines, AnEmptyFunctionBoxLeavesTheTextOfTheMoveBefore) {
  GraphWindow& w = Make(kCartesian, "SinX");
  MouseReadout readout(w);
  readout.MouseMove(kNone, 330, 185);
  w.SettxtY("");
  readout.MouseMove(kRight, 360, 200);
  EXPECT_EQ(w.LblChart().Caption, "   x = 1, y = 0.5");
  EXPECT_FALSE(w.Line2().Visible);
}

TEST_F(ReadoutLines, AMovedCentreIsTakenOff) {
  GraphWindow& w = Make(kCartesian, "X");
  // Two steps right and one up, a step of one unit: the origin at (360, 170).
  f.settings.Store(keys::kGrid, keys::grid::kScaleX, "1");
  w.ApplyMove(MoveDirection::Right, "2");
  w.ApplyMove(MoveDirection::Up, "1");
  ASSERT_EQ(w.View().CenterX(), 360);
  ASSERT_EQ(w.View().CenterY(), 170);
  ASSERT_EQ(w.View().MoveX(), 2);
  ASSERT_EQ(w.View().MoveY(), 1);
  MouseReadout readout(w);
  readout.MouseMove(kNone, 330, 185);
  EXPECT_EQ(w.LblChart().Caption, "   x = -1, y = -0.5");
  // The trace's value comes from the mouse with the move taken off: X at -1.
  readout.MouseMove(kRight, 330, 185);
  EXPECT_EQ(w.LblChart().Caption, "    x = -1 [-1], y (x) = -1");
}

TEST_F(ReadoutLines, NothingHappensDuringADraw) {
  GraphWindow& w = Make(kCartesian, "SinX");
  w.ShowReadout("before");
  auto busy = w.Busy();
  MouseReadout readout(w);
  readout.MouseMove(kRight, 330, 200);
  EXPECT_EQ(w.LblChart().Caption, "before");
  EXPECT_FALSE(w.Line2().Visible);
}

TEST_F(ReadoutLines, AZoomTextOfZeroReadsAsTheOrigin) {
  GraphWindow& w = Make(kCartesian, "SinX");
  MouseReadout readout(w);
  w.SetView(0, w.View().CenterX(), w.View().CenterY());
  // The division faults and is skipped: the position stays 0.
  readout.MouseMove(kNone, 400, 100);
  EXPECT_EQ(w.LblChart().Caption, "   x = 0, y = 0");
}

TEST_F(ReadoutLines, TheMouseFormulaFollowsTheBoxNotTheLastDraw) {
  GraphWindow& w = Make(kCartesian, "X");
  ASSERT_EQ(w.State().FuncY(), "K");
  w.SettxtY("Exp(x)");  // typed after the draw: the readout follows the box
  MouseReadout readout(w);
  readout.MouseMove(kRight, 300, 200);
  EXPECT_EQ(w.LblChart().Caption, "    x = 0 [0], y (x) = 1");
}

}  // namespace
}  // namespace velmora::graph
