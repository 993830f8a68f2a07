#include "graph/graphpaper.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "platform/settingskeys.h"
#include "tests/support/fakesettingsstore.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/recordingsurface.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

using testing::RecordingMessageBox;
using testing::RecordingSurface;
using Kind = RecordingSurface::Kind;

constexpr Colour kGrid = 0xBFBFBF;
constexpr Colour kAxes = 0x000080;

struct Paper {
  explicit Paper(std::vector<std::string> fonts = {}, int w = 600, int h = 400)
      : surface(w, h, std::move(fonts)) {}
  void Set(const char* name, const char* value) { store.Store(keys::kGrid, name, value); }
  bool Draw(double zoom = 30) {
    view.Zoom = zoom;
    return paper.DrawLines(view);
  }
  // Texts printed, in order.
  std::vector<std::string> Texts() const {
    std::vector<std::string> out;
    for (const auto& op : surface.Texts()) out.push_back(op.text);
    return out;
  }

  RecordingSurface surface;
  velmora::testing::FakeSettingsStore store;
  RecordingMessageBox messages;
  GraphPaper paper{surface, store, messages};
  PaperView view{30, 300, 200, kGrid, kAxes};
};

int CountVertical(const std::vector<RecordingSurface::Op>& lines) {
  int n = 0;
  for (const auto& l : lines) n += (l.x1 == l.x2) ? 1 : 0;
  return n;
}

TEST(GraphPaper, DefaultIsAFullSolidGridThroughTheOriginAndTheAxes) {
  Paper p;
  EXPECT_FALSE(p.Draw());
  const auto grid = p.surface.LinesIn(kGrid);
  // Columns 300..600 and 300..0 by 30 (the axis column twice), rows 200..380 and 200..20.
  EXPECT_EQ(CountVertical(grid), 22);
  EXPECT_EQ(static_cast<int>(grid.size()) - CountVertical(grid), 14);
  for (const auto& l : grid) EXPECT_EQ(l.style, kSolid);
  EXPECT_EQ(grid.front().x1, 300);
  EXPECT_EQ(grid.front().y1, 0);
  EXPECT_EQ(grid.front().y2, 400);
  const auto axes = p.surface.LinesIn(kAxes);
  ASSERT_EQ(axes.size(), 2u);
  EXPECT_EQ(axes[0].x1, 300);
  EXPECT_EQ(axes[0].y2, 400);
  EXPECT_EQ(axes[1].y1, 200);
  EXPECT_EQ(axes[1].x2, 600);
  EXPECT_TRUE(p.Texts().empty());
}

TEST(GraphPaper, DashDrawsTheGridDottedAndTheAxesSolid) {
  Paper p;
  p.Set("Dash", "1");
  p.Draw();
  for (const auto& l : p.surface.LinesIn(kGrid)) EXPECT_EQ(l.style, kDot);
  for (const auto& l : p.surface.LinesIn(kAxes)) EXPECT_EQ(l.style, kSolid);
}

TEST(GraphPaper, HiddenGridShowsOnlyTheAxesButNumbersStillFollowTheirKeys) {
  Paper p;
  p.Set("Axes", "1");
  p.Set("Crte", "1");
  p.Set("BrojX", "1");
  p.Set("BrojY", "1");
  p.Draw(45);
  EXPECT_TRUE(p.surface.LinesIn(kGrid).empty());
  EXPECT_EQ(p.surface.LinesIn(kAxes).size(), 2u);
  EXPECT_FALSE(p.Texts().empty());
}

TEST(GraphPaper, TicksAreThreePixelsToOneSideAndFourToTheOther) {
  Paper p;
  p.Set("Crte", "1");
  p.Set("Dash", "1");
  p.Draw();
  const auto ticks = p.surface.LinesIn(kGrid);
  ASSERT_EQ(ticks.size(), 36u);
  EXPECT_EQ(ticks[0].x1, 300);
  EXPECT_EQ(ticks[0].y1, 197);
  EXPECT_EQ(ticks[0].y2, 204);
  EXPECT_EQ(ticks[0].style, kSolid);  // ticks are always solid
  const auto& horizontal = ticks[22];
  EXPECT_EQ(horizontal.x1, 297);
  EXPECT_EQ(horizontal.x2, 304);
}

