// The draw commands of the graph window end to end, on the program's text
// evaluator standing in for the formula engine.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "graph/graphwindow.h"
#include "platform/settingskeys.h"
#include "tests/graph/windowfixture.h"
#include "tests/support/evaluatorformula.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

using testing::EvaluatorScript;
using testing::RecordingSurface;
using testing::WindowFixture;

constexpr Colour kGraph = 0xC08000;

class DrawTest : public ::testing::Test {
 protected:
  void SetUp() override {
    path_ = std::filesystem::temp_directory_path() /
            ("velmora-draw-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) +
             ".txt");
    std::filesystem::remove(path_);
    f.Full(path_.string());
  }
  void TearDown() override { std::filesystem::remove(path_); }

  GraphWindow& Make() { return f.Make(EvaluatorScript(f.engine)); }
  // Draws a typed function as Enter in txtY does.
  void Enter(const std::string& y, int type = kCartesian, const std::string& x = "K") {
    f.window->optFunk(type);
    f.window->SettxtY(y);
    if (type == kParametric) f.window->SettxtX(x);
    f.surface.ClearOps();
    f.observer.passes.clear();
    f.window->DrawFromTxtY();
  }
  std::vector<RecordingSurface::Op> Curve() const { return f.surface.LinesIn(f.window->Pen().Graph_Clr()); }
  std::string History() const { return f.history->ReadAll(); }

  WindowFixture f;
  std::filesystem::path path_;
};

TEST_F(DrawTest, ACartesianDrawFromEndToEnd) {
  auto& w = Make();
  Enter("Sin X");
  EXPECT_EQ(w.Boxes().txtY().Text, "SinX");  // blanks out of the box itself
  EXPECT_EQ(w.State().FuncY(), "SINK");
  EXPECT_EQ(w.State().FuncX(), "K");
  EXPECT_EQ(f.observer.passes.size(), 601u);
  const auto curve = Curve();
  // Every sample is drawn but the first, which moves (and K = 0 if the sum hits it exactly).
  EXPECT_GE(curve.size(), 599u);
  EXPECT_LE(curve.size(), 600u);
  for (const auto& l : curve) EXPECT_EQ(l.colour, kGraph);
  EXPECT_EQ(w.State().KolkoFunkc(), 1);
  EXPECT_EQ(w.Boxes().txtY().List, (std::vector<std::string>{"SinX"}));
  EXPECT_TRUE(w.Boxes().cmbR3().List.empty());
  EXPECT_TRUE(w.State().Plotted());
  EXPECT_FALSE(w.State().Drawing());
  EXPECT_FALSE(w.lblPerCent().Visible);
  EXPECT_EQ(w.lblPointtab().Caption, "Value Tables for SinX");
  EXPECT_EQ(w.lblPointtab().ForeColor, 0u);
  EXPECT_DOUBLE_EQ(w.State().Xpoc(), -10);
  EXPECT_NEAR(w.State().Xkraj(), 10, 0.04);
  // The table runs from Xpoc to Xkraj by 1 with 3 decimals.
  ASSERT_EQ(w.MS1().Rows(), 21);
  EXPECT_EQ(w.MS1().TextMatrix(1, 0), "-10");
  EXPECT_EQ(w.MS1().TextMatrix(1, 1), "0.544");
  EXPECT_EQ(w.MS1().TextMatrix(1, 2), "-0.839");
  EXPECT_EQ(f.settings.Query("Recent Functions", "Recent1"), "SinX ; K | Cartesian");
  EXPECT_EQ(f.host.focuses > 0, true);
  EXPECT_GT(f.host.frameRefreshes, 0);
}

TEST_F(DrawTest, TheFirstDrawCreatesTheHistoryWithItsOwnFirstTableRow) {
  auto& w = Make();
  EXPECT_FALSE(std::filesystem::exists(path_));
  Enter("SinX");
  EXPECT_TRUE(std::filesystem::exists(path_));
  // The record names the first row of the table of the function just drawn,
  // not an empty row (the window's first function) ...
  EXPECT_EQ(History(), "\n Y(X) = sinx\n X = -10; Y = 0.544\n ____________________________________\n");
  // ... nor the row of the function drawn before.
  Enter("X^2");
  EXPECT_NE(History().find(" Y(X) = x^2\n X = -10; Y = 100\n"), std::string::npos) << History();
  EXPECT_EQ(w.rtb(), History());
}

