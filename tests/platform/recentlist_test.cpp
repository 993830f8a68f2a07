#include "platform/recentlist.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/fakesettingsstore.h"

namespace velmora::platform {
namespace {

std::vector<std::string> Captions(const RecentList& list) {
  std::vector<std::string> out;
  for (int i = 1; i <= RecentList::kEntries; ++i) out.push_back(list.Caption(i));
  return out;
}

std::vector<std::string> Stored(velmora::testing::FakeSettingsStore& store, std::string_view section) {
  std::vector<std::string> out;
  for (int i = 1; i <= RecentList::kEntries; ++i)
    out.push_back(GetRegValue(store, section, "Recent" + std::to_string(i), ""));
  return out;
}

struct AddCase {
  const char* name;
  std::vector<std::string> before;  // captions 1..n at the start
  std::string added;
  std::vector<std::string> after;  // captions afterwards (8)
  int visible;
};

class AddRecentTest : public ::testing::TestWithParam<AddCase> {};

TEST_P(AddRecentTest, OrderCaptionsAndStore) {
  const auto& c = GetParam();
  velmora::testing::FakeSettingsStore store;
  for (std::size_t i = 0; i < c.before.size(); ++i)
    SetRegValue(store, RecentList::kFunctions, "Recent" + std::to_string(i + 1), c.before[i]);
  RecentList list(store, RecentList::kFunctions);
  list.LoadRecent();
  list.AddRecent(c.added);
  EXPECT_EQ(Captions(list), c.after);
  EXPECT_EQ(Stored(store, RecentList::kFunctions), c.after);
  EXPECT_EQ(list.VisibleEntries(), c.visible);
  EXPECT_TRUE(list.SeparatorVisible());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, AddRecentTest,
    ::testing::Values(
        // The text already first changes nothing in the order.
        AddCase{"AlreadyFirst", {"a", "b", "c"}, "a", {"a", "b", "c", "", "", "", "", ""}, 3},
        // Found further down: the entries above it move down, those below stay.
        AddCase{"FoundThird", {"a", "b", "c", "d"}, "c", {"c", "a", "b", "d", "", "", "", ""}, 4},
        // A new text goes on top.
        AddCase{"New", {"a", "b"}, "n", {"n", "a", "b", "", "", "", "", ""}, 3},
        // A ninth distinct entry pushes the oldest out.
        AddCase{"Ninth",
                {"1", "2", "3", "4", "5", "6", "7", "8"},
                "9",
                {"9", "1", "2", "3", "4", "5", "6", "7"},
                8},
        // Two texts that differ in case are two entries.
        AddCase{"Case", {"SinX"}, "sinx", {"sinx", "SinX", "", "", "", "", "", ""}, 2}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(RecentList, EmptyStoreShowsNoEntryAndNoSeparator) {
  velmora::testing::FakeSettingsStore store;
  RecentList list(store, RecentList::kFunctions);
  list.LoadRecent();
  list.ShowRecent();
  EXPECT_FALSE(list.SeparatorVisible());
  EXPECT_EQ(list.VisibleEntries(), 0);
}

TEST(RecentList, ShowStopsAtTheFirstEmptyCaption) {
  velmora::testing::FakeSettingsStore store;
  SetRegValue(store, RecentList::kMathPad, "Recent1", "/a.rtf");
  SetRegValue(store, RecentList::kMathPad, "Recent3", "/c.rtf");
  RecentList list(store, RecentList::kMathPad);
  list.LoadRecent();
  list.ShowRecent();
  EXPECT_TRUE(list.SeparatorVisible());
  EXPECT_EQ(list.VisibleEntries(), 1);
  EXPECT_EQ(list.Caption(3), "/c.rtf");
}

TEST(RecentList, TheTwoListsKeepTheirOwnSections) {
  velmora::testing::FakeSettingsStore store;
  RecentList functions(store, RecentList::kFunctions);
  RecentList files(store, RecentList::kMathPad);
  functions.AddRecent("SinX ; K | Cartesian");
  files.AddRecent("/home/a.rtf");
  EXPECT_EQ(GetRegValue(store, "Recent Functions", "Recent1", ""), "SinX ; K | Cartesian");
  EXPECT_EQ(GetRegValue(store, "MathPad", "Recent1", ""), "/home/a.rtf");
}

}  // namespace
}  // namespace velmora::platform
