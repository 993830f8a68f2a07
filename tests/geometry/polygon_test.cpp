#include "geometry/polygon.h"

#include <gtest/gtest.h>

#include "tests/geometry/geotest.h"

namespace velmora::geometry {
namespace {

using platform::MsgIcon;
using testing::CheckRefusal;
using testing::RefusalCase;
using testing::RunEntry;
using testing::Texts;

struct PolygonCase {
  std::string entry;
  std::vector<std::string> values;
  Texts boxes;
  std::string name;
  std::string note;
  std::string why;
};

class PolygonSolveTest : public ::testing::TestWithParam<PolygonCase> {};

TEST_P(PolygonSolveTest, WritesTheRecordAndTheName) {
  const auto& c = GetParam();
  velmora::testing::RecordingMessageBox box;
  const Figure f = RunEntry("polygon", c.entry, c.values, box);
  EXPECT_TRUE(box.Boxes().empty()) << c.why;
  testing::ExpectBoxes(f, c.boxes, c.why);
  EXPECT_EQ(f.label, c.name) << c.why;
  EXPECT_EQ(f.note, c.note) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, PolygonSolveTest,
    ::testing::Values(
        // Square of side 1: R = 1 / (2 sin 45°) = 0.70711, H = 0.5, S = 1/2 * 1 * 0.5 * 4 = 1,
        // Nd = 4 * 1 / 2 = 2, angles 90°, 90°, 360°, P / 2R = 4 / 1.41421.
        PolygonCase{"a",
                    {"4", "1"},
                    {{"txtPN", "4"},
                     {"txtPA", "1"},
                     {"txtPR", "0.70711"},
                     {"txtPH", "0.5"},
                     {"txtPArea", "1"},
                     {"txtPobim", "4"},
                     {"txtPFi", "90"},
                     {"txtPalfa", "90"},
                     {"txtpSuma", "360"},
                     {"txtPNd", "2"},
                     {"txtPodnos", "2.82843"}},
                    "SQUARE",
                    "",
                    "N = 4, a = 1"},
        // Heptagon from its side: the central and interior angles show 5 decimals (360/7, 900/7).
        PolygonCase{"a",
                    {"7", "1"},
                    {{"txtPR", "1.15238"},
                     {"txtPH", "1.03826"},
                     {"txtPArea", "3.63391"},
                     {"txtPFi", "51.42857"},
                     {"txtPalfa", "128.57143"},
                     {"txtpSuma", "900"},
                     {"txtPNd", "14"},
                     {"txtPodnos", "3.03719"}},
                    "HEPTAGON",
                    "",
                    "N = 7 from a: five decimals"},
        // Heptagon from R = 1: a = 2 sin(pi/7) = 0.86777; the same two angles show 2 decimals.
        PolygonCase{"R",
                    {"7", "1"},
                    {{"txtPA", "0.86777"},
                     {"txtPH", "0.90097"},
                     {"txtPArea", "2.73641"},
                     {"txtPobim", "6.07437"},
                     {"txtPFi", "51.43"},
                     {"txtPalfa", "128.57"},
                     {"txtpSuma", "900"}},
                    "HEPTAGON",
                    "",
                    "N = 7 from R: two decimals"},
        // Triangle in the unit circle: a = 2 sin 60° = Sqr(3), H = cos 60° = 0.5, S = 3 Sqr(3) / 4.
        PolygonCase{"R",
                    {"3", "1"},
                    {{"txtPA", "1.73205"},
                     {"txtPH", "0.5"},
                     {"txtPArea", "1.29904"},
                     {"txtPobim", "5.19615"},
                     {"txtPFi", "120"},
                     {"txtPalfa", "60"},
                     {"txtpSuma", "180"},
                     {"txtPNd", "0"},
                     {"txtPodnos", "2.59808"}},
                    "TRIANGLE",
                    "",
                    "N = 3, R = 1"},
        // Hexagon of apothem Sqr(3)/2: R = 1, a = 1, S = 3 Sqr(3) / 2, Nd = 9, P / 2R = 3.
        PolygonCase{"H",
                    {"6", "0.866025403784439"},
                    {{"txtPR", "1"},
                     {"txtPA", "1"},
                     {"txtPArea", "2.59808"},
                     {"txtPobim", "6"},
                     {"txtPFi", "60"},
                     {"txtPalfa", "120"},
                     {"txtpSuma", "720"},
                     {"txtPNd", "9"},
                     {"txtPodnos", "3"}},
                    "HEXAGON",
                    "",
                    "N = 6 from H"},
        // N = 3.5 passes the check; the formulas run on the fraction and there is no name.
        PolygonCase{"a",
                    {"3.5", "1"},
                    {{"txtPN", "3.5"},
                     {"txtPR", "0.63952"},
                     {"txtPNd", "0.875"},
                     {"txtPFi", "102.85714"},
                     {"txtpSuma", "270"}},
                    "",
                    "",
                    "fractional N"},
        // N = 17: solved, not drawn.
        PolygonCase{"a",
                    {"17", "1"},
                    {{"txtPR", "2.7211"}, {"txtPNd", "119"}, {"txtpSuma", "2700"}},
                    "",
                    "For N > 16 preview not available.",
                    "N = 17 shows the preview note"},
        PolygonCase{"a", {"16", "1"}, {{"txtPNd", "104"}}, "HEXAKADECAGON", "", "N = 16 is still drawn"}));

TEST(Polygon, NamesByN) {
  const std::pair<double, std::string_view> names[] = {{3, "TRIANGLE"},
                                                       {4, "SQUARE"},
                                                       {5, "PENTAGON"},
                                                       {6, "HEXAGON"},
                                                       {7, "HEPTAGON"},
                                                       {8, "OCTAGON"},
                                                       {9, "NONAGON"},
                                                       {10, "DECAGON"},
                                                       {11, "UNDECAGON"},
                                                       {12, "DODECAGON"},
                                                       {13, "TRISKADECAGON"},
                                                       {14, "TETRAKADECAGON"},
                                                       {15, "PENTAKADECAGON"},
                                                       {16, "HEXAKADECAGON"},
                                                       {17, ""},
                                                       {2, ""},
                                                       {3.5, ""}};
  for (const auto& [n, name] : names) EXPECT_EQ(PolygonName(n), name) << n;
}

class PolygonRefusalTest : public ::testing::TestWithParam<RefusalCase> {};
TEST_P(PolygonRefusalTest, ShowsItsMessageAndWritesNothing) { CheckRefusal(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, PolygonRefusalTest,
    ::testing::Values(
        RefusalCase{"polygon",
                    "a",
                    {"2", "1"},
                    "Invalid input: n >= 3, a > 0  required.",
                    MsgIcon::Critical,
                    "N = 2 is refused"},
        RefusalCase{"polygon",
                    "a",
                    {"5", "0"},
                    "Invalid input: n >= 3, a > 0  required.",
                    MsgIcon::Critical,
                    "a = 0"},
        RefusalCase{"polygon",
                    "R",
                    {"2.9", "1"},
                    "Invalid input: n >= 3, R > 0  required.",
                    MsgIcon::Critical,
                    "N below 3"},
        RefusalCase{"polygon",
                    "R",
                    {"5", "-1"},
                    "Invalid input: n >= 3, R > 0  required.",
                    MsgIcon::Critical,
                    "negative R"},
        RefusalCase{"polygon",
                    "H",
                    {"", "1"},
                    "Invalid input: n >= 3, H > 0  required.",
                    MsgIcon::Critical,
                    "empty N"},
        RefusalCase{"polygon",
                    "H",
                    {"5", "0"},
                    "Invalid input: n >= 3, H > 0  required.",
                    MsgIcon::Critical,
                    "H = 0"},
        // N * (N - 3) / 2 overflows for N = 1E+200: the trap shows its own text.
        RefusalCase{
            "polygon", "a", {"1e200", "1"}, "Invalid input.", MsgIcon::Critical, "a fault in the formulas"}));

TEST(PolygonPage, HelpAndCaptions) {
  const auto help = PolygonHelp();
  EXPECT_EQ(std::vector<std::string_view>(help.begin(), help.end()),
            (std::vector<std::string_view>{"Polygon:  N, a, R ",
                                           "Apothem: H = R * Cos(ø / 2) ; R = a / [2 * sin(ø / 2)]",
                                           "Area: S = 1/2 * a * H * N", "Nd = N * (N - 3) / 2"}));
  ASSERT_EQ(PolygonMenu().size(), 3u);
  EXPECT_EQ(PolygonMenu()[0].name, "a");
  EXPECT_EQ(PolygonMenu()[1].name, "R");
  EXPECT_EQ(PolygonMenu()[2].name, "H");
}

}  // namespace
}  // namespace velmora::geometry
