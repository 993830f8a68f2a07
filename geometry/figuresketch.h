#pragma once

#include <string_view>

#include "geometry/sketch.h"
#include "geometry/solver.h"

// The drawing of each figure of the Geometry Calculator from its page's
// record: the shape to scale, its measure letters beside the lines they name
// (with their values once solved), construction lines dashed.
namespace velmora::geometry {

// The figure that `word` names ("triangle", "polygon", "circle", "arc",
// "ring", "euclid", "sphere", "sfrustrum", "cfrustrum", "ellipse",
// "ellipsoid", "cone"), drawn from the boxes of `figure`. While the boxes do
// not hold a figure that can be drawn (empty, refused, or a figure without
// extent) a schematic one of the same kind is drawn with its letters only,
// so the page shows what each letter means before anything is solved. A
// polygon of more than 16 sides has the solver's note and no figure.
// A right angle is marked with a square, any other angle with an arc.
struct SketchOptions {
  bool shade = false;  // the sphere lit, as "Shade Sphere" asks
};
Sketch FigureSketch(std::string_view word, const Figure& figure, SketchOptions options = {});

}  // namespace velmora::geometry
