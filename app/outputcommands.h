#pragma once

#include <string>

#include "app/command.h"
#include "platform/filedialog.h"
#include "platform/messagebox.h"
#include "platform/settingsstore.h"
#include "platform/toolwindows.h"

class QWidget;

namespace velmora::graph_qt {
class FrmFunc;
}

namespace velmora::app {

// What the frame's picture and print commands use. All must outlive the call.
struct OutputServices {
  platform::SettingsStore* settings = nullptr;  // required
  platform::MessageBox* messages = nullptr;     // required
  platform::FileDialog* files = nullptr;        // null: JPEG saves nothing
  platform::ToolWindows* tools = nullptr;       // null: the history never goes to MathPad
  std::string historyPath;                      // GraphLog.txt
};

// The frame's JPEG, print and page setup commands: File > Save Graph As >
// JPEG (the JPEG dialog on the active window's picture), File > Print >
// Graph (the picture on paper, framed when the setting Ram is 1), File >
// Print > History (to MathPad or to the printer) and Print Setup. Returns
// false for any other command. Commands that need a graph window do nothing
// without one, or while it draws.
bool RunOutputCommand(Command command, QWidget* parent, graph_qt::FrmFunc* active,
                      const OutputServices& services);

}  // namespace velmora::app
