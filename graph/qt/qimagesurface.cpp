#include "graph/qt/qimagesurface.h"

#include <algorithm>
#include <cmath>

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include "graph/qt/labelimage.h"
#include "platform/qt/qtsavefile.h"
#include "platform/qt/qtstring.h"

namespace velmora::graph_qt {
namespace {

// 96 dots per inch, in dots per metre.
constexpr int kDotsPerMetre = 3780;

// The symbol glyphs, in em from the top left of their cell: the centre of
// the arrow head and half its size. The up arrow sits lower in its cell
// than the others, so that printed at the top of a surface (as the Y
// axis's arrow is) its point stays on the surface.
struct SymbolGlyph {
  char character;
  double centreX;
  double centreY;
  int direction;  // 0 left, 1 right, 2 up, 3 down
};
constexpr SymbolGlyph kSymbolGlyphs[] = {
    {'3', 0.43, 0.43, 0},
    {'4', 0.43, 0.43, 1},
    {'5', 0.43, 0.60, 2},
    {'6', 0.43, 0.43, 3},
};
constexpr double kArrowHalf = 0.24;
constexpr double kBoldGrowth = 1.2;
constexpr double kPointsToPixels = 96.0 / 72.0;

using qtplatform::ToQString;

}  // namespace

graph::Colour FromQColor(const QColor& colour) {
  return graph::Rgb(colour.red(), colour.green(), colour.blue());
}

QColor ToQColor(graph::Colour colour) {
  return QColor(graph::RedOf(colour), graph::GreenOf(colour), graph::BlueOf(colour));
}

QImageSurface::QImageSurface(int width, int height) : BasicSurface(width, height) {
  image_ = MakeImage(width, height);
  FontChanged();
}

QImage QImageSurface::MakeImage(int width, int height) const {
  QImage image(std::max(static_cast<int>(std::ceil(width * ratio_)), 1),
               std::max(static_cast<int>(std::ceil(height * ratio_)), 1), QImage::Format_RGB32);
  // Fonts are sized at 96 dots per inch of the surface's own pixels.
  image.setDotsPerMeterX(kDotsPerMetre);
  image.setDotsPerMeterY(kDotsPerMetre);
  image.setDevicePixelRatio(ratio_);
  image.fill(ToQColor(BackColor()));
  return image;
}

void QImageSurface::SetDevicePixelRatio(double ratio) {
  if (!(ratio > 0) || ratio == ratio_) return;
  ratio_ = ratio;
  Resize(static_cast<int>(ScaleWidth()), static_cast<int>(ScaleHeight()));
}

QImageSurface::~QImageSurface() { EndPainting(); }

QPainter& QImageSurface::Painter() {
  if (!painter_) {
    penKey_ = PenKey{};
    painter_ = std::make_unique<QPainter>(&image_);
    painter_->setRenderHint(QPainter::Antialiasing, false);
    painter_->setRenderHint(QPainter::TextAntialiasing, true);
    painter_->setBrush(Qt::NoBrush);
  }
  return *painter_;
}

void QImageSurface::EndPainting() { painter_.reset(); }

const QImage& QImageSurface::Image() {
  EndPainting();
  return image_;
}

bool QImageSurface::SavePng(const QString& file) {
  return qtplatform::SaveFileAtomically(file,
                                        [this](QIODevice& device) { return Image().save(&device, "PNG"); });
}

void QImageSurface::Resize(int width, int height) { Resize(width, height, 0, 0); }

void QImageSurface::Resize(int width, int height, int dx, int dy) {
  EndPainting();
  BasicSurface::Resize(width, height);
  QImage resized = MakeImage(width, height);
  {
    QPainter copy(&resized);
    copy.drawImage(dx, dy, image_);
  }
  image_ = std::move(resized);
}

QPen QImageSurface::Pen(graph::Colour colour) const {
  QPen pen(ToQColor(colour));
  const int width = DrawWidth();
  pen.setWidth(width);
  // A broken pen style shows only on a line one pixel wide.
  Qt::PenStyle style = Qt::SolidLine;
  if (width == 1) {
    switch (DrawStyle()) {
      case graph::kDash: style = Qt::DashLine; break;
      case graph::kDot: style = Qt::DotLine; break;
      case graph::kDashDot: style = Qt::DashDotLine; break;
      case graph::kDashDotDot: style = Qt::DashDotDotLine; break;
      default: break;
    }
  }
  pen.setStyle(style);
  pen.setCapStyle(Qt::FlatCap);
  return pen;
}

void QImageSurface::PaintClear() { Painter().fillRect(image_.rect(), ToQColor(BackColor())); }

void QImageSurface::PaintLine(double x1, double y1, double x2, double y2, graph::Colour colour) {
  if (DrawStyle() == graph::kInvisible) return;
  QPainter& p = Painter();
  // A curve is hundreds of lines in one pen: set it only when it changes.
  const PenKey key{colour, DrawWidth(), DrawStyle()};
  if (!(key == penKey_)) {
    p.setPen(Pen(colour));
    penKey_ = key;
  }
  // Between whole pixels, both ends painted: Qt's aliased line leaves out
  // its last pixel (and rounds fractional ends its own way), which broke a
  // curve wherever two samples lay about one pixel apart.
  const QPoint from(PixelOf(x1), PixelOf(y1));
  const QPoint to(PixelOf(x2), PixelOf(y2));
  p.drawLine(from, to);
  if (DrawStyle() == graph::kSolid) {
    const int width = std::max(DrawWidth(), 1);
    const QColor ink = ToQColor(colour);
    for (const QPoint& end : {from, to})
      p.fillRect(QRect(end.x() - (width - 1) / 2, end.y() - (width - 1) / 2, width, width), ink);
  }
}

void QImageSurface::PaintCircle(double x, double y, double radius, graph::Colour colour) {
  if (DrawStyle() == graph::kInvisible) return;
  QPainter& p = Painter();
  p.setPen(Pen(colour));
  penKey_ = PenKey{};
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(QPointF(x, y), radius, radius);
}

bool QImageSurface::IsSymbolFont(std::string_view name) { return name == "Marlett" || name == "Webdings"; }

double QImageSurface::EmPixels() const { return FontSize() * kPointsToPixels; }

void QImageSurface::PaintSymbols(double x, double y, std::string_view text) {
  QPainter& p = Painter();
  const double em = EmPixels();
  const double advance = kSymbolAdvance * em;
  if (!FontTransparent()) {
    p.fillRect(QRectF(x, y, advance * static_cast<double>(text.size()), em), ToQColor(BackColor()));
  }
  p.setRenderHint(QPainter::Antialiasing, true);
  p.setPen(Qt::NoPen);
  p.setBrush(ToQColor(ForeColor()));
  penKey_ = PenKey{};
  const double half = kArrowHalf * em * (FontBold() ? kBoldGrowth : 1.0);
  double left = x;
  for (const char c : text) {
    for (const auto& glyph : kSymbolGlyphs) {
      if (glyph.character != c) continue;
      const QPointF centre(left + glyph.centreX * em, y + glyph.centreY * em);
      QPointF points[3];
      switch (glyph.direction) {
        case 0:
          points[0] = centre + QPointF(-half, 0);
          points[1] = centre + QPointF(half, -half);
          points[2] = centre + QPointF(half, half);
          break;
        case 1:
          points[0] = centre + QPointF(half, 0);
          points[1] = centre + QPointF(-half, -half);
          points[2] = centre + QPointF(-half, half);
          break;
        case 2:
          points[0] = centre + QPointF(0, -half);
          points[1] = centre + QPointF(-half, half);
          points[2] = centre + QPointF(half, half);
          break;
        default:
          points[0] = centre + QPointF(0, half);
          points[1] = centre + QPointF(-half, -half);
          points[2] = centre + QPointF(half, -half);
          break;
      }
      p.drawPolygon(points, 3);
    }
    left += advance;
  }
  p.setBrush(Qt::NoBrush);
  p.setRenderHint(QPainter::Antialiasing, false);
}

void QImageSurface::PaintText(double x, double y, std::string_view text) {
  if (symbolFont_) {
    PaintSymbols(x, y, text);
    return;
  }
  QPainter& p = Painter();
  p.setFont(font_);
  const QString qtext = ToQString(text);
  const QFontMetricsF metrics(font_, &image_);
  if (!FontTransparent()) {
    p.fillRect(QRectF(x, y, metrics.horizontalAdvance(qtext), metrics.height()), ToQColor(BackColor()));
  }
  p.setPen(ToQColor(ForeColor()));
  penKey_ = PenKey{};
  p.drawText(QPointF(x, y + metrics.ascent()), qtext);
}

void QImageSurface::FontChanged() {
  symbolFont_ = IsSymbolFont(FontName());
  font_ = QFont(ToQString(FontName()));
  font_.setPointSizeF(FontSize());
  font_.setBold(FontBold());
}

std::string QImageSurface::ResolveFontName(std::string_view requested) const {
  if (requested == "MS Sans Serif" || requested == "Arial" || IsSymbolFont(requested))
    return std::string(requested);
  const QString family = ToQString(requested);
  if (QFontDatabase::hasFamily(family)) return std::string(requested);
  return qtplatform::ToStdString(QFontInfo(QFont(family)).family());
}

double QImageSurface::TextWidth(std::string_view text) const {
  if (symbolFont_) return kSymbolAdvance * EmPixels() * static_cast<double>(text.size());
  return QFontMetricsF(font_, &image_).horizontalAdvance(ToQString(text));
}

double QImageSurface::TextHeight(std::string_view /*text*/) const {
  if (symbolFont_) return EmPixels();
  return QFontMetricsF(font_, &image_).height();
}

void QImageSurface::BurnLabel(const graph::LabelStyle& label, double left, double top, graph::Colour back) {
  EndPainting();
  BurnLabelImage(image_, RenderLabel(label, back), static_cast<int>(std::lround(left)),
                 static_cast<int>(std::lround(top)), label.transparent, back);
}

}  // namespace velmora::graph_qt
