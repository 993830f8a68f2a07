#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "expr/fault.h"
#include "geometry/boxrecord.h"
#include "geometry/real.h"
#include "platform/messagebox.h"

namespace velmora::geometry {

// The constants of the calculator, as the program states them.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double kTwoPi = 6.28318530717958;
inline constexpr double kHalfPi = 1.5707963267949;

// The title of the calculator's message boxes: they give none of their own,
// so the platform shows the application's name.
inline constexpr std::string_view kMessageTitle = "Velmora";

// The state of a page that a solver writes: its boxes, the result line of
// `rtG` (one entry per line of the box), and what goes with the drawing.
struct Figure {
  explicit Figure(BoxRecord record) : boxes(std::move(record)) {}

  BoxRecord boxes;
  std::vector<std::string> result;
  // A name printed with the drawing ("SQUARE", "R1 = R2"); empty for none.
  std::string label;
  // A text shown in place of the drawing; empty when the figure is drawn.
  std::string note;

  // The text of `rtG`: the result lines joined by line breaks.
  std::string ResultText() const;
};

// A solver: reads the given boxes, writes the figure, and shows its messages.
using Solver = void (*)(Figure&, platform::MessageBox&);

// One entry of a page's "Select Case:" pop-up menu.
struct MenuEntry {
  std::string_view name;     // control name of the menu entry
  std::string_view caption;  // its caption, naming the given measures
  // The boxes of the given measures, in the order the caption names them.
  std::array<std::string_view, 3> inputs;
  Solver solve;

  std::size_t InputCount() const;
};

// Shows a fixed text of the calculator in a box with one OK button.
void ShowMessage(platform::MessageBox& box, std::string_view text,
                 platform::MsgIcon icon = platform::MsgIcon::Critical);

// Runs a solver body under its trap: a fault stops the body where it stood,
// leaves the boxes as written up to then and shows `faultText`.
template <class Body>
void Trapped(platform::MessageBox& box, std::string_view faultText, Body&& body) {
  try {
    body();
  } catch (const expr::Fault&) {
    ShowMessage(box, faultText);
  }
}

// The text a result line shows for a value: the value rounded to 5 places.
std::string Shown(Real value);
// The degrees of an angle in radians, as a result line shows them in brackets.
std::string ShownDegrees(Real radians);

}  // namespace velmora::geometry
