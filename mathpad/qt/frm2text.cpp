#include "mathpad/qt/frm2text.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTextCursor>
#include <QTextEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace velmora::mathpad_qt {
namespace {

// The panel's questions and notes.
constexpr const char* kNewQuestion = "This will clear current panel. Continue?";
constexpr const char* kNewTitle = "New panel";
constexpr const char* kSelectToCopy = "Select text you want to copy.";
constexpr const char* kSelectToErase = "Select text you want to erase.";
constexpr const char* kTitle = "Velmora";
// The gap between the calculator's frame and the panel's.
constexpr int kGap = 6;

}  // namespace

Frm2Text::Frm2Text(QWidget* owner, platform::MessageBox& box, platform::ToolWindows* tools)
    : QWidget(owner, Qt::Window), box_(box), tools_(tools) {
  setObjectName(QStringLiteral("frm2text"));
  setWindowTitle(QStringLiteral("Panel"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  toolbar_ = new QToolBar(this);
  toolbar_->setObjectName(QStringLiteral("Toolbar1"));
  toolbar_->setToolButtonStyle(Qt::ToolButtonTextOnly);
  const struct {
    const char* key;
    void (Frm2Text::*slot)();
    const char* tip;
  } buttons[] = {
      {"New", &Frm2Text::New, "Clear the panel"},
      {"Copy", &Frm2Text::Copy, "Copy the selection"},
      {"Clear", &Frm2Text::Clear, "Erase the selection"},
      {"Pad", &Frm2Text::Pad, "Show MathPad"},
  };
  for (const auto& b : buttons) {
    QAction* action = toolbar_->addAction(QString::fromLatin1(b.key));
    action->setObjectName(QString::fromLatin1(b.key));
    action->setToolTip(QString::fromLatin1(b.tip));
    connect(action, &QAction::triggered, this, b.slot);
  }
  layout->addWidget(toolbar_);
  rt1_ = new QTextEdit(this);
  rt1_->setObjectName(QStringLiteral("rt1"));
  rt1_->setAcceptRichText(true);
  layout->addWidget(rt1_, 1);
  const QFontMetrics metrics(font());
  resize(metrics.horizontalAdvance(QLatin1Char('x')) * 40, metrics.height() * 24);
  UpdatePad();
}

QAction* Frm2Text::Button(const QString& key) const { return toolbar_->findChild<QAction*>(key); }

void Frm2Text::AppendText(const QString& text) {
  QString plain = text;
  plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  QTextCursor cursor = rt1_->textCursor();
  cursor.movePosition(QTextCursor::End);
  cursor.insertText(plain);
  rt1_->setTextCursor(cursor);
  rt1_->ensureCursorVisible();
}

QString Frm2Text::Text() const { return rt1_->toPlainText(); }

void Frm2Text::ShowBeside(QPointer<Frm2Text>& panel, QWidget& calculator, bool shown,
                          platform::MessageBox& messages, platform::ToolWindows* tools,
                          const std::function<void()>& closedByItself) {
  if (!shown) {
    if (panel != nullptr) panel->hide();
    return;
  }
  if (panel == nullptr) {
    // A window of its own beside the calculator, which goes with it.
    panel = new Frm2Text(&calculator, messages, tools);
    connect(panel, &Frm2Text::closedByItself, &calculator, closedByItself);
  }
  panel->PlaceBeside(calculator);
  panel->show();
  panel->raise();
}

void Frm2Text::PlaceBeside(const QWidget& calculator) {
  const QRect frame = calculator.frameGeometry();
  const QScreen* screen =
      calculator.screen() != nullptr ? calculator.screen() : QGuiApplication::primaryScreen();
  const QRect room = screen != nullptr ? screen->availableGeometry() : QRect();
  const int frameExtra = frameGeometry().width() - width();
  int x = frame.right() + 1 + kGap;
  if (room.isValid() && x + width() + frameExtra > room.right() &&
      frame.left() - kGap - width() > room.left()) {
    x = frame.left() - kGap - width() - frameExtra;
  }
  resize(width(), calculator.height());
  move(x, frame.top());
}

void Frm2Text::New() {
  if (rt1_->document()->isEmpty()) return;
  if (box_.Show(kNewQuestion, kNewTitle, platform::MsgIcon::Question, platform::MsgButtons::YesNo) ==
      platform::MsgResult::Yes) {
    rt1_->clear();
  }
}

void Frm2Text::Copy() {
  if (!rt1_->textCursor().hasSelection()) {
    box_.Show(kSelectToCopy, kTitle, platform::MsgIcon::None);
    return;
  }
  rt1_->copy();
}

void Frm2Text::Clear() {
  QTextCursor cursor = rt1_->textCursor();
  if (!cursor.hasSelection()) {
    box_.Show(kSelectToErase, kTitle, platform::MsgIcon::None);
    return;
  }
  cursor.removeSelectedText();
}

void Frm2Text::Pad() {
  if (tools_ == nullptr || !tools_->Has(platform::ToolWindow::MathPad)) return;
  // Show makes MathPad if needed and restores it when minimised.
  tools_->Show(platform::ToolWindow::MathPad);
}

void Frm2Text::UpdatePad() {
  Button(QStringLiteral("Pad"))->setEnabled(tools_ != nullptr && tools_->Has(platform::ToolWindow::MathPad));
}

void Frm2Text::showEvent(QShowEvent* event) {
  UpdatePad();
  QWidget::showEvent(event);
}

void Frm2Text::closeEvent(QCloseEvent* event) {
  // The panel is only hidden, with its text, and its owner is told.
  event->accept();
  emit closedByItself();
}

}  // namespace velmora::mathpad_qt
