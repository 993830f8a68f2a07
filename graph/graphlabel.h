#pragma once

#include "graph/labelstyle.h"

namespace velmora::graph {

// `picMCRBox`: the label in hand, floating over the plot until it is burnt
// in (`daLabele`) or thrown away (`neLabel`). One label at a time.
class GraphLabel {
 public:
  bool Visible() const { return visible_; }
  const LabelStyle& Style() const { return style_; }
  // The top left of the box on the surface, in pixels.
  double Left() const { return left_; }
  double Top() const { return top_; }

  void Show(LabelStyle style, double left, double top) {
    style_ = std::move(style);
    left_ = left;
    top_ = top;
    visible_ = true;
  }
  void MoveBy(double dx, double dy) {
    left_ += dx;
    top_ += dy;
  }
  void MoveTo(double left, double top) {
    left_ = left;
    top_ = top;
  }
  void Hide() { visible_ = false; }

 private:
  LabelStyle style_;
  double left_ = 0;
  double top_ = 0;
  bool visible_ = false;
};

}  // namespace velmora::graph
