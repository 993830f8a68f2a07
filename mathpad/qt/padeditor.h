#pragma once

#include <functional>

#include <QImage>
#include <QTextEdit>

namespace velmora::mathpad_qt {

// MathPad's `rtbp`: a QTextEdit that also takes pictures from the
// clipboard (a graph copied with Copy Graph) and hands them to the window,
// which keeps their bytes for the RTF file.
class PadEditor final : public QTextEdit {
  Q_OBJECT

 public:
  using PictureSink = std::function<void(const QImage&)>;
  PadEditor(QWidget* parent, PictureSink insertPicture);

 protected:
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  PictureSink insertPicture_;
};

}  // namespace velmora::mathpad_qt
