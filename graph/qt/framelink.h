#pragma once

#include <string>

namespace velmora::graph_qt {

class FrmFunc;

// What a graph window asks of the main frame around it. The frame implements
// it; tests of a lone graph window use a recording fake.
class FrameLink {
 public:
  virtual ~FrameLink() = default;
  // The frame refreshes its status bar and toolbar from the active window.
  virtual void UpdateStatus() = 0;
  // The frame marks the menu entry of this function type (1 to 3) and
  // unmarks the other two.
  virtual void MarkFunctionType(int type) = 0;
  // The frame's status text panel shows this (the window's moves).
  virtual void ShowStatusText(const std::string& text) = 0;
  // The window is closing: the frame counts it out.
  virtual void WindowClosing(FrmFunc* window) = 0;
};

}  // namespace velmora::graph_qt
