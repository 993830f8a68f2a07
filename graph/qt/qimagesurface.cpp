#include "graph/qt/qimagesurface.h"

#include <algorithm>

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

namespace velmora::graph_qt {
namespace {

// 96 dots per inch, in dots per metre.
constexpr int kDotsPerMetre = 3780;

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QColor ToQColor(graph::Colour colour) {
  return QColor(graph::RedOf(colour), graph::GreenOf(colour), graph::BlueOf(colour));
}

QImageSurface::QImageSurface(int width, int height)
    : BasicSurface(width, height), image_(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32) {
  image_.setDotsPerMeterX(kDotsPerMetre);
  image_.setDotsPerMeterY(kDotsPerMetre);
  image_.fill(ToQColor(BackColor()));
  FontChanged();
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

bool QImageSurface::SavePng(const QString& file) { return Image().save(file, "PNG"); }

void QImageSurface::Resize(int width, int height) {
  EndPainting();
  BasicSurface::Resize(width, height);
  QImage resized(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32);
  resized.setDotsPerMeterX(kDotsPerMetre);
  resized.setDotsPerMeterY(kDotsPerMetre);
  resized.fill(ToQColor(BackColor()));
  {
    QPainter copy(&resized);
    copy.drawImage(0, 0, image_);
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
  p.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void QImageSurface::PaintCircle(double x, double y, double radius, graph::Colour colour) {
  if (DrawStyle() == graph::kInvisible) return;
  QPainter& p = Painter();
  p.setPen(Pen(colour));
  penKey_ = PenKey{};
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(QPointF(x, y), radius, radius);
}

void QImageSurface::PaintText(double x, double y, std::string_view text) {
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
  font_ = QFont(ToQString(FontName()));
  font_.setPointSizeF(FontSize());
  font_.setBold(FontBold());
}

std::string QImageSurface::ResolveFontName(std::string_view requested) const {
  if (requested == "MS Sans Serif" || requested == "Arial") return std::string(requested);
  const QString family = ToQString(requested);
  if (QFontDatabase::hasFamily(family)) return std::string(requested);
  return QFontInfo(QFont(family)).family().toStdString();
}

double QImageSurface::TextWidth(std::string_view text) const {
  return QFontMetricsF(font_, &image_).horizontalAdvance(ToQString(text));
}

double QImageSurface::TextHeight(std::string_view /*text*/) const {
  return QFontMetricsF(font_, &image_).height();
}

}  // namespace velmora::graph_qt
