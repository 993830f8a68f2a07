// The graph window's own tools as the window shows them: the tangent, fill
// and label dialogs, the label box over the plot, the history handed to
// MathPad and the value table's copies.
#include <QClipboard>
#include <QDate>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>

#include "graph/graphwindow.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/frmlabel.h"
#include "graph/qt/frmmini.h"
#include "graph/qt/frmunesit.h"
#include "graph/qt/frmzoom2.h"
#include "graph/qt/labelpanel.h"
#include "graph/qt/pdrawview.h"
#include "graph/qt/picmcrbox.h"
#include "graph/qt/qimagesurface.h"
#include "platform/mathpadtarget.h"
#include "platform/qt/qtstring.h"

namespace velmora::graph_qt {
namespace {

constexpr std::string_view kTitle = graph::GraphWindow::kDefaultTitle;
constexpr auto& Q = qtplatform::ToQString;
constexpr auto& S = qtplatform::ToStdString;

// A dialog of the window: deleted when closed, the window's view refreshed
// after it drew.
template <typename Dialog>
Dialog* Open(Dialog* dialog, bool modal) {
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowModality(modal ? Qt::ApplicationModal : Qt::WindowModal);
  dialog->show();
  return dialog;
}

}  // namespace

void FrmFunc::ConnectTools() {
  MS1_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(MS1_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
    QMenu* menu = FrmZoom2::CopyTableMenu(
        this, [this] { Copyrow(); }, [this] { SveTable(); });
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(MS1_->viewport()->mapToGlobal(at));
  });
}

bool FrmFunc::HasMathPad() const {
  return services_.tools != nullptr && services_.tools->Has(platform::ToolWindow::MathPad);
}

FrmUnesit* FrmFunc::mnuDrawTangent() {
  graph::GraphWindow& w = *logic_;
  if (w.State().Drawing()) return nullptr;
  TakeBoxes();
  const int type = w.Boxes().optFunkcije();
  if (type == graph::kPolar) {
    services_.messages->Show("Available for Cartesian and Parametric functions.", std::string(kTitle),
                             platform::MsgIcon::Exclamation);
    return nullptr;
  }
  if (type == graph::kCartesian && !w.crtajt()) return nullptr;
  auto* dialog = new FrmUnesit(w, *services_.messages, type == graph::kParametric, this);
  connect(dialog, &FrmUnesit::Drawn, this, [this] { Done(); });
  return Open(dialog, false);
}

FrmMini* FrmFunc::mnuDrawIntegral(bool fromToolbar) {
  graph::GraphWindow& w = *logic_;
  if (w.State().Drawing()) return nullptr;
  TakeBoxes();
  if (w.Boxes().optFunkcije() != graph::kCartesian) {
    services_.messages->Show(fromToolbar ? "Available for Cartesian (standard) functions only."
                                         : "Available for Cartesian functions only.",
                             std::string(kTitle), platform::MsgIcon::Exclamation);
    return nullptr;
  }
  if (!w.mnuDrawIntegral()) return nullptr;
  auto* dialog = new FrmMini(w, nullptr, this);
  connect(dialog, &FrmMini::Drawn, this, [this] { Done(); });
  return Open(dialog, true);
}

void FrmFunc::CrtajFJUDeriv() {
  if (logic_->State().Drawing()) return;
  TakeBoxes();
  logic_->CrtajFJUDeriv();
  Done();
}

PicMcrBox* FrmFunc::picMCRBox() {
  if (picMCRBox_ == nullptr) {
    picMCRBox_ = new PicMcrBox(pDraw_);
    connect(picMCRBox_, &PicMcrBox::Dragged, this, [this](int dx, int dy) {
      logic_->DragLabel(dx, dy);
      LblChart_->setText(Q(logic_->LblChart().Caption));
    });
    connect(picMCRBox_, &PicMcrBox::Hovered, this,
            [this] { LblChart_->setText(QString::fromUtf8(graph::GraphWindow::kLabelDragHint.data())); });
    connect(picMCRBox_, &PicMcrBox::InsertRequested, this, &FrmFunc::daLabele);
    connect(picMCRBox_, &PicMcrBox::DeleteRequested, this, &FrmFunc::neLabel);
  }
  return picMCRBox_;
}

FrmLabel* FrmFunc::mnulabel() {
  if (logic_->State().Drawing()) return nullptr;
  TakeBoxes();
  const auto text = logic_->mnulabel();
  if (!text) return nullptr;
  auto* dialog = new FrmLabel(*logic_, *text, nullptr, nullptr, this);
  connect(dialog, &FrmLabel::Inserted, this, [this] { ShowLabelBox(); });
  return Open(dialog, false);
}