TEST_F(DrawTest, BadSyntaxShowsTheEvaluatorsMessageAndDrawsNothing) {
  auto& w = Make();
  f.surface.ClearOps();
  w.SettxtY("Sin(X");
  w.CrtajFJU();
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Check bracket placement!");
  EXPECT_EQ(f.messages.Boxes()[0].title, "Error");
  EXPECT_EQ(f.messages.Boxes()[0].icon, platform::MsgIcon::Critical);
  EXPECT_TRUE(f.surface.Ops().empty());
  EXPECT_EQ(w.State().KolkoFunkc(), 0);
  EXPECT_FALSE(std::filesystem::exists(path_));
  EXPECT_FALSE(w.State().Plotted());
}

TEST_F(DrawTest, ABadXTextStopsAParametricDraw) {
  auto& w = Make();
  f.surface.ClearOps();
  w.optFunk(kParametric);
  w.SettxtY("SinK");
  w.SettxtX("2*-K");
  w.CrtajFJU();
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Check syntax!");
  EXPECT_TRUE(f.surface.Lines().empty());
}

TEST_F(DrawTest, ASecondEnterDuringADrawChangesNothing) {
  auto& w = Make();
  Enter("X/2+SinX");
  const auto reference = Curve();
  const std::string recent = *f.settings.Query("Recent Functions", "Recent1");
  f.host.onPump = [&w](int pumps) {
    if (pumps == 100) {
      w.SettxtY("CosX");
      w.CrtajFJU();
      w.DrawFromTxtY();
    }
  };
  Enter("X/2+SinX");
  const auto again = Curve();
  ASSERT_EQ(again.size(), reference.size());
  for (std::size_t i = 0; i < again.size(); ++i) {
    EXPECT_DOUBLE_EQ(again[i].x2, reference[i].x2);
    EXPECT_DOUBLE_EQ(again[i].y2, reference[i].y2);
  }
  EXPECT_EQ(*f.settings.Query("Recent Functions", "Recent1"), recent);
  EXPECT_EQ(w.State().KolkoFunkc(), 2);
}

TEST_F(DrawTest, ExpAndFixKeepTheirNamesAndXAndKAreOneVariable) {
  auto& w = Make();
  Enter("exp(x)+fix(X)+k");
  EXPECT_EQ(w.State().FuncY(), "EP(K)+STL(K)+K");
  // Every sample's formula is EP((v))+STL((v))+(v) with one value v.
  int samples = 0;
  for (const auto& formula : f.engine->Sent()) {
    if (formula.rfind("EP(", 0) != 0) continue;
    ++samples;
    const auto close = formula.find(')');
    const std::string v = formula.substr(4, close - 4);
    EXPECT_EQ(formula, "EP((" + v + "))+STL((" + v + "))+(" + v + ")");
  }
  EXPECT_EQ(samples, 601);
}

TEST_F(DrawTest, ARepeatedFunctionStandsOnceButCountsTwice) {
  auto& w = Make();
  Enter("X");
  Enter("X^2");
  Enter("X");
  EXPECT_EQ(w.Boxes().txtY().List, (std::vector<std::string>{"X", "X^2"}));
  EXPECT_EQ(w.State().KolkoFunkc(), 3);
}

TEST_F(DrawTest, EscStopsAtTheNextSampleKeepsTheCurveAndWritesTheHistory) {
  auto& w = Make();
  f.host.onPump = [&w](int pumps) {
    if (pumps == 50) w.Stop();
  };
  Enter("X/4");
  EXPECT_EQ(f.observer.passes.size(), 50u);
  EXPECT_EQ(Curve().size(), 49u);
  EXPECT_NE(History().find(" Y(X) = x/4"), std::string::npos);
  EXPECT_EQ(w.State().KolkoFunkc(), 1);
  EXPECT_FALSE(w.State().Drawing());
  EXPECT_TRUE(w.State().Plotted());
  // A new draw starts afresh.
  f.host.onPump = nullptr;
  Enter("X/4");
  EXPECT_EQ(f.observer.passes.size(), 601u);
}

