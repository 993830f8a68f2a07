#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "platform/inisettingsstore.h"
#include "platform/memorysettingsstore.h"
#include "platform/settingskeys.h"

namespace velmora::platform {
namespace {

// A fresh folder for one test's files.
class TempFolder {
 public:
  TempFolder() {
    path_ = std::filesystem::temp_directory_path() /
            ("velmora-settings-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
             ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() { std::filesystem::remove_all(path_); }
  std::string File(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

std::string ReadFile(const std::string& path) {
  std::ifstream in(path);
  std::string all, line;
  while (std::getline(in, line)) all += line + "\n";
  return all;
}

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
  MemorySettingsStore empty;
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
                      DefaultCase{"Grid", "NoSuchKey", "", SettingReader::Window}));  // unknown key

TEST(SettingKeys, EveryKeyStandsOnceAndTheTableIsComplete) {
  std::set<std::pair<std::string, std::string>> seen;
  for (const auto& key : SettingKeys()) {
    EXPECT_TRUE(seen.insert({std::string(key.section), std::string(key.name)}).second)
        << key.section << "/" << key.name;
  }
  // 17 Grid, 4 Boje, 4 Print, 2 mpad, 5 TB, 4 TBW, 8 + 8 recent, 1 Mat.
  EXPECT_EQ(SettingKeys().size(), 53u);
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

struct NumberCase {
  const char* stored;  // nullptr: absent
  double expected;
};

class NumberReadTest : public ::testing::TestWithParam<NumberCase> {};

TEST_P(NumberReadTest, MemoryAndIniReadTheSame) {
  const auto& c = GetParam();
  TempFolder folder;
  MemorySettingsStore memory;
  IniSettingsStore ini(folder.File("v.ini"));
  if (c.stored != nullptr) {
    SetRegValue(memory, "Grid", "ScaleX", c.stored);
    SetRegValue(ini, "Grid", "ScaleX", c.stored);
  }
  EXPECT_DOUBLE_EQ(GetRegNumber(memory, "Grid", "ScaleX", "7"), c.expected);
  EXPECT_DOUBLE_EQ(GetRegNumber(ini, "Grid", "ScaleX", "7"), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Values, NumberReadTest,
                         ::testing::Values(NumberCase{nullptr, 7},   // absent: the default
                                           NumberCase{"2.5", 2.5},   // a number
                                           NumberCase{"abc", 0},     // a non-number reads 0
                                           NumberCase{"", 0},        // empty but present: 0, not the default
                                           NumberCase{"12abc", 12},  // the leading-number parse
                                           NumberCase{"1e999", 0},   // beyond a double: 0
                                           NumberCase{"-3", -3}));   // a sign

TEST(GetRegValue, AbsentSectionOrValueGivesTheDefault) {
  MemorySettingsStore store;
  EXPECT_EQ(GetRegValue(store, "Nope", "Nothing", "dflt"), "dflt");
  SetRegValue(store, "Grid", "Other", "1");
  EXPECT_EQ(GetRegValue(store, "Grid", "Nothing", "dflt"), "dflt");
}

TEST(SetRegValue, ANumberIsStoredAsItsDecimalText) {
  MemorySettingsStore store;
  SetRegValue(store, "Boje", "Grafik", std::int32_t{12615680});
  EXPECT_EQ(*store.Query("Boje", "Grafik"), "12615680");
  SetRegValue(store, "Boje", "Ose", std::int32_t{-5});
  EXPECT_EQ(*store.Query("Boje", "Ose"), "-5");
}

TEST(MemorySettingsStore, EveryReadGoesToTheStore) {
  MemorySettingsStore store;
  for (int i = 0; i < 3; ++i) ReadSetting(store, "Grid", "Rnd");
  EXPECT_EQ(store.Reads(), 3);
}

// ---- The INI file -------------------------------------------------------------

TEST(IniSettingsStore, MissingFileReadsDefaultsAndFirstWriteCreatesIt) {
  TempFolder folder;
  const std::string path = folder.File("sub/dir/Velmora.ini");
  IniSettingsStore store(path);
  EXPECT_EQ(ReadSetting(store, "Grid", "Autored"), "1");
  SetRegValue(store, "Grid", "Autored", "0");
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(ReadSetting(store, "Grid", "Autored"), "0");
}

TEST(IniSettingsStore, NoCacheAChangeOnDiskShowsAtTheNextRead) {
  TempFolder folder;
  const std::string path = folder.File("v.ini");
  IniSettingsStore a(path);
  IniSettingsStore b(path);
  SetRegValue(a, "Grid", "Rnd", "0");
  EXPECT_EQ(GetRegNumber(b, "Grid", "Rnd", "0"), 0);
  SetRegValue(a, "Grid", "Rnd", "1");
  EXPECT_EQ(GetRegNumber(b, "Grid", "Rnd", "0"), 1);  // the other window sees it at once
}

TEST(IniSettingsStore, WritesTheQtLayout) {
  TempFolder folder;
  const std::string path = folder.File("v.ini");
  IniSettingsStore store(path);
  SetRegValue(store, "Recent Functions", "Recent1", "SinX ; K | Cartesian");
  SetRegValue(store, "Grid", "ScaleX", "1");
  SetRegValue(store, "Recent Functions", "Recent2", "X^2 ; K | Cartesian");
  EXPECT_EQ(ReadFile(path),
            "[Recent%20Functions]\n"
            "Recent1=\"SinX ; K | Cartesian\"\n"
            "Recent2=\"X^2 ; K | Cartesian\"\n"
            "\n"
            "[Grid]\n"
            "ScaleX=1\n");
  SetRegValue(store, "Grid", "ScaleX", "2");  // replaced in place
  EXPECT_EQ(ReadSetting(store, "Grid", "ScaleX"), "2");
}

struct EscapeCase {
  const char* value;
  const char* written;  // as the Qt settings class writes it
};

class IniEscapeTest : public ::testing::TestWithParam<EscapeCase> {};

TEST_P(IniEscapeTest, EscapesAsQtAndReadsBack) {
  const auto& c = GetParam();
  EXPECT_EQ(IniSettingsStore::EscapeValue(c.value), c.written);
  EXPECT_EQ(IniSettingsStore::UnescapeValue(c.written), c.value);
}

INSTANTIATE_TEST_SUITE_P(Values, IniEscapeTest,
                         ::testing::Values(EscapeCase{"plain", "plain"},            // nothing to do
                                           EscapeCase{"a,b", "\"a,b\""},            // comma quoted
                                           EscapeCase{"x;y", "\"x;y\""},            // semicolon quoted
                                           EscapeCase{"1/2=3", "\"1/2=3\""},        // equals quoted
                                           EscapeCase{"end ", "\"end \""},          // trailing blank
                                           EscapeCase{"tab\there", "tab\\there"},   // control escape
                                           EscapeCase{"@at", "@@at"},               // leading at
                                           EscapeCase{"#hash", "#hash"},            // hash kept
                                           EscapeCase{"q\"b\\", "q\\\"b\\\\"},      // quote, backslash
                                           EscapeCase{"\xC3\xB8 x", "\xC3\xB8 x"},  // UTF-8 raw
                                           EscapeCase{"", ""}));                    // empty

struct ReadCase {
  const char* raw;
  const char* text;
};

class IniReadTest : public ::testing::TestWithParam<ReadCase> {};

// Hand-written files read as the Qt reader reads them.
TEST_P(IniReadTest, ReadsLikeQt) {
  EXPECT_EQ(IniSettingsStore::UnescapeValue(GetParam().raw), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Values, IniReadTest,
                         ::testing::Values(ReadCase{"Cos X ; K | Polar", "Cos X"},  // ";" starts a comment
                                           ReadCase{"1,5", ""},                     // a list reads empty
                                           ReadCase{" spaced ", "spaced"},          // blanks trimmed
                                           ReadCase{"\"q\" tail", "qtail"},         // quotes joined
                                           ReadCase{"\\x41", "A"},                  // hex escape
                                           ReadCase{"@Variant(\\0)", ""},           // typed value
                                           ReadCase{"@ByteArray(ab)", "ab"}));      // byte array

TEST(IniSettingsStore, NamesAreEscapedAndUnescaped) {
  EXPECT_EQ(IniSettingsStore::EscapeName("Recent Functions"), "Recent%20Functions");
  EXPECT_EQ(IniSettingsStore::UnescapeName("Recent%20Functions"), "Recent Functions");
  EXPECT_EQ(IniSettingsStore::EscapeName("K%"), "K%25");
  EXPECT_EQ(IniSettingsStore::UnescapeName("a\\b"), "a/b");
  EXPECT_EQ(IniSettingsStore::UnescapeName("%U00F8"), "\xC3\xB8");
}

TEST(IniSettingsStore, HandWrittenSectionWithSpaceAndCommentsRead) {
  TempFolder folder;
  const std::string path = folder.File("hand.ini");
  std::ofstream(path) << "; a comment\n[Recent Functions]\nRecent1=\"SinX ; K | Cartesian\"\n\n[Grid]\n"
                         " Autored = 0 \nScaleX=0.5\r\n";
  IniSettingsStore store(path);
  EXPECT_EQ(ReadSetting(store, "Recent Functions", "Recent1"), "SinX ; K | Cartesian");
  EXPECT_EQ(ReadSetting(store, "Grid", "Autored"), "0");
  EXPECT_EQ(ReadSetting(store, "Grid", "ScaleX"), "0.5");
}

TEST(IniSettingsStore, UnwritableFileIsIgnored) {
  TempFolder folder;
  // A folder where the file should be: the write fails without a word.
  const std::string path = folder.File("isafolder");
  std::filesystem::create_directories(path);
  IniSettingsStore store(path);
  SetRegValue(store, "Grid", "Rnd", "1");
  EXPECT_EQ(ReadSetting(store, "Grid", "Rnd"), "0");
}

TEST(UserFolders, FollowXdgAndHome) {
  const char* oldConfig = std::getenv("XDG_CONFIG_HOME");
  const std::string saved = oldConfig != nullptr ? oldConfig : "";
  const char* oldHome = std::getenv("HOME");
  const std::string savedHome = oldHome != nullptr ? oldHome : "";
  setenv("XDG_CONFIG_HOME", "/tmp/cfg", 1);
  EXPECT_EQ(UserSettingsPath(), "/tmp/cfg/Velmora/Velmora.ini");
  setenv("XDG_CONFIG_HOME", "relative/ignored", 1);
  setenv("HOME", "/home/someone", 1);
  EXPECT_EQ(UserConfigFolder(), "/home/someone/.config");
  setenv("HOME", savedHome.c_str(), 1);
  if (oldConfig != nullptr) {
    setenv("XDG_CONFIG_HOME", saved.c_str(), 1);
  } else {
    unsetenv("XDG_CONFIG_HOME");
  }
}

}  // namespace
}  // namespace velmora::platform
