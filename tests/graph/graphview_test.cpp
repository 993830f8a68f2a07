// Zoom and move of the graph window.
#include <gtest/gtest.h>

#include <string>

#include "expr/numtext.h"
#include "graph/graphwindow.h"
#include "platform/settingskeys.h"
#include "tests/graph/windowfixture.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

using testing::RecordingSurface;
using testing::WindowFixture;

struct PresetCase {
  const char* name;
  void (GraphWindow::*command)();
  double zoom;
  int checked;
  const char* zoomIn;
  const char* zoomOut;
  const char* deflt;
  const char* custom;
};

class ZoomPresetTest : public ::testing::TestWithParam<PresetCase> {};

TEST_P(ZoomPresetTest, SetsZoomTextsAndRepaints) {
  const auto& c = GetParam();
  WindowFixture f;
  auto& w = f.Make();
  f.surface.ClearOps();
  (w.*c.command)();
  EXPECT_EQ(w.View().Zoom(), c.zoom);
  EXPECT_EQ(w.View().zlevel(), c.zoom);
  EXPECT_EQ(w.lblzm().Caption, expr::NumberToText(c.zoom));
  EXPECT_EQ(w.zoomMenu().Checked, c.checked);
  EXPECT_EQ(w.zoomMenu().ZoomIn, c.zoomIn);
  EXPECT_EQ(w.zoomMenu().ZoomOut, c.zoomOut);
  EXPECT_EQ(w.zoomMenu().Default, c.deflt);
  EXPECT_EQ(w.zoomMenu().Custom, c.custom);
  ASSERT_FALSE(f.surface.Ops().empty());
  EXPECT_EQ(f.surface.Ops().front().kind, RecordingSurface::Kind::Clear);
  // The paper at the new zoom: the first grid column right of the axis.
  const auto grid = f.surface.LinesIn(0xBFBFBF);
  ASSERT_GE(grid.size(), 2u);
  EXPECT_DOUBLE_EQ(grid[1].x1, 300 + c.zoom);
}

