#include "geometry/sketch.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace velmora::geometry {
namespace {

class Extent {
 public:
  void Add(Pt p) {
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
    box_.left = std::min(box_.left, p.x);
    box_.right = std::max(box_.right, p.x);
    box_.bottom = std::min(box_.bottom, p.y);
    box_.top = std::max(box_.top, p.y);
    any_ = true;
  }
  Sketch::Box Box() const { return any_ ? box_ : Sketch::Box{}; }

 private:
  static constexpr double kHuge = std::numeric_limits<double>::max();
  Sketch::Box box_{kHuge, kHuge, -kHuge, -kHuge};
  bool any_ = false;
};

// An arc's points, close enough for its extent.
void AddArc(Extent& extent, const Arc& arc) {
  constexpr int kSteps = 64;
  for (int i = 0; i <= kSteps; ++i) {
    const double t = arc.start + arc.sweep * i / kSteps;
    extent.Add({arc.centre.x + arc.rx * std::cos(t), arc.centre.y + arc.ry * std::sin(t)});
  }
}

}  // namespace

Sketch::Box Sketch::Bounds() const {
  Extent extent;
  for (const auto& s : segments) {
    extent.Add(s.a);
    extent.Add(s.b);
  }
  for (const auto& a : arcs) AddArc(extent, a);
  for (const auto& r : regions) {
    for (const auto& loop : r.loops) {
      for (const auto& p : loop) extent.Add(p);
    }
  }
  return extent.Box();
}

Sketch Sketch::FittedTo(double width, double height, double margin) const {
  Sketch out;
  out.caption = caption;
  out.note = note;
  const Box box = Bounds();
  const double w = box.right - box.left;
  const double h = box.top - box.bottom;
  const double roomX = std::max(1.0, width - 2 * margin);
  const double roomY = std::max(1.0, height - 2 * margin);
  if (!(w > 0 || h > 0)) return out;
  double scale = std::numeric_limits<double>::max();
  if (w > 0) scale = std::min(scale, roomX / w);
  if (h > 0) scale = std::min(scale, roomY / h);
  if (!std::isfinite(scale) || scale <= 0) return out;
  const double offsetX = (width - w * scale) / 2;
  const double offsetY = (height - h * scale) / 2;
  const auto map = [&](Pt p) {
    return Pt{offsetX + (p.x - box.left) * scale, height - (offsetY + (p.y - box.bottom) * scale)};
  };

  for (const auto& r : regions) {
    Region fitted;
    for (const auto& loop : r.loops) {
      std::vector<Pt> points;
      points.reserve(loop.size());
      for (const auto& p : loop) points.push_back(map(p));
      fitted.loops.push_back(std::move(points));
    }
    out.regions.push_back(std::move(fitted));
  }
  for (const auto& s : segments) out.segments.push_back({map(s.a), map(s.b), s.stroke});
  for (const auto& a : arcs) {
    out.arcs.push_back({map(a.centre), a.rx * scale, a.ry * scale, a.start, a.sweep, a.stroke});
  }
  for (const auto& d : dots) out.dots.push_back(map(d));
  for (const auto& l : labels) out.labels.push_back({map(l.anchor), l.text, {l.away.x, -l.away.y}, l.italic});
  if (shade) out.shade = Shade{map(shade->centre), shade->radius * scale};
  return out;
}

std::vector<Pt> EllipseLoop(Pt centre, double rx, double ry, int count) {
  std::vector<Pt> points;
  points.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    const double t = 2 * std::numbers::pi * i / count;
    points.push_back({centre.x + rx * std::cos(t), centre.y + ry * std::sin(t)});
  }
  return points;
}

}  // namespace velmora::geometry
