#include "mathpad/padlogic.h"

#include "base/asciicase.h"
#include "expr/numtext.h"
#include "mathpad/padtexts.h"

namespace velmora::mathpad {

std::string SizePanelText(std::uint64_t bytes) {
  return expr::NumberToText(expr::RoundTo(static_cast<double>(bytes) / 1024.0, 2)) + " KB";
}

std::string CaptionFor(const std::string& path) {
  if (path.empty()) return std::string(texts::kUntitledCaption);
  return std::string(texts::kFileCaptionPrefix) + path;
}

bool IsUntitledName(std::string_view name) {
  constexpr std::string_view kEnd = "UNTITLED";
  return name.size() >= kEnd.size() && base::UpperCase(name.substr(name.size() - kEnd.size())) == kEnd;
}

int FindOptionWord(bool caseSensitiveBox, bool wholeWordBox) {
  return (caseSensitiveBox ? 1 : 0) * 2 + (wholeWordBox ? 1 : 0) * 4;
}

FindFlags FlagsOfOptionWord(int optionWord) {
  return FindFlags{(optionWord & 2) != 0, (optionWord & 4) != 0};
}

CaretPlace CaretLineColumn(std::u16string_view text, std::size_t caret) {
  CaretPlace place;
  if (caret > text.size()) caret = text.size();
  for (std::size_t i = 0; i < caret; ++i) {
    if (text[i] == u'\n' || text[i] == u'\u2029') {
      ++place.line;
      place.column = 1;
    } else {
      ++place.column;
    }
  }
  return place;
}

namespace {

// Latin-1 letters change case by 0x20, except the multiplication and
// division signs and the letters without a partner in the range.
char16_t Upper(char16_t c) {
  if (c >= u'a' && c <= u'z') return static_cast<char16_t>(c - 0x20);
  if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return static_cast<char16_t>(c - 0x20);
  return c;
}

char16_t Lower(char16_t c) {
  if (c >= u'A' && c <= u'Z') return static_cast<char16_t>(c + 0x20);
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return static_cast<char16_t>(c + 0x20);
  return c;
}

}  // namespace

std::u16string UpperCaseText(std::u16string_view text) {
  std::u16string out(text);
  for (char16_t& c : out) c = Upper(c);
  return out;
}

std::u16string LowerCaseText(std::u16string_view text) {
  std::u16string out(text);
  for (char16_t& c : out) c = Lower(c);
  return out;
}

}  // namespace velmora::mathpad
