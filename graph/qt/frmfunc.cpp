#include "graph/qt/frmfunc.h"

#include <chrono>
#include <functional>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QImageWriter>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "graph/functionnames.h"
#include "graph/graphwindow.h"
#include "graph/mousereadout.h"
#include "graph/qt/frmgridopt.h"
#include "graph/qt/pdrawview.h"
#include "graph/qt/qimagesurface.h"
#include "graph/viewresize.h"
#include "graph/windowcommands.h"
#include "platform/qt/qtsavefile.h"
#include "platform/qt/qtstring.h"

namespace velmora::graph_qt {
namespace {

// The screen rate of the picture during a draw.
constexpr std::int64_t kScreenIntervalMs = 16;
// How long a size must stay before the window is painted at it again.
constexpr int kSettleMs = 150;
constexpr int kStartWidth = 600;
constexpr int kStartHeight = 400;
constexpr graph::Colour kLabelGrey = 0xDFDFDF;

std::int64_t SteadyClockMs() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

// The shared text converters under the short names this file uses throughout.
constexpr auto& Q = qtplatform::ToQString;
constexpr auto& S = qtplatform::ToStdString;

// A label that reports a click (lblPerCent: click to stop).
class ClickLabel final : public QLabel {
 public:
  using QLabel::QLabel;
  std::function<void()> clicked;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (clicked) clicked();
    QLabel::mousePressEvent(event);
  }
};

void SetBack(QLabel* label, graph::Colour colour) {
  label->setAutoFillBackground(true);
  QPalette palette = label->palette();
  palette.setColor(QPalette::Window, ToQColor(colour));
  label->setPalette(palette);
}

QComboBox* MakeFunctionBox(const QString& name, QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setObjectName(name);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setCompleter(nullptr);  // the list is history, not a completion source
  box->setMinimumContentsLength(24);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  return box;
}

}  // namespace

FrmFunc::FrmFunc(FrmFuncServices services, QWidget* parent)
    : QWidget(parent),
      services_(services),
      surface_(std::make_unique<QImageSurface>(kStartWidth, kStartHeight)) {
  if (!services_.clockMs) services_.clockMs = SteadyClockMs;
  // The picture is drawn at the screen's pixel density (crisp at 200%),
  // before anything is drawn on it.
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    surface_->SetDevicePixelRatio(screen->devicePixelRatio());
  }
  setObjectName(QStringLiteral("frmFunc"));
  BuildWidgets();
  graph::GraphServices logicServices =
      graph::StandardServices(*services_.settings, *services_.messages, *services_.input);
  logicServices.history = services_.history;
  logicServices.recent = services_.recent;
  logicServices.activeWindow = services_.activeWindow;
  logicServices.host = this;
  logic_ = std::make_unique<graph::GraphWindow>(*surface_, std::move(logicServices));
  readout_ = std::make_unique<graph::MouseReadout>(*logic_);
  commands_ = std::make_unique<graph::WindowCommands>(*logic_, *services_.settings, *services_.messages,
                                                      services_.colours, services_.files, services_.history);
  pDraw_->SetLines(&logic_->LineY(), &logic_->Line1(), &logic_->Line2());
  ConnectWidgets();
  ConnectTools();
  SyncFromLogic();
  FocusFunctionBox();
}

FrmFunc::~FrmFunc() {
  // The child widgets are destroyed after this body, by QWidget's own
  // destructor. Taking them down moves the focus out of the function box,
  // which then reports the end of its editing (activated on a text of its
  // list, a focus event): none of that may reach this window once its logic
  // is gone, so the children are cut off from it first.
  for (QObject* child : findChildren<QObject*>()) {
    child->removeEventFilter(this);
    QObject::disconnect(child, nullptr, this, nullptr);
  }
  // The logic reaches the widgets through the host until it is gone.
  commands_.reset();
  readout_.reset();
  logic_.reset();
}

