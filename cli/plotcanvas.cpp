#include "cli/plotcanvas.h"

#include "graph/basicsurface.h"

#ifdef VELMORA_HAVE_QT_SURFACE
#include <QPageSize>
#include <QPdfWriter>
#include <QString>

#include "graph/qt/headlessgui.h"
#include "graph/qt/qimagesurface.h"
#include "graph/settingnumber.h"
#include "output/pagemargins.h"
#include "output/qt/picturefiles.h"
#include "output/qt/printout.h"
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
  bool SaveJpeg(const std::string& file, int quality, std::string& error) override {
    if (output_qt::SaveJpeg(surface_.Image(), QString::fromStdString(file), quality, &error)) return true;
    error = "cannot write " + file + ": " + error;
    return false;
  }
  bool SaveBmp(const std::string& file, std::string& error) override {
    if (output_qt::SaveBmp(surface_.Image(), QString::fromStdString(file))) return true;
    error = "cannot write " + file;
    return false;
  }
  bool SavePdf(const std::string& file, platform::SettingsStore& settings, std::string& error) override {
    const bool frame =
        graph::ReadSettingNumber(settings, platform::keys::kGrid, platform::keys::grid::kRam) == 1;
    bool printed = false;
    {
      QPdfWriter writer(QString::fromStdString(file));
      writer.setResolution(300);
      writer.setCreator(QStringLiteral("Velmora"));
      printed =
          output_qt::PrintPicture(writer, surface_.Image(), output::PrintMargine::Read(settings), frame);
    }
    if (printed) return true;
    error = "cannot write " + file;
    return false;
  }

 private:
  graph_qt::HeadlessGui gui_;  // before the surface: text needs it
  graph_qt::QImageSurface surface_;
};

#else

bool NoPicture(std::string& error) {
  error = "pictures need a build with Qt (VELMORA_GUI=ON); this one draws nothing";
  return false;
}

class StateCanvas final : public PlotCanvas {
 public:
  StateCanvas(int width, int height) : surface_(width, height) {}
  graph::Surface& Surface() override { return surface_; }
  bool SavePng(const std::string&, std::string& error) override {
    error = "--png needs a build with Qt (VELMORA_GUI=ON); this one draws nothing";
    return false;
  }
  bool SaveJpeg(const std::string&, int, std::string& error) override { return NoPicture(error); }
  bool SaveBmp(const std::string&, std::string& error) override { return NoPicture(error); }
  bool SavePdf(const std::string&, platform::SettingsStore&, std::string& error) override {
    return NoPicture(error);
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
