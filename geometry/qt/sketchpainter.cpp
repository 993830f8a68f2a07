#include "geometry/qt/sketchpainter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QFontMetricsF>
#include <QPainterPath>
#include <QRadialGradient>

#include "platform/qt/qtstring.h"

namespace velmora::geometry_qt {
namespace {

using geometry::Pt;
using geometry::Stroke;

const QColor kInk(24, 36, 64);           // the figure's edges
const QColor kTint(214, 228, 246, 170);  // the figure's surface
const QColor kMeasure(150, 52, 40);      // measure lines and their letters
const QColor kConstruction(96, 104, 120);

QPointF P(Pt p) { return {p.x, p.y}; }

QPen PenFor(Stroke stroke) {
  switch (stroke) {
    case Stroke::Edge: {
      QPen pen(kInk, 1.8);
      pen.setJoinStyle(Qt::RoundJoin);
      pen.setCapStyle(Qt::RoundCap);
      return pen;
    }
    case Stroke::Dashed: {
      QPen pen(kConstruction, 1.1);
      pen.setDashPattern({5.0, 4.0});
      return pen;
    }
    case Stroke::Measure: return QPen(kMeasure, 1.1);
  }
  return QPen(kInk);
}

QFont LabelFont(bool italic) {
  QFont font(QStringLiteral("Serif"));
  font.setStyleHint(QFont::Serif);
  font.setPointSizeF(10.5);
  font.setItalic(italic);
  return font;
}

// The text's box beside its anchor, pushed off it along `away` until the
// box clears the line through the anchor square to `away`, plus a gap: a
// label beside a side never touches that side.
QRectF LabelBox(const QFontMetricsF& metrics, const QString& text, Pt anchor, Pt away) {
  const QSizeF size(metrics.horizontalAdvance(text) + 2, metrics.height());
  const double length = std::hypot(away.x, away.y);
  QPointF centre(anchor.x, anchor.y);
  if (length > 0) {
    const double ux = away.x / length, uy = away.y / length;
    // How far the box reaches along (ux, uy) from its centre.
    const double reach = size.width() / 2 * std::abs(ux) + size.height() / 2 * std::abs(uy) + 4.0;
    centre += QPointF(ux * reach, uy * reach);
  }
  return QRectF(centre.x() - size.width() / 2, centre.y() - size.height() / 2, size.width(), size.height());
}

}  // namespace

void PaintSketch(QPainter& painter, const geometry::Sketch& fitted, const QRectF& area) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setRenderHint(QPainter::TextAntialiasing, true);

  if (fitted.shade) {
    // Light from the upper left, as a sphere is drawn in a textbook.
    const QPointF c = P(fitted.shade->centre);
    const double r = fitted.shade->radius;
    QRadialGradient light(c + QPointF(-r * 0.35, -r * 0.4), r * 1.35, c + QPointF(-r * 0.4, -r * 0.45));
    light.setColorAt(0.0, QColor(255, 255, 255));
    light.setColorAt(0.45, QColor(176, 198, 230));
    light.setColorAt(1.0, QColor(58, 82, 128));
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(c, r, r);
  }

  painter.setPen(Qt::NoPen);
  painter.setBrush(kTint);
  for (const auto& region : fitted.regions) {
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const auto& loop : region.loops) {
      if (loop.empty()) continue;
      path.moveTo(P(loop.front()));
      for (std::size_t i = 1; i < loop.size(); ++i) path.lineTo(P(loop[i]));
      path.closeSubpath();
    }
    painter.drawPath(path);
  }
  painter.setBrush(Qt::NoBrush);

  // Construction and measure lines first, so the edges lie over them.
  for (const Stroke pass : {Stroke::Dashed, Stroke::Measure, Stroke::Edge}) {
    painter.setPen(PenFor(pass));
    for (const auto& s : fitted.segments) {
      if (s.stroke == pass) painter.drawLine(P(s.a), P(s.b));
    }
    for (const auto& a : fitted.arcs) {
      if (a.stroke != pass) continue;
      const QRectF box(a.centre.x - a.rx, a.centre.y - a.ry, 2 * a.rx, 2 * a.ry);
      constexpr double kSixteenthsPerRadian = 180.0 * 16.0 / std::numbers::pi;
      painter.drawArc(box, static_cast<int>(std::lround(a.start * kSixteenthsPerRadian)),
                      static_cast<int>(std::lround(a.sweep * kSixteenthsPerRadian)));
    }
  }

  painter.setPen(Qt::NoPen);
  painter.setBrush(kInk);
  for (const auto& d : fitted.dots) painter.drawEllipse(P(d), 2.2, 2.2);
  painter.setBrush(Qt::NoBrush);

  for (const bool italic : {true, false}) {
    const QFont font = LabelFont(italic);
    painter.setFont(font);
    const QFontMetricsF metrics(font, painter.device());
    for (const auto& l : fitted.labels) {
      if (l.italic != italic) continue;
      const QString text = qtplatform::ToQString(l.text);
      const QRectF box = LabelBox(metrics, text, l.anchor, l.away);
      // A single vertex letter stays in the figure's ink; measures take the
      // colour of their lines.
      painter.setPen(text.size() == 1 && text.at(0).isUpper() ? kInk : kMeasure);
      painter.drawText(box, Qt::AlignCenter, text);
    }
  }

  if (!fitted.caption.empty()) {
    QFont font(QStringLiteral("Sans Serif"));
    font.setPointSizeF(10);
    font.setBold(true);
    font.setLetterSpacing(QFont::PercentageSpacing, 110);
    painter.setFont(font);
    painter.setPen(kInk);
    painter.drawText(area.adjusted(6, 4, -6, -4), Qt::AlignTop | Qt::AlignHCenter,
                     qtplatform::ToQString(fitted.caption));
  }
  if (!fitted.note.empty()) {
    QFont font(QStringLiteral("Sans Serif"));
    font.setPointSizeF(10);
    painter.setFont(font);
    painter.setPen(kConstruction);
    painter.drawText(area.adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap,
                     qtplatform::ToQString(fitted.note));
  }
  painter.restore();
}

geometry::Sketch FitToPicture(const geometry::Sketch& sketch, QSizeF size) {
  // Fitted with a first guess of the room the labels need, then again with
  // more room as long as a label would stand outside the picture (or under
  // the caption).
  const QFontMetricsF metrics(LabelFont(true));
  const double top = sketch.caption.empty() ? 4.0 : 24.0;
  double margin = 30.0;
  geometry::Sketch fitted = sketch.FittedTo(size.width(), size.height(), margin);
  for (int pass = 0; pass < 4; ++pass) {
    double over = 0;
    for (const auto& l : fitted.labels) {
      const QRectF box = LabelBox(metrics, qtplatform::ToQString(l.text), l.anchor, l.away);
      over = std::max({over, 4.0 - box.left(), box.right() - size.width() + 4.0, top - box.top(),
                       box.bottom() - size.height() + 4.0});
    }
    if (over <= 0.5 || margin > std::min(size.width(), size.height()) / 3) break;
    margin += over;
    fitted = sketch.FittedTo(size.width(), size.height(), margin);
  }
  return fitted;
}

QImage RenderSketch(const geometry::Sketch& sketch, QSize size, qreal devicePixelRatio) {
  QImage image(size * devicePixelRatio, QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(Qt::white);
  QPainter painter(&image);
  const QRectF area(0, 0, size.width(), size.height());
  PaintSketch(painter, FitToPicture(sketch, area.size()), area);
  return image;
}

}  // namespace velmora::geometry_qt
