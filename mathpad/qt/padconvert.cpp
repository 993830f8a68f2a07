#include "mathpad/qt/padconvert.h"

#include <cmath>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QUrl>

#include "rtf/rtfwriter.h"

namespace velmora::mathpad_qt {

namespace {

// Twips per pixel at the 96 dots per inch the editor lays out with.
constexpr double kTwipsPerPixel = 15.0;

QString Utf8(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Utf8(const QString& text) { return text.toStdString(); }

}  // namespace

QString DefaultFamily() { return QString::fromLatin1(rtf::kDefaultFont); }

QString PadPictures::Add(QTextDocument& document, const rtf::Picture& picture, const QImage& image) {
  const QString name = QStringLiteral("mathpad-picture-%1").arg(++serial_);
  document.addResource(QTextDocument::ImageResource, QUrl(name), image);
  pictures_[name] = picture;
  return name;
}

const rtf::Picture* PadPictures::Find(const QString& name) const {
  const auto it = pictures_.find(name);
  return it == pictures_.end() ? nullptr : &it->second;
}

QTextCharFormat ToTextFormat(const rtf::CharFormat& format) {
  QTextCharFormat out;
  out.setFontFamilies(QStringList{format.font.empty() ? DefaultFamily() : Utf8(format.font)});
  out.setFontPointSize(format.halfPoints / 2.0);
  if (format.color) out.setForeground(QColor(format.color->red, format.color->green, format.color->blue));
  out.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
  out.setFontItalic(format.italic);
  out.setFontUnderline(format.underline);
  out.setFontStrikeOut(format.strike);
  if (format.script == rtf::Script::Super) out.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
  if (format.script == rtf::Script::Sub) out.setVerticalAlignment(QTextCharFormat::AlignSubScript);
  if (format.offset != 0) {
    out.setProperty(kOffsetProperty, format.offset);
    out.setBaselineOffset(100.0 * format.offset / std::max(format.halfPoints, 1));
  }
  return out;
}

rtf::CharFormat FromTextFormat(const QTextCharFormat& format, double defaultPointSize) {
  rtf::CharFormat out;
  const QStringList families = format.fontFamilies().toStringList();
  const QString family = families.isEmpty() ? format.font().family() : families.front();
  if (!family.isEmpty() && family != DefaultFamily()) out.font = Utf8(family);
  const double points = format.fontPointSize() > 0 ? format.fontPointSize() : defaultPointSize;
  out.halfPoints = std::max(1, static_cast<int>(std::lround(points * 2)));
  if (format.foreground().style() != Qt::NoBrush) {
    const QColor c = format.foreground().color();
    out.color = rtf::Color{static_cast<std::uint8_t>(c.red()), static_cast<std::uint8_t>(c.green()),
                           static_cast<std::uint8_t>(c.blue())};
  }
  out.bold = format.fontWeight() > QFont::Medium;
  out.italic = format.fontItalic();
  out.underline = format.fontUnderline();
  out.strike = format.fontStrikeOut();
  if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript) out.script = rtf::Script::Super;
  if (format.verticalAlignment() == QTextCharFormat::AlignSubScript) out.script = rtf::Script::Sub;
  out.offset = format.intProperty(kOffsetProperty);
  return out;
}

void SetDocument(QTextDocument& target, const rtf::Document& document, PadPictures& pictures) {
  const bool undo = target.isUndoRedoEnabled();
  target.setUndoRedoEnabled(false);
  target.clear();
  pictures.Clear();
  QTextCursor cursor(&target);
  cursor.beginEditBlock();
  QTextList* list = nullptr;
  bool first = true;
  for (const rtf::Paragraph& paragraph : document.paragraphs) {
    QTextBlockFormat block;
    switch (paragraph.alignment) {
      case rtf::Alignment::Left: block.setAlignment(Qt::AlignLeft); break;
      case rtf::Alignment::Center: block.setAlignment(Qt::AlignHCenter); break;
      case rtf::Alignment::Right: block.setAlignment(Qt::AlignRight); break;
      case rtf::Alignment::Justify: block.setAlignment(Qt::AlignJustify); break;
    }
    const QTextCharFormat blockChars =
        ToTextFormat(paragraph.runs.empty() ? rtf::CharFormat{} : paragraph.runs.front().format);
    if (first) {
      cursor.setBlockFormat(block);
      cursor.setBlockCharFormat(blockChars);
      first = false;
    } else {
      cursor.insertBlock(block, blockChars);
    }
    if (paragraph.bullet) {
      if (list == nullptr) {
        list = cursor.createList(QTextListFormat::ListDisc);
      } else {
        list->add(cursor.block());
      }
    } else {
      list = nullptr;
    }
    for (const rtf::Run& run : paragraph.runs) {
      const QTextCharFormat chars = ToTextFormat(run.format);
      if (run.picture) {
        QImage image;
        image.loadFromData(reinterpret_cast<const uchar*>(run.picture->data.data()),
                           static_cast<int>(run.picture->data.size()),
                           run.picture->kind == rtf::Picture::Kind::Png ? "PNG" : "JPEG");
        if (image.isNull()) continue;
        QTextImageFormat imageFormat;
        imageFormat.setName(pictures.Add(target, *run.picture, image));
        imageFormat.setWidth(run.picture->widthTwips > 0 ? run.picture->widthTwips / kTwipsPerPixel
                                                         : image.width());
        imageFormat.setHeight(run.picture->heightTwips > 0 ? run.picture->heightTwips / kTwipsPerPixel
                                                           : image.height());
        cursor.insertImage(imageFormat);
      } else {
        QString text = Utf8(run.text);
        text.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
        cursor.insertText(text, chars);
      }
    }
  }
  cursor.endEditBlock();
  target.setUndoRedoEnabled(undo);
  target.setModified(false);
}

rtf::Picture PictureFromImage(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  rtf::Picture picture;
  picture.kind = rtf::Picture::Kind::Png;
  picture.data.assign(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  picture.widthPixels = image.width();
  picture.heightPixels = image.height();
  picture.widthTwips = static_cast<int>(image.width() * kTwipsPerPixel);
  picture.heightTwips = static_cast<int>(image.height() * kTwipsPerPixel);
  return picture;
}

std::optional<std::pair<rtf::Picture, QImage>> PictureFromFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray bytes = file.readAll();
  QBuffer buffer(const_cast<QByteArray*>(&bytes));
  QImageReader reader(&buffer);
  const QByteArray format = reader.format().toLower();
  QImage image = reader.read();
  if (image.isNull()) return std::nullopt;
  if (format == "png" || format == "jpeg" || format == "jpg") {
    rtf::Picture picture;
    picture.kind = format == "png" ? rtf::Picture::Kind::Png : rtf::Picture::Kind::Jpeg;
    picture.data.assign(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    picture.widthPixels = image.width();
    picture.heightPixels = image.height();
    picture.widthTwips = static_cast<int>(image.width() * kTwipsPerPixel);
    picture.heightTwips = static_cast<int>(image.height() * kTwipsPerPixel);
    return std::make_pair(picture, image);
  }
  return std::make_pair(PictureFromImage(image), image);
}

rtf::Document GetDocument(const QTextDocument& source, const PadPictures& pictures) {
  rtf::Document out;
  out.paragraphs.clear();
  const double defaultPoints =
      source.defaultFont().pointSizeF() > 0 ? source.defaultFont().pointSizeF() : 12.0;
  for (QTextBlock block = source.begin(); block.isValid(); block = block.next()) {
    rtf::Paragraph paragraph;
    const Qt::Alignment alignment = block.blockFormat().alignment() & Qt::AlignHorizontal_Mask;
    if (alignment & Qt::AlignHCenter) paragraph.alignment = rtf::Alignment::Center;
    if (alignment & Qt::AlignRight) paragraph.alignment = rtf::Alignment::Right;
    if (alignment & Qt::AlignJustify) paragraph.alignment = rtf::Alignment::Justify;
    paragraph.bullet = block.textList() != nullptr;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment fragment = it.fragment();
      if (!fragment.isValid()) continue;
      const QTextCharFormat chars = fragment.charFormat();
      const rtf::CharFormat format = FromTextFormat(chars, defaultPoints);
      if (chars.isImageFormat()) {
        const QTextImageFormat imageFormat = chars.toImageFormat();
        const rtf::Picture* known = pictures.Find(imageFormat.name());
        rtf::Picture picture;
        if (known != nullptr) {
          picture = *known;
        } else {
          const QVariant resource = source.resource(QTextDocument::ImageResource, QUrl(imageFormat.name()));
          QImage image = resource.value<QImage>();
          if (image.isNull()) continue;
          picture = PictureFromImage(image);
        }
        if (imageFormat.width() > 0)
          picture.widthTwips = static_cast<int>(std::lround(imageFormat.width() * kTwipsPerPixel));
        if (imageFormat.height() > 0)
          picture.heightTwips = static_cast<int>(std::lround(imageFormat.height() * kTwipsPerPixel));
        // One fragment may hold several copies of the same picture.
        for (int i = 0; i < fragment.length(); ++i) paragraph.runs.push_back(rtf::Run{format, {}, picture});
        continue;
      }
      QString text = fragment.text();
      text.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
      text.remove(QChar(QChar::ObjectReplacementCharacter));
      rtf::AppendText(paragraph, format, Utf8(text));
    }
    out.paragraphs.push_back(std::move(paragraph));
  }
  if (out.paragraphs.empty()) out.paragraphs.emplace_back();
  return out;
}

}  // namespace velmora::mathpad_qt
