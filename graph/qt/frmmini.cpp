#include "graph/qt/frmmini.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "graph/graphwindow.h"
#include "graph/qt/dialogbuttons.h"
#include "graph/qt/qimagesurface.h"
#include "platform/qt/qtstring.h"

namespace velmora::graph_qt {

FrmMini::FrmMini(graph::GraphWindow& window, ColourChooser choose, QWidget* parent)
    : QDialog(parent), window_(window), choose_(std::move(choose)) {
  if (!choose_) {
    choose_ = [this](graph::Colour initial, const QString& title) -> std::optional<graph::Colour> {
      const QColor chosen = QColorDialog::getColor(ToQColor(initial), this, title);
      if (!chosen.isValid()) return std::nullopt;
      return FromQColor(chosen);
    };
  }
  setObjectName(QStringLiteral("frmMini"));
  setWindowTitle(QStringLiteral("Draw Integral & Average"));
  auto* frame1 = new QGroupBox(QStringLiteral("Define range of integral"), this);
  frame1->setObjectName(QStringLiteral("Frame1"));
  text1_ = new QLineEdit(frame1);
  text1_->setObjectName(QStringLiteral("Text1"));
  text2_ = new QLineEdit(frame1);
  text2_->setObjectName(QStringLiteral("Text2"));
  auto* range = new QFormLayout(frame1);
  range->addRow(QStringLiteral("Xmin"), text1_);
  range->addRow(QStringLiteral("Xmax"), text2_);
  check2_ = new QCheckBox(QStringLiteral("Draw Function"), this);
  check2_->setObjectName(QStringLiteral("Check2"));
  check2_->setChecked(true);
  check1_ = new QCheckBox(QStringLiteral("&Draw Average "), this);
  check1_->setObjectName(QStringLiteral("Check1"));
  frame2_ = new QGroupBox(this);
  frame2_->setObjectName(QStringLiteral("Frame2"));
  frame2_->setEnabled(false);
  text3_ = new QLineEdit(frame2_);
  text3_->setObjectName(QStringLiteral("Text3"));
  shape1_ = new QPushButton(frame2_);
  shape1_->setObjectName(QStringLiteral("Shape1"));
  shape1_->setToolTip(QStringLiteral("Click to change color"));
  shape1_->setFixedSize(40, 20);
  auto* average = new QFormLayout(frame2_);
  average->addRow(QStringLiteral("Value:"), text3_);
  average->addRow(QStringLiteral("Color:"), shape1_);
  ShowColour(window.Pen().AvBoja());
  const OkCancelRow keys = MakeOkCancelRow(this);
  ok_ = keys.ok;
  cancel_ = keys.cancel;
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(frame1);
  layout->addWidget(check2_);
  layout->addWidget(check1_);
  layout->addWidget(frame2_);
  layout->addLayout(keys.row);
  connect(check1_, &QCheckBox::toggled, frame2_, &QWidget::setEnabled);
  connect(shape1_, &QPushButton::clicked, this, &FrmMini::ChooseColour);
  connect(ok_, &QPushButton::clicked, this, &FrmMini::Ok);
}

void FrmMini::ShowColour(graph::Colour colour) {
  QPalette palette = shape1_->palette();
  palette.setColor(QPalette::Button, ToQColor(colour));
  palette.setColor(QPalette::Window, ToQColor(colour));
  shape1_->setPalette(palette);
  shape1_->setStyleSheet(
      QStringLiteral("background-color: %1; border: 1px solid black;").arg(ToQColor(colour).name()));
}

void FrmMini::ChooseColour() {
  const auto chosen = choose_(window_.Pen().AvBoja(), QStringLiteral("Average Color"));
  if (!chosen) return;
  window_.SetAvBoja(*chosen);
  ShowColour(*chosen);
}

void FrmMini::Ok() {
  graph::GraphWindow::IntegralRequest request;
  request.xMin = qtplatform::ToStdString(text1_->text());
  request.xMax = qtplatform::ToStdString(text2_->text());
  request.drawFunction = check2_->isChecked();
  request.drawAverage = check1_->isChecked();
  request.average = qtplatform::ToStdString(text3_->text());
  // The dialog is out of the way while the fills are drawn.
  hide();
  if (!window_.ApplyIntegral(request)) {
    show();
    return;
  }
  emit Drawn();
  accept();
}

}  // namespace velmora::graph_qt