graph::GraphWindow& FrmFunc::Logic() { return *logic_; }
const graph::GraphWindow& FrmFunc::Logic() const { return *logic_; }
QImageSurface& FrmFunc::Picture() { return *surface_; }

QRadioButton* FrmFunc::optFunkcije(int index) const {
  if (index < 1 || index > 3) return nullptr;
  return types_[index - 1];
}

// ---- Widgets ---------------------------------------------------------------------

void FrmFunc::BuildWidgets() {
  auto* top = new QGridLayout;
  labY_ = new QLabel(this);
  labY_->setObjectName(QStringLiteral("labY"));
  txtY_ = MakeFunctionBox(QStringLiteral("txtY"), this);
  labY_->setBuddy(txtY_);
  LABx_ = new QLabel(this);
  LABx_->setObjectName(QStringLiteral("LABx"));
  txtX_ = MakeFunctionBox(QStringLiteral("txtX"), this);
  LABx_->setBuddy(txtX_);
  top->addWidget(labY_, 0, 0);
  top->addWidget(txtY_, 0, 1);
  top->addWidget(LABx_, 1, 0);
  top->addWidget(txtX_, 1, 1);
  auto* typeRow = new QHBoxLayout;
  const char* typeCaptions[] = {"&Cartesian", "&Parametric", "P&olar"};
  for (int i = 0; i < 3; ++i) {
    types_[i] = new QRadioButton(QString::fromUtf8(typeCaptions[i]), this);
    types_[i]->setObjectName(QStringLiteral("optFunkcije%1").arg(i + 1));
    typeRow->addWidget(types_[i]);
  }
  C1_ = new QComboBox(this);
  C1_->setObjectName(QStringLiteral("C1"));
  C1_->setToolTip(tr("Insert a function name"));
  for (const auto name : graph::FunctionNames())
    C1_->addItem(QString::fromUtf8(name.data(), static_cast<int>(name.size())));
  typeRow->addStretch(1);
  typeRow->addWidget(C1_);
  top->addLayout(typeRow, 0, 2, 2, 1);
  top->setColumnStretch(1, 1);

  // The fraction keypad's fields, which the evaluator reads; the keypad
  // itself is not on this window yet, so they stay hidden.
  txtImenilac_ = new QLineEdit(this);
  txtImenilac_->setObjectName(QStringLiteral("txtImenilac"));
  txtY2_ = new QLineEdit(this);
  txtY2_->setObjectName(QStringLiteral("txtY2"));
  txtY3_ = new QLineEdit(this);
  txtY3_->setObjectName(QStringLiteral("txtY3"));
  lblY3_ = new QLabel(this);
  lblY3_->setObjectName(QStringLiteral("lblY3"));
  for (QWidget* hidden : std::initializer_list<QWidget*>{txtImenilac_, txtY2_, txtY3_, lblY3_})
    hidden->hide();

  pDraw_ = new PDrawView(*surface_, this);

  auto* side = new QVBoxLayout;
  auto* historyTitle = new QLabel(QStringLiteral("Functions History:"), this);
  rtb_ = new QPlainTextEdit(this);
  rtb_->setObjectName(QStringLiteral("rtb"));
  rtb_->setReadOnly(true);
  rtb_->setLineWrapMode(QPlainTextEdit::NoWrap);
  lblPointtab_ = new QLabel(this);
  lblPointtab_->setObjectName(QStringLiteral("lblPointtab"));
  MS1_ = new QTableWidget(this);
  MS1_->setObjectName(QStringLiteral("MS1"));
  MS1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  MS1_->verticalHeader()->hide();
  MS1_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  side->addWidget(historyTitle);
  side->addWidget(rtb_, 1);
  side->addWidget(lblPointtab_);
  side->addWidget(MS1_, 1);
  auto* sideWidget = new QWidget(this);
  sideWidget->setLayout(side);
  sideWidget->setFixedWidth(230);
  side->setContentsMargins(0, 0, 0, 0);

  auto* middle = new QHBoxLayout;
  middle->addWidget(pDraw_, 1);
  middle->addWidget(sideWidget);

  auto* bottom = new QHBoxLayout;
  auto* percent = new ClickLabel(this);
  percent->clicked = [this] { Stop(); };
  lblPerCent_ = percent;
  lblPerCent_->setObjectName(QStringLiteral("lblPerCent"));
  lblPerCent_->setToolTip(QStringLiteral("Click to stop drawing"));
  lblPerCent_->setFixedWidth(lblPerCent_->fontMetrics().horizontalAdvance(QStringLiteral("Done...   100 %")) +
                             16);
  SetBack(lblPerCent_, kLabelGrey);
  QSizePolicy keepPlace = lblPerCent_->sizePolicy();
  keepPlace.setRetainSizeWhenHidden(true);
  lblPerCent_->setSizePolicy(keepPlace);
  LblChart_ = new QLabel(this);
  LblChart_->setObjectName(QStringLiteral("LblChart"));
  SetBack(LblChart_, kLabelGrey);
  LblChart_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  bottom->addWidget(lblPerCent_);
  bottom->addWidget(LblChart_, 1);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addLayout(middle, 1);
  layout->addLayout(bottom);

  settle_ = new QTimer(this);
  settle_->setSingleShot(true);
  settle_->setInterval(kSettleMs);
}

