#pragma once

#include <QString>

namespace velmora::app {

class FrmMain;

// Fills the frame with three graph windows (a Cartesian, a parametric and a
// polar example from the Examples menu), tiles them and saves the frame as
// frame.png in `folder`; then opens Plotting Options on the active window
// and saves it as options.png; then, in a maximized window of its own, the
// graph tools: tangent-dialog.png and tangent.png (the tangent of X^2 at 1),
// integral-dialog.png and integral.png (SinX filled from 0 to pi with an
// average band), label.png (a label burnt in at 30 degrees and an upright
// one in hand); then MathPad with a formatted page and the active graph as
// a picture (mathpad.png) and its Insert Symbol window (mathpad-symbol.png).
// Returns the number of pictures that could not be saved.
int TakeScreenshots(FrmMain& frame, const QString& folder);

}  // namespace velmora::app
