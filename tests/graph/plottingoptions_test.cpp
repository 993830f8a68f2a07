// Plotting Options without widgets: load, the clicks, Reset and Apply on the
// section Grid and the active window.
#include "graph/plottingoptions.h"

#include <gtest/gtest.h>

#include <string>

#include "graph/graphwindow.h"
#include "platform/settingskeys.h"
#include "tests/graph/windowfixture.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

using testing::RecordingSurface;
using testing::WindowFixture;

TEST(PlottingOptions, TheTablesHoldTheCaptionsAndKeys) {
  const auto texts = PlottingOptions::TextBoxes();
  ASSERT_EQ(texts.size(), 4u);
  EXPECT_EQ(texts[PlottingOptions::kTxtX1].key, "ScaleX1");
  EXPECT_EQ(texts[PlottingOptions::kTxtY].caption, "Y:");
  const auto checks = PlottingOptions::CheckBoxes();
  ASSERT_EQ(checks.size(), 13u);
  EXPECT_EQ(checks[1].caption, "&Assign axes ");
  EXPECT_EQ(checks[9].caption, "&Use grid color for axes numbres");
  EXPECT_EQ(checks[12].caption, "Draw graph  &frame while Copy/Print");
  EXPECT_FALSE(checks[6].visible);   // Check7, PolarP
  EXPECT_FALSE(checks[10].visible);  // Check11, Trigo
  EXPECT_EQ(PlottingOptions::PaperCaptions()[2], "&Trig");
}

TEST(PlottingOptions, AnEmptyStoreLoadsTheDialogsDefaults) {
  velmora::testing::FakeSettingsStore settings;
  PlottingOptions o;
  o.Load(settings);
  for (const auto& text : o.texts) EXPECT_EQ(text, "1");
  for (int n = 1; n <= PlottingOptions::kChecks; ++n) {
    // Only AutoRedraw is on; BrojBoja reads 0 here (1 in the window).
    EXPECT_EQ(o.Check(n), n == 6) << "Check" << n;
  }
  EXPECT_EQ(o.Option2, 0);
  EXPECT_TRUE(o.txtX1Enabled);
  EXPECT_TRUE(o.Check3Enabled);
}

struct LoadCase {
  const char* key;
  const char* stored;
  int check;
  bool on;
};

class LoadTest : public ::testing::TestWithParam<LoadCase> {};

TEST_P(LoadTest, ACheckTakesTheAbsoluteValueOfItsKey) {
  const LoadCase& c = GetParam();
  velmora::testing::FakeSettingsStore settings;
  settings.Store(keys::kGrid, c.key, c.stored);
  PlottingOptions o;
  o.Load(settings);
  EXPECT_EQ(o.Check(c.check), c.on);
}

INSTANTIATE_TEST_SUITE_P(Keys, LoadTest,
                         ::testing::Values(LoadCase{"Axes", "1", 1, true},       // hide grid
                                           LoadCase{"Ozna", "-1", 2, true},      // absolute value
                                           LoadCase{"Autored", "0", 6, false},   // stored off
                                           LoadCase{"BrojBoja", "1", 10, true},  // stored on
                                           LoadCase{"Ram", "abc", 13, false},    // no number: 0
                                           LoadCase{"Trigo", "1", 11, true},     // hidden, kept
                                           LoadCase{"PolarP", "2", 7, true}));

TEST(PlottingOptions, StoredTextsLoadAsTheyStand) {
  velmora::testing::FakeSettingsStore settings;
  settings.Store(keys::kGrid, keys::grid::kScaleX, "0.5");
  settings.Store(keys::kGrid, keys::grid::kScaleY1, "abc");
  PlottingOptions o;
  o.Load(settings);
  EXPECT_EQ(o.texts[PlottingOptions::kTxtX], "0.5");
  EXPECT_EQ(o.texts[PlottingOptions::kTxtY1], "abc");
}

