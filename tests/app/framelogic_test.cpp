// The frame's logic without widgets: menu states, the toolbar layout in the
// settings, the status panels and window titles.
#include <gtest/gtest.h>

#include "app/menustate.h"
#include "app/statuspanels.h"
#include "app/toolbarlayout.h"
#include "tests/graph/windowfixture.h"
#include "tests/support/fakesettingsstore.h"

namespace velmora::app {
namespace {

TEST(MenuState, EnableRules) {
  struct Case {
    EnableRule rule;
    int windows;
    bool active;
    bool helpFile;
    bool enabled;
  };
  const Case cases[] = {
      {EnableRule::Always, 0, false, false, true},        // New with no window
      {EnableRule::NeedsWindow, 0, false, false, false},  // nothing open
      {EnableRule::NeedsWindow, 1, true, false, true},    // a window is active
      {EnableRule::NeedsWindow, 2, false, false, false},  // open but none active
      {EnableRule::NotBuilt, 3, true, true, false},       // a later version's tool
      {EnableRule::HelpFile, 1, true, false, false},      // no help file
      {EnableRule::HelpFile, 0, false, true, true},       // help file present
  };
  for (const auto& c : cases) {
    FrameView view;
    view.windowCount = c.windows;
    view.hasActive = c.active;
    view.helpFile = c.helpFile;
    EXPECT_EQ(IsEnabled(c.rule, view), c.enabled) << static_cast<int>(c.rule) << " " << c.windows;
  }
}

// The history's MathPad entries: a window to read and MathPad to write to.
TEST(MenuState, NeedsMathPadWantsAnActiveWindowAndMathPad) {
  struct Case {
    bool active;
    bool mathPad;
    bool enabled;
  };
  for (const Case c : {Case{true, true, true}, Case{true, false, false}, Case{false, true, false}}) {
    FrameView view;
    view.windowCount = c.active ? 1 : 0;
    view.hasActive = c.active;
    view.mathPad = c.mathPad;
    EXPECT_EQ(IsEnabled(EnableRule::NeedsMathPad, view), c.enabled) << c.active << c.mathPad;
  }
}

TEST(MenuState, ChecksFollowTheBandsTheTypeAndTheZoomOfTheActiveWindow) {
  FrameView view;
  view.windowCount = 1;
  view.hasActive = true;
  view.bands = {true, false, false, true};
  view.functionType = 3;
  view.zoom.Checked = 4;
  EXPECT_TRUE(IsChecked(CheckRule::Band, 1, view));
  EXPECT_FALSE(IsChecked(CheckRule::Band, 2, view));
  EXPECT_TRUE(IsChecked(CheckRule::Band, 4, view));
  EXPECT_FALSE(IsChecked(CheckRule::Band, 5, view));
  EXPECT_TRUE(IsChecked(CheckRule::Type, 3, view));
  EXPECT_FALSE(IsChecked(CheckRule::Type, 1, view));
  EXPECT_TRUE(IsChecked(CheckRule::Zoom, 4, view));
  EXPECT_FALSE(IsChecked(CheckRule::Zoom, 2, view));
  EXPECT_FALSE(IsChecked(CheckRule::None, 0, view));
  view.hasActive = false;  // no window: no type or zoom marked
  EXPECT_FALSE(IsChecked(CheckRule::Type, 3, view));
  EXPECT_FALSE(IsChecked(CheckRule::Zoom, 4, view));
}

TEST(MenuState, ZoomDropDownTexts) {
  graph::ZoomMenu zoom;
  zoom.ZoomIn = "> Zoom&In (50)";
  zoom.Custom = "&Custom...";
  EXPECT_EQ(ZoomMenuText(0, zoom), "> Zoom&In (50)");
  EXPECT_EQ(ZoomMenuText(1, zoom), "Zoom&Out");
  EXPECT_EQ(ZoomMenuText(2, zoom), "> &Default (30)");
  EXPECT_EQ(ZoomMenuText(4, zoom), "&Custom...");
  EXPECT_EQ(ZoomMenuText(3, zoom), "");
}

TEST(ToolbarLayout, AnEmptyStoreGivesTheDefaultLayout) {
  velmora::testing::FakeSettingsStore store;
  const ToolbarLayout layout = LoadToolbars(store);
  EXPECT_EQ(layout.rows, 1);
  EXPECT_EQ(layout.visible, (std::array<bool, 4>{true, true, false, true}));  // band 3 hidden
  EXPECT_EQ(layout.widthTwips, (std::array<int, 4>{1695, 3600, 1000, 2340}));
}

TEST(ToolbarLayout, StoredValuesAreRead) {
  struct Case {
    std::string_view value;
    bool band1;
  };
  const Case cases[] = {
      {"False", false},                    // as written
      {"True", true},   {"false", false},  // any case
      {"0", false},                        // a number
      {"-1", true},     {"maybe", true},   // no truth value: the default stays
  };
  for (const auto& c : cases) {
    velmora::testing::FakeSettingsStore store;
    store.Store("TB", "TB1", c.value);
    EXPECT_EQ(LoadToolbars(store).visible[0], c.band1) << c.value;
  }
  velmora::testing::FakeSettingsStore store;
  store.Store("TB", "Rows", "2");
  store.Store("TB", "TB3", "True");
  store.Store("TBW", "TB2", "4500");
  const ToolbarLayout layout = LoadToolbars(store);
  EXPECT_EQ(layout.rows, 2);
  EXPECT_TRUE(layout.visible[2]);
  EXPECT_EQ(layout.widthTwips[1], 4500);
}

TEST(ToolbarLayout, SaveWritesEveryKeyAndReadsBack) {
  velmora::testing::FakeSettingsStore store;
  ToolbarLayout layout;
  layout.rows = 2;
  layout.visible = {false, true, true, false};
  layout.widthTwips = {1500, 3000, 900, 2000};
  SaveToolbars(store, layout);
  EXPECT_EQ(store.Query("TB", "Rows"), "2");
  EXPECT_EQ(store.Query("TB", "TB1"), "False");
  EXPECT_EQ(store.Query("TB", "TB3"), "True");
  EXPECT_EQ(store.Query("TBW", "TB4"), "2000");
  const ToolbarLayout back = LoadToolbars(store);
  EXPECT_EQ(back.rows, 2);
  EXPECT_EQ(back.visible, layout.visible);
  EXPECT_EQ(back.widthTwips, layout.widthTwips);
}

TEST(ToolbarLayout, TwipsAndPixels) {
  EXPECT_EQ(TwipsToPixels(1695), 113);
  EXPECT_EQ(TwipsToPixels(3600), 240);
  EXPECT_EQ(PixelsToTwips(240), 3600);
}

TEST(StatusPanels, NoWindowShowsHashInAllFour) {
  EXPECT_EQ(StatusPanels(0, nullptr, "Moved:"), (StatusTexts{"#", "#", "#", "#"}));
}

TEST(StatusPanels, CaptionZoomTextAndTotal) {
  testing::WindowFixture f;
  auto& w = f.Make();
  w.SettxtY("SinX");
  EXPECT_EQ(StatusPanels(3, &w, "Moved:"), (StatusTexts{"Y (X) = SinX", "Zoom: 30", "Moved:", "Total: 3"}));
  w.optFunk(graph::kParametric);
  w.SettxtY("SinK");
  w.SettxtX("CosK");
  EXPECT_EQ(StatusPanels(1, &w, "")[0], "Y (K) = SinK ; X (K) = CosK");
  w.optFunk(graph::kPolar);
  w.ZumPuding();  // a zoom of 177 shown in the status bar
  const auto panels = StatusPanels(1, &w, "");
  EXPECT_EQ(panels[0], "R (K) = SinK");
  EXPECT_EQ(panels[1], "Zoom: 177");
}

TEST(StatusPanels, WindowTitleIsTheTagUntilAFunctionIsTyped) {
  testing::WindowFixture f;
  auto& w = f.Make();
  EXPECT_EQ(WindowTitle("Graph 1", w), "Graph 1");
  w.SettxtY("SinX");
  EXPECT_EQ(WindowTitle("Graph 1", w), "Graph 1 - Y (X) = SinX");
}

}  // namespace
}  // namespace velmora::app
