#include "graph/qt/labelpanel.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QEvent>
#include <QFontDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "expr/numtext.h"
#include "graph/qt/labelimage.h"
#include "graph/qt/qimagesurface.h"
#include "platform/qt/qtstring.h"

namespace velmora::graph_qt {

LabelPanel::LabelPanel(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("frkur"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  const graph::LabelStyle defaults;
  font_ = QFont(qtplatform::ToQString(defaults.fontName));
  font_.setPointSizeF(defaults.fontSize);

  frmText_ = new QGroupBox(QStringLiteral("Insert Label"), this);
  frmText_->setObjectName(QStringLiteral("frmText"));
  text2_ = new QLineEdit(frmText_);
  text2_->setObjectName(QStringLiteral("Text2"));
  text2_->setMinimumWidth(200);
  cmdFont_ = new QPushButton(QStringLiteral("Font"), frmText_);
  cmdFont_->setObjectName(QStringLiteral("cmdFont"));
  cmdBoja_ = new QPushButton(frmText_);
  cmdBoja_->setObjectName(QStringLiteral("cmdBoja"));
  cmdBoja_->setToolTip(QStringLiteral("Click to change color"));
  cmdBoja_->setFixedSize(40, 20);
  label2_ = new QLabel(QStringLiteral("Rotate text:"), frmText_);
  label2_->setObjectName(QStringLiteral("Label2"));
  txtAngle_ = new QLineEdit(QStringLiteral("0"), frmText_);
  txtAngle_->setObjectName(QStringLiteral("txtAngle"));
  txtAngle_->setToolTip(QStringLiteral("Angle (deg)"));
  txtAngle_->setReadOnly(true);
  txtAngle_->setMaximumWidth(60);
  txtAngle_->installEventFilter(this);
  label1_ = new QLabel(QStringLiteral("Deg"), frmText_);
  label1_->setObjectName(QStringLiteral("Label1"));
  check1_ = new QCheckBox(QStringLiteral("&Transparent"), frmText_);
  check1_->setObjectName(QStringLiteral("Check1"));
  cmdLabel_ = new QPushButton(QStringLiteral("OK"), frmText_);
  cmdLabel_->setObjectName(QStringLiteral("cmdLabel"));
  cmdTextCancel_ = new QPushButton(QStringLiteral("Cancel"), frmText_);
  cmdTextCancel_->setObjectName(QStringLiteral("cmdTextCancel"));

  auto* grid = new QGridLayout(frmText_);
  grid->addWidget(text2_, 0, 0, 1, 4);
  grid->addWidget(cmdFont_, 1, 0);
  grid->addWidget(cmdBoja_, 1, 1);
  grid->addWidget(check1_, 1, 2, 1, 2);
  grid->addWidget(label2_, 2, 0);
  grid->addWidget(txtAngle_, 2, 1);
  grid->addWidget(label1_, 2, 2);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(cmdLabel_);
  buttons->addWidget(cmdTextCancel_);
  grid->addLayout(buttons, 3, 0, 1, 4);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(frmText_);
  ShowColour();
}

bool LabelPanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtAngle_ && event->type() == QEvent::MouseButtonRelease) {
    emit AngleClicked();
    return true;
  }
  return QFrame::eventFilter(watched, event);
}

void LabelPanel::Start(const std::string& text) {
  text2_->setText(qtplatform::ToQString(text));
  SetAngle(0);
}

void LabelPanel::ChooseFont() {
  std::optional<QFont> chosen;
  if (chooseFont_) {
    chosen = chooseFont_(font_);
  } else {
    bool ok = false;
    const QFont font = QFontDialog::getFont(&ok, font_, this);
    if (ok) chosen = font;
  }
  if (chosen) font_ = *chosen;
}

void LabelPanel::ChooseColour() {
  std::optional<graph::Colour> chosen;
  if (chooseColour_) {
    chosen = chooseColour_(colour_);
  } else if (const QColor colour = QColorDialog::getColor(ToQColor(colour_), this); colour.isValid()) {
    chosen = FromQColor(colour);
  }
  if (!chosen) return;
  colour_ = *chosen;
  ShowColour();
}

void LabelPanel::SetAngle(double degrees) {
  angle_ = degrees;
  txtAngle_->setText(qtplatform::ToQString(expr::NumberToText(angle_)));
}

graph::LabelStyle LabelPanel::Style() const {
  return LabelStyleOf(text2_->text(), font_, colour_, angle_, check1_->isChecked());
}

void LabelPanel::ShowColour() {
  cmdBoja_->setStyleSheet(
      QStringLiteral("background-color: %1; border: 1px solid black;").arg(ToQColor(colour_).name()));
}

}  // namespace velmora::graph_qt
