#include "app/toolregistry.h"

#include "app/frmmain.h"
#include "app/toolwindowhost.h"
#include "geometry/qt/frmconvert.h"
#include "geometry/qt/frmgeo.h"

namespace velmora::app {

void RegisterToolWindows(ToolWindowHost& host, const FrameServices& services) {
  // One line a tool window, e.g.
  //   host.Register(platform::ToolWindow::MathPad,
  //                 [&services, &host](QWidget* owner) { return new ...(owner, ...); });
  host.Register(platform::ToolWindow::Geometry, [&services](QWidget* owner) {
    return new geometry_qt::FrmGeo(owner, {services.messages, services.files, nullptr});
  });
  host.Register(platform::ToolWindow::Converter, [&services, &host](QWidget* owner) {
    return new geometry_qt::FrmConvert(owner, {services.messages, &host, nullptr});
  });
}

}  // namespace velmora::app