TEST(GraphPaper, PolarPaperCirclesAndRaysNearThirtyAndSixtyDegrees) {
  Paper p;
  p.Set("PolarP", "1");
  p.Draw();
  const auto circles = p.surface.Circles();
  ASSERT_EQ(circles.size(), 26u);  // radius 30 to 800 by 30
  EXPECT_EQ(circles.front().x2, 30);
  EXPECT_EQ(circles.back().x2, 780);
  EXPECT_EQ(circles.front().x1, 300);
  EXPECT_EQ(circles.front().colour, kGrid);
  const auto rays = p.surface.LinesIn(kGrid);
  ASSERT_EQ(rays.size(), 4u);
  // The first ray has the slope Tan(3.14 / 3) and runs from the top to the bottom.
  const double slope = std::tan(3.14 / 3);
  EXPECT_DOUBLE_EQ(rays[0].x1, 300 + 200 / slope);
  EXPECT_EQ(rays[0].y1, 0);
  EXPECT_DOUBLE_EQ(rays[0].x2, 300 - 200 / slope);
  EXPECT_EQ(rays[0].y2, 400);
  EXPECT_EQ(p.surface.LinesIn(kAxes).size(), 2u);
}

struct StrideCase {
  double zoom;
  int stride;
};

class StrideTest : public ::testing::TestWithParam<StrideCase> {};

TEST_P(StrideTest, LabelStrideAndSpacing) {
  const auto& c = GetParam();
  EXPECT_EQ(GraphPaper::Stride(c.zoom), c.stride);
  Paper p;
  p.Set("BrojX", "1");
  p.Draw(c.zoom);
  const auto texts = p.surface.Texts();
  ASSERT_GE(texts.size(), 2u);
  EXPECT_EQ(texts[0].text, " 0 ");
  EXPECT_EQ(texts[0].x1, 300);
  EXPECT_EQ(texts[0].y1, 203);
  EXPECT_EQ(texts[1].text, " " + std::to_string(c.stride) + " ");
  EXPECT_DOUBLE_EQ(texts[1].x1, 300 + c.zoom * c.stride);
}

INSTANTIATE_TEST_SUITE_P(Zooms, StrideTest,
                         ::testing::Values(StrideCase{15, 4}, StrideCase{19.9, 4}, StrideCase{20, 2},
                                           StrideCase{44.9, 2}, StrideCase{45, 1}, StrideCase{177, 1}));

TEST(GraphPaper, LabelsCountStridesNotGridSteps) {
  Paper p;
  p.Set("BrojX", "1");
  p.Set("ScaleX", "2");
  p.Draw(45);
  const auto texts = p.surface.Texts();
  ASSERT_GE(texts.size(), 2u);
  EXPECT_EQ(texts[1].text, " 1 ");  // stands at 2 units and reads 1
  EXPECT_DOUBLE_EQ(texts[1].x1, 300 + 90);
}

TEST(GraphPaper, OnlyTheXAxisPrintsTheZero) {
  Paper p;
  p.Set("BrojX", "1");
  p.Set("BrojY", "1");
  p.Draw(45);
  int zeros = 0;
  for (const auto& t : p.Texts()) zeros += t == " 0 " ? 1 : 0;
  EXPECT_EQ(zeros, 1);
  // Y labels: downward negative, upward positive.
  std::vector<RecordingSurface::Op> onY;
  for (const auto& t : p.surface.Texts()) {
    if (t.x1 == 303) onY.push_back(t);
  }
  ASSERT_GE(onY.size(), 2u);
  EXPECT_EQ(onY[0].text, "-1 ");  // one stride below the origin
  EXPECT_EQ(onY[0].y1, 245);
  ASSERT_NE(p.surface.FindText(" 1 "), nullptr);
}

TEST(GraphPaper, LeftwardLabelsStopAtPixelZero) {
  Paper p;
  p.Set("BrojX", "1");
  p.view.CenterX = 90;  // columns 90, 45, 0: the loop stops at 0 exactly
  p.Draw(45);
  EXPECT_NE(p.surface.FindText("-1 "), nullptr);
  EXPECT_EQ(p.surface.FindText("-2 "), nullptr);
}

TEST(GraphPaper, NumbersTakeTheGridColourByDefaultAndTheAxesColourOtherwise) {
  Paper p;
  p.Set("BrojX", "1");
  p.Draw();
  EXPECT_EQ(p.surface.Texts()[0].colour, kGrid);
  Paper q;
  q.Set("BrojX", "1");
  q.Set("BrojBoja", "0");
  q.Draw();
  EXPECT_EQ(q.surface.Texts()[0].colour, kAxes);
  EXPECT_EQ(q.surface.Texts()[0].font, "MS Sans Serif");
  EXPECT_EQ(q.surface.Texts()[0].size, 8);
}

