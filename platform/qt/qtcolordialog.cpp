#include "platform/qt/qtcolordialog.h"

#include <QApplication>
#include <QColorDialog>

namespace velmora::qtplatform {

QColor ColorFromBgr(std::uint32_t bgr) {
  return QColor(static_cast<int>(bgr & 0xFFu), static_cast<int>((bgr >> 8) & 0xFFu),
                static_cast<int>((bgr >> 16) & 0xFFu));
}

std::uint32_t BgrFromColor(const QColor& color) {
  return static_cast<std::uint32_t>(color.red()) | (static_cast<std::uint32_t>(color.green()) << 8) |
         (static_cast<std::uint32_t>(color.blue()) << 16);
}

std::optional<std::uint32_t> QtColorDialog::Choose(std::uint32_t initial) {
  const QColor chosen = QColorDialog::getColor(ColorFromBgr(initial), QApplication::activeWindow());
  if (!chosen.isValid()) return std::nullopt;
  return BgrFromColor(chosen);
}

}  // namespace velmora::qtplatform
