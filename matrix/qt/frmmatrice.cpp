#include "matrix/qt/frmmatrice.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QThread>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "matrix/qt/gridview.h"
#include "matrix/qt/linedialog.h"
#include "matrix/qt/relaymessagebox.h"
#include "platform/settingskeys.h"

namespace velmora::matrix_qt {
namespace {

using matrix::MatrixCalculator;

const QString kDefineSize = QStringLiteral("Define matrix size: 3x3, 2x5... (spaces are ignored)");

// The option buttons of the "Action" frame.
struct OperationRow {
  int operation;
  const char* name;
  const char* caption;
  const char* action;
  const char* entry2;   // the caption over the second entry box
  const char* example;  // the example beside it
  const char* done;     // the status text after the calculation
};

constexpr std::array<OperationRow, 7> kOperations = {{
    {1, "optAdd", "Add", "[S] = [A] + [B]", "Size of [B] (e.g. 3 x 3)", "Example: 2 x 2", "Matrix Addition"},
    {2, "optSubtract", "Subtract", "[S] = [A] - [B]", "Size of [B] (e.g. 3 x 3)", "Example: 2 x 2",
     "Matrix Subtraction"},
    {3, "optMultiply", "Multiply", "[S] = [A] * [B]", "Size of [B] (e.g. 3 x 3)", "Example: 2 x 3",
     "Matrix Multiplication"},
    {4, "optScalarMult", "Scalar Product", "[S] = r * [M]", "Value of scalar r:", "Example: 10 + j20",
     "Scalar Multiplication"},
    {5, "optScalarDiv", "Scalar Quotient", "[S] = 1/r * [M]", "Value of scalar r:", "Example: 10 + j20",
     "Scalar Division"},
    {6, "optDetInv", "Determinant - Inverse", "Det[A] and Inv[A]", "Disabled", "",
     "Matrix determinant and inverse"},
    {7, "optSolutionSet", "Solution Set", "[S] = [I] * [A]", "Size of [B] (e.g. 3 x 3)", "",
     "System of linear equations"},
}};

// The buttons of Toolbar1 by index, with the two texts they put in the
// status bar. Indices not listed are separators.
struct ButtonRow {
  int index;
  const char* text;
  const char* tip;
  const char* panel1;
  const char* panel2;
};

constexpr std::array<ButtonRow, 21> kButtons = {{
    {1, "New", "New", "", ""},
    {2, "A+B", "Addition", "Matrixes [A] and [B] must be the same size", "Matrix Addition"},
    {3, "A-B", "Subtraction", "Matrixes [A] and [B] must be the same size", "Matrix Subtraction"},
    {4, "AxB", "Multiplication", "Matrix [A] columns = matrix [B] rows", "Matrix Multiplication"},
    {5, "r*A", "Scalar multiplication", "Scalar Multiplication of  matrix [A]",
     "Define size of matrix [A] (m x n) and scalar ( r )"},
    {6, "A/r", "Scalar division", "Scalar Division of  matrix [A]",
     "Define size of matrix [A] (m x n) and scalar ( r )"},
    {7, "Inv", "Inverse and determinant", "Inverse and determinant of matrix [A]: must be a square matrix",
     "Define size of matrix [A]: n x n"},
    {8, "Solve", "Solution set", "Solution set for system of linear eqations",
     "Define size of matrix [A]: n x n ( size [B] = n x 1)"},
    {11, "=", "Calculate", "", ""},
    {12, "Trans", "Transpose", "Transpose matrix", ""},
    {13, "Adj", "Adjoint", "Adjoint matrix", ""},
    {14, "I", "Identity", "Identity matrix", ""},
    {16, "Rows", "Swap rows", "Swap rows", ""},
    {17, "Cols", "Swap columns", "Swap columns", ""},
    {18, "Line", "Multiply and submit lines", "", ""},
    {19, "Open", "Open matrix", "", ""},
    {20, "Save", "Save matrix", "", ""},
    {21, "HTML", "Publish as HTML", "", ""},
    {23, "Copy", "Copy matrix", "Matrix copied", ""},
    {24, "Paste", "Paste matrix", "Matrix pasted", ""},
    {10, "", "", "", ""},
}};

const char* const kTabCaptions[] = {"Matrix [A]", "Matrix [B]", "Solution [S]",
                                    "Matrix Inverse and Determinant [A]", "[T]"};

}  // namespace

FrmMatrice::FrmMatrice(QWidget* owner, FrmMatriceServices services)
    : QMainWindow(owner),
      services_(std::move(services)),
      relay_(std::make_unique<RelayMessageBox>(*services_.messages)),
      calc_(*relay_) {
  setAttribute(Qt::WA_DeleteOnClose);
  setObjectName(QStringLiteral("frmMatrice"));
  setWindowTitle(QStringLiteral("Matrix Calculator"));
  if (services_.lines == nullptr) {
    ownLines_ = std::make_unique<QtLineDialogs>(this);
    services_.lines = ownLines_.get();
  }
  BuildWindow();
  SelectOperation(matrix::kAdd);
  SetStatus(kDefineSize, QStringLiteral("Matrix Addition: matrixes [A] and [B] must be the same size"));
  RegisterTypeOnce();
  resize(900, 560);
}

FrmMatrice::~FrmMatrice() {
  // A calculation still running finishes on its own copy; the window waits
  // for it so the thread never outlives its owner.
  for (QThread* thread : findChildren<QThread*>()) thread->wait();
}

void FrmMatrice::BuildWindow() {
  BuildMenus();
  BuildToolbar();
  auto* central = new QWidget(this);
  auto* layout = new QHBoxLayout(central);
  panel_ = BuildPanel();
  layout->addWidget(panel_);
  auto* right = new QVBoxLayout;
  tabs_ = new QTabWidget(central);
  tabs_->setObjectName(QStringLiteral("SSTab1"));
  matrix::Grid* grids[] = {&calc_.grdGrid1, &calc_.grdGrid2, &calc_.grdSolution, &calc_.grdInverse,
                           &calc_.grdSwap};
  const char* names[] = {"grdGrid1", "grdGrid2", "grdSolution", "grdInverse", "grdSwap"};
  const char* labels[] = {"lblGrid1", "lblGrid2", "lblSolution", "lblInverse", "lblStatus"};
  for (int t = 0; t < 5; ++t) {
    auto* page = new QWidget(tabs_);
    auto* pageLayout = new QVBoxLayout(page);
    auto* label = new QLabel(QString::fromUtf8(kTabCaptions[t]), page);
    label->setObjectName(QString::fromUtf8(labels[t]));
    pageLayout->addWidget(label);
    auto* view = new GridView(*grids[t], t <= MatrixCalculator::kTabB, page);
    view->setObjectName(QString::fromUtf8(names[t]));
    views_[static_cast<std::size_t>(t)] = view;
    pageLayout->addWidget(view, 1);
    if (t == MatrixCalculator::kTabInverse) {
      auto* det = new QHBoxLayout;
      det->addWidget(new QLabel(QStringLiteral("Det |A| ="), page));
      txtDet_ = new QLineEdit(page);
      txtDet_->setObjectName(QStringLiteral("txtDet"));
      txtDet_->setReadOnly(true);
      det->addWidget(txtDet_, 1);
      pageLayout->addLayout(det);
    }
    if (t <= MatrixCalculator::kTabB) {
      const QString which = t == 0 ? QStringLiteral("[A]") : QStringLiteral("[B]");
      connect(view, &GridView::CellEntered, this, [this, which] {
        SetStatus(QStringLiteral("Matrix ") + which +
                  QStringLiteral(": complex numbers must be in a form A+jB"));
      });
    }
    tabs_->addTab(page, QString::fromUtf8(kTabCaptions[t]));
  }
  right->addWidget(tabs_, 1);
  auto* eq = new QHBoxLayout;
  lblEq_ = new QLabel(this);
  lblEq_->setObjectName(QStringLiteral("lblEq"));
  txtEq_ = new QLineEdit(this);
  txtEq_->setObjectName(QStringLiteral("txtEq"));
  txtEq_->setReadOnly(true);
  eq->addWidget(lblEq_);
  eq->addWidget(txtEq_, 1);
  right->addLayout(eq);
  layout->addLayout(right, 1);
  setCentralWidget(central);

  auto* bar = new QStatusBar(this);
  bar->setObjectName(QStringLiteral("STB1"));
  status1_ = new QLabel(bar);
  status2_ = new QLabel(bar);
  bar->addWidget(status1_, 3);
  bar->addWidget(status2_, 2);
  setStatusBar(bar);
  RefreshGrids();
}

QWidget* FrmMatrice::BuildPanel() {
  auto* panel = new QWidget(this);
  auto* layout = new QVBoxLayout(panel);
  auto* action = new QGroupBox(QStringLiteral("Action"), panel);
  action->setObjectName(QStringLiteral("fraAction"));
  auto* actionLayout = new QVBoxLayout(action);
  for (const OperationRow& row : kOperations) {
    auto* option = new QRadioButton(QString::fromUtf8(row.caption), action);
    option->setObjectName(QString::fromUtf8(row.name));
    options_[row.operation] = option;
    actionLayout->addWidget(option);
    const int operation = row.operation;
    connect(option, &QRadioButton::clicked, this, [this, operation] { SelectOperation(operation); });
  }
  lblAction_ = new QLabel(action);
  lblAction_->setObjectName(QStringLiteral("lblAction"));
  actionLayout->addWidget(lblAction_);
  lblEntry1_ = new QLabel(QStringLiteral("Size of [A] (e.g. 3 x 3)"), action);
  lblEntry1_->setObjectName(QStringLiteral("lblEntry1"));
  actionLayout->addWidget(lblEntry1_);
  txtEntry1_ = new QLineEdit(action);
  txtEntry1_->setObjectName(QStringLiteral("txtEntry1"));
  actionLayout->addWidget(txtEntry1_);
  lblEntry2_ = new QLabel(action);
  lblEntry2_->setObjectName(QStringLiteral("lblEntry2"));
  actionLayout->addWidget(lblEntry2_);
  txtEntry2_ = new QLineEdit(action);
  txtEntry2_->setObjectName(QStringLiteral("txtEntry2"));
  actionLayout->addWidget(txtEntry2_);
  lblExample_ = new QLabel(action);
  lblExample_->setObjectName(QStringLiteral("lblExample"));
  actionLayout->addWidget(lblExample_);
  cmdGo_ = new QPushButton(QStringLiteral("&Continue"), action);
  cmdGo_->setObjectName(QStringLiteral("cmdGo"));
  actionLayout->addWidget(cmdGo_);
  layout->addWidget(action);
  connect(cmdGo_, &QPushButton::clicked, this, &FrmMatrice::Continue);
  connect(txtEntry1_, &QLineEdit::returnPressed, this, &FrmMatrice::Continue);
  connect(txtEntry2_, &QLineEdit::returnPressed, this, &FrmMatrice::Continue);
  connect(txtEntry1_, &QLineEdit::textEdited, this, [this] {
    SetStatus(calc_.Operation == matrix::kAdd || calc_.Operation == matrix::kSubtract
                  ? QStringLiteral("Matrix [A] and matrix [B] must have the same size")
                  : QStringLiteral("Define matrix [A] size (3x3, 2x5...)"));
  });

  auto* options = new QGroupBox(QStringLiteral("Options"), panel);
  options->setObjectName(QStringLiteral("fraOptions"));
  auto* optionsLayout = new QVBoxLayout(options);
  chRis_ = new QCheckBox(QStringLiteral("Auto &resize cells"), options);
  chRis_->setObjectName(QStringLiteral("chRis"));
  chkApply_ = new QCheckBox(QStringLiteral("&Apply swap and transpose"), options);
  chkApply_->setObjectName(QStringLiteral("chkApply"));
  chNule_ = new QCheckBox(QStringLiteral("Add &zeros in empty cells"), options);
  chNule_->setObjectName(QStringLiteral("chNule"));
  optionsLayout->addWidget(chRis_);
  optionsLayout->addWidget(chkApply_);
  optionsLayout->addWidget(chNule_);
  auto* precision = new QHBoxLayout;
  auto* lblPrecision = new QLabel(QStringLiteral("Accuracy (1-15):"), options);
  lblPrecision->setObjectName(QStringLiteral("lblPrecision"));
  txtPrecision_ = new QLineEdit(QStringLiteral("3"), options);
  txtPrecision_->setObjectName(QStringLiteral("txtPrecision"));
  txtPrecision_->setMaximumWidth(60);
  precision->addWidget(lblPrecision);
  precision->addWidget(txtPrecision_);
  optionsLayout->addLayout(precision);
  layout->addWidget(options);
  layout->addStretch(1);
  connect(chRis_, &QCheckBox::toggled, this, [this](bool on) {
    for (GridView* view : views_) view->SetAutoResize(on);
  });
  connect(chNule_, &QCheckBox::toggled, this, [this](bool on) { calc_.chNule = on; });
  connect(txtPrecision_, &QLineEdit::textEdited, this, &FrmMatrice::PrecisionEdited);
  for (QLineEdit* box : {txtEntry1_, txtEntry2_, txtPrecision_}) box->installEventFilter(this);
  panel->setMaximumWidth(280);
  return panel;
}

bool FrmMatrice::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    if (watched == txtPrecision_) {
      SetStatus(QStringLiteral("Define matrix calculation precision (up to 15 decimal places)"));
    } else if (watched == txtEntry1_ || watched == txtEntry2_) {
      SetStatus(kDefineSize);
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

void FrmMatrice::PrecisionEdited() {
  std::string text = txtPrecision_->text().toStdString();
  if (matrix::CheckPrecisionText(text, *relay_)) txtPrecision_->setText(QString::fromStdString(text));
  calc_.txtPrecision = txtPrecision_->text().toStdString();
}

void FrmMatrice::BuildMenus() {
  auto add = [this](QMenu* menu, const char* name, const char* caption, void (FrmMatrice::*slot)()) {
    QAction* action = menu->addAction(QString::fromUtf8(caption));
    action->setObjectName(QString::fromUtf8(name));
    connect(action, &QAction::triggered, this, slot);
    return action;
  };
  QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
  file->setObjectName(QStringLiteral("mnuf"));
  add(file, "mnuNew", "&New", &FrmMatrice::NewMatrices);
  add(file, "mnuOpen", "&Open Matrix...", &FrmMatrice::OpenMatrix);
  add(file, "mnuSave", "&Save Matrix As...", &FrmMatrice::SaveMatrix);
  add(file, "mnuHtml", "&Publish as HTML...", &FrmMatrice::PublishHtml);
  mnuMathPad_ = add(file, "mnuMathPad", "&Edit matrix in MathPad...", &FrmMatrice::EditInMathPad);
  file->addSeparator();
  QAction* close = file->addAction(QStringLiteral("&Close"));
  close->setObjectName(QStringLiteral("mnuClose"));
  connect(close, &QAction::triggered, this, &QWidget::close);
  // MathPad may come and go: the entry is checked each time the menu opens.
  connect(file, &QMenu::aboutToShow, this, [this] {
    mnuMathPad_->setEnabled(services_.tools != nullptr &&
                            services_.tools->Has(platform::ToolWindow::MathPad));
  });
  mnuMathPad_->setEnabled(services_.tools != nullptr && services_.tools->Has(platform::ToolWindow::MathPad));

  QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edit"));
  edit->setObjectName(QStringLiteral("mnued"));
  add(edit, "mnuCopy", "&Copy Matrix", &FrmMatrice::CopyMatrix);
  add(edit, "mnuPaste", "&Paste Matrix", &FrmMatrice::PasteMatrix);
  add(edit, "mnuCut", "C&ut Matrix", &FrmMatrice::CutMatrix);
  add(edit, "mnuClear", "Cl&ear Matrix", &FrmMatrice::ClearMatrix);
  add(edit, "mnuClearAll", "Clear &All", &FrmMatrice::ClearAll);
  edit->addSeparator();
  connect(edit->addAction(QStringLiteral("Delete &Row...")), &QAction::triggered, this,
          [this] { DeleteLine(false); });
  connect(edit->addAction(QStringLiteral("Delete &Column...")), &QAction::triggered, this,
          [this] { DeleteLine(true); });
  edit->actions().at(edit->actions().size() - 2)->setObjectName(QStringLiteral("mnuDeleteRow"));
  edit->actions().back()->setObjectName(QStringLiteral("mnuDeleteColumn"));

  QMenu* tools = menuBar()->addMenu(QStringLiteral("&Tools"));
  tools->setObjectName(QStringLiteral("mnut"));
  QAction* swapRows = tools->addAction(QStringLiteral("Swap &Rows..."));
  swapRows->setObjectName(QStringLiteral("mnuSwapRows"));
  connect(swapRows, &QAction::triggered, this, [this] { SwapLines(false); });
  QAction* swapCols = tools->addAction(QStringLiteral("Swap &Columns..."));
  swapCols->setObjectName(QStringLiteral("mnuSwapColumns"));
  connect(swapCols, &QAction::triggered, this, [this] { SwapLines(true); });
  QMenu* swap = tools->addMenu(QStringLiteral("Swap &Matrixes"));
  swap->setObjectName(QStringLiteral("mnusw"));
  const std::pair<int, int> pairs[] = {{0, 1}, {0, 2}, {0, 3}, {0, 4}, {1, 2}, {1, 3}, {1, 4}};
  const char* swapCaptions[] = {"[A] <->  [B]", "[A] <->  [S]",   "[A] <->  [ I ]", "[A] <->  [T]",
                                "[B] <->  [S]", "[B] <->  [ I ]", "[B] <->  [T]"};
  for (std::size_t i = 0; i < std::size(pairs); ++i) {
    const auto pair = pairs[i];
    connect(swap->addAction(QString::fromUtf8(swapCaptions[i])), &QAction::triggered, this,
            [this, pair] { SwapMatrixes(pair.first, pair.second); });
  }
  tools->addSeparator();
  add(tools, "mnuTranspose", "&Transpose Matrix", &FrmMatrice::Transpose);
  add(tools, "mnuAdjoint", "A&djoint Matrix", &FrmMatrice::Adjoint);
  add(tools, "mnuIdentity", "Set &Identity Matrix", &FrmMatrice::Identity);
  add(tools, "mnuTrace", "&Trace Matrix...", &FrmMatrice::Trace);
  add(tools, "mnuEquation", "Characteristic &Equation", &FrmMatrice::CharacteristicEquation);
  QMenu* multiply = tools->addMenu(QStringLiteral("M&ultiply"));
  multiply->setObjectName(QStringLiteral("mnut1"));
  connect(multiply->addAction(QStringLiteral("Column...")), &QAction::triggered, this,
          [this] { MultiplyLine(true); });
  connect(multiply->addAction(QStringLiteral("&Row...")), &QAction::triggered, this,
          [this] { MultiplyLine(false); });
  QMenu* submit = tools->addMenu(QStringLiteral("Submit"));
  submit->setObjectName(QStringLiteral("mnut2"));
  connect(submit->addAction(QStringLiteral("Column")), &QAction::triggered, this,
          [this] { SubmitLine(true); });
  connect(submit->addAction(QStringLiteral("Row")), &QAction::triggered, this, [this] { SubmitLine(false); });
}

void FrmMatrice::BuildToolbar() {
  QToolBar* bar = addToolBar(QStringLiteral("Toolbar1"));
  bar->setObjectName(QStringLiteral("Toolbar1"));
  bar->setMovable(false);
  for (int index = 1; index <= 24; ++index) {
    const ButtonRow* row = nullptr;
    for (const ButtonRow& b : kButtons)
      if (b.index == index && b.text[0] != '\0') row = &b;
    if (row == nullptr) {
      if (index == 9 || index == 15 || index == 22) bar->addSeparator();
      continue;
    }
    QAction* action = bar->addAction(QString::fromUtf8(row->text));
    action->setToolTip(QString::fromUtf8(row->tip));
    action->setObjectName(QStringLiteral("Button%1").arg(index));
    buttons_[index] = action;
    connect(action, &QAction::triggered, this, [this, index] { ToolbarClicked(index); });
  }
  // The drop-down items: the operations on the grid contents as they stand,
  // and the line commands.
  const std::pair<int, const char*> enter[] = {{2, "1a"}, {3, "2a"}, {4, "3a"},
                                               {5, "4a"}, {7, "6a"}, {8, "7a"}};
  for (const auto& [index, key] : enter) {
    auto* menu = new QMenu(this);
    QAction* item = menu->addAction(QStringLiteral("Enter values"));
    item->setObjectName(QString::fromUtf8(key));
    const int operation = index - 1;
    connect(item, &QAction::triggered, this, [this, operation] { EnterValues(operation); });
    buttons_[index]->setMenu(menu);
    if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(buttons_[index])))
      button->setPopupMode(QToolButton::MenuButtonPopup);
  }
  auto* lines = new QMenu(this);
  const std::pair<const char*, const char*> lineItems[] = {{"MnC", "Multiply Column"},
                                                           {"MnRo", "Multiply Row"},
                                                           {"SubC", "Submit Column"},
                                                           {"SubRo", "Submit Row"}};
  for (int i = 0; i < 4; ++i) {
    QAction* item = lines->addAction(QString::fromUtf8(lineItems[i].second));
    item->setObjectName(QString::fromUtf8(lineItems[i].first));
    connect(item, &QAction::triggered, this, [this, i] {
      if (i < 2) {
        MultiplyLine(i == 0);
      } else {
        SubmitLine(i == 2);
      }
    });
  }
  buttons_[18]->setMenu(lines);
  if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(buttons_[18])))
    button->setPopupMode(QToolButton::InstantPopup);
  buttons_[11]->setEnabled(false);
}

