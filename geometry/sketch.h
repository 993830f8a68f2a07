#pragma once

#include <optional>
#include <string>
#include <vector>

// A figure of the Geometry Calculator as lines, arcs, tinted regions and
// labels, without any drawing layer. Figures are built in the figure's own
// units with y pointing up, then fitted to a picture box in pixels (y down);
// a view only strokes what it is given.
namespace velmora::geometry {

struct Pt {
  double x = 0;
  double y = 0;
};

// How a line is drawn: a visible edge, a construction or hidden edge
// (dashed), or a measure line (thin, with its label).
enum class Stroke { Edge, Dashed, Measure };

struct Segment {
  Pt a;
  Pt b;
  Stroke stroke = Stroke::Edge;
};

// An arc of an ellipse with axes along x and y. Angles are in radians,
// counter-clockwise as the picture is seen, so they keep their meaning when
// the figure is fitted; a sweep of 2*pi is the whole ellipse.
struct Arc {
  Pt centre;
  double rx = 0;
  double ry = 0;
  double start = 0;
  double sweep = 0;
  Stroke stroke = Stroke::Edge;
};

// A tinted region: closed loops filled by the even-odd rule (a ring is its
// two circles).
struct Region {
  std::vector<std::vector<Pt>> loops;
};

// A text placed beside its anchor: `away` is the direction in which it is
// pushed off the anchor, so that it never sits on the line it names (0, 0
// centres it on the anchor).
struct Label {
  Pt anchor;
  std::string text;
  Pt away;
  bool italic = true;  // measure letters are set in italics, names upright
};

// The light on a solid: a radial shade over the disc of this circle.
struct Shade {
  Pt centre;
  double radius = 0;
};

struct Sketch {
  std::vector<Region> regions;
  std::vector<Segment> segments;
  std::vector<Arc> arcs;
  std::vector<Pt> dots;
  std::vector<Label> labels;
  std::optional<Shade> shade;
  // The figure's name printed above it ("SQUARE", "R1 = R2"); empty for none.
  std::string caption;
  // A text shown in place of the figure; the figure is empty then.
  std::string note;

  bool Empty() const { return regions.empty() && segments.empty() && arcs.empty(); }

  // The smallest box holding every line, arc and region.
  struct Box {
    double left = 0, bottom = 0, right = 0, top = 0;
  };
  Box Bounds() const;

  // The figure scaled by one factor on both axes (so angles and shapes stay
  // true), centred in a width x height picture with `margin` pixels free on
  // every side for the labels, and turned to pixel coordinates (y down).
  // Label directions follow the turn. A figure without extent is returned
  // empty but for its caption and note.
  Sketch FittedTo(double width, double height, double margin) const;
};

// Points of a whole ellipse, `count` of them, for a region's loop.
std::vector<Pt> EllipseLoop(Pt centre, double rx, double ry, int count = 180);

}  // namespace velmora::geometry
