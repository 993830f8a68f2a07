#pragma once

#include "graph/samplingloop.h"

namespace velmora::graph {

class GraphWindow;

// The curve of `CrtajFJUDeriv`: each sample is filtered on the function's
// own value as usual, and the plotted Y is the derivative there from the
// formula engine ("Push(2000)", "Push(kr)", "diff(FuncY)", "PopAll()").
class DerivativeStrategy final : public SampleStrategy {
 public:
  explicit DerivativeStrategy(GraphWindow& window) : window_(window) {}
  double SampleY(double kr) override;
  double SampleX(double kr, double yr) override;
  bool TakesXpoc() const override { return false; }
  double PlotY(double kr, double y) override;

 private:
  GraphWindow& window_;
};

}  // namespace velmora::graph
