#include "tools/qt/frmtast.h"

#include <fstream>

#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/asciicase.h"
#include "graph/qt/frmzoom2.h"
#include "mathpad/qt/frm2text.h"
#include "platform/qt/qtstring.h"
#include "platform/shellopen.h"

namespace velmora::tools_qt {

using qtplatform::ToQString;
using qtplatform::ToStdString;

// The frame's tool windows as the "Mode" popup of this window sees them: the
// Evaluator it writes into is this window, whatever the frame holds; the
// rest goes to the frame.
class FrmTast::SelfTools final : public platform::ToolWindows {
 public:
  SelfTools(FrmTast& window, platform::ToolWindows* frame) : window_(window), frame_(frame) {}

  bool Has(platform::ToolWindow window) const override {
    return window == platform::ToolWindow::Evaluator || (frame_ != nullptr && frame_->Has(window));
  }
  void Show(platform::ToolWindow window) override {
    if (window == platform::ToolWindow::Evaluator) return;
    if (frame_ != nullptr) frame_->Show(window);
  }
  void ShowGraphMode() override {
    if (frame_ != nullptr) frame_->ShowGraphMode();
  }
  platform::MathPadTarget* MathPad() override { return frame_ != nullptr ? frame_->MathPad() : nullptr; }
  platform::EvaluatorTarget* Evaluator(bool /*create*/) override { return &window_; }

 private:
  FrmTast& window_;
  platform::ToolWindows* frame_;
};

FrmTast::FrmTast(QWidget* owner, ToolServices services)
    : QWidget(owner, Qt::Window),
      services_(std::move(services)),
      engine_(expr::MakeFormulaControl()),
      tool_(std::make_unique<tools::EvaluatorTool>(*engine_, *services_.messages)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("Evaluator"));
  setObjectName(QStringLiteral("frmTast"));

  toolbar_ = new QToolBar(this);
  toolbar_->addAction(QStringLiteral("Clear"), this, [this] {
    if (services_.messages->Show("Clear All?", "Velmora", platform::MsgIcon::Question,
                                 platform::MsgButtons::YesNo) == platform::MsgResult::Yes) {
      ClearAll();
    }
  });
  toolbar_->addAction(QStringLiteral("Replace"), this, &FrmTast::Replace);
  toolbar_->addAction(QStringLiteral("Evaluate"), this, &FrmTast::Evaluate);
  toolbar_->addAction(QStringLiteral("Save"), this, &FrmTast::SaveHistory);
  // The "kpi" button has no action of its own; its menu pastes the clipboard.
  auto* kpi = new QToolButton(toolbar_);
  kpi->setText(QStringLiteral("Paste"));
  kpi->setPopupMode(QToolButton::InstantPopup);
  auto* pasteMenu = new QMenu(kpi);
  pasteMenu->addAction(QStringLiteral("Paste in Expression"), this,
                       [this] { text1_->setEditText(QGuiApplication::clipboard()->text()); });
  pasteMenu->addAction(QStringLiteral("Paste in Value for X"), this,
                       [this] { text2_->setText(QGuiApplication::clipboard()->text()); });
  kpi->setMenu(pasteMenu);
  toolbar_->addWidget(kpi);

  text1_ = new QComboBox(this);
  text1_->setEditable(true);
  text1_->setInsertPolicy(QComboBox::NoInsert);
  text1_->setMinimumWidth(320);
  text2_ = new QLineEdit(this);
  boxC1_ = new QListWidget(this);
  for (std::string_view name : tools::EvaluatorTool::FunctionNames()) boxC1_->addItem(ToQString(name));
  combo1_ = new QComboBox(this);
  for (int i = 1; i <= 14; ++i) combo1_->addItem(QString::number(i));
  combo1_->setCurrentIndex(-1);
  result_ = new QLabel(this);
  result_->setObjectName(QStringLiteral("lbRezultat"));
  result_->setFrameShape(QFrame::Panel);
  result_->setFrameShadow(QFrame::Sunken);
  result_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  rtf_ = new QTextEdit(this);
  rtf_->setFont(QFont(QStringLiteral("Arial"), 10));
  rtf_->setAcceptRichText(false);