QAction* FrmMatrice::ToolbarButton(int index) const {
  const auto it = buttons_.find(index);
  return it == buttons_.end() ? nullptr : it->second;
}

void FrmMatrice::ToolbarClicked(int index) {
  for (const ButtonRow& row : kButtons) {
    if (row.index == index && row.panel1[0] != '\0') {
      SetStatus(QString::fromUtf8(row.panel1), QString::fromUtf8(row.panel2));
    }
  }
  if (index >= 2 && index <= 8) {
    SelectOperation(index - 1);
    if (index >= 5) txtEntry2_->clear();
    SetStatus(QString::fromUtf8(kButtons[static_cast<std::size_t>(index - 1)].panel1),
              QString::fromUtf8(kButtons[static_cast<std::size_t>(index - 1)].panel2));
    return;
  }
  switch (index) {
    case 1: NewMatrices(); break;
    case 11: Calculate(); break;
    case 12: Transpose(); break;
    case 13: Adjoint(); break;
    case 14: Identity(); break;
    case 16: SwapLines(false); break;
    case 17: SwapLines(true); break;
    case 19: OpenMatrix(); break;
    case 20: SaveMatrix(); break;
    case 21: PublishHtml(); break;
    case 23: CopyMatrix(); break;
    case 24: PasteMatrix(); break;
    default: break;
  }
}

