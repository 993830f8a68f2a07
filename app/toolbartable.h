#pragma once

#include <span>
#include <string_view>

#include "app/command.h"

namespace velmora::app {

// An entry of a toolbar button's drop-down menu. The zoom drop-down shows
// the active window's texts: `zoomEntry` names which one (0 in, 1 out,
// 2 default, 4 custom; -1 for a fixed text).
struct ToolMenuItem {
  std::string_view key;
  std::string_view text;  // "-" for a separator
  Command command = Command::None;
  EnableRule enable = EnableRule::NeedsWindow;
  int zoomEntry = -1;
};

// A button of a toolbar, known by its key. A button with a menu opens it
// when its own command is None, and otherwise runs the command and offers
// the menu beside it.
struct ToolButton {
  std::string_view key;
  std::string_view text;  // the short caption shown on the button
  std::string_view tip;
  Command command = Command::None;
  EnableRule enable = EnableRule::NeedsWindow;
  std::span<const ToolMenuItem> menu = {};
};

// A toolbar: one band of the frame, 1 to 4.
struct ToolbarSpec {
  std::string_view name;
  int band;
  std::span<const ToolButton> buttons;
};

// The four toolbars in band order.
std::span<const ToolbarSpec> Toolbars();

// Finds a button by its key in any toolbar; null when there is none.
const ToolButton* FindToolButton(std::string_view key);

}  // namespace velmora::app
