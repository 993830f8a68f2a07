#include "graph/qt/labelimage.h"

#include <cmath>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QTransform>

#include "graph/qt/qimagesurface.h"
#include "platform/qt/qtstring.h"

namespace velmora::graph_qt {
namespace {

constexpr double kPointsToPixels = 96.0 / 72.0;

QFont LabelFont(const graph::LabelStyle& label) {
  QFont font(qtplatform::ToQString(label.fontName));
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(label.fontSize * kPointsToPixels))));
  font.setBold(label.bold);
  font.setItalic(label.italic);
  font.setUnderline(label.underline);
  font.setStrikeOut(label.strikeout);
  font.setStyleStrategy(QFont::NoAntialias);
  return font;
}

}  // namespace

graph::LabelStyle LabelStyleOf(const QString& text, const QFont& font, graph::Colour colour, double angle,
                               bool transparent) {
  graph::LabelStyle style;
  style.text = text.toStdString();
  style.fontName = font.family().toStdString();
  style.fontSize = font.pointSizeF() > 0 ? font.pointSizeF() : style.fontSize;
  style.bold = font.bold();
  style.italic = font.italic();
  style.underline = font.underline();
  style.strikeout = font.strikeOut();
  style.colour = colour;
  style.angle = angle;
  style.transparent = transparent;
  return style;
}

QImage RenderLabel(const graph::LabelStyle& label, graph::Colour back) {
  const QFont font = LabelFont(label);
  const QFontMetricsF metrics(font);
  const QString text = qtplatform::ToQString(label.text);
  const QSizeF textSize(std::max(1.0, metrics.horizontalAdvance(text)), metrics.height());
  // Screen rows grow downward, so a counter-clockwise turn is a negative one.
  QTransform turn;
  turn.rotate(-label.angle);
  const QRectF turned = turn.mapRect(QRectF(QPointF(0, 0), textSize));
  const QSize size(static_cast<int>(std::ceil(turned.width())) + 2,
                   static_cast<int>(std::ceil(turned.height())) + 2);
  QImage image(size, QImage::Format_RGB32);
  image.fill(ToQColor(back));
  QPainter painter(&image);
  painter.setRenderHint(QPainter::TextAntialiasing, false);
  painter.setFont(font);
  painter.setPen(ToQColor(label.colour));
  painter.translate(size.width() / 2.0, size.height() / 2.0);
  painter.rotate(-label.angle);
  painter.drawText(QPointF(-textSize.width() / 2, -textSize.height() / 2 + metrics.ascent()), text);
  painter.end();
  return image;
}

void BurnLabelImage(QImage& picture, const QImage& label, int left, int top, bool transparent,
                    graph::Colour back) {
  const QRgb backRgb = ToQColor(back).rgb();
  for (int y = 0; y < label.height(); ++y) {
    const int py = top + y;
    if (py < 0 || py >= picture.height()) continue;
    for (int x = 0; x < label.width(); ++x) {
      const int px = left + x;
      if (px < 0 || px >= picture.width()) continue;
      const QRgb pixel = label.pixel(x, y);
      if (transparent && (pixel | 0xFF000000u) == (backRgb | 0xFF000000u)) continue;
      picture.setPixel(px, py, pixel);
    }
  }
}

}  // namespace velmora::graph_qt
