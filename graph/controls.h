#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "graph/surface.h"

namespace velmora::graph {

// The controls of the graph window as plain state: the logic writes them,
// the window layer shows them and tells the logic of the user's edits.

// An editable combo box: the text being edited and the list part.
struct ComboBox {
  std::string Text;
  std::vector<std::string> List;
  bool Visible = true;

  // Appends an item, then drops every later item equal to an earlier one,
  // so a repeated text stands once, at its first place.
  void AddItemNoDuplicates(std::string_view item);
};

struct Label {
  std::string Caption;
  bool Visible = true;
  Colour ForeColor = 0;
  Colour BackColor = 0xFFFFFF;
};

// A line control drawn over the surface (cross-hairs, tangent mark); it is
// an overlay and never part of the picture.
struct LineControl {
  double X1 = 0;
  double Y1 = 0;
  double X2 = 0;
  double Y2 = 0;
  bool Visible = false;
};

// The toolbar's zoom menu: the texts of its four entries (zoom in, zoom
// out, default, custom) and the index of the checked `mnuZoom` entry
// (0 in, 1 out, 2 default, 4 custom).
struct ZoomMenu {
  std::string ZoomIn = "Zoom&In";
  std::string ZoomOut = "Zoom&Out";
  std::string Default = "> &Default (30)";
  std::string Custom = "&Custom...";
  int Checked = 2;
};

}  // namespace velmora::graph
