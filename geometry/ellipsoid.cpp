#include "geometry/ellipsoid.h"

namespace velmora::geometry {
namespace {

using platform::MessageBox;

constexpr std::string_view kFault = "Check selected values.";
constexpr std::string_view kEllipseRefused = "Ivalid input.";
constexpr std::string_view kVolumeRefused = "Invalid input: R = 0  required.";
// The second is one blank shorter, as the program words it.
constexpr std::string_view kAroundR1Refused = "Invalid input: R > 0, R1 > R2  required.";
constexpr std::string_view kAroundR2Refused = "Invalid input: R > 0, R1 > R2 required.";
constexpr std::string_view kEqualRadii = "R1 = R2";

// ----- ellipse

// The three menu cases differ in how they get both radii; `given` says which
// boxes hold the given numbers, and `other` finds R2 (or R1) from S.
enum class EllipseGiven { Radii, AreaR1, AreaR2 };

void SolveEllipse(EllipseGiven given, Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    auto& x = f.boxes;
    Real R1;
    Real R2;
    if (given == EllipseGiven::Radii) {
      R1 = x.Read("txtRe1");
      R2 = x.Read("txtRe2");
      if (R1 <= 0 || R2 <= 0) {
        ShowMessage(box, kEllipseRefused);
        return;
      }
    } else {
      const Real S = x.Read("txtELaREA");
      const Real R = x.Read(given == EllipseGiven::AreaR1 ? "txtRe1" : "txtRe2");
      if (S <= 0 || R <= 0) {
        ShowMessage(box, kEllipseRefused);
        return;
      }
      const Real other = S / (kPi * R);
      R1 = given == EllipseGiven::AreaR1 ? R : other;
      R2 = given == EllipseGiven::AreaR1 ? other : R;
    }
    // The formulas below expect the larger radius as R1.
    if (R2 > R1) std::swap(R1, R2);
    const Real S = kPi * R1 * R2;
    const Real h = (R1 - R2) * (R1 - R2) / ((R1 + R2) * (R1 + R2));
    // Ramanujan's approximation of the perimeter.
    const Real P = kPi * (R1 + R2) * (1 + 3 * h / (10 + Sqr(4 - 3 * h)));
    x.Write("txtRe1", R1);
    x.Write("txtRe2", R2);
    x.Write("txtELaREA", S);
    x.Write("txtEvolume", P);
    f.label = R1 == R2 ? std::string(kEqualRadii) : std::string();
    f.result = {
        "Elipse: R1 = " + x.Text("txtRe1") + " ; R2 = " + x.Text("txtRe2") + " ; P = " + x.Text("txtEvolume"),
        "S = " + x.Text("txtELaREA")};
  });
}

void SolveEllipseRadii(Figure& f, MessageBox& box) { SolveEllipse(EllipseGiven::Radii, f, box); }
void SolveEllipseAreaR1(Figure& f, MessageBox& box) { SolveEllipse(EllipseGiven::AreaR1, f, box); }
void SolveEllipseAreaR2(Figure& f, MessageBox& box) { SolveEllipse(EllipseGiven::AreaR2, f, box); }

// The eccentricity of the rotated ellipse; needs R1 > R2 > 0.
bool SpheroidRadii(Figure& f, MessageBox& box, std::string_view refusal, Real& R1, Real& R2) {
  R1 = f.boxes.Read("txtRe1");
  R2 = f.boxes.Read("txtRe2");
  if (!(R1 > 0 && R2 > 0 && R1 > R2)) {
    ShowMessage(box, refusal);
    return false;
  }
  return true;
}

void WriteSpheroid(Figure& f, Real R1, Real R2, Real e, Real S, std::string_view around) {
  auto& x = f.boxes;
  x.Write("txtRe1", R1);
  x.Write("txtRe2", R2);
  x.Write("txtELaREA", S);
  f.result = {"Ellipsoid: R1 = " + x.Text("txtRe1") + " ; R2 = " + x.Text("txtRe2") + std::string(around),
              "e = " + Shown(e), "S = " + x.Text("txtELaREA")};
}

