#pragma once

#include <array>
#include <span>
#include <string_view>

#include "geometry/solver.h"

// The Polygon page of the Geometry Calculator: a regular polygon of N sides
// from N and one more measure, the side a, the circumradius R or the apothem H.
namespace velmora::geometry {

// N, a, R, H, area, perimeter, central angle, interior angle, sum of the
// angles (the three angles in degrees), number of diagonals, P / (2 * R).
inline constexpr std::array<std::string_view, 11> kPolygonBoxes = {
    "txtPN",  "txtPA",    "txtPR",    "txtPH",  "txtPArea", "txtPobim",
    "txtPFi", "txtPalfa", "txtpSuma", "txtPNd", "txtPodnos"};

// Past this many sides the figure is not drawn.
inline constexpr int kPolygonPreviewMax = 16;
inline constexpr std::string_view kPolygonPreviewNote = "For N > 16 preview not available.";

// The entries "a", "R" and "H": N first, then the named measure.
std::span<const MenuEntry> PolygonMenu();
std::span<const std::string_view> PolygonHelp();

// The name of the polygon with N sides, for a whole N from 3 to 16; empty
// for any other N, a fraction included.
std::string_view PolygonName(double n);

void SolvePolygonSide(Figure& f, platform::MessageBox& box);
void SolvePolygonCircumradius(Figure& f, platform::MessageBox& box);
void SolvePolygonApothem(Figure& f, platform::MessageBox& box);

}  // namespace velmora::geometry
