#pragma once

#include "graph/graphwindow.h"

namespace velmora::app {

// What the frame's commands ask of a graph window: its logic, and the
// routines that belong to the window itself because they need its widgets,
// its dialogs or its questions (colour chooser, clipboard, the clear
// commands, the options dialog). The Qt frame adapts its graph windows to
// this; the frame's tests use a fake over the logic alone.
class GraphChild {
 public:
  virtual ~GraphChild() = default;
  virtual graph::GraphWindow& Logic() = 0;

  virtual void DrawFunction() = 0;  // mnuDrawFunction, the toolbar's "Draw Graph"
  virtual void SwapYX() = 0;
  virtual void Kopirajgraf() = 0;  // copy graph to the clipboard
  virtual void Sav1() = 0;         // save the picture
  // A Color menu entry, 0 background, 1 grid, 2 axes, 3 graph, 4 default:
  // the colour chosen, stored with Sacboje and the functions drawn again.
  virtual void ColourMenu(int index) = 0;
  virtual void mnuPlotWidth() = 0;  // asks the line width of the next plots
  virtual void ClearAll() = 0;
  virtual void ClearScreen() = 0;
  virtual void mnuclhistory() = 0;  // asks, then empties GraphLog.txt and the shown history
  virtual void ClearGrid() = 0;
  virtual void RedrawGrid() = 0;
  virtual void ClearFju() = 0;  // asks, then empties the function box ("Fju": function)
  virtual void OpenPlottingOptions() = 0;
  // The window's own tools, which open its dialogs. Each does nothing by
  // default (a frame test's window has no dialogs).
  virtual void mnuDrawTangent() {}
  virtual void mnuDrawIntegral(bool /*fromToolbar*/) {}
  virtual void CrtajFJUDeriv() {}
  virtual void mnulabel() {}
  virtual void mnusaveHistory() {}
  // The window shows what its logic now holds.
  virtual void SyncFromLogic() = 0;
};

}  // namespace velmora::app
