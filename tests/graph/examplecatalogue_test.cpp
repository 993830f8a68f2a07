// The Examples menu: every entry loads into a graph window on the program's
// own formula engine, draws, and leaves the boxes, type, list and zoom it
// states.
#include "graph/examplecatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "tests/graph/windowfixture.h"

namespace velmora::graph {
namespace {

using testing::RecordingSurface;

std::string WithoutBlanks(std::string_view text) {
  std::string out;
  for (char c : text) {
    if (c != ' ') out += c;
  }
  return out;
}

struct EngineWindow {
  EngineWindow() {
    GraphServices services = StandardServices(settings, messages, input);
    window = std::make_unique<GraphWindow>(surface, std::move(services));
  }
  RecordingSurface surface{600, 400};
  velmora::testing::FakeSettingsStore settings;
  testing::RecordingMessageBox messages;
  testing::ScriptedInputBox input;
  std::unique_ptr<GraphWindow> window;
};

const ExampleSubmenu& Menu(std::string_view array) {
  for (const auto& menu : ExampleMenus()) {
    if (menu.array == array) return menu;
  }
  throw std::runtime_error("no menu " + std::string(array));
}

TEST(ExampleCatalogue, SevenSubmenusInOrderWithTheirCountsAndTypes) {
  struct Row {
    std::string_view caption;
    std::string_view array;
    int type;
    std::size_t entries;
  };
  const Row rows[] = {
      {"&Common Functions", "mnuComon", kCartesian, 25},        // caption is the function
      {"&Predefined Functions 1", "mnuPred", kCartesian, 12},   // powers as short names
      {"P&redefined Functions 2", "mnuPred2", kCartesian, 22},  // 16 formulas, 6 named loaders
      {"&Use of ^", "mnuPow", kCartesian, 18},
      {"P&arametric Functions 1", "mnupf1", kParametric, 22},
      {"Para&metric Functions 2", "mnupf2", kParametric, 22},  // 16 named, 6 by Paramed
      {"P&olar Functions", "mnuPolar", kPolar, 18},
  };
  const auto menus = ExampleMenus();
  ASSERT_EQ(menus.size(), std::size(rows));
  for (std::size_t i = 0; i < menus.size(); ++i) {
    SCOPED_TRACE(rows[i].array);
    EXPECT_EQ(menus[i].caption, rows[i].caption);
    EXPECT_EQ(menus[i].array, rows[i].array);
    EXPECT_EQ(menus[i].type, rows[i].type);
    EXPECT_EQ(menus[i].entries.size(), rows[i].entries);
    for (const auto& e : menus[i].entries) EXPECT_EQ(e.type, rows[i].type) << e.caption;
  }
}

TEST(ExampleCatalogue, CartesianCaptionsAreTheirFunctionsAsTheyStand) {
  for (std::string_view array : {"mnuComon", "mnuPred", "mnuPow"}) {
    for (const auto& e : Menu(array).entries) {
      EXPECT_EQ(e.y, e.caption);
      EXPECT_EQ(e.x, "K");
      EXPECT_EQ(e.loader, "");
    }
  }
  // Spot checks of the old spellings, which stay.
  EXPECT_EQ(Menu("mnuComon").entries[2].caption, "X + 2/X");
  EXPECT_EQ(Menu("mnuComon").entries[24].caption, "HAcos(X+1/X)");
  EXPECT_EQ(Menu("mnuPred2").entries[3].caption, "Exp(X) -X^(2/3)");
  EXPECT_EQ(Menu("mnuPred2").entries[15].caption, "AsinX/(SqrT(1-BinX))");
  EXPECT_EQ(Menu("mnupf1").entries[18].y, "cotanK*K");
}

TEST(ExampleCatalogue, NamedLoadersAndTheirTexts) {
  struct Row {
    std::string_view array;
    std::size_t index;
    std::string_view caption;
    std::string_view loader;
    std::string_view y;
    std::string_view x;
  };
  const Row rows[] = {
      {"mnuPred2", 16, "Blancmange", "Puding", "Blanc(x)", "K"},
      {"mnuPred2", 21, "Gamma Function", "GamaF", "Gamma(x)", "K"},
      {"mnupf1", 0, "Astroid", "asteorida", "4*(SinK)^3", "4*(CosK)^3"},
      {"mnupf1", 7, "Descartes", "Decart", "3*3*K/(1+CubK)", "3*3*BinK/(1+CubK)"},
      {"mnupf1", 21, "Leaf", "Lisce", "6*cosK", "3*sinK^3"},
      {"mnupf2", 13, "Strophoid (lower branch)", "Strofoide2", "-Sqr(BinK*(3+K)/(3-K))", "K"},
      {"mnupf2", 16, "Y = Sin(5K) ; X = Cos(3K)", "Paramed", "Sin(5*K)", "Cos(3*K)"},
      {"mnupf2", 21, "Y = 1-3CosK ; X = K-3SinK", "Paramed", "1-3*CosK", "K-3*SinK"},
      {"mnuPolar", 0, "1 + CosK", "polar1", "1+CosK", "K"},
      {"mnuPolar", 2, "4 * Sin(3*K) - 1", "Polar3", "2*Sin(3*K)-1", "K"},  // caption and text differ
      {"mnuPolar", 17, "Three-leaved Rose", "Polar3Rose", "4*Sin(3*K)", "K"},
  };
  for (const auto& r : rows) {
    const Example& e = Menu(r.array).entries[r.index];
    EXPECT_EQ(e.caption, r.caption);
    EXPECT_EQ(e.loader, r.loader);
    EXPECT_EQ(e.y, r.y);
    EXPECT_EQ(e.x, r.x);
  }
  // Six entries of the second parametric menu share Paramed.
  const auto& pf2 = Menu("mnupf2").entries;
  EXPECT_EQ(std::count_if(pf2.begin(), pf2.end(), [](const Example& e) { return e.loader == "Paramed"; }), 6);
}

TEST(ExampleCatalogue, FishIsFourCurvesPairByPair) {
  const Example& fish = Menu("mnupf1").entries[14];
  ASSERT_EQ(fish.loader, "Riba");
  const auto curves = ExampleCurves(fish);
  ASSERT_EQ(curves.size(), 4u);
  EXPECT_EQ(curves[0], (std::pair<std::string, std::string>{"stefK", "10^(cosK)-5"}));
  EXPECT_EQ(curves[1], (std::pair<std::string, std::string>{"CosK", "0.1*stef(K)+5"}));
  EXPECT_EQ(curves[3], (std::pair<std::string, std::string>{"Cos(K)+3", "0.5*Sin(K)+3"}));
}

// The zoom each entry leaves: its own fixed zoom or the window's 30.
double ZoomOf(const Example& e) {
  switch (e.view) {
    case ExampleView::ZumDec: return 8;
    case ExampleView::ZumStef: return 15;
    case ExampleView::ZumGama: return 44;
    case ExampleView::ZumPuding: return 177;
    case ExampleView::Keep: break;
  }
  return 30;
}

TEST(ExampleCatalogue, EveryEntryLoadsDrawsAndLeavesItsBoxes) {
  int entries = 0;
  for (const auto& menu : ExampleMenus()) {
    for (const auto& e : menu.entries) {
      SCOPED_TRACE(std::string(menu.array) + ": " + std::string(e.caption));
      EngineWindow w;
      w.surface.ClearOps();
      LoadExample(*w.window, e);
      ++entries;
      const GraphWindow& g = *w.window;
      const auto curves = ExampleCurves(e);
      EXPECT_TRUE(w.messages.Boxes().empty()) << w.messages.Boxes().front().text;
      EXPECT_EQ(g.Boxes().optFunkcije(), e.type);
      EXPECT_FALSE(g.Line1().Visible);
      EXPECT_FALSE(g.State().Drawing());
      EXPECT_TRUE(g.State().Plotted());
      // Each pair is one draw; the boxes hold the last pair, blanks removed.
      EXPECT_EQ(g.State().KolkoFunkc(), static_cast<int>(curves.size()));
      EXPECT_EQ(g.Boxes().txtY().Text, WithoutBlanks(curves.back().first));
      if (e.type == kParametric) {
        EXPECT_EQ(g.Boxes().txtX().Text, WithoutBlanks(curves.back().second));
      } else {
        EXPECT_EQ(g.Boxes().txtX().Text, "K");
      }
      // Every curve joins the list of txtY, once.
      std::set<std::string> distinct;
      for (const auto& c : curves) distinct.insert(WithoutBlanks(c.first));
      EXPECT_EQ(g.Boxes().txtY().List.size(), distinct.size());
      EXPECT_EQ(g.View().Zoom(), ZoomOf(e));
      EXPECT_EQ(g.View().zlevel(), ZoomOf(e));
      // Something was drawn in the plot colour.
      EXPECT_FALSE(w.surface.LinesIn(g.Pen().Graph_Clr()).empty());
    }
  }
  EXPECT_EQ(entries, 25 + 12 + 22 + 18 + 22 + 22 + 18);
}

TEST(ExampleCatalogue, DescartesMovesRightByItsOwnStepsWithoutAsking) {
  EngineWindow w;
  const Example& decart = Menu("mnupf1").entries[7];
  const double centre = w.window->View().CenterX();
  LoadExample(*w.window, decart);
  EXPECT_TRUE(w.input.AskedBoxes().empty());
  EXPECT_TRUE(w.window->View().MovedRight());
  EXPECT_DOUBLE_EQ(w.window->View().CenterX(), centre + 8 * 3);
  EXPECT_DOUBLE_EQ(w.window->View().MoveX(), 3);
  EXPECT_EQ(w.window->View().MovedText(), "Moved: R: 3");
  EXPECT_EQ(w.window->zoomMenu().Custom, "> Custom (8)");
  EXPECT_EQ(w.window->zoomMenu().Checked, 4);
}

TEST(ExampleCatalogue, LaterCurvesAddToTheListOfTheWindow) {
  EngineWindow w;
  LoadExample(*w.window, Menu("mnuComon").entries[0]);
  LoadExample(*w.window, Menu("mnuComon").entries[1]);
  EXPECT_EQ(w.window->State().KolkoFunkc(), 2);
  EXPECT_EQ(w.window->Boxes().txtY().List,
            (std::vector<std::string>{"(X^2)-1/(1-X)+1/X", "(X-2)*(X-4)/X^2"}));
}

}  // namespace
}  // namespace velmora::graph
