#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "graph/historylog.h"
#include "graph/surface.h"
#include "platform/colordialog.h"
#include "platform/filedialog.h"
#include "platform/messagebox.h"
#include "platform/picturesave.h"
#include "platform/settingsstore.h"

namespace velmora::graph {

class GraphWindow;

// The commands of the frame's Edit, Color and File menus that act on one
// graph window and ask the user something first: the colour routines with
// the colour dialog, the Clear commands with their questions, Swap Y - X and
// the save of the picture. Every command does nothing while the window draws.
// The window layer runs them and then shows the window's new state.
class WindowCommands {
 public:
  static constexpr std::string_view kClearAllQuestion = "Clear graphs and equation lists?";
  static constexpr std::string_view kClearAllTitle = "Clear All";
  static constexpr std::string_view kClearGridQuestion = "Your current graph(s) will be erased.\r\nContinue?";
  static constexpr std::string_view kClearGridTitle = "Clear";
  static constexpr std::string_view kClearFunctionQuestion =
      "Function expression will be erased.\r\nContinue?";
  static constexpr std::string_view kClearFunctionTitle = "Clear Function";
  static constexpr std::string_view kClearHistoryQuestion = "Clear Function History?";
  static constexpr std::string_view kSaveTitle = "Save Graph As";
  static constexpr std::string_view kSaveFilter = "Bitmap (*.bmp)|*.bmp";
  static constexpr std::string_view kReplaceTitle = "Save As";
  static constexpr std::string_view kReplaceQuestion = " already exists.\r\nDo you want to replace it?";
  static constexpr std::string_view kSaveFailed = "The picture could not be saved.";

  // The entries of the Color menu, in its order.
  enum class ColourEntry { Background, Grid, Axes, Graph, Default };

  // `colours` and `files` may be null: the commands that need them do
  // nothing. `history` may be null: Clear History empties the window's copy only.
  WindowCommands(GraphWindow& window, platform::SettingsStore& settings, platform::MessageBox& messages,
                 platform::ColorDialog* colours, platform::FileDialog* files, const HistoryLog* history)
      : w_(window),
        settings_(settings),
        messages_(messages),
        colours_(colours),
        files_(files),
        history_(history) {}

  // ---- Colours ------------------------------------------------------------------
  // The window's routines: the colour dialog opens on the colour in use; a
  // chosen background, grid or axes colour repaints the empty paper, a
  // chosen graph colour is the colour of the next plot. Each returns true
  // when a colour was chosen.
  bool mnuBojeBack();
  bool mnuBojeGrid();
  bool mnuBojeAxes();
  bool mnuBojeGraph();
  // The four colours of a first start, and the empty paper in them.
  void mnuBojeDef();
  // Writes the four colours to the section Boje.
  void Sacboje();
  // The whole Color menu command: asks for the colour (the colour dialog;
  // Default asks nothing) and hands a chosen one to ApplyColour.
  void ColourMenu(ColourEntry entry);
  // The Color menu command after its answer, for callers that know the
  // colour already (the catalogue, the cli): Zezaj set while it runs, the
  // colour set as the routine sets it, Sacboje, and the functions drawn
  // again (RedrawFunc) when the window holds any. Default takes the first
  // start's four colours and ignores `colour`. Nothing while the window draws.
  void ApplyColour(ColourEntry entry, Colour colour = 0);

  // ---- Edit menu -----------------------------------------------------------------
  // Each command that asks has an Apply function: what the command does once
  // the answer is yes, callable without the question. The Apply functions do
  // nothing while the window draws.
  // "Clear &All": with functions drawn, asks first; the whole window is cleared.
  void ClearAll();
  void ApplyClearAll();
  // "Clear &Screen": the picture and the paper again, the lists stay.
  void ClearScreen();
  // "Clear &History": asks, then empties GraphLog.txt and the window's copy.
  void mnuclhistory();
  void ApplyClearHistory();
  // "Clear &Grid": asks when functions would be lost (AutoRedraw off), clears
  // the surface, and draws the functions again when AutoRedraw is on.
  void ClearGrid();
  void ApplyClearGrid();
  // "&Redraw Grid": the same question, the paper over the picture, the
  // functions again when AutoRedraw is on.
  void RedrawGrid();
  void ApplyRedrawGrid();
  // The toolbar's "ClearF": asks, then empties the function box.
  void ClearFju();
  void ApplyClearFju();
  // "S&wap Y - X": exchanges the texts of txtY and txtX.
  void SwapYX();

  // ---- Pictures ---------------------------------------------------------------------
  // Writes the picture to a path in bitmap form; false when it could not.
  using PictureWriter = platform::PictureWriter;
  // Sav1: the save dialog ("Save Graph As"), the question when the file
  // exists, then the picture. A name without an extension gets ".bmp".
  // Returns true when a file was written.
  bool Sav1(const PictureWriter& write);
  // Whether copies of the picture get a frame (setting Ram).
  bool FrameOnCopies();

 private:
  bool ChooseColour(std::uint32_t& colour);
  // The colour a Color menu entry changes, as the window holds it now.
  Colour CurrentColour(ColourEntry entry) const;
  // Sets one colour as its routine does: the paper repainted for the
  // background, grid and axes, the pen's colour for the graph.
  void SetColour(ColourEntry entry, Colour colour);
  // The dialog on the colour in use, then the colour set; true when chosen.
  bool AskColour(ColourEntry entry);
  // The setting Autored: the functions come back after the paper changes.
  bool AutoRedraw();
  void RepaintPaper();
  bool AskBeforeErasing();

  GraphWindow& w_;
  platform::SettingsStore& settings_;
  platform::MessageBox& messages_;
  platform::ColorDialog* colours_;
  platform::FileDialog* files_;
  const HistoryLog* history_;
};

}  // namespace velmora::graph
