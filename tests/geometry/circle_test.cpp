#include "geometry/circle.h"

#include <gtest/gtest.h>

#include "geometry/geopage.h"
#include "tests/geometry/geotest.h"

namespace velmora::geometry {
namespace {

using platform::MsgIcon;
using testing::CheckRefusal;
using testing::CheckSolve;
using testing::RefusalCase;
using testing::SolveCase;
using testing::Texts;

// The unit circle: D = 2, S = pi, C = 2*pi, to five places.
const Texts kUnitCircle = {{"txtKR", "1"}, {"txtKD", "2"}, {"txtKArea", "3.14159"}, {"txtKobim", "6.28319"}};
// The arc of radius 2 and angle 1: S = 1/2 * 4 * 1 = 2, L = 2, D = 4.
const Texts kArc2 = {{"txtKR", "2"}, {"txtKD", "4"}, {"txtKArea", "2"}, {"txtKobim", "2"}, {"txtKFi", "1"}};
// The ring R = 3, r = 1: S = pi * 2^2 = 12.56637, C = 2*pi * 4 = 25.13274.
const Texts kRing31 = {{"txtKR", "3"},           {"txtKD", "6"},     {"txtKArea", "12.56637"},
                       {"txtKobim", "25.13274"}, {"txtKrmalo", "1"}, {"txtKRR", "4"}};

class CircleSolveTest : public ::testing::TestWithParam<SolveCase> {};
TEST_P(CircleSolveTest, WritesTheRecord) { CheckSolve(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, CircleSolveTest,
    ::testing::Values(
        // R = 1: D = 2, S = pi, C = 2*pi, whatever the help text says.
        SolveCase{"circle",
                  "mnukrug1",
                  {"1"},
                  kUnitCircle,
                  {"Circle: R = 1; D = 2", "Cirumference: C = 6.28319", "Area: S = 3.14159"},
                  "unit radius"},
        // D = 4: R = 2, S = 4 pi = 12.56637, C = 4 pi.
        SolveCase{"circle",
                  "mnukrug2",
                  {"4"},
                  {{"txtKR", "2"}, {"txtKD", "4"}, {"txtKArea", "12.56637"}, {"txtKobim", "12.56637"}},
                  {},
                  "diameter"},
        // S = pi: R = Sqr(pi / pi) = 1.
        SolveCase{"circle", "mnukrug3", {"3.14159265358979"}, kUnitCircle, {}, "area"},
        // C = 2*pi: R = 1.
        SolveCase{"circle", "mnukrug4", {"6.28318530717958"}, kUnitCircle, {}, "circumference"},
        // R = -1 only fails the test for 0: D = -2, S = pi, C = -2*pi.
        SolveCase{"circle",
                  "mnukrug1",
                  {"-1"},
                  {{"txtKR", "-1"}, {"txtKD", "-2"}, {"txtKArea", "3.14159"}, {"txtKobim", "-6.28319"}},
                  {},
                  "negative radius passes"},
        SolveCase{"arc",
                  "mnuluk1",
                  {"2", "1"},
                  kArc2,
                  {"Arc: R = 2 ; ø = 1 (57.29578 deg)", "S = 2", "L = 2"},
                  "R, ø: S = 1/2 R^2 ø, L = R ø"},
        // S = 2, R = 2: ø = 2S / R^2 = 1, L = 2.
        SolveCase{"arc", "mnuluk2", {"2", "2"}, kArc2, {}, "S, R"},
        // S = 2, ø = 1: R = Sqr(4 / 1) = 2.
        SolveCase{"arc", "mnuluk3", {"2", "1"}, kArc2, {}, "S, ø"},
        // L = 2, ø = 1: R = 2, S = 2.
        SolveCase{"arc", "mnuluk4", {"2", "1"}, kArc2, {}, "L, ø"},
        // L = 2, R = 2: ø = 1.
        SolveCase{"arc", "mnuluk5", {"2", "2"}, kArc2, {}, "L, R"},
        // S = 2, L = 2: R = 2S / L = 2, ø = L / R = 1.
        SolveCase{"arc", "mnuluk6", {"2", "2"}, kArc2, {}, "S, L"},
        // A given angle is not checked against 2*pi: ø = 7 is solved.
        SolveCase{"arc",
                  "mnuluk1",
                  {"1", "7"},
                  {{"txtKArea", "3.5"}, {"txtKobim", "7"}},
                  {},
                  "a given angle above 2*pi passes"},
        SolveCase{"ring",
                  "mnuprsten1",
                  {"3", "1"},
                  kRing31,
                  {"Ring: R = 3; r = 1", "C = 25.13274", "S = 12.56637"},
                  "R = 3, r = 1 by the ring's own definitions"},
        // C = 8 pi, R - r = 2: R = (4 + 2) / 2 = 3, r = 1.
        SolveCase{"ring", "mnuprsten2", {"25.1327412287183", "2"}, kRing31, {}, "C and R - r"},
        // S = 4 pi, R + r = 4: d = 2, R = 3, r = 1.
        SolveCase{"ring", "mnuprsten3", {"12.5663706143592", "4"}, kRing31, {}, "S and R + r"},
        // C = 8 pi, S = 4 pi: R + r = 4, d = 2, R = 3, r = 1.
        SolveCase{"ring", "mnuprsten4", {"25.1327412287183", "12.5663706143592"}, kRing31, {}, "C and S"}));

class CircleRefusalTest : public ::testing::TestWithParam<RefusalCase> {};
TEST_P(CircleRefusalTest, ShowsItsMessageAndWritesNothing) { CheckRefusal(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, CircleRefusalTest,
    ::testing::Values(
        RefusalCase{
            "circle", "mnukrug1", {"0"}, "Invalid input: R > 0 required.", MsgIcon::Critical, "R = 0"},
        RefusalCase{
            "circle", "mnukrug2", {""}, "Invalid input: D > 0 required.", MsgIcon::Critical, "empty D"},
        RefusalCase{
            "circle", "mnukrug3", {"0"}, "Invalid input: S > 0 required.", MsgIcon::Critical, "S = 0"},
        RefusalCase{
            "circle", "mnukrug4", {"0"}, "Invalid input: C > 0 required.", MsgIcon::Critical, "C = 0"},
        RefusalCase{"circle",
                    "mnukrug3",
                    {"-1"},
                    "Solution not found. Check data.",
                    MsgIcon::Critical,
                    "a negative area faults in the root"},
        RefusalCase{"arc", "mnuluk1", {"0", "1"}, "Invalid input.", MsgIcon::Critical, "R = 0"},
        RefusalCase{"arc", "mnuluk3", {"2", "0"}, "Invalid input.", MsgIcon::Critical, "ø = 0"},
        RefusalCase{"arc", "mnuluk4", {"0", "1"}, "Invalid input.", MsgIcon::Critical, "L = 0"},
        RefusalCase{"arc", "mnuluk6", {"", ""}, "Invalid input.", MsgIcon::Critical, "empty S and L"},
        // S = 10, R = 1: ø = 20, above 2*pi.
        RefusalCase{"arc",
                    "mnuluk2",
                    {"10", "1"},
                    "Invalid input. Check values for S, L.",
                    MsgIcon::Critical,
                    "the angle found is above 2*pi"},
        RefusalCase{"arc",
                    "mnuluk5",
                    {"6.28318530717958", "1"},
                    "Invalid input. Check values for S, L.",
                    MsgIcon::Critical,
                    "an angle of exactly 2*pi"},
        // S = 10, L = 1: R = 20, ø = 0.05 passes; S = 1, L = 10: R = 0.2, ø = 50 does not.
        RefusalCase{"arc",
                    "mnuluk6",
                    {"1", "10"},
                    "Invalid input. Check values for S, L.",
                    MsgIcon::Critical,
                    "S, L giving an angle of 50"},
        RefusalCase{"arc",
                    "mnuluk3",
                    {"-2", "1"},
                    "Solution not found. Check data.",
                    MsgIcon::Critical,
                    "negative S faults in the root"},
        RefusalCase{"ring",
                    "mnuprsten1",
                    {"3", "0"},
                    "Invalid input: R > r > 0  required.",
                    MsgIcon::Critical,
                    "r = 0"},
        RefusalCase{"ring",
                    "mnuprsten2",
                    {"0", "2"},
                    "Invalid input: R-r, P > 0  required.",
                    MsgIcon::Critical,
                    "C = 0"},
        RefusalCase{"ring",
                    "mnuprsten3",
                    {"1", "0"},
                    "Invalid input: R+r, S > 0  required.",
                    MsgIcon::Critical,
                    "R + r = 0"},
        RefusalCase{"ring",
                    "mnuprsten4",
                    {"1", "0"},
                    "Invalid input: S, P > 0  required",
                    MsgIcon::Critical,
                    "S = 0 (the message has no full stop)"},
        RefusalCase{"ring",
                    "mnuprsten3",
                    {"-1", "4"},
                    "Solution not found. Check data.",
                    MsgIcon::Critical,
                    "negative S faults in the root"}));

TEST(CirclePage, OptionsAndTexts) {
  GeoPage page("Circle");
  EXPECT_EQ(page.Kind().menu, "mnukrug");
  EXPECT_EQ(page.State().boxes.Size(), kCircleBoxes.size());
  page.State().boxes.SetText("txtKR", "2");
  ASSERT_TRUE(page.SelectOption("Arc"));
  EXPECT_EQ(page.State().boxes.Text("txtKR"), "2") << "only the Triangle page clears on an option";
  EXPECT_EQ(page.Kind().menu, "mnuluk");
  ASSERT_TRUE(page.SelectOption("Ring"));
  EXPECT_EQ(page.Kind().menu, "mnuprsten");
  EXPECT_EQ(LengthCaption(false), "Circumference");
  EXPECT_EQ(LengthCaption(true), "Arc Lenght");
  EXPECT_EQ(kArcRadiansCaption, "Rad");
  EXPECT_EQ(kArcRadiansToolTip, "Convert to radians");
}

TEST(CirclePage, HelpTexts) {
  const std::pair<std::span<const std::string_view>, std::vector<std::string_view>> cases[] = {
      // The circle's help names the two formulas the wrong way round.
      {CircleHelp(),
       {"Circle: D = 2 * R", "Cirumference: C = pi * R^2 = pi /4 * D^2", "Area: S = 2 * pi * R = pi * D"}},
      {ArcHelp(), {"Arc: R , ø", "Area: S = 1/2 * R^2 * ø", "Lenght: L = R * ø"}},
      {RingHelp(), {"Ring: R, r", "S = pi * (R - r)^2", "C =2 * pi * (R + r)"}},
  };
  for (const auto& [texts, expected] : cases) {
    EXPECT_EQ(std::vector<std::string_view>(texts.begin(), texts.end()), expected);
  }
}

TEST(CirclePage, MenuCaptions) {
  const std::pair<std::span<const MenuEntry>, std::vector<std::string_view>> menus[] = {
      {CircleMenu(), {"Radius: R", "Diameter: D", "Area: S", "Circumference: C"}},
      {ArcMenu(),
       {"Radius: R, Angle ø", "Area: S, Radius: R", "Area S, Angle ø", "Lenght L, Angle ø",
        "Lenght L, Radius R", "Area S, Lenght L"}},
  };
  for (const auto& [menu, captions] : menus) {
    ASSERT_EQ(menu.size(), captions.size());
    for (std::size_t i = 0; i < menu.size(); ++i) EXPECT_EQ(menu[i].caption, captions[i]);
  }
}

}  // namespace
}  // namespace velmora::geometry
