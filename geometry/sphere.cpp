#include "geometry/sphere.h"

namespace velmora::geometry {
namespace {

using platform::MessageBox;

// ----- sphere: every case finds R from one measure.

constexpr std::string_view kSphereFault = "Solution not found. Check data.";

struct SphereCase {
  std::string_view box;
  std::string_view refusal;
  // The two relations refuse K <= 0; the four measures only an exact 0.
  bool refuseNegative;
  Real (*radius)(Real given);
};

constexpr std::array<SphereCase, 6> kSphereCases = {{
    {"txtSR", "Invalid input:  R > 0 required.", false, [](Real R) { return R; }},
    {"txtSD", "Invalid input: D > 0 required.", false, [](Real D) { return D / 2; }},
    {"txtSArea", "Invalid input: S > 0 required.", false, [](Real S) { return Sqr(S / (4 * kPi)); }},
    {"txtSzap", "Invalid input: V > 0 required.", false,
     [](Real V) { return Pow(3 * V / (4 * kPi), Real(1) / 3); }},
    {"txtSK1", "Invalid input: V/S > 0 required.", true, [](Real K) { return 3 * K; }},
    {"txtSK2", "Invalid input: S/V > 0 required.", true, [](Real K) { return 3 / K; }},
}};

void SolveSphere(const SphereCase& which, Figure& f, MessageBox& box) {
  Trapped(box, kSphereFault, [&] {
    const Real given = f.boxes.Read(which.box);
    if (given == 0 || (which.refuseNegative && given < 0)) {
      ShowMessage(box, which.refusal);
      return;
    }
    const Real R = which.radius(given);
    const Real S = 4 * kPi * R * R;
    const Real V = Real(4) / 3 * kPi * Pow(R, 3);
    auto& x = f.boxes;
    x.Write("txtSR", R);
    x.Write("txtSD", 2 * R);
    x.Write("txtSArea", S);
    x.Write("txtSzap", V);
    x.Write("txtSK1", V / S);
    x.Write("txtSK2", S / V);
    f.result = {"Sphere: R = " + x.Text("txtSR") + " ; D = " + x.Text("txtSD"),
                "Volume: V = " + x.Text("txtSzap"), "Area: S = " + x.Text("txtSArea")};
  });
}

void SolveSphereRadius(Figure& f, MessageBox& box) { SolveSphere(kSphereCases[0], f, box); }
void SolveSphereDiameter(Figure& f, MessageBox& box) { SolveSphere(kSphereCases[1], f, box); }
void SolveSphereArea(Figure& f, MessageBox& box) { SolveSphere(kSphereCases[2], f, box); }
void SolveSphereVolume(Figure& f, MessageBox& box) { SolveSphere(kSphereCases[3], f, box); }
void SolveSphereVolumePerArea(Figure& f, MessageBox& box) { SolveSphere(kSphereCases[4], f, box); }
void SolveSphereAreaPerVolume(Figure& f, MessageBox& box) { SolveSphere(kSphereCases[5], f, box); }

// ----- spherical frustrum (a zone): S = 2 * pi * R * H, with 2R > H > 0.

constexpr std::string_view kFrustrumFault = "Check selected values.";

// A zone of a sphere exists only for 0 < H < 2R; each case checks the figure
// it found against that and against its given area.
bool ZoneExists(Real R, Real H) { return R > 0 && H > 0 && 2 * R > H; }

void WriteZone(Figure& f, Real R, Real H, Real S) {
  auto& x = f.boxes;
  x.Write("txtFR", R);
  x.Write("txtFH", H);
  x.Write("txtFArea", S);
  f.result = {"Sphere Frustrum: R = " + x.Text("txtFR") + " ; H = " + x.Text("txtFH"),
              "Area: S = " + x.Text("txtFArea")};
}

void SolveZoneRadiusHeight(Figure& f, MessageBox& box) {
  Trapped(box, kFrustrumFault, [&] {
    const Real R = f.boxes.Read("txtFR");
    const Real H = f.boxes.Read("txtFH");
    if (!ZoneExists(R, H)) {
      ShowMessage(box, "Ivalid input. 2R > H > 0.");
      return;
    }
    WriteZone(f, R, H, kTwoPi * R * H);
  });
}

void SolveZoneAreaRadius(Figure& f, MessageBox& box) {
  Trapped(box, kFrustrumFault, [&] {
    const Real S = f.boxes.Read("txtFArea");
    const Real R = f.boxes.Read("txtFR");
    if (!(S > 0 && R > 0)) {
      ShowMessage(box, "Ivalid input. Check values for S, R.");
      return;
    }
    const Real H = S / (2 * kPi * R);
    if (!ZoneExists(R, H)) {
      ShowMessage(box, "Ivalid input. Check values for S, R.");
      return;
    }
    WriteZone(f, R, H, S);
  });
}

void SolveZoneAreaHeight(Figure& f, MessageBox& box) {
  Trapped(box, kFrustrumFault, [&] {
    const Real S = f.boxes.Read("txtFArea");
    const Real H = f.boxes.Read("txtFH");
    if (!(S > 0 && H > 0)) {
      ShowMessage(box, "Ivalid input. Check values for S, H.");
      return;
    }
    const Real R = S / (2 * kPi * H);
    if (!ZoneExists(R, H)) {
      ShowMessage(box, "Ivalid input. Check values for S, H.");
      return;
    }
    WriteZone(f, R, H, S);
  });
}

constexpr std::array<MenuEntry, 6> kSphereMenu = {{
    {"mnulopta1", "Radius: R", {"txtSR"}, SolveSphereRadius},
    {"mnulopta2", "Diameter: D", {"txtSD"}, SolveSphereDiameter},
    {"mnulopta3", "Area: S", {"txtSArea"}, SolveSphereArea},
    {"mnulopta4", "Volume: V", {"txtSzap"}, SolveSphereVolume},
    {"mnulopta5", "Relation: K = V / S", {"txtSK1"}, SolveSphereVolumePerArea},
    {"mnulopta6", "Relation: K = S /V", {"txtSK2"}, SolveSphereAreaPerVolume},
}};

constexpr std::array<MenuEntry, 3> kZoneMenu = {{
    {"mnufrsphere1", "Radius: R, Height: H", {"txtFR", "txtFH"}, SolveZoneRadiusHeight},
    {"mnufrsphere2", "Area: S, Radius: R", {"txtFArea", "txtFR"}, SolveZoneAreaRadius},
    {"mnufrsphere3", "Area: S, Heght: H", {"txtFArea", "txtFH"}, SolveZoneAreaHeight},
}};

constexpr std::array<std::string_view, 3> kSphereHelp = {"Sphere: R", "V = 4/3 * pi * R^3",
                                                         "S = 4 * pi * R^2"};
constexpr std::array<std::string_view, 2> kZoneHelp = {"Sphere Frustrum: R, H", "Area: S = 2 * pi * R * H"};

}  // namespace

std::string_view FrustrumOptionCaption(bool sphere) { return sphere ? "Sphere" : "Cone"; }

std::span<const MenuEntry> SphereMenu() { return kSphereMenu; }
std::span<const MenuEntry> SphereFrustrumMenu() { return kZoneMenu; }
std::span<const std::string_view> SphereHelp() { return kSphereHelp; }
std::span<const std::string_view> SphereFrustrumHelp() { return kZoneHelp; }

}  // namespace velmora::geometry
