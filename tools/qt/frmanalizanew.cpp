#include "tools/qt/frmanalizanew.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/asciicase.h"
#include "expr/numtext.h"
#include "platform/qt/qtstring.h"

namespace velmora::tools_qt {

using qtplatform::ToQString;
using qtplatform::ToStdString;

FrmAnalizaNew::FrmAnalizaNew(QWidget* owner, ToolServices services)
    : QWidget(owner, Qt::Window),
      services_(std::move(services)),
      engine_(expr::MakeFormulaControl()),
      tool_(std::make_unique<tools::CriticalPoints>(*engine_, *services_.messages)),
      scan_(std::make_unique<tools::DerivativeScan>(*engine_)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("Critical Points"));
  setObjectName(QStringLiteral("frmAnalizaNew"));

  txtformula_ = new QLabel(this);
  txtMin_ = new QLineEdit(QStringLiteral("-2"), this);
  txtMax_ = new QLineEdit(QStringLiteral("2"), this);
  check1_ = new QCheckBox(QStringLiteral("&Increase accuracy"), this);
  cmbKoren_ = new QComboBox(this);
  for (int i = 1; i <= 9; ++i) cmbKoren_->addItem(QString::number(i));
  cmbKoren_->setCurrentIndex(1);
  txtRoot_ = new QPlainTextEdit(this);
  txtRoot_->installEventFilter(this);
  pb1_ = new QProgressBar(this);
  pb1_->setRange(0, 100);
  pb1_->hide();
  calculate_ = new QPushButton(QStringLiteral("Calculate"), this);
  auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
  auto* copy = new QPushButton(QStringLiteral("Copy Result"), this);

  auto* range = new QGroupBox(QStringLiteral("Find in range:"), this);
  auto* rangeLayout = new QHBoxLayout(range);
  rangeLayout->addWidget(new QLabel(QStringLiteral("Xmin ="), range));
  rangeLayout->addWidget(txtMin_);
  rangeLayout->addWidget(new QLabel(QStringLiteral("Xmax ="), range));
  rangeLayout->addWidget(txtMax_);
  auto* options = new QHBoxLayout;
  options->addWidget(check1_);
  options->addStretch();
  options->addWidget(new QLabel(QStringLiteral("Accuracy:"), this));
  options->addWidget(cmbKoren_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(calculate_);
  buttons->addWidget(copy);
  buttons->addStretch();
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(txtformula_);
  layout->addWidget(range);
  layout->addLayout(options);
  layout->addWidget(txtRoot_, 1);
  layout->addWidget(pb1_);
  layout->addLayout(buttons);

  connect(calculate_, &QPushButton::clicked, this, &FrmAnalizaNew::Calculate);
  connect(copy, &QPushButton::clicked, this, [this] { PutText(txtRoot_->toPlainText()); });
  connect(cancel, &QPushButton::clicked, this, [this] {
    stop_ = true;
    close();
  });
  connect(txtMin_, &QLineEdit::returnPressed, this, &FrmAnalizaNew::Calculate);
  connect(txtMax_, &QLineEdit::returnPressed, this, &FrmAnalizaNew::Calculate);

  if (graph::GraphToolTarget* graph = services_.ActiveGraph()) {
    txtformula_->setText(QStringLiteral("Y = ") + ToQString(graph->FunctionYText()));
    txtMin_->setText(RangeEndText(graph->VisibleBounds().left));
    txtMax_->setText(RangeEndText(graph->VisibleBounds().right));
  }
  resize(460, 420);
}

FrmAnalizaNew::~FrmAnalizaNew() = default;

FrmAnalizaNew* FrmAnalizaNew::Open(QWidget* owner, const ToolServices& services) {
  if (const graph::GraphToolTarget* graph = services.ActiveGraph()) {
    if (base::UpperCase(graph->FunctionYText()).find('K') != std::string::npos) {
      services.messages->Show("Replace K with X, draw the function and try again.", "Velmora",
                              platform::MsgIcon::Information);
      return nullptr;
    }
  }
  return new FrmAnalizaNew(owner, services);
}

void FrmAnalizaNew::Calculate() {
  if (running_) return;
  graph::GraphToolTarget* graph = services_.ActiveGraph();
  const std::string function = graph != nullptr ? graph->FunctionYText() : std::string();
  tool_->minText = ToStdString(txtMin_->text());
  tool_->maxText = ToStdString(txtMax_->text());
  tool_->increaseAccuracy = check1_->isChecked();
  tool_->window = graph;
  tool_->SetLog(FromDisplay(txtRoot_->toPlainText()));
  running_ = true;
  stop_ = false;
  calculate_->setEnabled(false);
  pb1_->setValue(0);
  pb1_->show();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const bool done = tool_->Calculate(function, [this](int percent) {
    if (percent >= 0) pb1_->setValue(percent);
    QApplication::processEvents();
    return !stop_;
  });
  QApplication::restoreOverrideCursor();
  pb1_->hide();
  calculate_->setEnabled(true);
  running_ = false;
  txtMin_->setText(ToQString(tool_->minText));
  txtMax_->setText(ToQString(tool_->maxText));
  if (!tool_->Formula().empty()) txtformula_->setText(QStringLiteral("Y = ") + ToQString(tool_->Formula()));
  if (done) {
    txtRoot_->setPlainText(ToDisplay(tool_->Log()));
    txtRoot_->moveCursor(QTextCursor::End);
    if (graph != nullptr) {
      DrawScan(*graph, expr::TextToNumber(tool_->minText), expr::TextToNumber(tool_->maxText));
    }
  }
}

bool FrmAnalizaNew::DrawScan(graph::GraphToolTarget& graph, double xmin, double xmax) {
  if (running_ || graph.IsDrawing()) return false;
  running_ = true;
  stop_ = false;
  calculate_->setEnabled(false);
  pb1_->setValue(0);
  pb1_->show();
  const bool done = scan_->Run(tool_->Formula(), xmin, xmax, graph.ZoomFactor(),
                               cmbKoren_->currentIndex() + 1, [this](int percent) {
                                 pb1_->setValue(percent);
                                 QApplication::processEvents();
                                 return !stop_;
                               });
  pb1_->hide();
  calculate_->setEnabled(true);
  running_ = false;
  if (!done) return false;
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  return graph.DrawCurve(scan_->Curve(), tools::DerivativeScan::PenColour([&] { return unit(pen_); }));
}

void FrmAnalizaNew::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    stop_ = true;
    return;
  }
  QWidget::keyPressEvent(event);
}

void FrmAnalizaNew::closeEvent(QCloseEvent* event) {
  stop_ = true;
  QWidget::closeEvent(event);
}

bool FrmAnalizaNew::eventFilter(QObject* watched, QEvent* event) {
  // A key or a click in the log stops a run.
  if (watched == txtRoot_ && running_ &&
      (event->type() == QEvent::KeyPress || event->type() == QEvent::FocusIn ||
       event->type() == QEvent::MouseButtonPress)) {
    stop_ = true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace velmora::tools_qt
