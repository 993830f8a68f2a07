#pragma once

#include <string>

#include "graph/surface.h"

namespace velmora::graph {

class GraphWindow;

// What one pass of the sampling loop did.
enum class PassAction {
  Skip,  // the sample was not plotted (not finite, 0, or beyond 100 units)
  Move,  // the current point moved without a line
  Line,  // a line was drawn to the sample
};

// One pass of the loop as a trace sees it: the values as they stand at the
// end of the pass (X, Xp and Yp keep their last values over a skipped pass)
// and the pen style the pass leaves for the next one.
struct LoopPass {
  double kr = 0;
  double Y = 0;
  double X = 0;
  double Xp = 0;
  double Yp = 0;
  PassAction action = PassAction::Skip;
  int drawStyle = 0;
};

// Receives every pass of every plot of a window (the batch trace).
class LoopObserver {
 public:
  virtual ~LoopObserver() = default;
  virtual void Pass(const LoopPass& pass) = 0;
};

const char* ActionName(PassAction action);

// What a plot procedure plugs into the loop: how a sample's Y and X are
// found, and whether the loop takes `Xpoc` (the Cartesian type only).
class SampleStrategy {
 public:
  virtual ~SampleStrategy() = default;
  virtual double SampleY(double kr) = 0;
  virtual double SampleX(double kr, double yr) = 0;
  virtual bool TakesXpoc() const = 0;
  // The Y plotted for a sample that passed the filter (the derivative plots
  // its slope there); the curve plots the sample itself.
  virtual double PlotY(double /*kr*/, double y) { return y; }
  // Whether the column of a drawn sample gets a stroke down to the X axis
  // (the fills of an integral and an average).
  virtual bool Fills(double /*xp*/) const { return false; }
  // The pen of a visible segment: invisible when the curve is hidden and
  // only the strokes show.
  virtual int SolidStyle() const { return kSolid; }
};

// The curve of a graph window: Y = F(kr), X = F2(kr, yr). Cartesian,
// parametric and polar curves differ only in their texts (a polar R is
// turned into R sin K and R cos K before the loop) and in Xpoc.
class CurveStrategy final : public SampleStrategy {
 public:
  CurveStrategy(GraphWindow& window, bool takesXpoc) : window_(window), takesXpoc_(takesXpoc) {}
  double SampleY(double kr) override;
  double SampleX(double kr, double yr) override;
  bool TakesXpoc() const override { return takesXpoc_; }

 private:
  GraphWindow& window_;
  bool takesXpoc_;
};

// The result of a run.
struct LoopResult {
  long passes = 0;       // passes of the loop, stopped or not
  bool stopped = false;  // left by StopCrtanje
  double lastXp = 0;     // Xp as the loop left it: the last pixel column
};

// The sampling loop of every plot: one sample per pixel column from the left
// edge to the right edge, K cut to three decimals, samples that are not
// finite, exactly 0 or beyond 100 user units skipped, the pen made invisible
// for the segment after a sample whose text reads beyond 100. It draws on
// the window's surface in Graph_Clr, shows the progress and lets events run
// once per drawn sample, and stops at the first pass that finds StopCrtanje.
class SamplingLoop {
 public:
  SamplingLoop(GraphWindow& window, SampleStrategy& strategy) : window_(window), strategy_(strategy) {}
  LoopResult Run();

  // The progress text of a sample: "Done...   " and the whole percent.
  static std::string ProgressText(double k, double centerX, double zoom, double scaleWidth);

 private:
  GraphWindow& window_;
  SampleStrategy& strategy_;
};

}  // namespace velmora::graph
