// The graph window as a tool window reaches it: through GraphToolTarget only.
#include "graph/graphtooltarget.h"

#include <gtest/gtest.h>

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
