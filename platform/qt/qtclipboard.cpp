#include "platform/qt/qtclipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/qtstring.h"

namespace velmora::qtplatform {

void QtClipboard::SetText(const std::string& text) { QGuiApplication::clipboard()->setText(ToQString(text)); }

}  // namespace velmora::qtplatform
