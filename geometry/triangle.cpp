#include "geometry/triangle.h"

#include <string>

#include "expr/numtext.h"

namespace velmora::geometry {
namespace {

using platform::MessageBox;
using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;

// The page's fixed texts.
constexpr std::string_view kCheckSelected = "Check selected values.";
constexpr std::string_view kCheckAngles = "Check values for angles.";
constexpr std::string_view kRightAngleGiven = " A = 90. Select option for Rectangular triangle.";
constexpr std::string_view kNoSolution = "Solution not found. Check if: (b/a) * Sin(A) <= 1.";
constexpr std::string_view kMustBeLonger = "Must be: a > b. Check values for a, b A.";
constexpr std::string_view kAskSecond = "Try to find another solution?";
constexpr std::string_view kAskSecondTitle = "Second solution for triangle";
constexpr std::string_view kNoSecond = "2nd solution not found.";
// The first two differ by one blank, as the program words them.
constexpr std::string_view kRightAngleB1 = "Invalid input: B < pi/2  required.";
constexpr std::string_view kRightAngleB2 = "Invalid input: B < pi/2 required.";
constexpr std::string_view kRightHypotenuse = "Invalid input: a > b required.";

// The equilateral angles are a rounded constant, not pi/3.
constexpr double kEquilateralAngle = 1.0472;

// Writes the sides and angles, then the part of the record that every solver
// derives from the three sides and the area, and the result line.
void WriteRecord(Figure& f, Real a, Real b, Real c, Real A, Real B, Real C, Real S) {
  auto& x = f.boxes;
  x.Write("txtta", a);
  x.Write("txttb", b);
  x.Write("txttc", c);
  x.Write("txtta1", A);
  x.Write("txttb1", B);
  x.Write("txttc1", C);
  const Real p = (a + b + c) * 0.5;
  const Real P = a + b + c;
  x.Write("txtts", p);
  x.Write("txttarea", S);
  x.Write("txttobim", P);
  x.Write("txttha", 2 * S / a);
  x.Write("txtthb", 2 * S / b);
  x.Write("txtthc", 2 * S / c);
  // Both radii are rounded before they are stored; the box rounds them again.
  x.Write("txttRv", expr::RoundTo((a * b * c / (4 * S)).Value(), 5));
  x.Write("txtRm", expr::RoundTo((S / p).Value(), 5));

  f.result = {
      "Triangle: a = " + x.Text("txtta") + " b = " + x.Text("txttb") + " c = " + x.Text("txttc"),
      "A = " + x.Text("txtta1") + " rad (" + ShownDegrees(A) + " deg)",
      "B = " + x.Text("txttb1") + " rad (" + ShownDegrees(B) + " deg)",
      "C = " + x.Text("txttc1") + " rad (" + ShownDegrees(C) + " deg)",
      "Perimeter: " + x.Text("txttobim") + "   Area: " + x.Text("txttarea"),
  };
}

// Half the angle whose tangent is K(side), by the half-angle formula; rounded
// to 5 places before it is used.
Real HalfAngleFormula(Real p, Real opposite, Real other1, Real other2) {
  const Real k = Sqr(((p - other1) * (p - other2)) / (p * (p - opposite)));
  return Real(expr::RoundTo((2 * Atn(k)).Value(), 5));
}

// The arcsine as the program takes it, through the arctangent.
Real ArcSine(Real s) { return Atn(s / Sqr(1 - s * s)); }

// ----- general triangles

constexpr std::array<std::string_view, 4> kGeneralHelp = {
    "Triangle (general)", "S = Sqr [p*(p-a)*(p-b)*(p-c)] ; p/2=a+b+c",
    "Ha = 2 * S / a ...; R = (a * b * c) / (4 * S); r = S / p",
    "A = 2*Atn(K); K = Sqr(((p - b) * (p - a)) / (p * (p - c))) ..."};

constexpr std::array<std::string_view, 3> kRightHelp = {"Right-angled Triangle",
                                                        "P = b*c / 2;  C + B = pi/2;  b^2 + c^2 = a^2",
                                                        "b = a*Sin(B) = c*Tan(B);  c = a*Cos(B) = b*Tan(C)"};

constexpr std::array<std::string_view, 3> kEquilateralHelp = {
    "Equilateral Triangle", "a = b = c = L ; A = B = C = pi/3", "S = 1/2 * L * h ; h = L * Sqr(3)/2"};

struct ToolTip {
  std::string_view box;
  std::string_view tip;
};
// Crossed on purpose: the perimeter box says area and the other way round.
constexpr std::array<ToolTip, 2> kToolTips = {
    {{"txttobim", "Tringle area"}, {"txttarea", "Tringle perimeter"}}};

struct RadiansButton {
  std::string_view button;
  std::string_view box;
};
constexpr std::array<RadiansButton, 3> kRadiansButtons = {
    {{"Command54", "txtta1"}, {"Command55", "txttb1"}, {"Command56", "txttc1"}}};

}  // namespace

void SolveThreeSides(Figure& f, MessageBox& box) {
  Trapped(box, kCheckSelected, [&] {
    const Real a = f.boxes.Read("txtta");
    const Real b = f.boxes.Read("txttb");
    const Real c = f.boxes.Read("txttc");
    const Real p = (a + b + c) * 0.5;
    const Real A = HalfAngleFormula(p, a, b, c);
    const Real B = HalfAngleFormula(p, b, a, c);
    const Real C = HalfAngleFormula(p, c, a, b);
    const Real S = Sqr(p * (p - a) * (p - b) * (p - c));
    WriteRecord(f, a, b, c, A, B, C, S);
  });
}

void SolveSideTwoAngles(Figure& f, MessageBox& box) {
  Trapped(box, kCheckSelected, [&] {
    const Real a = f.boxes.Read("txtta");
    const Real B = f.boxes.Read("txttb1");
    const Real C = f.boxes.Read("txttc1");
    const Real A = kPi - (B + C);
    if (A <= 0) {
      ShowMessage(box, kCheckAngles);
      return;
    }
    const Real b = Abs(a * Sin(B) / Sin(A));
    const Real c = Abs(a * Sin(C) / Sin(A));
    const Real S = Real(0.5) * a * a * Sin(B) * Sin(C) / Sin(A);
    WriteRecord(f, a, b, c, A, B, C, S);
  });
}

void SolveTwoSidesIncluded(Figure& f, MessageBox& box) {
  Trapped(box, kCheckSelected, [&] {
    const Real b = f.boxes.Read("txttb");
    const Real c = f.boxes.Read("txttc");
    const Real A = f.boxes.Read("txtta1");
    const Real S = Real(0.5) * b * c * Sin(A);
    // The law of tangents gives the difference of the two unknown angles.
    const Real T = ((b - c) / (b + c)) / Tan(A / 2);
    const Real D = 2 * Atn(T);
    const Real B = (kPi + D - A) / 2;
    const Real C = ((kPi - A) - D) / 2;
    if (B <= 0 || C <= 0) {
      ShowMessage(box, kCheckAngles);
      return;
    }
    const Real a = b * Sin(A) / Sin(B);
    WriteRecord(f, a, b, c, A, B, C, S);
  });
}

void SolveTwoSidesOpposite(Figure& f, MessageBox& box) {
  Trapped(box, kCheckSelected, [&] {
    const Real a = f.boxes.Read("txtta");
    const Real b = f.boxes.Read("txttb");
    const Real A = f.boxes.Read("txtta1");
    if (A == kHalfPi) {
      ShowMessage(box, kRightAngleGiven, MsgIcon::Information);
      return;
    }
    const Real s = (b / a) * Sin(A);
    if (s > 1) {
      ShowMessage(box, kNoSolution);
      return;
    }
    Real B;
    Real C;
    // Set when the triangle has no second solution to look for.
    bool mark = false;
    if (a > b && A > kHalfPi) {
      B = ArcSine(s);
      C = kPi - (B + A);
      mark = true;
    }
    if (a < b && A > kHalfPi) {
      ShowMessage(box, kMustBeLonger);
      return;
    }
    if (A < kHalfPi) {
      B = ArcSine(s);
      C = kPi - (B + A);
    }
    for (;;) {
      if (B <= 0 || C <= 0) {
        ShowMessage(box, kCheckAngles);
        return;
      }
      const Real c = Abs(a * Sin(C) / Sin(A));
      const Real S = Real(0.5) * a * b * Sin(C);
      WriteRecord(f, a, b, c, A, B, C, S);
      if (mark) return;
      const MsgResult answer = box.Show(std::string(kAskSecond), std::string(kAskSecondTitle),
                                        MsgIcon::Question, MsgButtons::YesNo);
      if (answer != MsgResult::Yes) return;
      mark = true;
      // Only an acute A facing the shorter side leaves room for an obtuse B.
      if (!(A < kHalfPi && b > a)) {
        ShowMessage(box, kNoSecond);
        return;
      }
      // The second solution replaces the first in the boxes.
      B = kPi - ArcSine(s);
      C = kPi - (B + A);
    }
  });
}

// ----- right-angled triangles: a is the hypotenuse and A the right angle.

void SolveRightHypotenuseAngle(Figure& f, MessageBox& box) {
  Trapped(box, kCheckSelected, [&] {
    const Real a = f.boxes.Read("txtta");
    const Real B = f.boxes.Read("txttb1");
    if (B >= kHalfPi) {
      ShowMessage(box, kRightAngleB1);
      return;
    }
    const Real C = kHalfPi - B;
    const Real b = a * Sin(B);
    const Real c = a * Cos(B);
    WriteRecord(f, a, b, c, kHalfPi, B, C, b * c / 2);
  });
}

void SolveRightSideAngle(Figure& f, MessageBox& box) {
  Trapped(box, kCheckSelected, [&] {
    const Real b = f.boxes.Read("txttb");
    const Real B = f.boxes.Read("txttb1");
    if (B >= kHalfPi) {
      ShowMessage(box, kRightAngleB2);
      return;
    }
    const Real C = kHalfPi - B;
    const Real a = b / Sin(B);
    const Real c = b * Tan(C);
    WriteRecord(f, a, b, c, kHalfPi, B, C, b * c / 2);
  });
}

void SolveRightHypotenuseSide(Figure& f, MessageBox& box) {
  Trapped(box, kCheckSelected, [&] {
    const Real a = f.boxes.Read("txtta");
    const Real b = f.boxes.Read("txttb");
    if (a <= b) {
      ShowMessage(box, kRightHypotenuse);
      return;
    }
    const Real s = b / a;
    const Real B = ArcSine(s);
    const Real C = kHalfPi - B;
    const Real c = a * Sin(C);
    WriteRecord(f, a, b, c, kHalfPi, B, C, b * c / 2);
  });
}

void SolveRightTwoSides(Figure& f, MessageBox& box) {
  Trapped(box, kCheckSelected, [&] {
    const Real b = f.boxes.Read("txttb");
    const Real c = f.boxes.Read("txttc");
    const Real B = Atn(b / c);
    const Real C = kHalfPi - B;
    const Real a = b / Sin(B);
    WriteRecord(f, a, b, c, kHalfPi, B, C, b * c / 2);
  });
}

// ----- equilateral triangles: every case finds the side L from one measure.

namespace {

struct EquilateralCase {
  std::string_view box;      // the given measure
  std::string_view refusal;  // shown when the box reads exactly 0; empty: no check
  Real (*side)(Real given);
};

// The test is equality with 0, so a negative measure passes.
constexpr std::array<EquilateralCase, 6> kEquilateralCases = {{
    {"txtta", "", [](Real L) { return L; }},
    {"txttha", "", [](Real h) { return 2 * h / Sqr(3); }},
    {"txttRv", "Ivalid input. R > 0.", [](Real R) { return 3 * R / Sqr(3); }},
    {"txtRm", "Ivalid input. r > 0.", [](Real r) { return 6 * r / Sqr(3); }},
    {"txttarea", "Ivalid input. Area > 0.", [](Real S) { return Sqr(4 * S / Sqr(3)); }},
    {"txttobim", "Ivalid input. Perimeter > 0.", [](Real P) { return P / 3; }},
}};

void SolveEquilateral(const EquilateralCase& which, Figure& f, MessageBox& box) {
  Trapped(box, kCheckSelected, [&] {
    const Real given = f.boxes.Read(which.box);
    if (!which.refusal.empty() && given == 0) {
      ShowMessage(box, which.refusal);
      return;
    }
    const Real L = which.side(given);
    const Real h = L * Sqr(3) / 2;
    const Real S = Sqr(3) * L * L / 4;
    const Real p = 3 * L / 2;
    const Real P = 3 * L;
    const Real R = Sqr(3) * L / 3;
    const Real r = Sqr(3) * L / 6;
    auto& x = f.boxes;
    for (const auto side : {"txtta", "txttb", "txttc"}) x.Write(side, L);
    for (const auto angle : {"txtta1", "txttb1", "txttc1"}) x.Write(angle, kEquilateralAngle);
    x.Write("txtts", p);
    x.Write("txttarea", S);
    x.Write("txttobim", P);
    for (const auto height : {"txttha", "txtthb", "txtthc"}) x.Write(height, h);
    x.Write("txttRv", R);
    x.Write("txtRm", r);
    f.result = {
        "Equilateral Triangle: a = b = c = L = " + x.Text("txtta"),
        "Ha = Hb = Hc = " + x.Text("txttha") + "  R = " + x.Text("txttRv") + " r = " + x.Text("txtRm"),
        "Perimeter: " + x.Text("txttobim") + "  Area: " + x.Text("txttarea"),
    };
  });
}

}  // namespace

void SolveEquilateralSide(Figure& f, MessageBox& box) { SolveEquilateral(kEquilateralCases[0], f, box); }
void SolveEquilateralHeight(Figure& f, MessageBox& box) { SolveEquilateral(kEquilateralCases[1], f, box); }
void SolveEquilateralCircumradius(Figure& f, MessageBox& box) {
  SolveEquilateral(kEquilateralCases[2], f, box);
}
void SolveEquilateralInradius(Figure& f, MessageBox& box) { SolveEquilateral(kEquilateralCases[3], f, box); }
void SolveEquilateralArea(Figure& f, MessageBox& box) { SolveEquilateral(kEquilateralCases[4], f, box); }
void SolveEquilateralPerimeter(Figure& f, MessageBox& box) { SolveEquilateral(kEquilateralCases[5], f, box); }

// ----- the page's tables

namespace {

constexpr std::array<MenuEntry, 4> kGeneralMenu = {{
    {"mnuabc", "Sides: a, b, c", {"txtta", "txttb", "txttc"}, SolveThreeSides},
    {"mnuabc2", "Side a, Angles: B, C", {"txtta", "txttb1", "txttc1"}, SolveSideTwoAngles},
    {"mnuabc3", "Sides: b,c Angle: A", {"txttb", "txttc", "txtta1"}, SolveTwoSidesIncluded},
    {"mnuabc4", "Sides: a,b Angle: A", {"txtta", "txttb", "txtta1"}, SolveTwoSidesOpposite},
}};

constexpr std::array<MenuEntry, 4> kRightMenu = {{
    {"mnupravaB1", "Hypotenuse: a, Angle: B", {"txtta", "txttb1"}, SolveRightHypotenuseAngle},
    {"mnupravbB2", "Side: b, Angle B", {"txttb", "txttb1"}, SolveRightSideAngle},
    {"mnupravab3", "Hypotenuse: a, Side: b", {"txtta", "txttb"}, SolveRightHypotenuseSide},
    {"mnupravbc4", "Sides: b, c", {"txttb", "txttc"}, SolveRightTwoSides},
}};

constexpr std::array<MenuEntry, 6> kEquilateralMenu = {{
    {"mnujednaka1", "Side: a = L", {"txtta"}, SolveEquilateralSide},
    {"mnujednakh2", "Height: Ha", {"txttha"}, SolveEquilateralHeight},
    {"mnujednakR3", "Circumscribed: R", {"txttRv"}, SolveEquilateralCircumradius},
    {"mnujednakrm4", "Inscribed: r", {"txtRm"}, SolveEquilateralInradius},
    {"mnujednakP5", "Area: S", {"txttarea"}, SolveEquilateralArea},
    {"mnujednakO6", "Perimeter: P", {"txttobim"}, SolveEquilateralPerimeter},
}};

}  // namespace

std::span<const MenuEntry> GeneralTriangleMenu() { return kGeneralMenu; }
std::span<const MenuEntry> RightTriangleMenu() { return kRightMenu; }
std::span<const MenuEntry> EquilateralTriangleMenu() { return kEquilateralMenu; }

std::span<const std::string_view> GeneralTriangleHelp() { return kGeneralHelp; }
std::span<const std::string_view> RightTriangleHelp() { return kRightHelp; }
std::span<const std::string_view> EquilateralTriangleHelp() { return kEquilateralHelp; }

std::string_view TriangleToolTip(std::string_view box) {
  for (const auto& t : kToolTips) {
    if (t.box == box) return t.tip;
  }
  return {};
}

std::string_view RadiansButtonBox(std::string_view button) {
  for (const auto& b : kRadiansButtons) {
    if (b.button == button) return b.box;
  }
  return {};
}

void ConvertToRadians(BoxRecord& boxes, std::string_view box) {
  try {
    boxes.Write(box, boxes.Read(box) * kPi / 180);
  } catch (const expr::Fault&) {
    // A number too large to convert stays as typed.
  }
}

}  // namespace velmora::geometry
