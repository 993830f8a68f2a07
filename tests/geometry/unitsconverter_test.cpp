#include "geometry/unitsconverter.h"

#include <gtest/gtest.h>

#include "expr/numtext.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::geometry {
namespace {

using platform::MsgButtons;
using platform::MsgIcon;

struct ConvertCase {
  const char* page;
  const char* from;
  const char* to;
  const char* value;
  const char* output;
  const char* why;
};

class ListConvertTest : public ::testing::TestWithParam<ConvertCase> {};

TEST_P(ListConvertTest, ThroughTheBaseUnit) {
  const auto& c = GetParam();
  const ListPage* page = FindListPage(c.page);
  ASSERT_NE(page, nullptr);
  velmora::testing::RecordingMessageBox box;
  ListConverter converter(*page);
  converter.ChooseFrom(FindUnit(*page, c.from), box);
  converter.ChooseTo(FindUnit(*page, c.to), box);
  converter.Boxes().SetText(page->input, c.value);
  converter.Convert(box);
  EXPECT_TRUE(box.Boxes().empty()) << c.why;
  EXPECT_EQ(converter.Boxes().Text(page->output), c.output) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ListConvertTest,
    ::testing::Values(
        // 1 inch is 1 / 39.36996 m, not 0.0254, because of the stored factor.
        ConvertCase{"lengths", "in", "m", "1", "0.025400076606631", "inch to meters"},
        // 1 mile is 1609.344 m and so 1609.344 * 3.28083 ft = 5279.98407552.
        ConvertCase{"lengths", "mile", "ft", "1", "5279.98407552", "mile to feet"},
        ConvertCase{"lengths", "m", "ft", "1", "3.28083", "meter to feet is the factor"},
        ConvertCase{"lengths", "m", "yd", "2", "2.18722", "two meters in yards"},
        ConvertCase{"lengths", "nmi", "m", "1", "1852", "nautic mile"},
        ConvertCase{"lengths", "pc", "m", "1", "3.085678E+16", "parsec"},
        ConvertCase{"areas", "m2", "ft2", "1", "10.76391", "square meter to square feet"},
        ConvertCase{"areas", "acre", "m2", "1", "4046.825", "acre"},
        ConvertCase{"areas", "mile2", "m2", "1", "2589988", "square mile"},
        ConvertCase{"areas", "m2", "in2", "1", "1550.003", "square inches"},
        ConvertCase{"areas", "m2", "yd2", "1", "1.19599", "square yards"},
        // Angles by the exact relations, with pi as 3.14159265358979; results are not rounded.
        ConvertCase{"angles", "deg", "rad", "180", "3.14159265358979", "180 degrees are pi"},
        ConvertCase{"angles", "deg", "rad", "1", "0.0174532925199433", "not rounded to 5 places"},
        ConvertCase{"angles", "rad", "deg", "3.14159265358979", "180", "pi radians"},
        ConvertCase{"angles", "deg", "grad", "90", "100", "a right angle in grads"},
        ConvertCase{"angles", "grad", "deg", "100", "90", "1 grad is 9/10 of a degree"},
        ConvertCase{"angles", "deg", "min", "1.5", "90", "minutes"},
        ConvertCase{"angles", "sec", "deg", "3600", "1", "seconds"},
        ConvertCase{"angles", "min", "sec", "2", "120", "minutes to seconds"},
        ConvertCase{"angles", "3", "2", "60", "1.11111111111111",
                    "units by list position: 60 minutes are 10/9 grads"},
        // The same unit on both sides copies the text, unparsed.
        ConvertCase{"lengths", "m", "m", "12abc", "12abc", "same unit copies the text"},
        ConvertCase{"lengths", "ft", "m", "", "0", "an empty box reads 0"},
        ConvertCase{"lengths", "ft", "in", "0", "0", "zero is not negative"}));

struct RefusedCase {
  const char* page;
  const char* value;
  const char* why;
};

TEST(ListConverter, NegativeValueIsRefused) {
  const RefusedCase cases[] = {
      {"lengths", "-1", "negative length"},
      {"areas", "-0.5", "negative area"},
      {"angles", "-90", "negative angle"},
      {"lengths", "1e999", "a number beyond the range faults and is refused alike"},
  };
  for (const auto& c : cases) {
    const ListPage* page = FindListPage(c.page);
    ASSERT_NE(page, nullptr);
    velmora::testing::RecordingMessageBox box;
    ListConverter converter(*page);
    converter.ChooseFrom(0, box);
    converter.ChooseTo(1, box);
    const std::string before = converter.Boxes().Text(page->output);
    converter.Boxes().SetText(page->input, c.value);
    converter.Convert(box);
    ASSERT_EQ(box.Boxes().size(), 1u) << c.why;
    EXPECT_EQ(box.Boxes()[0].text, "Invalid input.") << c.why;
    EXPECT_EQ(box.Boxes()[0].title, "Velmora") << c.why;
    EXPECT_EQ(box.Boxes()[0].icon, MsgIcon::Critical) << c.why;
    EXPECT_EQ(box.Boxes()[0].buttons, MsgButtons::Ok) << c.why;
    EXPECT_EQ(converter.Boxes().Text(page->output), before) << c.why;
  }
}

TEST(ListConverter, ChoosingAnEntryOverwritesTheInputWithOne) {
  const ListPage* page = FindListPage("lengths");
  ASSERT_NE(page, nullptr);
  velmora::testing::RecordingMessageBox box;
  ListConverter converter(*page);
  converter.Boxes().SetText("Text5", "250");
  converter.ChooseFrom(FindUnit(*page, "m"), box);
  EXPECT_EQ(converter.Boxes().Text("Text5"), "1");
  converter.Boxes().SetText("Text5", "250");
  converter.ChooseTo(FindUnit(*page, "ft"), box);
  EXPECT_EQ(converter.Boxes().Text("Text5"), "1");
  EXPECT_EQ(converter.Boxes().Text("Text6"), "3.28083") << "the output reads as the factor";
  EXPECT_TRUE(box.Boxes().empty());
}

TEST(ListConverter, PagesListsAndUnits) {
  const auto pages = ListPages();
  ASSERT_EQ(pages.size(), 3u);
  const std::vector<std::vector<std::string_view>> captions = {
      {"Degree ( ° )", "Grad ( g )", "Minute ( ' )", "Radian ( rad )", "Second ( '' )"},
      {"Foot ² ( ft ² )", "Inch ² ( in ² )", "Meter ² ( m ² )", "Mile ² ( mil ² )", "Acre",
       "Yard ² ( yd ² )"},
      {"Foot ( ft )", "Inch ( in )", "Meter ( m )", "Mile ( mil )", "Nautic mile ( M )", "Parsec ( pc )",
       "Yard ( yd )"}};
  const std::vector<std::vector<std::string_view>> boxes = {{"Text1", "List1", "List2", "Text2"},
                                                            {"Text3", "List3", "List4", "Text4"},
                                                            {"Text5", "List5", "List6", "Text6"}};
  for (std::size_t p = 0; p < pages.size(); ++p) {
    ASSERT_EQ(pages[p].units.size(), captions[p].size());
    for (std::size_t i = 0; i < captions[p].size(); ++i) EXPECT_EQ(pages[p].units[i].caption, captions[p][i]);
    EXPECT_EQ(pages[p].input, boxes[p][0]);
    EXPECT_EQ(pages[p].fromList, boxes[p][1]);
    EXPECT_EQ(pages[p].toList, boxes[p][2]);
    EXPECT_EQ(pages[p].output, boxes[p][3]);
  }
  EXPECT_EQ(kConverterCaption, "Geometry Units Converter");
  EXPECT_EQ(kCopyToolTip, "Copy result");
}

TEST(ListConverter, StoredFactors) {
  const std::pair<const char*, double> lengths[] = {
      {"ft", 3.28083},        {"in", 39.36996},    {"m", 1},
      {"mile", 1 / 1609.344}, {"nmi", 1.0 / 1852}, {"pc", 1 / (3.085678 * 1e16)},
      {"yd", 1.09361}};
  const ListPage& l = *FindListPage("lengths");
  for (const auto& [key, factor] : lengths) EXPECT_DOUBLE_EQ(l.units[FindUnit(l, key)].factor, factor) << key;
  const std::pair<const char*, double> areas[] = {
      {"ft2", 10.76391},        {"in2", 1550.003},      {"m2", 1},
      {"mile2", 1.0 / 2589988}, {"acre", 1 / 4046.825}, {"yd2", 1.19599}};
  const ListPage& a = *FindListPage("areas");
  for (const auto& [key, factor] : areas) EXPECT_DOUBLE_EQ(a.units[FindUnit(a, key)].factor, factor) << key;
}

TEST(ListConverter, FindUnit) {
  const ListPage& l = *FindListPage("Lengths");
  EXPECT_EQ(FindUnit(l, "FT"), 0u) << "keys in any case";
  EXPECT_EQ(FindUnit(l, "7"), 6u) << "1-based list position";
  EXPECT_EQ(FindUnit(l, "8"), l.units.size()) << "past the list";
  EXPECT_EQ(FindUnit(l, "0"), l.units.size());
  EXPECT_EQ(FindUnit(l, "furlong"), l.units.size());
  EXPECT_EQ(FindListPage("volumes"), nullptr);
}

struct DegreesCase {
  const char* deg;
  const char* min;
  const char* sec;
  const char* rad;
  const char* grad;
  const char* why;
};

class DegreesTest : public ::testing::TestWithParam<DegreesCase> {};

TEST_P(DegreesTest, ToRadiansAndGrads) {
  const auto& c = GetParam();
  BoxRecord boxes(kDegreesBoxes);
  boxes.SetText("txtDeg", c.deg);
  boxes.SetText("txtMin", c.min);
  boxes.SetText("txtSec", c.sec);
  velmora::testing::RecordingMessageBox box;
  ConvertDegrees(boxes, box);
  EXPECT_TRUE(box.Boxes().empty()) << c.why;
  EXPECT_EQ(boxes.Text("txtRad"), c.rad) << c.why;
  EXPECT_EQ(boxes.Text("txtGrad"), c.grad) << c.why;
}

INSTANTIATE_TEST_SUITE_P(Cases, DegreesTest,
                         ::testing::Values(DegreesCase{"180", "0", "0", "3.14159", "200", "a half turn"},
                                           // 30 minutes are half a degree: pi/360 and 5/9 grads.
                                           DegreesCase{"0", "30", "0", "0.00873", "0.55556", "minutes"},
                                           // 45 degrees and 3600 seconds are 46 degrees.
                                           DegreesCase{"45", "", "3600", "0.80285", "51.11111", "seconds"},
                                           DegreesCase{"0", "0", "0", "0", "0", "zero passes the check"}));

TEST(Degrees, NegativeBoxIsRefusedAndCleared) {
  const std::pair<const char*, const char*> boxesAndTexts[] = {
      {"txtDeg", "Invalid input for Degrees (Deg > 0)."},
      {"txtMin", "Invalid input for Minutes (Min > 0)."},
      {"txtSec", "Invalid input for Seconds (Sec > 0)."},
  };
  for (const auto& [name, text] : boxesAndTexts) {
    BoxRecord boxes(kDegreesBoxes);
    boxes.SetText("txtDeg", "10");
    boxes.SetText("txtMin", "10");
    boxes.SetText("txtSec", "10");
    boxes.SetText(name, "-1");
    velmora::testing::RecordingMessageBox box;
    ConvertDegrees(boxes, box);
    ASSERT_EQ(box.Boxes().size(), 1u) << name;
    EXPECT_EQ(box.Boxes()[0].text, text);
    EXPECT_EQ(box.Boxes()[0].icon, MsgIcon::Critical);
    EXPECT_EQ(boxes.Text(name), "") << "the box is cleared";
    EXPECT_EQ(boxes.Text("txtRad"), "") << "nothing converted";
  }
}

TEST(Degrees, CopyMenu) {
  const auto menu = DegreesCopyMenu();
  ASSERT_EQ(menu.size(), 2u);
  EXPECT_EQ(menu[0].name, "mnurad");
  EXPECT_EQ(menu[0].caption, "Radians");
  EXPECT_EQ(menu[0].box, "txtRad");
  EXPECT_EQ(menu[1].name, "mnugrad");
  EXPECT_EQ(menu[1].caption, "Grads");
  EXPECT_EQ(menu[1].box, "txtGrad");
}

}  // namespace
}  // namespace velmora::geometry
