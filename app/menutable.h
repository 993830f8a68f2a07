#pragma once

#include <span>
#include <string_view>

#include "app/command.h"

namespace velmora::app {

// One entry of a menu. A separator has the caption "-"; an entry with a
// non-empty `submenu` opens it. `name` and `index` are the control (array)
// name and index of the entry.
struct MenuItem {
  std::string_view name;
  int index = -1;  // -1: not part of a control array
  std::string_view caption;
  std::string_view shortcut = {};  // Qt's portable text ("Ctrl+N"); "" for none
  Command command = Command::None;
  EnableRule enable = EnableRule::Always;
  CheckRule check = CheckRule::None;
  int checkValue = 0;
  std::span<const MenuItem> submenu = {};

  bool IsSeparator() const { return caption == "-"; }
};

// A menu of the menu bar.
struct TopMenu {
  std::string_view name;
  std::string_view caption;
  std::span<const MenuItem> items;
};

// The frame's menu bar in order. The File menu's recent functions, the
// Examples menu's entries (the example catalogue) and the Window menu's list
// of graph windows are added by the frame where the table marks them.
std::span<const TopMenu> MenuBar();

// Names of the places in the table where the frame adds its lists.
inline constexpr std::string_view kRecentPlace = "mnuSeparator2";  // before this File entry ...
inline constexpr std::string_view kExitName = "mnuFile";           // ... index 15, the recent list ends
inline constexpr int kExitIndex = 15;
inline constexpr std::string_view kExamplesMenu = "mnuExamples";
inline constexpr std::string_view kWindowMenu = "mnuWin";

// The caption the frame gives the Exit entry at load: the name, a tab and
// the key that also ends the program.
inline constexpr std::string_view kExitCaption = "E&xit\tAlt+F4";

// The help file the help entries open, beside the program.
inline constexpr std::string_view kHelpFile = "Qelcalc.chm";

// The access letter of a caption: the character after the first single "&"
// ("&&" is a literal ampersand), or 0 when there is none.
char AccessLetter(std::string_view caption);

// Finds an entry by control name and index anywhere in the menu bar; null
// when there is none.
const MenuItem* FindMenuItem(std::string_view name, int index = -1);

}  // namespace velmora::app
