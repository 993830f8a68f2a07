#include "complex/qt/virtualkey.h"

#include <QKeyEvent>

#include "complex/complexkeys.h"

namespace velmora::complex_qt {

int VirtualKey(const QKeyEvent& event) {
  using namespace complex::keycode;
  const Qt::KeyboardModifiers held = event.modifiers();
  if (held & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return 0;
  const int key = event.key();
  const bool keypad = held & Qt::KeypadModifier;
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return kA + (key - Qt::Key_A);
  if (key == Qt::Key_Delete) return kDelete;
  if (!keypad) return 0;
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return kNumpad0 + (key - Qt::Key_0);
  switch (key) {
    case Qt::Key_Asterisk: return kMultiply;
    case Qt::Key_Plus: return kAdd;
    case Qt::Key_Minus: return kSubtract;
    case Qt::Key_Period:
    case Qt::Key_Comma: return kDecimal;  // the keypad's point, in any locale
    case Qt::Key_Slash: return kDivide;
    default: return 0;
  }
}

}  // namespace velmora::complex_qt
