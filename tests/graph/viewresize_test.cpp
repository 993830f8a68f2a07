// What a new size of pDraw does to the view.
#include "graph/viewresize.h"

#include <gtest/gtest.h>

#include "graph/graphwindow.h"
#include "platform/settingskeys.h"
#include "tests/graph/windowfixture.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

struct PlanCase {
  double oldWidth, oldHeight, newWidth, newHeight;
  double shiftX, shiftY;
  int dx, dy;
};

class PlanTest : public ::testing::TestWithParam<PlanCase> {};

TEST_P(PlanTest, HalfTheChangeOfSize) {
  const PlanCase& c = GetParam();
  const auto plan = ViewResize::PlanFor(c.oldWidth, c.oldHeight, c.newWidth, c.newHeight);
  EXPECT_DOUBLE_EQ(plan.shiftX, c.shiftX);
  EXPECT_DOUBLE_EQ(plan.shiftY, c.shiftY);
  EXPECT_EQ(plan.pictureDx, c.dx);
  EXPECT_EQ(plan.pictureDy, c.dy);
}

INSTANTIATE_TEST_SUITE_P(Sizes, PlanTest,
                         ::testing::Values(PlanCase{600, 400, 800, 600, 100, 100, 100, 100},      // grow
                                           PlanCase{800, 600, 600, 400, -100, -100, -100, -100},  // shrink
                                           PlanCase{600, 400, 601, 400, 0.5, 0, 0,
                                                    0},  // odd: whole pixels toward 0
                                           PlanCase{601, 400, 600, 403, -0.5, 1.5, 0, 1},
                                           PlanCase{600, 400, 600, 400, 0, 0, 0, 0}));

TEST(ViewResize, AnUnmovedWindowKeepsItsOriginInTheMiddle) {
  testing::WindowFixture f;
  GraphWindow& w = f.Make();
  const auto plan = ViewResize::PlanFor(600, 400, 801, 500);
  f.surface.Resize(801, 500);
  ViewResize::Apply(w, plan);
  EXPECT_DOUBLE_EQ(w.View().CenterX(), 801 / 2.0);
  EXPECT_DOUBLE_EQ(w.View().CenterY(), 250);
}

TEST(ViewResize, AMovedWindowKeepsItsMove) {
  testing::WindowFixture f;
  GraphWindow& w = f.Make();
  w.SetView(30, 360, w.View().CenterY());  // moved right by 2 units
  w.pDraw().SetCurrentX(10);
  w.pDraw().SetCurrentY(20);
  const auto plan = ViewResize::PlanFor(600, 400, 800, 400);
  ViewResize::Apply(w, plan);
  EXPECT_DOUBLE_EQ(w.View().CenterX(), 460);
  EXPECT_DOUBLE_EQ(w.View().CenterX() - 800 / 2.0, 60);  // still 2 units right of the middle
  // A draw in progress goes on from the moved current point.
  EXPECT_DOUBLE_EQ(w.pDraw().CurrentX(), 110);
  EXPECT_DOUBLE_EQ(w.pDraw().CurrentY(), 20);
}

struct SettleCase {
  const char* autored;
  int functions;
  bool drawing;
  bool repaint;
};

class SettleTest : public ::testing::TestWithParam<SettleCase> {};

TEST_P(SettleTest, RepaintsOnlyWhatCanComeBack) {
  const SettleCase& c = GetParam();
  testing::WindowFixture f;
  GraphWindow& w = f.Make();
  f.settings.Store(keys::kGrid, keys::grid::kAutored, c.autored);
  for (int i = 0; i < c.functions; ++i) testing::HoldFunctions(w, {"X"});
  ASSERT_EQ(w.State().KolkoFunkc(), c.functions);
  if (c.drawing) {
    const auto busy = w.Busy();
    EXPECT_EQ(ViewResize::RepaintWhenSettled(w, f.settings), c.repaint);
  } else {
    EXPECT_EQ(ViewResize::RepaintWhenSettled(w, f.settings), c.repaint);
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, SettleTest,
                         ::testing::Values(SettleCase{"1", 2, false, true},    // functions come back
                                           SettleCase{"0", 0, false, true},    // nothing to lose
                                           SettleCase{"0", 2, false, false},   // they would be lost
                                           SettleCase{"1", 2, true, false}));  // not during a draw

TEST(ViewResize, RepaintClearsPaintsAndReplays) {
  testing::WindowFixture f;
  GraphWindow& w = f.Make();
  testing::HoldFunctions(w, {"X"});
  f.surface.ClearOps();
  ViewResize::Repaint(w, f.settings);
  ASSERT_FALSE(f.surface.Ops().empty());
  EXPECT_EQ(f.surface.Ops()[0].kind, testing::RecordingSurface::Kind::Clear);
  EXPECT_FALSE(f.surface.LinesIn(0xBFBFBF).empty());
  EXPECT_EQ(w.Boxes().txtY().Text, "X");
}

}  // namespace
}  // namespace velmora::graph