TEST_F(DrawTest, TheConstantZeroDrawsNothingAndASmallConstantDraws) {
  Make();
  Enter("0");
  EXPECT_TRUE(Curve().empty());
  Enter("0.001");
  EXPECT_EQ(Curve().size(), 600u);
}

TEST_F(DrawTest, HundredIsDrawnAndJustOverIsNot) {
  auto& w = Make();
  w.SetView(1, w.View().CenterX(), w.View().CenterY());
  Enter("100");
  EXPECT_EQ(Curve().size(), 600u);
  Enter("100.0001");
  EXPECT_TRUE(Curve().empty());
}

TEST_F(DrawTest, OneOverXIsNotJoinedAcrossThePole) {
  Make();
  Enter("1/X");
  for (const auto& l : Curve()) {
    if (l.style == kInvisible) continue;
    EXPECT_FALSE((l.x1 < 300 && l.x2 > 300)) << l.x1 << " " << l.x2;
  }
}

TEST_F(DrawTest, SqrStartsAtTheFirstPositiveSample) {
  Make();
  Enter("Sqr(X)");
  const auto& p = f.observer.passes;
  std::size_t first = 0;
  while (first < p.size() && p[first].action == PassAction::Skip) ++first;
  ASSERT_LT(first, p.size());
  EXPECT_GT(p[first].kr, 0);
  EXPECT_EQ(p[first].action, PassAction::Move);
  for (std::size_t i = 0; i < first; ++i) EXPECT_LE(p[i].kr, 0);
}

// ---- Polar ---------------------------------------------------------------------------------

TEST_F(DrawTest, PolarOneIsACircleOfRadiusOne) {
  auto& w = Make();
  Enter("1", kPolar);
  EXPECT_EQ(w.State().FuncY(), "(1)*(SINK)");
  EXPECT_EQ(w.State().FuncX(), "(1)*(cosK)");
  const auto curve = Curve();
  ASSERT_FALSE(curve.empty());
  for (const auto& l : curve) EXPECT_NEAR(std::hypot(l.x2 - 300, l.y2 - 200), 30, 0.05);
  // K from -10 to 10 at the default zoom: a little over three turns.
  EXPECT_DOUBLE_EQ(f.observer.passes.front().kr, -10);
  EXPECT_NEAR(f.observer.passes.back().kr, 10, 1e-3);
  EXPECT_EQ(*f.settings.Query("Recent Functions", "Recent1"), "1 ; K | Polar");
  EXPECT_NE(History().find(" R(K) = 1\n"), std::string::npos);
  EXPECT_EQ(w.MS1().Rows(), 14);
  EXPECT_EQ(w.MS1().TextMatrix(0, 0), "\xC3\xB8");
  EXPECT_EQ(w.Boxes().txtY().List, (std::vector<std::string>{"1"}));
  EXPECT_TRUE(w.Boxes().cmbR3().List.empty());
}

TEST_F(DrawTest, PolarAndParametricNeverTakeXpoc) {
  auto& w = Make();
  Enter("X");
  EXPECT_DOUBLE_EQ(w.State().Xpoc(), -10);
  // Neither curve starts at the left edge, where a Cartesian one does.
  w.SetView(30, 360, 200);
  Enter("2", kPolar);
  EXPECT_DOUBLE_EQ(w.State().Xpoc(), -10);
  Enter("K/2", kParametric, "K+1");
  EXPECT_DOUBLE_EQ(w.State().Xpoc(), -10);  // Xpoc is for the Cartesian type only
}

