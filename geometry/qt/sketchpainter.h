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

// The figure fitted to a picture of `size`, with room round it for its
// widest label (at least 34 pixels, at most a fifth of the picture).
geometry::Sketch FitToPicture(const geometry::Sketch& sketch, QSizeF size);

}  // namespace velmora::geometry_qt
