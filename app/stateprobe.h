#pragma once

#include <QString>

namespace velmora::app {

class FrmMain;

// One line that tells the frame's state to a test script driving the real
// program (VELMORA_STATE_PROBE=1): the window count, the active window, how
// many toolbar bands hide buttons behind their chevron, and for each graph
// window in the order they were made its title, checked function type,
// entries in the list of txtY, screen updates made by its draws so far, and
// whether it is drawing (the progress label shows):
//   state: windows=2 active=Graph 2 chevrons=0 | Graph 1 - R (K) = CosX / type=3 listed=2
//   updates=9 drawing=0 | Graph 2 / type=1 listed=0 updates=0 drawing=0
// (one line). A window's updates go up with every draw, replays included.
QString StateLine(const FrmMain& frame);

}  // namespace velmora::app
