#include "graph/samplingloop.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "platform/settingskeys.h"
#include "tests/graph/windowfixture.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

using testing::RecordingSurface;
using testing::WindowFixture;

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr Colour kCurve = 0x123456;

// A strategy from two functions of kr, recording what it is asked.
class ScriptStrategy final : public SampleStrategy {
 public:
  ScriptStrategy(std::function<double(double)> y, std::function<double(double, double)> x = nullptr,
                 bool takesXpoc = true)
      : y_(std::move(y)), x_(std::move(x)), takesXpoc_(takesXpoc) {}
  double SampleY(double kr) override {
    asked.push_back(kr);
    return y_(kr);
  }
  double SampleX(double kr, double yr) override {
    yrs.push_back(yr);
    return x_ ? x_(kr, yr) : kr;
  }
  bool TakesXpoc() const override { return takesXpoc_; }
  std::vector<double> asked;
  std::vector<double> yrs;

 private:
  std::function<double(double)> y_;
  std::function<double(double, double)> x_;
  bool takesXpoc_;
};

struct LoopFixture : WindowFixture {
  explicit LoopFixture(int width = 600, int height = 400) : WindowFixture(width, height) {
    Make();
    window->ChooseGraphColour(kCurve);
    surface.ClearOps();
  }
  LoopResult Run(ScriptStrategy& strategy) {
    surface.ClearOps();
    observer.passes.clear();
    return SamplingLoop(*window, strategy).Run();
  }
};

// ---- Samples: one per pixel column ---------------------------------------------------

struct CountCase {
  int width;
  double zoom;
  double centre;  // CenterX as a share of the width
};

class SampleCountTest : public ::testing::TestWithParam<CountCase> {};

TEST_P(SampleCountTest, ScaleWidthPlusOneAtAnyZoom) {
  const auto& c = GetParam();
  LoopFixture f(c.width, 400);
  f.window->SetView(c.zoom, c.width * c.centre, f.window->View().CenterY());
  ScriptStrategy s([](double) { return 1.0; });
  const LoopResult r = f.Run(s);
  EXPECT_EQ(r.passes, c.width + 1);
  EXPECT_EQ(static_cast<int>(s.asked.size()), c.width + 1);
  EXPECT_FALSE(r.stopped);
}

INSTANTIATE_TEST_SUITE_P(Views, SampleCountTest,
                         ::testing::Values(CountCase{600, 30, 0.5}, CountCase{600, 5, 0.5},
                                           CountCase{600, 177, 0.5}, CountCase{799, 33.3, 0.5},
                                           CountCase{800, 200, 0.25}, CountCase{3, 5, 0.5},
                                           CountCase{1, 8, 0.0}, CountCase{617, 44, 1.7},
                                           CountCase{600, 15, -0.4}, CountCase{1200, 7.3, 0.5}));

TEST(SamplingLoop, KRunsFromTheLeftEdgeToTheRightEdgeByOnePixel) {
  LoopFixture f(600, 400);
  ScriptStrategy s([](double) { return 1.0; });
  f.Run(s);
  EXPECT_DOUBLE_EQ(s.asked.front(), -10);
  EXPECT_NEAR(s.asked.back(), 10, 1e-3);
  EXPECT_NEAR(s.asked[1] - s.asked[0], 0.033, 1e-9);  // 1/30 cut to three decimals
}

// ---- K cut toward minus infinity ---------------------------------------------------------

TEST(SamplingLoop, KIsCutToThreeDecimalsTowardMinusInfinity) {
  // Zoom 32 makes every K exact: -1 + i / 32.
  LoopFixture f(64, 400);
  f.window->SetView(32, 32, f.window->View().CenterY());
  ScriptStrategy s([](double) { return 1.0; });
  f.Run(s);
  ASSERT_EQ(s.asked.size(), 65u);
  EXPECT_DOUBLE_EQ(s.asked[0], -1);
  EXPECT_DOUBLE_EQ(s.asked[1], -0.969);   // -0.96875 goes down
  EXPECT_DOUBLE_EQ(s.asked[31], -0.032);  // -0.03125 goes down
  EXPECT_DOUBLE_EQ(s.asked[32], 0);
  EXPECT_DOUBLE_EQ(s.asked[33], 0.031);  // 0.03125 goes down too
  EXPECT_DOUBLE_EQ(s.asked[64], 1);
}

TEST(SamplingLoop, XIsAskedWithYCutToThreeDecimals) {
  LoopFixture f;
  ScriptStrategy s([](double) { return -1.23456; });
  f.Run(s);
  ASSERT_FALSE(s.yrs.empty());
  EXPECT_DOUBLE_EQ(s.yrs[0], -1.235);
}

