#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "rtf/document.h"

namespace velmora::mathpad {

// A file name ending in ".RTF" in any letter case is rich text; any other
// is plain text.
bool IsRichTextName(std::string_view path);

// A document from a file's bytes: RTF read tolerantly, or plain text as
// UTF-8 (code page 1252 when the bytes are not UTF-8).
rtf::Document DocumentFromBytes(std::string_view bytes, bool richText);
// The bytes a document is saved as, by the name: RTF, or plain UTF-8 text
// with LF line ends (pictures and formatting left out).
std::string DocumentBytes(const rtf::Document& document, std::string_view path);

// Reads a whole file; nothing when it cannot be read.
std::optional<std::string> ReadFileBytes(const std::string& path);
// Loads a document as MathPad's Open does (rich text by IsRichTextName);
// nothing when the file cannot be read.
std::optional<rtf::Document> LoadDocument(const std::string& path);
std::optional<rtf::Document> LoadDocument(const std::string& path, bool richText);
// Saves a document as MathPad's Save does, replacing the file atomically:
// a failure leaves the old file as it was. False on failure.
bool SaveDocument(const rtf::Document& document, const std::string& path);

}  // namespace velmora::mathpad
