#include "output/qt/frmpagesetup.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPageSetupDialog>
#include <QPushButton>
#include <QVBoxLayout>

#include "output/pagemargins.h"
#include "output/qt/printdialogs.h"

namespace velmora::output_qt {
namespace {

QLineEdit* MarginBox(const char* name, QWidget* parent) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(QString::fromLatin1(name));
  return box;
}

}  // namespace

FrmPageSetup::FrmPageSetup(platform::SettingsStore& settings, QWidget* parent)
    : QDialog(parent), settings_(settings) {
  setObjectName(QStringLiteral("frmPageSetup"));
  setWindowTitle(QStringLiteral("Page Setup"));

  auto* frame = new QGroupBox(QStringLiteral("Margins"), this);
  frame->setObjectName(QStringLiteral("Frame1"));
  levo_ = MarginBox("txtlevo", frame);
  desno_ = MarginBox("txtDesno", frame);
  gore_ = MarginBox("txtgore", frame);
  dole_ = MarginBox("txtdole", frame);
  auto* form = new QFormLayout(frame);
  form->addRow(QStringLiteral("Left"), levo_);
  form->addRow(QStringLiteral("Right"), desno_);
  form->addRow(QStringLiteral("Top"), gore_);
  form->addRow(QStringLiteral("Bottom"), dole_);

  ok_ = new QPushButton(QStringLiteral("OK"), this);
  ok_->setObjectName(QStringLiteral("cmdOK"));
  ok_->setDefault(true);
  cancel_ = new QPushButton(QStringLiteral("Cancel"), this);
  cancel_->setObjectName(QStringLiteral("cmdCancel"));
  printer_ = new QPushButton(QStringLiteral("Printer..."), this);
  printer_->setObjectName(QStringLiteral("Command1"));
  auto* buttons = new QVBoxLayout;
  buttons->addWidget(ok_);
  buttons->addWidget(cancel_);
  buttons->addWidget(printer_);
  buttons->addStretch(1);

  auto* layout = new QHBoxLayout(this);
  layout->addWidget(frame, 1);
  layout->addLayout(buttons);

  const output::MarginTexts texts = output::PrintMargine::Load(settings_);
  levo_->setText(QString::fromStdString(texts.levo));
  desno_->setText(QString::fromStdString(texts.desno));
  gore_->setText(QString::fromStdString(texts.gore));
  dole_->setText(QString::fromStdString(texts.dole));

  connect(ok_, &QPushButton::clicked, this, &FrmPageSetup::OkClicked);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(printer_, &QPushButton::clicked, this, &FrmPageSetup::PrinterClicked);
}

void FrmPageSetup::OkClicked() {
  output::PrintMargine::Save(settings_, {levo_->text().toStdString(), desno_->text().toStdString(),
                                         gore_->text().toStdString(), dole_->text().toStdString()});
  accept();
}

void FrmPageSetup::PrinterClicked() {
  QPageSetupDialog dialog(&ProgramPrinter(), this);
  dialog.exec();
}

void PageSetupDialog(QWidget* parent, platform::SettingsStore& settings) {
  FrmPageSetup dialog(settings, parent);
  dialog.exec();
}

}  // namespace velmora::output_qt
