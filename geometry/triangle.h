#pragma once

#include <array>
#include <span>
#include <string_view>

#include "geometry/solver.h"

// The Triangle page of the Geometry Calculator: the general, right-angled and
// equilateral solvers, each by its pop-up menu entry.
namespace velmora::geometry {

// The boxes of the page, in the order of the record: sides, angles (radians),
// half-perimeter, area, perimeter, heights, circumradius, inradius.
inline constexpr std::array<std::string_view, 14> kTriangleBoxes = {
    "txtta",    "txttb",    "txttc",  "txtta1", "txttb1", "txttc1", "txtts",
    "txttarea", "txttobim", "txttha", "txtthb", "txtthc", "txttRv", "txtRm"};

// The three pop-up menus that `Command53` opens: `mnuTrougao` for a general
// triangle, `mnuprav` with `optionR`, `mnujednako` with `optionE`.
std::span<const MenuEntry> GeneralTriangleMenu();
std::span<const MenuEntry> RightTriangleMenu();
std::span<const MenuEntry> EquilateralTriangleMenu();

// The help texts the page shows with each type of triangle.
std::span<const std::string_view> GeneralTriangleHelp();
std::span<const std::string_view> RightTriangleHelp();
std::span<const std::string_view> EquilateralTriangleHelp();

// The tool tip of a box of the page; empty when it has none. The area and
// perimeter boxes carry each other's tips.
std::string_view TriangleToolTip(std::string_view box);

// The page's buttons: `Command53` opens the menu of the selected type of
// triangle, `Command61` clears the boxes.
inline constexpr std::string_view kTriangleCalculateButton = "Command53";
inline constexpr std::string_view kTriangleResetButton = "Command61";
inline constexpr std::string_view kResetCaption = "Reset";
inline constexpr std::string_view kRadiansButtonCaption = "Convert to Radians";

// The "Convert to Radians" buttons `Command54`, `Command55`, `Command56`: the
// angle box each one converts in place.
std::string_view RadiansButtonBox(std::string_view button);
// Turns the degrees in an angle box into radians, rounded to 5 places. A box
// whose number overflows is left as it is.
void ConvertToRadians(BoxRecord& boxes, std::string_view box);

// The solvers, by menu entry.
void SolveThreeSides(Figure& f, platform::MessageBox& box);               // mnuabc
void SolveSideTwoAngles(Figure& f, platform::MessageBox& box);            // mnuabc2
void SolveTwoSidesIncluded(Figure& f, platform::MessageBox& box);         // mnuabc3
void SolveTwoSidesOpposite(Figure& f, platform::MessageBox& box);         // mnuabc4
void SolveRightHypotenuseAngle(Figure& f, platform::MessageBox& box);     // mnupravaB1
void SolveRightSideAngle(Figure& f, platform::MessageBox& box);           // mnupravbB2
void SolveRightHypotenuseSide(Figure& f, platform::MessageBox& box);      // mnupravab3
void SolveRightTwoSides(Figure& f, platform::MessageBox& box);            // mnupravbc4
void SolveEquilateralSide(Figure& f, platform::MessageBox& box);          // mnujednaka1
void SolveEquilateralHeight(Figure& f, platform::MessageBox& box);        // mnujednakh2
void SolveEquilateralCircumradius(Figure& f, platform::MessageBox& box);  // mnujednakR3
void SolveEquilateralInradius(Figure& f, platform::MessageBox& box);      // mnujednakrm4
void SolveEquilateralArea(Figure& f, platform::MessageBox& box);          // mnujednakP5
void SolveEquilateralPerimeter(Figure& f, platform::MessageBox& box);     // mnujednakO6

}  // namespace velmora::geometry
