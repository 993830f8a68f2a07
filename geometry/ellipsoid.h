#pragma once

#include <array>
#include <span>
#include <string_view>

#include "geometry/solver.h"

// The Ellipsoid page of the Geometry Calculator. Its option `Option4` serves
// the ellipse and the ellipsoid on shared boxes.
namespace velmora::geometry {

// The ellipse's boxes: R1, R2, the area and the perimeter.
inline constexpr std::array<std::string_view, 4> kEllipseBoxes = {"txtRe1", "txtRe2", "txtELaREA",
                                                                  "txtEvolume"};
// The ellipsoid's boxes: R1, R2, R3, the volume and the surface.
inline constexpr std::array<std::string_view, 5> kEllipsoidBoxes = {"txtRe1", "txtRe2", "txtRe3",
                                                                    "txtEvolume", "txtELaREA"};

std::span<const MenuEntry> EllipseMenu();    // mnuelipsa
std::span<const MenuEntry> EllipsoidMenu();  // mnuElipsoid

std::span<const std::string_view> EllipseHelp();
std::span<const std::string_view> EllipsoidHelp();

// The captions of the labels `lblEobim` (over `txtEvolume`) and `lblArea`
// (over `txtELaREA`) for the figure that `Option4` selects.
struct EllipseLabels {
  std::string_view lblEobim;  // "obim" is the perimeter; the ellipsoid's volume uses the same label
  std::string_view lblArea;   // the area, or the ellipsoid's surface
};
EllipseLabels EllipsePageLabels(bool ellipsoid);

// The three routines of the ellipsoid ("oko" is "about": the axis of a
// rotation).
void ElipsoidVolume(Figure& f, platform::MessageBox& box);  // volume from the three radii
void ElipsoidOkoR1(Figure& f, platform::MessageBox& box);   // spheroid turned about R1, the long axis
void ElipsoidokoR2(Figure& f, platform::MessageBox& box);   // spheroid turned about R2, the short axis

}  // namespace velmora::geometry
