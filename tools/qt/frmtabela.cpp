#include "tools/qt/frmtabela.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/mathpadtarget.h"
#include "platform/qt/qtstring.h"
#include "tools/qt/valuetablemodel.h"

namespace velmora::tools_qt {

using qtplatform::ToQString;
using qtplatform::ToStdString;

namespace {

void Fill(QComboBox* box, const std::vector<std::string>& items) {
  const QString text = box->currentText();
  box->clear();
  for (const std::string& item : items) box->addItem(ToQString(item));
  box->setEditText(text);
}

}  // namespace

FrmTabela::FrmTabela(QWidget* owner, ToolServices services)
    : QWidget(owner, Qt::Window),
      services_(std::move(services)),
      engine_(expr::MakeFormulaControl()),
      tool_(std::make_unique<tools::ValueTableTool>(*engine_, *services_.messages)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("Value Tables"));
  setObjectName(QStringLiteral("frmTabela"));
  if (services_.files != nullptr) {
    publisher_ =
        std::make_unique<tools::TablePublisher>(*services_.files, *services_.messages, services_.shell);
  }

  toolbar_ = new QToolBar(this);
  // Short captions keep every button in view; the tips are the full names.
  const auto add = [this](const char* key, const char* caption, const char* tip, auto slot) {
    QAction* action = toolbar_->addAction(QString::fromUtf8(caption), this, slot);
    action->setObjectName(QString::fromUtf8(key));
    action->setToolTip(QString::fromUtf8(tip));
    return action;
  };
  add("New", "Clear", "Clear Table", [this] {
    tool_->InitTableGrid();
    ShowTable();
  });
  QAction* copy = add("Copy", "Copy", "Copy Table", [this] { CopyTable(); });
  auto* copyMenu = new QMenu(this);
  copyMenu->addAction(QStringLiteral("&Copy Table"), this, &FrmTabela::CopyTable)->setObjectName("copy1");
  copyMenu
      ->addAction(QStringLiteral("C&opy Cell"), this,
                  [this] {
                    const QModelIndex at = grid_->currentIndex();
                    if (at.isValid()) PutText(Cell(at.row(), at.column()));
                  })
      ->setObjectName("copy2");
  copy->setMenu(copyMenu);
  if (auto* button = qobject_cast<QToolButton*>(toolbar_->widgetForAction(copy))) {
    button->setPopupMode(QToolButton::MenuButtonPopup);
  }
  add("Save", "To MathPad", "Paste Table in MathPad", [this] { PasteInMathPad(); });
  add("HTML", "HTML", "Publish Table as HTML", [this] { PublishTable(); });
  add("Calculate", "Calculate", "Calculate Table", [this] { CalculateTable(); });
  toolbar_->installEventFilter(this);

  txtY_ = new QComboBox(this);
  txtY_->setEditable(true);
  txtY_->setInsertPolicy(QComboBox::NoInsert);
  txtY_->setMinimumWidth(260);
  txtX_ = new QComboBox(this);
  txtX_->setEditable(true);
  txtX_->setInsertPolicy(QComboBox::NoInsert);
  labY_ = new QLabel(QStringLiteral("Y (X) ="), this);
  labX_ = new QLabel(QStringLiteral("X (K) ="), this);
  const char* captions[3] = {"&Cartesian", "&Parametric", "P&olar"};
  for (int i = 0; i < 3; ++i) {
    options_[i] = new QRadioButton(QString::fromUtf8(captions[i]), this);
    connect(options_[i], &QRadioButton::clicked, this, [this, i] { TypeClicked(i + 1); });
  }
  txtdole_ = new QLineEdit(QStringLiteral("-5"), this);
  txtgore_ = new QLineEdit(QStringLiteral("5"), this);
  combo1_ = new QComboBox(this);
  combo1_->setEditable(true);
  combo1_->setInsertPolicy(QComboBox::NoInsert);
  combo1_->addItems({"1", "10", "0.1", "pi/4", "e/2"});
  combo1_->setEditText(QStringLiteral("1"));
  txtDec_ = new QComboBox(this);
  txtDec_->setEditable(true);
  for (int i = 1; i <= 14; ++i) txtDec_->addItem(QString::number(i));
  txtDec_->setEditText(QStringLiteral("3"));
  grid_ = new QTableView(this);
  model_ = new ValueTableModel(tool_->Table(), grid_);
  grid_->setModel(model_);
  grid_->setFont(QFont(QStringLiteral("Tahoma"), 9));
  grid_->horizontalHeader()->hide();
  grid_->verticalHeader()->hide();
  grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid_->setContextMenuPolicy(Qt::CustomContextMenu);
  grid_->setMinimumSize(360, 260);

