#include "graph/qt/picmcrbox.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPixmap>

#include "graph/qt/frmzoom2.h"
#include "graph/qt/labelimage.h"

namespace velmora::graph_qt {

PicMcrBox::PicMcrBox(QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("picMCRBox"));
  setMouseTracking(true);
  setCursor(Qt::SizeAllCursor);
  hide();
}

void PicMcrBox::ShowLabel(const graph::LabelStyle& style, graph::Colour back, int left, int top) {
  const QImage image = RenderLabel(style, back);
  setPixmap(QPixmap::fromImage(image));
  setFixedSize(image.size());
  move(left, top);
  show();
  raise();
}

void PicMcrBox::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    grab_ = event->position().toPoint();
  } else if (event->button() == Qt::RightButton) {
    QMenu* menu = FrmZoom2::LabelMenu(
        this, [this] { emit InsertRequested(); }, [this] { emit DeleteRequested(); });
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPosition().toPoint());
  }
}

void PicMcrBox::mouseMoveEvent(QMouseEvent* event) {
  emit Hovered();
  if (!(event->buttons() & Qt::LeftButton)) return;
  const QPoint delta = event->position().toPoint() - grab_;
  if (delta.isNull()) return;
  move(pos() + delta);
  emit Dragged(delta.x(), delta.y());
}

}  // namespace velmora::graph_qt
