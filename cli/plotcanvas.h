#pragma once

#include <memory>
#include <string>

#include "cli/pictureoptions.h"
#include "graph/surface.h"
#include "platform/settingsstore.h"

namespace velmora::cli {

// The surface a batch plot draws on: the Qt image surface when the build has
// Qt (so the picture can be saved), else a surface that keeps the state of a
// picture box and paints nothing.
class PlotCanvas {
 public:
  virtual ~PlotCanvas() = default;
  virtual graph::Surface& Surface() = 0;
  // Saves the picture as PNG; false with a reason when it cannot.
  virtual bool SavePng(const std::string& file, std::string& error) = 0;
  // The picture to the outputs the options name (JPEG, bitmap, and PDF
  // printed as File > Print > Graph prints it: the margins of "Print", the
  // frame when the setting Ram is 1).
  virtual bool SavePictures(const PictureOptions& options, platform::SettingsStore& settings,
                            std::string& error) = 0;
};

std::unique_ptr<PlotCanvas> MakePlotCanvas(int width, int height);

}  // namespace velmora::cli
