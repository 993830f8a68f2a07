#include "geometry/polygon.h"

namespace velmora::geometry {
namespace {

using platform::MessageBox;

constexpr std::string_view kFault = "Invalid input.";

constexpr std::array<std::string_view, 14> kNames = {
    "TRIANGLE",      "SQUARE",         "PENTAGON",       "HEXAGON",      "HEPTAGON",
    "OCTAGON",       "NONAGON",        "DECAGON",        "UNDECAGON",    "DODECAGON",
    "TRISKADECAGON", "TETRAKADECAGON", "PENTAKADECAGON", "HEXAKADECAGON"};

constexpr std::array<std::string_view, 4> kHelp = {"Polygon:  N, a, R ",
                                                   "Apothem: H = R * Cos(ø / 2) ; R = a / [2 * sin(ø / 2)]",
                                                   "Area: S = 1/2 * a * H * N", "Nd = N * (N - 3) / 2"};

enum class Given { Side, Circumradius, Apothem };

struct PolygonCase {
  std::string_view box;
  std::string_view refusal;
  // Decimals of the central and interior angles: the side case shows 5, the
  // two radius cases 2, and the difference stays.
  int angleDecimals;
};

constexpr std::array<PolygonCase, 3> kCases = {{
    {"txtPA", "Invalid input: n >= 3, a > 0  required.", 5},
    {"txtPR", "Invalid input: n >= 3, R > 0  required.", 2},
    {"txtPH", "Invalid input: n >= 3, H > 0  required.", 2},
}};

void SolvePolygon(Given given, Figure& f, MessageBox& box) {
  const PolygonCase& which = kCases[static_cast<std::size_t>(given)];
  Trapped(box, kFault, [&] {
    auto& x = f.boxes;
    const Real N = x.Read("txtPN");
    const Real measure = x.Read(which.box);
    if (!(N >= 3 && measure > 0)) {
      ShowMessage(box, which.refusal);
      return;
    }
    const Real fi = kTwoPi / N;
    Real a;
    Real R;
    Real H;
    switch (given) {
      case Given::Side:
        a = measure;
        R = a / (2 * Sin(fi / 2));
        H = R * Cos(fi / 2);
        break;
      case Given::Circumradius:
        R = measure;
        a = 2 * R * Sin(fi / 2);
        H = R * Cos(fi / 2);
        break;
      case Given::Apothem:
        H = measure;
        R = H / Cos(fi / 2);
        a = 2 * R * Sin(fi / 2);
        break;
    }
    const Real interior = (N - 2) * kPi / N;
    const Real sum = (N - 2) * kPi;
    const Real diagonals = N * (N - 3) / 2;
    const Real P = N * a;
    const Real S = Real(0.5) * a * H * N;
    x.Write("txtPN", N);
    x.Write("txtPA", a);
    x.Write("txtPR", R);
    x.Write("txtPH", H);
    x.Write("txtPArea", S);
    x.Write("txtPobim", P);
    // The angles are kept in radians and shown in degrees.
    x.Write("txtPFi", fi * 180 / kPi, which.angleDecimals);
    x.Write("txtPalfa", interior * 180 / kPi, which.angleDecimals);
    x.Write("txtpSuma", sum * 180 / kPi);
    x.Write("txtPNd", diagonals);
    x.Write("txtPodnos", P / (2 * R));
    f.label = std::string(PolygonName(N.Value()));
    f.note = N > kPolygonPreviewMax ? std::string(kPolygonPreviewNote) : std::string();
    f.result = {"Polygon: N = " + x.Text("txtPN") + " ; a = " + x.Text("txtPA") +
                    " ; R = " + x.Text("txtPR") + " ; H = " + x.Text("txtPH"),
                "S = " + x.Text("txtPArea") + " ; P = " + x.Text("txtPobim")};
  });
}

constexpr std::array<MenuEntry, 3> kMenu = {{
    {"a", "N, Side: a", {"txtPN", "txtPA"}, SolvePolygonSide},
    {"R", "N, Radius: R", {"txtPN", "txtPR"}, SolvePolygonCircumradius},
    {"H", "N, Apothem: H", {"txtPN", "txtPH"}, SolvePolygonApothem},
}};

}  // namespace

void SolvePolygonSide(Figure& f, MessageBox& box) { SolvePolygon(Given::Side, f, box); }
void SolvePolygonCircumradius(Figure& f, MessageBox& box) { SolvePolygon(Given::Circumradius, f, box); }
void SolvePolygonApothem(Figure& f, MessageBox& box) { SolvePolygon(Given::Apothem, f, box); }

std::span<const MenuEntry> PolygonMenu() { return kMenu; }
std::span<const std::string_view> PolygonHelp() { return kHelp; }

std::string_view PolygonName(double n) {
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (n == static_cast<double>(i + 3)) return kNames[i];
  }
  return {};
}

}  // namespace velmora::geometry