void FrmMatrice::SetStatus(const QString& panel1, const QString& panel2) {
  status1_->setText(panel1);
  status2_->setText(panel2);
}

QString FrmMatrice::StatusText(int panel) const { return panel == 1 ? status1_->text() : status2_->text(); }

void FrmMatrice::SelectOperation(int operation) {
  const OperationRow& row = kOperations[static_cast<std::size_t>(operation - 1)];
  calc_.Operation = static_cast<std::int16_t>(operation);
  options_[operation]->setChecked(true);
  lblAction_->setText(QString::fromUtf8(row.action));
  lblEntry2_->setText(QString::fromUtf8(row.entry2));
  lblExample_->setText(QString::fromUtf8(row.example));
  txtEntry2_->setEnabled(operation != matrix::kDeterminantInverse);
}

void FrmMatrice::RefreshGrids() {
  for (GridView* view : views_) view->Refresh();
  txtDet_->setText(QString::fromStdString(calc_.txtDet));
  txtEq_->setText(QString::fromStdString(calc_.txtEq));
  lblEq_->setText(calc_.txtEq.empty() ? QString() : QStringLiteral("Characteristic equation:"));
  // The equation's line stands only while there is an equation to show.
  lblEq_->setVisible(!calc_.txtEq.empty());
  txtEq_->setVisible(!calc_.txtEq.empty());
  tabs_->setTabText(MatrixCalculator::kTabSwap, calc_.SwapCaption.empty()
                                                    ? QString::fromUtf8(kTabCaptions[4])
                                                    : QString::fromStdString(calc_.SwapCaption));
}

