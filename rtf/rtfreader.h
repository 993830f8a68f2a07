#pragma once

#include <string_view>

#include "rtf/document.h"

namespace velmora::rtf {

// Whether the bytes open as an RTF document ("{\rtf", leading white space
// allowed).
bool LooksLikeRtf(std::string_view bytes);

// Reads an RTF document: fonts, sizes, colours, bold, italic, underline,
// strike, super/subscript and \up/\dn offsets, alignment, bullets, tabs,
// line breaks, PNG and JPEG pictures, \uN Unicode and code page 1252 text.
//
// The reader is tolerant by design: unknown control words are passed over,
// unknown and \* destinations are skipped with their groups, unbalanced
// braces and cut-off input give whatever text was read up to that point,
// nesting beyond a fixed depth shares the deepest group's state, and \binN
// never reads past the input. Bytes that do not open as RTF are read as
// plain text. It runs in time linear in the input, without recursion, and
// never throws on any input.
Document ReadRtf(std::string_view bytes);

}  // namespace velmora::rtf
