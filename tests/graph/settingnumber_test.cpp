#include "graph/settingnumber.h"

#include <gtest/gtest.h>

#include "platform/settingskeys.h"
#include "tests/support/fakesettingsstore.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

struct NumberCase {
  const char* stored;  // nullptr: absent
  double expected;
  const char* why;
};

class SettingNumberTest : public ::testing::TestWithParam<NumberCase> {};

TEST_P(SettingNumberTest, ReadsByTheLeadingNumberParse) {
  const auto& c = GetParam();
  velmora::testing::FakeSettingsStore store;
  if (c.stored != nullptr) store.Store(keys::kGrid, keys::grid::kScaleX, c.stored);
  EXPECT_DOUBLE_EQ(ReadSettingNumber(store, keys::kGrid, keys::grid::kScaleX), c.expected) << c.why;
}

INSTANTIATE_TEST_SUITE_P(Values, SettingNumberTest,
                         ::testing::Values(NumberCase{nullptr, 1, "absent: the table's default"},
                                           NumberCase{"2.5", 2.5, "a number"},
                                           NumberCase{"abc", 0, "a non-number reads 0"},
                                           NumberCase{"", 0, "empty but present: 0, not the default"},
                                           NumberCase{"12abc", 12, "the leading-number parse"},
                                           NumberCase{"1e999", 0, "beyond a double: 0, no fault"},
                                           NumberCase{"-3", -3, "a sign"}));

TEST(SettingNumber, TheReaderPicksTheDefault) {
  velmora::testing::FakeSettingsStore store;
  EXPECT_EQ(ReadSettingNumber(store, keys::kGrid, keys::grid::kBrojBoja), 1);  // the graph window's default
  EXPECT_EQ(
      ReadSettingNumber(store, keys::kGrid, keys::grid::kBrojBoja, platform::SettingReader::PlottingOptions),
      0);
  EXPECT_EQ(ReadSettingNumber(store, keys::kBoje, keys::boje::kPozadina), 0xF5F5F5);
}

}  // namespace
}  // namespace velmora::graph
