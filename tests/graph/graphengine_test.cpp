// The graph window on the program's own formula engine and evaluator, as
// the application and velmora-cli run it.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "graph/graphwindow.h"
#include "tests/graph/windowfixture.h"

namespace velmora::graph {
namespace {

using testing::RecordingSurface;

struct EngineWindow {
  EngineWindow() {
    GraphServices services = StandardServices(settings, messages, input);
    services.observer = &observer;
    window = std::make_unique<GraphWindow>(surface, std::move(services));
  }
  std::vector<RecordingSurface::Op> Draw(const std::string& y, int type = kCartesian,
                                         const std::string& x = "K") {
    window->optFunk(type);
    window->SettxtY(y);
    if (type == kParametric) window->SettxtX(x);
    surface.ClearOps();
    observer.passes.clear();
    window->DrawFromTxtY();
    return surface.LinesIn(window->Pen().Graph_Clr());
  }

  RecordingSurface surface{600, 400};
  velmora::testing::FakeSettingsStore settings;
  testing::RecordingMessageBox messages;
  testing::ScriptedInputBox input;
  testing::RecordingObserver observer;
  std::unique_ptr<GraphWindow> window;
};

TEST(GraphOnTheEngine, FEvaluatesAndAFailureIsZeroOrNotFinite) {
  EngineWindow e;
  EXPECT_NEAR(e.window->EvaluateAt("SINK", 0.5), std::sin(0.5), 1e-12);
  const double v = e.window->EvaluateAt("LN(K)", -1);
  EXPECT_TRUE(v == 0 || !std::isfinite(v));
  EXPECT_NEAR(e.window->EvaluateXAt("K*Y", 2, 3), 6, 1e-12);
}

TEST(GraphOnTheEngine, SinKCosKIsTheUnitCircleRetracedAboutThreeTimes) {
  EngineWindow e;
  const auto lines = e.Draw("SinK", kParametric, "CosK");
  ASSERT_GT(lines.size(), 590u);
  double turned = 0;
  for (const auto& l : lines) {
    EXPECT_NEAR(std::hypot(l.x2 - 300, l.y2 - 200), 30, 0.05);
    // The angle each segment turns; the jump where atan2 wraps is left out.
    const double step =
        std::fabs(std::atan2(-(l.y2 - 200), l.x2 - 300) - std::atan2(-(l.y1 - 200), l.x1 - 300));
    if (step < 1) turned += step;
  }
  EXPECT_NEAR(turned / (2 * M_PI), 20 / (2 * M_PI), 0.05);  // K runs 20 units: about 3.2 turns
}

TEST(GraphOnTheEngine, PolarOneCircleSpiralAndZero) {
  EngineWindow e;
  for (const auto& l : e.Draw("1", kPolar)) EXPECT_NEAR(std::hypot(l.x2 - 300, l.y2 - 200), 30, 0.05);
  const auto spiral = e.Draw("K", kPolar);
  ASSERT_FALSE(spiral.empty());
  EXPECT_DOUBLE_EQ(e.observer.passes.front().kr, -10);
  EXPECT_NEAR(std::hypot(spiral.back().x2 - 300, spiral.back().y2 - 200), 300, 1);
  EXPECT_TRUE(e.Draw("0", kPolar).empty());
}

TEST(GraphOnTheEngine, OneOverXIsNotJoinedAndSqrStartsRightOfZero) {
  EngineWindow e;
  for (const auto& l : e.Draw("1/X")) {
    if (l.style != kInvisible) {
      EXPECT_FALSE(l.x1 < 300 && l.x2 > 300);
    }
  }
  e.Draw("Sqr(X)");
  for (const auto& p : e.observer.passes) {
    if (p.kr <= 0) {
      EXPECT_EQ(p.action, PassAction::Skip) << p.kr;
    }
  }
}

TEST(GraphOnTheEngine, TableAndTheConstantHundred) {
  EngineWindow e;
  // The table runs from the first plotted X (Y within 100) to the last column.
  e.Draw("X^3");
  EXPECT_DOUBLE_EQ(e.window->State().Xpoc(), -4.634);
  // Xkraj is the column of the last plotted sample: Xp keeps it over the skipped ones.
  EXPECT_NEAR(e.window->State().Xkraj(), 4.633, 0.001);
  ASSERT_EQ(e.window->MS1().Rows(), 11);  // -4.634 to 4.366 by 1
  EXPECT_EQ(e.window->MS1().TabLines()[1], "-4.634\t-99.51\t64.422");
  EXPECT_EQ(e.window->MS1().TabLines()[10].substr(0, 6), "4.366\t");
  e.Draw("Tan(X)*50");
  EXPECT_EQ(e.window->MS1().TabLines()[3], "-8\tError\tError");  // 339.96 is beyond 300
  e.window->SetView(1, e.window->View().CenterX(), e.window->View().CenterY());
  EXPECT_EQ(e.Draw("100").size(), 600u);
  EXPECT_TRUE(e.Draw("100.0001").empty());
}

TEST(GraphOnTheEngine, ExampleFunctionsDrawWithoutAMessage) {
  EngineWindow e;
  const char* examples[] = {"(X^2)-1/(1-X)+1/X",           "X^(1/(1-X))", "LnX/SqrX", "HAcos(X+1/X)",
                            "Cbr(Bin(X+4))-Cbr(Qvd(X-4))", "Blanc(x)",    "Gamma(x)", "e^(SinX)"};
  for (const char* example : examples) {
    EXPECT_FALSE(e.Draw(example).empty()) << example;
  }
  EXPECT_TRUE(e.messages.Boxes().empty());
}

}  // namespace
}  // namespace velmora::graph
