#pragma once

#include "graph/surface.h"

namespace velmora::graph {

// The colours and the line width a graph window draws with. The paper's
// background is the surface's own back colour and is not held here.
class PenColours {
 public:
  // `Graph_Clr`: the colour of the next plot (a random one when Rnd is on).
  Colour Graph_Clr() const { return graphClr_; }
  void SetGraph_Clr(Colour colour) { graphClr_ = colour; }
  // `lblBoja`: the hidden label whose back colour carries the chosen graph
  // colour, the one the Color menu and the settings keep.
  Colour lblBoja() const { return lblBoja_; }
  // A graph colour the user chose: the next plot's colour and the kept one.
  void ChooseGraphColour(Colour colour) {
    graphClr_ = colour;
    lblBoja_ = colour;
  }
  // `AvBoja`: the colour of the average line.
  Colour AvBoja() const { return avBoja_; }
  void SetAvBoja(Colour colour) { avBoja_ = colour; }
  // `GridColor`, `AxesColor`: the grid lines, the axes and their ticks.
  Colour GridColor() const { return gridColor_; }
  void SetGridColor(Colour colour) { gridColor_ = colour; }
  Colour AxesColor() const { return axesColor_; }
  void SetAxesColor(Colour colour) { axesColor_ = colour; }
  // `GraphLineWidth`: the plot line width in pixels.
  double GraphLineWidth() const { return graphLineWidth_; }
  void SetGraphLineWidth(double width) { graphLineWidth_ = width; }
  // A width of 0 or less is taken as 1 before a plot.
  void EnsureLineWidth() {
    if (graphLineWidth_ <= 0) graphLineWidth_ = 1;
  }

 private:
  Colour graphClr_ = 0;
  Colour lblBoja_ = 0;
  Colour avBoja_ = 255;
  Colour gridColor_ = 0;
  Colour axesColor_ = 0;
  double graphLineWidth_ = 1;
};

}  // namespace velmora::graph
