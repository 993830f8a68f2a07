#include "graph/basicsurface.h"

#include <algorithm>
#include <cmath>

#include "expr/fault.h"

namespace velmora::graph {
namespace {

// The fonts every platform has a stand-in for.
constexpr std::string_view kAlwaysThere[] = {"MS Sans Serif", "Arial"};
// Device coordinates are 32-bit integers.
constexpr double kDeviceLimit = 2147483647.0;

}  // namespace

BasicSurface::BasicSurface(int width, int height, std::vector<std::string> extraFonts)
    : width_(std::max(width, 0)), height_(std::max(height, 0)), fonts_(std::move(extraFonts)) {}

void BasicSurface::Resize(int width, int height) {
  width_ = std::max(width, 0);
  height_ = std::max(height, 0);
}

void BasicSurface::Clear() {
  currentX_ = 0;
  currentY_ = 0;
  PaintClear();
}

void BasicSurface::SetDrawStyle(int style) {
  if (style < kSolid || style > kInsideSolid) throw expr::Fault(expr::Fault::kInvalidCall);
  drawStyle_ = style;
}

void BasicSurface::SetDrawWidth(int width) {
  if (width < 1) throw expr::Fault(expr::Fault::kInvalidCall);
  drawWidth_ = width;
}

void BasicSurface::CheckCoordinate(double value) {
  if (!std::isfinite(value) || std::fabs(value) > kDeviceLimit) throw expr::Fault(expr::Fault::kOverflow);
}

void BasicSurface::Line(double x1, double y1, double x2, double y2, Colour colour) {
  CheckCoordinate(x1);
  CheckCoordinate(y1);
  CheckCoordinate(x2);
  CheckCoordinate(y2);
  PaintLine(x1, y1, x2, y2, colour & 0xFFFFFF);
  currentX_ = x2;
  currentY_ = y2;
}

void BasicSurface::LineTo(double x2, double y2, Colour colour) { Line(currentX_, currentY_, x2, y2, colour); }

void BasicSurface::Circle(double x, double y, double radius, Colour colour) {
  CheckCoordinate(x);
  CheckCoordinate(y);
  CheckCoordinate(radius);
  PaintCircle(x, y, std::fabs(radius), colour & 0xFFFFFF);
  currentX_ = x;
  currentY_ = y;
}

void BasicSurface::Print(std::string_view text) {
  CheckCoordinate(currentX_);
  CheckCoordinate(currentY_);
  PaintText(currentX_, currentY_, text);
  currentX_ = 0;
  currentY_ += TextHeight(text);
}

void BasicSurface::SetFontName(std::string_view name) {
  fontName_ = ResolveFontName(name);
  FontChanged();
}

void BasicSurface::SetFontSize(double points) {
  if (!(points > 0) || points > 2048) throw expr::Fault(expr::Fault::kInvalidCall);
  fontSize_ = points;
  FontChanged();
}

std::string BasicSurface::ResolveFontName(std::string_view requested) const {
  for (const auto name : kAlwaysThere) {
    if (name == requested) return std::string(requested);
  }
  for (const auto& name : fonts_) {
    if (name == requested) return name;
  }
  return std::string(kAlwaysThere[0]);
}

// Without a font engine the metrics follow the size: a pixel is 1/96 inch,
// an average character a little over half the em, a line 1.2 em.
double BasicSurface::TextWidth(std::string_view text) const {
  const double em = fontSize_ * 96.0 / 72.0;
  return std::round(static_cast<double>(text.size()) * em * (fontBold_ ? 0.6 : 0.55));
}

double BasicSurface::TextHeight(std::string_view /*text*/) const {
  return std::round(fontSize_ * 96.0 / 72.0 * 1.2);
}

}  // namespace velmora::graph
