#include "geometry/sphere.h"

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

// R = 3: D = 6, S = 36 pi, V = 4/3 pi 27 = 36 pi, so V / S = S / V = 1.
const Texts kSphere3 = {{"txtSR", "3"},           {"txtSD", "6"},  {"txtSArea", "113.09734"},
                        {"txtSzap", "113.09734"}, {"txtSK1", "1"}, {"txtSK2", "1"}};
// The zone R = 2, H = 1: S = 2 pi * 2 * 1 = 4 pi.
const Texts kZone21 = {
    {"txtFR", "2"}, {"txtFH", "1"}, {"txtFArea", "12.56637"}, {"txtFA", ""}, {"txtFQ", ""}};

class SphereSolveTest : public ::testing::TestWithParam<SolveCase> {};
TEST_P(SphereSolveTest, WritesTheRecord) { CheckSolve(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, SphereSolveTest,
    ::testing::Values(
        SolveCase{"sphere",
                  "mnulopta1",
                  {"3"},
                  kSphere3,
                  {"Sphere: R = 3 ; D = 6", "Volume: V = 113.09734", "Area: S = 113.09734"},
                  "R = 3"},
        SolveCase{"sphere", "mnulopta2", {"6"}, kSphere3, {}, "D = 6: R = 3"},
        // S = 36 pi: R = Sqr(36 pi / 4 pi) = 3.
        SolveCase{"sphere", "mnulopta3", {"113.097335529233"}, kSphere3, {}, "S = 36 pi"},
        // V = 36 pi: R = (108 pi / 4 pi)^(1/3) = 27^(1/3) = 3.
        SolveCase{"sphere", "mnulopta4", {"113.097335529233"}, kSphere3, {}, "V = 36 pi"},
        // K = V / S = R / 3: R = 3K.
        SolveCase{"sphere", "mnulopta5", {"1"}, kSphere3, {}, "V / S = 1"},
        // K = S / V = 3 / R: R = 3 / K.
        SolveCase{"sphere", "mnulopta6", {"1"}, kSphere3, {}, "S / V = 1"},
        // R = 1: S = 4 pi, V = 4/3 pi, K1 = 1/3, K2 = 3.
        SolveCase{"sphere",
                  "mnulopta1",
                  {"1"},
                  {{"txtSArea", "12.56637"}, {"txtSzap", "4.18879"}, {"txtSK1", "0.33333"}, {"txtSK2", "3"}},
                  {},
                  "unit sphere"},
        SolveCase{"sphere",
                  "mnulopta1",
                  {"-3"},
                  {{"txtSD", "-6"}, {"txtSArea", "113.09734"}, {"txtSzap", "-113.09734"}, {"txtSK1", "-1"}},
                  {},
                  "a negative radius only fails the test for 0"},
        SolveCase{"sfrustrum",
                  "mnufrsphere1",
                  {"2", "1"},
                  kZone21,
                  {"Sphere Frustrum: R = 2 ; H = 1", "Area: S = 12.56637"},
                  "R = 2, H = 1: S = 2 pi R H"},
        // S = 4 pi, R = 2: H = 4 pi / 4 pi = 1.
        SolveCase{"sfrustrum", "mnufrsphere2", {"12.5663706143592", "2"}, kZone21, {}, "S and R"},
        // S = 4 pi, H = 1: R = 4 pi / 2 pi = 2.
        SolveCase{"sfrustrum", "mnufrsphere3", {"12.5663706143592", "1"}, kZone21, {}, "S and H"}));

class SphereRefusalTest : public ::testing::TestWithParam<RefusalCase> {};
TEST_P(SphereRefusalTest, ShowsItsMessageAndWritesNothing) { CheckRefusal(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, SphereRefusalTest,
    ::testing::Values(
        RefusalCase{"sphere",
                    "mnulopta1",
                    {"0"},
                    "Invalid input:  R > 0 required.",
                    MsgIcon::Critical,
                    "R = 0, with two blanks"},
        RefusalCase{
            "sphere", "mnulopta2", {"0"}, "Invalid input: D > 0 required.", MsgIcon::Critical, "D = 0"},
        RefusalCase{
            "sphere", "mnulopta3", {""}, "Invalid input: S > 0 required.", MsgIcon::Critical, "empty S"},
        RefusalCase{
            "sphere", "mnulopta4", {"0"}, "Invalid input: V > 0 required.", MsgIcon::Critical, "V = 0"},
        RefusalCase{
            "sphere", "mnulopta5", {"0"}, "Invalid input: V/S > 0 required.", MsgIcon::Critical, "K = 0"},
        RefusalCase{"sphere",
                    "mnulopta5",
                    {"-1"},
                    "Invalid input: V/S > 0 required.",
                    MsgIcon::Critical,
                    "negative V / S"},
        RefusalCase{"sphere",
                    "mnulopta6",
                    {"-1"},
                    "Invalid input: S/V > 0 required.",
                    MsgIcon::Critical,
                    "negative S / V"},
        RefusalCase{"sphere",
                    "mnulopta3",
                    {"-1"},
                    "Solution not found. Check data.",
                    MsgIcon::Critical,
                    "negative S faults in the root"},
        RefusalCase{"sphere",
                    "mnulopta4",
                    {"-1"},
                    "Solution not found. Check data.",
                    MsgIcon::Critical,
                    "negative V faults in the cube root"},
        RefusalCase{"sfrustrum",
                    "mnufrsphere1",
                    {"2", "4"},
                    "Ivalid input. 2R > H > 0.",
                    MsgIcon::Critical,
                    "H = 2R"},
        RefusalCase{
            "sfrustrum", "mnufrsphere1", {"2", "0"}, "Ivalid input. 2R > H > 0.", MsgIcon::Critical, "H = 0"},
        RefusalCase{"sfrustrum",
                    "mnufrsphere2",
                    {"0", "2"},
                    "Ivalid input. Check values for S, R.",
                    MsgIcon::Critical,
                    "S = 0"},
        // S = 100, R = 1: H = 15.9, more than the whole sphere.
        RefusalCase{"sfrustrum",
                    "mnufrsphere2",
                    {"100", "1"},
                    "Ivalid input. Check values for S, R.",
                    MsgIcon::Critical,
                    "an area larger than the sphere"},
        RefusalCase{"sfrustrum",
                    "mnufrsphere3",
                    {"1", "-1"},
                    "Ivalid input. Check values for S, H.",
                    MsgIcon::Critical,
                    "negative H"}));

TEST(SpherePage, TextsAndCaptions) {
  const auto sphere = SphereHelp();
  EXPECT_EQ(std::vector<std::string_view>(sphere.begin(), sphere.end()),
            (std::vector<std::string_view>{"Sphere: R", "V = 4/3 * pi * R^3", "S = 4 * pi * R^2"}));
  const auto zone = SphereFrustrumHelp();
  EXPECT_EQ(std::vector<std::string_view>(zone.begin(), zone.end()),
            (std::vector<std::string_view>{"Sphere Frustrum: R, H", "Area: S = 2 * pi * R * H"}));
  EXPECT_EQ(SphereMenu()[4].caption, "Relation: K = V / S");
  EXPECT_EQ(SphereMenu()[5].caption, "Relation: K = S /V");
  EXPECT_EQ(SphereFrustrumMenu()[2].caption, "Area: S, Heght: H");
  EXPECT_EQ(kShadeSphereCaption, "Shade Sphere");
  EXPECT_EQ(FrustrumOptionCaption(false), "Cone");
  EXPECT_EQ(FrustrumOptionCaption(true), "Sphere");
  GeoPage page("Frustrum");
  EXPECT_EQ(page.Kind().menu, "mnufrusrumcone");
  ASSERT_TRUE(page.SelectOption("Sphere"));
  EXPECT_EQ(page.Kind().menu, "mnufrustrumsphere");
}

}  // namespace
}  // namespace velmora::geometry
