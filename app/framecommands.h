#pragma once

#include <string_view>

#include "app/command.h"
#include "app/graphchild.h"
#include "graph/examplecatalogue.h"
#include "graph/historylog.h"
#include "platform/messagebox.h"
#include "platform/settingsstore.h"

namespace velmora::app {

// The frame's commands that act on the active graph window. Each takes the
// active child (null when there is none, and then does nothing), calls the
// window's routines by name and leaves the window showing its logic. The
// frame ends every command with UpdateStatus(). A command that would touch
// the surface does nothing while the window is drawing.
class FrameCommands {
 public:
  FrameCommands(platform::SettingsStore& settings, platform::MessageBox& messages,
                const graph::HistoryLog* history = nullptr)
      : settings_(settings), messages_(messages), history_(history) {}

  // Runs one of the window commands of the menus and toolbars. Returns false
  // for a command that is not a window command (New, Exit, the tools ...).
  bool Run(Command command, GraphChild* child);

  // Clear All: with functions drawn, asks first; yes clears graphs and lists.
  void ClearAll(GraphChild* child);
  // Clear Screen: the surface and the paper, the lists stay.
  void ClearScreen(GraphChild* child);
  // Clear History: asks, then empties the history file and the window's copy.
  void ClearHistory(GraphChild* child);
  // Clear Grid and Redraw Grid: with functions drawn and AutoRedraw off the
  // user confirms first; with AutoRedraw on the functions are drawn again.
  void ClearGrid(GraphChild* child);
  void RedrawGrid(GraphChild* child);
  // The toolbar's Clear Function: asks, then empties the function boxes.
  void ClearFunction(GraphChild* child);
  // Zoom, move and colour entries share one shape: the routine, the colours
  // stored when they changed, and the functions replayed while the window
  // holds any.
  void ViewCommand(Command command, GraphChild* child);
  void FunctionType(int type, GraphChild* child);
  // A recent-functions line: into the boxes through PodeliFje, then drawn.
  void DrawRecent(std::string_view line, GraphChild* child);
  // An entry of the Examples menu.
  void LoadExample(const graph::Example& example, GraphChild* child);

 private:
  bool AutoRedraw();
  bool ConfirmGridChange(graph::GraphWindow& logic);

  platform::SettingsStore& settings_;
  platform::MessageBox& messages_;
  const graph::HistoryLog* history_;
};

}  // namespace velmora::app
