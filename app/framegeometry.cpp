#include "app/framegeometry.h"

#include <QByteArray>
#include <QWidget>

namespace velmora::app {

void SaveFrameGeometry(platform::SettingsStore& store, const QWidget& frame) {
  const QByteArray text = frame.saveGeometry().toBase64();
  platform::SetRegValue(store, kFrameSection, kFrameGeometry,
                        std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
}

bool RestoreFrameGeometry(platform::SettingsStore& store, QWidget& frame) {
  const std::string text = platform::GetRegValue(store, kFrameSection, kFrameGeometry, "");
  if (text.empty()) return false;
  const QByteArray record = QByteArray::fromBase64(QByteArray::fromStdString(text));
  return !record.isEmpty() && frame.restoreGeometry(record);
}

}  // namespace velmora::app
