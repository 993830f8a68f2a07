#include "mathpad/qt/padeditor.h"

#include <QMimeData>

namespace velmora::mathpad_qt {

PadEditor::PadEditor(QWidget* parent, PictureSink insertPicture)
    : QTextEdit(parent), insertPicture_(std::move(insertPicture)) {}

bool PadEditor::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasImage() || QTextEdit::canInsertFromMimeData(source);
}

void PadEditor::insertFromMimeData(const QMimeData* source) {
  // A picture alone (not a web page's fragment that holds one) goes in as a picture.
  if (source->hasImage() && !source->hasHtml()) {
    const QImage image = qvariant_cast<QImage>(source->imageData());
    if (!image.isNull()) {
      insertPicture_(image);
      return;
    }
  }
  QTextEdit::insertFromMimeData(source);
}

}  // namespace velmora::mathpad_qt