TEST_F(DrawTest, SpiralIsCutAtTheSurfacesKLimits) {
  auto& w = Make();
  Enter("K", kPolar);
  EXPECT_DOUBLE_EQ(f.observer.passes.front().kr, -10);
  // Moving right shifts the K range with the view.
  f.input.Answer(std::string("2"));
  w.mnuright();
  Enter("K", kPolar);
  EXPECT_DOUBLE_EQ(f.observer.passes.front().kr, -12);
  EXPECT_NEAR(f.observer.passes.back().kr, 8, 2e-3);
  // Zooming in shortens it.
  w.mnuCenter();
  w.mnuzoomin();
  Enter("K", kPolar);
  EXPECT_DOUBLE_EQ(f.observer.passes.front().kr, -6);
}

TEST_F(DrawTest, PolarZeroDrawsNothing) {
  Make();
  Enter("0*K", kPolar);
  EXPECT_TRUE(Curve().empty());
}

// ---- Parametric --------------------------------------------------------------------------------

TEST_F(DrawTest, SinCosIsTheUnitCircle) {
  auto& w = Make();
  Enter("SinK", kParametric, "CosK");
  const auto curve = Curve();
  ASSERT_FALSE(curve.empty());
  for (const auto& l : curve) EXPECT_NEAR(std::hypot(l.x2 - 300, l.y2 - 200), 30, 0.05);
  EXPECT_NE(History().find(" Y(K) = SinK\n X = CosK\n"), std::string::npos);
  EXPECT_EQ(*f.settings.Query("Recent Functions", "Recent1"), "SinK ; CosK | Parametric");
  EXPECT_EQ(w.Boxes().txtX().List, (std::vector<std::string>{"CosK"}));
  EXPECT_EQ(w.Boxes().cmbR3().List, (std::vector<std::string>{"SinK"}));
  // The table: K from -9 to 9.
  ASSERT_EQ(w.MS1().Rows(), 20);
  EXPECT_EQ(w.MS1().TabLines()[0], "K\tX (K)\tY (K)");
  EXPECT_EQ(w.MS1().TextMatrix(1, 0), "-9");
  EXPECT_EQ(w.MS1().TextMatrix(19, 0), "9");
}

// The trial before a draw refuses a bare "Y" ("Check syntax!"); the replay,
// which skips the trial, draws X (K) = Y as the diagonal over the values of Y (K).
TEST_F(DrawTest, XOfKEqualToYPlotsTheDiagonal) {
  auto& w = Make();
  Enter("SinK*3", kParametric, "Y");
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Check syntax!");
  EXPECT_TRUE(Curve().empty());
  w.CrtajFJUAuto();
  const auto curve = Curve();
  ASSERT_FALSE(curve.empty());
  for (const auto& l : curve) EXPECT_NEAR(l.x2 - 300, 200 - l.y2, 0.031);
}

TEST_F(DrawTest, ParametricWithXAsKDrawsAsCartesianButIsRememberedAsParametric) {
  auto& w = Make();
  Enter("X/2", kCartesian);
  const auto cartesian = Curve();
  Enter("K/2", kParametric, "K");
  const auto parametric = Curve();
  ASSERT_EQ(parametric.size(), cartesian.size());
  for (std::size_t i = 0; i < parametric.size(); ++i) EXPECT_DOUBLE_EQ(parametric[i].y2, cartesian[i].y2);
  EXPECT_EQ(*f.settings.Query("Recent Functions", "Recent1"), "K/2 ; K | Parametric");
  EXPECT_NE(History().find(" Y(K) = K/2\n X = K\n"), std::string::npos);
  EXPECT_EQ(w.MS1().TextMatrix(0, 0), "K");
}

// ---- Replay and the list ------------------------------------------------------------------------