TEST(PlottingOptions, ThePaperTypeHasNoKeyAndTheHiddenChecksKeepTheirs) {
  velmora::testing::FakeSettingsStore settings;
  settings.Store(keys::kGrid, keys::grid::kPolarP, "1");
  PlottingOptions o;
  o.Load(settings);
  EXPECT_EQ(o.Option2, 0);
  EXPECT_TRUE(o.Check(7));
}

TEST(PlottingOptions, HideGridDisablesTheScaleNoteAndTicks) {
  velmora::testing::FakeSettingsStore settings;
  settings.Store(keys::kGrid, keys::grid::kAxes, "1");
  PlottingOptions o;
  o.Load(settings);
  EXPECT_FALSE(o.txtX1Enabled);
  EXPECT_FALSE(o.txtY1Enabled);
  EXPECT_FALSE(o.Check3Enabled);
  o.SetCheck(1, false);
  o.Check1Click();
  EXPECT_TRUE(o.txtX1Enabled);
  EXPECT_TRUE(o.txtY1Enabled);
  EXPECT_TRUE(o.Check3Enabled);
}

struct PaperCase {
  int index;
  bool polar;
  bool trig;
};

class PaperTest : public ::testing::TestWithParam<PaperCase> {};

TEST_P(PaperTest, APaperTypeSetsTheHiddenChecks) {
  const PaperCase& c = GetParam();
  PlottingOptions o;
  o.SetCheck(7, true);
  o.SetCheck(11, true);
  o.Option2Click(c.index);
  EXPECT_EQ(o.Option2, c.index);
  EXPECT_EQ(o.Check(7), c.polar);
  EXPECT_EQ(o.Check(11), c.trig);
}

INSTANTIATE_TEST_SUITE_P(Types, PaperTest,
                         ::testing::Values(PaperCase{0, false, false},   // Standard
                                           PaperCase{1, true, false},    // Polar
                                           PaperCase{2, false, true}));  // Trig

TEST(PlottingOptions, ResetChangesTheControlsOnly) {
  velmora::testing::FakeSettingsStore settings;
  settings.Store(keys::kGrid, keys::grid::kScaleX, "2");
  settings.Store(keys::kGrid, keys::grid::kDash, "1");
  PlottingOptions o;
  o.Load(settings);
  o.Option2Click(2);
  o.Reset();
  for (const auto& text : o.texts) EXPECT_EQ(text, "1");
  for (int n = 1; n <= PlottingOptions::kChecks; ++n) EXPECT_FALSE(o.Check(n)) << "Check" << n;
  EXPECT_EQ(o.Option2, 0);
  EXPECT_EQ(settings.Query(keys::kGrid, keys::grid::kScaleX), std::optional<std::string>("2"));
  EXPECT_EQ(settings.Query(keys::kGrid, keys::grid::kDash), std::optional<std::string>("1"));
}

class ApplyTest : public ::testing::Test {
 protected:
  GraphWindow& Window() { return f.window ? *f.window : f.Make(); }
  WindowFixture f;
};

TEST_F(ApplyTest, ResetThenApplyWritesEveryKeyAndAsksBeforeErasing) {
  GraphWindow& w = Window();
  PlottingOptions o;
  o.Load(f.settings);
  o.Reset();
  f.messages.Answer(platform::MsgResult::Ok);
  f.surface.ClearOps();
  o.Apply(f.settings, f.messages, &w);
  const std::pair<const char*, const char*> kWritten[] = {
      {"ScaleX", "1"}, {"ScaleY", "1"},   {"ScaleX1", "1"}, {"ScaleY1", "1"}, {"Axes", "0"},   {"Ozna", "0"},
      {"Crte", "0"},   {"Skala", "0"},    {"Rnd", "0"},     {"Autored", "0"}, {"PolarP", "0"}, {"BrojX", "0"},
      {"BrojY", "0"},  {"BrojBoja", "0"}, {"Trigo", "0"},   {"Dash", "0"},    {"Ram", "0"},
  };
  for (const auto& [key, value] : kWritten)
    EXPECT_EQ(f.settings.Query(keys::kGrid, key), std::optional<std::string>(value)) << key;
  // AutoRedraw is now off: the question, then the empty paper.
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  const auto& box = f.messages.Boxes()[0];
  EXPECT_EQ(box.text, "AutoRedraw options not selected. Your current graphs will be erased.\r\nContinue?");
  EXPECT_EQ(box.title, "Plotting Options");
  EXPECT_EQ(box.icon, platform::MsgIcon::Critical);
  EXPECT_EQ(box.buttons, platform::MsgButtons::OkCancel);
  ASSERT_FALSE(f.surface.Ops().empty());
  EXPECT_EQ(f.surface.Ops()[0].kind, RecordingSurface::Kind::Clear);
  EXPECT_FALSE(f.surface.Lines().empty());
  EXPECT_TRUE(w.pDraw().FontTransparent());
}