void FrmFunc::ConnectWidgets() {
  txtY_->lineEdit()->installEventFilter(this);
  txtX_->lineEdit()->installEventFilter(this);
  txtY_->installEventFilter(this);
  txtX_->installEventFilter(this);
  // Typing goes to the logic at once; during a draw the boxes are read-only.
  connect(txtY_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
    if (!syncing_ && !logic_->State().Drawing()) logic_->SettxtY(S(text));
  });
  connect(txtX_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
    if (!syncing_ && !logic_->State().Drawing()) logic_->SettxtX(S(text));
  });
  // Only a choice made in the open list is the list's click. The editable
  // box also reports `activated` when editing ends (the focus leaving for
  // another window, a menu opening) on a text that matches a list entry;
  // that must never draw. The choice is seen on the list itself, before the
  // box closes it and reports it.
  txtY_->view()->installEventFilter(this);
  txtY_->view()->viewport()->installEventFilter(this);
  connect(txtY_, &QComboBox::activated, this, &FrmFunc::ListPicked);
  connect(txtX_, &QComboBox::activated, this, [this](int index) {
    if (syncing_ || logic_->State().Drawing() || index < 0) return;
    logic_->SettxtX(S(txtX_->itemText(index)));
  });
  for (int i = 0; i < 3; ++i) {
    connect(types_[i], &QRadioButton::clicked, this, [this, i] { TypeClicked(i + 1); });
  }
  connect(C1_, &QComboBox::activated, this, &FrmFunc::FunctionNamePicked);
  connect(pDraw_, &PDrawView::MouseMoved, this, &FrmFunc::MouseMoved);
  connect(pDraw_, &PDrawView::MouseReleased, this, &FrmFunc::MouseReleased);
  connect(pDraw_, &PDrawView::EscapePressed, this, &FrmFunc::Stop);
  connect(pDraw_, &PDrawView::Resized, this, &FrmFunc::SurfaceResized);
  connect(settle_, &QTimer::timeout, this, &FrmFunc::SizeSettled);
}

