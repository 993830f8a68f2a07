#pragma once

class QKeyEvent;

namespace velmora::complex_qt {

// The classic virtual key code of a key press, as the calculator's key
// table speaks of keys: letters 65 to 90, the numeric keypad's digits 96 to
// 105 and its operators 106 to 111, Delete 46. Keys with Ctrl, Alt or Meta
// held, the main row's digits and every other key give 0.
int VirtualKey(const QKeyEvent& event);

}  // namespace velmora::complex_qt