void FrmMatrice::Continue() {
  if (busy_) return;
  calc_.txtPrecision = txtPrecision_->text().toStdString();
  const auto focus = calc_.Continue(txtEntry1_->text().toStdString(), txtEntry2_->text().toStdString());
  if (calc_.Operation == matrix::kScalarMultiply || calc_.Operation == matrix::kScalarDivide)
    txtEntry2_->setText(QString::fromStdString(calc_.txtEntry2));
  switch (focus) {
    case MatrixCalculator::ContinueFocus::Entry1:
      if (calc_.Routines.ErrCode != 0) SetStatus(kDefineSize);
      txtEntry1_->setFocus();
      return;
    case MatrixCalculator::ContinueFocus::Entry2: txtEntry2_->setFocus(); return;
    case MatrixCalculator::ContinueFocus::None: break;
  }
  RefreshGrids();
  buttons_[11]->setEnabled(true);
  tabs_->setCurrentIndex(MatrixCalculator::kTabA);
  views_[0]->setFocus();
}

void FrmMatrice::EnterValues(int operation) {
  if (busy_) return;
  SelectOperation(operation);
  calc_.txtPrecision = txtPrecision_->text().toStdString();
  calc_.txtEntry2 = txtEntry2_->text().toStdString();
  if (!calc_.EnterValues()) return;
  const bool both = operation == matrix::kAdd || operation == matrix::kSubtract ||
                    operation == matrix::kMultiply || operation == matrix::kSolutionSet;
  SetStatus(both ? QStringLiteral("Enter values for matrix [A] and [B]")
                 : QStringLiteral("Enter values for matrix [A]"));
  buttons_[11]->setEnabled(true);
}

