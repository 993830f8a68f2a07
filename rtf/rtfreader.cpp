#include "rtf/rtfreader.h"

#include <algorithm>
#include <climits>
#include <map>
#include <vector>

#include "rtf/codepage.h"
#include "rtf/controlwords.h"

namespace velmora::rtf {

namespace {

// Deeper groups than this share the state of the deepest one; real
// documents nest a few dozen levels at most.
constexpr std::size_t kMaxDepth = 256;
// Control word names and parameters longer than real ones are cut; the
// rest of the letters and digits are still consumed.
constexpr std::size_t kMaxWordLength = 32;
constexpr int kMaxParamDigits = 10;

enum class Dest { Text, FontTable, ColorTable, Picture, Skip, Numbering };

struct GroupState {
  CharFormat format;
  Dest dest = Dest::Text;
  int unicodeSkip = 1;
};

struct PictureInProgress {
  bool known = false;
  Picture picture;
  int scaleX = 100;
  int scaleY = 100;
  bool highNibble = true;
  unsigned char pending = 0;
};

class Reader {
 public:
  explicit Reader(std::string_view input) : in_(input) {}

  Document Read();

 private:
  GroupState& State() { return stack_.back(); }
  bool AtEnd() const { return pos_ >= in_.size(); }

  void OpenGroup();
  // False when the outermost group closed: the document ends there.
  bool CloseGroup();
  void ControlSymbol(char symbol);
  void ControlWord(std::string_view name, bool hasParam, int param);
  void Destination(Dest dest);
  void TextByte(unsigned char byte);
  void TextChar(char32_t c);
  void FlushText();
  void EndParagraph();
  void ResetFormat(CharFormat& format) const;
  void EndPicture();
  void SkipBinary(int count);

  std::string_view in_;
  std::size_t pos_ = 0;
  std::vector<GroupState> stack_{GroupState{}};
  std::size_t overflowDepth_ = 0;
  bool starred_ = false;     // the group opened with \*
  bool groupStart_ = false;  // no word read yet in the newest group
  int skipFallback_ = 0;
  char32_t highSurrogate_ = 0;

  Document document_;
  Paragraph paragraph_;
  Alignment alignment_ = Alignment::Left;
  bool bullet_ = false;
  // Whether anything of a paragraph came after the last \par: a final \par
  // ends the last paragraph rather than opening an empty one.
  bool touched_ = false;
  std::string text_;
  CharFormat textFormat_;

