#pragma once

#include <string_view>

#include "app/command.h"
#include "app/graphchild.h"
#include "graph/examplecatalogue.h"

namespace velmora::app {

// The frame's commands that act on the active graph window. Each takes the
// active child (null when there is none, and then does nothing) and calls
// the window's routines by name; the frame ends every command with
// UpdateStatus(). A command that would touch the surface does nothing while
// the window is drawing. They hold no state: everything they change is the
// window's.
class FrameCommands {
 public:
  // Runs one of the window commands of the menus and toolbars. Returns false
  // for a command that is not a window command (New, Exit, the tools ...).
  bool Run(Command command, GraphChild* child);

  // Zoom and move entries: Zezaj set for the change, the window's routine,
  // and the functions replayed while the window holds any.
  void ViewCommand(Command command, GraphChild* child);
  void FunctionType(int type, GraphChild* child);
  // A recent-functions line: into the boxes through PodeliFje, then drawn
  // (CrtajPolar in polar type, CrtajFJU otherwise).
  void DrawRecent(std::string_view line, GraphChild* child);
  // An entry of the Examples menu.
  void LoadExample(const graph::Example& example, GraphChild* child);
};

}  // namespace velmora::app
