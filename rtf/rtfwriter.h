#pragma once

#include <string>

#include "rtf/document.h"

namespace velmora::rtf {

// The font a run with no font name is written in.
inline constexpr const char* kDefaultFont = "Arial";

// Writes a document as RTF 1.x in code page 1252 (other characters as \uN
// with a '?' fallback), with a font table, a colour table, one group per
// run, bullets as \pn paragraph numbering and pictures as \pict with their
// PNG or JPEG data in hex. ReadRtf gives the same document back.
std::string WriteRtf(const Document& document);

}  // namespace velmora::rtf
