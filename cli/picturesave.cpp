#include "cli/picturesave.h"

#include <QPdfWriter>
#include <QString>

#include "output/pagemargins.h"
#include "output/qt/picturefiles.h"
#include "output/qt/printout.h"

namespace velmora::cli {

bool SavePictures(const QImage& picture, const PictureOptions& options, platform::SettingsStore& settings,
                  bool frame, std::string& error) {
  if (options.jpeg) {
    std::string reason;
    if (!output_qt::SaveJpeg(picture, QString::fromStdString(*options.jpeg), options.quality, &reason)) {
      error = "cannot write " + *options.jpeg + ": " + reason;
      return false;
    }
  }
  if (options.bmp && !output_qt::SaveBmp(picture, QString::fromStdString(*options.bmp))) {
    error = "cannot write " + *options.bmp;
    return false;
  }
  if (options.pdf) {
    bool printed = false;
    {
      QPdfWriter writer(QString::fromStdString(*options.pdf));
      writer.setResolution(300);
      writer.setCreator(QStringLiteral("Velmora"));
      printed = output_qt::PrintPicture(writer, picture, output::PrintMargine::Read(settings), frame);
    }
    if (!printed) {
      error = "cannot write " + *options.pdf;
      return false;
    }
  }
  return true;
}

}  // namespace velmora::cli
