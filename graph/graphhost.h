#pragma once

#include <string>

namespace velmora::graph {

// What the graph window logic asks of the window layer and the frame around
// it. Every call has a do-nothing default, so a batch run needs none.
class GraphHost {
 public:
  virtual ~GraphHost() = default;
  // Lets pending events run: once per drawn sample of a plot, which is how a
  // Stop click, Esc or a resize reach the window during a draw. A view
  // repaints at screen rate here, not per call.
  virtual void DoEvents() {}
  // The progress label changed (text or visibility).
  virtual void ProgressChanged() {}
  // The frame refreshes its state from the window (UpdateStatus).
  virtual void RefreshFrame() {}
  // The frame marks the entry of this function type (1 to 3) in its menu.
  virtual void TypeChosen(int /*type*/) {}
  // The function box gets the focus with the caret at the end.
  virtual void FocusFunctionBox() {}
  // The status bar's text panel shows this (the moves of the window).
  virtual void ShowStatusText(const std::string& /*text*/) {}
  // A tool window changed the function boxes or drew on the surface; the
  // window shows them.
  virtual void ToolChanged() {}
};

}  // namespace velmora::graph
