#include "app/toolregistry.h"

#include <QDir>

#include "app/frmmain.h"
#include "app/menutable.h"
#include "app/toolwindowhost.h"
#include "complex/qt/frmcomplex.h"

namespace velmora::app {

void RegisterToolWindows(ToolWindowHost& host, const FrameServices& services) {
  // One line a tool window, e.g.
  //   host.Register(platform::ToolWindow::MathPad,
  //                 [&services, &host](QWidget* owner) { return new ...(owner, ...); });
  host.Register(platform::ToolWindow::Complex, [&services, &host](QWidget* owner) {
    return new complex_qt::FrmComplex(
        owner, {services.messages, &host, services.shell,
                QDir(services.programFolder).filePath(QString::fromUtf8(kHelpFile.data()))});
  });
}

}  // namespace velmora::app
