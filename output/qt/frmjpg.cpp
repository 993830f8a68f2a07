#include "output/qt/frmjpg.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "output/jpegquality.h"
#include "output/jpegwriter.h"
#include "output/mcommondialog.h"
#include "output/qt/picturefiles.h"

namespace velmora::output_qt {
namespace {

// The preview's box: the picture is shown no larger than this.
const QSize kPreviewSize(360, 270);

}  // namespace

FrmJPG::FrmJPG(const QImage& picture, platform::FileDialog& files, base::MessageBox& messages,
               QWidget* parent)
    : QDialog(parent), picture_(picture), files_(files), messages_(messages) {
  setObjectName(QStringLiteral("frmJPG"));
  setWindowTitle(QStringLiteral("Save as JPEG"));

  auto* frame = new QGroupBox(QStringLiteral("Set quality for JPG image:"), this);
  frame->setObjectName(QStringLiteral("Frame1"));
  slider_ = new QSlider(Qt::Horizontal, frame);
  slider_->setObjectName(QStringLiteral("Slider1"));
  slider_->setRange(output::JpegQuality::kMinimum, output::JpegQuality::kMaximum);
  slider_->setTickPosition(QSlider::TicksBelow);
  slider_->setTickInterval(10);
  slider_->setPageStep(10);
  auto* label = new QLabel(QStringLiteral("Quality:"), frame);
  txtQuality_ = new QLineEdit(frame);
  txtQuality_->setObjectName(QStringLiteral("txtQuality"));
  txtQuality_->setMaxLength(3);
  txtQuality_->setFixedWidth(txtQuality_->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 12);
  label->setBuddy(txtQuality_);
  auto* frameLayout = new QHBoxLayout(frame);
  frameLayout->addWidget(slider_, 1);
  frameLayout->addWidget(label);
  frameLayout->addWidget(txtQuality_);

  picTest_ = new QLabel(this);
  picTest_->setObjectName(QStringLiteral("picTest"));
  picTest_->setAlignment(Qt::AlignCenter);
  picTest_->setMinimumSize(kPreviewSize);
  picTest_->setFrameShape(QFrame::StyledPanel);

  save_ = new QPushButton(QStringLiteral("&Save..."), this);
  save_->setObjectName(QStringLiteral("cmdSaveStdPic"));
  save_->setDefault(true);
  cancel_ = new QPushButton(QStringLiteral("Cancel"), this);
  cancel_->setObjectName(QStringLiteral("Command2"));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(save_);
  buttons->addWidget(cancel_);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(frame);
  layout->addWidget(picTest_, 1);
  layout->addLayout(buttons);

  txtQuality_->installEventFilter(this);
  connect(slider_, &QSlider::valueChanged, this, &FrmJPG::SliderChanged);
  connect(txtQuality_, &QLineEdit::textChanged, this, &FrmJPG::BoxChanged);
  connect(save_, &QPushButton::clicked, this, &FrmJPG::SaveClicked);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);

  // Load: the slider at 100, which puts "100" in the box and the preview up.
  txtQuality_->setText(QString::fromLatin1(output::JpegQuality::kDefaultText.data()));
  slider_->setValue(output::JpegQuality::kMaximum);
  RefreshPreview();
}

bool FrmJPG::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtQuality_ && event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const QString text = key->text();
    // Editing keys (Backspace, Delete, arrows) carry no printable text and
    // pass; a printable character passes only when it is a digit.
    if (!text.isEmpty() && text.at(0).isPrint() && (key->modifiers() & Qt::ControlModifier) == 0) {
      for (const QChar c : text) {
        if (!output::JpegQuality::AcceptsKey(c.unicode())) return true;
      }
    }
  }
  return QDialog::eventFilter(watched, event);
}

void FrmJPG::SliderChanged(int value) {
  quality_ = value;
  if (!syncing_) {
    syncing_ = true;
    txtQuality_->setText(QString::fromStdString(output::JpegQuality::ToText(value)));
    syncing_ = false;
  }
  RefreshPreview();
}

void FrmJPG::BoxChanged(const QString& text) {
  if (syncing_) return;
  const auto change = output::JpegQuality::FromText(text.toStdString());
  syncing_ = true;
  if (QString::fromStdString(change.text) != text) txtQuality_->setText(QString::fromStdString(change.text));
  slider_->setValue(change.value);
  syncing_ = false;
  quality_ = change.value;
  RefreshPreview();
}

void FrmJPG::RefreshPreview() {
  if (picture_.isNull()) {
    picTest_->clear();
    return;
  }
  const QImage shown = JpegPreview(picture_, quality_);
  QPixmap pixmap = QPixmap::fromImage(shown);
  if (pixmap.width() > kPreviewSize.width() || pixmap.height() > kPreviewSize.height()) {
    pixmap = pixmap.scaled(kPreviewSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }
  picTest_->setPixmap(pixmap);
}

void FrmJPG::SaveClicked() {
  output::FileRequest request;
  request.defaultExt = kDefaultExt;
  request.filter = kSaveFilter;
  request.title = kSaveTitle;
  const auto chosen = output::mCommonDialog::VBGetSaveFileName(files_, messages_, request);
  if (chosen) {
    const QString file = QString::fromStdString(chosen->fileName);
    if (SaveJpeg(picture_, file, quality_)) {
      saved_ = file;
    } else {
      messages_.Show(output::SaveFailedText(chosen->fileName), "Velmora", base::MsgIcon::Exclamation);
    }
  }
  accept();
}

QString SavePictureDialog(QWidget* parent, const QImage& picture, platform::FileDialog& files,
                          base::MessageBox& messages) {
  FrmJPG dialog(picture, files, messages, parent);
  dialog.exec();
  return dialog.SavedFile();
}

}  // namespace velmora::output_qt
