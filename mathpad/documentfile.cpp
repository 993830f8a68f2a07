#include "mathpad/documentfile.h"

#include <fstream>
#include <iterator>
#include <sstream>

#include "base/asciicase.h"
#include "base/atomicfile.h"
#include "rtf/codepage.h"
#include "rtf/rtfreader.h"
#include "rtf/rtfwriter.h"

namespace velmora::mathpad {

bool IsRichTextName(std::string_view path) {
  return path.size() >= 4 && base::UpperCase(path.substr(path.size() - 4)) == ".RTF";
}

rtf::Document DocumentFromBytes(std::string_view bytes, bool richText) {
  if (richText) return rtf::ReadRtf(bytes);
  return rtf::FromPlainText(rtf::IsValidUtf8(bytes) ? std::string(bytes) : rtf::Cp1252ToUtf8(bytes));
}

std::string DocumentBytes(const rtf::Document& document, std::string_view path) {
  if (IsRichTextName(path)) return rtf::WriteRtf(document);
  return rtf::PlainText(document);
}

std::optional<std::string> ReadFileBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream bytes;
  bytes << in.rdbuf();
  if (in.bad()) return std::nullopt;
  return std::move(bytes).str();
}

std::optional<rtf::Document> LoadDocument(const std::string& path) {
  return LoadDocument(path, IsRichTextName(path));
}

std::optional<rtf::Document> LoadDocument(const std::string& path, bool richText) {
  const auto bytes = ReadFileBytes(path);
  if (!bytes) return std::nullopt;
  return DocumentFromBytes(*bytes, richText);
}

bool SaveDocument(const rtf::Document& document, const std::string& path) {
  return base::WriteFileAtomically(path, DocumentBytes(document, path));
}

}  // namespace velmora::mathpad