bool FrmFunc::eventFilter(QObject* watched, QEvent* event) {
  if (!logic_) return QWidget::eventFilter(watched, event);
  QAbstractItemView* list = txtY_->view();
  if ((watched == list || watched == list->viewport()) && list->isVisible()) {
    // The box takes Enter for a choice already at its shortcut override.
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    const bool choice = event->type() == QEvent::MouseButtonRelease ||
                        (key && (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return ||
                                 static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter));
    if (choice) {
      // The box reports the choice while this event is handled; a release
      // or key it does not take for a choice is forgotten afterwards.
      listChoice_ = true;
      QTimer::singleShot(0, this, [this] { listChoice_ = false; });
    }
    return QWidget::eventFilter(watched, event);
  }
  const bool inY = watched == txtY_ || watched == txtY_->lineEdit();
  const bool inX = watched == txtX_ || watched == txtX_->lineEdit();
  if ((inY || inX) && event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      if (inY) {
        EnterInTxtY();
      } else {
        EnterInTxtX();
      }
      return true;
    }
    if (key->key() == Qt::Key_Escape && inY) {
      Stop();
      return true;
    }
  }
  if ((inY || inX) && event->type() == QEvent::FocusIn && !logic_->State().Drawing()) {
    // XYklik: the box with the focus is where C1 inserts.
    logic_->SetFocusBox(inY ? 'Y' : 'X');
  }
  return QWidget::eventFilter(watched, event);
}

// ---- Synchronising -------------------------------------------------------------------

void FrmFunc::SyncBox(QComboBox* box, const std::string& text, const std::vector<std::string>& list) {
  bool same = box->count() == static_cast<int>(list.size());
  for (int i = 0; same && i < box->count(); ++i)
    same = S(box->itemText(i)) == list[static_cast<std::size_t>(i)];
  if (!same) {
    box->clear();
    for (const auto& item : list) box->addItem(Q(item));
  }
  const QString wanted = Q(text);
  if (box->currentText() != wanted) box->setEditText(wanted);
}

void FrmFunc::SyncFromLogic() {
  const QSignalBlocker blockY(txtY_);
  const QSignalBlocker blockX(txtX_);
  syncing_ = true;
  graph::GraphWindow& w = *logic_;
  const graph::FunctionBoxes& boxes = w.Boxes();
  SyncBox(txtY_, boxes.txtY().Text, boxes.txtY().List);
  SyncBox(txtX_, boxes.txtX().Text, boxes.txtX().List);
  labY_->setText(Q(boxes.labY().Caption));
  LABx_->setText(Q(boxes.LABx().Caption));
  txtX_->setVisible(boxes.txtX().Visible);
  LABx_->setVisible(boxes.LABx().Visible);
  for (int i = 0; i < 3; ++i) {
    const QSignalBlocker block(types_[i]);
    types_[i]->setChecked(boxes.optFunkcije() == i + 1);
  }
  txtImenilac_->setText(Q(w.Fraction().txtImenilac));
  txtY2_->setText(Q(w.Fraction().txtY2));
  txtY3_->setText(Q(w.Fraction().txtY3));
  lblY3_->setText(Q(w.Fraction().lblY3));
  lblPointtab_->setText(Q(w.lblPointtab().Caption));
  QPalette palette = lblPointtab_->palette();
  palette.setColor(QPalette::WindowText, ToQColor(w.lblPointtab().ForeColor));
  lblPointtab_->setPalette(palette);
  LblChart_->setText(Q(w.LblChart().Caption));
  ApplyProgress();
  SyncTable();
  SyncHistory();
  txtY_->lineEdit()->setReadOnly(w.State().Drawing());
  txtX_->lineEdit()->setReadOnly(w.State().Drawing());
  syncing_ = false;
  pDraw_->update();
}

void FrmFunc::SyncTable() {
  const graph::ValueTable& table = logic_->MS1();
  const int rows = std::max(table.Rows() - 1, 0);
  const int cols = table.Cols();
  MS1_->setColumnCount(cols);
  MS1_->setRowCount(rows);
  QStringList header;
  for (int c = 0; c < cols; ++c) header << (table.Rows() > 0 ? Q(table.TextMatrix(0, c)) : QString());
  MS1_->setHorizontalHeaderLabels(header);
  for (int r = 0; r < rows; ++r) {
    for (int c = 0; c < cols; ++c) {
      const QString text = Q(table.TextMatrix(r + 1, c));
      QTableWidgetItem* item = MS1_->item(r, c);
      if (item == nullptr) {
        MS1_->setItem(r, c, new QTableWidgetItem(text));
      } else if (item->text() != text) {
        item->setText(text);
      }
    }
  }
}

