#include "tools/qt/toolservices.h"

#include <memory>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTimer>

#include "expr/checked.h"
#include "expr/numtext.h"
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

void OnEnter(QComboBox* box, QObject* context, std::function<void()> command) {
  auto pending = std::make_shared<bool>(false);
  QObject::connect(box->lineEdit(), &QLineEdit::returnPressed, context, [pending, command] {
    if (*pending) return;
    *pending = true;
    QTimer::singleShot(0, [pending] { *pending = false; });
    command();
  });
}

QString RangeEndText(double value) {
  double rounded = 0;
  expr::ResumeNext([&] { rounded = expr::RoundTo(value, 5); });
  return qtplatform::ToQString(expr::NumberToText(rounded));
}

void PutText(const QString& text) {
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->clear();
  clipboard->setText(text);
}

}  // namespace velmora::tools_qt
