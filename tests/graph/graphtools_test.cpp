#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "graph/graphwindow.h"
#include "tests/graph/windowfixture.h"

namespace velmora::graph {
namespace {

using testing::RecordingSurface;
using testing::WindowFixture;
using Op = RecordingSurface::Op;

// A stroke of a fill: a vertical line that ends on the X axis.
std::vector<Op> StrokesIn(const RecordingSurface& s, Colour colour, double axisRow) {
  std::vector<Op> out;
  for (const auto& op : s.LinesIn(colour)) {
    if (op.x1 == op.x2 && op.y2 == axisRow && op.y1 != op.y2 && op.style == kSolid) out.push_back(op);
  }
  return out;
}

std::vector<Op> Visible(const std::vector<Op>& lines) {
  std::vector<Op> out;
  for (const auto& op : lines) {
    if (op.style != kInvisible) out.push_back(op);
  }
  return out;
}

class GraphToolsTest : public ::testing::Test {
 protected:
  GraphToolsTest() {
    path_ = (std::filesystem::temp_directory_path() /
             ("velmora-tools-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
              ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".txt"))
                .string();
    std::filesystem::remove(path_);
    f.history = std::make_unique<HistoryLog>(path_);
  }
  ~GraphToolsTest() override { std::filesystem::remove(path_); }

  GraphWindow& Drawn(const std::string& y) {
    GraphWindow& w = f.MakeWithEngine();
    w.SettxtY(y);
    w.CrtajFJU();
    f.surface.ClearOps();
    return w;
  }

