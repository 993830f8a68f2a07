#include "app/toolregistry.h"

#include "app/frmmain.h"
#include "app/toolwindowhost.h"
#include "mathpad/qt/frmmapuskice.h"

namespace velmora::app {

void RegisterToolWindows(ToolWindowHost& host, const FrameServices& services) {
  // One line a tool window, e.g.
  //   host.Register(platform::ToolWindow::MathPad,
  //                 [&services, &host](QWidget* owner) { return new ...(owner, ...); });
  host.Register(platform::ToolWindow::MathPad, [&services, &host](QWidget* owner) {
    return new mathpad_qt::FrmMaPuskice(owner, {services.settings, services.messages, services.input,
                                                services.files, services.shell, services.colours, &host});
  });
}

}  // namespace velmora::app
