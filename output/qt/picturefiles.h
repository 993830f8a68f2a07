#pragma once

#include <string>

#include <QImage>
#include <QString>

#include "output/cdibsection.h"

namespace velmora::output_qt {

// A QImage as the 24-bit picture of the JPEG path (BGR rows padded to 4
// bytes), and back. Transparency is dropped onto white; a null image gives
// an empty picture.
output::cDIBSection ToDib(const QImage& image);
QImage ToQImage(const output::cDIBSection& picture);

// The picture as a JPEG file at quality 0 to 100 (passed to the encoder
// unchanged); false with the encoder's words in `error`.
bool SaveJpeg(const QImage& picture, const QString& file, int quality, std::string* error = nullptr);
// The picture as a 24-bit bitmap file, written beside the target and moved
// over it, so a failed save never leaves half a file.
bool SaveBmp(const QImage& picture, const QString& file);
// The picture as the encoder gives it back at a quality: the dialog's preview.
QImage JpegPreview(const QImage& picture, int quality);

}  // namespace velmora::output_qt
