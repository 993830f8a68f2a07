#pragma once

#include <QWidget>

#include "graph/controls.h"

namespace velmora::graph_qt {

class QImageSurface;

// `pDraw` on screen: the retained picture of a graph window, copied to the
// widget as it stands, with the three line controls (cross-hairs and
// tangent mark) painted over it. The lines are an overlay of the widget's
// paint; they never touch the picture. It reports the mouse with the
// platform's button numbers (1 left, 2 right, 4 middle, summed), Esc, and
// every change of its size (the surface follows through the owner).
class PDrawView final : public QWidget {
  Q_OBJECT

 public:
  PDrawView(QImageSurface& surface, QWidget* parent = nullptr);

  // The line controls to paint over the picture; null hides them.
  void SetLines(const graph::LineControl* lineY, const graph::LineControl* line1,
                const graph::LineControl* line2);

  QSize sizeHint() const override { return {600, 400}; }
  QSize minimumSizeHint() const override { return {60, 40}; }

  // The colours of the overlay: the cross-hairs, the tangent mark.
  static QColor CrossHairColour();
  static QColor TangentColour();

 signals:
  void MouseMoved(int button, double x, double y);
  void MouseReleased();
  void EscapePressed();
  void Resized(int oldWidth, int oldHeight, int width, int height);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  static int Buttons(Qt::MouseButtons buttons);

  QImageSurface& surface_;
  const graph::LineControl* lines_[3] = {nullptr, nullptr, nullptr};
};

}  // namespace velmora::graph_qt