TEST_F(ApplyTest, CancelOfTheQuestionLeavesThePicture) {
  GraphWindow& w = Window();
  PlottingOptions o;
  o.Load(f.settings);
  o.SetCheck(6, false);
  f.messages.Answer(platform::MsgResult::Cancel);
  f.surface.ClearOps();
  o.Apply(f.settings, f.messages, &w);
  EXPECT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_TRUE(f.surface.Ops().empty());
  // The keys are written all the same.
  EXPECT_EQ(f.settings.Query(keys::kGrid, keys::grid::kAutored), std::optional<std::string>("0"));
}

TEST_F(ApplyTest, WithAutoRedrawTheFunctionsComeBackWithoutAQuestion) {
  GraphWindow& w = Window();
  testing::HoldFunctions(w, {"X"});
  PlottingOptions o;
  o.Load(f.settings);
  o.texts[PlottingOptions::kTxtX] = "2";
  f.surface.ClearOps();
  o.Apply(f.settings, f.messages, &w);
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_EQ(f.settings.Query(keys::kGrid, keys::grid::kScaleX), std::optional<std::string>("2"));
  EXPECT_EQ(f.surface.Ops()[0].kind, RecordingSurface::Kind::Clear);
  // RedrawFunc replayed the list: "X" is in the box again.
  EXPECT_EQ(w.Boxes().txtY().Text, "X");
  EXPECT_EQ(w.State().KolkoFunkc(), 1);
}

TEST_F(ApplyTest, AssignAxesTicksTheWindowsTransparentBox) {
  GraphWindow& w = Window();
  PlottingOptions o;
  o.Load(f.settings);
  o.SetCheck(2, true);
  o.Check2Click(&w);
  EXPECT_TRUE(w.Check1());
  EXPECT_TRUE(w.pDraw().FontTransparent());
  o.SetCheck(2, false);
  o.Check2Click(&w);
  EXPECT_FALSE(w.Check1());
  EXPECT_FALSE(w.pDraw().FontTransparent());
  o.SetCheck(2, true);
  o.Apply(f.settings, f.messages, &w);
  EXPECT_TRUE(w.Check1());
}

TEST(PlottingOptions, ApplyWithoutAWindowWritesTheKeysOnly) {
  velmora::testing::FakeSettingsStore settings;
  testing::RecordingMessageBox messages;
  PlottingOptions o;
  o.Load(settings);
  o.SetCheck(6, false);
  o.Apply(settings, messages, nullptr);
  EXPECT_TRUE(messages.Boxes().empty());
  EXPECT_EQ(settings.Query(keys::kGrid, keys::grid::kAutored), std::optional<std::string>("0"));
}

struct KeyCase {
  char key;
  bool allowed;
};

class KeyFilter : public ::testing::TestWithParam<KeyCase> {};

TEST_P(KeyFilter, OfTheScaleNote) {
  EXPECT_EQ(PlottingOptions::ScaleNoteKeyAllowed(GetParam().key), GetParam().allowed);
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyFilter,
                         ::testing::Values(KeyCase{'0', true}, KeyCase{'9', true}, KeyCase{'.', true},
                                           KeyCase{'-', true}, KeyCase{'\b', true}, KeyCase{'a', false},
                                           KeyCase{' ', false}, KeyCase{',', false}, KeyCase{'E', false}));

}  // namespace
}  // namespace velmora::graph
