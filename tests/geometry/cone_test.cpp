#include "geometry/cone.h"

#include <gtest/gtest.h>

#include "tests/geometry/geotest.h"

namespace velmora::geometry {
namespace {

using platform::MsgIcon;
using testing::CheckRefusal;
using testing::CheckSolve;
using testing::RefusalCase;
using testing::SolveCase;
using testing::Texts;

// R = 3, H = 4: a = 5, B = 9 pi, S = pi * 3 * 5 = 15 pi, V = 1/3 pi 9 * 4 = 12 pi; the apex angle
// atan(3/4) = 0.6435.
const Texts kCone34 = {{"txtCR", "3"},        {"txtCH", "4"},       {"txtCa", "5"},
                       {"txtCb", "28.27433"}, {"txtCFi", "0.6435"}, {"txtCS", "47.12389"},
                       {"txtCV", "37.69911"}};
// The same cone with the base angle atan(4/3) = 0.9273, as the last three cases measure it.
const Texts kCone34Base = {{"txtCR", "3"},        {"txtCH", "4"},       {"txtCa", "5"},
                           {"txtCb", "28.27433"}, {"txtCFi", "0.9273"}, {"txtCS", "47.12389"},
                           {"txtCV", "37.69911"}};
// R = 3, H = 4, a = 2: q = 3 * 2 / 4 = 1.5; S = pi (3 * 5 - 1.5 * 2.5) = 11.25 pi.
const Texts kFrustrum = {
    {"txtFR", "3"}, {"txtFH", "4"}, {"txtFA", "2"}, {"txtFQ", "1.5"}, {"txtFArea", "35.34292"}};

class ConeSolveTest : public ::testing::TestWithParam<SolveCase> {};
TEST_P(ConeSolveTest, WritesTheRecord) { CheckSolve(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, ConeSolveTest,
    ::testing::Values(
        SolveCase{"cone",
                  "mnuK1",
                  {"3", "4"},
                  kCone34,
                  {"Cone: R = 3 H = 4 a = 5", "B = 28.27433 ø = 0.6435", "S = 47.12389 V = 37.69911"},
                  "R, H"},
        SolveCase{"cone", "mnuK2", {"5", "4"}, kCone34, {}, "a, H: R = Sqr(25 - 16)"},
        SolveCase{"cone", "mnuK3", {"5", "3"}, kCone34, {}, "a, R: H = Sqr(25 - 9)"},
        SolveCase{"cone", "mnuK4", {"28.2743338823081", "4"}, kCone34, {}, "B = 9 pi, H: R = 3, a = 3 / 0.6"},
        SolveCase{"cone", "mnuK5", {"4", "0.927295218001612"}, kCone34Base, {}, "H, base angle: a = 4 / 0.8"},
        SolveCase{"cone",
                  "mnuK6",
                  {"5", "0.927295218001612"},
                  kCone34Base,
                  {},
                  "a, base angle: R = 5 cos, H = 5 sin"},
        // R = 3, ø = 1: only B is right; H, a, S and V come out as 0.
        SolveCase{"cone",
                  "mnuK7",
                  {"3", "1"},
                  {{"txtCR", "3"},
                   {"txtCH", "0"},
                   {"txtCa", "0"},
                   {"txtCb", "28.27433"},
                   {"txtCFi", "1"},
                   {"txtCS", "0"},
                   {"txtCV", "0"}},
                  {"Cone: R = 3 H = 0 a = 0", "B = 28.27433 ø = 1", "S = 0 V = 0"},
                  "R, ø leaves the zeros of the routine"},
        SolveCase{"cfrustrum",
                  "mnufrcone1",
                  {"3", "4", "2"},
                  kFrustrum,
                  {"Cone Frustrum: R = 3 ; H = 4", "q = 1.5 ; a = 2", "S = 35.34292"},
                  "R, H, a: q = R (H - a) / H"},
        SolveCase{"cfrustrum", "mnufrcone2", {"3", "1.5", "2"}, kFrustrum, {}, "R, q, a: H = 2 * 3 / 1.5"},
        SolveCase{"cfrustrum", "mnufrcone3", {"3", "1.5", "4"}, kFrustrum, {}, "R, q, H: a = 4 * 1.5 / 3"},
        SolveCase{"cfrustrum", "mnufrcone4", {"3", "1.5", "2"}, kFrustrum, {}, "the second R, q, a entry"},
        SolveCase{"cfrustrum", "mnufrcone5", {"4", "1.5", "2"}, kFrustrum, {}, "H, q, a: R = 1.5 * 4 / 2"}));

class ConeRefusalTest : public ::testing::TestWithParam<RefusalCase> {};
TEST_P(ConeRefusalTest, ShowsItsMessageAndWritesNothing) { CheckRefusal(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, ConeRefusalTest,
    ::testing::Values(
        RefusalCase{
            "cone", "mnuK1", {"3", "0"}, "Invalid input: R > 0, H > 0 required.", MsgIcon::Critical, "H = 0"},
        RefusalCase{"cone",
                    "mnuK2",
                    {"3", "4"},
                    "Invalid input: a > H > 0 required.",
                    MsgIcon::Critical,
                    "a = 3, H = 4: the slant is shorter than the height"},
        RefusalCase{
            "cone", "mnuK3", {"3", "3"}, "Invalid input: a > R > 0 required.", MsgIcon::Critical, "a = R"},
        RefusalCase{"cone",
                    "mnuK4",
                    {"-1", "4"},
                    "Invalid input: B > 0, H > 0 required.",
                    MsgIcon::Critical,
                    "negative B"},
        RefusalCase{"cone",
                    "mnuK5",
                    {"4", "0"},
                    "Invalid input: Fi > 0, H > 0 required.",
                    MsgIcon::Critical,
                    "ø = 0"},
        RefusalCase{"cone",
                    "mnuK6",
                    {"0", "1"},
                    "Invalid input: Fi > 0, A > 0 required.",
                    MsgIcon::Critical,
                    "a = 0"},
        RefusalCase{"cone",
                    "mnuK7",
                    {"3", "-1"},
                    "Invalid input: Fi > 0, R > 0 required.",
                    MsgIcon::Critical,
                    "negative ø"},
        RefusalCase{"cone",
                    "mnuK1",
                    {"1e200", "1e-200"},
                    "Invalid input.",
                    MsgIcon::Critical,
                    "a fault: the volume overflows"},
        RefusalCase{"cfrustrum", "mnufrcone1", {"3", "0", "2"}, "Ivalid input.", MsgIcon::Critical, "H = 0"},
        RefusalCase{
            "cfrustrum", "mnufrcone5", {"4", "-1", "2"}, "Ivalid input.", MsgIcon::Critical, "negative q"},
        // R = 1, q = 2: H = a R / (R - q) = -1, below a.
        RefusalCase{"cfrustrum",
                    "mnufrcone2",
                    {"1", "2", "1"},
                    "Ivalid input. (a < H)",
                    MsgIcon::Critical,
                    "q above R gives a negative height"},
        RefusalCase{"cfrustrum",
                    "mnufrcone4",
                    {"1", "2", "1"},
                    "Ivalid input. (a < H)",
                    MsgIcon::Critical,
                    "the twin entry refuses alike"},
        // H = 1, a = 2: R = q H / (H - a) = -1, below q.
        RefusalCase{"cfrustrum",
                    "mnufrcone5",
                    {"1", "1", "2"},
                    "Ivalid input. (q < R)",
                    MsgIcon::Critical,
                    "a cut above the apex"},
        RefusalCase{"cfrustrum",
                    "mnufrcone2",
                    {"2", "2", "1"},
                    "Check selected values.",
                    MsgIcon::Critical,
                    "q = R divides by zero"}));

TEST(Cylinder, VolumeAndRefusal) {
  velmora::testing::RecordingMessageBox box;
  Figure f{BoxRecord(kCylinderBoxes)};
  f.boxes.SetText("txtCR", "2");
  f.boxes.SetText("txtCH", "3");
  Cilinder(f, box);
  EXPECT_TRUE(box.Boxes().empty());
  // V = pi * 4 * 3 = 12 pi.
  EXPECT_EQ(f.boxes.Text("txtCV"), "37.69911");
  EXPECT_EQ(f.result, (std::vector<std::string>{"Cilinder: R = 2 ; H = 3", "Volume: V = pi * R^2 * H",
                                                "V = 37.69911"}));
  Figure g{BoxRecord(kCylinderBoxes)};
  g.boxes.SetText("txtCR", "0");
  g.boxes.SetText("txtCH", "3");
  Cilinder(g, box);
  testing::ExpectOneMessage(box, "Invalid inpit", MsgIcon::Critical, "R = 0");
  EXPECT_EQ(g.boxes.Text("txtCV"), "");
}

TEST(ConePage, TextsAndCaptions) {
  const auto cone = ConeHelp();
  EXPECT_EQ(std::vector<std::string_view>(cone.begin(), cone.end()),
            (std::vector<std::string_view>{"Cone: R, H, a", "Surface: S = pi * R * a",
                                           "Volume: V = 1/3 * pi * R^2 * H"}));
  const auto frustrum = ConeFrustrumHelp();
  EXPECT_EQ(std::vector<std::string_view>(frustrum.begin(), frustrum.end()),
            (std::vector<std::string_view>{"Cone Frustrum: R, H, q, a",
                                           "S = pi * [R*Sqr(R^2+H^2)-q*Sqr(q^2+(H^2-a^2))",
                                           "q = R*(H - a)/H ; H = a*R/(R - q)"}));
  EXPECT_EQ(CylinderHelp()[0], "Volume: V = pi * R^2 * H");
  // Two entries with the same caption and computation both stay.
  const auto menu = ConeFrustrumMenu();
  ASSERT_EQ(menu.size(), 5u);
  EXPECT_EQ(menu[1].caption, "R, q, a");
  EXPECT_EQ(menu[3].caption, "R, q, a");
  EXPECT_EQ(menu[1].solve, menu[3].solve);
  const std::vector<std::string_view> captions = {"R, H",       "a, H",       "a, R",      "B, H",
                                                  "H, Angle ø", "a, Angle ø", "R, Angle ø"};
  ASSERT_EQ(ConeMenu().size(), captions.size());
  for (std::size_t i = 0; i < captions.size(); ++i) EXPECT_EQ(ConeMenu()[i].caption, captions[i]);
}

}  // namespace
}  // namespace velmora::geometry
