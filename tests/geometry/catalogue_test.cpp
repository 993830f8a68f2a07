#include "geometry/catalogue.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>

#include "geometry/geopage.h"

namespace velmora::geometry {
namespace {

TEST(Catalogue, PagesInTabOrder) {
  const auto pages = PageCaptions();
  EXPECT_EQ(std::vector<std::string_view>(pages.begin(), pages.end()),
            (std::vector<std::string_view>{"Triangle", "Polygon", "Euclid", "Circle", "Sphere", "Frustrum",
                                           "Ellipsoid", "Cone"}));
  EXPECT_EQ(kSelectCaseHeading, "Select Case:");
}

TEST(Catalogue, EveryFigureHasItsWordAndAPage) {
  std::set<std::string_view> words;
  for (const auto& k : FigureKinds()) {
    words.insert(k.word);
    const auto pages = PageCaptions();
    EXPECT_NE(std::find(pages.begin(), pages.end(), k.page), pages.end()) << k.word;
    EXPECT_FALSE(k.entries.empty()) << k.word;
    EXPECT_FALSE(k.help.empty()) << k.word;
  }
  EXPECT_EQ(words,
            (std::set<std::string_view>{"triangle", "circle", "arc", "ring", "ellipse", "euclid", "polygon",
                                        "sphere", "sfrustrum", "cfrustrum", "ellipsoid", "cone"}));
}

// Every entry's given boxes are boxes of its figure, and each name is unique
// within the figure's word.
TEST(Catalogue, EntriesReadTheirOwnBoxes) {
  for (const auto& k : FigureKinds()) {
    const BoxRecord boxes(k.boxes);
    for (const auto& e : k.entries) {
      EXPECT_GE(e.InputCount(), 1u) << e.name;
      for (std::size_t i = 0; i < e.InputCount(); ++i) EXPECT_TRUE(boxes.Has(e.inputs[i])) << e.name;
      const FigureKind* found = nullptr;
      EXPECT_EQ(FindEntry(k.word, e.name, &found), &e) << e.name;
      EXPECT_EQ(found, &k) << e.name;
    }
  }
}

struct FindCase {
  const char* word;
  const char* entry;
  bool found;
  const char* why;
};

TEST(Catalogue, FindEntry) {
  const FindCase cases[] = {
      {"triangle", "mnuabc", true, "general menu"},
      {"triangle", "mnupravab3", true, "right-angled menu under the same word"},
      {"triangle", "mnujednakR3", true, "equilateral menu under the same word"},
      {"cone", "mnuK7", true, "cone"},
      {"polygon", "H", true, "polygon by its measure"},
      {"euclid", "mn", true, "Euclid's one case"},
      {"ellipsoid", "mnuElipsoidVolume", true, "ellipsoid volume"},
      {"circle", "mnuluk1", false, "an arc entry is not a circle entry"},
      {"cone", "mnuK8", false, "no such entry"},
      {"square", "a", false, "no such figure"},
  };
  for (const auto& c : cases) EXPECT_EQ(FindEntry(c.word, c.entry) != nullptr, c.found) << c.why;
}

TEST(GeoPage, UnknownCaptionThrows) { EXPECT_THROW(GeoPage("Torus"), std::invalid_argument); }

TEST(GeoPage, PageRecordsHoldEveryBoxOnce) {
  const std::pair<const char*, std::size_t> pages[] = {{"Triangle", 14}, {"Polygon", 11}, {"Euclid", 8},
                                                       {"Circle", 7},    {"Sphere", 6},   {"Frustrum", 5},
                                                       {"Ellipsoid", 5}, {"Cone", 7}};
  for (const auto& [caption, size] : pages) EXPECT_EQ(GeoPage(caption).State().boxes.Size(), size) << caption;
}

}  // namespace
}  // namespace velmora::geometry
