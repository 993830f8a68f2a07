#include "output/qt/picturefiles.h"

#include <cstring>

#include <QImageWriter>
#include <QPainter>

#include "output/jpegwriter.h"
#include "platform/qt/qtsavefile.h"

namespace velmora::output_qt {
namespace {

// The picture in 8-bit BGR with no alpha: an image with transparency is
// laid on white first, as a picture box would show it.
QImage AsBgr(const QImage& image) {
  if (image.hasAlphaChannel()) {
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter painter(&flat);
    painter.drawImage(0, 0, image);
    painter.end();
    return flat.convertToFormat(QImage::Format_BGR888);
  }
  return image.convertToFormat(QImage::Format_BGR888);
}

}  // namespace

output::cDIBSection ToDib(const QImage& image) {
  output::cDIBSection picture;
  if (image.isNull() || !picture.Create(image.width(), image.height())) return picture;
  const QImage bgr = AsBgr(image);
  const auto rowBytes = static_cast<std::size_t>(image.width()) * 3;
  for (int y = 0; y < image.height(); ++y) std::memcpy(picture.Row(y), bgr.constScanLine(y), rowBytes);
  return picture;
}

QImage ToQImage(const output::cDIBSection& picture) {
  if (picture.DIBSectionBitsPtr() == nullptr) return {};
  QImage image(picture.Width(), picture.Height(), QImage::Format_BGR888);
  const auto rowBytes = static_cast<std::size_t>(picture.Width()) * 3;
  for (int y = 0; y < picture.Height(); ++y) std::memcpy(image.scanLine(y), picture.Row(y), rowBytes);
  return image;
}

bool SaveJpeg(const QImage& picture, const QString& file, int quality, std::string* error) {
  const output::cDIBSection dib = ToDib(picture);
  const output::JpegResult result = output::SaveJPG(dib, file.toStdString(), quality);
  if (!result.ok && error != nullptr) *error = result.error;
  return result.ok;
}

bool SaveBmp(const QImage& picture, const QString& file) {
  if (picture.isNull()) return false;
  const QImage rgb = picture.convertToFormat(QImage::Format_RGB888);
  return qtplatform::SaveFileAtomically(file, [&rgb](QIODevice& device) {
    QImageWriter writer(&device, "bmp");
    return writer.write(rgb);
  });
}

QImage JpegPreview(const QImage& picture, int quality) {
  std::string bytes;
  if (!output::EncodeJPG(ToDib(picture), quality, bytes).ok) return picture;
  QImage decoded;
  if (!decoded.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()),
                            "JPG")) {
    return picture;
  }
  return decoded;
}

}  // namespace velmora::output_qt
