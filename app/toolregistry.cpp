#include "app/toolregistry.h"

#include "app/frmmain.h"
#include "app/toolwindowhost.h"

namespace velmora::app {

void RegisterToolWindows(ToolWindowHost& host, const FrameServices& services) {
  // One line a tool window, e.g.
  //   host.Register(platform::ToolWindow::MathPad,
  //                 [&services, &host](QWidget* owner) { return new ...(owner, ...); });
  (void)host;
  (void)services;
}

}  // namespace velmora::app
