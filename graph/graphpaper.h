#pragma once

#include <string>
#include <string_view>

#include "graph/settingnumber.h"
#include "graph/surface.h"
#include "platform/messagebox.h"
#include "platform/settingsstore.h"

namespace velmora::graph {

// What the paper needs of the window's view.
struct PaperView {
  double Zoom = 30;
  double CenterX = 0;
  double CenterY = 0;
  Colour GridColor = 0xBFBFBF;
  Colour AxesColor = 0;
};

// The graph paper on `pDraw`: one of three papers (Standard, Polar, Trig),
// the axes, the numbers along them, the axis names with their arrows and the
// scale note. Every choice is read from section Grid of the settings at each
// paint, so a change of option needs no notice to the window. The paper
// paints over what is there; a caller that wants an empty paper clears first.
class GraphPaper {
 public:
  static constexpr std::string_view kArrowsMissingText =
      "Fonts Marlett or Webdings are missing. In order to draw axes arrows please reinstall them (they are "
      "installed by default on Windows platforms), or disable Assign axes feature in Graph options.";
  static constexpr std::string_view kArrowsMissingTitle = "Drawing Arrows Error";

  GraphPaper(Surface& surface, platform::SettingsStore& settings, platform::MessageBox& messages)
      : surface_(surface), settings_(settings), messages_(messages) {}

  // Paints the whole paper. Returns true when `Ozna` is on, that is, when
  // the window ticks its transparent box `Check1`.
  bool DrawLines(const PaperView& view);
  // The numbers along the axes (Trig paper: Drawtrigo).
  void CrtajBrojeve(const PaperView& view);
  void Drawtrigo(const PaperView& view);
  // Axis names and arrow heads in "Marlett"; without it, CrtajStreleold.
  void CrtajStrele(const PaperView& view);
  // The same arrows in "Webdings"; without it, the message.
  void CrtajStreleold(const PaperView& view);

  // The label stride: 1 from zoom 45, 2 from zoom 20, else 4.
  static int Stride(double zoom);
  // A number as the picture box prints it: a blank for the sign of a
  // number that is not negative, and a blank after it.
  static std::string PrintedNumber(double value);

 private:
  double Number(std::string_view name);
  std::string Text(std::string_view name);
  void StandardFont();
  void Axes(const PaperView& view);
  void Arrows(const PaperView& view, std::string_view arrowFont);

  Surface& surface_;
  platform::SettingsStore& settings_;
  platform::MessageBox& messages_;
};

}  // namespace velmora::graph
