#include "graph/qt/frmlabel.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QEvent>
#include <QFontDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "expr/numtext.h"
#include "graph/graphwindow.h"
#include "graph/qt/labelimage.h"
#include "graph/qt/qimagesurface.h"
#include "platform/qt/qtstring.h"

namespace velmora::graph_qt {

FrmLabel::FrmLabel(graph::GraphWindow& window, const std::string& text, FontChooser font,
                   ColourChooser colour, QWidget* parent)
    : QDialog(parent), window_(window), chooseFont_(std::move(font)), chooseColour_(std::move(colour)) {
  if (!chooseFont_) {
    chooseFont_ = [this](const QFont& initial) -> std::optional<QFont> {
      bool ok = false;
      const QFont chosen = QFontDialog::getFont(&ok, initial, this);
      if (!ok) return std::nullopt;
      return chosen;
    };
  }
  if (!chooseColour_) {
    chooseColour_ = [this](graph::Colour initial) -> std::optional<graph::Colour> {
      const QColor chosen = QColorDialog::getColor(ToQColor(initial), this);
      if (!chosen.isValid()) return std::nullopt;
      return FromQColor(chosen);
    };
  }
  const graph::LabelStyle defaults;
  font_ = QFont(qtplatform::ToQString(defaults.fontName));
  font_.setPointSizeF(defaults.fontSize);
  setObjectName(QStringLiteral("frmLabel"));
  setWindowTitle(QStringLiteral("Label"));
  text2_ = new QLineEdit(qtplatform::ToQString(text), this);
  text2_->setObjectName(QStringLiteral("Text2"));
  text2_->setMinimumWidth(280);
  cmdFont_ = new QPushButton(QStringLiteral("Font"), this);
  cmdFont_->setObjectName(QStringLiteral("cmdFont"));
  cmdBoja_ = new QPushButton(this);
  cmdBoja_->setObjectName(QStringLiteral("cmdBoja"));
  cmdBoja_->setToolTip(QStringLiteral("Click to change color"));
  cmdBoja_->setFixedSize(40, 20);
  cmdBoja_->setStyleSheet(
      QStringLiteral("background-color: %1; border: 1px solid black;").arg(ToQColor(colour_).name()));
  txtAngle_ = new QLineEdit(QStringLiteral("0"), this);
  txtAngle_->setObjectName(QStringLiteral("txtAngle"));
  txtAngle_->setToolTip(QStringLiteral("Angle (deg)"));
  txtAngle_->setReadOnly(true);
  txtAngle_->installEventFilter(this);
  check1_ = new QCheckBox(QStringLiteral("&Make Label transparent"), this);
  check1_->setObjectName(QStringLiteral("Check1"));
  cmdLabel_ = new QPushButton(QStringLiteral("Insert"), this);
  cmdLabel_->setObjectName(QStringLiteral("cmdLabel"));
  cmdLabel_->setDefault(true);
  cmdTextCancel_ = new QPushButton(QStringLiteral("Cancel"), this);
  cmdTextCancel_->setObjectName(QStringLiteral("cmdTextCancel"));

  auto* form = new QFormLayout;
  form->addRow(QStringLiteral("Label Text:"), text2_);
  auto* look = new QHBoxLayout;
  look->addWidget(cmdFont_);
  look->addSpacing(12);
  look->addWidget(new QLabel(QStringLiteral("Font Color:"), this));
  look->addWidget(cmdBoja_);
  look->addStretch(1);
  form->addRow(look);
  auto* angle = new QHBoxLayout;
  angle->addWidget(txtAngle_);
  angle->addWidget(new QLabel(QStringLiteral("Deg"), this));
  form->addRow(QStringLiteral("Rotate text:"), angle);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(cmdLabel_);
  buttons->addWidget(cmdTextCancel_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(check1_);
  layout->addLayout(buttons);
  connect(cmdFont_, &QPushButton::clicked, this, &FrmLabel::ChooseFont);
  connect(cmdBoja_, &QPushButton::clicked, this, &FrmLabel::ChooseColour);
  connect(cmdLabel_, &QPushButton::clicked, this, &FrmLabel::Insert);
  connect(cmdTextCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

bool FrmLabel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtAngle_ && event->type() == QEvent::MouseButtonRelease) {
    AskAngle();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void FrmLabel::AskAngle() {
  const auto angle = window_.AskLabelAngle();
  if (!angle) return;
  SetAngle(*angle);
}

void FrmLabel::SetAngle(double degrees) {
  angle_ = degrees;
  txtAngle_->setText(qtplatform::ToQString(expr::NumberToText(angle_)));
}

void FrmLabel::ChooseFont() {
  const auto chosen = chooseFont_(font_);
  if (chosen) font_ = *chosen;
}

void FrmLabel::ChooseColour() {
  const auto chosen = chooseColour_(colour_);
  if (!chosen) return;
  colour_ = *chosen;
  cmdBoja_->setStyleSheet(
      QStringLiteral("background-color: %1; border: 1px solid black;").arg(ToQColor(colour_).name()));
}

graph::LabelStyle FrmLabel::Style() const {
  return LabelStyleOf(text2_->text(), font_, colour_, angle_, check1_->isChecked());
}

void FrmLabel::Insert() {
  if (!window_.cmdLabelL(Style())) return;
  emit Inserted();
  accept();
}

}  // namespace velmora::graph_qt
