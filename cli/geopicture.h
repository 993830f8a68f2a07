#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/pictureoptions.h"
#include "geometry/solver.h"

namespace velmora::cli {

// The size and source of the figure a geo run saves.
struct GeoPicture {
  PictureOptions outputs;
  int width = 480;  // pixels
  int height = 400;
  bool shade = false;                   // the sphere lit, as "Shade Sphere" asks
  std::optional<std::string> settings;  // the file that holds the margins of "Print"
};

// Draws the figure of `word` from the solved record as the Geometry
// Calculator shows it and writes it to every output `picture` names (the
// PDF printed inside the stored margins, with no frame). False with the
// reason at the first that fails, or when the build has no Qt.
bool SaveGeoPictures(std::string_view word, const geometry::Figure& figure, const GeoPicture& picture,
                     std::string& error);

}  // namespace velmora::cli
