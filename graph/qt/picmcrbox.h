#pragma once

#include <QLabel>
#include <QPoint>

#include "graph/labelstyle.h"

namespace velmora::graph_qt {

// `picMCRBox`: the label in hand as a small box over pDraw, showing the
// label's picture. The left button drags it; the right button pops the
// "Label" menu with "Insert Label" and "Delete Label".
class PicMcrBox final : public QLabel {
  Q_OBJECT

 public:
  explicit PicMcrBox(QWidget* parent);

  // Shows the label's picture with its top left at (left, top) of the parent.
  void ShowLabel(const graph::LabelStyle& style, graph::Colour back, int left, int top);

 signals:
  // The box was dragged by (dx, dy) pixels (it has moved already).
  void Dragged(int dx, int dy);
  // The mouse moved over the box (the hint in the readout).
  void Hovered();
  void InsertRequested();
  void DeleteRequested();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QPoint grab_;
};

}  // namespace velmora::graph_qt
