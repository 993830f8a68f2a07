#include "base/singlebyte.h"

namespace velmora::base {

std::string Utf8ToSingleByte(std::string_view utf8, char32_t lowest) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const auto continuation = [&](std::size_t i) { return i < utf8.size() && (at(i) & 0xC0) == 0x80; };
  std::string out;
  out.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const unsigned char c = at(i);
    if (c < 0x80) {
      out += static_cast<char>(c);
      ++i;
    } else if ((c & 0xE0) == 0xC0 && continuation(i + 1)) {
      const char32_t code = ((c & 0x1Fu) << 6) | (at(i + 1) & 0x3Fu);
      out += code >= lowest && code <= 0xFF ? static_cast<char>(code) : '?';
      i += 2;
    } else {
      out += '?';
      ++i;
      while (continuation(i)) ++i;
    }
  }
  return out;
}

}  // namespace velmora::base
