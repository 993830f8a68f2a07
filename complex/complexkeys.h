#pragma once

#include <span>
#include <string_view>

// The keyboard of the Complex Calculator as data: which key, by its classic
// virtual key code, acts as which button. The window looks every key up here
// wherever the focus stands in it and clicks the button named.
namespace velmora::complex {

// The classic virtual key codes the table speaks of.
namespace keycode {
inline constexpr int kDelete = 46;
inline constexpr int kA = 65;
inline constexpr int kNumpad0 = 96;
inline constexpr int kMultiply = 106;
inline constexpr int kAdd = 107;
inline constexpr int kSubtract = 109;
inline constexpr int kDecimal = 110;
inline constexpr int kDivide = 111;
}  // namespace keycode

struct KeyEntry {
  int code;                  // the virtual key code
  std::string_view control;  // the button it clicks
  int index;                 // its index in a control array, -1 for none
};

// Every mapped key. The digits of the keyboard's main row are not mapped:
// only the numeric keypad types digits.
std::span<const KeyEntry> KeyTable();
// The entry of a key code; nullptr when the key is not mapped.
const KeyEntry* FindKey(int code);

}  // namespace velmora::complex