TEST(GraphPaper, MovedCentreStartsAtTheOriginAndTheFarSideDrawsNothing) {
  Paper p;
  p.view.CenterX = -100;  // the origin lies left of the surface
  p.Draw();
  const auto grid = p.surface.LinesIn(kGrid);
  const int vertical = CountVertical(grid);
  EXPECT_EQ(vertical, 24);  // -100 to 590 by 30; nothing from -100 down to 0
  EXPECT_EQ(grid.front().x1, -100);
}

TEST(GraphPaper, TrigPaperStepsByAQuarterOfPiWhateverTheScale) {
  Paper p;
  p.Set("Trigo", "1");
  p.Set("ScaleX", "5");
  p.Draw();
  const auto grid = p.surface.LinesIn(kGrid);
  ASSERT_GE(grid.size(), 2u);
  EXPECT_NEAR(grid[1].x1 - grid[0].x1, 30 * 0.785398163397448, 1e-9);
  // Y keeps a step of 1.
  bool horizontalStepOk = false;
  for (std::size_t i = 1; i < grid.size(); ++i) {
    if (grid[i].y1 == grid[i].y2 && grid[i - 1].y1 == grid[i - 1].y2 && grid[i].y1 - grid[i - 1].y1 == 30) {
      horizontalStepOk = true;
    }
  }
  EXPECT_TRUE(horizontalStepOk);
}

struct TrigCase {
  double zoom;
  bool halfSteps;
};

class TrigLabelTest : public ::testing::TestWithParam<TrigCase> {};

