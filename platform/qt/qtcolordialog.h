#pragma once

#include <QColor>

#include "platform/colordialog.h"

namespace velmora::qtplatform {

// The colour chooser as QColorDialog. The program's colours keep red in the
// low byte and blue in the high one; QColor is converted both ways.
class QtColorDialog final : public platform::ColorDialog {
 public:
  std::optional<std::uint32_t> Choose(std::uint32_t initial) override;
};

// The program's colour (blue in the high byte) as a QColor and back.
QColor ColorFromBgr(std::uint32_t bgr);
std::uint32_t BgrFromColor(const QColor& color);

}  // namespace velmora::qtplatform
