#include "tools/qt/frmintav.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "base/asciicase.h"
#include "platform/qt/qtstring.h"

namespace velmora::tools_qt {

using qtplatform::ToQString;
using qtplatform::ToStdString;

namespace {

QComboBox* EditableBox(QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  return box;
}

}  // namespace

FrmIntAv::FrmIntAv(QWidget* owner, ToolServices services)
    : QWidget(owner, Qt::Window),
      services_(std::move(services)),
      engine_(expr::MakeFormulaControl()),
      tool_(std::make_unique<tools::IntegralTool>(*engine_, *services_.messages)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("Integral - Derivative"));
  setObjectName(QStringLiteral("frmIntAv"));

  text4_ = EditableBox(this);
  text4_->setMinimumWidth(280);
  txtMin_ = new QLineEdit(this);
  txtMax_ = new QLineEdit(this);
  txtkorak_ = EditableBox(this);
  for (int n = 2; n <= 2048; n *= 2) txtkorak_->addItem(QString::number(n));
  txtkorak_->setEditText(QStringLiteral("256"));
  options_[0] = new QRadioButton(QStringLiteral("&Trapezoidal Rule"), this);
  options_[1] = new QRadioButton(QStringLiteral("&Simpson's Rule"), this);
  options_[1]->setChecked(true);
  auto* integral = new QPushButton(QStringLiteral("Integral"), this);
  auto* average = new QPushButton(QStringLiteral("Average"), this);
  lblintg_ = new QLabel(QStringLiteral("Integral:"), this);
  text10_ = new QLineEdit(this);
  text10_->setReadOnly(true);
  auto* copyIntegral = new QPushButton(QStringLiteral("Copy Result"), this);
  text7_ = EditableBox(this);
  text8_ = new QLineEdit(this);
  auto* derivative = new QPushButton(QStringLiteral("Derivative"), this);
  text11_ = new QLineEdit(this);
  text11_->setReadOnly(true);
  auto* copyDerivative = new QPushButton(QStringLiteral("Copy Result"), this);
  combo1_ = new QComboBox(this);
  for (int i = 1; i <= 14; ++i) combo1_->addItem(QString::number(i));
  combo1_->setCurrentIndex(5);

  auto* top = new QGroupBox(QStringLiteral("Enter Function to calculate Integral or Average:"), this);
  auto* topGrid = new QGridLayout(top);
  topGrid->addWidget(text4_, 0, 0, 1, 4);
  topGrid->addWidget(new QLabel(QStringLiteral("Min:"), top), 1, 0);
  topGrid->addWidget(txtMin_, 1, 1);
  topGrid->addWidget(new QLabel(QStringLiteral("Max:"), top), 1, 2);
  topGrid->addWidget(txtMax_, 1, 3);
  topGrid->addWidget(new QLabel(QStringLiteral("Number of Segments:"), top), 2, 0, 1, 2);
  topGrid->addWidget(txtkorak_, 2, 2, 1, 2);
  topGrid->addWidget(options_[0], 3, 0, 1, 2);
  topGrid->addWidget(options_[1], 3, 2, 1, 2);
  topGrid->addWidget(integral, 4, 0, 1, 2);
  topGrid->addWidget(average, 4, 2, 1, 2);
  topGrid->addWidget(lblintg_, 5, 0);
  topGrid->addWidget(text10_, 5, 1, 1, 2);
  topGrid->addWidget(copyIntegral, 5, 3);
  auto* bottom = new QGroupBox(QStringLiteral("Enter Function to calculate Derivative:"), this);
  auto* bottomGrid = new QGridLayout(bottom);
  bottomGrid->addWidget(text7_, 0, 0, 1, 4);
  bottomGrid->addWidget(new QLabel(QStringLiteral("Point:"), bottom), 1, 0);
  bottomGrid->addWidget(text8_, 1, 1);
  bottomGrid->addWidget(derivative, 1, 2, 1, 2);
  bottomGrid->addWidget(new QLabel(QStringLiteral("Derivative:"), bottom), 2, 0);
  bottomGrid->addWidget(text11_, 2, 1, 1, 2);
  bottomGrid->addWidget(copyDerivative, 2, 3);
  auto* accuracy = new QHBoxLayout;
  accuracy->addWidget(new QLabel(QStringLiteral("Accuracy:"), this));
  accuracy->addWidget(combo1_);
  accuracy->addStretch();
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(top);
  layout->addWidget(bottom);
  layout->addLayout(accuracy);

