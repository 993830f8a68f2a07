#pragma once

#include <map>

#include <QImage>
#include <QString>

#include "rtf/document.h"

class QTextDocument;
class QTextCharFormat;

namespace velmora::mathpad_qt {

// The pictures of an editor's document: the image resource of each picture
// by its name, with the encoded bytes (PNG or JPEG) it was loaded or
// inserted with, so a save writes them as they were instead of encoding
// them again.
class PadPictures {
 public:
  // Adds a picture to the document's resources and answers its name.
  QString Add(QTextDocument& document, const rtf::Picture& picture, const QImage& image);
  // The picture of a name, or nothing when the name is not one of ours
  // (then the image is encoded as PNG).
  const rtf::Picture* Find(const QString& name) const;
  void Clear() { pictures_.clear(); }

 private:
  std::map<QString, rtf::Picture> pictures_;
  int serial_ = 0;
};

// The property of a character format that keeps the raised or lowered
// offset in half points; the editor draws it as a baseline offset.
inline constexpr int kOffsetProperty = 0x100000 + 1;

// The MathPad default font of the model's empty font name.
QString DefaultFamily();

// Replaces the content of `target` with the document (without an undo step).
void SetDocument(QTextDocument& target, const rtf::Document& document, PadPictures& pictures);
// The editor's document as the model.
rtf::Document GetDocument(const QTextDocument& source, const PadPictures& pictures);

// The model's character format as a text format and back.
QTextCharFormat ToTextFormat(const rtf::CharFormat& format);
rtf::CharFormat FromTextFormat(const QTextCharFormat& format, double defaultPointSize);

// An image file's picture: JPEG and PNG bytes kept as they are, any other
// format Qt reads as PNG. Nothing when Qt cannot read it.
std::optional<std::pair<rtf::Picture, QImage>> PictureFromFile(const QString& path);
// An image as a PNG picture.
rtf::Picture PictureFromImage(const QImage& image);

}  // namespace velmora::mathpad_qt