// ---- Which samples are plotted ---------------------------------------------------------------

struct ValueCase {
  const char* name;
  double y;
  bool plotted;
};

class PlottedValueTest : public ::testing::TestWithParam<ValueCase> {};

TEST_P(PlottedValueTest, ConstantCurve) {
  LoopFixture f(600, 400);
  f.window->SetView(1, f.window->View().CenterX(),
                    f.window->View().CenterY());  // 100 units stay on the surface
  const double y = GetParam().y;
  ScriptStrategy s([y](double) { return y; });
  f.Run(s);
  const auto lines = f.surface.Lines();
  if (GetParam().plotted) {
    EXPECT_EQ(lines.size(), 600u);  // the first sample moves, every other draws
    EXPECT_EQ(f.observer.passes[0].action, PassAction::Move);
    EXPECT_EQ(f.observer.passes[1].action, PassAction::Line);
  } else {
    EXPECT_TRUE(lines.empty());
    for (const auto& pass : f.observer.passes) EXPECT_EQ(pass.action, PassAction::Skip);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Values, PlottedValueTest,
    ::testing::Values(ValueCase{"Hundred", 100, true},           // the limit itself is drawn
                      ValueCase{"MinusHundred", -100, true},     // on both sides
                      ValueCase{"JustOver", 100.0001, false},    // beyond the limit is skipped
                      ValueCase{"JustUnder", -100.0001, false},  // on both sides
                      ValueCase{"Zero", 0, false},               // the constant 0 draws nothing
                      ValueCase{"Tiny", 1e-300, true},           // any small non-zero constant draws
                      ValueCase{"Infinite", kInf, false},        // not finite
                      ValueCase{"NaN", std::nan(""), false}),    // not a number
    [](const auto& row) { return std::string(row.param.name); });

TEST(SamplingLoop, LinesGoInTheGraphColourWithTheLineWidth) {
  LoopFixture f;
  f.window->SetGraphLineWidth(2.5);  // to a whole pixel, ties to even
  ScriptStrategy s([](double k) { return k / 2; });
  f.Run(s);
  const auto lines = f.surface.Lines();
  ASSERT_FALSE(lines.empty());
  for (const auto& l : lines) {
    EXPECT_EQ(l.colour, kCurve);
    EXPECT_EQ(l.width, 2);
    EXPECT_EQ(l.style, kSolid);
  }
  // A sample maps to CenterX + X * Zoom, CenterY - Y * Zoom.
  EXPECT_DOUBLE_EQ(lines[0].x2, 300 + (-10 + 0.033) * 30);
  EXPECT_DOUBLE_EQ(lines[0].y2, 200 - (-10 + 0.033) / 2 * 30);
}

// ---- The pen ---------------------------------------------------------------------------------------

TEST(SamplingLoop, ASampleAboveTheLimitMakesTheNextSegmentInvisible) {
  LoopFixture f;
  // Samples 0..2 good, 3 beyond the limit, 4.. good again.
  int i = 0;
  ScriptStrategy s([&i](double) { return i++ == 3 ? 150.0 : 1.0; });
  f.Run(s);
  const auto& p = f.observer.passes;
  EXPECT_EQ(p[2].action, PassAction::Line);
  EXPECT_EQ(p[2].drawStyle, kSolid);
  EXPECT_EQ(p[3].action, PassAction::Skip);
  EXPECT_EQ(p[3].drawStyle, kInvisible);  // set at the end of the bad pass
  EXPECT_EQ(p[4].action, PassAction::Line);
  EXPECT_EQ(p[4].drawStyle, kSolid);  // reset at the end of the next good pass
  const auto lines = f.surface.Lines();
  EXPECT_EQ(lines[2].style, kInvisible);  // the segment after the gap is drawn unseen
  EXPECT_EQ(lines[1].style, kSolid);
  EXPECT_EQ(lines[3].style, kSolid);
}

struct NonFiniteCase {
  const char* name;
  double y;
};

class NonFiniteTest : public ::testing::TestWithParam<NonFiniteCase> {};

// "1.#INF", "1.#IND" and their kin read as 1 or -1: the pen stays visible and
// the gap is bridged by a visible line.
TEST_P(NonFiniteTest, SkippedButBridgedByAVisibleLine) {
  LoopFixture f;
  int i = 0;
  const double bad = GetParam().y;
  ScriptStrategy s([&i, bad](double) { return i++ == 3 ? bad : 1.0; });
  f.Run(s);
  const auto& p = f.observer.passes;
  EXPECT_EQ(p[3].action, PassAction::Skip);
  EXPECT_EQ(p[3].drawStyle, kSolid);
  EXPECT_EQ(p[4].action, PassAction::Line);
  const auto lines = f.surface.Lines();
  EXPECT_EQ(lines[2].style, kSolid);
  EXPECT_DOUBLE_EQ(lines[2].x1, p[2].Xp);  // joined to the last good sample
  EXPECT_DOUBLE_EQ(lines[2].x2, p[4].Xp);
}

INSTANTIATE_TEST_SUITE_P(Values, NonFiniteTest,
                         ::testing::Values(NonFiniteCase{"PlusInf", kInf}, NonFiniteCase{"MinusInf", -kInf},
                                           NonFiniteCase{"NaN", std::nan("")},
                                           NonFiniteCase{"MinusNaN", -std::nan("")}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SamplingLoop, AnXThatIsNotFiniteMakesThePenInvisible) {
  LoopFixture f;
  int i = 0;
  ScriptStrategy s([](double) { return 1.0; }, [&i](double kr, double) { return i++ == 3 ? kInf : kr; });
  f.Run(s);
  const auto& p = f.observer.passes;
  EXPECT_EQ(p[3].drawStyle, kInvisible);
  // Xp could not take the infinite X and keeps the column before.
  EXPECT_DOUBLE_EQ(p[3].Xp, p[2].Xp);
  EXPECT_EQ(p[4].drawStyle, kSolid);
}

TEST(SamplingLoop, TheTextOfYDecidesTheInvisiblePen) {
  LoopFixture f;
  f.window->SetView(1, f.window->View().CenterX(), f.window->View().CenterY());
  int i = 0;
  // 100.000000000000014 reads "100": skipped as beyond 100, but its text is not.
  ScriptStrategy s([&i](double) { return i++ == 3 ? 100.000000000000014 : 1.0; });
  f.Run(s);
  EXPECT_EQ(f.observer.passes[3].action, PassAction::Skip);
  EXPECT_EQ(f.observer.passes[3].drawStyle, kSolid);
}

TEST(SamplingLoop, OffTheSurfaceTheLineGoesToTheFirstPointOutThenThePenTravelsUnseen) {
  LoopFixture f;  // 400 high at zoom 30: Y beyond 6.67 is above the top
  // Two samples inside, two far above the top, two inside again.
  const double values[] = {1, 1, 20, 20, 1, 1};
  int i = 0;
  ScriptStrategy s([&](double) { return i < 6 ? values[i++] : 1.0; });
  f.Run(s);
  const auto& p = f.observer.passes;
  EXPECT_EQ(p[0].action, PassAction::Move);  // the first point
  EXPECT_EQ(p[1].action, PassAction::Line);
  EXPECT_EQ(p[2].action, PassAction::Line);  // up to the first point off the surface
  EXPECT_EQ(p[3].action, PassAction::Move);  // the pen travels
  EXPECT_EQ(p[4].action, PassAction::Line);  // back: joined from the last point off
  const auto lines = f.surface.Lines();
  EXPECT_DOUBLE_EQ(lines[2].x1, p[3].Xp);
  EXPECT_DOUBLE_EQ(lines[2].y1, p[3].Yp);
}

TEST(SamplingLoop, RowZeroIsOffTheSurface) {
  LoopFixture f;
  ScriptStrategy s([](double) { return 200.0 / 30.0; });  // Yp = 0 exactly
  f.window->SetView(30, f.window->View().CenterX(), 200);
  f.Run(s);
  EXPECT_TRUE(f.surface.Lines().empty());
  EXPECT_EQ(f.observer.passes[0].action, PassAction::Move);
}

// ---- Xpoc ------------------------------------------------------------------------------------------------

TEST(SamplingLoop, XpocIsTakenAtTheFirstPlottedSampleInCartesianTypeOnly) {
  LoopFixture f;
  ScriptStrategy cartesian([](double k) { return k > 2 ? 1.0 : 0.0; }, nullptr, true);
  f.Run(cartesian);
  double firstPlotted = 0;
  for (const double kr : cartesian.asked) {
    if (kr > 2) {
      firstPlotted = kr;
      break;
    }
  }
  EXPECT_NEAR(f.window->State().Xpoc(), firstPlotted, 1e-9);  // in user units: the first plotted X
  ScriptStrategy other([](double) { return 1.0; }, nullptr, false);
  const double taken = f.window->State().Xpoc();
  ASSERT_NE(taken, -10);  // what the other run would take
  f.Run(other);
  EXPECT_EQ(f.window->State().Xpoc(), taken);
}

TEST(SamplingLoop, XpocTakesTheMoveOff) {
  LoopFixture f;
  f.settings.Store(keys::kGrid, keys::grid::kScaleX, "1");
  f.window->ApplyMove(MoveDirection::Right, "2");
  ASSERT_EQ(f.window->View().CenterX(), 360);  // moved right by 2 units
  f.surface.ClearOps();
  ScriptStrategy s([](double) { return 1.0; });
  f.Run(s);
  // The first column is user X -12; the zoom text takes it from the middle.
  EXPECT_NEAR(f.window->State().Xpoc(), (0 - 300) / 30.0 - 2, 1e-9);
}

// ---- Stop and events
// ---------------------------------------------------------------------------------------

TEST(SamplingLoop, StopLeavesAtTheNextSampleThatReachesTheTest) {
  LoopFixture f;
  f.host.onPump = [&f](int pumps) {
    if (pumps == 5) f.window->Stop();
  };
  ScriptStrategy s([](double) { return 1.0; });
  const LoopResult r = f.Run(s);
  EXPECT_TRUE(r.stopped);
  EXPECT_EQ(r.passes, 5);
  EXPECT_EQ(f.surface.Lines().size(), 4u);  // what is drawn stays
}

TEST(SamplingLoop, EventsRunOnlyForDrawnSamples) {
  LoopFixture f;
  f.host.onPump = [&f](int) { f.window->Stop(); };
  // Always above the surface: no sample reaches the pump, so nothing stops it.
  ScriptStrategy s([](double) { return 50.0; });
  const LoopResult r = f.Run(s);
  EXPECT_FALSE(r.stopped);
  EXPECT_EQ(r.passes, 601);
  EXPECT_EQ(f.host.pumps, 0);
}

TEST(SamplingLoop, ProgressTextPerDrawnSample) {
  LoopFixture f;
  ScriptStrategy s([](double) { return 1.0; });
  f.Run(s);
  EXPECT_EQ(f.host.pumps, 601);
  // The last K is the right edge give or take the sum's rounding.
  EXPECT_TRUE(f.window->lblPerCent().Caption == "Done...   100%" ||
              f.window->lblPerCent().Caption == "Done...   99%")
      << f.window->lblPerCent().Caption;
  EXPECT_EQ(SamplingLoop::ProgressText(0, 300, 30, 600), "Done...   50%");
  EXPECT_EQ(SamplingLoop::ProgressText(-9.99, 300, 30, 600), "Done...   0%");
  EXPECT_EQ(SamplingLoop::ProgressText(1, 0, 30, 0), "Done...   %");  // a fault leaves the number out
}

// ---- A view that moves the K range
// -------------------------------------------------------------------------

TEST(SamplingLoop, KRangeFollowsTheCentre) {
  LoopFixture f;
  f.window->SetView(30, 100, f.window->View().CenterY());
  ScriptStrategy s([](double) { return 1.0; });
  f.Run(s);
  EXPECT_DOUBLE_EQ(s.asked.front(), std::floor(-100.0 / 30 * 1000) / 1000);
  EXPECT_NEAR(s.asked.back(), 500.0 / 30, 1e-3);
}

TEST(SamplingLoop, AZoomOfZeroRunsNoPass) {
  LoopFixture f;
  f.window->SetView(0, f.window->View().CenterX(), f.window->View().CenterY());
  ScriptStrategy s([](double) { return 1.0; });
  EXPECT_EQ(f.Run(s).passes, 0);
}

TEST(SamplingLoop, ACentreBeyondThePixelRangeDoesNotHangOrThrow) {
  LoopFixture f;
  f.window->SetView(30, 1e20, f.window->View().CenterY());
  ScriptStrategy s([](double) { return 1.0; });
  const LoopResult r = f.Run(s);
  EXPECT_LE(r.passes, 601);
  EXPECT_TRUE(f.surface.Lines().empty());  // no line can reach the device
}

TEST(SamplingLoop, TraceKeepsStaleValuesOverASkippedPass) {
  LoopFixture f;
  int i = 0;
  ScriptStrategy s([&i](double) { return i++ == 1 ? 0.0 : 2.0; });
  f.Run(s);
  const auto& p = f.observer.passes;
  EXPECT_EQ(p[1].action, PassAction::Skip);
  EXPECT_EQ(p[1].Y, 0);
  EXPECT_DOUBLE_EQ(p[1].X, p[0].X);
  EXPECT_DOUBLE_EQ(p[1].Xp, p[0].Xp);
  EXPECT_DOUBLE_EQ(p[1].Yp, p[0].Yp);
  EXPECT_STREQ(ActionName(PassAction::Skip), "skip");
  EXPECT_STREQ(ActionName(PassAction::Move), "move");
  EXPECT_STREQ(ActionName(PassAction::Line), "line");
}

}  // namespace
}  // namespace velmora::graph
