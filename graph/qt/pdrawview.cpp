#include "graph/qt/pdrawview.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>

#include "graph/qt/qimagesurface.h"

namespace velmora::graph_qt {

PDrawView::PDrawView(QImageSurface& surface, QWidget* parent) : QWidget(parent), surface_(surface) {
  setObjectName(QStringLiteral("pDraw"));
  setMouseTracking(true);
  setFocusPolicy(Qt::ClickFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PDrawView::SetLines(const graph::LineControl* lineY, const graph::LineControl* line1,
                         const graph::LineControl* line2) {
  lines_[0] = lineY;
  lines_[1] = line1;
  lines_[2] = line2;
}

QColor PDrawView::CrossHairColour() { return QColor(0x40, 0x40, 0x40); }
QColor PDrawView::TangentColour() { return QColor(0xE0, 0x20, 0x20); }

void PDrawView::paintEvent(QPaintEvent* event) {
  QPainter p(this);
  const QImage& picture = surface_.Image();
  // The picture may hold more pixels than the widget has (a screen above
  // 100%): the part shown is taken in the picture's own pixels.
  const double ratio = picture.devicePixelRatio();
  const QRectF shown(event->rect());
  p.drawImage(shown, picture,
              QRectF(shown.x() * ratio, shown.y() * ratio, shown.width() * ratio, shown.height() * ratio));
  // Outside the picture (a size not yet followed): the back colour.
  const QRect covered(QPoint(0, 0), picture.deviceIndependentSize().toSize());
  if (!covered.contains(rect())) {
    const QRegion rest = QRegion(rect()).subtracted(QRegion(covered));
    for (const QRect& r : rest) p.fillRect(r, ToQColor(surface_.BackColor()));
  }
  for (int i = 0; i < 3; ++i) {
    const graph::LineControl* line = lines_[i];
    if (line == nullptr || !line->Visible) continue;
    p.setPen(QPen(i == 1 ? TangentColour() : CrossHairColour(), 1));
    p.drawLine(QPointF(line->X1, line->Y1), QPointF(line->X2, line->Y2));
  }
}

int PDrawView::Buttons(Qt::MouseButtons buttons) {
  int value = 0;
  if (buttons & Qt::LeftButton) value |= 1;
  if (buttons & Qt::RightButton) value |= 2;
  if (buttons & Qt::MiddleButton) value |= 4;
  return value;
}

void PDrawView::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  emit MouseMoved(Buttons(event->buttons()), at.x(), at.y());
}

void PDrawView::mousePressEvent(QMouseEvent* event) {
  // A press of the right button traces at once, as a move with it held.
  if (event->button() == Qt::RightButton) {
    const QPointF at = event->position();
    emit MouseMoved(Buttons(event->buttons()), at.x(), at.y());
  }
  QWidget::mousePressEvent(event);
}

void PDrawView::mouseReleaseEvent(QMouseEvent* event) {
  emit MouseReleased();
  QWidget::mouseReleaseEvent(event);
}

void PDrawView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    emit EscapePressed();
    return;
  }
  QWidget::keyPressEvent(event);
}

void PDrawView::resizeEvent(QResizeEvent* event) {
  const QSize old = event->oldSize();
  emit Resized(old.width(), old.height(), event->size().width(), event->size().height());
}

}  // namespace velmora::graph_qt