LabelPanel* FrmFunc::frkur() {
  if (frkur_ == nullptr) {
    frkur_ = new LabelPanel(pDraw_);
    frkur_->hide();
    if (services_.colours != nullptr) {
      frkur_->SetColourChooser([this](graph::Colour initial) { return services_.colours->Choose(initial); });
    }
    connect(frkur_->cmdFont(), &QPushButton::clicked, this, &FrmFunc::cmdFontL);
    connect(frkur_->cmdBoja(), &QPushButton::clicked, this, &FrmFunc::cmdBojaL);
    connect(frkur_->cmdLabel(), &QPushButton::clicked, this, &FrmFunc::cmdLabelL);
    connect(frkur_->cmdTextCancel(), &QPushButton::clicked, this, &FrmFunc::cmdTextCancelL);
    connect(frkur_, &LabelPanel::AngleClicked, this, [this] {
      if (const auto angle = logic_->AskLabelAngle()) frkur_->SetAngle(*angle);
    });
  }
  return frkur_;
}

LabelPanel* FrmFunc::ShowLabelPanel() {
  if (logic_->State().Drawing()) return nullptr;
  TakeBoxes();
  const auto text = logic_->mnulabel();
  if (!text) return nullptr;
  LabelPanel* panel = frkur();
  panel->Start(*text);
  panel->adjustSize();
  panel->move(8, 8);
  panel->show();
  panel->raise();
  panel->Text2()->setFocus();
  return panel;
}

void FrmFunc::cmdFontL() {
  if (frkur_ != nullptr) frkur_->ChooseFont();
}

void FrmFunc::cmdBojaL() {
  if (frkur_ != nullptr) frkur_->ChooseColour();
}

void FrmFunc::cmdLabelL() {
  if (frkur_ == nullptr || frkur_->isHidden()) return;
  if (!logic_->cmdLabelL(frkur_->Style())) return;
  frkur_->hide();
  ShowLabelBox();
}

void FrmFunc::cmdTextCancelL() {
  if (frkur_ != nullptr) frkur_->hide();
}

void FrmFunc::ShowLabelBox() {
  const graph::GraphLabel& label = logic_->picMCRBox();
  if (!label.Visible()) return;
  picMCRBox()->ShowLabel(label.Style(), surface_->BackColor(), static_cast<int>(label.Left()),
                         static_cast<int>(label.Top()));
}

void FrmFunc::daLabele() {
  if (logic_->State().Drawing()) return;
  logic_->daLabele();
  if (picMCRBox_ != nullptr) picMCRBox_->hide();
  Done();
}

void FrmFunc::neLabel() {
  logic_->neLabel();
  if (picMCRBox_ != nullptr) picMCRBox_->hide();
  Done();
}

void FrmFunc::mnusaveHistory() {
  if (!HasMathPad()) return;
  const auto answer = services_.messages->Show("Open function history in MathPad?", std::string(kTitle),
                                               platform::MsgIcon::Question, platform::MsgButtons::YesNo);
  if (answer != platform::MsgResult::Yes) return;
  platform::MathPadTarget* pad = services_.tools->MathPad();
  if (pad == nullptr) return;
  std::string text = S(rtb_->toPlainText());
  std::string crlf;
  for (const char c : text) {
    if (c == '\n') crlf += '\r';
    crlf += c;
  }
  pad->AppendText("\r\n\r\nFunction History:" + S(QDate::currentDate().toString(QStringLiteral("M/d/yyyy"))) +
                  "\r\n" + crlf);
}

void FrmFunc::PrintLog2() {
  if (!HasMathPad() || services_.history == nullptr) return;
  const auto answer =
      services_.messages->Show("Open function history in MathPad and edit it, save or print?",
                               std::string(kTitle), platform::MsgIcon::Question, platform::MsgButtons::YesNo);
  if (answer != platform::MsgResult::Yes) return;
  if (platform::MathPadTarget* pad = services_.tools->MathPad()) pad->OpenFile(services_.history->Path());
}

std::string FrmFunc::TableText(bool selectedOnly) const {
  const graph::GraphWindow& w = *logic_;
  const auto& boxes = w.Boxes();
  std::string text;
  switch (boxes.optFunkcije()) {
    case graph::kParametric: text = "Function: Y = " + boxes.txtY().Text + " X = " + boxes.txtX().Text; break;
    case graph::kPolar: text = "Function: R (K) = " + boxes.txtY().Text; break;
    default: text = "Function: Y = " + boxes.txtY().Text; break;
  }
  text += "\r\n";
  const auto lines = w.MS1().TabLines();
  for (std::size_t row = 0; row < lines.size(); ++row) {
    // The header always; with selectedOnly, the rows selected in the grid.
    if (selectedOnly && row > 0) {
      bool selected = false;
      for (const auto& index : MS1_->selectionModel()->selectedIndexes())
        selected = selected || index.row() == static_cast<int>(row) - 1;
      if (!selected) continue;
    }
    text += lines[row] + "\r\n";
  }
  return text;
}

void FrmFunc::SveTable() { QGuiApplication::clipboard()->setText(Q(TableText(false))); }
void FrmFunc::Copyrow() { QGuiApplication::clipboard()->setText(Q(TableText(true))); }

}  // namespace velmora::graph_qt
