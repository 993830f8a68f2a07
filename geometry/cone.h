#pragma once

#include <array>
#include <span>
#include <string_view>

#include "geometry/solver.h"

// The Cone page of the Geometry Calculator, the cone frustrum of the
// Frustrum page, and the cylinder that a page may offer.
namespace velmora::geometry {

// R, H, the slant a, the base area B, the angle ø, the lateral surface S, V.
inline constexpr std::array<std::string_view, 7> kConeBoxes = {"txtCR",  "txtCH", "txtCa", "txtCb",
                                                               "txtCFi", "txtCS", "txtCV"};
// The cylinder has no page of its own; a page that offers it binds these.
inline constexpr std::array<std::string_view, 3> kCylinderBoxes = {"txtCR", "txtCH", "txtCV"};

std::span<const MenuEntry> ConeMenu();          // mnuKupa
std::span<const MenuEntry> ConeFrustrumMenu();  // mnufrusrumcone
std::span<const std::string_view> ConeHelp();
std::span<const std::string_view> ConeFrustrumHelp();
std::span<const std::string_view> CylinderHelp();

// The cone's routines, by menu entry mnuK1 to mnuK7 ("Kupa" is the cone;
// the letters name the two given values: R radius, H height, A the slant
// side a, B the base area, Fi the angle ø).
void KupaRH(Figure& f, platform::MessageBox& box);   // cone from radius and height
void KupaAH(Figure& f, platform::MessageBox& box);   // cone from slant side and height
void KupaAR(Figure& f, platform::MessageBox& box);   // cone from slant side and radius
void KupaBH(Figure& f, platform::MessageBox& box);   // cone from base area and height
void KupaHFi(Figure& f, platform::MessageBox& box);  // cone from height and base angle
void KupaAFi(Figure& f, platform::MessageBox& box);  // cone from slant side and base angle
void KupaRfi(Figure& f, platform::MessageBox& box);  // cone from radius and base angle

// The cylinder from R and H: V = pi * R^2 * H.
void Cilinder(Figure& f, platform::MessageBox& box);

}  // namespace velmora::geometry
