#include "graph/graphwindow.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/settingskeys.h"
#include "tests/graph/windowfixture.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

using testing::BracketedNumber;
using testing::RecordingSurface;
using testing::WindowFixture;

TEST(GraphWindowLoad, DefaultsOfANewWindow) {
  WindowFixture f(600, 400);
  auto& w = f.Make();
  EXPECT_EQ(w.View().Zoom(), 30);
  EXPECT_EQ(w.View().zlevel(), 30);
  EXPECT_EQ(w.lblzm().Caption, "30");
  EXPECT_EQ(w.View().CenterX(), 300);
  EXPECT_EQ(w.View().CenterY(), 200);
  EXPECT_EQ(w.Pen().Graph_Clr(), 0xC08000u);
  EXPECT_EQ(w.Pen().GridColor(), 0xBFBFBFu);
  EXPECT_EQ(w.Pen().AxesColor(), 0u);
  EXPECT_EQ(w.Pen().AvBoja(), 255u);
  EXPECT_EQ(f.surface.BackColor(), 0xF5F5F5u);
  EXPECT_EQ(w.lblPerCent().BackColor, 0xDFDFDFu);
  EXPECT_FALSE(w.lblPerCent().Visible);
  EXPECT_EQ(w.View().MovedText(), "Moved:");
  EXPECT_EQ(w.State().KolkoFunkc(), 0);
  EXPECT_FALSE(w.State().Drawing());
  EXPECT_FALSE(w.State().Plotted());
  EXPECT_FALSE(w.State().Zezaj());
  EXPECT_EQ(w.Boxes().optFunkcije(), kCartesian);
  EXPECT_EQ(w.Boxes().labY().Caption, "Y (X) =");
  EXPECT_EQ(w.Boxes().txtX().Text, "K");
  EXPECT_FALSE(w.Boxes().txtX().Visible);
  EXPECT_EQ(w.lblPointtab().Caption, "Value Tables:");
  EXPECT_EQ(w.MS1().TabLines(), (std::vector<std::string>{"X\tY\tY'", "\t\t"}));
  // The paper is on the surface.
  EXPECT_EQ(f.surface.Ops().front().kind, RecordingSurface::Kind::Clear);
  EXPECT_EQ(f.surface.LinesIn(0).size(), 2u);
}

TEST(GraphWindowLoad, ColoursComeFromTheSettings) {
  WindowFixture f;
  f.settings.Store(keys::kBoje, keys::boje::kPozadina, "255");
  f.settings.Store(keys::kBoje, keys::boje::kGrafik, "65280");
  f.settings.Store(keys::kBoje, keys::boje::kGrid, "abc");  // a non-number reads 0
  f.settings.Store(keys::kBoje, keys::boje::kOse, "16711680");
  auto& w = f.Make();
  EXPECT_EQ(f.surface.BackColor(), 255u);
  EXPECT_EQ(w.Pen().Graph_Clr(), 65280u);
  EXPECT_EQ(w.Pen().lblBoja(), 65280u);
  EXPECT_EQ(w.Pen().GridColor(), 0u);
  EXPECT_EQ(w.Pen().AxesColor(), 16711680u);
}

struct TypeCase {
  int type;
  const char* caption;
  bool xVisible;
};

class OptFunkTest : public ::testing::TestWithParam<TypeCase> {};

