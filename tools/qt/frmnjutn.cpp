#include "tools/qt/frmnjutn.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "base/asciicase.h"
#include "platform/qt/qtstring.h"

namespace velmora::tools_qt {

using qtplatform::ToQString;
using qtplatform::ToStdString;
using tools::ZeroKind;

namespace {

QComboBox* FunctionBox(QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setMinimumWidth(280);
  return box;
}

}  // namespace

FrmNjutn::FrmNjutn(QWidget* owner, ToolServices services, ZeroKind kind)
    : QWidget(owner, Qt::Window),
      services_(std::move(services)),
      newton_(expr::MakeFormulaControl()),
      other_(expr::MakeFormulaControl()),
      tool_(std::make_unique<tools::ZeroTool>(kind, *newton_, *other_, *services_.messages)) {
  setAttribute(Qt::WA_DeleteOnClose);
  const bool intersection = kind == ZeroKind::Intersection;
  const bool point = kind == ZeroKind::PointEvaluate;
  setWindowTitle(intersection ? QStringLiteral("Intersection")
                 : point      ? QStringLiteral("Point Evaluate")
                              : QStringLiteral("Zeros"));
  setObjectName(intersection ? QStringLiteral("frmNjutnDve")
                : point      ? QStringLiteral("frmEvalPoint")
                             : QStringLiteral("frmNjutn"));

  text1_ = FunctionBox(this);
  text7_ = FunctionBox(this);
  const char* optionCaptions[3][2] = {
      {"Enter &Guess for zero: ", "&Find zeros in range:"},
      {"Enter &Guess for Intersection:", "&Find in range:"},
      {"Solve for Y (enter value for X):", "Solve for X (enter value for Y):"}};
  const int k = intersection ? 1 : point ? 2 : 0;
  for (int i = 0; i < 2; ++i) {
    options_[i] = new QRadioButton(QString::fromUtf8(optionCaptions[k][i]), this);
    connect(options_[i], &QRadioButton::clicked, this, &FrmNjutn::OptionClicked);
  }
  options_[0]->setChecked(true);
  text2_ = new QLineEdit(this);
  text4_ = new QLineEdit(point ? QString() : QStringLiteral("0"), this);
  text5_ = new QLineEdit(this);
  text6_ = new QLineEdit(this);
  check1_ = new QCheckBox(QStringLiteral("&Increase accuracy"), this);
  text3_ = new QPlainTextEdit(this);
  progress_ = new QProgressBar(this);
  progress_->setRange(0, 100);
  progress_->hide();
  calculate_ = new QPushButton(QStringLiteral("Calculate"), this);
  auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
  auto* copy = new QPushButton(QStringLiteral("Copy Result"), this);

  auto* grid = new QGridLayout;
  int row = 0;
  grid->addWidget(
      new QLabel(intersection ? QStringLiteral("Function 1:") : QStringLiteral("Function:"), this), row, 0);
  grid->addWidget(new QLabel(QStringLiteral("Y(X) ="), this), row + 1, 0);
  grid->addWidget(text1_, row + 1, 1, 1, 3);
  row += 2;
  if (intersection) {
    grid->addWidget(new QLabel(QStringLiteral("Function 2:"), this), row, 0);
    grid->addWidget(text7_, row, 1, 1, 3);
    ++row;
  } else {
    text7_->hide();
  }
  grid->addWidget(options_[0], row, 0, 1, 2);
  grid->addWidget(text2_, row, 2, 1, 2);
  ++row;
  grid->addWidget(options_[1], row, 0, 1, 2);
  if (point) {
    grid->addWidget(text4_, row, 2, 1, 2);
  } else {
    text4_->hide();  // the target of a zero is always 0
  }
  ++row;
  auto* range = new QGroupBox(QStringLiteral("Define range for X:"), this);
  auto* rangeLayout = new QHBoxLayout(range);
  rangeLayout->addWidget(new QLabel(QStringLiteral("Xmin ="), range));
  rangeLayout->addWidget(text5_);
  rangeLayout->addWidget(new QLabel(QStringLiteral("Xmax ="), range));
  rangeLayout->addWidget(text6_);
  grid->addWidget(range, row++, 0, 1, 4);
  grid->addWidget(check1_, row++, 0, 1, 4);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(calculate_);
  buttons->addWidget(copy);
  buttons->addStretch();
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(grid);
  layout->addWidget(text3_, 1);
  layout->addWidget(progress_);
  layout->addLayout(buttons);

  connect(calculate_, &QPushButton::clicked, this, &FrmNjutn::Calculate);
  connect(cancel, &QPushButton::clicked, this, &QWidget::close);
  connect(copy, &QPushButton::clicked, this, &FrmNjutn::CopyResult);
  OnEnter(text1_, this, [this] { Calculate(); });
  OnEnter(text7_, this, [this] { Calculate(); });
  for (QLineEdit* box : {text2_, text4_, text5_, text6_}) {
    connect(box, &QLineEdit::returnPressed, this, &FrmNjutn::Calculate);
  }

  // The active graph window's functions of X, and its visible range.
  if (graph::GraphToolTarget* graph = services_.ActiveGraph()) {
    for (const std::string& function : graph->DrawnFunctions()) {
      if (base::UpperCase(function).find('K') != std::string::npos) continue;
      text1_->addItem(ToQString(function));
      text7_->addItem(ToQString(function));
    }
    text1_->setEditText(ToQString(graph->FunctionYText()));
    text7_->setEditText(QString());
    text5_->setText(RangeEndText(graph->VisibleBounds().left));
    text6_->setText(RangeEndText(graph->VisibleBounds().right));
  }
  OptionClicked();
  resize(480, 440);
}

FrmNjutn::~FrmNjutn() = default;

void FrmNjutn::OptionClicked() {
  const bool rangeMode = options_[1]->isChecked();
  text5_->setEnabled(rangeMode);
  text6_->setEnabled(rangeMode);
}

void FrmNjutn::Calculate() {
  if (running_) return;
  tools::ZeroInputs& in = tool_->Inputs();
  in.function = ToStdString(text1_->currentText());
  in.function2 = ToStdString(text7_->currentText());
  in.rangeMode = options_[1]->isChecked();
  in.guess = ToStdString(text2_->text());
  in.xmin = ToStdString(text5_->text());
  in.xmax = ToStdString(text6_->text());
  in.target = ToStdString(text4_->text());
  in.increaseAccuracy = check1_->isChecked();
  tool_->SetLog(FromDisplay(text3_->toPlainText()));
  running_ = true;
  stop_ = false;
  calculate_->setEnabled(false);
  QApplication::setOverrideCursor(Qt::WaitCursor);
  if (in.rangeMode) progress_->show();
  tool_->Calculate([this](int percent) {
    progress_->setValue(percent);
    QApplication::processEvents();
    return !stop_;
  });
  QApplication::restoreOverrideCursor();
  progress_->hide();
  calculate_->setEnabled(true);
  running_ = false;
  text3_->setPlainText(ToDisplay(tool_->Log()));
  text3_->moveCursor(QTextCursor::End);
}

void FrmNjutn::CopyResult() {
  const QString selected = text3_->textCursor().selectedText();
  PutText(selected.isEmpty() ? text3_->toPlainText() : selected);
}

void FrmNjutn::closeEvent(QCloseEvent* event) {
  stop_ = true;
  tool_->Close();
  QWidget::closeEvent(event);
}

}  // namespace velmora::tools_qt
