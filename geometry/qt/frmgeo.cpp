#include "geometry/qt/frmgeo.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QImageWriter>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QVBoxLayout>

#include "geometry/catalogue.h"
#include "geometry/figuresave.h"
#include "geometry/qt/figureview.h"
#include "geometry/qt/geopagewidget.h"
#include "output/qt/frmjpg.h"
#include "platform/qt/qtclipboard.h"
#include "platform/qt/qtsavefile.h"
#include "platform/qt/qtstring.h"

namespace velmora::geometry_qt {

using qtplatform::ToQString;

FrmGeo::FrmGeo(QWidget* owner, GeoServices services) : QWidget(owner, Qt::Window), services_(services) {
  setObjectName(QStringLiteral("frmGeo"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(ToQString(kCaption));
  if (services_.clipboard == nullptr) {
    ownClipboard_ = std::make_unique<qtplatform::QtClipboard>();
    services_.clipboard = ownClipboard_.get();
  }

  auto* layout = new QVBoxLayout(this);
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName(QStringLiteral("SSTab1"));
  for (const auto caption : geometry::PageCaptions()) {
    auto* page = new GeoPageWidget(caption, *services_.messages, tabs_);
    pages_.push_back(page);
    tabs_->addTab(page, ToQString(caption));
    connect(page, &GeoPageWidget::Solved, this, &FrmGeo::AppendResult);
  }
  layout->addWidget(tabs_, 1);

  auto* bottom = new QHBoxLayout;
  log_ = new QTextEdit(this);
  log_->setObjectName(QStringLiteral("rtG"));
  log_->setReadOnly(true);
  log_->setAcceptRichText(false);
  log_->setFixedHeight(96);
  bottom->addWidget(log_, 1);
  auto* buttons = new QVBoxLayout;
  const auto addButton = [&](const QString& name, const QString& caption, const QString& tip, auto slot) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, slot);
    buttons->addWidget(button);
    return button;
  };
  addButton(QStringLiteral("cmdCopy"), QStringLiteral("Copy"), QStringLiteral("Copy the results"),
            [this] { CopyResult(); });
  addButton(QStringLiteral("cmdCopyPicture"), QStringLiteral("Copy Picture"),
            QStringLiteral("Copy the figure as a picture"), [this] { CopyPicture(); });
  addButton(QStringLiteral("cmdSavePicture"), QStringLiteral("Save Picture..."),
            QStringLiteral("Save the figure as a bitmap"), [this] { SavePicture(); })
      ->setEnabled(services_.files != nullptr);
  addButton(QStringLiteral("cmdSaveJpeg"), QStringLiteral("JPEG..."),
            QStringLiteral("Save the figure as a JPEG picture"), [this] { SaveJpeg(); })
      ->setEnabled(services_.files != nullptr);
  buttons->addStretch(1);
  bottom->addLayout(buttons);
  layout->addLayout(bottom);
  resize(900, 600);
}

FrmGeo::~FrmGeo() = default;

GeoPageWidget* FrmGeo::Page(std::string_view caption) const {
  for (auto* page : pages_) {
    if (page->Page().Caption() == caption) return page;
  }
  return nullptr;
}

GeoPageWidget* FrmGeo::CurrentPage() const { return qobject_cast<GeoPageWidget*>(tabs_->currentWidget()); }

void FrmGeo::AppendResult(const QString& text) {
  log_->moveCursor(QTextCursor::End);
  if (!log_->document()->isEmpty()) log_->insertPlainText(QStringLiteral("\n"));
  log_->insertPlainText(text);
  log_->moveCursor(QTextCursor::End);
  log_->ensureCursorVisible();
}

void FrmGeo::CopyResult() { services_.clipboard->SetText(qtplatform::ToStdString(log_->toPlainText())); }

void FrmGeo::CopyPicture() { QGuiApplication::clipboard()->setImage(Picture()); }

QImage FrmGeo::Picture() const {
  const GeoPageWidget* page = CurrentPage();
  return page != nullptr ? page->Figure()->Picture() : QImage();
}

bool FrmGeo::SavePicture() {
  if (services_.files == nullptr) return false;
  return geometry::SaveFigurePicture(*services_.files, *services_.messages,
                                     [this](const std::string& path) { return Savjpg(ToQString(path)); });
}

void FrmGeo::SaveJpeg() {
  if (services_.files == nullptr) return;
  output_qt::SavePictureDialog(this, Picture(), *services_.files, *services_.messages);
}

bool FrmGeo::Savjpg(const QString& path) const {
  const QImage picture = Picture();
  // Written beside the target and renamed over it: a failed save never
  // leaves half a file.
  return qtplatform::SaveFileAtomically(path, [&picture](QIODevice& file) {
    QImageWriter writer(&file, "bmp");
    return writer.write(picture);
  });
}

}  // namespace velmora::geometry_qt
