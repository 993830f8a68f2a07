#pragma once

#include <QString>

namespace velmora::app {

class FrmMain;

// Fills the frame with three graph windows (a Cartesian, a parametric and a
// polar example from the Examples menu), tiles them and saves the frame as
// frame.png in `folder`; then opens Plotting Options on the active window
// and saves it as options.png; last opens the Complex Calculator, types an
// operation on its keypad (complex.png) and switches it to simple mode
// (complex_simple.png). Returns the number of pictures that could not be
// saved.
int TakeScreenshots(FrmMain& frame, const QString& folder);

}  // namespace velmora::app