TEST_P(TrigLabelTest, HalfStepsFromZoomFifty) {
  Paper p;
  p.Set("Trigo", "1");
  p.Set("BrojX", "1");
  p.Draw(GetParam().zoom);
  EXPECT_EQ(p.surface.FindText("pi/2") != nullptr, GetParam().halfSteps);
  EXPECT_EQ(p.surface.FindText("-pi/2") != nullptr, GetParam().halfSteps);
  ASSERT_NE(p.surface.FindText("0"), nullptr);
  ASSERT_NE(p.surface.FindText("pi"), nullptr);
  ASSERT_NE(p.surface.FindText("-pi"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Zooms, TrigLabelTest, ::testing::Values(TrigCase{50, true}, TrigCase{49, false}));

TEST(GraphPaper, TrigLabelsUsePiRoundedToOneDecimal) {
  Paper p(std::vector<std::string>{}, 700, 400);
  p.Set("Trigo", "1");
  p.Set("BrojX", "1");
  p.Draw(50);
  const auto* zero = p.surface.FindText("0");
  const auto* pi = p.surface.FindText("pi");
  const auto* twoPi = p.surface.FindText("2pi");
  const auto* half = p.surface.FindText("pi/2");
  const auto* threeHalves = p.surface.FindText("3pi/2");
  const auto* minusPi = p.surface.FindText("-pi");
  const auto* minusHalf = p.surface.FindText("-pi/2");
  ASSERT_TRUE(zero && pi && twoPi && half && threeHalves && minusPi && minusHalf);
  EXPECT_DOUBLE_EQ(zero->x1, 303);
  EXPECT_DOUBLE_EQ(pi->x1, 300 + 155 - 3);  // 50 * 3.1
  EXPECT_DOUBLE_EQ(twoPi->x1, 300 + 310 - 6);
  EXPECT_DOUBLE_EQ(half->x1, 300 + 77.5 - 8);
  EXPECT_DOUBLE_EQ(threeHalves->x1, 300 + 232.5 - 8);
  EXPECT_DOUBLE_EQ(minusPi->x1, 300 - 155 - 9);
  EXPECT_DOUBLE_EQ(minusHalf->x1, 300 - 77.5 - 12);
}

TEST(GraphPaper, TrigStrideOfTwoBelowZoomTen) {
  Paper p(std::vector<std::string>{}, 2000, 400);
  p.view.CenterX = 1000;
  p.Set("Trigo", "1");
  p.Set("BrojX", "1");
  p.Draw(9);
  EXPECT_NE(p.surface.FindText("2pi"), nullptr);
  EXPECT_EQ(p.surface.FindText("pi"), nullptr);
  EXPECT_NE(p.surface.FindText("-2pi"), nullptr);
}

TEST(GraphPaper, ScaleNote) {
  Paper p;
  p.Set("Skala", "1");
  p.Set("ScaleX1", "2");
  p.Draw();
  const auto* note = p.surface.FindText("[2 , 1]");
  ASSERT_NE(note, nullptr);
  EXPECT_EQ(note->x1, 8);
  EXPECT_EQ(note->y1, 380);
  EXPECT_EQ(note->colour, kAxes);
}

TEST(GraphPaper, UnreadableOrZeroStepDrawsNoGridAndDoesNotHang) {
  for (const char* step : {"0", "abc", "", "-0"}) {
    Paper p;
    p.Set("ScaleX", step);
    p.Set("BrojX", "1");
    p.Draw();
    EXPECT_EQ(CountVertical(p.surface.LinesIn(kGrid)), 0) << step;
    EXPECT_TRUE(p.Texts().empty()) << step;
  }
}

TEST(GraphPaper, ATinyStepIsCappedInsteadOfHanging) {
  Paper p;
  p.Set("ScaleX", "0.0000001");
  p.Draw();
  EXPECT_LE(p.surface.LinesIn(kGrid).size(), 2u * 100000u + 14u);
}

// ---- Axis names and arrows ------------------------------------------------------------

TEST(GraphPaper, MissingArrowFontsGiveTheMessageAndNoArrows) {
  Paper p;
  p.Set("Ozna", "1");
  EXPECT_TRUE(p.Draw());
  ASSERT_EQ(p.messages.Boxes().size(), 1u);
  EXPECT_EQ(
      p.messages.Boxes()[0].text,
      "Fonts Marlett or Webdings are missing. In order to draw axes arrows please reinstall them (they are "
      "installed by default on Windows platforms), or disable Assign axes feature in Graph options.");
  EXPECT_EQ(p.messages.Boxes()[0].title, "Drawing Arrows Error");
  EXPECT_TRUE(p.surface.FontTransparent());
  EXPECT_EQ(p.surface.FindText("4"), nullptr);
}

TEST(GraphPaper, MarlettArrowsAndAxisNames) {
  Paper p({"Marlett"});
  p.Set("Ozna", "1");
  p.Draw();
  EXPECT_TRUE(p.messages.Boxes().empty());
  const auto* y = p.surface.FindText("y");
  const auto* x = p.surface.FindText("x");
  const auto* right = p.surface.FindText("4");
  const auto* up = p.surface.FindText("5");
  ASSERT_TRUE(y && x && right && up);
  EXPECT_EQ(y->font, "Arial");
  EXPECT_EQ(y->x1, 286);
  EXPECT_EQ(y->y1, -2);
  EXPECT_EQ(x->x1, 590);
  EXPECT_EQ(x->y1, 180);
  EXPECT_EQ(y->colour, kAxes);
  EXPECT_EQ(right->font, "Marlett");
  EXPECT_EQ(right->size, 14);
  EXPECT_FALSE(right->bold);
  EXPECT_EQ(right->x1, 587);
  EXPECT_EQ(right->y1, 192);
  EXPECT_EQ(up->x1, 292);
  EXPECT_EQ(up->y1, -6);
  EXPECT_TRUE(right->transparent);
  EXPECT_EQ(p.surface.FontSize(), 8);
}

TEST(GraphPaper, WideArrowHeadIsBoldAndFurtherIn) {
  Paper p({"Marlett"});
  p.surface.charWidth = 20;
  p.Set("Ozna", "1");
  p.Draw();
  const auto* right = p.surface.FindText("4");
  const auto* up = p.surface.FindText("5");
  ASSERT_TRUE(right && up);
  EXPECT_TRUE(right->bold);
  EXPECT_EQ(right->x1, 585);
  EXPECT_FALSE(up->bold);
  EXPECT_EQ(up->x1, 291.5);
  EXPECT_FALSE(p.surface.FontBold());
}

TEST(GraphPaper, WebdingsStandsInForMarlett) {
  Paper p({"Webdings"});
  p.Set("Ozna", "1");
  p.Draw();
  EXPECT_TRUE(p.messages.Boxes().empty());
  ASSERT_NE(p.surface.FindText("4"), nullptr);
  EXPECT_EQ(p.surface.FindText("4")->font, "Webdings");
}

TEST(GraphPaper, PrintedNumberLeavesRoomForTheSign) {
  EXPECT_EQ(GraphPaper::PrintedNumber(1), " 1 ");
  EXPECT_EQ(GraphPaper::PrintedNumber(-12), "-12 ");
  EXPECT_EQ(GraphPaper::PrintedNumber(0), " 0 ");
  EXPECT_EQ(GraphPaper::PrintedNumber(0.5), " 0.5 ");
}

}  // namespace
}  // namespace velmora::graph