TEST_F(DrawTest, RedrawFuncReplaysTheListOldestFirstAndWritesNothing) {
  auto& w = Make();
  Enter("X/2");
  Enter("SinK", kParametric, "CosK");
  Enter("1+CosK", kPolar);
  const std::string history = History();
  const std::string recent = *f.settings.Query("Recent Functions", "Recent1");
  w.Clearwith();
  w.DrawLines();
  f.surface.ClearOps();
  std::vector<int> types;
  f.host.types.clear();
  w.RedrawFunc();
  EXPECT_EQ(f.host.types, (std::vector<int>{kCartesian, kParametric, kPolar}));
  EXPECT_EQ(w.State().KolkoFunkc(), 3);
  EXPECT_EQ(w.Boxes().txtY().List.size(), 3u);
  EXPECT_EQ(History(), history);
  EXPECT_EQ(*f.settings.Query("Recent Functions", "Recent1"), recent);
  EXPECT_GT(f.surface.LinesIn(kGraph).size(), 1000u);
  EXPECT_EQ(w.Boxes().txtX().Text, "K");  // the polar one came last
  // A polar function without K replays as a Cartesian one: the list knows no type.
  Enter("1", kPolar);
  f.host.types.clear();
  w.RedrawFunc();
  EXPECT_EQ(f.host.types.back(), kCartesian);
}

TEST_F(DrawTest, WithAutoredOffAZoomLeavesAnEmptyPaper) {
  auto& w = Make();
  Enter("X/2");
  f.settings.Store(keys::kGrid, keys::grid::kAutored, "0");
  f.surface.ClearOps();
  w.mnuzoomin();
  w.RedrawFunc();  // as the frame does after a zoom
  EXPECT_TRUE(f.surface.LinesIn(kGraph).empty());
  EXPECT_EQ(w.State().KolkoFunkc(), 0);
}

TEST_F(DrawTest, ClickInTheListChoosesTheTypeByKAndCmbR3) {
  auto& w = Make();
  Enter("SinK", kParametric, "CosK");
  Enter("X^2");
  f.settings.Store(keys::kGrid, keys::grid::kAutored, "0");  // only the table is refilled
  w.SettxtY("SinK");
  w.txtY_Click();
  EXPECT_EQ(w.Boxes().optFunkcije(), kParametric);
  EXPECT_EQ(w.Boxes().txtX().Text, "CosK");
  EXPECT_EQ(w.MS1().TextMatrix(0, 0), "K");
  w.SettxtY("2*K");
  w.txtY_Click();
  EXPECT_EQ(w.Boxes().optFunkcije(), kPolar);
  EXPECT_EQ(w.MS1().Cols(), 4);
  w.SettxtY("X^2");
  w.txtY_Click();
  EXPECT_EQ(w.Boxes().optFunkcije(), kCartesian);
  EXPECT_EQ(w.MS1().TextMatrix(0, 0), "X");
  EXPECT_EQ(w.lblPointtab().ForeColor, 0u);
}

TEST_F(DrawTest, TheTableRefusesKOutsideTheCartesianType) {
  auto& w = Make();
  w.optFunk(kParametric);
  w.SettxtY("SinK");
  w.FillValueTable(-1, 1);
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].title, "Error Calculating Values");
  EXPECT_EQ(w.MS1().Rows(), 2);
}

TEST_F(DrawTest, RandomColoursGiveEachDrawItsOwnColour) {
  auto& w = Make();
  f.settings.Store(keys::kGrid, keys::grid::kRnd, "1");
  Enter("X/2");
  const Colour first = w.Pen().Graph_Clr();
  EXPECT_EQ(w.lblPointtab().ForeColor, first);
  EXPECT_EQ(f.surface.LinesIn(first).size(), 600u);
  Enter("X/3");
  EXPECT_NE(w.Pen().Graph_Clr(), first);
  EXPECT_EQ(w.Pen().lblBoja(), kGraph);  // the label keeps the set colour
}

// Rnd is read from the store at each draw, so a change made through one
// window shows in another at its next draw.
TEST_F(DrawTest, RndChangedElsewhereAppliesAtTheNextDraw) {
  auto& w = Make();
  WindowFixture other;
  other.Make();
  Enter("X/2");
  EXPECT_EQ(w.Pen().Graph_Clr(), kGraph);
  other.settings.Store(keys::kGrid, keys::grid::kRnd, "1");  // another window's store: not this one
  Enter("X/2");
  EXPECT_EQ(w.Pen().Graph_Clr(), kGraph);
  f.settings.Store(keys::kGrid, keys::grid::kRnd, "1");  // the shared store
  Enter("X/2");
  EXPECT_NE(w.Pen().Graph_Clr(), kGraph);
}

