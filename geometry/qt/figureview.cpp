#include "geometry/qt/figureview.h"

#include <QPainter>

#include "geometry/qt/sketchpainter.h"

namespace velmora::geometry_qt {

FigureView::FigureView(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("Picture1"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FigureView::SetSketch(geometry::Sketch sketch) {
  sketch_ = std::move(sketch);
  update();
}

QImage FigureView::Picture() const { return RenderSketch(sketch_, size()); }

void FigureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  const QRectF area(rect());
  PaintSketch(painter, FitToPicture(sketch_, area.size()), area);
  painter.setPen(QColor(170, 176, 186));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace velmora::geometry_qt
