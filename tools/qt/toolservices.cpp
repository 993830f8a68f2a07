#include "tools/qt/toolservices.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/qtstring.h"

namespace velmora::tools_qt {

QString ToDisplay(const std::string& text) {
  QString shown = qtplatform::ToQString(text);
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return shown;
}

std::string FromDisplay(const QString& text) {
  QString kept = text;
  kept.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  kept.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
  return qtplatform::ToStdString(kept);
}

void PutText(const QString& text) {
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->clear();
  clipboard->setText(text);
}

}  // namespace velmora::tools_qt
