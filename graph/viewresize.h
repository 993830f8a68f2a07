#pragma once

#include "platform/settingsstore.h"

namespace velmora::graph {

class GraphWindow;

// What a new size of `pDraw` does to the view. The user's view stays where
// it was: the centre of the plot area keeps its user coordinates, so the
// origin's pixel moves by half the change of size (a window that was never
// moved keeps its origin in the middle), and MoveX and MoveY, the readout
// and every later draw stay right. The picture moves with the origin at
// once, so a resize never throws the curves away; the part of a larger
// surface that the old picture did not cover shows the back colour. When
// the size has settled, the window is painted again at its new size (paper
// and, with AutoRedraw on, the functions), unless that would erase functions
// that cannot come back (AutoRedraw off) or a draw is running. A window with
// no functions is only paper, which the window layer repaints at once.
class ViewResize {
 public:
  struct Plan {
    double shiftX = 0;  // pixels the origin moves: half the change of size
    double shiftY = 0;
    int pictureDx = 0;  // the same in whole pixels, for the picture
    int pictureDy = 0;
  };

  static Plan PlanFor(double oldWidth, double oldHeight, double newWidth, double newHeight);
  // Moves the origin and the current point (a draw in progress goes on at
  // the right place). The surface itself is resized by the caller.
  static void Apply(GraphWindow& window, const Plan& plan);
  // Whether the settled size is painted again now: not during a draw, and
  // only when AutoRedraw reads on or no function would be lost.
  static bool RepaintWhenSettled(const GraphWindow& window, platform::SettingsStore& settings);
  // The paper again, then the functions when AutoRedraw reads on.
  static void Repaint(GraphWindow& window, platform::SettingsStore& settings);
};

}  // namespace velmora::graph