void FrmMatrice::Calculate() {
  if (busy_) return;
  calc_.txtPrecision = txtPrecision_->text().toStdString();
  calc_.Context.Precision = matrix::PrecisionAtGo(calc_.txtPrecision);
  calc_.chNule = chNule_->isChecked();
  calc_.txtEntry2 = txtEntry2_->text().toStdString();
  // The sizes are those of the grids as they stand: a file opened, a paste
  // or a deleted row since "&Continue" all count.
  if (!calc_.EnterValues()) return;
  const int operation = calc_.Operation;
  RunInBackground(
      [](MatrixCalculator& c) { return c.Go2(); },
      [this, operation](bool ok) {
        const bool inverse = operation == matrix::kDeterminantInverse;
        if (ok || inverse || operation == matrix::kSolutionSet) {
          tabs_->setCurrentIndex(inverse ? MatrixCalculator::kTabInverse : MatrixCalculator::kTabSolution);
        }
        if (ok) {
          SetStatus(status1_->text(),
                    QString::fromUtf8(kOperations[static_cast<std::size_t>(operation - 1)].done));
        }
      });
}

void FrmMatrice::RunInBackground(std::function<bool(MatrixCalculator&)> step,
                                 std::function<void(bool)> after) {
  busy_ = true;
  panel_->setEnabled(false);
  menuBar()->setEnabled(false);
  // The buttons come back as they were: go stays disabled until sizes are taken.
  auto enabled = std::make_shared<std::map<int, bool>>();
  for (auto& [index, button] : buttons_) {
    (*enabled)[index] = button->isEnabled();
    button->setEnabled(false);
  }
  for (GridView* view : views_) view->setEnabled(false);
  relay_->Hold();
  // The worker computes on a copy; the window keeps showing (and painting)
  // its own state until the copy's results are taken over.
  auto work = std::make_shared<MatrixCalculator>(calc_);
  auto ok = std::make_shared<bool>(false);
  QThread* thread = QThread::create([work, ok, step] { *ok = step(*work); });
  thread->setParent(this);
  connect(thread, &QThread::finished, this, [this, thread, work, ok, after, enabled] {
    TakeResults(*work);
    busy_ = false;
    panel_->setEnabled(true);
    menuBar()->setEnabled(true);
    for (auto& [index, button] : buttons_) button->setEnabled((*enabled)[index]);
    for (GridView* view : views_) view->setEnabled(true);
    RefreshGrids();
    relay_->Release();
    after(*ok);
    thread->deleteLater();
    emit CalculationFinished(*ok);
  });
  thread->start();
}

