#pragma once

#include <functional>
#include <string>

#include "platform/messagebox.h"

class QMenu;
class QWidget;

namespace velmora::platform {
class ToolWindows;
}  // namespace velmora::platform

namespace velmora::graph_qt {

// `frmZoom2`: the home of popup menus that other windows pop up. It has no
// window of its own.
class FrmZoom2 {
 public:
  // `mnulabel` "Label": "Insert Label" (`mnudalabel`) and "Delete Label"
  // (`mnunelabel`), over the label in hand.
  static QMenu* LabelMenu(QWidget* parent, std::function<void()> insert, std::function<void()> remove);
  // `mnuKopt` "CopyTable": "&Copy Selected" and "Copy &All", over the value table.
  static QMenu* CopyTableMenu(QWidget* parent, std::function<void()> copySelected,
                              std::function<void()> copyAll);
  // `mnumode` "Mode", which the Evaluator window pops up: the constants
  // "Constants &A - J" and "Constants &M - S" write their text into the
  // Evaluator's box (`tools.Evaluator(true)`); "&Convert Result" converts
  // the result text `result()` reads at the click to decimal, binary,
  // hexadecimal or octal and writes it there. Entries stay disabled while
  // this version has no Evaluator window.
  static QMenu* ModeMenu(QWidget* parent, platform::ToolWindows& tools, platform::MessageBox& messages,
                         std::function<std::string()> result);
};

}  // namespace velmora::graph_qt