void FrmFunc::SyncHistory() {
  if (logic_->rtb() == shownHistory_) return;
  shownHistory_ = logic_->rtb();
  rtb_->setPlainText(Q(shownHistory_));
  // The newest record in view: the caret at the end.
  QTextCursor cursor = rtb_->textCursor();
  cursor.movePosition(QTextCursor::End);
  rtb_->setTextCursor(cursor);
  rtb_->verticalScrollBar()->setValue(rtb_->verticalScrollBar()->maximum());
}

void FrmFunc::ApplyProgress() {
  const graph::Label& label = logic_->lblPerCent();
  const QString text = Q(label.Caption);
  if (lblPerCent_->text() != text) lblPerCent_->setText(text);
  lblPerCent_->setVisible(label.Visible);
  progressDirty_ = false;
}

void FrmFunc::Done() {
  SyncFromLogic();
  if (services_.frame != nullptr) services_.frame->UpdateStatus();
}

// ---- graph::GraphHost ------------------------------------------------------------------

void FrmFunc::DoEvents() {
  // The picture and the progress text reach the screen at screen rate, not
  // per sample: painting is what would slow the loop.
  const std::int64_t now = services_.clockMs();
  if (!lastScreenUpdateMs_ || now - *lastScreenUpdateMs_ >= kScreenIntervalMs) {
    if (progressDirty_) ApplyProgress();
    pDraw_->update();
    ++screenUpdates_;
    lastScreenUpdateMs_ = now;
  }
  QCoreApplication::processEvents();
}

void FrmFunc::ProgressChanged() {
  const bool drawing = logic_->State().Drawing();
  if (drawing && !drawShown_) {
    DrawStarted();
  } else if (!drawing && drawShown_) {
    DrawFinished();
  } else {
    progressDirty_ = true;
  }
}

void FrmFunc::DrawStarted() {
  drawShown_ = true;
  lastScreenUpdateMs_.reset();
  // The boxes show what is being drawn, and stay as they are until the end.
  SyncFromLogic();
}

void FrmFunc::DrawFinished() {
  drawShown_ = false;
  SyncFromLogic();
  if (closePending_) {
    closePending_ = false;
    QWidget* toClose = qobject_cast<QMdiSubWindow*>(parentWidget()) != nullptr ? parentWidget() : this;
    QTimer::singleShot(0, toClose, &QWidget::close);
  }
}

void FrmFunc::RefreshFrame() {
  if (services_.frame != nullptr) services_.frame->UpdateStatus();
}

void FrmFunc::TypeChosen(int type) {
  if (types_[0] != nullptr && type >= 1 && type <= 3) {
    const QSignalBlocker block(types_[type - 1]);
    types_[type - 1]->setChecked(true);
  }
  if (services_.frame != nullptr) services_.frame->MarkFunctionType(type);
}

void FrmFunc::FocusFunctionBox() {
  if (txtY_ == nullptr) return;
  if (logic_ && txtY_->currentText() != Q(logic_->Boxes().txtY().Text)) {
    const QSignalBlocker block(txtY_);
    txtY_->setEditText(Q(logic_->Boxes().txtY().Text));
  }
  txtY_->setFocus(Qt::OtherFocusReason);
  txtY_->lineEdit()->end(false);
}

void FrmFunc::ToolChanged() {
  SyncFromLogic();
  pDraw_->update();
}

void FrmFunc::ShowStatusText(const std::string& text) {
  if (services_.frame != nullptr) services_.frame->ShowStatusText(text);
}

// ---- The user's acts -----------------------------------------------------------------------