INSTANTIATE_TEST_SUITE_P(Presets, ZoomPresetTest,
                         ::testing::Values(PresetCase{"In", &GraphWindow::mnuzoomin, 50, 0, "> Zoom&In (50)",
                                                      "Zoom&Out", "&Default", "&Custom..."},
                                           // The text says 10 while the zoom is 15; the pair stays.
                                           PresetCase{"Out", &GraphWindow::mnuzoomout, 15, 1, "Zoom&In",
                                                      "> Zoom&Out (10)", "&Default", "&Custom..."},
                                           PresetCase{"Default", &GraphWindow::mnuZoomDef, 30, 2, "Zoom&In",
                                                      "Zoom&Out", "> &Default (30)", "&Custom..."},
                                           PresetCase{"Dec", &GraphWindow::ZumDec, 8, 4, "Zoom&In",
                                                      "Zoom&Out", "&Default", "> Custom (8)"},
                                           PresetCase{"Stef", &GraphWindow::ZumStef, 15, 4, "Zoom&In",
                                                      "Zoom&Out", "&Default", "> Custom (15)"},
                                           PresetCase{"Gama", &GraphWindow::ZumGama, 44, 4, "Zoom&In",
                                                      "Zoom&Out", "&Default", "> Custom (44)"},
                                           PresetCase{"Puding", &GraphWindow::ZumPuding, 177, 4, "Zoom&In",
                                                      "Zoom&Out", "&Default", "> Custom (177)"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Zoom, APresetDoesNothingDuringADraw) {
  WindowFixture f;
  auto& w = f.Make();
  auto busy = w.Busy();
  f.surface.ClearOps();
  w.mnuzoomin();
  EXPECT_EQ(w.View().Zoom(), 30);
  EXPECT_TRUE(f.surface.Ops().empty());
}

struct FineCase {
  const char* answer;
  bool accepted;
  double zoomAfter;
};

class FineZoomTest : public ::testing::TestWithParam<FineCase> {};

TEST_P(FineZoomTest, RangeFiveToTwoHundred) {
  const auto& c = GetParam();
  WindowFixture f;
  auto& w = f.Make();
  f.input.Answer(std::string(c.answer));
  f.surface.ClearOps();
  w.mnuFineZoom();
  ASSERT_EQ(f.input.AskedBoxes().size(), 1u);
  EXPECT_EQ(f.input.AskedBoxes()[0].title, "Zooming");
  EXPECT_EQ(f.input.AskedBoxes()[0].prompt, "Select zooming factor in range (5-200).");
  EXPECT_EQ(f.input.AskedBoxes()[0].defaultText, "");
  EXPECT_EQ(w.View().Zoom(), c.zoomAfter);
  if (c.accepted) {
    EXPECT_TRUE(f.messages.Boxes().empty());
    EXPECT_EQ(w.zoomMenu().Custom, "> &Custom (" + expr::NumberToText(c.zoomAfter) + ")");
    EXPECT_EQ(w.zoomMenu().Checked, 4);
    EXPECT_EQ(w.lblzm().Caption, expr::NumberToText(c.zoomAfter));
    EXPECT_EQ(w.View().zlevel(), c.zoomAfter);
    EXPECT_FALSE(f.surface.Ops().empty());
  } else {
    ASSERT_EQ(f.messages.Boxes().size(), 1u);
    EXPECT_EQ(f.messages.Boxes()[0].text, "Input out of range (5-200)!");
    // The refused value stays in Zoom; nothing else changes or repaints.
    EXPECT_EQ(w.lblzm().Caption, "30");
    EXPECT_EQ(w.View().zlevel(), 30);
    EXPECT_TRUE(f.surface.Ops().empty());
  }
}

INSTANTIATE_TEST_SUITE_P(Answers, FineZoomTest,
                         ::testing::Values(FineCase{"5", true, 5}, FineCase{"200", true, 200},
                                           FineCase{"4.9", false, 4.9}, FineCase{"200.1", false, 200.1},
                                           FineCase{"75.5", true, 75.5}, FineCase{"abc", false, 0},
                                           FineCase{"100px", true, 100}));

TEST(Zoom, AnEmptyOrCancelledAnswerDoesNothing) {
  WindowFixture f;
  auto& w = f.Make();
  f.input.Answer(std::string());
  f.input.Answer(std::nullopt);
  w.mnuFineZoom();
  w.mnuFineZoom();
  EXPECT_EQ(w.View().Zoom(), 30);
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST(Zoom, ZumirajReappliesTheZoom) {
  WindowFixture f;
  auto& w = f.Make();
  w.SetView(12, w.View().CenterX(), w.View().CenterY());
  f.surface.ClearOps();
  w.Zumiraj();
  EXPECT_EQ(w.lblzm().Caption, "12");
  EXPECT_EQ(f.surface.Ops().front().kind, RecordingSurface::Kind::Clear);
}

TEST(Zoom, ActivationShowsTheWindowsOwnZoom) {
  WindowFixture f;
  auto& w = f.Make();
  w.SetView(15, w.View().CenterX(), w.View().CenterY());
  w.Activate();
  EXPECT_EQ(w.zoomMenu().ZoomOut, "> Zoomout (10)");
  EXPECT_EQ(w.zoomMenu().Custom, "Custom...");
  EXPECT_EQ(w.zoomMenu().ZoomIn, "Zoomin");
  EXPECT_EQ(w.zoomMenu().Default, "Default");
  EXPECT_EQ(w.View().zlevel(), 15);
  w.SetView(50, w.View().CenterX(), w.View().CenterY());
  w.Activate();
  EXPECT_EQ(w.zoomMenu().ZoomIn, "> Zoom&In (50)");
  w.SetView(30, w.View().CenterX(), w.View().CenterY());
  w.Activate();
  EXPECT_EQ(w.zoomMenu().Default, "> Default (30)");
  w.SetView(44, w.View().CenterX(), w.View().CenterY());
  w.Activate();
  EXPECT_EQ(w.zoomMenu().Custom, "> Custom (44)");
  EXPECT_EQ(f.host.statusTexts.back(), "Moved:");
}

// ---- Moves ------------------------------------------------------------------------------------

struct MoveCase {
  const char* name;
  void (GraphWindow::*command)();
  const char* title;
  const char* answer;
  const char* scaleX;
  double centerX;
  double centerY;
  double moveX;
  double moveY;
  const char* moved;
};

class MoveTest : public ::testing::TestWithParam<MoveCase> {};

TEST_P(MoveTest, ShiftsTheCentreInGridSteps) {
  const auto& c = GetParam();
  WindowFixture f;
  f.settings.Store(keys::kGrid, keys::grid::kScaleX, c.scaleX);
  auto& w = f.Make();
  f.input.Answer(std::string(c.answer));
  f.surface.ClearOps();
  (w.*c.command)();
  ASSERT_EQ(f.input.AskedBoxes().size(), 1u);
  EXPECT_EQ(f.input.AskedBoxes()[0].title, c.title);
  EXPECT_EQ(f.input.AskedBoxes()[0].prompt, "Enter value for moving center of plotting area.");
  EXPECT_EQ(f.input.AskedBoxes()[0].defaultText, "1");
  EXPECT_DOUBLE_EQ(w.View().CenterX(), c.centerX);
  EXPECT_DOUBLE_EQ(w.View().CenterY(), c.centerY);
  EXPECT_DOUBLE_EQ(w.View().MoveX(), c.moveX);
  EXPECT_DOUBLE_EQ(w.View().MoveY(), c.moveY);
  EXPECT_EQ(w.View().MovedText(), c.moved);
  EXPECT_EQ(f.host.statusTexts.back(), c.moved);
  EXPECT_FALSE(w.State().Drawing());
  EXPECT_EQ(f.surface.Ops().front().kind, RecordingSurface::Kind::Clear);
  // The paper follows: the Y axis stands at the new centre.
  const auto axes = f.surface.LinesIn(0);
  ASSERT_EQ(axes.size(), 2u);
  EXPECT_DOUBLE_EQ(axes[0].x1, c.centerX);
  EXPECT_DOUBLE_EQ(axes[1].y1, c.centerY);
}

// The catalogue and velmora-cli give the answer themselves: the same move,
// no question.
TEST_P(MoveTest, TheApplyIsTheMenusMoveWithoutTheQuestion) {
  const auto& c = GetParam();
  WindowFixture f;
  f.settings.Store(keys::kGrid, keys::grid::kScaleX, c.scaleX);
  auto& w = f.Make();
  const std::string title = c.title;
  const MoveDirection direction = title == "Moving Right"  ? MoveDirection::Right
                                  : title == "Moving Left" ? MoveDirection::Left
                                  : title == "Moving Up"   ? MoveDirection::Up
                                                           : MoveDirection::Down;
  w.ApplyMove(direction, c.answer);
  EXPECT_TRUE(f.input.AskedBoxes().empty());
  EXPECT_DOUBLE_EQ(w.View().CenterX(), c.centerX);
  EXPECT_DOUBLE_EQ(w.View().CenterY(), c.centerY);
  EXPECT_DOUBLE_EQ(w.View().MoveX(), c.moveX);
  EXPECT_DOUBLE_EQ(w.View().MoveY(), c.moveY);
  EXPECT_EQ(w.View().MovedText(), c.moved);
  EXPECT_EQ(f.host.statusTexts.back(), c.moved);
}

TEST(Move, AnEmptyAnswerOrADrawChangesNothing) {
  WindowFixture f;
  auto& w = f.Make();
  w.ApplyMove(MoveDirection::Right, "");
  {
    const auto busy = w.Busy();
    w.ApplyMove(MoveDirection::Right, "2");
  }
  EXPECT_EQ(w.View().CenterX(), 300);
  EXPECT_EQ(w.View().MovedText(), "Moved:");
  EXPECT_FALSE(w.View().MovedRight());
}

struct FineApplyCase {
  const char* answer;
  double zoom;
  std::size_t messages;
  const char* why;
};

class FineZoomApply : public ::testing::TestWithParam<FineApplyCase> {};

TEST_P(FineZoomApply, TheAnswerGivenDirectly) {
  const auto& c = GetParam();
  WindowFixture f;
  auto& w = f.Make();
  w.ApplyFineZoom(c.answer);
  EXPECT_TRUE(f.input.AskedBoxes().empty());
  EXPECT_EQ(w.View().Zoom(), c.zoom) << c.why;
  ASSERT_EQ(f.messages.Boxes().size(), c.messages) << c.why;
  if (c.messages > 0) {
    EXPECT_EQ(f.messages.Boxes()[0].text, "Input out of range (5-200)!");
  }
}

INSTANTIATE_TEST_SUITE_P(Answers, FineZoomApply,
                         ::testing::Values(FineApplyCase{"44", 44, 0, "in range: the new zoom"},
                                           FineApplyCase{"4", 4, 1, "out of range stays, unpainted"},
                                           FineApplyCase{"", 30, 0, "empty: nothing"}));

TEST(PlotWidth, TheApplyTakesAPositiveNumberAndRefusesTheRest) {
  WindowFixture f;
  auto& w = f.Make();
  EXPECT_TRUE(w.ApplyPlotWidth("2.5"));
  EXPECT_EQ(w.Pen().GraphLineWidth(), 2.5);
  EXPECT_FALSE(w.ApplyPlotWidth("-1"));
  EXPECT_FALSE(w.ApplyPlotWidth("wide"));
  EXPECT_EQ(w.Pen().GraphLineWidth(), 2.5);
  ASSERT_EQ(f.messages.Boxes().size(), 2u);
  EXPECT_EQ(f.messages.Boxes()[1].text, "Invalid input: Line width = wide.");
  EXPECT_TRUE(f.input.AskedBoxes().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Moves, MoveTest,
    ::testing::Values(
        MoveCase{"Right", &GraphWindow::mnuright, "Moving Right", "2", "1", 360, 200, 2, 0, "Moved: R: 2"},
        MoveCase{"Left", &GraphWindow::mnuleft, "Moving Left", "1", "1", 270, 200, -1, 0, "Moved: L: 1"},
        MoveCase{"Up", &GraphWindow::mnuup, "Moving Up", "2", "1", 300, 140, 0, 2, "Moved: Up: 2"},
        MoveCase{"Down", &GraphWindow::mnudown, "Moving Down", "1", "1", 300, 230, 0, -1, "Moved: D: 1"},
        // The answer counts grid steps of X, rounded to one decimal.
        MoveCase{"GridSteps", &GraphWindow::mnuright, "Moving Right", "3", "0.5", 345, 200, 1.5, 0,
                 "Moved: R: 3"},
        MoveCase{"Rounded", &GraphWindow::mnuright, "Moving Right", "1", "0.25", 306, 200, 0.2, 0,
                 "Moved: R: 1"},
        // A non-numeric answer moves by 0.
        MoveCase{"Text", &GraphWindow::mnuright, "Moving Right", "abc", "1", 300, 200, 0, 0,
                 "Moved: R: abc"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Move, FlagsAndPomeri) {
  WindowFixture f;
  auto& w = f.Make();
  EXPECT_EQ(w.PomeriX(5), 5);
  f.input.Answer(std::string("2"));
  w.mnuright();
  EXPECT_TRUE(w.View().MovedRight());
  EXPECT_FALSE(w.View().MovedLeft());
  EXPECT_EQ(w.PomeriX(5), 3);
  EXPECT_EQ(w.PomeriY(5), 5);
  f.input.Answer(std::string("1"));
  w.mnuleft();
  EXPECT_TRUE(w.View().MovedLeft());
  EXPECT_FALSE(w.View().MovedRight());
  EXPECT_EQ(w.View().MovedText(), "Moved: R: 2 L: 1");
  f.input.Answer(std::string("1"));
  w.mnudown();
  EXPECT_TRUE(w.View().MovedDown());
  EXPECT_EQ(w.PomeriY(5), 6);
}

TEST(Move, AnEmptyAnswerOrADrawDoesNothing) {
  WindowFixture f;
  auto& w = f.Make();
  f.input.Answer(std::string());
  w.mnuup();
  EXPECT_EQ(w.View().CenterY(), 200);
  EXPECT_FALSE(w.View().MovedUp());
  EXPECT_EQ(w.View().MovedText(), "Moved:");
  auto busy = w.Busy();
  w.mnuright();  // no box is asked during a draw
  EXPECT_EQ(f.input.AskedBoxes().size(), 1u);
}

TEST(Move, CenterBringsTheOriginBackAndResetsTheText) {
  WindowFixture f;
  auto& w = f.Make();
  f.input.Answer(std::string("2"));
  w.mnuright();
  f.input.Answer(std::string("3"));
  w.mnuup();
  w.mnuCenter();
  EXPECT_EQ(w.View().CenterX(), 300);
  EXPECT_EQ(w.View().CenterY(), 200);
  EXPECT_EQ(w.View().MoveX(), 0);
  EXPECT_EQ(w.View().MoveY(), 0);
  EXPECT_EQ(w.View().MovedText(), "Moved:");
  EXPECT_EQ(f.host.statusTexts.back(), "Moved:");
}

TEST(Move, AHugeMoveDoesNotFailTheWindow) {
  WindowFixture f;
  auto& w = f.Make();
  f.input.Answer(std::string("1e300"));
  w.mnuright();
  f.input.Answer(std::string("1e300"));
  w.mnuright();
  EXPECT_FALSE(w.State().Drawing());
  w.mnuCenter();
  EXPECT_EQ(w.View().MoveX(), 0);
}

}  // namespace
}  // namespace velmora::graph
