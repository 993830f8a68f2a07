#include "mathpad/symbolcodes.h"

namespace velmora::mathpad {

namespace {

std::string InBase(unsigned value, unsigned base) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string out;
  do {
    out.insert(out.begin(), kDigits[value % base]);
    value /= base;
  } while (value != 0);
  return out;
}

// The keyboard entry pads the code with zeros to four digits.
std::string Padded(unsigned code) {
  const std::string digits = std::to_string(code);
  if (digits.size() >= 4) return digits;
  return std::string(4 - digits.size(), '0') + digits;
}

}  // namespace

SymbolCodes CodesOf(unsigned code, const std::string& character) {
  SymbolCodes out;
  out.codes = "Dec: " + std::to_string(code) + " Hex: " + InBase(code, 16) + " Bin: " + InBase(code, 2);
  out.status = "ASCII Code: 0" + std::to_string(code) + "   Alphanumeric Representation: " + character;
  out.keyboard = "ALT + " + Padded(code);
  return out;
}

}  // namespace velmora::mathpad
