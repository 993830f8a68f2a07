#pragma once

#include <string>

namespace velmora::graph {

class GraphWindow;

// The mouse over `pDraw`: the coordinate readout in `LblChart`, and with the
// right button held over a drawn function the trace, with the cross-hairs
// (`LineY` horizontal, `Line2` vertical) and the tangent mark (`Line1`). It
// writes the window's LblChart and line controls; the window layer shows the
// lines as an overlay, never in the picture.
//
// Positions are pixels of the surface. Numbers in the texts are in the
// program's text form. A statement that faults (a value that cannot be
// rounded, a zoom text of 0) is skipped and the next one runs, so a failed
// value leaves the one from the move before.
class MouseReadout {
 public:
  // Mouse buttons as the platform reports them: a sum of these.
  static constexpr int kLeftButton = 1;
  static constexpr int kRightButton = 2;
  static constexpr int kMiddleButton = 4;

  explicit MouseReadout(GraphWindow& window) : w_(window) {}

  // A move over the surface with the buttons held; a press of the right
  // button calls it too. The trace runs when the buttons are the right one
  // alone and a function has been plotted. Nothing happens during a draw.
  void MouseMove(int button, double x, double y);
  // A release of any button hides the three lines.
  void MouseUp();

  // The values of the last move, as the readout computed them.
  struct Values {
    double mx1 = 0;  // mouse in user units, 1 decimal, the move taken off
    double my1 = 0;
    double mx5 = 0;  // the same with 5 decimals
    double my5 = 0;
    double tx = 0;      // (mouse X - CenterX) / Zoom
    double ty = 0;      // the function at tx (cut to 3 decimals)
    double slope = 0;   // central difference at tx
    double value = 0;   // the value shown: y (x), or y (k) in type 2
    double xk = 0;      // x (k) in type 2
    double angle = 0;   // polar angle from the mouse
    double radius = 0;  // distance of the mouse from the origin
    double polarR = 0;  // the polar function at the angle, kept for the mark
  };
  const Values& Last() const { return v_; }

 private:
  void MakeMouseFormula();

  GraphWindow& w_;
  Values v_;
  std::string mouseY_;  // txtY and txtX in the evaluation form
  std::string mouseX_;
};

}  // namespace velmora::graph
