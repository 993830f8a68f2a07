#pragma once

#include <array>
#include <span>
#include <string_view>

#include "geometry/solver.h"

// The Euclid page of the Geometry Calculator: the right triangle from the
// two segments m, n that the height cuts from the hypotenuse.
namespace velmora::geometry {

inline constexpr std::array<std::string_view, 8> kEuclidBoxes = {"txtecm", "txtecn", "txteca", "txtecb",
                                                                 "txtecc", "txtech", "txtP1",  "txtO1"};

// The page's one case, "mn": segments m and n.
std::span<const MenuEntry> EuclidMenu();
std::span<const std::string_view> EuclidHelp();

void SolveEuclid(Figure& f, platform::MessageBox& box);

}  // namespace velmora::geometry
