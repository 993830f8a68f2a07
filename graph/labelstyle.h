#pragma once

#include <string>

#include "graph/surface.h"

namespace velmora::graph {

// What a label is: its text, font, colour and angle, and whether its box's
// background is left out when it is burnt into the picture.
struct LabelStyle {
  std::string text;
  std::string fontName = "MS Sans Serif";
  double fontSize = 8;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeout = false;
  Colour colour = 0;
  // Degrees from -180 to 180, counter-clockwise: 90 stands upright.
  double angle = 0;
  bool transparent = false;
};

}  // namespace velmora::graph