  evaluate_ = new QPushButton(QStringLiteral("Evaluate"), this);
  auto* replace = new QPushButton(QStringLiteral("Replace"), this);
  more_ = new QPushButton(QStringLiteral("More..."), this);
  auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);

  auto* grid = new QGridLayout;
  grid->addWidget(new QLabel(QStringLiteral("Expression:"), this), 0, 0);
  grid->addWidget(text1_, 0, 1, 1, 3);
  grid->addWidget(new QLabel(QStringLiteral("Value for X:"), this), 1, 0);
  grid->addWidget(text2_, 1, 1);
  grid->addWidget(new QLabel(QStringLiteral("Accuracy:"), this), 1, 2);
  grid->addWidget(combo1_, 1, 3);
  grid->addWidget(new QLabel(QStringLiteral("Result:"), this), 2, 0);
  grid->addWidget(result_, 2, 1, 1, 3);
  grid->addWidget(new QLabel(QStringLiteral("Functions:"), this), 3, 0, Qt::AlignTop);
  grid->addWidget(boxC1_, 3, 1);
  grid->addWidget(rtf_, 3, 2, 1, 2);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(evaluate_);
  buttons->addWidget(replace);
  buttons->addWidget(more_);
  buttons->addStretch();
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->setMenuBar(toolbar_);
  layout->addLayout(grid);
  layout->addLayout(buttons);

  connect(evaluate_, &QPushButton::clicked, this, &FrmTast::Evaluate);
  connect(replace, &QPushButton::clicked, this, &FrmTast::Replace);
  connect(more_, &QPushButton::clicked, this, [this] { SetPanelShown(!PanelShown()); });
  connect(cancel, &QPushButton::clicked, this, &QWidget::close);
  OnEnter(text1_, this, [this] { Evaluate(); });
  connect(text2_, &QLineEdit::returnPressed, this, &FrmTast::Evaluate);
  connect(boxC1_, &QListWidget::itemActivated, this, &FrmTast::InsertName);
  connect(boxC1_, &QListWidget::itemClicked, this, &FrmTast::InsertName);
  connect(combo1_, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (index < 0) return;
    tool_->SetDecimals(index + 1);
    result_->setText(ToQString(tool_->ResultLabel()));
  });

  // The expression list starts with the active graph window's functions
  // of X.
  if (graph::GraphToolTarget* graph = services_.ActiveGraph()) {
    for (const std::string& function : graph->DrawnFunctions()) {
      if (base::UpperCase(function).find('K') == std::string::npos) tool_->list.push_back(function);
    }
    for (const std::string& function : tool_->list) text1_->addItem(ToQString(function));
    text1_->setEditText(QString());
  }
  BuildEvalMenu();
  // The result label pops up the constants and the conversions of the
  // result; both write back into this window's expression box.
  selfTools_ = std::make_unique<SelfTools>(*this, services_.tools);
  modeMenu_ = graph_qt::FrmZoom2::ModeMenu(this, *selfTools_, *services_.messages,
                                           [this] { return ToStdString(result_->text()); });
  result_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(result_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { modeMenu_->popup(result_->mapToGlobal(at)); });
  resize(620, 420);
}

FrmTast::~FrmTast() = default;

void FrmTast::WriteText(const std::string& text) { text1_->lineEdit()->insert(ToQString(text)); }

void FrmTast::Evaluate() {
  tool_->expression = ToStdString(text1_->currentText());
  if (!tool_->Evaluate()) return;
  ShowResult();
  rtf_->setPlainText(ToDisplay(tool_->History()));
  rtf_->verticalScrollBar()->setValue(rtf_->verticalScrollBar()->maximum());
  const QString typed = text1_->currentText();
  text1_->clear();
  for (const std::string& item : tool_->list) text1_->addItem(ToQString(item));
  text1_->setEditText(typed);
  text1_->setFocus();
  // After the combo box has handled the Enter that started the evaluation.
  QTimer::singleShot(0, text1_->lineEdit(), &QLineEdit::selectAll);
}

void FrmTast::ShowResult() {
  result_->setText(ToQString(tool_->ResultLabel()));
  // A chosen accuracy applies to every new result.
  if (combo1_->currentIndex() >= 0) {
    tool_->SetDecimals(combo1_->currentIndex() + 1);
    result_->setText(ToQString(tool_->ResultLabel()));
  }
}

void FrmTast::Replace() {
  tool_->expression = ToStdString(text1_->currentText());
  tool_->xValue = ToStdString(text2_->text());
  if (!tool_->Replace()) return;
  if (text1_->findText(text1_->currentText()) < 0) text1_->addItem(text1_->currentText());
  text1_->setEditText(ToQString(tool_->expression));
}

void FrmTast::ClearAll() {
  tool_->Clear();
  text1_->setEditText(QString());
  text2_->clear();
  rtf_->clear();
  result_->clear();
}