TEST_P(OptFunkTest, CaptionsAndTheXBox) {
  WindowFixture f;
  auto& w = f.Make();
  w.SettxtX("CosK");
  w.optFunk(GetParam().type);
  EXPECT_EQ(w.Boxes().optFunkcije(), GetParam().type);
  EXPECT_EQ(w.Boxes().labY().Caption, GetParam().caption);
  EXPECT_EQ(w.Boxes().txtX().Visible, GetParam().xVisible);
  EXPECT_EQ(w.Boxes().LABx().Visible, GetParam().xVisible);
  EXPECT_EQ(w.Boxes().txtX().Text, GetParam().xVisible ? "CosK" : "K");
  EXPECT_EQ(f.host.types.back(), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(Types, OptFunkTest,
                         ::testing::Values(TypeCase{1, "Y (X) =", false}, TypeCase{2, "Y (K) =", true},
                                           TypeCase{3, "R (K) =", false}));

struct PodeliCase {
  const char* line;
  const char* y;
  const char* x;
  int type;
};

class PodeliFjeTest : public ::testing::TestWithParam<PodeliCase> {};

TEST_P(PodeliFjeTest, SplitsARecentLine) {
  WindowFixture f;
  auto& w = f.Make();
  w.PodeliFje(GetParam().line);
  EXPECT_EQ(w.Boxes().txtY().Text, GetParam().y);
  EXPECT_EQ(w.Boxes().txtX().Text, GetParam().x);
  EXPECT_EQ(w.Boxes().optFunkcije(), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(Lines, PodeliFjeTest,
                         ::testing::Values(PodeliCase{"SinX ; K | Cartesian", "SinX ", "K",
                                                      1},  // last letter n
                                           PodeliCase{"SinK ; CosK | Parametric", "SinK ", " CosK ",
                                                      2},  // c: the X text as it stands
                                           PodeliCase{"1+CosK ; K | Polar", "1+CosK ", "K", 3},  // r
                                           PodeliCase{"no separators", "", "K", 1}));  // not a recent line

TEST(GraphWindow, FSubstitutesKInUpperCaseAndPopsAll) {
  WindowFixture f;
  auto& w =
      f.Make([](std::string_view formula) -> std::optional<double> { return BracketedNumber(formula) * 2; });
  f.engine->ClearSent();
  EXPECT_EQ(w.EvaluateAt("sinK+k", -0.5), -1);
  EXPECT_EQ(f.engine->Sent(), (std::vector<std::string>{"SIN(-0.5)+(-0.5)", "PopAll()"}));
}

TEST(GraphWindow, AFailedEvaluationGivesZero) {
  WindowFixture f;
  auto& w = f.Make();  // the engine faults on everything
  EXPECT_EQ(w.EvaluateAt("LN(K)", -1), 0);
  EXPECT_EQ(w.EvaluateXAt("K*Y", 1, 2), 0);
}

TEST(GraphWindow, F2PutsInKThenY) {
  WindowFixture f;
  auto& w = f.Make([](std::string_view) -> std::optional<double> { return 7; });
  f.engine->ClearSent();
  EXPECT_EQ(w.EvaluateXAt("k+Y*2", 1.5, -2.25), 7);
  EXPECT_EQ(f.engine->Sent(), (std::vector<std::string>{"(1.5)+(-2.25)*2", "PopAll()"}));
}

TEST(GraphWindow, CartesianXIsKItself) {
  WindowFixture f;
  auto& w = f.Make();
  f.engine->ClearSent();
  EXPECT_EQ(w.EvaluateXAt("K", -9.966, 3), -9.966);
  EXPECT_TRUE(f.engine->Sent().empty());
}

TEST(GraphWindow, ClearGraphWholeEmptiesTheBoxesAndTheTable) {
  WindowFixture f;
  auto& w = f.Make();
  w.optFunk(kParametric);
  w.SettxtY("SinK");
  w.SettxtX("CosK");
  w.CrtajFJU();  // the scripted engine draws nothing, but the lists grow
  w.optFunk(kCartesian);
  w.SettxtY("X^2");
  w.CrtajFJU();
  ASSERT_EQ(w.Boxes().cmbR3().List, (std::vector<std::string>{"SinK"}));
  ASSERT_EQ(w.State().KolkoFunkc(), 2);
  w.ShowLine(OverlayLine::LineY, LineControl{0, 1, 2, 1, true});
  f.surface.ClearOps();
  w.ClearGraph(true);
  EXPECT_EQ(w.Boxes().txtY().Text, "");
  EXPECT_TRUE(w.Boxes().txtY().List.empty());
  EXPECT_TRUE(w.Boxes().cmbR3().List.empty());
  EXPECT_EQ(w.State().KolkoFunkc(), 0);
  EXPECT_EQ(w.Boxes().optFunkcije(), kCartesian);
  EXPECT_EQ(w.Boxes().txtX().Text, "K");
  EXPECT_FALSE(w.Boxes().txtX().Visible);
  EXPECT_EQ(w.Boxes().lblxy().Caption, "Y (X) =");
  EXPECT_EQ(w.lblPointtab().Caption, "Value Tables:");
  EXPECT_EQ(w.MS1().Rows(), 2);
  EXPECT_FALSE(w.LineY().Visible);
  EXPECT_EQ(f.surface.Ops().front().kind, RecordingSurface::Kind::Clear);
  EXPECT_FALSE(f.surface.Lines().empty());  // the grid again
}

TEST(GraphWindow, ClearGraphPartKeepsTheListsAndDuringADrawNoGrid) {
  WindowFixture f;
  auto& w = f.Make();
  w.SettxtY("X");
  w.CrtajFJU();
  {
    const DrawingGuard busy = w.Busy();
    f.surface.ClearOps();
    w.ClearGraph(false);
    EXPECT_EQ(w.Boxes().txtY().Text, "X");
    EXPECT_EQ(w.State().KolkoFunkc(), 1);
    ASSERT_EQ(f.surface.Ops().size(), 1u);  // cleared, and no grid while drawing
  }
  f.surface.ClearOps();
  w.Clearwith();
  EXPECT_EQ(f.surface.Ops().size(), 1u);
  w.Redraw();
  EXPECT_GT(f.surface.Lines().size(), 2u);
}

TEST(GraphWindow, FieldsForTheEvaluatorAndThePenRoutines) {
  WindowFixture f;
  auto& w = f.Make();
  w.SetFraction({.txtImenilac = "3", .txtY3 = "1", .txtY2 = "2", .lblY3 = "OK"});
  expr::GraphFields& fields = w;
  EXPECT_EQ(fields.TxtImenilac(), "3");
  EXPECT_EQ(fields.TxtY3(), "1");
  EXPECT_EQ(fields.TxtY2(), "2");
  EXPECT_EQ(fields.LblY3(), "OK");
  fields.Boje2();
  EXPECT_EQ(w.Pen().Graph_Clr(), f.surface.BackColor());
  fields.Boje3();
  EXPECT_EQ(w.Pen().Graph_Clr(), w.Pen().lblBoja());
}

TEST(GraphWindow, StatusCaptionByType) {
  WindowFixture f;
  auto& w = f.Make();
  w.SettxtY("SinX");
  EXPECT_EQ(w.StatusCaption(), "Y (X) = SinX");
  w.optFunk(kParametric);
  w.SettxtX("CosK");
  EXPECT_EQ(w.StatusCaption(), "Y (K) = SinX ; X (K) = CosK");
  w.optFunk(kPolar);
  EXPECT_EQ(w.StatusCaption(), "R (K) = SinX");
}

TEST(ComboBox, ARepeatedItemStandsOnceAtItsFirstPlace) {
  ComboBox box;
  box.AddItemNoDuplicates("a");
  box.AddItemNoDuplicates("b");
  box.AddItemNoDuplicates("a");
  box.AddItemNoDuplicates("A");
  EXPECT_EQ(box.List, (std::vector<std::string>{"a", "b", "A"}));
}

}  // namespace
}  // namespace velmora::graph
