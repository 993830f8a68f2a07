#include "complex/qt/frmcomplex.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>

#include "complex/complexkeys.h"
#include "complex/complexmemory.h"
#include "complex/qt/virtualkey.h"
#include "mathpad/qt/frm2text.h"
#include "platform/qt/qtstring.h"

namespace velmora::complex_qt {
namespace {

using complex::Operation;
using qtplatform::ToQString;
using qtplatform::ToStdString;

constexpr const char* kCaption = "Complex Calculator";

// The keys that open the popup frmmenu, each with the entries that fit it.
constexpr int kConvertKey = 0;   // cmdconv
constexpr int kArgumentKey = 1;  // Command1
constexpr int kLogKey = 2;       // cmdlog
constexpr int kMemoryKey = 3;    // cmdMemory2, MR

struct PopupEntry {
  const char* name;
  const char* caption;
  int key;  // the key whose popup shows the entry
};

constexpr PopupEntry kPopupEntries[] = {
    {"mnur1", "Replace Complex (A+iB) with the Result", kConvertKey},
    {"mnur2", "Replace Complex (C+iD) with the Result", kConvertKey},
    {"mnuswap", "Swap (A+iB) and (C+iD)", kConvertKey},
    {"mnucon1", "Conjugate (A+iB)", kConvertKey},
    {"mnucon2", "Conjugate (C+iD)", kConvertKey},
    {"mnulog1", "Log (A + iB) to the base e", kLogKey},
    {"mnulog2", "Log (A+iB) to the base (C+iD)", kLogKey},
    {"mnuasA", "As (A+iB)", kMemoryKey},
    {"mnuasC", "As (C+iD)", kMemoryKey},
    {"mnugrad", "Get Argument in Rad", kArgumentKey},
    {"mnugdeg", "Get Argument in Deg", kArgumentKey},
};

// The "Complex" popup's entries that open another tool.
struct ToolEntry {
  const char* name;
  const char* caption;
  bool graphMode;               // the frame with its graph windows rather than a tool
  platform::ToolWindow window;  // the tool (unused for the graph mode)
};

constexpr ToolEntry kToolEntries[] = {
    {"mnupad", "Ma&thPad", false, platform::ToolWindow::MathPad},
    {"mnugraph", "&Graph Mode", true, platform::ToolWindow::MathPad},
    {"mnuevaluator", "&Evaluator", false, platform::ToolWindow::Evaluator},
    {"mnumatrix", "&Matrix Calculator", false, platform::ToolWindow::Matrix},
    {"mnugeometry", "Ge&ometry Calculator", false, platform::ToolWindow::Geometry},
};

void SetText(QLabel* label, const std::string& text) { label->setText(ToQString(text)); }

}  // namespace

FrmComplex::FrmComplex(QWidget* owner, ComplexServices services)
    : QWidget(owner, Qt::Window),
      services_(std::move(services)),
      calc_(*services_.messages),
      keypad_(calc_.Fields(), *services_.messages),
      simple_(calc_.Fields(), *services_.messages) {
  setObjectName(QStringLiteral("frmComplex"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QString::fromLatin1(kCaption));
  face_ = BuildFace(*this);
  BuildPopup();
  BuildComplexMenu();
  Wire();
  ShowMode(face_, false);
  Refresh();
  InstallKeyFilter();
  setFocusPolicy(Qt::StrongFocus);
}

FrmComplex::~FrmComplex() = default;

QAbstractButton* FrmComplex::Button(const char* name, int index) const {
  return findChild<QAbstractButton*>(ControlName(name, index));
}

QAction* FrmComplex::MenuAction(const char* name) const {
  const QString wanted = QString::fromLatin1(name);
  for (QMenu* menu : {frmmenu_, complexMenu_}) {
    for (QAction* action : menu->actions()) {
      if (action->objectName() == wanted) return action;
    }
  }
  return nullptr;
}

void FrmComplex::Wire() {
  for (std::size_t i = 0; i < face_.cmdBroj.size(); ++i) {
    connect(face_.cmdBroj[i], &QPushButton::clicked, this, [this, i] {
      keypad_.cmdBroj(static_cast<int>(i) + 1);
      Refresh();
    });
  }
  for (std::size_t digit = 0; digit < face_.Number.size(); ++digit) {
    connect(face_.Number[digit], &QPushButton::clicked, this, [this, digit] {
      if (simple_.SimpleMode()) {
        simple_.Digit(static_cast<int>(digit));
      } else {
        keypad_.Number(static_cast<int>(digit));
      }
      Refresh();
    });
  }
  connect(face_.Decimal, &QPushButton::clicked, this, [this] {
    if (simple_.SimpleMode()) {
      simple_.Point();
    } else {
      keypad_.Decimal();
    }
    Refresh();
  });
  connect(face_.cmdPlusMinus, &QPushButton::clicked, this, [this] {
    if (simple_.SimpleMode()) {
      simple_.Sign();
    } else {
      keypad_.PlusMinus();
    }
    Refresh();
  });
  connect(face_.CancelEntry, &QPushButton::clicked, this, [this] {
    simple_.CancelEntry();
    Refresh();
  });
  connect(face_.cmdClearAll, &QPushButton::clicked, this, [this] {
    keypad_.ClearAll();
    Refresh();
  });

  // The direct road: every operation key with a key of its own.
  for (const complex::OperationEntry& entry : complex::Operations()) {
    const auto found = face_.operations.find(ToQString(entry.control));
    if (found == face_.operations.end()) continue;
    if (entry.control == "Command1" || entry.control == "cmdlog") continue;  // they open the popup
    const Operation operation = entry.operation;
    connect(found->second, &QPushButton::clicked, this, [this, operation] { RunOperation(operation); });
  }
  connect(face_.operations.at(QStringLiteral("Command1")), &QPushButton::clicked, this,
          [this] { ShowPopup(kArgumentKey, face_.operations.at(QStringLiteral("Command1"))); });
  connect(face_.operations.at(QStringLiteral("cmdlog")), &QPushButton::clicked, this,
          [this] { ShowPopup(kLogKey, face_.operations.at(QStringLiteral("cmdlog"))); });
  connect(face_.cmdconv, &QPushButton::clicked, this, [this] { ShowPopup(kConvertKey, face_.cmdconv); });
  connect(face_.cmdMemory2, &QPushButton::clicked, this, [this] { ShowPopup(kMemoryKey, face_.cmdMemory2); });

  connect(face_.cmdMemory1, &QPushButton::clicked, this, [this] {
    complex::MemoryAdd(calc_.Fields(), *services_.messages);
    Refresh();
  });
  connect(face_.cmdMemory3, &QPushButton::clicked, this, [this] {
    complex::MemoryClear(calc_.Fields());
    Refresh();
  });

  connect(face_.ComboFunction, &QComboBox::textActivated, this, [this](const QString& text) {
    calc_.SelectFunction(ToStdString(text));
    Refresh();
  });
  connect(face_.CommandCalculate, &QPushButton::clicked, this, &FrmComplex::Calculate);

  const complex::RealFunction functions[] = {complex::RealFunction::Sin, complex::RealFunction::Cos,
                                             complex::RealFunction::Tan, complex::RealFunction::Cot};
  for (std::size_t i = 0; i < 4; ++i) {
    const complex::RealFunction function = functions[i];
    const auto apply = [this, function] {
      simple_.Apply(function);
      Refresh();
    };
    connect(face_.realFunctions[i], &QPushButton::clicked, this, apply);
    connect(face_.inverseFunctions[i], &QPushButton::clicked, this, apply);
    connect(face_.mirrors[i], &QCheckBox::toggled, this,
            [this, i](bool ticked) { simple_.SetMirror(static_cast<int>(i) + 1, ticked); });
  }
  connect(face_.Check1, &QCheckBox::toggled, this, [this](bool on) {
    simple_.SetInverse(on);
    Refresh();
  });
  connect(face_.Check2, &QCheckBox::toggled, this, [this](bool on) { simple_.SetDegrees(on); });

  connect(face_.cmdcopy, &QPushButton::clicked, this,
          [this] { QGuiApplication::clipboard()->setText(ToQString(calc_.Fields().LabelRezultat)); });
  connect(face_.cmdPan, &QPushButton::clicked, this, [this] { SetPanelShown(!PanelShown()); });
  connect(face_.cmdOff, &QPushButton::clicked, this, &FrmComplex::Off);
  connect(face_.cmdMenu, &QPushButton::clicked, this,
          [this] { ShowComplexMenu(face_.cmdMenu->mapTo(this, QPoint(0, face_.cmdMenu->height()))); });
  face_.Readout->installEventFilter(this);
}

void FrmComplex::BuildPopup() {
  frmmenu_ = new QMenu(this);
  frmmenu_->setObjectName(QStringLiteral("frmmenu"));
  for (const PopupEntry& entry : kPopupEntries) {
    QAction* action = frmmenu_->addAction(QString::fromLatin1(entry.caption));
    action->setObjectName(QString::fromLatin1(entry.name));
    action->setData(entry.key);
  }
  const auto on = [this](const char* name, auto&& run) {
    connect(MenuAction(name), &QAction::triggered, this, [this, run] {
      run();
      Refresh();
    });
  };
  complex::ComplexFields& fields = calc_.Fields();
  platform::MessageBox& box = *services_.messages;
  on("mnur1", [this] { calc_.ReplaceZ1WithResult(); });
  on("mnur2", [this] { calc_.ReplaceZ2WithResult(); });
  on("mnuswap", [this] { calc_.Swap(); });
  on("mnucon1", [this] { calc_.ConjugateZ1(); });
  on("mnucon2", [this] { calc_.ConjugateZ2(); });
  on("mnulog1", [this] { RunOperation(Operation::Ln); });
  on("mnulog2", [this] { RunOperation(Operation::LogBase); });
  on("mnuasA", [&fields, &box] { complex::MemoryAsZ1(fields, box); });
  on("mnuasC", [&fields, &box] { complex::MemoryAsZ2(fields, box); });
  on("mnugrad", [this] { RunOperation(Operation::ArgRad); });
  on("mnugdeg", [this] { RunOperation(Operation::ArgDeg); });
}

void FrmComplex::BuildComplexMenu() {
  complexMenu_ = new QMenu(QStringLiteral("Complex"), this);
  complexMenu_->setObjectName(QStringLiteral("mnuhelpcomplex"));
  for (const ToolEntry& entry : kToolEntries) {
    QAction* action = complexMenu_->addAction(QString::fromLatin1(entry.caption));
    action->setObjectName(QString::fromLatin1(entry.name));
    const ToolEntry* tool = &entry;
    connect(action, &QAction::triggered, this, [this, tool] {
      if (services_.tools == nullptr) return;
      if (tool->graphMode) {
        services_.tools->ShowGraphMode();
      } else {
        services_.tools->Show(tool->window);
      }
    });
  }
  complexMenu_->addSeparator();
  QAction* panel = complexMenu_->addAction(ToQString(panelMenu_.Caption()));
  panel->setObjectName(QStringLiteral("mnupanel"));
  connect(panel, &QAction::triggered, this, &FrmComplex::PanelMenuClicked);
  QAction* help = complexMenu_->addAction(QStringLiteral("&Help"));
  help->setObjectName(QStringLiteral("mnuhelp"));
  connect(help, &QAction::triggered, this, &FrmComplex::OpenHelp);
  QAction* close = complexMenu_->addAction(QStringLiteral("&Close"));
  close->setObjectName(QStringLiteral("mnuexit3"));
  connect(close, &QAction::triggered, this, &FrmComplex::Off);
  // The entries of tools this version lacks stay disabled; checked at each
  // opening so a tool added later comes alive.
  connect(complexMenu_, &QMenu::aboutToShow, this, [this] {
    for (const ToolEntry& entry : kToolEntries) {
      const bool present =
          services_.tools != nullptr && (entry.graphMode || services_.tools->Has(entry.window));
      MenuAction(entry.name)->setEnabled(present);
    }
    MenuAction("mnuhelp")->setEnabled(services_.shell != nullptr && !services_.helpFile.isEmpty() &&
                                      QFileInfo::exists(services_.helpFile));
  });
}

void FrmComplex::ShowComplexMenu(const QPoint& at) { complexMenu_->popup(mapToGlobal(at)); }

void FrmComplex::ShowPopup(int key, QWidget* at) {
  for (QAction* action : frmmenu_->actions()) action->setVisible(action->data().toInt() == key);
  frmmenu_->popup(at->mapToGlobal(QPoint(0, at->height())));
}

void FrmComplex::RunOperation(Operation operation) {
  calc_.Run(operation);
  FlushLog();
  Refresh();
}

void FrmComplex::Calculate() {
  // The key reads "Done" while the list's entry runs.
  face_.CommandCalculate->setText(ToQString(complex::kCalculateRunningCaption));
  calc_.SelectFunction(ToStdString(face_.ComboFunction->currentText()));
  calc_.CommandCalculateClick();
  FlushLog();
  Refresh();
}

void FrmComplex::FlushLog() {
  complex::ComplexFields& fields = calc_.Fields();
  if (fields.frm2text.empty()) return;
  if (panel_ != nullptr) panel_->AppendText(ToQString(fields.frm2text));
  fields.frm2text.clear();
}

bool FrmComplex::PanelShown() const {
  const mathpad_qt::Frm2Text* panel = panel_.data();
  return panel != nullptr && panel->isVisible();
}

void FrmComplex::SetPanelShown(bool shown) {
  mathpad_qt::Frm2Text::ShowBeside(panel_, *this, shown, *services_.messages, services_.tools,
                                   [this] { PanelClosedByItself(); });
  calc_.Fields().frm2textOpen = shown;
  Refresh();
}

void FrmComplex::PanelMenuClicked() { SetPanelShown(panelMenu_.Click()); }

void FrmComplex::PanelClosedByItself() {
  calc_.Fields().frm2textOpen = false;
  panelMenu_.PanelClosed();
  Refresh();
}

void FrmComplex::OpenHelp() {
  if (services_.shell == nullptr || services_.helpFile.isEmpty()) return;
  const platform::ShellResult result = platform::ShellOpen(*services_.shell, ToStdString(services_.helpFile));
  if (!result.ok) {
    services_.messages->Show(
        result.description + "\r\n" + ToStdString(QDir::toNativeSeparators(services_.helpFile)), "Velmora",
        platform::MsgIcon::Exclamation);
  }
}

void FrmComplex::Off() {
  if (panel_ != nullptr) panel_->hide();
  close();
}

void FrmComplex::SetSimpleMode(bool simple) {
  simple_.SetSimpleMode(simple);
  ShowMode(face_, simple);
  Refresh();
  // The case fits what the mode shows: the simple calculator is shorter.
  if (isVisible() && !isMaximized()) {
    layout()->activate();
    resize(width(), sizeHint().height());
  }
}

void FrmComplex::Refresh() {
  const complex::ComplexFields& f = calc_.Fields();
  SetText(face_.lblZ1, f.lblZ1);
  SetText(face_.lblZ2, f.lblZ2);
  const std::string* parts[] = {&f.lbla, &f.lblb, &f.lblc, &f.lbld};
  const char* roles[] = {"a = ", "b = ", "c = ", "d = "};
  for (std::size_t i = 0; i < 4; ++i) {
    QLabel* part = face_.parts[i];
    SetText(part, *parts[i]);
    part->setToolTip(QString::fromLatin1(roles[i]) + ToQString(*parts[i]));
    const bool active = keypad_.PartDown(static_cast<int>(i) + 1);
    if (part->property("active").toBool() != active) {
      part->setProperty("active", active);
      part->style()->unpolish(part);
      part->style()->polish(part);
    }
    face_.cmdBroj[i]->setChecked(active);
  }
  face_.Label1c->setToolTip(QStringLiteral("a + ib = ") + ToQString(f.lblZ1));
  face_.Label2c->setToolTip(QStringLiteral("c + id = ") + ToQString(f.lblZ2));
  // The single-operand entries of the list hide Complex 2's parts.
  face_.parts[2]->setVisible(f.lblcVisible);
  face_.partCaptions[2]->setVisible(f.lblcVisible);
  face_.parts[3]->setVisible(f.lbldVisible);
  face_.partCaptions[3]->setVisible(f.lbldVisible);
  face_.Label2c->setVisible(f.Label2cVisible);
  SetText(face_.lblSta, f.lblSta);
  SetText(face_.LabelRezultat, f.LabelRezultat);
  face_.TextResultReal->setText(ToQString(f.TextResultReal));
  face_.TextResultImaginary->setText(ToQString(f.TextResultImaginary));
  SetText(face_.LabelRule, f.LabelRule);
  SetText(face_.lblMemory1, f.lblMemory1);
  face_.Label4->setVisible(f.Label4Visible);
  SetText(face_.Readout, simple_.Readout());
  const QString combo = ToQString(f.ComboFunction);
  if (face_.ComboFunction->currentText() != combo) face_.ComboFunction->setCurrentText(combo);
  face_.CommandCalculate->setText(ToQString(f.CommandCalculate));
  for (std::size_t i = 0; i < 4; ++i) {
    face_.realFunctions[i]->setVisible(!simple_.Inverse());
    face_.inverseFunctions[i]->setVisible(simple_.Inverse());
  }
  const bool shown = PanelShown();
  face_.cmdPan->setToolTip(ToQString(shown ? complex::kPanelButtonHide : complex::kPanelButtonShow));
  MenuAction("mnupanel")->setText(ToQString(panelMenu_.Caption()));
}

void FrmComplex::InstallKeyFilter() {
  // The window previews every key, whichever of its widgets has the focus.
  for (QWidget* child : findChildren<QWidget*>()) {
    if (qobject_cast<QMenu*>(child) != nullptr) continue;
    child->installEventFilter(this);
  }
}

bool FrmComplex::HandleKey(const QKeyEvent& event) {
  const complex::KeyEntry* entry = complex::FindKey(VirtualKey(event));
  if (entry == nullptr) return false;
  QAbstractButton* button =
      findChild<QAbstractButton*>(ControlName(std::string(entry->control).c_str(), entry->index));
  if (button == nullptr || !button->isEnabled()) return false;
  button->click();
  return true;
}

bool FrmComplex::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    if (HandleKey(*static_cast<QKeyEvent*>(event))) return true;
  }
  if (watched == face_.Readout && event->type() == QEvent::MouseButtonRelease) {
    SetSimpleMode(!SimpleMode());
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void FrmComplex::keyPressEvent(QKeyEvent* event) {
  if (HandleKey(*event)) return;
  QWidget::keyPressEvent(event);
}

void FrmComplex::contextMenuEvent(QContextMenuEvent* event) { ShowComplexMenu(event->pos()); }

void FrmComplex::closeEvent(QCloseEvent* event) {
  if (panel_ != nullptr) panel_->hide();
  event->accept();
}

}  // namespace velmora::complex_qt
