#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmora::rtf {

// A 24-bit colour as a document stores it.
struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Color&) const = default;
};

// Raised or lowered text: the word processors' own super/subscript, which
// picks size and offset itself, as opposed to an explicit offset.
enum class Script { Normal, Super, Sub };

// The character formatting of one run. Sizes and offsets are in half points,
// as RTF counts them; an empty font name is the document's default font and
// no colour is the automatic (text) colour.
struct CharFormat {
  std::string font;
  int halfPoints = 24;
  std::optional<Color> color;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  Script script = Script::Normal;
  // Baseline offset in half points, positive up (\up), negative down (\dn).
  int offset = 0;
  bool operator==(const CharFormat&) const = default;
};

// An embedded picture: the encoded file as it was (PNG or JPEG), its size in
// pixels and the size it is shown at in twips (0 when the document gave none).
struct Picture {
  enum class Kind { Png, Jpeg };
  Kind kind = Kind::Png;
  std::string data;
  int widthPixels = 0;
  int heightPixels = 0;
  int widthTwips = 0;
  int heightTwips = 0;
  bool operator==(const Picture&) const = default;
};

// A stretch of text in one format, or a single picture (then text is empty).
// Text is UTF-8; a tab is '\t' and a line break inside the paragraph '\n'.
struct Run {
  CharFormat format;
  std::string text;
  std::optional<Picture> picture;
  bool operator==(const Run&) const = default;
};

enum class Alignment { Left, Center, Right, Justify };

struct Paragraph {
  Alignment alignment = Alignment::Left;
  bool bullet = false;
  std::vector<Run> runs;
  bool operator==(const Paragraph&) const = default;
};

// A document is never without a paragraph: an empty one has one empty
// paragraph.
struct Document {
  std::vector<Paragraph> paragraphs{Paragraph{}};
  bool operator==(const Document&) const = default;
};

// Appends text in a format to a paragraph, joining it to the last run when
// that run has the same format and is not a picture.
void AppendText(Paragraph& paragraph, const CharFormat& format, const std::string& text);

// The plain text of a document: paragraphs joined by '\n', pictures left out.
std::string PlainText(const Document& document);

// A document of plain paragraphs in the default format, one per line of
// `text` (lines end in LF or CR LF); control characters other than tabs
// are left out.
Document FromPlainText(const std::string& text, const CharFormat& format = {});

}  // namespace velmora::rtf