void FrmMatrice::TakeResults(const MatrixCalculator& done) {
  calc_.Context.Precision = done.Context.Precision;
  calc_.Context.SingularFlag = done.Context.SingularFlag;
  calc_.Routines.ReadFailed = done.Routines.ReadFailed;
  calc_.Routines.ErrCode = done.Routines.ErrCode;
  calc_.Routines.ErrName = done.Routines.ErrName;
  calc_.Routines.ErrText = done.Routines.ErrText;
  calc_.MatrixA = done.MatrixA;
  calc_.MatrixB = done.MatrixB;
  calc_.MatrixS = done.MatrixS;
  calc_.MatrixI = done.MatrixI;
  calc_.Scalar = done.Scalar;
  calc_.grdGrid1 = done.grdGrid1;
  calc_.grdGrid2 = done.grdGrid2;
  calc_.grdSolution = done.grdSolution;
  calc_.grdInverse = done.grdInverse;
  calc_.grdSwap = done.grdSwap;
  calc_.grdCopy = done.grdCopy;
  calc_.txtDet = done.txtDet;
  calc_.txtEq = done.txtEq;
  calc_.SwapCaption = done.SwapCaption;
}

void FrmMatrice::NewMatrices() {
  if (busy_) return;
  txtEntry1_->clear();
  txtEntry2_->clear();
  for (matrix::Grid* grid :
       {&calc_.grdGrid1, &calc_.grdGrid2, &calc_.grdSolution, &calc_.grdInverse, &calc_.grdSwap}) {
    grid->Clear();
    grid->SetRows(2);
    grid->SetCols(2);
  }
  calc_.txtDet.clear();
  calc_.txtEq.clear();
  RefreshGrids();
  buttons_[11]->setEnabled(false);
  SetStatus(kDefineSize);
}

void FrmMatrice::RegisterTypeOnce() {
  if (services_.settings == nullptr || !services_.registerFileType) return;
  namespace keys = platform::keys;
  if (platform::GetRegValue(*services_.settings, keys::kMat, keys::mat::kFajl, "False") != "False") return;
  if (services_.registerFileType())
    platform::SetRegValue(*services_.settings, keys::kMat, keys::mat::kFajl, "True");
}

void FrmMatrice::closeEvent(QCloseEvent* event) {
  // The calculation in progress ends first; its results have a window to go to.
  if (busy_) {
    event->ignore();
    return;
  }
  QMainWindow::closeEvent(event);
}

}  // namespace velmora::matrix_qt
