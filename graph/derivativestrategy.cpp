#include "graph/derivativestrategy.h"

#include "graph/graphwindow.h"

namespace velmora::graph {

double DerivativeStrategy::SampleY(double kr) { return window_.F(kr); }
double DerivativeStrategy::SampleX(double kr, double yr) { return window_.F2(kr, yr); }
double DerivativeStrategy::PlotY(double kr, double /*y*/) { return window_.FDeriv(kr); }

}  // namespace velmora::graph
