#include "app/stateprobe.h"

#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QStringList>

#include "app/frametoolbars.h"
#include "app/frmmain.h"
#include "graph/qt/frmfunc.h"

namespace velmora::app {

QString StateLine(const FrmMain& frame) {
  int chevrons = 0;
  for (int band = 1; band <= 4; ++band) chevrons += frame.Bars().HidesButtons(band) ? 1 : 0;
  const graph_qt::FrmFunc* active = frame.ActiveGraphWindow();
  QStringList parts;
  parts << QStringLiteral("state: windows=%1 active=%2 chevrons=%3")
               .arg(frame.Windows().WindowCount())
               .arg(active != nullptr ? frame.Tag(active) : QStringLiteral("#"))
               .arg(chevrons);
  // Read from the widgets, as the user sees them.
  for (const graph_qt::FrmFunc* window : frame.GraphWindows()) {
    int type = 0;
    for (int i = 1; i <= 3; ++i) {
      if (window->optFunkcije(i)->isChecked()) type = i;
    }
    parts << QStringLiteral("%1 / type=%2 listed=%3 updates=%4 drawing=%5")
                 .arg(window->windowTitle())
                 .arg(type)
                 .arg(window->txtY()->count())
                 .arg(window->ScreenUpdates())
                 .arg(window->lblPerCent()->isVisible() ? 1 : 0);
  }
  return parts.join(QStringLiteral(" | "));
}

}  // namespace velmora::app