  std::string path_;
  WindowFixture f;
};

// ---- Tangent and normal ----------------------------------------------------------

TEST_F(GraphToolsTest, TangentOfXSquaredAtOneIsDrawnInTheTangentColourAndListed) {
  GraphWindow& w = Drawn("X^2");
  w.ApplyTangent(false, 1);
  EXPECT_EQ(w.Boxes().txtY().Text, "2*x-1");
  const auto& list = w.Boxes().txtY().List;
  EXPECT_NE(std::find(list.begin(), list.end(), "2*x-1"), list.end());
  EXPECT_FALSE(Visible(f.surface.LinesIn(GraphWindow::kTangentColour)).empty());
  // Boje5: the next plot has the chosen colour again.
  EXPECT_EQ(w.Pen().Graph_Clr(), w.Pen().lblBoja());
  EXPECT_NE(w.Pen().lblBoja(), GraphWindow::kTangentColour);
}

TEST_F(GraphToolsTest, TheTangentLeavesItsRecordInTheHistory) {
  GraphWindow& w = Drawn("X^2");
  w.ApplyTangent(false, 1);
  const std::string text = w.rtb();
  EXPECT_NE(text.find(" Tangent for Y = X^2\n X = 1; Y = 1\n Slope: 2\n Tangent Line: 2*x-1\n"),
            std::string::npos)
      << text;
  // The request ends with the draw: the next draw is an ordinary one.
  EXPECT_FALSE(w.Tangent().Tngenta());
}

TEST_F(GraphToolsTest, TheNormalLeavesItsRecordInTheHistory) {
  GraphWindow& w = Drawn("X^2");
  w.ApplyTangent(true, 1);
  // The draw takes the blanks out of the box, and the record names the box.
  EXPECT_EQ(w.Boxes().txtY().Text, "-0.5*x+1.5");
  EXPECT_NE(w.rtb().find(" Normal for Y = X^2\n X = 1; Y = 1\n Slope: -0.5\n Normal Line: -0.5*x+1.5\n"),
            std::string::npos)
      << w.rtb();
}

TEST_F(GraphToolsTest, TheNormalAtAHorizontalTangentIsAVerticalLine) {
  GraphWindow& w = Drawn("X^2+1");
  w.ApplyTangent(true, 0);
  EXPECT_EQ(w.Boxes().txtY().Text, "x");
  EXPECT_EQ(w.Boxes().txtX().Text, "0");
  EXPECT_EQ(w.Boxes().optFunkcije(), kCartesian);  // the type is left alone
  // Drawn as X (K) = 0: every visible segment stands on the Y axis.
  const auto lines = Visible(f.surface.LinesIn(GraphWindow::kTangentColour));
  ASSERT_FALSE(lines.empty());
  for (const auto& op : lines) {
    EXPECT_EQ(op.x1, w.View().CenterX());
    EXPECT_EQ(op.x2, w.View().CenterX());
  }
}

struct RefusalCase {
  const char* why;
  const char* y;
  const char* x;
  const char* text;
  const char* title;
};

class CrtajtTest : public ::testing::TestWithParam<RefusalCase> {};

TEST_P(CrtajtTest, RefusesWithItsBox) {
  const auto& c = GetParam();
  WindowFixture f;
  GraphWindow& w = f.Make();
  w.SetFunctionTexts(c.y, c.x);
  EXPECT_FALSE(w.crtajt()) << c.why;
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, c.text);
  EXPECT_EQ(f.messages.Boxes()[0].title, c.title);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, CrtajtTest,
    ::testing::Values(RefusalCase{"no function yet", "", "K", "Draw function first.", "Tangent/Normal"},
                      RefusalCase{"an X other than K (the title keeps its spelling)", "X^2", "0",
                                  "This option is available only for Cartesian (Standard) functions.",
                                  "Tamgent/Normal"}));

TEST(Crtajt, AcceptsACartesianFunctionWithXAsLowerK) {
  WindowFixture f;
  GraphWindow& w = f.Make();
  w.SetFunctionTexts("X^2", "k");
  EXPECT_TRUE(w.crtajt());
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST_F(GraphToolsTest, APointThatCannotBeEvaluatedShowsErrorAndItsDescription) {
  GraphWindow& w = f.MakeWithEngine();
  EXPECT_FALSE(w.EvaluatePoint("1/0").has_value());
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text.rfind("Error. ", 0), 0u);
  EXPECT_EQ(w.EvaluatePoint("pi/2").value_or(0), std::atan(1) * 2);
}

TEST_F(GraphToolsTest, AParametricTangentIsDrawnAsACartesianLineAndKeepsTheParentPair) {
  GraphWindow& w = f.MakeWithEngine();
  w.optFunk(kParametric);
  w.SetFunctionTexts("K^2", "K");
  w.CrtajFJU();
  w.ApplyParametricTangent(false, 1);
  EXPECT_EQ(w.Boxes().optFunkcije(), kCartesian);
  EXPECT_EQ(w.Boxes().txtY().Text, "2*x-1");
  EXPECT_EQ(w.Boxes().txtX().Text, "K");
  EXPECT_EQ(w.Boxes().cmbR3().List, std::vector<std::string>{"K^2"});
  EXPECT_NE(w.rtb().find(" Tangent for Parametric Function: \n Y = K^2\n X = K\n K = 1\n X = 1; Y = 1\n"
                         " Tangent Line: Y = 2*x-1; X = K\n"),
            std::string::npos)
      << w.rtb();
}

// ---- Integral, average, derivative ---------------------------------------------------

TEST_F(GraphToolsTest, WithDrawFunctionOffOnlyTheStrokesShow) {
  GraphWindow& w = Drawn("SinX");
  w.ApplyIntegral({.xMin = "0", .xMax = "pi", .drawFunction = false, .drawAverage = false, .average = ""});
  const Colour c = w.Pen().Graph_Clr();
  const auto strokes = StrokesIn(f.surface, c, w.View().CenterY());
  ASSERT_GT(strokes.size(), 80u);  // pi * 30 columns
  for (const auto& op : Visible(f.surface.LinesIn(c))) {
    // Every visible line lies in the range's columns: a stroke, or the
    // line to a stroke's top.
    EXPECT_GE(op.x2, w.View().CenterX() - 0.5) << op.x1;
    EXPECT_LE(op.x2, w.View().CenterX() + std::atan(1) * 4 * 30 + 0.5) << op.x1;
  }
}

TEST_F(GraphToolsTest, WithDrawFunctionOnTheCurveShowsOutsideTheRange) {
  GraphWindow& w = Drawn("SinX");
  w.ApplyIntegral({.xMin = "0", .xMax = "1", .drawFunction = true, .drawAverage = false, .average = ""});
  const auto lines = Visible(f.surface.LinesIn(w.Pen().Graph_Clr()));
  const bool leftOfRange =
      std::any_of(lines.begin(), lines.end(), [&](const Op& op) { return op.x2 < w.View().CenterX() - 10; });
  EXPECT_TRUE(leftOfRange);
}

TEST_F(GraphToolsTest, AFillBeyondTheSurfaceFillsWhatIsOnIt) {
  GraphWindow& w = Drawn("2");
  w.ApplyIntegral(
      {.xMin = "-1000", .xMax = "1000", .drawFunction = true, .drawAverage = false, .average = ""});
  const auto strokes = StrokesIn(f.surface, w.Pen().Graph_Clr(), w.View().CenterY());
  // One column of the surface is the first sample, which only places the pen.
  EXPECT_EQ(strokes.size(), 600u);
}

TEST_F(GraphToolsTest, YAboveOneHundredLeavesAGapInTheFill) {
  f.surface = RecordingSurface(600, 40000);  // tall enough to hold Y = 150
  GraphWindow& w = Drawn("150*SinX");
  w.ApplyIntegral({.xMin = "0", .xMax = "pi", .drawFunction = true, .drawAverage = false, .average = ""});
  const auto strokes = StrokesIn(f.surface, w.Pen().Graph_Clr(), w.View().CenterY());
  const auto strokedNear = [&](double column) {
    return std::any_of(strokes.begin(), strokes.end(),
                       [&](const Op& op) { return std::fabs(op.x1 - column) < 0.5; });
  };
  EXPECT_FALSE(strokedNear(w.View().CenterX() + 30 * std::atan(1) * 2));  // x = pi/2, Y = 150
  EXPECT_TRUE(strokedNear(w.View().CenterX() + 10));                      // x = 1/3, Y = 49
}

TEST_F(GraphToolsTest, TheRangeTestFollowsAMovedCentre) {
  GraphWindow& w = Drawn("2");
  w.ApplyMove(MoveDirection::Right, "2");
  w.ApplyIntegral({.xMin = "0", .xMax = "1", .drawFunction = true, .drawAverage = false, .average = ""});
  const auto strokes = StrokesIn(f.surface, w.Pen().Graph_Clr(), w.View().CenterY());
  ASSERT_FALSE(strokes.empty());
  for (const auto& op : strokes) {
    EXPECT_GE(op.x1, w.View().CenterX());
    EXPECT_LE(op.x1, w.View().CenterX() + 30);
  }
}

TEST_F(GraphToolsTest, TheAverageBandIsStrokedInItsColourFromItsValueToTheAxis) {
  GraphWindow& w = Drawn("SinX");
  w.SetAvBoja(0x00FF00);
  w.ApplyIntegral({.xMin = "0", .xMax = "1", .drawFunction = true, .drawAverage = true, .average = "0.5"});
  const auto band = StrokesIn(f.surface, 0x00FF00, w.View().CenterY());
  ASSERT_FALSE(band.empty());
  for (const auto& op : band) EXPECT_EQ(op.y1, w.View().CenterY() - 15);
  // Twice: each column of the band is stroked in both runs.
  EXPECT_EQ(band.size() % 2, 0u);
  EXPECT_EQ(w.Pen().Graph_Clr(), w.Pen().lblBoja());
}

TEST_F(GraphToolsTest, AnAverageOfZeroIsRefusedAndNothingIsDrawn) {
  GraphWindow& w = Drawn("SinX");
  EXPECT_FALSE(w.ApplyIntegral(
      {.xMin = "0", .xMax = "1", .drawFunction = true, .drawAverage = true, .average = "abc"}));
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Invalid input for Average value.");
  EXPECT_TRUE(f.surface.Lines().empty());
}

TEST_F(GraphToolsTest, AFillWritesNoRecordAndChangesNoList) {
  GraphWindow& w = Drawn("SinX");
  const std::string before = w.rtb();
  w.ApplyIntegral({.xMin = "0", .xMax = "1", .drawFunction = true, .drawAverage = false, .average = ""});
  w.CrtajFJUDeriv();
  EXPECT_EQ(w.rtb(), before);
  EXPECT_EQ(w.State().KolkoFunkc(), 1);
}

struct IntegralRefusal {
  const char* why;
  const char* y;
  const char* x;
  const char* text;
};

class MnuDrawIntegralTest : public ::testing::TestWithParam<IntegralRefusal> {};

TEST_P(MnuDrawIntegralTest, Refuses) {
  const auto& c = GetParam();
  WindowFixture f;
  GraphWindow& w = f.Make();
  w.SetFunctionTexts(c.y, c.x);
  EXPECT_FALSE(w.mnuDrawIntegral()) << c.why;
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, c.text);
}

INSTANTIATE_TEST_SUITE_P(Cases, MnuDrawIntegralTest,
                         ::testing::Values(IntegralRefusal{"no function", "", "K", "Enter function first."},
                                           IntegralRefusal{"a parametric X", "SinK", "CosK",
                                                           "Not available for parametric functions."},
                                           IntegralRefusal{"only upper-case K passes", "SinX", "k",
                                                           "Not available for parametric functions."}));

TEST_F(GraphToolsTest, TheDerivativeOfXSquaredIsTheLineTwoX) {
  GraphWindow& w = Drawn("X^2");
  w.CrtajFJUDeriv();
  const auto lines = Visible(f.surface.LinesIn(w.Pen().lblBoja()));
  ASSERT_GT(lines.size(), 100u);
  for (const auto& op : lines) {
    const double x = (op.x2 - w.View().CenterX()) / 30;
    const double y = (w.View().CenterY() - op.y2) / 30;
    EXPECT_NEAR(y, 2 * x, 0.01) << op.x2;
  }
}

}  // namespace
}  // namespace velmora::graph
