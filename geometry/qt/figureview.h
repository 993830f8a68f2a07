#pragma once

#include <QImage>
#include <QWidget>

#include "geometry/sketch.h"

namespace velmora::geometry_qt {

// The picture box of a calculator page (`Picture1`): shows one figure,
// fitted anew to the box whenever the box changes size.
class FigureView final : public QWidget {
  Q_OBJECT

 public:
  explicit FigureView(QWidget* parent = nullptr);

  void SetSketch(geometry::Sketch sketch);
  const geometry::Sketch& Sketch() const { return sketch_; }
  // The picture as the box shows it, at the box's size: what is copied and
  // saved.
  QImage Picture() const;

  QSize sizeHint() const override { return {340, 280}; }
  QSize minimumSizeHint() const override { return {220, 180}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  geometry::Sketch sketch_;
};

}  // namespace velmora::geometry_qt