void FrmTast::SaveHistory() {
  if (services_.files == nullptr) return;
  const std::optional<std::string> path = services_.files->Save("Save As", "Text File (*.txt)|*.txt", {}, {});
  if (!path || path->empty()) return;
  std::ofstream out(*path, std::ios::binary | std::ios::trunc);
  out << FromDisplay(rtf_->toPlainText());
}

void FrmTast::InsertName() {
  if (boxC1_->currentItem() == nullptr) return;
  text1_->setEditText(text1_->currentText() + boxC1_->currentItem()->text());
  text1_->setFocus();
}

void FrmTast::BuildEvalMenu() {
  using platform::ToolWindow;
  evalMenu_ = new QMenu(QStringLiteral("Eval"), this);
  const auto tool = [this](const char* caption, ToolWindow window) {
    QAction* action = evalMenu_->addAction(QString::fromUtf8(caption), this, [this, window] {
      if (services_.tools != nullptr) services_.tools->Show(window);
    });
    action->setData(static_cast<int>(window));
  };
  tool("Ma&thPad", ToolWindow::MathPad);
  // The scientific calculator stands in the menu with no action.
  evalMenu_->addAction(QStringLiteral("&Scientific Calculator"))->setEnabled(false);
  tool("&Complex Calculator", ToolWindow::Complex);
  tool("&Matrix Calculator", ToolWindow::Matrix);
  tool("Ge&ometry Calculator", ToolWindow::Geometry);
  evalMenu_->addAction(QStringLiteral("&Graph Mode"), this, [this] {
    if (services_.tools != nullptr) services_.tools->ShowGraphMode();
  });
  tool("&Value Table", ToolWindow::ValueTables);
  evalMenu_->addSeparator();
  evalMenu_->addAction(QStringLiteral("Copy &Result"), this, [this] { PutText(result_->text()); });
  evalMenu_->addAction(QStringLiteral("Copy &Expression"), this, [this] { PutText(text1_->currentText()); });
  evalMenu_->addAction(QStringLiteral("P&aste Expression"), this,
                       [this] { text1_->setEditText(QGuiApplication::clipboard()->text()); });
  evalMenu_->addSeparator();
  panelEntry_ = evalMenu_->addAction(ToQString(panelMenu_.Caption()), this, &FrmTast::PanelMenuClicked);
  panelEntry_->setObjectName(QStringLiteral("mnupanelev"));
  helpEntry_ = evalMenu_->addAction(QStringLiteral("&Help"), this, &FrmTast::OpenHelp);
  helpEntry_->setObjectName(QStringLiteral("mnuhev"));
  evalMenu_->addAction(QStringLiteral("&Close"), this, &QWidget::close)
      ->setObjectName(QStringLiteral("mnuexev"));
  connect(evalMenu_, &QMenu::aboutToShow, this, &FrmTast::RefreshEvalMenu);
}

void FrmTast::RefreshEvalMenu() {
  for (QAction* action : evalMenu_->actions()) {
    if (!action->data().isValid()) continue;
    action->setEnabled(services_.Has(static_cast<platform::ToolWindow>(action->data().toInt())));
  }
  panelEntry_->setText(ToQString(panelMenu_.Caption()));
  helpEntry_->setEnabled(services_.shell != nullptr && !services_.helpFile.isEmpty() &&
                         QFileInfo::exists(services_.helpFile));
}

bool FrmTast::PanelShown() const {
  const mathpad_qt::Frm2Text* panel = panel_.data();
  return panel != nullptr && panel->isVisible();
}

void FrmTast::SetPanelShown(bool shown) {
  mathpad_qt::Frm2Text::ShowBeside(panel_, *this, shown, *services_.messages, services_.tools,
                                   [this] { PanelClosedByItself(); });
}

void FrmTast::PanelMenuClicked() {
  SetPanelShown(panelMenu_.Click());
  panelEntry_->setText(ToQString(panelMenu_.Caption()));
}

void FrmTast::PanelClosedByItself() {
  panelMenu_.PanelClosed();
  panelEntry_->setText(ToQString(panelMenu_.Caption()));
}

void FrmTast::OpenHelp() {
  if (services_.shell == nullptr || services_.helpFile.isEmpty()) return;
  const platform::ShellResult result = platform::ShellOpen(*services_.shell, ToStdString(services_.helpFile));
  if (!result.ok) {
    services_.messages->Show(
        result.description + "\r\n" + ToStdString(QDir::toNativeSeparators(services_.helpFile)), "Velmora",
        platform::MsgIcon::Exclamation);
  }
}

void FrmTast::contextMenuEvent(QContextMenuEvent* event) {
  RefreshEvalMenu();
  evalMenu_->exec(event->globalPos());
}

}  // namespace velmora::tools_qt
