#include "platform/qt/qtinputbox.h"

#include <QApplication>
#include <QInputDialog>

namespace velmora::qtplatform {

std::optional<std::string> QtInputBox::Ask(const std::string& prompt, const std::string& title,
                                           const std::string& defaultText) {
  bool ok = false;
  const QString answer = QInputDialog::getText(QApplication::activeWindow(), QString::fromStdString(title),
                                               QString::fromStdString(prompt), QLineEdit::Normal,
                                               QString::fromStdString(defaultText), &ok);
  if (!ok) return std::nullopt;
  return answer.toStdString();
}

}  // namespace velmora::qtplatform
