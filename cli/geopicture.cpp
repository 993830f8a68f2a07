#include "cli/geopicture.h"

#include <memory>

#include <QImage>
#include <QSize>

#include "cli/picturesave.h"
#include "geometry/figuresketch.h"
#include "geometry/qt/sketchpainter.h"
#include "graph/qt/headlessgui.h"
#include "platform/qt/qtsettingsstore.h"
#include "platform/qt/qtstring.h"

namespace velmora::cli {

bool SaveGeoPictures(std::string_view word, const geometry::Figure& figure, const GeoPicture& picture,
                     std::string& error) {
  graph_qt::HeadlessGui gui;  // the measure letters need fonts
  geometry::SketchOptions options;
  options.shade = picture.shade;
  const QImage image = geometry_qt::RenderSketch(geometry::FigureSketch(word, figure, options),
                                                 QSize(picture.width, picture.height));
  // The user's file, as the program uses it, unless --settings names another.
  auto settings =
      picture.settings
          ? std::make_unique<qtplatform::QtSettingsStore>(qtplatform::ToQString(*picture.settings))
          : std::make_unique<qtplatform::QtSettingsStore>();
  return SavePictures(image, picture.outputs, *settings, false, error);
}

}  // namespace velmora::cli
