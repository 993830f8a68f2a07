#include "geometry/triangle.h"

#include <gtest/gtest.h>

#include "geometry/geopage.h"
#include "tests/geometry/geotest.h"

namespace velmora::geometry {
namespace {

using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;
using testing::CheckRefusal;
using testing::CheckSolve;
using testing::RefusalCase;
using testing::RunEntry;
using testing::SolveCase;
using testing::Texts;

// The 3-4-5 triangle as every right-angled case writes it (a the hypotenuse).
const Texts kRight543 = {{"txtta", "5"},       {"txttb", "4"},       {"txttc", "3"},  {"txtta1", "1.5708"},
                         {"txttb1", "0.9273"}, {"txttc1", "0.6435"}, {"txtts", "6"},  {"txttarea", "6"},
                         {"txttobim", "12"},   {"txttha", "2.4"},    {"txtthb", "3"}, {"txtthc", "4"},
                         {"txttRv", "2.5"},    {"txtRm", "1"}};

// The equilateral triangle with side 2.
const Texts kEquilateral2 = {{"txtta", "2"},        {"txttb", "2"},          {"txttc", "2"},
                             {"txtta1", "1.0472"},  {"txttb1", "1.0472"},    {"txttc1", "1.0472"},
                             {"txtts", "3"},        {"txttarea", "1.73205"}, {"txttobim", "6"},
                             {"txttha", "1.73205"}, {"txtthb", "1.73205"},   {"txtthc", "1.73205"},
                             {"txttRv", "1.1547"},  {"txtRm", "0.57735"}};

const std::vector<std::string> kEquilateral2Result = {"Equilateral Triangle: a = b = c = L = 2",
                                                      "Ha = Hb = Hc = 1.73205  R = 1.1547 r = 0.57735",
                                                      "Perimeter: 6  Area: 1.73205"};

class TriangleSolveTest : public ::testing::TestWithParam<SolveCase> {};
TEST_P(TriangleSolveTest, WritesTheRecord) { CheckSolve(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, TriangleSolveTest,
    ::testing::Values(
        // 3-4-5: p = 6, S = Sqr(6*3*2*1) = 6, R = 60/24, r = 6/6, heights 2S/side; the angles are
        // atan(3/4), atan(4/3) and the right angle, each rounded to 5 places.
        SolveCase{
            "triangle",
            "mnuabc",
            {"3", "4", "5"},
            {{"txtta", "3"},
             {"txttb", "4"},
             {"txttc", "5"},
             {"txtta1", "0.6435"},
             {"txttb1", "0.9273"},
             {"txttc1", "1.5708"},
             {"txtts", "6"},
             {"txttarea", "6"},
             {"txttobim", "12"},
             {"txttha", "4"},
             {"txtthb", "3"},
             {"txtthc", "2.4"},
             {"txttRv", "2.5"},
             {"txtRm", "1"}},
            // Degrees come from the rounded angles: 0.6435 * 180 / pi = 36.86983.
            {"Triangle: a = 3 b = 4 c = 5", "A = 0.6435 rad (36.86983 deg)", "B = 0.9273 rad (53.13038 deg)",
             "C = 1.5708 rad (90.00021 deg)", "Perimeter: 12   Area: 6"},
            "sides 3, 4, 5"},
        // a = 2, B = C = pi/4: A = pi/2, b = c = 2 sin(pi/4) = Sqr(2), S = 1/2 * 4 * 1/2 = 1,
        // R = 2*2/4 = 1, r = 1 / (1 + Sqr(2)).
        SolveCase{"triangle",
                  "mnuabc2",
                  {"2", "0.785398163397448", "0.785398163397448"},
                  {{"txtta", "2"},
                   {"txttb", "1.41421"},
                   {"txttc", "1.41421"},
                   {"txtta1", "1.5708"},
                   {"txttb1", "0.7854"},
                   {"txttc1", "0.7854"},
                   {"txtts", "2.41421"},
                   {"txttarea", "1"},
                   {"txttobim", "4.82843"},
                   {"txttha", "1"},
                   {"txtthb", "1.41421"},
                   {"txttRv", "1"},
                   {"txtRm", "0.41421"}},
                  {},
                  "side and two angles of a right isosceles triangle"},
        // b = 4, c = 3, A = pi/2: the law of tangents gives B = atan(4/3), C = atan(3/4), a = 4 / 0.8 = 5.
        SolveCase{"triangle",
                  "mnuabc3",
                  {"4", "3", "1.5707963267949"},
                  kRight543,
                  {"Triangle: a = 5 b = 4 c = 3", "A = 1.5708 rad (90 deg)", "B = 0.9273 rad (53.1301 deg)",
                   "C = 0.6435 rad (36.8699 deg)", "Perimeter: 12   Area: 6"},
                  "two sides and the included right angle"},
        // b = c = 1 and A = pi/3: D = 0, so B = C = pi/3 and a = 1: the equilateral triangle.
        SolveCase{"triangle",
                  "mnuabc3",
                  {"1", "1", "1.0471975511966"},
                  {{"txtta", "1"},
                   {"txttb1", "1.0472"},
                   {"txttc1", "1.0472"},
                   {"txttarea", "0.43301"},
                   {"txttha", "0.86603"},
                   {"txttRv", "0.57735"},
                   {"txtRm", "0.28868"}},
                  {},
                  "two equal sides and 60 degrees"},
        // a = 5, b = 4, A = 2 (obtuse, a > b): B = asin(0.8 sin 2), C = pi - B - 2; no second solution,
        // so no question is asked.
        SolveCase{"triangle",
                  "mnuabc4",
                  {"5", "4", "2"},
                  {{"txttc", "1.76628"},
                   {"txttb1", "0.81458"},
                   {"txttc1", "0.32701"},
                   {"txttarea", "3.21215"},
                   {"txttRv", "2.74938"},
                   {"txtRm", "0.59671"}},
                  {},
                  "obtuse A facing the longer side has one solution"},
        // Right-angled: a = 5, B = atan(4/3): b = 5 sin B = 4, c = 5 cos B = 3, S = 4*3/2.
        SolveCase{
            "triangle", "mnupravaB1", {"5", "0.927295218001612"}, kRight543, {}, "hypotenuse and angle"},
        // b = 4, B = atan(4/3): a = 4 / 0.8 = 5, c = 4 tan(C) = 4 * 0.75 = 3.
        SolveCase{"triangle", "mnupravbB2", {"4", "0.927295218001612"}, kRight543, {}, "side and angle"},
        // a = 5, b = 4: s = 0.8, B = atan(0.8 / 0.6), c = 5 sin(C) = 3.
        SolveCase{"triangle", "mnupravab3", {"5", "4"}, kRight543, {}, "hypotenuse and side"},
        // b = 4, c = 3: B = atan(4/3), a = 4 / sin B = 5.
        SolveCase{"triangle",
                  "mnupravbc4",
                  {"4", "3"},
                  kRight543,
                  {"Triangle: a = 5 b = 4 c = 3", "A = 1.5708 rad (90 deg)", "B = 0.9273 rad (53.1301 deg)",
                   "C = 0.6435 rad (36.8699 deg)", "Perimeter: 12   Area: 6"},
                  "two legs"},
        // Equilateral, L = 2: h = Sqr(3), S = Sqr(3), p = 3, P = 6, R = 2/Sqr(3), r = 1/Sqr(3).
        SolveCase{"triangle", "mnujednaka1", {"2"}, kEquilateral2, kEquilateral2Result, "side L = 2"},
        // Ha = Sqr(3): L = 2 * Sqr(3) / Sqr(3) = 2.
        SolveCase{
            "triangle", "mnujednakh2", {"1.73205080756888"}, kEquilateral2, kEquilateral2Result, "height"},
        // R = 2/Sqr(3): L = 3R / Sqr(3) = 2.
        SolveCase{"triangle", "mnujednakR3", {"1.15470053837925"}, kEquilateral2, kEquilateral2Result, "R"},
        // r = 1/Sqr(3): L = 6r / Sqr(3) = 2.
        SolveCase{"triangle", "mnujednakrm4", {"0.577350269189626"}, kEquilateral2, kEquilateral2Result, "r"},
        // S = Sqr(3): L = Sqr(4 Sqr(3) / Sqr(3)) = 2.
        SolveCase{
            "triangle", "mnujednakP5", {"1.73205080756888"}, kEquilateral2, kEquilateral2Result, "area"},
        // P = 6: L = 2.
        SolveCase{"triangle", "mnujednakO6", {"6"}, kEquilateral2, kEquilateral2Result, "perimeter"},
        // R = -1 passes the test for 0: L = -3/Sqr(3), a negative side, and every measure follows it.
        SolveCase{"triangle",
                  "mnujednakR3",
                  {"-1"},
                  {{"txtta", "-1.73205"},
                   {"txttha", "-1.5"},
                   {"txttarea", "1.29904"},
                   {"txtts", "-2.59808"},
                   {"txttobim", "-5.19615"},
                   {"txttRv", "-1"},
                   {"txtRm", "-0.5"}},
                  {},
                  "negative R is solved with a negative side"},
        // L = 0 has no check: everything is 0, with no division on the way.
        SolveCase{"triangle",
                  "mnujednaka1",
                  {"0"},
                  {{"txtta", "0"}, {"txttarea", "0"}, {"txttRv", "0"}, {"txtta1", "1.0472"}},
                  {},
                  "side 0 is not refused"}));

class TriangleRefusalTest : public ::testing::TestWithParam<RefusalCase> {};
TEST_P(TriangleRefusalTest, ShowsItsMessageAndWritesNothing) { CheckRefusal(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, TriangleRefusalTest,
    ::testing::Values(
        // p = 2.5, p - c = -0.5: the root of a negative number faults.
        RefusalCase{"triangle",
                    "mnuabc",
                    {"1", "1", "3"},
                    "Check selected values.",
                    MsgIcon::Critical,
                    "sides 1, 1, 3 break the triangle inequality"},
        RefusalCase{"triangle",
                    "mnuabc",
                    {"", "", ""},
                    "Check selected values.",
                    MsgIcon::Critical,
                    "empty boxes divide by zero"},
        RefusalCase{"triangle",
                    "mnuabc2",
                    {"3", "2", "1.2"},
                    "Check values for angles.",
                    MsgIcon::Critical,
                    "B + C above pi leaves A <= 0"},
        RefusalCase{"triangle",
                    "mnuabc3",
                    {"1", "1", "3.5"},
                    "Check values for angles.",
                    MsgIcon::Critical,
                    "A above pi makes B and C negative"},
        RefusalCase{"triangle",
                    "mnuabc4",
                    {"5", "6", "1.5707963267949"},
                    " A = 90. Select option for Rectangular triangle.",
                    MsgIcon::Information,
                    "a right angle belongs to the right-angled page"},
        RefusalCase{"triangle",
                    "mnuabc4",
                    {"1", "3", "0.5"},
                    "Solution not found. Check if: (b/a) * Sin(A) <= 1.",
                    MsgIcon::Critical,
                    "3 sin(0.5) is above 1"},
        RefusalCase{"triangle",
                    "mnuabc4",
                    {"4", "5", "3"},
                    "Must be: a > b. Check values for a, b A.",
                    MsgIcon::Critical,
                    "obtuse A facing the shorter side"},
        RefusalCase{"triangle",
                    "mnuabc4",
                    {"5", "5", "2"},
                    "Check values for angles.",
                    MsgIcon::Critical,
                    "obtuse A with a = b finds no angles"},
        RefusalCase{"triangle",
                    "mnupravaB1",
                    {"5", "1.5707963267949"},
                    "Invalid input: B < pi/2  required.",
                    MsgIcon::Critical,
                    "B = pi/2 with the hypotenuse (two blanks)"},
        RefusalCase{"triangle",
                    "mnupravbB2",
                    {"4", "2"},
                    "Invalid input: B < pi/2 required.",
                    MsgIcon::Critical,
                    "B above pi/2 with a leg (one blank)"},
        RefusalCase{"triangle",
                    "mnupravab3",
                    {"4", "5"},
                    "Invalid input: a > b required.",
                    MsgIcon::Critical,
                    "hypotenuse shorter than the leg"},
        RefusalCase{"triangle",
                    "mnupravab3",
                    {"4", "4"},
                    "Invalid input: a > b required.",
                    MsgIcon::Critical,
                    "hypotenuse equal to the leg"},
        RefusalCase{"triangle",
                    "mnupravbc4",
                    {"0", "0"},
                    "Check selected values.",
                    MsgIcon::Critical,
                    "two zero legs divide 0 by 0"},
        RefusalCase{"triangle", "mnujednakR3", {"0"}, "Ivalid input. R > 0.", MsgIcon::Critical, "R = 0"},
        RefusalCase{"triangle", "mnujednakrm4", {"0"}, "Ivalid input. r > 0.", MsgIcon::Critical, "r = 0"},
        RefusalCase{"triangle",
                    "mnujednakP5",
                    {""},
                    "Ivalid input. Area > 0.",
                    MsgIcon::Critical,
                    "an empty area box reads 0"},
        RefusalCase{
            "triangle", "mnujednakO6", {"0"}, "Ivalid input. Perimeter > 0.", MsgIcon::Critical, "P = 0"},
        RefusalCase{"triangle",
                    "mnujednakP5",
                    {"-1"},
                    "Check selected values.",
                    MsgIcon::Critical,
                    "a negative area passes the check and faults in the root"}));

// ----- the two-sides-and-angle case with its second solution

struct AmbiguousCase {
  std::vector<std::string> values;
  MsgResult answer;
  Texts boxes;
  std::vector<std::string> messages;  // after the question, in order
  std::string why;
};

class AmbiguousTriangleTest : public ::testing::TestWithParam<AmbiguousCase> {};

TEST_P(AmbiguousTriangleTest, AsksForTheSecondSolution) {
  const auto& c = GetParam();
  velmora::testing::RecordingMessageBox box;
  box.Answer(c.answer);
  const Figure f = RunEntry("triangle", "mnuabc4", c.values, box);
  ASSERT_GE(box.Boxes().size(), 1u) << c.why;
  EXPECT_EQ(box.Boxes()[0].text, "Try to find another solution?");
  EXPECT_EQ(box.Boxes()[0].title, "Second solution for triangle");
  EXPECT_EQ(box.Boxes()[0].icon, MsgIcon::Question);
  EXPECT_EQ(box.Boxes()[0].buttons, MsgButtons::YesNo);
  ASSERT_EQ(box.Boxes().size(), 1 + c.messages.size()) << c.why;
  for (std::size_t i = 0; i < c.messages.size(); ++i) {
    EXPECT_EQ(box.Boxes()[i + 1].text, c.messages[i]) << c.why;
    EXPECT_EQ(box.Boxes()[i + 1].icon, MsgIcon::Critical) << c.why;
  }
  testing::ExpectBoxes(f, c.boxes, c.why);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, AmbiguousTriangleTest,
    ::testing::Values(
        // a = 5, b = 6, A = 0.5: s = 1.2 sin(0.5) = 0.57531; first B = asin(s) = 0.61298 (acute),
        // C = pi - B - A = 2.02861, c = 5 sin(C) / sin(A) = 9.35517, S = 15 sin(C) = 13.45532.
        AmbiguousCase{{"5", "6", "0.5"},
                      MsgResult::No,
                      {{"txttb1", "0.61298"},
                       {"txttc1", "2.02861"},
                       {"txttc", "9.35517"},
                       {"txttarea", "13.45532"},
                       {"txttRv", "5.21457"},
                       {"txtRm", "1.32205"}},
                      {},
                      "No keeps the first solution with acute B"},
        // After Yes: B = pi - 0.61298 = 2.52861, C = 0.11298, c = 1.17582, S = 1.69115; the second
        // solution replaces the first.
        AmbiguousCase{{"5", "6", "0.5"},
                      MsgResult::Yes,
                      {{"txttb1", "2.52861"},
                       {"txttc1", "0.11298"},
                       {"txttc", "1.17582"},
                       {"txttarea", "1.69115"},
                       {"txttRv", "5.21457"},
                       {"txtRm", "0.27779"}},
                      {},
                      "Yes shows the obtuse B = pi minus the first"},
        // a = 6, b = 5, A = 0.5: the first solution stands; after Yes there is none other.
        AmbiguousCase{
            {"6", "5", "0.5"},
            MsgResult::Yes,
            {{"txttb1", "0.41099"}, {"txttc1", "2.2306"}, {"txttc", "9.88826"}, {"txttarea", "11.85171"}},
            {"2nd solution not found."},
            "a > b has no second solution"},
        AmbiguousCase{{"6", "5", "0.5"},
                      MsgResult::No,
                      {{"txttb1", "0.41099"}, {"txttc", "9.88826"}},
                      {},
                      "No ends quietly"}));

TEST(AmbiguousTriangle, SecondSolutionResultLine) {
  velmora::testing::RecordingMessageBox box;
  box.Answer(MsgResult::Yes);
  const Figure f = RunEntry("triangle", "mnuabc4", {"5", "6", "0.5"}, box);
  EXPECT_EQ(f.result,
            (std::vector<std::string>{"Triangle: a = 5 b = 6 c = 1.17582", "A = 0.5 rad (28.64789 deg)",
                                      "B = 2.52861 rad (144.87861 deg)", "C = 0.11298 rad (6.4735 deg)",
                                      "Perimeter: 12.17582   Area: 1.69115"}));
}

// ----- the page: options, reset, help texts, tool tips, radians buttons

TEST(TrianglePage, OptionsChooseTheMenuAndClearTheBoxes) {
  GeoPage page("Triangle");
  EXPECT_EQ(page.Kind().menu, "mnuTrougao");
  page.State().boxes.SetText("txtta", "3");
  ASSERT_TRUE(page.SelectOption("Right-angled"));
  EXPECT_EQ(page.State().boxes.Text("txtta"), "");
  EXPECT_EQ(page.Kind().menu, "mnuprav");
  EXPECT_EQ(page.Menu()[0].name, "mnupravaB1");
  EXPECT_EQ(page.Help()[0], "Right-angled Triangle");
  page.State().boxes.SetText("txtta", "3");
  ASSERT_TRUE(page.SelectOption("Equilateral"));
  EXPECT_EQ(page.State().boxes.Text("txtta"), "");
  EXPECT_EQ(page.Kind().menu, "mnujednako");
  EXPECT_EQ(page.Help()[0], "Equilateral Triangle");
  EXPECT_FALSE(page.SelectOption("Obtuse"));
}

TEST(TrianglePage, CalculateRunsTheEntryAndResetClears) {
  GeoPage page("Triangle");
  velmora::testing::RecordingMessageBox box;
  page.State().boxes.SetText("txtta", "3");
  page.State().boxes.SetText("txttb", "4");
  page.State().boxes.SetText("txttc", "5");
  ASSERT_TRUE(page.Run("mnuabc", box));
  EXPECT_EQ(page.State().boxes.Text("txttarea"), "6");
  EXPECT_FALSE(page.Run("mnujednaka1", box)) << "an entry of another menu";
  page.Reset();
  for (std::size_t i = 0; i < page.State().boxes.Size(); ++i) EXPECT_EQ(page.State().boxes.TextAt(i), "");
}

struct TextsCase {
  std::span<const std::string_view> (*texts)();
  std::vector<std::string_view> expected;
};

TEST(TrianglePage, HelpTexts) {
  const TextsCase cases[] = {
      {GeneralTriangleHelp,
       {"Triangle (general)", "S = Sqr [p*(p-a)*(p-b)*(p-c)] ; p/2=a+b+c",
        "Ha = 2 * S / a ...; R = (a * b * c) / (4 * S); r = S / p",
        "A = 2*Atn(K); K = Sqr(((p - b) * (p - a)) / (p * (p - c))) ..."}},
      {RightTriangleHelp,
       {"Right-angled Triangle", "P = b*c / 2;  C + B = pi/2;  b^2 + c^2 = a^2",
        "b = a*Sin(B) = c*Tan(B);  c = a*Cos(B) = b*Tan(C)"}},
      {EquilateralTriangleHelp,
       {"Equilateral Triangle", "a = b = c = L ; A = B = C = pi/3", "S = 1/2 * L * h ; h = L * Sqr(3)/2"}},
  };
  for (const auto& c : cases) {
    const auto texts = c.texts();
    EXPECT_EQ(std::vector<std::string_view>(texts.begin(), texts.end()), c.expected);
  }
}

TEST(TrianglePage, ToolTipsAreCrossed) {
  EXPECT_EQ(TriangleToolTip("txttobim"), "Tringle area");
  EXPECT_EQ(TriangleToolTip("txttarea"), "Tringle perimeter");
  EXPECT_EQ(TriangleToolTip("txtta"), "");
}

TEST(TrianglePage, MenuCaptions) {
  const std::pair<std::span<const MenuEntry>, std::vector<std::string_view>> menus[] = {
      {GeneralTriangleMenu(),
       {"Sides: a, b, c", "Side a, Angles: B, C", "Sides: b,c Angle: A", "Sides: a,b Angle: A"}},
      {RightTriangleMenu(),
       {"Hypotenuse: a, Angle: B", "Side: b, Angle B", "Hypotenuse: a, Side: b", "Sides: b, c"}},
      {EquilateralTriangleMenu(),
       {"Side: a = L", "Height: Ha", "Circumscribed: R", "Inscribed: r", "Area: S", "Perimeter: P"}},
  };
  for (const auto& [menu, captions] : menus) {
    ASSERT_EQ(menu.size(), captions.size());
    for (std::size_t i = 0; i < menu.size(); ++i) EXPECT_EQ(menu[i].caption, captions[i]);
  }
}

struct RadiansCase {
  const char* button;
  const char* degrees;
  const char* radians;
  const char* why;
};

TEST(TrianglePage, ConvertToRadians) {
  const RadiansCase cases[] = {
      {"Command54", "180", "3.14159", "180 degrees are pi"},
      {"Command55", "90", "1.5708", "pi/2 to five places"},
      {"Command56", "45abc", "0.7854", "read with the leading-number parse"},
      {"Command54", "1e999", "1e999", "an overflowing number stays as typed"},
  };
  for (const auto& c : cases) {
    BoxRecord boxes(kTriangleBoxes);
    const auto box = RadiansButtonBox(c.button);
    ASSERT_FALSE(box.empty()) << c.button;
    boxes.SetText(box, c.degrees);
    ConvertToRadians(boxes, box);
    EXPECT_EQ(boxes.Text(box), c.radians) << c.why;
  }
  EXPECT_EQ(kRadiansButtonCaption, "Convert to Radians");
  EXPECT_EQ(kResetCaption, "Reset");
  EXPECT_EQ(RadiansButtonBox("Command54"), "txtta1");
  EXPECT_EQ(RadiansButtonBox("Command55"), "txttb1");
  EXPECT_EQ(RadiansButtonBox("Command56"), "txttc1");
}

TEST(TriangleFault, KeepsWhatWasWrittenBeforeIt) {
  // b = 0, c = 0 and A = 1: S = 0 and T = 0 / 0 faults before any box is written.
  velmora::testing::RecordingMessageBox box;
  const Figure f = RunEntry("triangle", "mnuabc3", {"0", "0", "1"}, box);
  testing::ExpectOneMessage(box, "Check selected values.", MsgIcon::Critical, "0/0 in the law of tangents");
  EXPECT_EQ(f.boxes.Text("txtta"), "");
  // a = 0 with B, C: the sides and the area are written, then 2 * S / a faults.
  velmora::testing::RecordingMessageBox box2;
  const Figure g = RunEntry("triangle", "mnuabc2", {"0", "1", "1"}, box2);
  testing::ExpectOneMessage(box2, "Check selected values.", MsgIcon::Critical, "height over a zero side");
  EXPECT_EQ(g.boxes.Text("txtta"), "0");
  EXPECT_EQ(g.boxes.Text("txttarea"), "0");
  EXPECT_EQ(g.boxes.Text("txttha"), "");
  EXPECT_TRUE(g.result.empty());
}

}  // namespace
}  // namespace velmora::geometry