  auto* form = new QGridLayout;
  form->addWidget(labY_, 0, 0);
  form->addWidget(txtY_, 0, 1, 1, 3);
  form->addWidget(labX_, 1, 0);
  form->addWidget(txtX_, 1, 1, 1, 3);
  auto* types = new QHBoxLayout;
  for (QRadioButton* option : options_) types->addWidget(option);
  form->addLayout(types, 2, 0, 1, 4);
  form->addWidget(new QLabel(QStringLiteral("Xmin:"), this), 3, 0);
  form->addWidget(txtdole_, 3, 1);
  form->addWidget(new QLabel(QStringLiteral("Xmax:"), this), 3, 2);
  form->addWidget(txtgore_, 3, 3);
  form->addWidget(new QLabel(QStringLiteral("Step:"), this), 4, 0);
  form->addWidget(combo1_, 4, 1);
  form->addWidget(new QLabel(QStringLiteral("Accuracy:"), this), 4, 2);
  form->addWidget(txtDec_, 4, 3);
  auto* layout = new QVBoxLayout(this);
  layout->setMenuBar(toolbar_);
  layout->addLayout(form);
  layout->addWidget(grid_, 1);

  connect(txtY_, &QComboBox::editTextChanged, this, [this] {
    if (filling_) return;
    // Every edit of the function empties the table.
    tool_->InitTableGrid();
    ShowTable();
    Button("Calculate")->setEnabled(!txtY_->currentText().isEmpty());
  });
  connect(txtY_, &QComboBox::activated, this, &FrmTabela::ChooseFromList);
  OnEnter(combo1_, this, [this] { CalculateTable(); });
  connect(grid_, &QTableView::customContextMenuRequested, this, [this, copyMenu](const QPoint& at) {
    if (GridRows() > 2) copyMenu->exec(grid_->viewport()->mapToGlobal(at));
  });

  // The active graph window's function, type and lists.
  filling_ = true;
  int type = 1;
  if (graph::GraphToolTarget* graph = services_.ActiveGraph()) {
    tool_->yList = graph->DrawnFunctions();
    tool_->xList = graph->DrawnXTexts();
    tool_->parametric = graph->DrawnParametricY();
    Fill(txtY_, tool_->yList);
    Fill(txtX_, tool_->xList);
    type = graph->FunctionTypeIndex();
    txtY_->setEditText(ToQString(graph->FunctionYText()));
    txtX_->setEditText(ToQString(graph->FunctionXText()));
  }
  filling_ = false;
  if (type < 1 || type > 3) type = 1;
  options_[type - 1]->setChecked(true);
  const QString x = txtX_->currentText();
  TypeClicked(type);
  if (type == 2) txtX_->setEditText(x);
  ShowTable();
  Button("Calculate")->setEnabled(!txtY_->currentText().isEmpty());
  RefreshButtons();
  resize(520, 560);
}

FrmTabela::~FrmTabela() = default;

QAction* FrmTabela::Button(const char* key) const {
  return toolbar_->findChild<QAction*>(QString::fromUtf8(key));
}

