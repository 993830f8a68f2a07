#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora::rtf {

// The code point of a byte of Windows-1252 text. The five bytes that code
// page leaves undefined map to the C1 controls of the same value, as the
// Windows converters do.
char32_t FromCp1252(unsigned char byte);
// The Windows-1252 byte of a code point, or nothing when it has none. Unlike
// base::Utf8ToSingleByte this maps the whole code page (the euro sign, curly
// quotes ...), since a \'hh escape carries them and others fall back to \uN.
std::optional<unsigned char> ToCp1252(char32_t codePoint);

// Appends a code point as UTF-8; surrogates and values beyond U+10FFFF
// become U+FFFD.
void AppendUtf8(std::string& out, char32_t codePoint);
// Reads one code point of UTF-8 at `pos` and moves past it; a malformed
// sequence gives U+FFFD and moves one byte.
char32_t NextUtf8(std::string_view text, std::size_t& pos);
// Whether the bytes are well-formed UTF-8.
bool IsValidUtf8(std::string_view text);
// Windows-1252 bytes as UTF-8.
std::string Cp1252ToUtf8(std::string_view bytes);

}  // namespace velmora::rtf
