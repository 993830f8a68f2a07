#pragma once

#include "graph/graphwindow.h"

namespace velmora::app {

// What the frame's commands ask of a graph window: its logic, and the
// routines that belong to the window itself because they need its widgets
// or dialogs (colour chooser, clipboard, the options dialog). The Qt frame
// adapts its graph windows to this; the frame's tests use a fake over the
// logic alone.
class GraphChild {
 public:
  virtual ~GraphChild() = default;
  virtual graph::GraphWindow& Logic() = 0;

  virtual void DrawFunction() = 0;  // Enter in txtY: the draw of the current type
  virtual void SwapYX() = 0;
  virtual void Kopirajgraf() = 0;  // copy graph to the clipboard
  virtual void Sav1() = 0;         // save the picture
  virtual void mnuBojeBack() = 0;
  virtual void mnuBojeGrid() = 0;
  virtual void mnuBojeAxes() = 0;
  virtual void mnuBojeGraph() = 0;
  virtual void mnuBojeDef() = 0;
  virtual void Sacboje() = 0;  // store the window's colours
  virtual void mnuPlotWidth() = 0;
  virtual void OpenPlottingOptions() = 0;
  // The window shows what its logic now holds.
  virtual void SyncFromLogic() = 0;
};

}  // namespace velmora::app
