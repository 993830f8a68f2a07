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

namespace keys = platform::keys;

graph::Colour DefaultColour(std::string_view key) {
  return static_cast<graph::Colour>(std::stoul(std::string(platform::DefaultOf(platform::keys::kBoje, key))));
}

}  // namespace

QImage PaperPicture(int type, int width, int height) {
  if (type < 0 || type > 2) type = 0;
  platform::MemorySettingsStore settings;
  if (type == 1) settings.Store(keys::kGrid, keys::grid::kPolarP, "1");
  if (type == 2) {
    settings.Store(keys::kGrid, keys::grid::kTrigo, "1");
    settings.Store(keys::kGrid, keys::grid::kBrojX, "1");
    // The "pi" labels in the axes' colour, to be read.
    settings.Store(keys::kGrid, keys::grid::kBrojBoja, "0");
  }
  platform::SilentMessageBox messages;
  QImageSurface surface(width, height);
  surface.SetBackColor(DefaultColour(keys::boje::kPozadina));
  surface.SetFontTransparent(true);
  surface.Clear();
  graph::GraphPaper paper(surface, settings, messages);
  graph::PaperView view;
  view.Zoom = kZoom[type];
  view.CenterX = width / 2.0;
  view.CenterY = height / 2.0;
  view.GridColor = DefaultColour(keys::boje::kGrid);
  view.AxesColor = DefaultColour(keys::boje::kOse);
  paper.DrawLines(view);
  return surface.Image().copy();
}

}  // namespace velmora::graph_qt