void FrmFunc::EnterInTxtY() {
  // A second Enter during a draw changes nothing, not even the texts.
  if (logic_->State().Drawing()) return;
  TakeBoxes();
  logic_->DrawFromTxtY();
  Done();
}

void FrmFunc::EnterInTxtX() {
  if (logic_->State().Drawing()) return;
  TakeBoxes();
  logic_->CrtajFJU();
  Done();
}

void FrmFunc::TakeBoxes() {
  // The boxes as they stand: typing reaches the logic as it happens, but a
  // text set by a program (a paste, an input method) may not have.
  logic_->SetFunctionTexts(S(txtY_->currentText()), S(txtX_->currentText()));
}

void FrmFunc::TypeClicked(int index) {
  if (logic_->State().Drawing()) {
    SyncFromLogic();  // the type stays while a draw runs
    return;
  }
  logic_->optFunk(index);
  Done();
}

void FrmFunc::ListPicked(int index) {
  if (syncing_ || index < 0 || !logic_) return;
  if (logic_->State().Drawing()) {
    SyncFromLogic();
    return;
  }
  if (!listChoice_) {
    // Editing ended on a text of the list, or an arrow key stepped through
    // it: the box shows that text, and nothing is drawn.
    logic_->SettxtY(S(txtY_->currentText()));
    return;
  }
  listChoice_ = false;
  logic_->SettxtY(S(txtY_->itemText(index)));
  logic_->txtY_Click();
  Done();
}

void FrmFunc::FunctionNamePicked(int index) {
  if (index < 0 || logic_->State().Drawing()) return;
  QComboBox* box = logic_->Boxes().lblxy().Caption == "X" && txtX_->isVisible() ? txtX_ : txtY_;
  box->lineEdit()->insert(C1_->itemText(index));
  if (box == txtY_) {
    logic_->SettxtY(S(box->currentText()));
  } else {
    logic_->SettxtX(S(box->currentText()));
  }
  box->setFocus(Qt::OtherFocusReason);
}

void FrmFunc::MouseMoved(int button, double x, double y) {
  if (logic_->State().Drawing()) return;
  readout_->MouseMove(button, x, y);
  LblChart_->setText(Q(logic_->LblChart().Caption));
  pDraw_->update();
}

void FrmFunc::MouseReleased() {
  readout_->MouseUp();
  pDraw_->update();
}

// ---- Size ------------------------------------------------------------------------------------

void FrmFunc::SurfaceResized(int /*oldWidth*/, int /*oldHeight*/, int width, int height) {
  // The surface's own size is the size the picture had: the widget's old
  // size is not valid at its first layout.
  width = std::max(width, 1);
  height = std::max(height, 1);
  const int fromWidth = static_cast<int>(surface_->ScaleWidth());
  const int fromHeight = static_cast<int>(surface_->ScaleHeight());
  if (fromWidth == width && fromHeight == height) return;
  const auto plan = graph::ViewResize::PlanFor(fromWidth, fromHeight, width, height);
  surface_->Resize(width, height, plan.pictureDx, plan.pictureDy);
  graph::ViewResize::Apply(*logic_, plan);
  if (!logic_->State().Drawing() && logic_->State().KolkoFunkc() == 0) {
    // Only the paper: it costs well under a millisecond, so an empty window
    // follows the size at once.
    graph::ViewResize::Repaint(*logic_, *services_.settings);
    pDraw_->update();
    return;
  }
  settle_->start();
}

void FrmFunc::SizeSettled() {
  if (logic_->State().Drawing()) {
    settle_->start();  // after the draw
    return;
  }
  if (!graph::ViewResize::RepaintWhenSettled(*logic_, *services_.settings)) return;
  graph::ViewResize::Repaint(*logic_, *services_.settings);
  Done();
}

void FrmFunc::SettleSize() {
  if (!settle_->isActive()) return;
  settle_->stop();
  SizeSettled();
}

void FrmFunc::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  FocusFunctionBox();
}

