#pragma once

#include <QImage>
#include <QPainter>

#include "geometry/sketch.h"

namespace velmora::geometry_qt {

// Paints a fitted figure as a printed page would show it: white paper,
// antialiased lines, the figure lightly tinted, construction lines dashed,
// measure letters in italics beside their lines. Coordinates are device
// independent, so the picture is as crisp on a high-density screen.
void PaintSketch(QPainter& painter, const geometry::Sketch& fitted, const QRectF& area);

// The figure fitted to `size` and painted on a white picture.
QImage RenderSketch(const geometry::Sketch& sketch, QSize size, qreal devicePixelRatio = 1.0);

// The room left free round a figure for its labels, in pixels.
inline constexpr double kFigureMargin = 34.0;

}  // namespace velmora::geometry_qt
