#include "cli/plotcanvas.h"

#include "graph/basicsurface.h"

#ifdef VELMORA_HAVE_QT_SURFACE
#include <QString>

#include "cli/picturesave.h"
#include "graph/qt/headlessgui.h"
#include "graph/qt/qimagesurface.h"
#include "graph/settingnumber.h"
#endif

namespace velmora::cli {
namespace {

#ifdef VELMORA_HAVE_QT_SURFACE

class ImageCanvas final : public PlotCanvas {
 public:
  ImageCanvas(int width, int height) : surface_(width, height) {}
  graph::Surface& Surface() override { return surface_; }
  bool SavePng(const std::string& file, std::string& error) override {
    if (surface_.SavePng(QString::fromStdString(file))) return true;
    error = "cannot write " + file;
    return false;
  }
  bool SavePictures(const PictureOptions& options, platform::SettingsStore& settings,
                    std::string& error) override {
    const bool frame =
        graph::ReadSettingNumber(settings, platform::keys::kGrid, platform::keys::grid::kRam) == 1;
    return cli::SavePictures(surface_.Image(), options, settings, frame, error);
  }

 private:
  graph_qt::HeadlessGui gui_;  // before the surface: text needs it
  graph_qt::QImageSurface surface_;
};

#else

class StateCanvas final : public PlotCanvas {
 public:
  StateCanvas(int width, int height) : surface_(width, height) {}
  graph::Surface& Surface() override { return surface_; }
  bool SavePng(const std::string&, std::string& error) override {
    error = "--png needs a build with Qt (VELMORA_GUI=ON); this one draws nothing";
    return false;
  }
  bool SavePictures(const PictureOptions&, platform::SettingsStore&, std::string& error) override {
    error = "pictures need a build with Qt (VELMORA_GUI=ON); this one draws nothing";
    return false;
  }

 private:
  graph::BasicSurface surface_;
};

#endif

}  // namespace

std::unique_ptr<PlotCanvas> MakePlotCanvas(int width, int height) {
#ifdef VELMORA_HAVE_QT_SURFACE
  return std::make_unique<ImageCanvas>(width, height);
#else
  return std::make_unique<StateCanvas>(width, height);
#endif
}

}  // namespace velmora::cli
