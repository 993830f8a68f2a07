// The parts of the graph window's state on their own: the view, the pen,
// the function boxes, the tangent request and the draw state with its guard.
#include <gtest/gtest.h>

#include <stdexcept>

#include "graph/drawingguard.h"
#include "graph/drawstate.h"
#include "graph/functionboxes.h"
#include "graph/pencolours.h"
#include "graph/tangentrequest.h"
#include "graph/viewstate.h"

namespace velmora::graph {
namespace {

// ---- ViewState ------------------------------------------------------------------

TEST(ViewState, StartsAtTheDefaultZoomWithNoMoves) {
  const ViewState v;
  EXPECT_EQ(v.Zoom(), 30);
  EXPECT_EQ(v.zlevel(), 30);
  EXPECT_EQ(v.MovedText(), "Moved:");
  EXPECT_FALSE(v.MovedLeft() || v.MovedRight() || v.MovedUp() || v.MovedDown());
}

TEST(ViewState, MapsUserUnitsToPixelsWithYDownward) {
  ViewState v;
  v.SetCentre(300, 200);
  EXPECT_EQ(v.PixelX(2), 360);
  EXPECT_EQ(v.PixelY(2), 140);  // up in user units is up the screen
  EXPECT_EQ(v.LeftX(), -10);
  EXPECT_EQ(v.RightX(600), 10);
  EXPECT_DOUBLE_EQ(v.TopY(), 200.0 / 30);
  EXPECT_DOUBLE_EQ(v.BottomY(400), -200.0 / 30);
}

struct MoveCase {
  MoveDirection direction;
  double centerX;
  double centerY;
  const char* text;
  const char* why;
};

class ViewMoves : public ::testing::TestWithParam<MoveCase> {};

TEST_P(ViewMoves, MoveShiftsTheCentreAndExtendsTheText) {
  const MoveCase& c = GetParam();
  ViewState v;
  v.SetCentre(300, 200);
  v.Move(c.direction, "2", 2);
  EXPECT_EQ(v.CenterX(), c.centerX) << c.why;
  EXPECT_EQ(v.CenterY(), c.centerY) << c.why;
  EXPECT_EQ(v.MovedText(), c.text);
  EXPECT_EQ(v.LastMoveInput(), "2");
  EXPECT_EQ(v.LastMoveShift(), 2);
}

INSTANTIATE_TEST_SUITE_P(
    Directions, ViewMoves,
    ::testing::Values(MoveCase{MoveDirection::Right, 360, 200, "Moved: R: 2", "the origin goes right"},
                      MoveCase{MoveDirection::Left, 240, 200, "Moved: L: 2", "the origin goes left"},
                      MoveCase{MoveDirection::Up, 300, 140, "Moved: Up: 2", "up raises the origin's row"},
                      MoveCase{MoveDirection::Down, 300, 260, "Moved: D: 2", "down lowers it"}));

TEST(ViewState, TheMoveCentreIsTakenOffOnlyOnAMovedAxis) {
  ViewState v;
  v.SetCentre(300, 200);
  v.Move(MoveDirection::Right, "2", 2);
  v.UpdateMoveCentre(600, 400);
  EXPECT_EQ(v.MoveX(), 2);
  EXPECT_EQ(v.PomeriX(5), 3);
  EXPECT_EQ(v.PomeriY(5), 5);  // the vertical axis was never moved
  v.Move(MoveDirection::Left, "1", 1);
  EXPECT_TRUE(v.MovedLeft());
  EXPECT_FALSE(v.MovedRight());  // the last move of the axis counts
  EXPECT_EQ(v.MovedText(), "Moved: R: 2 L: 1");
  v.ResetMovedText();
  EXPECT_EQ(v.MovedText(), "Moved:");
}

// ---- PenColours -------------------------------------------------------------------

TEST(PenColours, AChosenGraphColourIsAlsoTheKeptOne) {
  PenColours p;
  p.SetGraph_Clr(0x123456);  // a random colour: the kept one stays
  EXPECT_EQ(p.lblBoja(), 0u);
  p.ChooseGraphColour(0xABCDEF);
  EXPECT_EQ(p.Graph_Clr(), 0xABCDEFu);
  EXPECT_EQ(p.lblBoja(), 0xABCDEFu);
  EXPECT_EQ(p.AvBoja(), 255u);
}

TEST(PenColours, ANonPositiveWidthBecomesOne) {
  PenColours p;
  for (const double width : {0.0, -2.0}) {
    p.SetGraphLineWidth(width);
    p.EnsureLineWidth();
    EXPECT_EQ(p.GraphLineWidth(), 1);
  }
  p.SetGraphLineWidth(1.6);
  p.EnsureLineWidth();
  EXPECT_EQ(p.GraphLineWidth(), 1.6);
}

// ---- FunctionBoxes --------------------------------------------------------------------

struct TypeCase {
  int type;
  const char* caption;
  bool xVisible;
};

class BoxTypes : public ::testing::TestWithParam<TypeCase> {};

TEST_P(BoxTypes, TheTypeSetsCaptionsAndTheXBox) {
  FunctionBoxes b;
  b.SetTxtX("CosK");
  ASSERT_TRUE(b.SetType(GetParam().type));
  EXPECT_EQ(b.labY().Caption, GetParam().caption);
  EXPECT_EQ(b.txtX().Visible, GetParam().xVisible);
  EXPECT_EQ(b.txtX().Text, GetParam().xVisible ? "CosK" : "K");  // outside type 2 X is K
}

INSTANTIATE_TEST_SUITE_P(Types, BoxTypes,
                         ::testing::Values(TypeCase{kCartesian, "Y (X) =", false},
                                           TypeCase{kParametric, "Y (K) =", true},
                                           TypeCase{kPolar, "R (K) =", false}));

TEST(FunctionBoxes, AnUnknownTypeChangesNothing) {
  FunctionBoxes b;
  EXPECT_FALSE(b.SetType(4));
  EXPECT_FALSE(b.SetType(0));
  EXPECT_EQ(b.optFunkcije(), kCartesian);
}

TEST(FunctionBoxes, RememberedFunctionsStandOnceAndAPickFindsItsType) {
  FunctionBoxes b;
  b.SetType(kParametric);
  b.SetTxtY("SinK");
  b.SetTxtX("CosK");
  b.Remember(true);
  b.SetType(kCartesian);
  b.SetTxtY("X^2");
  b.Remember(false);
  b.Remember(false);  // a repeat stands once
  EXPECT_EQ(b.txtY().List, (std::vector<std::string>{"SinK", "X^2"}));
  EXPECT_EQ(b.cmbR3().List, (std::vector<std::string>{"SinK"}));
  b.SetTxtY("SinK");
  b.SetTxtX("K");
  EXPECT_EQ(b.TypeOfPick(), kParametric);
  EXPECT_EQ(b.txtX().Text, "CosK");  // its X comes back with it
  b.SetTxtY("1+CosK");
  EXPECT_EQ(b.TypeOfPick(), kPolar);  // K but not parametric
  b.SetTxtY("X^2");
  EXPECT_EQ(b.TypeOfPick(), kCartesian);
}

TEST(FunctionBoxes, BlanksLeaveTheBoxesAndClearEmptiesThem) {
  FunctionBoxes b;
  b.SetType(kParametric);
  b.SetTxtY(" Sin K ");
  b.SetTxtX(" Cos K");
  b.RemoveBlanks(true);
  EXPECT_EQ(b.txtY().Text, "SinK");
  EXPECT_EQ(b.txtX().Text, " Cos K");  // a polar draw leaves X alone
  b.RemoveBlanks(false);
  EXPECT_EQ(b.txtX().Text, "CosK");
  EXPECT_EQ(b.StatusCaption(), "Y (K) = SinK ; X (K) = CosK");
  b.Remember(true);
  b.Clear();
  EXPECT_TRUE(b.txtY().List.empty() && b.txtX().List.empty() && b.cmbR3().List.empty());
  EXPECT_EQ(b.txtX().Text, "K");
  EXPECT_EQ(b.optFunkcije(), kCartesian);
  EXPECT_EQ(b.lblxy().Caption, "Y (X) =");
}

// ---- TangentRequest ----------------------------------------------------------------------

TEST(TangentRequest, CartesianAndParametricRequests) {
  const auto t = TangentRequest::Cartesian(false, "1", "2", "X^2");
  EXPECT_TRUE(t.Tngenta());
  EXPECT_FALSE(t.Normalka() || t.TngentaP() || t.NormalkaP());
  EXPECT_EQ(t.TngentaX(), "1");
  EXPECT_EQ(t.Slopka(), "2");
  EXPECT_EQ(t.fjaT(), "X^2");
  auto n = TangentRequest::Parametric(true, "0.5", "SinK", "CosK", "SinK ; CosK");
  EXPECT_TRUE(n.NormalkaP());
  EXPECT_EQ(n.TngentaXP(), "0.5");
  EXPECT_EQ(n.fja1P(), "SinK");
  EXPECT_EQ(n.fja2P(), "CosK");
  EXPECT_EQ(n.fjaTP(), "SinK ; CosK");
  n.EndCartesian();
  EXPECT_TRUE(n.NormalkaP());  // a plot ends only a Cartesian request
  auto c = TangentRequest::Cartesian(true, "2", "-0.25", "X^2");
  c.EndCartesian();
  EXPECT_FALSE(c.Normalka());
}

// ---- DrawState and its guard ----------------------------------------------------------------

TEST(DrawingGuard, ClearsDrawingOnEveryWayOut) {
  DrawState s;
  {
    const DrawingGuard guard(s);
    EXPECT_TRUE(s.Drawing());
  }
  EXPECT_FALSE(s.Drawing());
  try {
    const DrawingGuard guard(s);
    throw std::runtime_error("a fault in the middle of a draw");
  } catch (const std::runtime_error&) {
  }
  EXPECT_FALSE(s.Drawing());
}

TEST(DrawState, CountStopAndRange) {
  DrawState s;
  EXPECT_TRUE(s.Zezaj());  // new until the window has loaded
  s.CountFunction();
  s.CountFunction();
  EXPECT_EQ(s.KolkoFunkc(), 2);
  s.RequestStop();
  EXPECT_TRUE(s.StopCrtanje());
  s.ClearStop();
  EXPECT_FALSE(s.StopCrtanje());
  s.SetXpoc(-10);
  s.SetXkraj(9.967);
  EXPECT_EQ(s.Xpoc(), -10);
  EXPECT_EQ(s.Xkraj(), 9.967);
}

}  // namespace
}  // namespace velmora::graph
