#include "geometry/circle.h"

namespace velmora::geometry {
namespace {

using platform::MessageBox;

constexpr std::string_view kFault = "Solution not found. Check data.";
constexpr std::string_view kArcZero = "Invalid input.";
constexpr std::string_view kArcAngle = "Invalid input. Check values for S, L.";

// ----- circle: every case finds R from one measure; a box that reads exactly
// 0 is refused, so negative values pass.

struct CircleCase {
  std::string_view box;
  std::string_view refusal;
  Real (*radius)(Real given);
};

constexpr std::array<CircleCase, 4> kCircleCases = {{
    {"txtKR", "Invalid input: R > 0 required.", [](Real R) { return R; }},
    {"txtKD", "Invalid input: D > 0 required.", [](Real D) { return D / 2; }},
    {"txtKArea", "Invalid input: S > 0 required.", [](Real S) { return Sqr(S / kPi); }},
    {"txtKobim", "Invalid input: C > 0 required.", [](Real C) { return C / kTwoPi; }},
}};

void SolveCircle(const CircleCase& which, Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real given = f.boxes.Read(which.box);
    if (given == 0) {
      ShowMessage(box, which.refusal);
      return;
    }
    const Real R = which.radius(given);
    auto& x = f.boxes;
    x.Write("txtKR", R);
    x.Write("txtKD", 2 * R);
    x.Write("txtKArea", kPi * R * R);
    x.Write("txtKobim", kTwoPi * R);
    f.result = {"Circle: R = " + x.Text("txtKR") + "; D = " + x.Text("txtKD"),
                "Cirumference: C = " + x.Text("txtKobim"), "Area: S = " + x.Text("txtKArea")};
  });
}

void SolveCircleRadius(Figure& f, MessageBox& box) { SolveCircle(kCircleCases[0], f, box); }
void SolveCircleDiameter(Figure& f, MessageBox& box) { SolveCircle(kCircleCases[1], f, box); }
void SolveCircleArea(Figure& f, MessageBox& box) { SolveCircle(kCircleCases[2], f, box); }
void SolveCircleCircumference(Figure& f, MessageBox& box) { SolveCircle(kCircleCases[3], f, box); }

// ----- arc: R, the angle ø, the area S of the sector and the length L.

struct Arc {
  Real R, fi, S, L;
};

// The given measures must be non-zero. Returns false after a refusal.
bool NonZero(MessageBox& box, std::initializer_list<Real> given) {
  for (const Real v : given) {
    if (v == 0) {
      ShowMessage(box, kArcZero);
      return false;
    }
  }
  return true;
}

// An angle found from the other measures must lie in (0, 2*pi).
bool AngleInRange(MessageBox& box, Real fi) {
  if (fi == 0 || fi >= kTwoPi) {
    ShowMessage(box, kArcAngle);
    return false;
  }
  return true;
}

void WriteArc(Figure& f, const Arc& arc) {
  auto& x = f.boxes;
  x.Write("txtKR", arc.R);
  x.Write("txtKD", 2 * arc.R);
  x.Write("txtKArea", arc.S);
  x.Write("txtKobim", arc.L);
  x.Write("txtKFi", arc.fi);
  f.result = {
      "Arc: R = " + x.Text("txtKR") + " ; ø = " + x.Text("txtKFi") + " (" + ShownDegrees(arc.fi) + " deg)",
      "S = " + x.Text("txtKArea"), "L = " + x.Text("txtKobim")};
}

void SolveArcRadiusAngle(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real R = f.boxes.Read("txtKR");
    const Real fi = f.boxes.Read("txtKFi");
    if (!NonZero(box, {R, fi})) return;
    WriteArc(f, {R, fi, Real(0.5) * R * R * fi, R * fi});
  });
}

void SolveArcAreaRadius(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real S = f.boxes.Read("txtKArea");
    const Real R = f.boxes.Read("txtKR");
    if (!NonZero(box, {S, R})) return;
    const Real fi = 2 * S / (R * R);
    if (!AngleInRange(box, fi)) return;
    WriteArc(f, {R, fi, S, R * fi});
  });
}

void SolveArcAreaAngle(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real S = f.boxes.Read("txtKArea");
    const Real fi = f.boxes.Read("txtKFi");
    if (!NonZero(box, {S, fi})) return;
    const Real R = Sqr(2 * S / fi);
    WriteArc(f, {R, fi, S, R * fi});
  });
}

void SolveArcLengthAngle(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real L = f.boxes.Read("txtKobim");
    const Real fi = f.boxes.Read("txtKFi");
    if (!NonZero(box, {L, fi})) return;
    const Real R = L / fi;
    WriteArc(f, {R, fi, Real(0.5) * R * R * fi, L});
  });
}

void SolveArcLengthRadius(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real L = f.boxes.Read("txtKobim");
    const Real R = f.boxes.Read("txtKR");
    if (!NonZero(box, {L, R})) return;
    const Real fi = L / R;
    if (!AngleInRange(box, fi)) return;
    WriteArc(f, {R, fi, Real(0.5) * R * R * fi, L});
  });
}

void SolveArcAreaLength(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real S = f.boxes.Read("txtKArea");
    const Real L = f.boxes.Read("txtKobim");
    if (!NonZero(box, {S, L})) return;
    const Real R = 2 * S / L;
    const Real fi = L / R;
    if (!AngleInRange(box, fi)) return;
    WriteArc(f, {R, fi, S, L});
  });
}

// ----- ring: its area and circumference have the program's own definitions,
// S = pi * (R - r)^2 and C = 2*pi * (R + r). As on the rest of the page, a
// given box that reads exactly 0 is refused.