  connect(integral, &QPushButton::clicked, this, &FrmIntAv::Integral);
  connect(average, &QPushButton::clicked, this, &FrmIntAv::Average);
  connect(derivative, &QPushButton::clicked, this, &FrmIntAv::Derivative);
  connect(copyIntegral, &QPushButton::clicked, this, [this] { PutText(text10_->text()); });
  connect(copyDerivative, &QPushButton::clicked, this, [this] { PutText(text11_->text()); });
  connect(txtkorak_, &QComboBox::currentTextChanged, this, [this] {
    if (showing_) return;
    tool_->segments = ToStdString(txtkorak_->currentText());
    if (tool_->SegmentsChanged()) {
      showing_ = true;
      txtkorak_->setEditText(ToQString(tool_->segments));
      showing_ = false;
    }
  });
  connect(combo1_, &QComboBox::currentIndexChanged, this, [this](int index) {
    tool_->SetDecimals(index + 1);
    ShowResults();
  });
  const auto integralEdited = [this] {
    if (showing_) return;
    tool_->IntegralInputEdited();
    ShowResults();
  };
  const auto derivativeEdited = [this] {
    if (showing_) return;
    tool_->DerivativeInputEdited();
    ShowResults();
  };
  connect(text4_, &QComboBox::editTextChanged, this, integralEdited);
  connect(txtMin_, &QLineEdit::textEdited, this, integralEdited);
  connect(txtMax_, &QLineEdit::textEdited, this, integralEdited);
  connect(text7_, &QComboBox::editTextChanged, this, derivativeEdited);
  connect(text8_, &QLineEdit::textEdited, this, derivativeEdited);
  connect(txtMax_, &QLineEdit::returnPressed, this, &FrmIntAv::Integral);
  connect(text8_, &QLineEdit::returnPressed, this, &FrmIntAv::Derivative);

  if (graph::GraphToolTarget* graph = services_.ActiveGraph()) {
    for (const std::string& function : graph->DrawnFunctions()) {
      if (base::UpperCase(function).find('K') != std::string::npos) continue;
      text4_->addItem(ToQString(function));
      text7_->addItem(ToQString(function));
    }
    const QString function = ToQString(graph->FunctionYText());
    text4_->setEditText(function);
    text7_->setEditText(function);
  }
  resize(460, 420);
}

FrmIntAv::~FrmIntAv() = default;

void FrmIntAv::ToLogic() {
  tool_->integrand = ToStdString(text4_->currentText());
  tool_->minText = ToStdString(txtMin_->text());
  tool_->maxText = ToStdString(txtMax_->text());
  tool_->segments = ToStdString(txtkorak_->currentText());
  tool_->simpson = options_[1]->isChecked();
  tool_->derivand = ToStdString(text7_->currentText());
  tool_->point = ToStdString(text8_->text());
  tool_->decimals = combo1_->currentIndex() + 1;
}

void FrmIntAv::ShowResults() {
  showing_ = true;
  text10_->setText(ToQString(tool_->ResultText()));
  text11_->setText(ToQString(tool_->DerivativeText()));
  lblintg_->setText(ToQString(tool_->ResultCaption()));
  txtkorak_->setEditText(ToQString(tool_->segments));
  showing_ = false;
}

void FrmIntAv::Remember(QComboBox* box) {
  const QString text = box->currentText();
  if (box->findText(text) < 0) box->addItem(text);
  showing_ = true;
  box->setEditText(text);
  showing_ = false;
}

void FrmIntAv::Integral() {
  ToLogic();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  tool_->Integral();
  QApplication::restoreOverrideCursor();
  ShowResults();
  if (!tool_->ResultText().empty()) Remember(text4_);
}

void FrmIntAv::Average() {
  ToLogic();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  tool_->Average();
  QApplication::restoreOverrideCursor();
  ShowResults();
  if (!tool_->ResultText().empty()) Remember(text4_);
}

void FrmIntAv::Derivative() {
  ToLogic();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  tool_->Derivative();
  QApplication::restoreOverrideCursor();
  ShowResults();
  if (!tool_->DerivativeText().empty()) Remember(text7_);
}

}  // namespace velmora::tools_qt