TEST_F(DrawTest, LineWidthInputBox) {
  auto& w = Make();
  f.input.Answer(std::string("abc"));
  f.input.Answer(std::string("0"));
  f.input.Answer(std::string("1.6"));
  w.mnuPlotWidth();
  ASSERT_EQ(f.input.AskedBoxes().size(), 3u);
  EXPECT_EQ(f.input.AskedBoxes()[0].title, "Graph-Line Width");
  EXPECT_EQ(f.input.AskedBoxes()[0].prompt, "Enter value for Graph-Line Width (e.g. 1, 1.6 ...).");
  EXPECT_EQ(f.input.AskedBoxes()[2].defaultText, "1");
  ASSERT_EQ(f.messages.Boxes().size(), 2u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Invalid input: Line width = abc.");
  EXPECT_EQ(f.messages.Boxes()[1].text, "Invalid input: Line width = 0.");
  EXPECT_EQ(w.Pen().GraphLineWidth(), 1.6);
  Enter("X/2");
  EXPECT_EQ(Curve().front().width, 2);
  f.input.Answer(std::string());
  w.mnuPlotWidth();  // empty cancels
  EXPECT_EQ(w.Pen().GraphLineWidth(), 1.6);
}

TEST_F(DrawTest, ANonPositiveWidthBecomesOneBeforeADraw) {
  auto& w = Make();
  w.SetGraphLineWidth(-3);
  Enter("X/2");
  EXPECT_EQ(w.Pen().GraphLineWidth(), 1);
}

// ---- Tangent and normal records -----------------------------------------------------------------------

TEST_F(DrawTest, TangentRecordFromTheRequestFields) {
  auto& w = Make();
  w.SetTangentRequest(TangentRequest::Cartesian(false, "1", "2", "X^2"));
  Enter("2*x-1");
  EXPECT_NE(History().find("\n Tangent for Y = X^2\n X = 1; Y = 1\n Slope: 2\n Tangent Line: 2*x-1\n"),
            std::string::npos)
      << History();
  EXPECT_FALSE(w.Tangent().Tngenta());  // cleared at the end of the draw
}

TEST_F(DrawTest, NormalRecord) {
  auto& w = Make();
  w.SetTangentRequest(TangentRequest::Cartesian(true, "2", "-0.25", "X^2"));
  Enter("-0.25*x + 4.5");
  EXPECT_NE(
      History().find("\n Normal for Y = X^2\n X = 2; Y = 4\n Slope: -0.25\n Normal Line: -0.25*x+4.5\n"),
      std::string::npos)
      << History();
  EXPECT_FALSE(w.Tangent().Normalka());
}

TEST_F(DrawTest, ParametricTangentRecord) {
  auto& w = Make();
  w.SetTangentRequest(TangentRequest::Parametric(false, "1", "SinK", "CosK", "SinK ; CosK"));
  Enter("-0.6421*x+1.1884");
  EXPECT_NE(History().find("\n Tangent for Parametric Function: \n Y = SinK\n X = CosK\n K = 1\n"
                           " X = 0.5403; Y = 0.8415\n Tangent Line: Y = -0.6421*x+1.1884; X = K\n"),
            std::string::npos)
      << History();
}

}  // namespace
}  // namespace velmora::graph

namespace velmora::graph {
namespace {

TEST_F(DrawTest, AnExceptionInTheMiddleOfADrawLeavesTheWindowUsable) {
  auto& w = Make();
  f.host.onPump = [](int pumps) {
    if (pumps == 50) throw std::runtime_error("a fault the loop does not trap");
  };
  EXPECT_THROW(Enter("SinX"), std::runtime_error);
  EXPECT_FALSE(w.State().Drawing());
  f.host.onPump = nullptr;
  // Every command works again: a zoom repaints, a draw draws.
  w.mnuzoomin();
  EXPECT_EQ(w.View().Zoom(), 50);
  Enter("SinX");
  EXPECT_FALSE(Curve().empty());
  EXPECT_EQ(w.State().KolkoFunkc(), 1);
}

}  // namespace
}  // namespace velmora::graph
