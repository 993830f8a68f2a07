// The graph window as a tool window reaches it: through GraphToolTarget only.
#include "graph/graphtooltarget.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/graph/windowfixture.h"
#include "tests/support/fakegraphtarget.h"

namespace velmora::graph {
namespace {

using testing::WindowFixture;

// A tool's use of the target, written against the interface alone: the
// function the window shows, drawn again as a polar curve.
bool RedrawAsPolar(GraphToolTarget& target) {
  if (target.IsDrawing() || target.FunctionYText().empty()) return false;
  return target.DrawFunction(kPolar, target.FunctionYText(), "K");
}

TEST(GraphToolTarget, TheWindowReportsItsBoxesTypeAndLists) {
  WindowFixture f;
  GraphWindow& w = f.Make();
  GraphToolTarget& target = w;
  w.optFunk(kParametric);
  w.SetFunctionTexts("SinK", "CosK");
  w.CrtajFJU();  // the scripted engine draws nothing, but the lists grow
  EXPECT_EQ(target.FunctionYText(), "SinK");
  EXPECT_EQ(target.FunctionXText(), "CosK");
  EXPECT_EQ(target.FunctionTypeIndex(), kParametric);
  EXPECT_EQ(target.DrawnFunctions(), (std::vector<std::string>{"SinK"}));
  EXPECT_EQ(target.DrawnXTexts(), (std::vector<std::string>{"CosK"}));
  EXPECT_EQ(target.DrawnParametricY(), (std::vector<std::string>{"SinK"}));
  EXPECT_FALSE(target.IsDrawing());
}

struct BoundsCase {
  double zoom;
  double centerX;
  double centerY;
  ViewBounds expected;
  const char* why;
};

class ToolBounds : public ::testing::TestWithParam<BoundsCase> {};

TEST_P(ToolBounds, VisibleBoundsInUserUnits) {
  const BoundsCase& c = GetParam();
  WindowFixture f(600, 400);
  GraphWindow& w = f.Make();
  w.SetView(c.zoom, c.centerX, c.centerY);
  const GraphToolTarget& target = w;
  const ViewBounds b = target.VisibleBounds();
  EXPECT_DOUBLE_EQ(b.left, c.expected.left) << c.why;
  EXPECT_DOUBLE_EQ(b.right, c.expected.right) << c.why;
  EXPECT_DOUBLE_EQ(b.top, c.expected.top) << c.why;
  EXPECT_DOUBLE_EQ(b.bottom, c.expected.bottom) << c.why;
  EXPECT_EQ(target.ZoomFactor(), c.zoom);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ToolBounds,
    ::testing::Values(BoundsCase{30, 300, 200, {-10, 10, 200.0 / 30, -200.0 / 30}, "the default view"},
                      BoundsCase{50, 300, 200, {-6, 6, 4, -4}, "zoomed in: less of the plane"},
                      BoundsCase{
                          30, 360, 170, {-12, 8, 170.0 / 30, -230.0 / 30}, "origin moved right and up"}));

TEST(GraphToolTarget, DrawFunctionDrawsAsEnterWouldInTheGivenType) {
  WindowFixture f;
  GraphWindow& w = f.Make([](std::string_view) -> std::optional<double> { return 1; });
  GraphToolTarget& target = w;
  ASSERT_TRUE(target.DrawFunction(kPolar, "2", "ignored"));
  EXPECT_EQ(w.Boxes().optFunkcije(), kPolar);
  EXPECT_EQ(w.Boxes().txtX().Text, "K");  // X counts in the parametric type only
  EXPECT_EQ(target.DrawnFunctions(), (std::vector<std::string>{"2"}));
  EXPECT_FALSE(f.surface.LinesIn(w.Pen().Graph_Clr()).empty());
  ASSERT_TRUE(target.DrawFunction(kParametric, "SinK", "CosK"));
  EXPECT_EQ(target.DrawnXTexts(), (std::vector<std::string>{"CosK"}));
  EXPECT_FALSE(target.DrawFunction(4, "X", "K"));  // no such type
  EXPECT_EQ(w.State().KolkoFunkc(), 2);
}

TEST(GraphToolTarget, NoDrawWhileTheWindowDraws) {
  WindowFixture f;
  GraphWindow& w = f.Make();
  const auto busy = w.Busy();
  GraphToolTarget& target = w;
  EXPECT_TRUE(target.IsDrawing());
  EXPECT_FALSE(target.DrawFunction(kCartesian, "X", "K"));
  EXPECT_EQ(w.State().KolkoFunkc(), 0);
}

TEST(GraphToolTarget, AToolWritesItsFunctionBackIntoTheYBox) {
  WindowFixture f;
  GraphWindow& w = f.Make();
  w.SettxtY("X^2");
  GraphToolTarget& target = w;
  target.SetFunctionYText("x^2");
  EXPECT_EQ(w.Boxes().txtY().Text, "x^2");
  EXPECT_EQ(f.host.toolChanges, 1) << "the view shows the new text";
  EXPECT_TRUE(w.DrawnFunctions().empty()) << "nothing drawn or remembered";
  EXPECT_EQ(w.State().KolkoFunkc(), 0);
}

TEST(GraphToolTarget, DrawCurveJoinsThePointsAndLiftsThePenBeyond100) {
  constexpr Colour kPen = 0x7F0C64;
  const struct {
    std::vector<CurvePoint> points;
    std::size_t lines;
    const char* why;
  } rows[] = {
      {{{0, 0}, {1, -1}, {2, -2}}, 2, "three points, two strokes"},
      {{{0, 0}, {1, 150}, {2, -2}, {3, -3}}, 1, "beyond 100 units the pen lifts on both sides"},
      {{{0, 0}, {1, std::nan("")}, {2, 1}}, 0, "a value that is not finite lifts it too"},
      {{}, 0, "no points, nothing drawn"},
  };
  for (const auto& row : rows) {
    WindowFixture f(600, 400);
    GraphWindow& w = f.Make();
    w.SetView(30, 300, 200);
    f.surface.ClearOps();
    GraphToolTarget& target = w;
    EXPECT_TRUE(target.DrawCurve(row.points, kPen)) << row.why;
    const auto lines = f.surface.LinesIn(kPen);
    EXPECT_EQ(lines.size(), row.lines) << row.why;
    EXPECT_EQ(f.surface.Lines().size(), row.lines) << "no other stroke: " << row.why;
    EXPECT_EQ(f.host.toolChanges, 1) << row.why;
  }
  WindowFixture f(600, 400);
  GraphWindow& w = f.Make();
  w.SetView(30, 300, 200);
  f.surface.ClearOps();
  static_cast<GraphToolTarget&>(w).DrawCurve({{0, 0}, {1, -1}}, kPen);
  const auto lines = f.surface.LinesIn(kPen);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_DOUBLE_EQ(lines[0].x1, 300);
  EXPECT_DOUBLE_EQ(lines[0].y1, 200);
  EXPECT_DOUBLE_EQ(lines[0].x2, 330) << "one unit is 30 pixels to the right";
  EXPECT_DOUBLE_EQ(lines[0].y2, 230) << "and Y grows upwards";
  EXPECT_EQ(lines[0].style, 0) << "a solid pen";
}

TEST(GraphToolTarget, NoCurveWhileTheWindowDraws) {
  WindowFixture f;
  GraphWindow& w = f.Make();
  const auto busy = w.Busy();
  f.surface.ClearOps();
  EXPECT_FALSE(static_cast<GraphToolTarget&>(w).DrawCurve({{0, 0}, {1, 1}}, 255));
  EXPECT_TRUE(f.surface.Lines().empty());
}

TEST(FakeGraphTarget, RecordsWhatAToolAsksAndRefusesDuringADraw) {
  testing::FakeGraphTarget fake;
  fake.y = "1+CosK";
  EXPECT_TRUE(RedrawAsPolar(fake));
  ASSERT_EQ(fake.requests.size(), 1u);
  EXPECT_EQ(fake.requests[0], (testing::FakeGraphTarget::DrawRequest{kPolar, "1+CosK", "K"}));
  fake.drawing = true;
  EXPECT_FALSE(RedrawAsPolar(fake));
  EXPECT_EQ(fake.requests.size(), 1u);
}

TEST(GraphToolTarget, TheSameToolCodeDrivesTheRealWindow) {
  WindowFixture f;
  GraphWindow& w = f.Make([](std::string_view) -> std::optional<double> { return 1; });
  w.SettxtY("1+CosK");
  EXPECT_TRUE(RedrawAsPolar(w));
  EXPECT_EQ(w.Boxes().optFunkcije(), kPolar);
  EXPECT_EQ(w.DrawnFunctions(), (std::vector<std::string>{"1+CosK"}));
}

}  // namespace
}  // namespace velmora::graph
