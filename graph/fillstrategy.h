#pragma once

#include "graph/samplingloop.h"

namespace velmora::graph {

class GraphWindow;

// The curve of `CrtajIntegralNovo` and `CrtajAverageNovo`: the window's
// function sampled as usual, and each drawn column whose pixel lies in the
// range from XMin to XMax gets a stroke down to the X axis. The range is
// tested in pixels with half the surface as origin plus the move, so it
// follows a moved centre. A hidden curve (Check2 off, and always for the
// average) draws only the strokes.
class FillStrategy final : public SampleStrategy {
 public:
  FillStrategy(GraphWindow& window, double xMin, double xMax, bool hidden);
  double SampleY(double kr) override;
  double SampleX(double kr, double yr) override;
  bool TakesXpoc() const override { return false; }
  bool Fills(double xp) const override { return xp >= left_ && xp <= right_; }
  int SolidStyle() const override { return hidden_ ? kInvisible : kSolid; }

 private:
  GraphWindow& window_;
  double left_ = 0;
  double right_ = 0;
  bool hidden_ = false;
};

}  // namespace velmora::graph
