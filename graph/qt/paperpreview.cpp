#include "graph/qt/paperpreview.h"

#include "graph/graphpaper.h"
#include "graph/qt/qimagesurface.h"
#include "platform/memorysettingsstore.h"
#include "platform/settingskeys.h"

namespace velmora::graph_qt {
namespace {

// The zoom of each picture: a grid step of about ten pixels, and on Trig
// paper room for its "pi" labels.
constexpr double kZoom[] = {12, 12, 16};

graph::Colour DefaultColour(std::string_view key) {
  return static_cast<graph::Colour>(std::stoul(std::string(platform::DefaultOf("Boje", key))));
}

}  // namespace

QImage PaperPicture(int type, int width, int height) {
  if (type < 0 || type > 2) type = 0;
  platform::MemorySettingsStore settings;
  if (type == 1) settings.Store("Grid", "PolarP", "1");
  if (type == 2) {
    settings.Store("Grid", "Trigo", "1");
    settings.Store("Grid", "BrojX", "1");
    settings.Store("Grid", "BrojBoja", "0");  // the "pi" labels in the axes' colour, to be read
  }
  platform::SilentMessageBox messages;
  QImageSurface surface(width, height);
  surface.SetBackColor(DefaultColour("Pozadina"));
  surface.SetFontTransparent(true);
  surface.Clear();
  graph::GraphPaper paper(surface, settings, messages);
  graph::PaperView view;
  view.Zoom = kZoom[type];
  view.CenterX = width / 2.0;
  view.CenterY = height / 2.0;
  view.GridColor = DefaultColour("Grid");
  view.AxesColor = DefaultColour("Ose");
  paper.DrawLines(view);
  return surface.Image().copy();
}

}  // namespace velmora::graph_qt