constexpr std::array<MenuEntry, 3> kEllipseMenu = {{
    {"mnuelipsaf1", "R1, R2", {"txtRe1", "txtRe2"}, SolveEllipseRadii},
    {"mnuelipsaf2", "S, R1", {"txtELaREA", "txtRe1"}, SolveEllipseAreaR1},
    {"mnuelipsaf3", "S, R2", {"txtELaREA", "txtRe2"}, SolveEllipseAreaR2},
}};

constexpr std::array<MenuEntry, 3> kEllipsoidMenu = {{
    {"mnuElipsoid1", "Rotating aroud R1", {"txtRe1", "txtRe2"}, ElipsoidOkoR1},
    {"mnuElipsoid2", "Rotating around R2", {"txtRe1", "txtRe2"}, ElipsoidokoR2},
    {"mnuElipsoidVolume", "Volume", {"txtRe1", "txtRe2", "txtRe3"}, ElipsoidVolume},
}};

constexpr std::array<std::string_view, 5> kEllipseHelp = {
    "Ellipse: R1 > R2 ",
    "Perimeter (Ramanujan's formula):", "P = pi * (R1+R2) [ 1 + 3*h / (10 + Sqr(4 - 3*h)]",
    "h = (R1 - R2)^2 /(R1 + R2)^2", "Area: S = pi * R1 *  R2"};

constexpr std::array<std::string_view, 4> kEllipsoidHelp = {
    "Ellipsoid: R1, R2, (R3)", "S = 2 * pi * R2^2 * [ 1 + (R1/R2) * Arcsin(e) / e ]",
    "Eccentricity: e = Sqr(1 - (R2 / R1)^2)", "Volume: V = 4/3 * pi * R1 * R2 * R3"};

}  // namespace

void ElipsoidVolume(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    auto& x = f.boxes;
    const Real R1 = x.Read("txtRe1");
    const Real R2 = x.Read("txtRe2");
    const Real R3 = x.Read("txtRe3");
    // The message asks for the opposite of what it means: no radius may be 0.
    if (R1 == 0 || R2 == 0 || R3 == 0) {
      ShowMessage(box, kVolumeRefused);
      return;
    }
    const Real V = Real(4) / 3 * kPi * R1 * R2 * R3;
    x.Write("txtRe1", R1);
    x.Write("txtRe2", R2);
    x.Write("txtRe3", R3);
    x.Write("txtEvolume", V);
    f.result = {
        "Ellipsoid: R1 = " + x.Text("txtRe1") + " ; R2 = " + x.Text("txtRe2") + " ; R3 = " + x.Text("txtRe3"),
        "V = " + x.Text("txtEvolume")};
  });
}

// Rotation about the long axis: the prolate spheroid.
void ElipsoidOkoR1(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    Real R1;
    Real R2;
    if (!SpheroidRadii(f, box, kAroundR1Refused, R1, R2)) return;
    const Real e = Sqr(1 - (R2 / R1) * (R2 / R1));
    const Real arcsin = Atn(e / Sqr(1 - e * e));
    const Real S = kTwoPi * R2 * R2 * (1 + (R1 / R2) * arcsin / e);
    WriteSpheroid(f, R1, R2, e, S, " (Rotating around R1)");
  });
}

// Rotation about the short axis: the oblate spheroid.
void ElipsoidokoR2(Figure& f, MessageBox& box) {
  Trapped(box, kFault, [&] {
    Real R1;
    Real R2;
    if (!SpheroidRadii(f, box, kAroundR2Refused, R1, R2)) return;
    const Real e = Sqr(1 - (R2 / R1) * (R2 / R1));
    const Real S = kTwoPi * R1 * R1 * (1 + (R2 / R1) * (R2 / R1) * Ln((1 + e) / (1 - e)) / (2 * e));
    WriteSpheroid(f, R1, R2, e, S, " (Rotating around R2)");
  });
}

std::span<const MenuEntry> EllipseMenu() { return kEllipseMenu; }
std::span<const MenuEntry> EllipsoidMenu() { return kEllipsoidMenu; }
std::span<const std::string_view> EllipseHelp() { return kEllipseHelp; }
std::span<const std::string_view> EllipsoidHelp() { return kEllipsoidHelp; }

EllipseLabels EllipsePageLabels(bool ellipsoid) {
  return ellipsoid ? EllipseLabels{"Volume", "Surface"} : EllipseLabels{"Perimeter", "Area"};
}

}  // namespace velmora::geometry
