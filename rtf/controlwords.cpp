#include "rtf/controlwords.h"

#include <algorithm>
#include <array>

namespace velmora::rtf {

namespace {

using W = Word;

// Sorted by name for the binary search below.
constexpr auto kWords = std::to_array<WordEntry>({
    {"aftnsep", W::SkipGroup, 0},
    {"aftnsepc", W::SkipGroup, 0},
    {"annotation", W::SkipGroup, 0},
    {"atnauthor", W::SkipGroup, 0},
    {"atnid", W::SkipGroup, 0},
    {"author", W::SkipGroup, 0},
    {"b", W::Bold, 0},
    {"bin", W::Bin, 0},
    {"blue", W::Blue, 0},
    {"bullet", W::Char, 0x2022},
    {"buptim", W::SkipGroup, 0},
    {"cell", W::Cell, 0},
    {"cf", W::ColorIndex, 0},
    {"colortbl", W::ColorTable, 0},
    {"comment", W::SkipGroup, 0},
    {"company", W::SkipGroup, 0},
    {"creatim", W::SkipGroup, 0},
    {"deff", W::DefaultFont, 0},
    {"dibitmap", W::OtherBlip, 0},
    {"dn", W::Down, 0},
    {"doccomm", W::SkipGroup, 0},
    {"docvar", W::SkipGroup, 0},
    {"emdash", W::Char, 0x2014},
    {"emfblip", W::OtherBlip, 0},
    {"emspace", W::Char, 0x2003},
    {"endash", W::Char, 0x2013},
    {"enspace", W::Char, 0x2002},
    {"f", W::Font, 0},
    {"field", W::Transparent, 0},
    {"fldinst", W::SkipGroup, 0},
    {"fldrslt", W::Transparent, 0},
    {"fonttbl", W::FontTable, 0},
    {"footer", W::SkipGroup, 0},
    {"footerf", W::SkipGroup, 0},
    {"footerl", W::SkipGroup, 0},
    {"footerr", W::SkipGroup, 0},
    {"footnote", W::SkipGroup, 0},
    {"fs", W::FontSize, 0},
    {"ftncn", W::SkipGroup, 0},
    {"ftnsep", W::SkipGroup, 0},
    {"ftnsepc", W::SkipGroup, 0},
    {"green", W::Green, 0},
    {"header", W::SkipGroup, 0},
    {"headerf", W::SkipGroup, 0},
    {"headerl", W::SkipGroup, 0},
    {"headerr", W::SkipGroup, 0},
    {"i", W::Italic, 0},
    {"info", W::SkipGroup, 0},
    {"jpegblip", W::JpegBlip, 0},
    {"keywords", W::SkipGroup, 0},
    {"ldblquote", W::Char, 0x201C},
    {"line", W::Line, 0},
    {"listoverridetable", W::SkipGroup, 0},
    {"listtable", W::SkipGroup, 0},
    {"listtext", W::BulletText, 0},
    {"lquote", W::Char, 0x2018},
    {"ls", W::ListOverride, 0},
    {"macpict", W::OtherBlip, 0},
    {"nonshppict", W::SkipGroup, 0},
    {"nosupersub", W::NoSuperSub, 0},
    {"objdata", W::SkipGroup, 0},
    {"object", W::Transparent, 0},
    {"operator", W::SkipGroup, 0},
    {"page", W::Par, 0},
    {"par", W::Par, 0},
    {"pard", W::ParagraphDefault, 0},
    {"pich", W::PictureHeight, 0},
    {"pichgoal", W::PictureGoalHeight, 0},
    {"picscalex", W::PictureScaleX, 0},
    {"picscaley", W::PictureScaleY, 0},
    {"pict", W::Picture, 0},
    {"picw", W::PictureWidth, 0},
    {"picwgoal", W::PictureGoalWidth, 0},
    {"plain", W::Plain, 0},
    {"pmmetafile", W::OtherBlip, 0},
    {"pn", W::Numbering, 0},
    {"pngblip", W::PngBlip, 0},
    {"pnlvlblt", W::BulletLevel, 0},
    {"pntext", W::BulletText, 0},
    {"printim", W::SkipGroup, 0},
    {"qc", W::AlignCenter, 0},
    {"qd", W::AlignJustify, 0},
    {"qj", W::AlignJustify, 0},
    {"ql", W::AlignLeft, 0},
    {"qmspace", W::Char, 0x2005},
    {"qr", W::AlignRight, 0},
    {"rdblquote", W::Char, 0x201D},
    {"red", W::Red, 0},
    {"result", W::Transparent, 0},
    {"revtim", W::SkipGroup, 0},
    {"row", W::Par, 0},
    {"rquote", W::Char, 0x2019},
    {"sect", W::Par, 0},
    {"shppict", W::Transparent, 0},
    {"shprslt", W::SkipGroup, 0},
    {"strike", W::Strike, 0},
    {"striked", W::Strike, 0},
    {"stylesheet", W::SkipGroup, 0},
    {"sub", W::Sub, 0},
    {"subject", W::SkipGroup, 0},
    {"super", W::Super, 0},
    {"tab", W::Tab, 0},
    {"template", W::SkipGroup, 0},
    {"title", W::SkipGroup, 0},
    {"txe", W::SkipGroup, 0},
    {"u", W::Unicode, 0},
    {"uc", W::UnicodeSkip, 0},
    {"ul", W::Underline, 0},
    {"uld", W::Underline, 0},
    {"uldash", W::Underline, 0},
    {"uldashd", W::Underline, 0},
    {"uldashdd", W::Underline, 0},
    {"uldb", W::Underline, 0},
    {"ulhwave", W::Underline, 0},
    {"ulldash", W::Underline, 0},
    {"ulnone", W::UnderlineNone, 0},
    {"ulth", W::Underline, 0},
    {"ulthd", W::Underline, 0},
    {"ulthdash", W::Underline, 0},
    {"ulthdashd", W::Underline, 0},
    {"ulthdashdd", W::Underline, 0},
    {"ulthldash", W::Underline, 0},
    {"ululdbwave", W::Underline, 0},
    {"ulw", W::Underline, 0},
    {"ulwave", W::Underline, 0},
    {"up", W::Up, 0},
    {"wbitmap", W::OtherBlip, 0},
    {"wmetafile", W::OtherBlip, 0},
    {"xe", W::SkipGroup, 0},
    {"zwj", W::Char, 0x200D},
    {"zwnj", W::Char, 0x200C},
});

constexpr WordEntry kUnknown{"", Word::Unknown, 0};

constexpr bool Sorted() {
  for (std::size_t i = 1; i < kWords.size(); ++i) {
    if (!(kWords[i - 1].name < kWords[i].name)) return false;
  }
  return true;
}
static_assert(Sorted(), "the control word table must stay sorted by name");

}  // namespace

const WordEntry& LookUpWord(std::string_view name) {
  const auto it =
      std::lower_bound(kWords.begin(), kWords.end(), name,
                       [](const WordEntry& entry, std::string_view key) { return entry.name < key; });
  if (it != kWords.end() && it->name == name) return *it;
  return kUnknown;
}

}  // namespace velmora::rtf
