#pragma once

#include <string>

namespace velmora::mathpad {

// The texts of Insert Symbol for a character code: the codes label, the
// status bar line and the keyboard entry.
struct SymbolCodes {
  std::string codes;     // "Dec: 169 Hex: A9 Bin: 10101001"
  std::string status;    // "ASCII Code: 0169   Alphanumeric Representation: ©"
  std::string keyboard;  // "ALT + 0169"
};

// `character` is the character itself as UTF-8.
SymbolCodes CodesOf(unsigned code, const std::string& character);

}  // namespace velmora::mathpad
