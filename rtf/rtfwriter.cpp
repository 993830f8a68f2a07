#include "rtf/rtfwriter.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "rtf/codepage.h"

namespace velmora::rtf {

namespace {

constexpr std::string_view kSymbolFont = "Symbol";
constexpr char kHex[] = "0123456789abcdef";
// Hex digits of picture data per line of the file.
constexpr std::size_t kHexLine = 128;

class Writer {
 public:
  explicit Writer(const Document& document) : document_(document) {}

  std::string Write();

 private:
  int FontIndex(const std::string& name) const;
  int ColorIndex(const std::optional<Color>& color) const;
  void Tables();
  void Format(const CharFormat& format);
  void Text(std::string_view text);
  void PictureData(const Picture& picture);

  const Document& document_;
  std::vector<std::string> fonts_;  // index 0 is the default font
  std::vector<Color> colors_;       // \cf index - 1
  int symbolFont_ = -1;
  std::string out_;
};

int Writer::FontIndex(const std::string& name) const {
  if (name.empty()) return 0;
  const auto it = std::find(fonts_.begin() + 1, fonts_.end(), name);
  return static_cast<int>(it - fonts_.begin());
}

int Writer::ColorIndex(const std::optional<Color>& color) const {
  if (!color) return 0;
  const auto it = std::find(colors_.begin(), colors_.end(), *color);
  return static_cast<int>(it - colors_.begin()) + 1;
}

void Writer::Tables() {
  fonts_.push_back(kDefaultFont);
  bool bullets = false;
  for (const Paragraph& paragraph : document_.paragraphs) {
    bullets = bullets || paragraph.bullet;
    for (const Run& run : paragraph.runs) {
      if (!run.format.font.empty() && FontIndex(run.format.font) == static_cast<int>(fonts_.size())) {
        fonts_.push_back(run.format.font);
      }
      if (run.format.color && ColorIndex(run.format.color) == static_cast<int>(colors_.size()) + 1) {
        colors_.push_back(*run.format.color);
      }
    }
  }
  out_ += "{\\fonttbl";
  for (std::size_t i = 0; i < fonts_.size(); ++i) {
    out_ += "{\\f" + std::to_string(i) + "\\fnil\\fcharset0 ";
    Text(fonts_[i]);
    out_ += ";}";
  }
  if (bullets) {
    symbolFont_ = static_cast<int>(fonts_.size());
    out_ += "{\\f" + std::to_string(symbolFont_) + "\\fnil\\fcharset2 " + std::string(kSymbolFont) + ";}";
  }
  out_ += "}\n{\\colortbl ;";
  for (const Color& color : colors_) {
    out_ += "\\red" + std::to_string(color.red) + "\\green" + std::to_string(color.green) + "\\blue" +
            std::to_string(color.blue) + ";";
  }
  out_ += "}\n";
}

void Writer::Format(const CharFormat& format) {
  out_ += "\\f" + std::to_string(FontIndex(format.font));
  out_ += "\\fs" + std::to_string(format.halfPoints);
  if (format.color) out_ += "\\cf" + std::to_string(ColorIndex(format.color));
  if (format.bold) out_ += "\\b";
  if (format.italic) out_ += "\\i";
  if (format.underline) out_ += "\\ul";
  if (format.strike) out_ += "\\strike";
  if (format.script == Script::Super) out_ += "\\super";
  if (format.script == Script::Sub) out_ += "\\sub";
  if (format.offset > 0) out_ += "\\up" + std::to_string(format.offset);
  if (format.offset < 0) out_ += "\\dn" + std::to_string(-format.offset);
}

void Writer::Text(std::string_view text) {
  std::size_t pos = 0;
  while (pos < text.size()) {
    const char32_t c = NextUtf8(text, pos);
    if (c == '\\' || c == '{' || c == '}') {
      out_ += '\\';
      out_ += static_cast<char>(c);
    } else if (c == '\t') {
      out_ += "\\tab ";
    } else if (c == '\n') {
      out_ += "\\line ";
    } else if (c < 0x20) {
      // Other control characters have no place in the text.
    } else if (c < 0x80) {
      out_ += static_cast<char>(c);
    } else if (const auto byte = ToCp1252(c)) {
      out_ += "\\'";
      out_ += kHex[*byte >> 4];
      out_ += kHex[*byte & 0xF];
    } else {
      // Beyond the code page: UTF-16 units as signed 16-bit \u values, each
      // with '?' for readers that do not know \u.
      const auto unit = [this](unsigned value) {
        const int signedValue = value >= 0x8000 ? static_cast<int>(value) - 65536 : static_cast<int>(value);
        out_ += "\\u" + std::to_string(signedValue) + "?";
      };
      if (c >= 0x10000) {
        const char32_t v = c - 0x10000;
        unit(0xD800 + (v >> 10));
        unit(0xDC00 + (v & 0x3FF));
      } else {
        unit(c);
      }
    }
  }
}

void Writer::PictureData(const Picture& picture) {
  out_ += "{\\pict";
  out_ += picture.kind == Picture::Kind::Png ? "\\pngblip" : "\\jpegblip";
  out_ += "\\picw" + std::to_string(picture.widthPixels) + "\\pich" + std::to_string(picture.heightPixels);
  if (picture.widthTwips > 0) out_ += "\\picwgoal" + std::to_string(picture.widthTwips);
  if (picture.heightTwips > 0) out_ += "\\pichgoal" + std::to_string(picture.heightTwips);
  out_ += '\n';
  std::size_t column = 0;
  for (const char byte : picture.data) {
    const auto b = static_cast<unsigned char>(byte);
    out_ += kHex[b >> 4];
    out_ += kHex[b & 0xF];
    column += 2;
    if (column >= kHexLine) {
      out_ += '\n';
      column = 0;
    }
  }
  out_ += "}";
}

std::string Writer::Write() {
  std::size_t pictureBytes = 0;
  for (const Paragraph& paragraph : document_.paragraphs) {
    for (const Run& run : paragraph.runs) {
      pictureBytes += run.picture ? run.picture->data.size() : 0;
      pictureBytes += run.text.size();
    }
  }
  out_.reserve(pictureBytes * 2 + 1024);
  out_ += "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\\deflang1033\n";
  Tables();
  out_ += "\\viewkind4\n";
  bool first = true;
  for (const Paragraph& paragraph : document_.paragraphs) {
    if (!first) out_ += "\\par\n";
    first = false;
    out_ += "\\pard";
    switch (paragraph.alignment) {
      case Alignment::Left: break;
      case Alignment::Center: out_ += "\\qc"; break;
      case Alignment::Right: out_ += "\\qr"; break;
      case Alignment::Justify: out_ += "\\qj"; break;
    }
    if (paragraph.bullet) {
      const std::string symbol = "\\f" + std::to_string(symbolFont_);
      out_ += "{\\pntext" + symbol + "\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf" + std::to_string(symbolFont_) +
              "\\pnindent0{\\pntxtb\\'b7}}\\fi-360\\li720";
    }
    out_ += ' ';
    for (const Run& run : paragraph.runs) {
      out_ += '{';
      Format(run.format);
      if (run.picture) {
        PictureData(*run.picture);
      } else {
        out_ += ' ';
        Text(run.text);
      }
      out_ += '}';
    }
  }
  out_ += "\n}\n";
  return std::move(out_);
}

}  // namespace

std::string WriteRtf(const Document& document) { return Writer(document).Write(); }

}  // namespace velmora::rtf