  std::map<int, std::string> fonts_;
  int defaultFont_ = 0;
  int definingFont_ = -1;
  std::string fontName_;
  std::vector<std::optional<Color>> colors_;
  Color color_;
  bool colorSet_ = false;
  PictureInProgress picture_;
  CharFormat pictureFormat_;
};

void Reader::ResetFormat(CharFormat& format) const { format = CharFormat{}; }

void Reader::FlushText() {
  if (text_.empty()) return;
  AppendText(paragraph_, textFormat_, text_);
  text_.clear();
}

void Reader::EndParagraph() {
  FlushText();
  paragraph_.alignment = alignment_;
  paragraph_.bullet = bullet_;
  document_.paragraphs.push_back(std::move(paragraph_));
  paragraph_ = Paragraph{};
  touched_ = false;
}

void Reader::TextChar(char32_t c) {
  switch (State().dest) {
    case Dest::Text:
      touched_ = true;
      if (!text_.empty() && !(textFormat_ == State().format)) FlushText();
      textFormat_ = State().format;
      AppendUtf8(text_, c);
      break;
    case Dest::FontTable:
      if (c == ';') {
        if (definingFont_ >= 0) fonts_[definingFont_] = fontName_;
        fontName_.clear();
      } else {
        AppendUtf8(fontName_, c);
      }
      break;
    case Dest::ColorTable:
      if (c == ';') {
        colors_.push_back(colorSet_ ? std::optional<Color>(color_) : std::nullopt);
        color_ = Color{};
        colorSet_ = false;
      }
      break;
    case Dest::Picture: {
      int nibble = -1;
      if (c >= '0' && c <= '9') nibble = static_cast<int>(c - '0');
      if (c >= 'a' && c <= 'f') nibble = static_cast<int>(c - 'a' + 10);
      if (c >= 'A' && c <= 'F') nibble = static_cast<int>(c - 'A' + 10);
      if (nibble < 0) break;
      if (picture_.highNibble) {
        picture_.pending = static_cast<unsigned char>(nibble << 4);
      } else {
        picture_.picture.data += static_cast<char>(picture_.pending | nibble);
      }
      picture_.highNibble = !picture_.highNibble;
      break;
    }
    case Dest::Skip:
    case Dest::Numbering: break;
  }
}

void Reader::TextByte(unsigned char byte) {
  if (skipFallback_ > 0) {
    --skipFallback_;
    return;
  }
  highSurrogate_ = 0;
  // Control characters are no text; tabs and breaks come as words.
  if (byte >= 0x20) TextChar(FromCp1252(byte));
}

void Reader::OpenGroup() {
  FlushText();
  skipFallback_ = 0;
  if (stack_.size() >= kMaxDepth) {
    ++overflowDepth_;
    return;
  }
  stack_.push_back(stack_.back());
  starred_ = false;
  groupStart_ = true;
}

bool Reader::CloseGroup() {
  FlushText();
  skipFallback_ = 0;
  if (overflowDepth_ > 0) {
    --overflowDepth_;
    return true;
  }
  if (stack_.size() <= 1) return true;  // a stray '}' before any group
  const Dest closing = State().dest;
  stack_.pop_back();
  if (closing == Dest::Picture && State().dest != Dest::Picture) EndPicture();
  if (closing == Dest::FontTable && definingFont_ >= 0 && !fontName_.empty()) {
    fonts_[definingFont_] = fontName_;
    fontName_.clear();
    definingFont_ = -1;
  }
  return stack_.size() > 1;
}

void Reader::EndPicture() {
  if (picture_.known && !picture_.picture.data.empty()) {
    Picture picture = std::move(picture_.picture);
    const auto scaled = [](int twips, int percent) {
      return static_cast<int>(std::min<long long>(static_cast<long long>(twips) * percent / 100, INT_MAX));
    };
    picture.widthTwips = scaled(picture.widthTwips, picture_.scaleX);
    picture.heightTwips = scaled(picture.heightTwips, picture_.scaleY);
    FlushText();
    paragraph_.runs.push_back(Run{pictureFormat_, {}, std::move(picture)});
    touched_ = true;
  }
  picture_ = PictureInProgress{};
}

void Reader::Destination(Dest dest) {
  GroupState& state = State();
  if (dest == Dest::Picture) {
    picture_ = PictureInProgress{};
    pictureFormat_ = state.format;
  }
  if (dest == Dest::FontTable) definingFont_ = -1;
  state.dest = dest;
}

void Reader::SkipBinary(int count) {
  const std::size_t n = std::min(static_cast<std::size_t>(std::max(count, 0)), in_.size() - pos_);
  if (State().dest == Dest::Picture) picture_.picture.data.append(in_.substr(pos_, n));
  pos_ += n;
}

void Reader::ControlSymbol(char symbol) {
  switch (symbol) {
    case '\\':
    case '{':
    case '}': TextByte(static_cast<unsigned char>(symbol)); break;
    case '~': TextByte(0xA0); break;
    case '_':
      if (skipFallback_ > 0) {
        --skipFallback_;
      } else {
        TextChar(0x2011);
      }
      break;
    case '*':
      if (groupStart_) starred_ = true;
      break;
    case '\r':
    case '\n': ControlWord("par", false, 0); break;
    case '\t': ControlWord("tab", false, 0); break;
    default:  // \- \: \| and unknown symbols carry no text
      if (skipFallback_ > 0) --skipFallback_;
      break;
  }
}

void Reader::ControlWord(std::string_view name, bool hasParam, int param) {
  const WordEntry& entry = LookUpWord(name);
  const bool firstInGroup = groupStart_;
  groupStart_ = false;
  GroupState& state = State();
  const Dest dest = state.dest;

  // A fallback character of \uN may be a control word too.
  if (skipFallback_ > 0 && entry.word != Word::Bin) {
    --skipFallback_;
    return;
  }

  if (firstInGroup && dest != Dest::Skip) {
    switch (entry.word) {
      case Word::FontTable: return Destination(Dest::FontTable);
      case Word::ColorTable: return Destination(Dest::ColorTable);
      case Word::Picture: return Destination(Dest::Picture);
      case Word::SkipGroup: return Destination(Dest::Skip);
      case Word::BulletText:
        if (dest == Dest::Text) bullet_ = true;
        return Destination(Dest::Skip);
      case Word::Numbering: return Destination(Dest::Numbering);
      case Word::Transparent: return;
      default:
        if (starred_) return Destination(Dest::Skip);
        break;
    }
  }

  const bool on = !hasParam || param != 0;
  switch (dest) {
    case Dest::Skip:
      if (entry.word == Word::Bin) SkipBinary(param);
      return;
    case Dest::Numbering:
      if (entry.word == Word::BulletLevel) bullet_ = true;
      if (entry.word == Word::Bin) SkipBinary(param);
      return;
    case Dest::FontTable:
      if (entry.word == Word::Font) {
        definingFont_ = param;
        fontName_.clear();
      } else if (entry.word == Word::Bin) {
        SkipBinary(param);
      }
      return;
    case Dest::ColorTable:
      if (entry.word == Word::Red)
        color_.red = static_cast<std::uint8_t>(std::clamp(param, 0, 255)), colorSet_ = true;
      if (entry.word == Word::Green)
        color_.green = static_cast<std::uint8_t>(std::clamp(param, 0, 255)), colorSet_ = true;
      if (entry.word == Word::Blue)
        color_.blue = static_cast<std::uint8_t>(std::clamp(param, 0, 255)), colorSet_ = true;
      if (entry.word == Word::Bin) SkipBinary(param);
      return;
    case Dest::Picture:
      switch (entry.word) {
        case Word::PngBlip: picture_.known = true, picture_.picture.kind = Picture::Kind::Png; break;
        case Word::JpegBlip: picture_.known = true, picture_.picture.kind = Picture::Kind::Jpeg; break;
        case Word::OtherBlip: picture_.known = false; break;
        case Word::PictureWidth: picture_.picture.widthPixels = std::max(param, 0); break;
        case Word::PictureHeight: picture_.picture.heightPixels = std::max(param, 0); break;
        case Word::PictureGoalWidth: picture_.picture.widthTwips = std::max(param, 0); break;
        case Word::PictureGoalHeight: picture_.picture.heightTwips = std::max(param, 0); break;
        case Word::PictureScaleX: picture_.scaleX = std::clamp(param, 1, 10000); break;
        case Word::PictureScaleY: picture_.scaleY = std::clamp(param, 1, 10000); break;
        case Word::Bin: SkipBinary(param); break;
        default: break;
      }
      return;
    case Dest::Text: break;
  }

  CharFormat& format = state.format;
  switch (entry.word) {
    case Word::Par: EndParagraph(); break;
    case Word::Line: TextChar('\n'); break;
    case Word::Tab:
    case Word::Cell: TextChar('\t'); break;
    case Word::Char: TextChar(entry.codePoint); break;
    case Word::Unicode: {
      if (!hasParam) break;
      // A UTF-16 unit, written signed by most writers; anything else is a
      // replacement character.
      char32_t c = 0xFFFD;
      if (param >= -32768 && param <= 65535) c = static_cast<char32_t>(param < 0 ? param + 65536 : param);
      if (c < 0x20 && c != '\t') {
        highSurrogate_ = 0;
      } else if (c >= 0xD800 && c <= 0xDBFF) {
        highSurrogate_ = c;
      } else if (c >= 0xDC00 && c <= 0xDFFF) {
        if (highSurrogate_ != 0) TextChar(0x10000 + ((highSurrogate_ - 0xD800) << 10) + (c - 0xDC00));
        highSurrogate_ = 0;
      } else {
        highSurrogate_ = 0;
        TextChar(c);
      }
      skipFallback_ = state.unicodeSkip;
      break;
    }
    case Word::UnicodeSkip: state.unicodeSkip = std::clamp(param, 0, 16); break;
    case Word::Bin: SkipBinary(param); break;
    case Word::Plain: ResetFormat(format); break;
    case Word::Bold: format.bold = on; break;
    case Word::Italic: format.italic = on; break;
    case Word::Underline: format.underline = on; break;
    case Word::UnderlineNone: format.underline = false; break;
    case Word::Strike: format.strike = on; break;
    case Word::Font: {
      const auto it = fonts_.find(param);
      format.font = (param == defaultFont_ || it == fonts_.end()) ? std::string() : it->second;
      break;
    }
    case Word::FontSize: format.halfPoints = hasParam ? std::clamp(param, 1, 3276) : 24; break;
    case Word::ColorIndex:
      if (param > 0 && static_cast<std::size_t>(param) < colors_.size()) {
        format.color = colors_[static_cast<std::size_t>(param)];
      } else {
        format.color.reset();
      }
      break;
    case Word::Up: format.offset = hasParam ? std::clamp(param, -3276, 3276) : 6; break;
    case Word::Down: format.offset = -(hasParam ? std::clamp(param, -3276, 3276) : 6); break;
    case Word::Super: format.script = Script::Super; break;
    case Word::Sub: format.script = Script::Sub; break;
    case Word::NoSuperSub: format.script = Script::Normal; break;
    case Word::DefaultFont: defaultFont_ = param; break;
    case Word::ParagraphDefault:
      alignment_ = Alignment::Left;
      bullet_ = false;
      touched_ = true;
      break;
    case Word::AlignLeft: alignment_ = Alignment::Left; break;
    case Word::AlignCenter: alignment_ = Alignment::Center; break;
    case Word::AlignRight: alignment_ = Alignment::Right; break;
    case Word::AlignJustify: alignment_ = Alignment::Justify; break;
    case Word::ListOverride:
      if (param > 0) bullet_ = true;
      break;
    case Word::BulletLevel: bullet_ = true; break;
    default: break;
  }
}

Document Reader::Read() {
  document_.paragraphs.clear();
  while (!AtEnd()) {
    const char c = in_[pos_++];
    if (c == '{') {
      OpenGroup();
    } else if (c == '}') {
      if (!CloseGroup()) break;
    } else if (c == '\\') {
      if (AtEnd()) break;
      const char next = in_[pos_];
      const auto isLetter = [](char ch) { return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z'); };
      const auto isDigit = [](char ch) { return ch >= '0' && ch <= '9'; };
      if (next == '\'') {
        // \'hh: one byte of code page text; a bad or cut-off pair is dropped.
        ++pos_;
        int value = 0;
        int digits = 0;
        while (digits < 2 && !AtEnd()) {
          const char h = in_[pos_];
          int nibble = -1;
          if (isDigit(h)) nibble = h - '0';
          if (h >= 'a' && h <= 'f') nibble = h - 'a' + 10;
          if (h >= 'A' && h <= 'F') nibble = h - 'A' + 10;
          if (nibble < 0) break;
          value = value * 16 + nibble;
          ++digits;
          ++pos_;
        }
        groupStart_ = false;
        if (digits == 2) TextByte(static_cast<unsigned char>(value));
      } else if (isLetter(next)) {
        const std::size_t start = pos_;
        while (!AtEnd() && isLetter(in_[pos_])) ++pos_;
        const std::string_view name = in_.substr(start, std::min(pos_ - start, kMaxWordLength));
        bool hasParam = false;
        bool negative = false;
        long long value = 0;
        if (!AtEnd() && in_[pos_] == '-' && pos_ + 1 < in_.size() && isDigit(in_[pos_ + 1])) {
          negative = true;
          ++pos_;
        }
        int digits = 0;
        while (!AtEnd() && isDigit(in_[pos_])) {
          if (digits < kMaxParamDigits) value = value * 10 + (in_[pos_] - '0');
          ++digits;
          ++pos_;
          hasParam = true;
        }
        if (negative) value = -value;
        value = std::clamp<long long>(value, INT_MIN, INT_MAX);
        if (!AtEnd() && in_[pos_] == ' ') ++pos_;
        // For \binN the raw bytes follow the delimiter; the word reads them.
        ControlWord(name, hasParam, static_cast<int>(value));
      } else {
        ++pos_;
        ControlSymbol(next);
      }
    } else if (c == '\r' || c == '\n') {
      // Line ends in the file are not text.
    } else if (c == '\t') {
      groupStart_ = false;
      ControlWord("tab", false, 0);
    } else {
      groupStart_ = false;
      if (static_cast<unsigned char>(c) >= 0x20) TextByte(static_cast<unsigned char>(c));
    }
  }
  if (State().dest == Dest::Picture) EndPicture();
  if (touched_ || document_.paragraphs.empty()) EndParagraph();
  return std::move(document_);
}

}  // namespace

bool LooksLikeRtf(std::string_view bytes) {
  std::size_t i = 0;
  while (i < bytes.size() && (bytes[i] == ' ' || bytes[i] == '\t' || bytes[i] == '\r' || bytes[i] == '\n'))
    ++i;
  return bytes.substr(i, 5) == "{\\rtf";
}

Document ReadRtf(std::string_view bytes) {
  if (!LooksLikeRtf(bytes)) {
    const std::string text = IsValidUtf8(bytes) ? std::string(bytes) : Cp1252ToUtf8(bytes);
    return FromPlainText(text);
  }
  return Reader(bytes).Read();
}

}  // namespace velmora::rtf
