#pragma once

#include <array>
#include <span>
#include <string_view>

#include "geometry/solver.h"

// The Sphere page of the Geometry Calculator, and the spherical frustrum of
// the Frustrum page.
namespace velmora::geometry {

// R, D, S, V, V / S, S / V.
inline constexpr std::array<std::string_view, 6> kSphereBoxes = {"txtSR",   "txtSD",  "txtSArea",
                                                                 "txtSzap", "txtSK1", "txtSK2"};
// The check box of the page: the drawing only.
inline constexpr std::string_view kShadeSphereCaption = "Shade Sphere";

// The Frustrum page: R, H, a, q, S; `Option1` chooses the cone or the sphere.
inline constexpr std::array<std::string_view, 5> kFrustrumBoxes = {"txtFR", "txtFH", "txtFA", "txtFQ",
                                                                   "txtFArea"};
std::string_view FrustrumOptionCaption(bool sphere);

std::span<const MenuEntry> SphereMenu();          // mnulopta
std::span<const MenuEntry> SphereFrustrumMenu();  // mnufrustrumsphere
std::span<const std::string_view> SphereHelp();
std::span<const std::string_view> SphereFrustrumHelp();

}  // namespace velmora::geometry