bool RingGiven(MessageBox& box, std::string_view refusal, std::initializer_list<Real> given) {
  for (const Real v : given) {
    if (v == 0) {
      ShowMessage(box, refusal);
      return false;
    }
  }
  return true;
}

void WriteRing(Figure& f, Real R, Real r) {
  auto& x = f.boxes;
  x.Write("txtKR", R);
  x.Write("txtKD", 2 * R);
  x.Write("txtKArea", kPi * (R - r) * (R - r));
  x.Write("txtKobim", kTwoPi * (R + r));
  x.Write("txtKrmalo", r);
  x.Write("txtKRR", R + r);
  f.result = {"Ring: R = " + x.Text("txtKR") + "; r = " + x.Text("txtKrmalo"), "C = " + x.Text("txtKobim"),
              "S = " + x.Text("txtKArea")};
}

void SolveRingRadii(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real R = f.boxes.Read("txtKR");
    const Real r = f.boxes.Read("txtKrmalo");
    if (!RingGiven(box, "Invalid input: R > r > 0  required.", {R, r})) return;
    WriteRing(f, R, r);
  });
}

void SolveRingCircumferenceWidth(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real C = f.boxes.Read("txtKobim");
    const Real width = f.boxes.Read("txtKrmalo");  // R - r
    if (!RingGiven(box, "Invalid input: R-r, P > 0  required.", {C, width})) return;
    const Real R = (C / kTwoPi + width) / 2;
    WriteRing(f, R, R - width);
  });
}

void SolveRingAreaSum(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real S = f.boxes.Read("txtKArea");
    const Real sum = f.boxes.Read("txtKRR");  // R + r
    if (!RingGiven(box, "Invalid input: R+r, S > 0  required.", {S, sum})) return;
    const Real d = Sqr(S / kPi);
    const Real R = (d + sum) / 2;
    WriteRing(f, R, R - d);
  });
}

void SolveRingCircumferenceArea(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    const Real C = f.boxes.Read("txtKobim");
    const Real S = f.boxes.Read("txtKArea");
    if (!RingGiven(box, "Invalid input: S, P > 0  required", {C, S})) return;
    const Real sum = C / kTwoPi;
    const Real d = Sqr(S / kPi);
    const Real R = (d + sum) / 2;
    WriteRing(f, R, R - d);
  });
}

// ----- tables

constexpr std::array<MenuEntry, 4> kCircleMenu = {{
    {"mnukrug1", "Radius: R", {"txtKR"}, SolveCircleRadius},
    {"mnukrug2", "Diameter: D", {"txtKD"}, SolveCircleDiameter},
    {"mnukrug3", "Area: S", {"txtKArea"}, SolveCircleArea},
    {"mnukrug4", "Circumference: C", {"txtKobim"}, SolveCircleCircumference},
}};

constexpr std::array<MenuEntry, 6> kArcMenu = {{
    {"mnuluk1", "Radius: R, Angle ø", {"txtKR", "txtKFi"}, SolveArcRadiusAngle},
    {"mnuluk2", "Area: S, Radius: R", {"txtKArea", "txtKR"}, SolveArcAreaRadius},
    {"mnuluk3", "Area S, Angle ø", {"txtKArea", "txtKFi"}, SolveArcAreaAngle},
    {"mnuluk4", "Lenght L, Angle ø", {"txtKobim", "txtKFi"}, SolveArcLengthAngle},
    {"mnuluk5", "Lenght L, Radius R", {"txtKobim", "txtKR"}, SolveArcLengthRadius},
    {"mnuluk6", "Area S, Lenght L", {"txtKArea", "txtKobim"}, SolveArcAreaLength},
}};

constexpr std::array<MenuEntry, 4> kRingMenu = {{
    {"mnuprsten1", "R, r", {"txtKR", "txtKrmalo"}, SolveRingRadii},
    {"mnuprsten2", "C, R - r", {"txtKobim", "txtKrmalo"}, SolveRingCircumferenceWidth},
    {"mnuprsten3", "S, R + r", {"txtKArea", "txtKRR"}, SolveRingAreaSum},
    {"mnuprsten4", "C, S", {"txtKobim", "txtKArea"}, SolveRingCircumferenceArea},
}};

// The circle's help names the two formulas the wrong way round; the boxes
// hold the right values.
constexpr std::array<std::string_view, 3> kCircleHelp = {
    "Circle: D = 2 * R", "Cirumference: C = pi * R^2 = pi /4 * D^2", "Area: S = 2 * pi * R = pi * D"};
constexpr std::array<std::string_view, 3> kArcHelp = {"Arc: R , ø", "Area: S = 1/2 * R^2 * ø",
                                                      "Lenght: L = R * ø"};
constexpr std::array<std::string_view, 3> kRingHelp = {"Ring: R, r", "S = pi * (R - r)^2",
                                                       "C =2 * pi * (R + r)"};

}  // namespace

std::span<const MenuEntry> CircleMenu() { return kCircleMenu; }
std::span<const MenuEntry> ArcMenu() { return kArcMenu; }
std::span<const MenuEntry> RingMenu() { return kRingMenu; }

std::span<const std::string_view> CircleHelp() { return kCircleHelp; }
std::span<const std::string_view> ArcHelp() { return kArcHelp; }
std::span<const std::string_view> RingHelp() { return kRingHelp; }

std::string_view LengthCaption(bool arc) { return arc ? "Arc Lenght" : "Circumference"; }

}  // namespace velmora::geometry
