#pragma once

#include <functional>

#include <QPointer>
#include <QString>
#include <QWidget>

#include "platform/messagebox.h"
#include "platform/toolwindows.h"

class QAction;
class QCloseEvent;
class QShowEvent;
class QTextEdit;
class QToolBar;

namespace velmora::mathpad_qt {

// `frm2text`, the panel: a small window with a rich text box `rt1` and the
// toolbar `Toolbar1` (New, Copy, Clear, Pad), a scratch pad that stands
// beside a calculator and collects what the calculator writes to it.
class Frm2Text final : public QWidget {
  Q_OBJECT

 public:
  // `tools` opens MathPad for "Pad"; null or without MathPad the button
  // stays disabled.
  Frm2Text(QWidget* owner, platform::MessageBox& box, platform::ToolWindows* tools);

  // Appends text at the end (CR LF lines become paragraphs) and puts the
  // caret there.
  void AppendText(const QString& text);
  QString Text() const;
  QTextEdit* rt1() const { return rt1_; }
  // The toolbar's button of a key ("New", "Copy", "Clear", "Pad").
  QAction* Button(const QString& key) const;

  // Stands the panel beside `calculator`, right of it when the screen has
  // room there, else left of it, as tall as it.
  void PlaceBeside(const QWidget& calculator);
  // Shows `panel` beside `calculator` (made on first use, with the
  // calculator as its owner) or hides it. `closedByItself` is called when
  // the user closes a panel made here.
  static void ShowBeside(QPointer<Frm2Text>& panel, QWidget& calculator, bool shown,
                         platform::MessageBox& messages, platform::ToolWindows* tools,
                         const std::function<void()>& closedByItself);

 signals:
  // The user closed the panel (its own close button or the desktop's).
  void closedByItself();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void New();
  void Copy();
  void Clear();
  void Pad();
  void UpdatePad();

  platform::MessageBox& box_;
  platform::ToolWindows* tools_;
  QTextEdit* rt1_ = nullptr;
  QToolBar* toolbar_ = nullptr;
};

}  // namespace velmora::mathpad_qt