void FrmFunc::closeEvent(QCloseEvent* event) {
  if (logic_->State().Drawing()) {
    // The loop runs inside this window's event pump: stop it, and close
    // when it has ended.
    logic_->Stop();
    closePending_ = true;
    event->ignore();
    return;
  }
  if (services_.frame != nullptr) services_.frame->WindowClosing(this);
  event->accept();
}

// ---- Commands ------------------------------------------------------------------------------

void FrmFunc::DrawFunction() {
  if (logic_->State().Drawing()) return;
  logic_->CrtajFJU();
  Done();
}

void FrmFunc::Stop() { logic_->Stop(); }

bool FrmFunc::mnuBojeBack() {
  const bool chosen = commands_->mnuBojeBack();
  Done();
  return chosen;
}
bool FrmFunc::mnuBojeGrid() {
  const bool chosen = commands_->mnuBojeGrid();
  Done();
  return chosen;
}
bool FrmFunc::mnuBojeAxes() {
  const bool chosen = commands_->mnuBojeAxes();
  Done();
  return chosen;
}
bool FrmFunc::mnuBojeGraph() {
  const bool chosen = commands_->mnuBojeGraph();
  Done();
  return chosen;
}
void FrmFunc::mnuBojeDef() {
  commands_->mnuBojeDef();
  Done();
}
void FrmFunc::Sacboje() { commands_->Sacboje(); }

void FrmFunc::ColourMenu(int index) {
  using Entry = graph::WindowCommands::ColourEntry;
  constexpr Entry kEntries[] = {Entry::Background, Entry::Grid, Entry::Axes, Entry::Graph, Entry::Default};
  if (index < 0 || index > 4) return;
  commands_->ColourMenu(kEntries[index]);
  Done();
}

void FrmFunc::mnuPlotWidth() {
  if (logic_->State().Drawing()) return;
  logic_->mnuPlotWidth();
  Done();
}

void FrmFunc::ClearAll() {
  commands_->ClearAll();
  Done();
}
void FrmFunc::ClearScreen() {
  commands_->ClearScreen();
  Done();
}
void FrmFunc::mnuclhistory() {
  commands_->mnuclhistory();
  Done();
}
void FrmFunc::ClearGrid() {
  commands_->ClearGrid();
  Done();
}
void FrmFunc::RedrawGrid() {
  commands_->RedrawGrid();
  Done();
}
void FrmFunc::ClearFju() {
  commands_->ClearFju();
  Done();
  FocusFunctionBox();
}
void FrmFunc::SwapYX() {
  commands_->SwapYX();
  Done();
}

void FrmFunc::Kopirajgraf() {
  QImage copy = surface_->Image().copy();
  if (commands_->FrameOnCopies()) {
    QPainter frame(&copy);
    frame.setPen(QPen(Qt::black, 1));
    const QSizeF size = copy.deviceIndependentSize();
    frame.drawRect(QRectF(0, 0, size.width() - 1, size.height() - 1));
  }
  QGuiApplication::clipboard()->setImage(copy);
}

bool FrmFunc::Sav1() {
  const bool saved = commands_->Sav1([this](const std::string& path) {
    // Written beside the target and renamed over it: a failed save never
    // leaves half a file.
    return qtplatform::SaveFileAtomically(Q(path), [this](QIODevice& file) {
      QImageWriter writer(&file, "bmp");
      return writer.write(surface_->Image());
    });
  });
  Done();
  return saved;
}

FrmGridOpt* FrmFunc::OpenPlottingOptions() {
  if (logic_->State().Drawing()) return nullptr;
  auto* dialog = new FrmGridOpt(*services_.settings, *services_.messages, logic_.get(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowModality(Qt::ApplicationModal);
  connect(dialog, &FrmGridOpt::Applied, this, [this] { Done(); });
  dialog->show();
  return dialog;
}

}  // namespace velmora::graph_qt
