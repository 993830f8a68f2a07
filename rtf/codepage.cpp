#include "rtf/codepage.h"

#include <array>

namespace velmora::rtf {

namespace {

// Bytes 0x80 to 0x9F of Windows-1252; the rest of the code page is Latin-1.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

}  // namespace

char32_t FromCp1252(unsigned char byte) {
  if (byte >= 0x80 && byte <= 0x9F) return kHigh[byte - 0x80];
  return byte;
}

std::optional<unsigned char> ToCp1252(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
    return static_cast<unsigned char>(codePoint);
  for (std::size_t i = 0; i < kHigh.size(); ++i) {
    if (kHigh[i] == codePoint) return static_cast<unsigned char>(0x80 + i);
  }
  return std::nullopt;
}

void AppendUtf8(std::string& out, char32_t c) {
  if ((c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) c = 0xFFFD;
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

char32_t NextUtf8(std::string_view text, std::size_t& pos) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(pos);
  int extra = 0;
  char32_t c = 0;
  char32_t minimum = 0;
  if (lead < 0x80) {
    ++pos;
    return lead;
  } else if ((lead & 0xE0) == 0xC0) {
    extra = 1, c = lead & 0x1F, minimum = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    extra = 2, c = lead & 0x0F, minimum = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    extra = 3, c = lead & 0x07, minimum = 0x10000;
  } else {
    ++pos;
    return 0xFFFD;
  }
  if (pos + static_cast<std::size_t>(extra) >= text.size()) {  // cut short
    ++pos;
    return 0xFFFD;
  }
  for (int i = 1; i <= extra; ++i) {
    const unsigned char next = byte(pos + static_cast<std::size_t>(i));
    if ((next & 0xC0) != 0x80) {
      ++pos;
      return 0xFFFD;
    }
    c = (c << 6) | (next & 0x3F);
  }
  if (c < minimum || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
    ++pos;
    return 0xFFFD;
  }
  pos += static_cast<std::size_t>(extra) + 1;
  return c;
}

bool IsValidUtf8(std::string_view text) {
  std::size_t pos = 0;
  while (pos < text.size()) {
    const std::size_t start = pos;
    const char32_t c = NextUtf8(text, pos);
    // A real U+FFFD takes three bytes; a fault moves one.
    if (c == 0xFFFD && pos - start == 1) return false;
  }
  return true;
}

std::string Cp1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (const char b : bytes) AppendUtf8(out, FromCp1252(static_cast<unsigned char>(b)));
  return out;
}

}  // namespace velmora::rtf
