#pragma once

#include <string_view>

namespace velmora::rtf {

// What a control word means to the reader. Words not in the table are
// passed over; destinations not in the table are skipped only when \*
// marks them.
enum class Word {
  Unknown,
  // Destinations.
  FontTable,
  ColorTable,
  Picture,
  SkipGroup,    // a destination whose content is never text
  BulletText,   // \pntext, \listtext: the bullet drawn in front, a bullet paragraph
  Numbering,    // \pn: numbering properties, read for \pnlvlblt
  Transparent,  // \shppict, \fldrslt, \field ...: a group whose content is text
  // Characters.
  Par,
  Line,
  Tab,
  Cell,
  Char,  // a fixed character (see the table's code point)
  Unicode,
  UnicodeSkip,
  Bin,
  // Character formatting.
  Plain,
  Bold,
  Italic,
  Underline,
  UnderlineNone,
  Strike,
  Font,
  FontSize,
  ColorIndex,
  Up,
  Down,
  Super,
  Sub,
  NoSuperSub,
  DefaultFont,
  // Colour table entries.
  Red,
  Green,
  Blue,
  // Paragraphs.
  ParagraphDefault,
  AlignLeft,
  AlignCenter,
  AlignRight,
  AlignJustify,
  ListOverride,
  BulletLevel,
  // Pictures.
  PngBlip,
  JpegBlip,
  OtherBlip,
  PictureWidth,
  PictureHeight,
  PictureGoalWidth,
  PictureGoalHeight,
  PictureScaleX,
  PictureScaleY,
};

struct WordEntry {
  std::string_view name;
  Word word;
  char32_t codePoint;  // for Word::Char
};

// The meaning of a control word (name without the backslash).
const WordEntry& LookUpWord(std::string_view name);

}  // namespace velmora::rtf
