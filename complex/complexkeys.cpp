#include "complex/complexkeys.h"

#include <array>

namespace velmora::complex {
namespace {

using namespace keycode;

constexpr std::array kKeys{
    // A to D pick the part the keypad types into.
    KeyEntry{kA, "cmdBroj", 1},
    KeyEntry{kA + 1, "cmdBroj", 2},
    KeyEntry{kA + 2, "cmdBroj", 3},
    KeyEntry{kA + 3, "cmdBroj", 4},
    KeyEntry{kNumpad0, "Number", 0},
    KeyEntry{kNumpad0 + 1, "Number", 1},
    KeyEntry{kNumpad0 + 2, "Number", 2},
    KeyEntry{kNumpad0 + 3, "Number", 3},
    KeyEntry{kNumpad0 + 4, "Number", 4},
    KeyEntry{kNumpad0 + 5, "Number", 5},
    KeyEntry{kNumpad0 + 6, "Number", 6},
    KeyEntry{kNumpad0 + 7, "Number", 7},
    KeyEntry{kNumpad0 + 8, "Number", 8},
    KeyEntry{kNumpad0 + 9, "Number", 9},
    KeyEntry{kMultiply, "cmdmnozenje", -1},
    KeyEntry{kAdd, "cmdzbir", -1},
    KeyEntry{kSubtract, "cmdrazlika", -1},
    KeyEntry{kDivide, "cmddeljenje", -1},
    KeyEntry{kDecimal, "Decimal", -1},
    KeyEntry{kDelete, "cmdClearAll", -1},
};

}  // namespace

std::span<const KeyEntry> KeyTable() { return kKeys; }

const KeyEntry* FindKey(int code) {
  for (const KeyEntry& entry : kKeys) {
    if (entry.code == code) return &entry;
  }
  return nullptr;
}

}  // namespace velmora::complex
