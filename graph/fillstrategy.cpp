#include "graph/fillstrategy.h"

#include "graph/graphwindow.h"

namespace velmora::graph {

FillStrategy::FillStrategy(GraphWindow& window, double xMin, double xMax, bool hidden)
    : window_(window), hidden_(hidden) {
  const double half = window.pDraw().ScaleWidth() / 2;
  const double zoom = window.View().Zoom();
  const double move = window.View().MoveX();
  left_ = half + zoom * (move + xMin);
  right_ = half + zoom * (move + xMax);
}

double FillStrategy::SampleY(double kr) { return window_.F(kr); }
double FillStrategy::SampleX(double kr, double yr) { return window_.F2(kr, yr); }

}  // namespace velmora::graph
