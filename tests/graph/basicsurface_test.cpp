#include "graph/basicsurface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "expr/fault.h"
#include "tests/support/recordingsurface.h"

namespace velmora::graph {
namespace {

using testing::RecordingSurface;

TEST(BasicSurface, LineMovesTheCurrentPointAndLineToStartsThere) {
  RecordingSurface s(100, 50);
  s.Line(1, 2, 3, 4, 0xFF);
  EXPECT_EQ(s.CurrentX(), 3);
  EXPECT_EQ(s.CurrentY(), 4);
  s.LineTo(10, 20, 0xFF00);
  const auto lines = s.Lines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[1].x1, 3);
  EXPECT_EQ(lines[1].y1, 4);
  EXPECT_EQ(lines[1].colour, 0xFF00u);
}

TEST(BasicSurface, PrintGoesToTheNextLine) {
  RecordingSurface s(100, 50);
  s.SetCurrentX(5);
  s.SetCurrentY(7);
  s.Print("abc");
  EXPECT_EQ(s.CurrentX(), 0);
  EXPECT_EQ(s.CurrentY(), 7 + s.TextHeight("abc"));
  EXPECT_EQ(s.Texts()[0].x1, 5);
}

TEST(BasicSurface, CircleAndClearMoveTheCurrentPoint) {
  RecordingSurface s(100, 50);
  s.Circle(20, 30, -5, 1);
  EXPECT_EQ(s.CurrentX(), 20);
  EXPECT_EQ(s.Circles()[0].x2, 5);
  s.Clear();
  EXPECT_EQ(s.CurrentX(), 0);
  EXPECT_EQ(s.CurrentY(), 0);
}

TEST(BasicSurface, CoordinatesBeyondTheDeviceFault) {
  RecordingSurface s(100, 50);
  EXPECT_THROW(s.Line(0, 0, std::numeric_limits<double>::infinity(), 0, 0), expr::Fault);
  EXPECT_THROW(s.LineTo(3e9, 0, 0), expr::Fault);
  EXPECT_THROW(s.Circle(0, 0, std::nan(""), 0), expr::Fault);
  EXPECT_TRUE(s.Lines().empty());
  EXPECT_EQ(s.CurrentX(), 0);  // a failed line leaves the current point
}

TEST(BasicSurface, PenAndFontRules) {
  RecordingSurface s(100, 50, {"Marlett"});
  EXPECT_THROW(s.SetDrawWidth(0), expr::Fault);
  EXPECT_THROW(s.SetDrawStyle(7), expr::Fault);
  EXPECT_THROW(s.SetFontSize(0), expr::Fault);
  s.SetDrawStyle(kInvisible);
  EXPECT_EQ(s.DrawStyle(), kInvisible);
  s.SetFontName("Arial");
  EXPECT_EQ(s.FontName(), "Arial");
  s.SetFontName("Marlett");
  EXPECT_EQ(s.FontName(), "Marlett");
  s.SetFontName("Webdings");  // missing: reads back as its stand-in
  EXPECT_EQ(s.FontName(), "MS Sans Serif");
  EXPECT_EQ(s.ScaleWidth(), 100);
  EXPECT_EQ(s.ScaleHeight(), 50);
}

TEST(Colour, BlueInTheHighByte) {
  EXPECT_EQ(Rgb(0x12, 0x34, 0x56), 0x563412u);
  EXPECT_EQ(RedOf(0x563412), 0x12);
  EXPECT_EQ(GreenOf(0x563412), 0x34);
  EXPECT_EQ(BlueOf(0x563412), 0x56);
}

}  // namespace
}  // namespace velmora::graph