void FrmTabela::ToLogic() {
  tool_->y = ToStdString(txtY_->currentText());
  tool_->x = ToStdString(txtX_->currentText());
  tool_->xmin = ToStdString(txtdole_->text());
  tool_->xmax = ToStdString(txtgore_->text());
  tool_->step = ToStdString(combo1_->currentText());
  tool_->decimals = ToStdString(txtDec_->currentText());
}

void FrmTabela::TypeClicked(int type) {
  ToLogic();
  tool_->SetType(type);
  options_[type - 1]->setChecked(true);
  labY_->setText(ToQString(tool_->YLabel()));
  const bool parametric = type == 2;
  txtX_->setEnabled(parametric);
  labX_->setEnabled(parametric);
  if (!parametric) txtX_->setEditText(QStringLiteral("K"));
  const bool range = type != 3;
  txtdole_->setEnabled(range);
  txtgore_->setEnabled(range);
  txtY_->lineEdit()->end(false);
}

void FrmTabela::ChooseFromList(int index) {
  if (index < 0) return;
  filling_ = true;
  txtY_->setEditText(txtY_->itemText(index));
  filling_ = false;
  ToLogic();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  tool_->ChooseFromList();
  QApplication::restoreOverrideCursor();
  filling_ = true;
  options_[tool_->Type() - 1]->setChecked(true);
  labY_->setText(ToQString(tool_->YLabel()));
  txtX_->setEditText(ToQString(tool_->x));
  filling_ = false;
  ShowTable();
}

void FrmTabela::CalculateTable() {
  if (txtY_->currentText().isEmpty()) return;
  ToLogic();
  grid_->hide();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  tool_->Calculate();
  QApplication::restoreOverrideCursor();
  filling_ = true;
  Fill(txtY_, tool_->yList);
  Fill(txtX_, tool_->xList);
  filling_ = false;
  ShowTable();
  grid_->show();
}

void FrmTabela::ShowTable() {
  const graph::ValueTable& table = tool_->Table();
  model_->Refresh();
  const double share = table.Cols() == 4 ? 4.3 : 3.2;
  for (int c = 0; c < table.Cols(); ++c) {
    grid_->setColumnWidth(c, static_cast<int>(grid_->viewport()->width() / share));
  }
}

int FrmTabela::GridRows() const { return model_->rowCount(); }

QString FrmTabela::Cell(int row, int col) const { return model_->index(row, col).data().toString(); }

tools::TableHead FrmTabela::Head() const {
  return tools::TableHead{tool_->Type() == 3,
                          tool_->YLabel(),
                          ToStdString(txtY_->currentText()),
                          ToStdString(txtdole_->text()),
                          ToStdString(txtgore_->text()),
                          ToStdString(combo1_->currentText())};
}

void FrmTabela::CopyTable() {
  const std::string text = tools::TablePublisher::BuildTableText(tool_->Table(), Head());
  if (text.empty()) {
    services_.messages->Show("Calculate table first.", "Value Table", platform::MsgIcon::Information);
    return;
  }
  PutText(ToQString(text));
}

void FrmTabela::PasteInMathPad() {
  if (services_.tools == nullptr) return;
  platform::MathPadTarget* pad = services_.tools->MathPad();
  if (pad == nullptr) return;
  pad->InsertText(tools::TablePublisher::BuildTableText(tool_->Table(), Head()) + "\r\n\r\n", "Courier New");
}

void FrmTabela::PublishTable() {
  if (publisher_ == nullptr) return;
  publisher_->Publish(tool_->Table(), Head());
}

void FrmTabela::RefreshButtons() {
  const bool rows = GridRows() != 2;
  Button("Copy")->setEnabled(rows);
  Button("HTML")->setEnabled(rows && publisher_ != nullptr);
  Button("Save")->setEnabled(rows && services_.Has(platform::ToolWindow::MathPad));
}

bool FrmTabela::eventFilter(QObject* watched, QEvent* event) {
  if (watched == toolbar_ && (event->type() == QEvent::Enter || event->type() == QEvent::MouseMove ||
                              event->type() == QEvent::HoverMove)) {
    RefreshButtons();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace velmora::tools_qt
