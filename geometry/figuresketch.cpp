#include "geometry/figuresketch.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "expr/fault.h"

namespace velmora::geometry {
namespace {

constexpr double kPiD = std::numbers::pi;
// How flat a circle in a solid is drawn: its depth as a share of its radius.
constexpr double kTilt = 0.28;

// The number in a box, or nothing when it does not read as a finite number.
std::optional<double> Value(const Figure& f, std::string_view box) {
  if (!f.boxes.Has(box)) return std::nullopt;
  try {
    const double v = f.boxes.Read(box).Value();
    if (std::isfinite(v)) return v;
  } catch (const expr::Fault&) {
  }
  return std::nullopt;
}

// A measure's label: its letter, and its value once the box holds one.
std::string Named(std::string_view letter, const Figure& f, std::string_view box, bool solved) {
  std::string text(letter);
  if (solved && f.boxes.Has(box) && !f.boxes.Text(box).empty()) text += " = " + f.boxes.Text(box);
  return text;
}

Pt Mid(Pt a, Pt b) { return {(a.x + b.x) / 2, (a.y + b.y) / 2}; }
Pt Minus(Pt a, Pt b) { return {a.x - b.x, a.y - b.y}; }
Pt Unit(Pt v) {
  const double n = std::hypot(v.x, v.y);
  return n > 0 ? Pt{v.x / n, v.y / n} : Pt{0, 0};
}
// The unit normal of the line ab on the side away from `inside`.
Pt Outward(Pt a, Pt b, Pt inside) {
  Pt n = Unit({-(b.y - a.y), b.x - a.x});
  const Pt m = Mid(a, b);
  if (n.x * (inside.x - m.x) + n.y * (inside.y - m.y) > 0) n = {-n.x, -n.y};
  return n;
}
Pt Along(Pt from, Pt dir, double length) { return {from.x + dir.x * length, from.y + dir.y * length}; }

// Positive numbers, or nothing.
bool Positive(std::initializer_list<std::optional<double>> values) {
  return std::all_of(values.begin(), values.end(), [](const auto& v) { return v && *v > 0; });
}

// The mark of the angle at `v` between the rays to `p` and to `q` (taken
// counter-clockwise from p to q): a small square for a right angle, an arc
// otherwise.
void AngleMark(Sketch& s, Pt v, Pt p, Pt q, double size) {
  const Pt up = Unit(Minus(p, v));
  const Pt uq = Unit(Minus(q, v));
  const double start = std::atan2(up.y, up.x);
  double sweep = std::atan2(uq.y, uq.x) - start;
  while (sweep < 0) sweep += 2 * kPiD;
  while (sweep >= 2 * kPiD) sweep -= 2 * kPiD;
  if (std::abs(sweep - kPiD / 2) < 1e-4) {
    const Pt a = Along(v, up, size * 0.7);
    const Pt b = Along(v, uq, size * 0.7);
    const Pt c = Along(a, uq, size * 0.7);
    s.segments.push_back({a, c, Stroke::Measure});
    s.segments.push_back({c, b, Stroke::Measure});
    return;
  }
  s.arcs.push_back({v, size, size, start, sweep, Stroke::Measure});
}

// A circle of a solid seen from a little above: the near half drawn, the
// far half dashed, or all drawn when `open` (a top face in view).
void Rim(Sketch& s, Pt centre, double r, bool open) {
  s.arcs.push_back({centre, r, r * kTilt, kPiD, kPiD, Stroke::Edge});
  s.arcs.push_back({centre, r, r * kTilt, 0, kPiD, open ? Stroke::Edge : Stroke::Dashed});
}

// A measure line with its label pushed off to one side.
void Measure(Sketch& s, Pt a, Pt b, std::string text, Pt away) {
  s.segments.push_back({a, b, Stroke::Measure});
  s.labels.push_back({Mid(a, b), std::move(text), away});
}

// A dimension line beside a figure, with short ticks at its ends.
void Dimension(Sketch& s, Pt a, Pt b, double tick, std::string text, Pt away) {
  const Pt n = Unit({-(b.y - a.y), b.x - a.x});
  s.segments.push_back({a, b, Stroke::Measure});
  s.segments.push_back({Along(a, n, -tick), Along(a, n, tick), Stroke::Measure});
  s.segments.push_back({Along(b, n, -tick), Along(b, n, tick), Stroke::Measure});
  s.labels.push_back({Mid(a, b), std::move(text), away});
}

// ----- plane figures

Sketch DrawTriangle(const Figure& f) {
  auto a = Value(f, "txtta"), b = Value(f, "txttb"), c = Value(f, "txttc");
  bool solved = Positive({a, b, c}) && *a < *b + *c && *b < *a + *c && *c < *a + *b;
  if (!solved) {
    a = 6.0;
    b = 5.0;
    c = 4.0;
  }
  Sketch s;
  // B at the origin, C along the base, A above it: a runs along the base.
  const Pt B{0, 0}, C{*a, 0};
  const double x = (*a * *a + *c * *c - *b * *b) / (2 * *a);
  const Pt A{x, std::sqrt(std::max(0.0, *c * *c - x * x))};
  s.regions.push_back({{{B, C, A}}});
  s.segments.push_back({B, C, Stroke::Edge});
  s.segments.push_back({C, A, Stroke::Edge});
  s.segments.push_back({A, B, Stroke::Edge});

  // The height on a, dashed, with the base drawn out to its foot when the
  // foot falls outside the triangle.
  const Pt foot{A.x, 0};
  s.segments.push_back({A, foot, Stroke::Dashed});
  if (foot.x < 0) s.segments.push_back({foot, B, Stroke::Dashed});
  if (foot.x > *a) s.segments.push_back({C, foot, Stroke::Dashed});
  const double shortest = std::min({*a, *b, *c});
  // No height of its own when it is a side (a right angle at B or C).
  if (std::abs(foot.x) > *a * 0.02 && std::abs(foot.x - *a) > *a * 0.02) {
    // The square mark on the side of the foot that faces the triangle.
    if (foot.x <= *a / 2) {
      AngleMark(s, foot, {foot.x + 1, 0}, A, shortest * 0.12);
    } else {
      AngleMark(s, foot, A, {foot.x - 1, 0}, shortest * 0.12);
    }
    // The letter only: a value would crowd a low triangle's height.
    s.labels.push_back({Mid(A, foot), "ha", {foot.x > *a / 2 ? -1.0 : 1.0, 0}});
  }

  const double mark = shortest * 0.2;
  AngleMark(s, B, C, A, mark);
  AngleMark(s, C, A, B, mark);
  AngleMark(s, A, B, C, mark);
  const Pt g{(A.x + B.x + C.x) / 3, (A.y + B.y + C.y) / 3};
  s.labels.push_back({A, "A", Unit(Minus(A, g))});
  s.labels.push_back({B, "B", Unit(Minus(B, g))});
  s.labels.push_back({C, "C", Unit(Minus(C, g))});
  s.labels.push_back({Mid(B, C), Named("a", f, "txtta", solved), {0, -1}});
  s.labels.push_back({Mid(C, A), Named("b", f, "txttb", solved), Outward(C, A, g)});
  s.labels.push_back({Mid(A, B), Named("c", f, "txttc", solved), Outward(A, B, g)});
  return s;
}

Sketch DrawPolygon(const Figure& f) {
  Sketch s;
  if (!f.note.empty()) {
    s.note = f.note;
    return s;
  }
  auto n = Value(f, "txtPN"), r = Value(f, "txtPR");
  // A fraction of a side has no figure; a schematic one would mislead.
  if (Positive({n, r}) && *n >= 3 && *n != std::floor(*n)) return s;
  const bool solved = Positive({n, r}) && *n >= 3 && *n <= 16;
  if (!solved) {
    n = 6.0;
    r = 1.0;
  }
  const int count = static_cast<int>(*n);
  const double R = *r;
  const double step = 2 * kPiD / count;
  // The first side lies flat at the bottom.
  const double first = -kPiD / 2 - step / 2;
  std::vector<Pt> corners;
  for (int k = 0; k < count; ++k) {
    corners.push_back({R * std::cos(first + k * step), R * std::sin(first + k * step)});
  }
  s.regions.push_back({{corners}});
  for (int k = 0; k < count; ++k) s.segments.push_back({corners[k], corners[(k + 1) % count], Stroke::Edge});
  s.arcs.push_back({{0, 0}, R, R, 0, 2 * kPiD, Stroke::Dashed});
  const Pt O{0, 0};
  s.dots.push_back(O);

  // The apothem to the bottom side, the radius to its right-hand corner and
  // the central angle between that corner and the next.
  const Pt bottom = Mid(corners[0], corners[1]);
  Measure(s, O, bottom, Named("H", f, "txtPH", solved), {-1, 0});
  const Pt right = corners[1], next = corners[2 % count];
  Measure(s, O, right, Named("R", f, "txtPR", solved), Outward(O, right, bottom));
  s.segments.push_back({O, next, Stroke::Dashed});
  AngleMark(s, O, right, next, R * 0.22);
  const double mid = std::atan2(right.y, right.x) + step / 2;
  s.labels.push_back(
      {{R * 0.22 * std::cos(mid), R * 0.22 * std::sin(mid)}, "ø", {std::cos(mid), std::sin(mid)}});
  s.labels.push_back({bottom, Named("a", f, "txtPA", solved), {0, -1}});
  if (solved) s.caption = f.label;
  return s;
}

Sketch DrawEuclid(const Figure& f) {
  auto m = Value(f, "txtecm"), n = Value(f, "txtecn");
  const bool solved = Positive({m, n});
  if (!solved) {
    m = 1.0;
    n = 3.0;
  }
  Sketch s;
  const double a = *m + *n, h = std::sqrt(*m * *n);
  const Pt C{0, 0}, B{a, 0}, D{*m, 0}, A{*m, h};
  s.regions.push_back({{{C, B, A}}});
  s.segments.push_back({C, B, Stroke::Edge});
  s.segments.push_back({B, A, Stroke::Edge});
  s.segments.push_back({A, C, Stroke::Edge});
  s.segments.push_back({A, D, Stroke::Dashed});
  AngleMark(s, D, B, A, std::min(h, a) * 0.1);
  AngleMark(s, A, C, B, std::min(h, a) * 0.12);
  s.labels.push_back({A, "A", {0, 1}});
  s.labels.push_back({B, "B", {1, -0.3}});
  s.labels.push_back({C, "C", {-1, -0.3}});
  s.labels.push_back({Mid(C, D), Named("m", f, "txtecm", solved), {0, -1}});
  s.labels.push_back({Mid(D, B), Named("n", f, "txtecn", solved), {0, -1}});
  s.labels.push_back({Mid(A, D), Named("h", f, "txtech", solved), {*m < *n ? 1.0 : -1.0, 0}});
  s.labels.push_back({Mid(C, A), Named("b", f, "txtecb", solved), Outward(C, A, D)});
  s.labels.push_back({Mid(A, B), Named("c", f, "txtecc", solved), Outward(A, B, D)});
  const double below = -0.16 * std::max(a, h);
  Dimension(s, {0, below}, {a, below}, a * 0.02, Named("a", f, "txteca", solved), {0, -1});
  return s;
}

Sketch DrawCircle(const Figure& f) {
  auto r = Value(f, "txtKR");
  const bool solved = r && *r != 0;
  const double R = solved ? std::abs(*r) : 1.0;
  Sketch s;
  const Pt O{0, 0};
  s.regions.push_back({{EllipseLoop(O, R, R)}});
  s.arcs.push_back({O, R, R, 0, 2 * kPiD, Stroke::Edge});
  s.dots.push_back(O);
  const double t = kPiD / 6;
  Measure(s, O, {R * std::cos(t), R * std::sin(t)}, Named("R", f, "txtKR", solved), {-0.5, 0.87});
  s.segments.push_back({{-R, 0}, {R, 0}, Stroke::Dashed});
  Dimension(s, {-R, -R * 1.18}, {R, -R * 1.18}, R * 0.05, Named("D", f, "txtKD", solved), {0, -1});
  return s;
}

Sketch DrawArc(const Figure& f) {
  auto r = Value(f, "txtKR"), fi = Value(f, "txtKFi");
  const bool solved = Positive({r, fi}) && *fi < 2 * kPiD;
  const double R = solved ? *r : 1.0;
  const double angle = solved ? *fi : 1.2;
  Sketch s;
  const Pt O{0, 0};
  const double start = kPiD / 2 - angle / 2;
  std::vector<Pt> sector{O};
  constexpr int kSteps = 96;
  for (int i = 0; i <= kSteps; ++i) {
    const double t = start + angle * i / kSteps;
    sector.push_back({R * std::cos(t), R * std::sin(t)});
  }
  s.regions.push_back({{sector}});
  s.arcs.push_back({O, R, R, start, angle, Stroke::Edge});
  const Pt p{R * std::cos(start), R * std::sin(start)};
  const Pt q{R * std::cos(start + angle), R * std::sin(start + angle)};
  s.segments.push_back({O, p, Stroke::Edge});
  s.segments.push_back({O, q, Stroke::Edge});
  s.dots.push_back(O);
  AngleMark(s, O, p, q, R * 0.2);
  s.labels.push_back({{0, R * 0.2}, "ø", {0, 1}});
  s.labels.push_back({Mid(O, p), Named("R", f, "txtKR", solved), Unit({p.y, -p.x})});
  s.labels.push_back({{0, R}, Named("L", f, "txtKobim", solved), {0, 1}});
  return s;
}

Sketch DrawRing(const Figure& f) {
  auto big = Value(f, "txtKR"), small = Value(f, "txtKrmalo");
  const bool solved = Positive({big, small}) && *big > *small;
  const double R = solved ? *big : 1.0;
  const double r = solved ? *small : 0.55;
  Sketch s;
  const Pt O{0, 0};
  s.regions.push_back({{EllipseLoop(O, R, R), EllipseLoop(O, r, r)}});
  s.arcs.push_back({O, R, R, 0, 2 * kPiD, Stroke::Edge});
  s.arcs.push_back({O, r, r, 0, 2 * kPiD, Stroke::Edge});
  s.dots.push_back(O);
  const double t = kPiD / 5;
  // R labelled in the band between the circles, clear of the inner one.
  const Pt dir{std::cos(t), std::sin(t)};
  s.segments.push_back({O, Along(O, dir, R), Stroke::Measure});
  s.labels.push_back({Along(O, dir, (R + r) / 2), Named("R", f, "txtKR", solved), {-dir.y, dir.x}});
  Measure(s, O, Along(O, dir, -r), Named("r", f, "txtKrmalo", solved), {-dir.y, dir.x});
  return s;
}

Sketch DrawEllipse(const Figure& f) {
  auto r1 = Value(f, "txtRe1"), r2 = Value(f, "txtRe2");
  const bool solved = Positive({r1, r2});
  const double a = solved ? *r1 : 1.6, b = solved ? *r2 : 1.0;
  Sketch s;
  const Pt O{0, 0};
  s.regions.push_back({{EllipseLoop(O, a, b)}});
  s.arcs.push_back({O, a, b, 0, 2 * kPiD, Stroke::Edge});
  s.dots.push_back(O);
  Measure(s, O, {a, 0}, Named("R1", f, "txtRe1", solved), {0, 1});
  Measure(s, O, {0, b}, Named("R2", f, "txtRe2", solved), {1, 0});
  if (solved) s.caption = f.label;
  return s;
}

// ----- solids

Sketch DrawSphere(const Figure& f, bool shade) {
  auto r = Value(f, "txtSR");
  const bool solved = r && *r != 0;
  const double R = solved ? std::abs(*r) : 1.0;
  Sketch s;
  const Pt O{0, 0};
  if (shade) {
    s.shade = Shade{O, R};
  } else {
    s.regions.push_back({{EllipseLoop(O, R, R)}});
  }
  s.arcs.push_back({O, R, R, 0, 2 * kPiD, Stroke::Edge});
  Rim(s, O, R, false);
  s.dots.push_back(O);
  Measure(s, O, {R, 0}, Named("R", f, "txtSR", solved), {0, 1});
  return s;
}

Sketch DrawSphereFrustrum(const Figure& f) {
  auto r = Value(f, "txtFR"), h = Value(f, "txtFH");
  const bool solved = Positive({r, h}) && *h <= 2 * *r;
  const double R = solved ? *r : 1.0;
  const double H = solved ? *h : 0.7;
  Sketch s;
  const Pt O{0, 0};
  // The zone of height H cut from the top of the sphere.
  const double cut = R - H;
  const double half = std::sqrt(std::max(0.0, R * R - cut * cut));
  const double from = std::asin(std::clamp(cut / R, -1.0, 1.0));
  // The zone's surface in view: the sphere's arc over the cut, then back
  // along the near half of the cut's rim.
  std::vector<Pt> cap;
  constexpr int kSteps = 96;
  for (int i = 0; i <= kSteps; ++i) {
    const double t = from + (kPiD - 2 * from) * i / kSteps;
    cap.push_back({R * std::cos(t), R * std::sin(t)});
  }
  for (int i = 1; i < kSteps; ++i) {
    const double t = kPiD + kPiD * i / kSteps;
    cap.push_back({half * std::cos(t), cut + half * kTilt * std::sin(t)});
  }
  s.regions.push_back({{cap}});
  s.arcs.push_back({O, R, R, 0, 2 * kPiD, Stroke::Dashed});
  s.arcs.push_back({O, R, R, from, kPiD - 2 * from, Stroke::Edge});
  if (half > 0) Rim(s, {0, cut}, half, true);
  s.dots.push_back(O);
  const double side = R * 1.18;
  Dimension(s, {side, cut}, {side, R}, R * 0.04, Named("H", f, "txtFH", solved), {1, 0});
  const double t = kPiD * 1.15;
  Measure(s, O, {R * std::cos(t), R * std::sin(t)}, Named("R", f, "txtFR", solved), {0.3, -1});
  return s;
}

Sketch DrawConeFrustrum(const Figure& f) {
  auto r = Value(f, "txtFR"), h = Value(f, "txtFH"), a = Value(f, "txtFA"), q = Value(f, "txtFQ");
  const bool solved = Positive({r, h, a, q}) && *a < *h && *q < *r;
  const double R = solved ? *r : 1.0, H = solved ? *h : 1.6, cut = solved ? *a : 0.9;
  const double top = solved ? *q : R * (H - cut) / H;
  Sketch s;
  const Pt apex{0, H};
  // The surface in view: the top face, the side, the near half of the base.
  std::vector<Pt> body;
  constexpr int kSteps = 64;
  for (int i = 0; i <= kSteps; ++i) {
    const double t = kPiD * i / kSteps;
    body.push_back({top * std::cos(t), cut + top * kTilt * std::sin(t)});
  }
  for (int i = 0; i <= kSteps; ++i) {
    const double t = kPiD + kPiD * i / kSteps;
    body.push_back({R * std::cos(t), R * kTilt * std::sin(t)});
  }
  s.regions.push_back({{body}});
  Rim(s, {0, 0}, R, false);
  s.arcs.push_back({{0, cut}, top, top * kTilt, 0, 2 * kPiD, Stroke::Edge});
  s.segments.push_back({{-R, 0}, {-top, cut}, Stroke::Edge});
  s.segments.push_back({{R, 0}, {top, cut}, Stroke::Edge});
  s.segments.push_back({{-top, cut}, apex, Stroke::Dashed});
  s.segments.push_back({{top, cut}, apex, Stroke::Dashed});
  s.segments.push_back({{0, 0}, apex, Stroke::Dashed});
  s.dots.push_back({0, 0});
  s.dots.push_back(apex);
  Measure(s, {0, 0}, {R, 0}, Named("R", f, "txtFR", solved), {0, -1});
  Measure(s, {0, cut}, {top, cut}, Named("q", f, "txtFQ", solved), {0, 1});
  const double tick = R * 0.04;
  Dimension(s, {-R * 1.2, 0}, {-R * 1.2, cut}, tick, Named("a", f, "txtFA", solved), {-1, 0});
  Dimension(s, {R * 1.2, 0}, {R * 1.2, H}, tick, Named("H", f, "txtFH", solved), {1, 0});
  return s;
}

Sketch DrawEllipsoid(const Figure& f) {
  auto r1 = Value(f, "txtRe1"), r2 = Value(f, "txtRe2"), r3 = Value(f, "txtRe3");
  const bool solved = Positive({r1, r2});
  const double a = solved ? *r1 : 1.6, b = solved ? *r2 : 1.0;
  // A spheroid has no third radius of its own: it is turned about an axis.
  const bool third = solved ? (r3 && *r3 > 0) : true;
  const double c = third ? (solved ? *r3 : 1.2) : b;
  Sketch s;
  const Pt O{0, 0};
  s.regions.push_back({{EllipseLoop(O, a, b)}});
  s.arcs.push_back({O, a, b, 0, 2 * kPiD, Stroke::Edge});
  s.arcs.push_back({O, a, c * kTilt, kPiD, kPiD, Stroke::Edge});
  s.arcs.push_back({O, a, c * kTilt, 0, kPiD, Stroke::Dashed});
  s.dots.push_back(O);
  Measure(s, O, {a, 0}, Named("R1", f, "txtRe1", solved), {0, 1});
  Measure(s, O, {0, b}, Named("R2", f, "txtRe2", solved), {1, 0});
  if (third) {
    // The third radius points at the viewer: to the near side of the rim,
    // labelled below the rim.
    const double t = kPiD * 1.3;
    const Pt end{a * std::cos(t), c * kTilt * std::sin(t)};
    s.segments.push_back({O, end, Stroke::Measure});
    s.labels.push_back({end, Named("R3", f, "txtRe3", solved), {-0.2, -1}});
  }
  return s;
}

Sketch DrawCone(const Figure& f) {
  auto r = Value(f, "txtCR"), h = Value(f, "txtCH");
  const bool solved = Positive({r, h});
  const double R = solved ? *r : 1.0, H = solved ? *h : 1.8;
  Sketch s;
  const Pt apex{0, H}, O{0, 0};
  std::vector<Pt> body{apex, {R, 0}};
  constexpr int kSteps = 64;
  for (int i = 0; i <= kSteps; ++i) {
    const double t = -kPiD * i / kSteps;
    body.push_back({R * std::cos(t), R * kTilt * std::sin(t)});
  }
  s.regions.push_back({{body}});
  Rim(s, O, R, false);
  s.segments.push_back({{-R, 0}, apex, Stroke::Edge});
  s.segments.push_back({{R, 0}, apex, Stroke::Edge});
  s.dots.push_back(O);
  Measure(s, O, apex, Named("H", f, "txtCH", solved), {-1, 0});
  s.segments.back().stroke = Stroke::Dashed;
  Measure(s, O, {R, 0}, Named("R", f, "txtCR", solved), {0, -1});
  s.labels.push_back({Mid({R, 0}, apex), Named("a", f, "txtCa", solved), Unit({H, R})});
  AngleMark(s, apex, {-R, 0}, O, std::min(R, H) * 0.35);
  s.labels.push_back({Along(apex, Unit({-R * 0.5, -H}), std::min(R, H) * 0.35), "ø", {-0.3, -1}});
  return s;
}

}  // namespace

Sketch FigureSketch(std::string_view word, const Figure& figure, SketchOptions options) {
  if (word == "triangle") return DrawTriangle(figure);
  if (word == "polygon") return DrawPolygon(figure);
  if (word == "euclid") return DrawEuclid(figure);
  if (word == "circle") return DrawCircle(figure);
  if (word == "arc") return DrawArc(figure);
  if (word == "ring") return DrawRing(figure);
  if (word == "sphere") return DrawSphere(figure, options.shade);
  if (word == "sfrustrum") return DrawSphereFrustrum(figure);
  if (word == "cfrustrum") return DrawConeFrustrum(figure);
  if (word == "ellipse") return DrawEllipse(figure);
  if (word == "ellipsoid") return DrawEllipsoid(figure);
  if (word == "cone") return DrawCone(figure);
  return {};
}

}  // namespace velmora::geometry
