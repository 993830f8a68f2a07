#pragma once

#include <string_view>

// The labels beside the Geometry Calculator's text boxes: the measure each
// box holds, named by its letter as the help texts and drawings use it.
namespace velmora::geometry {

// The label of a box of any page; empty for a name no page has. Boxes whose
// label follows the page's option (the arc's length, the ellipsoid's volume)
// have their own functions beside their solvers.
std::string_view BoxCaption(std::string_view box);

}  // namespace velmora::geometry
