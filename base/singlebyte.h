#pragma once

#include <string>
#include <string_view>

namespace velmora::base {

// UTF-8 text as single bytes, one byte a character: ASCII stays, a
// character from `lowest` to U+00FF becomes its byte, and any other
// character, or a malformed sequence (its lead byte and the continuation
// bytes after it), becomes "?". `lowest` is 0x80 for Latin-1 and 0xA0 where
// the bytes 0x80 to 0x9F would be read as Windows-1252's own characters.
std::string Utf8ToSingleByte(std::string_view utf8, char32_t lowest);

}  // namespace velmora::base
