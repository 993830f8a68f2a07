#pragma once

#include <memory>
#include <string>

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
  // The picture as a JPEG file at a quality of 0 to 100, and as a bitmap.
  virtual bool SaveJpeg(const std::string& file, int quality, std::string& error) = 0;
  virtual bool SaveBmp(const std::string& file, std::string& error) = 0;
  // The picture printed to a PDF file as File > Print > Graph prints it:
  // one page inside the margins of the section "Print", framed when the
  // setting Ram is 1.
  virtual bool SavePdf(const std::string& file, platform::SettingsStore& settings, std::string& error) = 0;
};

std::unique_ptr<PlotCanvas> MakePlotCanvas(int width, int height);

}  // namespace velmora::cli
