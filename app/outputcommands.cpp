#include "app/outputcommands.h"

#include <QString>
#include <QTextDocument>

#include "graph/graphwindow.h"
#include "graph/historylog.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/qimagesurface.h"
#include "graph/settingnumber.h"
#include "output/printcommands.h"
#include "output/qt/frmjpg.h"
#include "output/qt/frmpagesetup.h"
#include "output/qt/printdialogs.h"
#include "output/qt/printout.h"
#include "platform/mathpadtarget.h"

namespace velmora::app {
namespace {

bool Idle(const graph_qt::FrmFunc* active) { return active != nullptr && !active->Logic().State().Drawing(); }

void PrintHistory(QWidget* parent, const OutputServices& services) {
  using Route = output::PrintCommands::HistoryRoute;
  const bool mathPad = services.tools != nullptr && services.tools->Has(platform::ToolWindow::MathPad);
  if (output::PrintCommands::AskHistoryRoute(*services.messages, mathPad) == Route::MathPad) {
    if (platform::MathPadTarget* pad = services.tools->MathPad()) pad->OpenFile(services.historyPath);
    return;
  }
  const graph::HistoryLog log(services.historyPath);
  QTextDocument document;
  output_qt::FillPlainText(document, QString::fromStdString(log.ReadAll()));
  output_qt::PrintDocumentDialog(parent, document, *services.settings, *services.messages);
}

}  // namespace

bool RunOutputCommand(Command command, QWidget* parent, graph_qt::FrmFunc* active,
                      const OutputServices& services) {
  switch (command) {
    case Command::SaveJpeg:
      if (Idle(active) && services.files != nullptr) {
        output_qt::SavePictureDialog(parent, active->Picture().Image(), *services.files, *services.messages);
      }
      return true;
    case Command::PrintGraph:
      if (Idle(active)) {
        const bool frame = graph::ReadSettingNumber(*services.settings, platform::keys::kGrid,
                                                    platform::keys::grid::kRam) == 1;
        output_qt::PrintPictureDialog(parent, active->Picture().Image(), *services.settings,
                                      *services.messages, frame);
      }
      return true;
    case Command::PrintHistory:
      if (Idle(active)) PrintHistory(parent, services);
      return true;
    case Command::PrintSetup: output_qt::PageSetupDialog(parent, *services.settings); return true;
    default: return false;
  }
}

}  // namespace velmora::app
