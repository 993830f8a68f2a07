#include "platform/qt/qtmessagebox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace velmora::qtplatform {
namespace {

using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;

QMessageBox::Icon IconOf(MsgIcon icon) {
  switch (icon) {
    case MsgIcon::Critical: return QMessageBox::Critical;
    case MsgIcon::Question: return QMessageBox::Question;
    case MsgIcon::Exclamation: return QMessageBox::Warning;
    case MsgIcon::Information: return QMessageBox::Information;
    case MsgIcon::None: break;
  }
  return QMessageBox::NoIcon;
}

struct ButtonSet {
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton defaultButton;
  QMessageBox::StandardButton escapeButton;
};

ButtonSet ButtonsOf(MsgButtons buttons) {
  switch (buttons) {
    case MsgButtons::OkCancel:
      return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel};
    case MsgButtons::YesNo: return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
    case MsgButtons::YesNoCancel:
      return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
              QMessageBox::Cancel};
    case MsgButtons::RetryCancel:
      return {QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry, QMessageBox::Cancel};
    case MsgButtons::AbortRetryIgnore:
      return {QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore, QMessageBox::Abort,
              QMessageBox::Ignore};
    case MsgButtons::Ok: break;
  }
  return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

MsgResult ResultOf(int button, MsgButtons buttons) {
  switch (button) {
    case QMessageBox::Ok: return MsgResult::Ok;
    case QMessageBox::Yes: return MsgResult::Yes;
    case QMessageBox::No: return MsgResult::No;
    case QMessageBox::Retry: return MsgResult::Retry;
    case QMessageBox::Abort: return MsgResult::Abort;
    case QMessageBox::Ignore: return MsgResult::Ignore;
    case QMessageBox::Cancel: return MsgResult::Cancel;
    default: break;
  }
  // Closed without a choice.
  return buttons == MsgButtons::YesNo ? MsgResult::No
         : buttons == MsgButtons::Ok  ? MsgResult::Ok
                                      : MsgResult::Cancel;
}

}  // namespace

MsgResult QtMessageBox::Show(const std::string& text, const std::string& title, MsgIcon icon,
                             MsgButtons buttons) {
  const ButtonSet set = ButtonsOf(buttons);
  QMessageBox box(IconOf(icon), QString::fromStdString(title), QString::fromStdString(text), set.buttons,
                  QApplication::activeWindow());
  box.setDefaultButton(set.defaultButton);
  box.setEscapeButton(set.escapeButton);
  return ResultOf(box.exec(), buttons);
}

}  // namespace velmora::qtplatform
