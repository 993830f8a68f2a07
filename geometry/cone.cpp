#include "geometry/cone.h"

namespace velmora::geometry {
namespace {

using platform::MessageBox;

// ----- cone

constexpr std::string_view kConeFault = "Invalid input.";

struct Cone {
  Real R, H, a, fi;
};

// Every case ends alike: the base, the lateral surface and the volume from
// whatever R, H and a it has.
void WriteCone(Figure& f, const Cone& c) {
  const Real B = kPi * c.R * c.R;
  const Real S = kPi * c.R * c.a;
  const Real V = Real(1) / 3 * kPi * c.R * c.R * c.H;
  auto& x = f.boxes;
  x.Write("txtCR", c.R);
  x.Write("txtCH", c.H);
  x.Write("txtCa", c.a);
  x.Write("txtCb", B);
  x.Write("txtCFi", c.fi);
  x.Write("txtCS", S);
  x.Write("txtCV", V);
  f.result = {"Cone: R = " + x.Text("txtCR") + " H = " + x.Text("txtCH") + " a = " + x.Text("txtCa"),
              "B = " + x.Text("txtCb") + " ø = " + x.Text("txtCFi"),
              "S = " + x.Text("txtCS") + " V = " + x.Text("txtCV")};
}

// Runs one cone case: reads its two given boxes, refuses them unless `valid`,
// and solves the rest.
template <class Valid, class Solve>
void SolveCone(Figure& f, MessageBox& box, std::string_view first, std::string_view second,
               std::string_view refusal, Valid valid, Solve solve) {
  Trapped(box, kConeFault, [&] {
    const Real u = f.boxes.Read(first);
    const Real v = f.boxes.Read(second);
    if (!valid(u, v)) {
      ShowMessage(box, refusal);
      return;
    }
    WriteCone(f, solve(u, v));
  });
}

// ----- cone frustrum: R and H of the whole cone, q the small radius, a the
// height of the cut; q = R * (H - a) / H.

constexpr std::string_view kFrustrumFault = "Check selected values.";
constexpr std::string_view kFrustrumRefused = "Ivalid input.";

enum class FrustrumGiven { RHa, Rqa, RqH, Hqa };

void SolveFrustrum(FrustrumGiven given, Figure& f, MessageBox& box) {
  Trapped(box, kFrustrumFault, [&] {
    auto& x = f.boxes;
    Real R = x.Read("txtFR");
    Real H = x.Read("txtFH");
    Real a = x.Read("txtFA");
    Real q = x.Read("txtFQ");
    const bool positive = [&] {
      switch (given) {
        case FrustrumGiven::RHa: return R > 0 && H > 0 && a > 0;
        case FrustrumGiven::Rqa: return R > 0 && q > 0 && a > 0;
        case FrustrumGiven::RqH: return R > 0 && q > 0 && H > 0;
        case FrustrumGiven::Hqa: return H > 0 && q > 0 && a > 0;
      }
      return false;
    }();
    if (!positive) {
      ShowMessage(box, kFrustrumRefused);
      return;
    }
    std::string_view refusal;
    switch (given) {
      case FrustrumGiven::RHa:
        q = R * (H - a) / H;
        if (q > R) refusal = "Ivalid input. (Q < R)";
        break;
      case FrustrumGiven::Rqa:
        H = a * R / (R - q);
        if (a > H) refusal = "Ivalid input. (a < H)";
        break;
      case FrustrumGiven::RqH:
        a = H * (R - q) / R;
        if (a > H) refusal = "Ivalid input. (a < H)";
        break;
      case FrustrumGiven::Hqa:
        R = q * H / (H - a);
        if (q > R) refusal = "Ivalid input. (q < R)";
        break;
    }
    if (!refusal.empty()) {
      ShowMessage(box, refusal);
      return;
    }
    // The surface of the whole cone less that of the cone above the cut.
    const Real L1 = Sqr(R * R + H * H);
    const Real L2 = Sqr(q * q + (H - a) * (H - a));
    const Real S = kPi * (R * L1 - q * L2);
    x.Write("txtFR", R);
    x.Write("txtFH", H);
    x.Write("txtFA", a);
    x.Write("txtFQ", q);
    x.Write("txtFArea", S);
    f.result = {"Cone Frustrum: R = " + x.Text("txtFR") + " ; H = " + x.Text("txtFH"),
                "q = " + x.Text("txtFQ") + " ; a = " + x.Text("txtFA"), "S = " + x.Text("txtFArea")};
  });
}

void SolveFrustrumRHa(Figure& f, MessageBox& box) { SolveFrustrum(FrustrumGiven::RHa, f, box); }
void SolveFrustrumRqa(Figure& f, MessageBox& box) { SolveFrustrum(FrustrumGiven::Rqa, f, box); }
void SolveFrustrumRqH(Figure& f, MessageBox& box) { SolveFrustrum(FrustrumGiven::RqH, f, box); }
void SolveFrustrumHqa(Figure& f, MessageBox& box) { SolveFrustrum(FrustrumGiven::Hqa, f, box); }

// ----- tables

constexpr std::array<MenuEntry, 7> kConeMenu = {{
    {"mnuK1", "R, H", {"txtCR", "txtCH"}, KupaRH},
    {"mnuK2", "a, H", {"txtCa", "txtCH"}, KupaAH},
    {"mnuK3", "a, R", {"txtCa", "txtCR"}, KupaAR},
    {"mnuK4", "B, H", {"txtCb", "txtCH"}, KupaBH},
    {"mnuK5", "H, Angle ø", {"txtCH", "txtCFi"}, KupaHFi},
    {"mnuK6", "a, Angle ø", {"txtCa", "txtCFi"}, KupaAFi},
    {"mnuK7", "R, Angle ø", {"txtCR", "txtCFi"}, KupaRfi},
}};

// Two entries share a caption and a computation; both stay on the menu.
constexpr std::array<MenuEntry, 5> kFrustrumMenu = {{
    {"mnufrcone1", "R, H, a", {"txtFR", "txtFH", "txtFA"}, SolveFrustrumRHa},
    {"mnufrcone2", "R, q, a", {"txtFR", "txtFQ", "txtFA"}, SolveFrustrumRqa},
    {"mnufrcone3", "R, q, H", {"txtFR", "txtFQ", "txtFH"}, SolveFrustrumRqH},
    {"mnufrcone4", "R, q, a", {"txtFR", "txtFQ", "txtFA"}, SolveFrustrumRqa},
    {"mnufrcone5", "H, q, a", {"txtFH", "txtFQ", "txtFA"}, SolveFrustrumHqa},
}};

constexpr std::array<std::string_view, 3> kConeHelp = {"Cone: R, H, a", "Surface: S = pi * R * a",
                                                       "Volume: V = 1/3 * pi * R^2 * H"};
// The root in the second text has a slip that stays as it is.
constexpr std::array<std::string_view, 3> kFrustrumHelp = {"Cone Frustrum: R, H, q, a",
                                                           "S = pi * [R*Sqr(R^2+H^2)-q*Sqr(q^2+(H^2-a^2))",
                                                           "q = R*(H - a)/H ; H = a*R/(R - q)"};
constexpr std::array<std::string_view, 1> kCylinderHelp = {"Volume: V = pi * R^2 * H"};

}  // namespace

// In the first four cases ø is the angle at the apex, tan(ø) = R / H; in the
// last three it is the angle at the base. That split is the program's own.
void KupaRH(Figure& f, MessageBox& box) {
  SolveCone(
      f, box, "txtCR", "txtCH", "Invalid input: R > 0, H > 0 required.",
      [](Real R, Real H) { return R > 0 && H > 0; },
      [](Real R, Real H) {
        const Real fi = Atn(R / H);
        return Cone{R, H, H / Cos(fi), fi};
      });
}

void KupaAH(Figure& f, MessageBox& box) {
  SolveCone(
      f, box, "txtCa", "txtCH", "Invalid input: a > H > 0 required.",
      [](Real a, Real H) { return a > H && H > 0; },
      [](Real a, Real H) {
        const Real R = Sqr(a * a - H * H);
        return Cone{R, H, a, Atn(R / H)};
      });
}

void KupaAR(Figure& f, MessageBox& box) {
  SolveCone(
      f, box, "txtCa", "txtCR", "Invalid input: a > R > 0 required.",
      [](Real a, Real R) { return a > R && R > 0; },
      [](Real a, Real R) {
        const Real H = Sqr(a * a - R * R);
        return Cone{R, H, a, Atn(R / H)};
      });
}

void KupaBH(Figure& f, MessageBox& box) {
  SolveCone(
      f, box, "txtCb", "txtCH", "Invalid input: B > 0, H > 0 required.",
      [](Real B, Real H) { return B > 0 && H > 0; },
      [](Real B, Real H) {
        const Real R = Sqr(B / kPi);
        const Real fi = Atn(R / H);
        return Cone{R, H, R / Sin(fi), fi};
      });
}

void KupaHFi(Figure& f, MessageBox& box) {
  SolveCone(
      f, box, "txtCH", "txtCFi", "Invalid input: Fi > 0, H > 0 required.",
      [](Real H, Real fi) { return fi > 0 && H > 0; },
      [](Real H, Real fi) {
        const Real a = H / Sin(fi);
        return Cone{a * Cos(fi), H, a, fi};
      });
}

void KupaAFi(Figure& f, MessageBox& box) {
  SolveCone(
      f, box, "txtCa", "txtCFi", "Invalid input: Fi > 0, A > 0 required.",
      [](Real a, Real fi) { return fi > 0 && a > 0; },
      [](Real a, Real fi) {
        return Cone{a * Cos(fi), a * Sin(fi), a, fi};
      });
}

// The routine divides a height that nothing has set by sin(ø): the slant and
// the height come out as 0, and with them S and V; only B is right. The
// result is kept as it stands.
void KupaRfi(Figure& f, MessageBox& box) {
  SolveCone(
      f, box, "txtCR", "txtCFi", "Invalid input: Fi > 0, R > 0 required.",
      [](Real R, Real fi) { return fi > 0 && R > 0; },
      [](Real R, Real fi) {
        const Real unset;
        const Real a = unset / Sin(fi);
        const Real H = a * Sin(fi);
        return Cone{R, H, a, fi};
      });
}

void Cilinder(Figure& f, MessageBox& box) {
  Trapped(box, kConeFault, [&] {
    auto& x = f.boxes;
    const Real R = x.Read("txtCR");
    const Real H = x.Read("txtCH");
    if (!(R > 0 && H > 0)) {
      ShowMessage(box, "Invalid inpit");
      return;
    }
    x.Write("txtCR", R);
    x.Write("txtCH", H);
    x.Write("txtCV", kPi * R * R * H);
    f.result = {"Cilinder: R = " + x.Text("txtCR") + " ; H = " + x.Text("txtCH"), "Volume: V = pi * R^2 * H",
                "V = " + x.Text("txtCV")};
  });
}

std::span<const MenuEntry> ConeMenu() { return kConeMenu; }
std::span<const MenuEntry> ConeFrustrumMenu() { return kFrustrumMenu; }
std::span<const std::string_view> ConeHelp() { return kConeHelp; }
std::span<const std::string_view> ConeFrustrumHelp() { return kFrustrumHelp; }
std::span<const std::string_view> CylinderHelp() { return kCylinderHelp; }

}  // namespace velmora::geometry
