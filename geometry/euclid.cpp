#include "geometry/euclid.h"

namespace velmora::geometry {
namespace {

constexpr std::string_view kRefused = "Invalid input: m, n > 0  required.";
constexpr std::string_view kFault = "Check selected values.";

constexpr std::array<MenuEntry, 1> kEuclidMenu = {{
    {"mn", "Segments: m, n", {"txtecm", "txtecn"}, SolveEuclid},
}};

constexpr std::array<std::string_view, 8> kEuclidHelp = {
    "Euclid's Theorem: segments  m, n",
    "p / 2 = a + b + c",
    " ; h = Sqr ( m * n)",
    "S = 1/2 * (a * h) = Sqr [p * (p-a) * (p-b) * (p-c)]",
    "h = Sqr ( m * n)",
    "b = Sqr (a * m)",
    "c = Sqr ( a * n)",
    "a = m + n"};

}  // namespace

void SolveEuclid(Figure& f, platform::MessageBox& box) {
  Trapped(box, kFault, [&] {
    auto& x = f.boxes;
    const Real m = x.Read("txtecm");
    const Real n = x.Read("txtecn");
    // A bad input shows its message and nothing is written.
    if (m <= 0 || n <= 0) {
      ShowMessage(box, kRefused);
      return;
    }
    // The height theorem h^2 = m*n and the leg theorems b^2 = a*m, c^2 = a*n.
    const Real a = m + n;
    const Real h = Sqr(m * n);
    const Real b = Sqr(a * m);
    const Real c = Sqr(a * n);
    const Real S = a * h / 2;
    const Real P = a + b + c;
    x.Write("txtecm", m);
    x.Write("txtecn", n);
    x.Write("txteca", a);
    x.Write("txtecb", b);
    x.Write("txtecc", c);
    x.Write("txtech", h);
    x.Write("txtP1", S);
    x.Write("txtO1", P);
    f.result = {"Euclid's Theorem: m = " + x.Text("txtecm") + " ; n = " + x.Text("txtecn"),
                "a = " + x.Text("txteca") + " ; b = " + x.Text("txtecb") + " ; c = " + x.Text("txtecc") +
                    " ; h = " + x.Text("txtech"),
                "S = " + x.Text("txtP1") + " ; P = " + x.Text("txtO1")};
  });
}

std::span<const MenuEntry> EuclidMenu() { return kEuclidMenu; }
std::span<const std::string_view> EuclidHelp() { return kEuclidHelp; }

}  // namespace velmora::geometry
