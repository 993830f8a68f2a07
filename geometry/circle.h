#pragma once

#include <array>
#include <span>
#include <string_view>

#include "geometry/solver.h"

// The Circle page of the Geometry Calculator. Its option `Option6` serves
// three figures on the same boxes: the circle, the arc and the ring.
namespace velmora::geometry {

// R, D, S, C (or the arc's length), the arc's angle in radians, the small
// radius (or R - r as a ring's given measure), and R + r.
inline constexpr std::array<std::string_view, 7> kCircleBoxes = {
    "txtKR", "txtKD", "txtKArea", "txtKobim", "txtKFi", "txtKrmalo", "txtKRR"};

std::span<const MenuEntry> CircleMenu();  // mnukrug
std::span<const MenuEntry> ArcMenu();     // mnuluk
std::span<const MenuEntry> RingMenu();    // mnuprsten

std::span<const std::string_view> CircleHelp();
std::span<const std::string_view> ArcHelp();
std::span<const std::string_view> RingHelp();

// The caption over `txtKobim`: "Circumference", or "Arc Lenght" for the arc.
std::string_view LengthCaption(bool arc);

// The arc's "Rad" button (`Command44`) converts `txtKFi` from degrees.
inline constexpr std::string_view kArcRadiansButton = "Command44";
inline constexpr std::string_view kArcRadiansCaption = "Rad";
inline constexpr std::string_view kArcRadiansToolTip = "Convert to radians";

}  // namespace velmora::geometry
