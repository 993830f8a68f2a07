#pragma once

#include <cstdint>
#include <string>

#include "platform/messagebox.h"

namespace velmora::app {

// Makes the graph windows: the frame creates and shows one with the caption
// it is given (the caption is also the window's tag, which its later titles
// start from).
class GraphWindowFactory {
 public:
  virtual ~GraphWindowFactory() = default;
  virtual void CreateGraphWindow(const std::string& caption) = 0;
};

// The graph window manager: the only routine that creates graph windows and
// the two counters that keep track of them. At most twenty windows are open
// at once; window numbers are never reused in a run.
class WindowManager {
 public:
  static constexpr int kMaxWindows = 20;

  WindowManager(platform::MessageBox& messages, GraphWindowFactory& factory)
      : messages_(messages), factory_(factory) {}

  // Creates "Graph " & WindowSerial, or shows "Maximum number of windows
  // reached." when twenty are open. Returns whether a window was made.
  bool NewGraphWindow();
  // A graph window closed.
  void WindowClosed();

  std::int16_t WindowCount() const { return windowCount_; }
  std::int16_t WindowSerial() const { return windowSerial_; }

 private:
  platform::MessageBox& messages_;
  GraphWindowFactory& factory_;
  std::int16_t windowCount_ = 0;   // graph windows open now
  std::int16_t windowSerial_ = 0;  // graph windows made in this run
};

}  // namespace velmora::app
