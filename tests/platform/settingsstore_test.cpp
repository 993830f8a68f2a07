#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>

#include "platform/memorysettingsstore.h"
#include "platform/settingskeys.h"
#include "tests/support/fakesettingsstore.h"

namespace velmora::platform {
namespace {

using velmora::testing::FakeSettingsStore;

// ---- The key table ----------------------------------------------------------

struct DefaultCase {
  const char* section;
  const char* name;
  const char* expected;
  SettingReader reader;
};

class DefaultsTest : public ::testing::TestWithParam<DefaultCase> {};

TEST_P(DefaultsTest, TableGivesTheDefault) {
  const auto& c = GetParam();
  EXPECT_EQ(DefaultOf(c.section, c.name, c.reader), c.expected);
  MemorySettingsStore empty;  // not the fake: the last row is a key outside the table
  EXPECT_EQ(ReadSetting(empty, c.section, c.name, c.reader), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, DefaultsTest,
    ::testing::Values(DefaultCase{"Grid", "ScaleX", "1", SettingReader::Window},    // grid step
                      DefaultCase{"Grid", "Autored", "1", SettingReader::Window},   // replay on
                      DefaultCase{"Grid", "Rnd", "0", SettingReader::Window},       // fixed colour
                      DefaultCase{"Grid", "BrojBoja", "1", SettingReader::Window},  // the window's default
                      DefaultCase{"Grid", "BrojBoja", "0", SettingReader::PlottingOptions},   // the dialog's
                      DefaultCase{"Grid", "Autored", "1", SettingReader::PlottingOptions},    // same for both
                      DefaultCase{"Boje", "Pozadina", "16119285", SettingReader::Window},     // 0xF5F5F5
                      DefaultCase{"Boje", "Grafik", "12615680", SettingReader::Window},       // 0xC08000
                      DefaultCase{"Boje", "Grid", "12566463", SettingReader::Window},         // 0xBFBFBF
                      DefaultCase{"Boje", "Ose", "0", SettingReader::Window},                 // black axes
                      DefaultCase{"TB", "TB3", "False", SettingReader::Window},               // band 3 hidden
                      DefaultCase{"TB", "TB1", "True", SettingReader::Window},                // band 1 shown
                      DefaultCase{"TBW", "TB2", "3600", SettingReader::Window},               // band width
                      DefaultCase{"mpad", "font", "Arial", SettingReader::Window},            // MathPad font
                      DefaultCase{"Recent Functions", "Recent8", "", SettingReader::Window},  // empty list
                      DefaultCase{"Mat", "Fajl", "False", SettingReader::Window},     // not registered
                      DefaultCase{"Frame", "Geometry", "", SettingReader::Window},    // no place kept yet
                      DefaultCase{"Grid", "NoSuchKey", "", SettingReader::Window}));  // unknown key

TEST(SettingKeys, EveryKeyStandsOnceAndTheTableIsComplete) {
  std::set<std::pair<std::string, std::string>> seen;
  for (const auto& key : SettingKeys()) {
    EXPECT_TRUE(seen.insert({std::string(key.section), std::string(key.name)}).second)
        << key.section << "/" << key.name;
  }
  // 17 Grid, 4 Boje, 4 Print, 2 mpad, 5 TB, 4 TBW, 8 + 8 recent, 1 Mat,
  // 1 Frame (the main window's geometry).
  EXPECT_EQ(SettingKeys().size(), 54u);
}

TEST(SettingKeys, ColourDefaultsAreTheHexValues) {
  EXPECT_EQ(std::stol(std::string(DefaultOf("Boje", "Pozadina"))), 0xF5F5F5);
  EXPECT_EQ(std::stol(std::string(DefaultOf("Boje", "Grafik"))), 0xC08000);
  EXPECT_EQ(std::stol(std::string(DefaultOf("Boje", "Grid"))), 0xBFBFBF);
}

// ---- GetRegValue and friends on both stores -----------------------------------

TEST(KeyPath, JoinsPartsAndLeavesOutEmptyOnes) {
  EXPECT_EQ(KeyPath("Software", "Velmora", "Grid"), "Software\\Velmora\\Grid");
  EXPECT_EQ(KeyPath("Software", "", "Grid"), "Software\\Grid");
  EXPECT_EQ(KeyPath("", "Velmora", ""), "Velmora");
}

TEST(GetRegValue, AbsentSectionOrValueGivesTheDefault) {
  FakeSettingsStore store;
  EXPECT_EQ(GetRegValue(store, "Mat", "Fajl", "dflt"), "dflt");  // an empty tree
  SetRegValue(store, "Grid", "Rnd", "1");
  EXPECT_EQ(GetRegValue(store, "Grid", "Ram", "dflt"), "dflt");  // the section exists, the value not
}

TEST(GetRegValue, EmptyButPresentIsNotTheDefault) {
  FakeSettingsStore store;
  SetRegValue(store, "Grid", "ScaleX", "");
  EXPECT_EQ(GetRegValue(store, "Grid", "ScaleX", "1"), "");
}

TEST(SetRegValue, ANumberIsStoredAsItsDecimalText) {
  FakeSettingsStore store;
  SetRegValue(store, "Boje", "Grafik", std::int32_t{12615680});
  EXPECT_EQ(*store.Query("Boje", "Grafik"), "12615680");
  SetRegValue(store, "Boje", "Ose", std::int32_t{-5});
  EXPECT_EQ(*store.Query("Boje", "Ose"), "-5");
}

TEST(MemorySettingsStore, EveryReadGoesToTheStore) {
  FakeSettingsStore store;
  for (int i = 0; i < 3; ++i) ReadSetting(store, "Grid", "Rnd");
  EXPECT_EQ(store.Reads(), 3);
}

// ---- The key constants -------------------------------------------------------

TEST(SettingKeys, NumberedNamesAreTheTablesNames) {
  EXPECT_EQ(keys::BandName(1), "TB1");
  EXPECT_EQ(keys::BandName(4), "TB4");
  EXPECT_EQ(keys::RecentName(1), "Recent1");
  EXPECT_EQ(keys::RecentName(8), "Recent8");
  EXPECT_THROW(keys::BandName(5), std::out_of_range);    // four bands
  EXPECT_THROW(keys::RecentName(0), std::out_of_range);  // counted from 1
  EXPECT_THROW(keys::RecentName(9), std::out_of_range);  // eight entries
}

TEST(SettingKeys, EveryValueNameIsFoundInItsSection) {
  // Each constant with its section, as the code pairs them.
  const std::pair<std::string_view, std::string_view> pairs[] = {
      {keys::kGrid, keys::grid::kOzna},      {keys::kGrid, keys::grid::kTrigo},
      {keys::kGrid, keys::grid::kAutored},   {keys::kBoje, keys::boje::kGrid},
      {keys::kBoje, keys::boje::kPozadina},  {keys::kPrint, keys::print::kDole},
      {keys::kMpad, keys::mpad::kSize},      {keys::kTB, keys::tb::kRows},
      {keys::kTBW, keys::BandName(3)},       {keys::kRecentFunctions, keys::RecentName(8)},
      {keys::kMathPad, keys::RecentName(1)}, {keys::kMat, keys::mat::kFajl},
  };
  for (const auto& [section, name] : pairs)
    EXPECT_NE(FindKey(section, name), nullptr) << section << "/" << name;
  // A name in the wrong section is not a key: Rows is TB's only.
  EXPECT_EQ(FindKey(keys::kTBW, keys::tb::kRows), nullptr);
  EXPECT_EQ(FindKey(keys::kGrid, "ozna"), nullptr);  // names compare exactly
}

// ---- The test fake ------------------------------------------------------------

TEST(FakeSettingsStore, AnUnknownKeyFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(
      {
        FakeSettingsStore store;
        store.Query("Grid", "Oznaa");
      },
      "settings key [Grid] Oznaa is not in the key table");
  EXPECT_NONFATAL_FAILURE(
      {
        FakeSettingsStore store;
        store.Store("Colours", "Grid", "0");
      },
      "settings key [Colours] Grid is not in the key table");
}

TEST(FakeSettingsStore, KnownKeysPassAndAreKept) {
  FakeSettingsStore store;
  store.Store(keys::kGrid, keys::grid::kOzna, "1");
  EXPECT_EQ(store.Query(keys::kGrid, keys::grid::kOzna), std::optional<std::string>("1"));
  EXPECT_EQ(store.Writes(), 1);
  EXPECT_EQ(store.Reads(), 1);
}

}  // namespace
}  // namespace velmora::platform
