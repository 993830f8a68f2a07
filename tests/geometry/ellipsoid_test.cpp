#include "geometry/ellipsoid.h"

#include <gtest/gtest.h>

#include "geometry/geopage.h"
#include "tests/geometry/geotest.h"

namespace velmora::geometry {
namespace {

using platform::MsgIcon;
using testing::CheckRefusal;
using testing::CheckSolve;
using testing::RefusalCase;
using testing::RunEntry;
using testing::SolveCase;
using testing::Texts;

// R1 = 2, R2 = 1: S = 2 pi; h = 1/9, P = 3 pi (1 + (1/3) / (10 + Sqr(11/3))) = 9.68845.
const Texts kEllipse21 = {
    {"txtRe1", "2"}, {"txtRe2", "1"}, {"txtELaREA", "6.28319"}, {"txtEvolume", "9.68845"}};

class EllipsoidSolveTest : public ::testing::TestWithParam<SolveCase> {};
TEST_P(EllipsoidSolveTest, WritesTheRecord) { CheckSolve(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, EllipsoidSolveTest,
    ::testing::Values(
        SolveCase{"ellipse",
                  "mnuelipsaf1",
                  {"2", "1"},
                  kEllipse21,
                  {"Elipse: R1 = 2 ; R2 = 1 ; P = 9.68845", "S = 6.28319"},
                  "R1, R2 by Ramanujan's perimeter"},
        // The larger radius is taken as R1.
        SolveCase{"ellipse", "mnuelipsaf1", {"1", "2"}, kEllipse21, {}, "R1 = 1, R2 = 2 is solved as 2, 1"},
        // S = 2 pi, R1 = 2: R2 = 2 pi / (2 pi) = 1.
        SolveCase{"ellipse", "mnuelipsaf2", {"6.28318530717958", "2"}, kEllipse21, {}, "S, R1"},
        // S = 2 pi, R2 = 1: R1 = 2.
        SolveCase{"ellipse", "mnuelipsaf3", {"6.28318530717958", "1"}, kEllipse21, {}, "S, R2"},
        // R1 = R2 = 1: h = 0 and P = pi * 2 = 2*pi, the circle.
        SolveCase{"ellipse",
                  "mnuelipsaf1",
                  {"1", "1"},
                  {{"txtRe1", "1"}, {"txtRe2", "1"}, {"txtELaREA", "3.14159"}, {"txtEvolume", "6.28319"}},
                  {},
                  "equal radii give the circle's perimeter"},
        // V = 4/3 pi * 1 * 2 * 3 = 8 pi.
        SolveCase{"ellipsoid",
                  "mnuElipsoidVolume",
                  {"1", "2", "3"},
                  {{"txtRe1", "1"}, {"txtRe2", "2"}, {"txtRe3", "3"}, {"txtEvolume", "25.13274"}},
                  {"Ellipsoid: R1 = 1 ; R2 = 2 ; R3 = 3", "V = 25.13274"},
                  "volume"},
        SolveCase{"ellipsoid",
                  "mnuElipsoidVolume",
                  {"-1", "2", "3"},
                  {{"txtEvolume", "-25.13274"}},
                  {},
                  "a negative radius passes the test for 0"},
        // R1 = 2, R2 = 1: e = Sqr(3)/2, Arcsin(e) = pi/3; S = 2 pi (1 + 2 (pi/3) / e) = 21.47844.
        SolveCase{"ellipsoid",
                  "mnuElipsoid1",
                  {"2", "1"},
                  {{"txtRe1", "2"}, {"txtRe2", "1"}, {"txtELaREA", "21.47844"}, {"txtEvolume", ""}},
                  {"Ellipsoid: R1 = 2 ; R2 = 1 (Rotating around R1)", "e = 0.86603", "S = 21.47844"},
                  "prolate spheroid"},
        // S = 2 pi * 4 * (1 + (1/4) Ln((1 + e)/(1 - e)) / (2e)) = 34.68753.
        SolveCase{"ellipsoid",
                  "mnuElipsoid2",
                  {"2", "1"},
                  {{"txtRe1", "2"}, {"txtRe2", "1"}, {"txtELaREA", "34.68753"}},
                  {"Ellipsoid: R1 = 2 ; R2 = 1 (Rotating around R2)", "e = 0.86603", "S = 34.68753"},
                  "oblate spheroid"}));

class EllipsoidRefusalTest : public ::testing::TestWithParam<RefusalCase> {};
TEST_P(EllipsoidRefusalTest, ShowsItsMessageAndWritesNothing) { CheckRefusal(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, EllipsoidRefusalTest,
    ::testing::Values(
        RefusalCase{"ellipse", "mnuelipsaf1", {"0", "1"}, "Ivalid input.", MsgIcon::Critical, "R1 = 0"},
        RefusalCase{"ellipse", "mnuelipsaf1", {"2", "-1"}, "Ivalid input.", MsgIcon::Critical, "negative R2"},
        RefusalCase{"ellipse", "mnuelipsaf2", {"-6", "2"}, "Ivalid input.", MsgIcon::Critical, "negative S"},
        RefusalCase{"ellipse", "mnuelipsaf3", {"6", ""}, "Ivalid input.", MsgIcon::Critical, "empty R2"},
        RefusalCase{"ellipsoid",
                    "mnuElipsoidVolume",
                    {"1", "2", "0"},
                    "Invalid input: R = 0  required.",
                    MsgIcon::Critical,
                    "R3 = 0"},
        // R1 = R2 is refused, which keeps e away from 0.
        RefusalCase{"ellipsoid",
                    "mnuElipsoid1",
                    {"1", "1"},
                    "Invalid input: R > 0, R1 > R2  required.",
                    MsgIcon::Critical,
                    "equal radii about R1"},
        RefusalCase{"ellipsoid",
                    "mnuElipsoid1",
                    {"1", "2"},
                    "Invalid input: R > 0, R1 > R2  required.",
                    MsgIcon::Critical,
                    "R1 < R2 about R1"},
        RefusalCase{"ellipsoid",
                    "mnuElipsoid2",
                    {"1", "1"},
                    "Invalid input: R > 0, R1 > R2 required.",
                    MsgIcon::Critical,
                    "equal radii about R2, one blank shorter"},
        RefusalCase{"ellipsoid",
                    "mnuElipsoid2",
                    {"2", "-1"},
                    "Invalid input: R > 0, R1 > R2 required.",
                    MsgIcon::Critical,
                    "negative R2 about R2"}));

TEST(Ellipse, EqualRadiiAreLabelled) {
  velmora::testing::RecordingMessageBox box;
  EXPECT_EQ(RunEntry("ellipse", "mnuelipsaf1", {"1", "1"}, box).label, "R1 = R2");
  EXPECT_EQ(RunEntry("ellipse", "mnuelipsaf1", {"2", "1"}, box).label, "");
}

TEST(EllipsoidPage, OptionSetsTheLabels) {
  GeoPage page("Ellipsoid");
  EXPECT_EQ(page.Kind().option, "Ellipse");
  EXPECT_EQ(EllipsePageLabels(false).lblEobim, "Perimeter");
  EXPECT_EQ(EllipsePageLabels(false).lblArea, "Area");
  ASSERT_TRUE(page.SelectOption("Ellipsoid"));
  EXPECT_EQ(page.Kind().menu, "mnuElipsoid");
  EXPECT_EQ(EllipsePageLabels(true).lblEobim, "Volume");
  EXPECT_EQ(EllipsePageLabels(true).lblArea, "Surface");
  EXPECT_EQ(page.State().boxes.Size(), 5u) << "the ellipse's and ellipsoid's boxes together";
}

TEST(EllipsoidPage, HelpTextsAndCaptions) {
  const auto ellipse = EllipseHelp();
  EXPECT_EQ(std::vector<std::string_view>(ellipse.begin(), ellipse.end()),
            (std::vector<std::string_view>{"Ellipse: R1 > R2 ", "Perimeter (Ramanujan's formula):",
                                           "P = pi * (R1+R2) [ 1 + 3*h / (10 + Sqr(4 - 3*h)]",
                                           "h = (R1 - R2)^2 /(R1 + R2)^2", "Area: S = pi * R1 *  R2"}));
  const auto ellipsoid = EllipsoidHelp();
  EXPECT_EQ(std::vector<std::string_view>(ellipsoid.begin(), ellipsoid.end()),
            (std::vector<std::string_view>{
                "Ellipsoid: R1, R2, (R3)", "S = 2 * pi * R2^2 * [ 1 + (R1/R2) * Arcsin(e) / e ]",
                "Eccentricity: e = Sqr(1 - (R2 / R1)^2)", "Volume: V = 4/3 * pi * R1 * R2 * R3"}));
  EXPECT_EQ(EllipsoidMenu()[0].caption, "Rotating aroud R1");
  EXPECT_EQ(EllipsoidMenu()[1].caption, "Rotating around R2");
  EXPECT_EQ(EllipsoidMenu()[2].caption, "Volume");
  EXPECT_EQ(EllipseMenu()[1].caption, "S, R1");
}

}  // namespace
}  // namespace velmora::geometry
