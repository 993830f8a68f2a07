#include "app/windowmanager.h"

namespace velmora::app {

bool WindowManager::NewGraphWindow() {
  if (windowCount_ >= kMaxWindows) {
    messages_.Show("Maximum number of windows reached.", "Error Creating new Window",
                   platform::MsgIcon::Critical);
    return false;
  }
  ++windowCount_;
  ++windowSerial_;
  factory_.CreateGraphWindow("Graph " + std::to_string(windowSerial_));
  return true;
}

void WindowManager::WindowClosed() {
  if (windowCount_ > 0) --windowCount_;
}

}  // namespace velmora::app
