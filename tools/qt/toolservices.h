#pragma once

#include <functional>
#include <string>

#include <QString>

#include "graph/graphtooltarget.h"
#include "platform/filedialog.h"
#include "platform/messagebox.h"
#include "platform/shellopen.h"
#include "platform/toolwindows.h"

class QComboBox;
class QObject;

namespace velmora::tools_qt {

// What the analysis tool windows get from the frame: the platform services,
// the other tool windows, and the active graph window as a tool target.
struct ToolServices {
  platform::MessageBox* messages = nullptr;  // required
  platform::FileDialog* files = nullptr;     // null: publishing and saving do nothing
  platform::ShellLauncher* shell = nullptr;  // null: no preview in the browser
  platform::ToolWindows* tools = nullptr;    // null: the popup entries stay disabled
  // The active graph window, or null when none is open.
  std::function<graph::GraphToolTarget*()> activeGraph;
  // The help file's full path; empty or missing: the help entries stay
  // disabled.
  QString helpFile;

  graph::GraphToolTarget* ActiveGraph() const { return activeGraph ? activeGraph() : nullptr; }
  bool Has(platform::ToolWindow window) const { return tools != nullptr && tools->Has(window); }
};

// The log boxes keep CR LF line ends in the logic; a Qt text box shows LF.
QString ToDisplay(const std::string& text);
std::string FromDisplay(const QString& text);
// Enter in an editable combo box runs `command` once: the box hands the
// key to its line edit a second time, which would run it twice.
void OnEnter(QComboBox* box, QObject* context, std::function<void()> command);
// An end of the graph's visible range as the range boxes start with it:
// rounded to five decimals.
QString RangeEndText(double value);
// Clears the clipboard and puts a text on it.
void PutText(const QString& text);

}  // namespace velmora::tools_qt
