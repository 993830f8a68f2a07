#pragma once

#include <array>
#include <string>

#include "app/command.h"
#include "graph/controls.h"

namespace velmora::app {

// What the frame's menus and toolbars show, taken from the frame and its
// active graph window after each command.
struct FrameView {
  int windowCount = 0;
  bool hasActive = false;       // a graph window is active
  int functionType = 1;         // the active window's type, 1 to 3
  graph::ZoomMenu zoom;         // the active window's zoom texts and checked entry
  std::array<bool, 4> bands{};  // the bands shown
  bool helpFile = false;        // the help file is beside the program
  bool mathPad = false;         // this version has MathPad
};

// Whether an entry with this rule can be used now.
bool IsEnabled(EnableRule rule, const FrameView& view);

// Whether an entry with this rule and value shows its check mark.
bool IsChecked(CheckRule rule, int value, const FrameView& view);

// The text of a zoom drop-down entry (0 in, 1 out, 2 default, 4 custom) as
// the active window last set it.
std::string ZoomMenuText(int zoomEntry, const graph::ZoomMenu& zoom);

}  // namespace velmora::app
