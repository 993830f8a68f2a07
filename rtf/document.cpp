#include "rtf/document.h"

namespace velmora::rtf {

void AppendText(Paragraph& paragraph, const CharFormat& format, const std::string& text) {
  if (text.empty()) return;
  if (!paragraph.runs.empty()) {
    Run& last = paragraph.runs.back();
    if (!last.picture && last.format == format) {
      last.text += text;
      return;
    }
  }
  paragraph.runs.push_back(Run{format, text, std::nullopt});
}

std::string PlainText(const Document& document) {
  std::string out;
  bool first = true;
  for (const Paragraph& paragraph : document.paragraphs) {
    if (!first) out += '\n';
    first = false;
    for (const Run& run : paragraph.runs) out += run.text;
  }
  return out;
}

Document FromPlainText(const std::string& text, const CharFormat& format) {
  Document document;
  document.paragraphs.clear();
  std::size_t start = 0;
  while (true) {
    const std::size_t end = text.find('\n', start);
    std::string line = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    // Control characters other than tabs are no text in a document.
    std::erase_if(line, [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t'; });
    Paragraph paragraph;
    AppendText(paragraph, format, line);
    document.paragraphs.push_back(std::move(paragraph));
    if (end == std::string::npos) break;
    start = end + 1;
  }
  return document;
}

}  // namespace velmora::rtf
