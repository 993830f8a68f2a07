#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora::mathpad {

// The size panel: a length in bytes / 1024, rounded to 2 decimals, + " KB"
// ("0 KB", "1.5 KB", "12.35 KB").
std::string SizePanelText(std::uint64_t bytes);

// The window caption for a file ("" is an untitled document).
std::string CaptionFor(const std::string& path);

// Whether the file panel's name is the untitled one ("UNTITLED" at its end,
// in any letter case), which Save turns into Save As.
bool IsUntitledName(std::string_view name);

// What the find of the editor is asked for. The dialog's option word is
// "Case sensitive" * 2 + "Whole word only" * 4, and in the editor's find 2
// means whole word and 4 match case: the two boxes act crossed, and they
// stay so.
struct FindFlags {
  bool wholeWord = false;
  bool matchCase = false;
  bool operator==(const FindFlags&) const = default;
};
int FindOptionWord(bool caseSensitiveBox, bool wholeWordBox);
FindFlags FlagsOfOptionWord(int optionWord);

// The caret's line and column (both from 1) in a text whose lines end in '\n'.
struct CaretPlace {
  int line = 1;
  int column = 1;
  bool operator==(const CaretPlace&) const = default;
};
CaretPlace CaretLineColumn(std::u16string_view text, std::size_t caret);

// Change Case of the selection: ASCII and Latin letters.
std::u16string UpperCaseText(std::u16string_view text);
std::u16string LowerCaseText(std::u16string_view text);

}  // namespace velmora::mathpad
