#include "rtf/rtfreader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora::rtf {
namespace {

// Reads and gives the plain text with paragraphs as '|'.
std::string Text(const std::string& rtf) {
  const Document document = ReadRtf(rtf);
  std::string out;
  for (std::size_t i = 0; i < document.paragraphs.size(); ++i) {
    if (i > 0) out += '|';
    for (const Run& run : document.paragraphs[i].runs) out += run.picture ? "[pict]" : run.text;
  }
  return out;
}

struct TextCase {
  const char* rtf;
  const char* text;
  const char* why;
};

TEST(RtfReader, TextOfOtherWritersDocuments) {
  const std::vector<TextCase> cases = {
      {R"({\rtf1\ansi a\par b})", "a|b", "\\par ends a paragraph"},
      {R"({\rtf1\ansi a\par})", "a", "a final \\par ends the last paragraph, as word processors write it"},
      {R"({\rtf1\ansi a\par\pard})", "a|", "a paragraph begun after the last \\par stays, empty or not"},
      {R"({\rtf1\ansi {\fonttbl{\f0\fswiss Arial;}}{\colortbl;\red0\green0\blue0;}x})", "x",
       "tables are no text"},
      {R"({\rtf1{\info{\title T}{\author A}}body})", "body", "the info group is skipped"},
      {R"({\rtf1{\*\generator Writer;}{\*\unknownthing zzz}ok})", "ok", "\\* destinations are skipped"},
      {R"({\rtf1\unknownword42 ok\anotherone})", "ok", "unknown control words are passed over"},
      {R"({\rtf1 \u945\'3f and \u-3913?})", "\xCE\xB1 and \xEF\x82\xB7", "\\uN with its fallback skipped"},
      {R"({\rtf1\uc2 \u945xy!})", "\xCE\xB1!", "\\uc2 skips two fallback characters"},
      {R"({\rtf1\uc0 \u945 x})", "\xCE\xB1x", "\\uc0 skips none"},
      {R"({\rtf1 \u-10187?\u-9133?})", "\xF0\x9D\x91\x93", "a surrogate pair is one character"},
      {R"({\rtf1 caf\'e9 \'80})", "caf\xC3\xA9 \xE2\x82\xAC", "\\'hh is code page 1252"},
      {R"({\rtf1 a\tab b\line c})", "a\tb\nc", "tab and line break"},
      {R"({\rtf1 \{\}\\ \~x})", "{}\\ \xC2\xA0x", "control symbols"},
      {R"({\rtf1 \emdash\endash\bullet\lquote\rquote\ldblquote\rdblquote})",
       "\xE2\x80\x94\xE2\x80\x93\xE2\x80\xA2\xE2\x80\x98\xE2\x80\x99\xE2\x80\x9C\xE2\x80\x9D",
       "named characters"},
      {"{\\rtf1 a\r\nb}", "ab", "line ends of the file are not text"},
      {R"({\rtf1{\field{\*\fldinst HYPERLINK "x"}{\fldrslt link}}})", "link", "a field shows its result"},
      {R"({\rtf1{\pntext\f1\'b7\tab}item})", "item", "the bullet's own text is not document text"},
      {R"({\rtf1 x{\*\shppict{\pict\pngblip 89504e47}}{\nonshppict{\pict\wmetafile8 0102}}y})", "x[pict]y",
       "the PNG of \\shppict is read, the metafile fallback skipped"},
      {R"({\rtf1 {\pict\wmetafile8\picw10 0102}z})", "z", "pictures of other kinds are left out"},
      {R"({\rtf1 a\cell b\cell\row c})", "a\tb\t|c", "table cells are tabs, rows paragraphs"},
      {R"({\rtf1 before} after)", "before", "nothing after the document's closing brace"},
      {"plain text\nsecond line", "plain text|second line", "bytes that are not RTF are plain text"},
      {"caf\xE9", "caf\xC3\xA9", "plain text that is not UTF-8 is code page 1252"},
  };
  for (const TextCase& c : cases) EXPECT_EQ(Text(c.rtf), c.text) << c.rtf << ": " << c.why;
}

TEST(RtfReader, FormattingOfOtherWriters) {
  // As a word processor writes: \plain resets, a group's format ends with
  // it, toggles take 0, \ulnone, colours and fonts come from the tables.
  const Document document = ReadRtf(
      R"({\rtf1\ansi\deff0{\fonttbl{\f0\froman Times New Roman;}{\f1\fmodern\fcharset0 Courier New;}})"
      R"({\colortbl;\red255\green0\blue0;}\pard\plain \f1\fs20\cf1\b bold{\i\ul both}\b0 plain\ul x\ulnone y)"
      R"(\par\pard\qc\plain\f0\super 2\nosupersub\up6 u\dn4 d\plain z})");
  ASSERT_EQ(document.paragraphs.size(), 2u);
  const auto& first = document.paragraphs[0].runs;
  ASSERT_EQ(first.size(), 5u);
  EXPECT_EQ(first[0].text, "bold");
  EXPECT_EQ(first[0].format.font, "Courier New");
  EXPECT_EQ(first[0].format.halfPoints, 20);
  EXPECT_EQ(first[0].format.color, (Color{255, 0, 0}));
  EXPECT_TRUE(first[0].format.bold);
  EXPECT_TRUE(first[1].format.italic && first[1].format.underline && first[1].format.bold);
  EXPECT_EQ(first[2].text, "plain");
  EXPECT_FALSE(first[2].format.bold || first[2].format.italic);
  EXPECT_TRUE(first[3].format.underline);
  EXPECT_FALSE(first[4].format.underline);
  const Paragraph& second = document.paragraphs[1];
  EXPECT_EQ(second.alignment, Alignment::Center);
  ASSERT_EQ(second.runs.size(), 4u);
  EXPECT_EQ(second.runs[0].format.font, "") << "\\f0 is the default font";
  EXPECT_EQ(second.runs[0].format.script, Script::Super);
  EXPECT_EQ(second.runs[1].format.offset, 6);
  EXPECT_EQ(second.runs[2].format.offset, -4);
  EXPECT_EQ(second.runs[3].format, CharFormat{});
}

TEST(RtfReader, BulletsOfEachStyle) {
  struct Case {
    const char* rtf;
    const char* why;
  };
  const std::vector<Case> cases = {
      {R"({\rtf1\pard{\pntext\f1\'B7\tab}{\*\pn\pnlvlblt\pnf1{\pntxtb\'B7}}x\par\pard y})",
       "\\pn with \\pnlvlblt"},
      {R"({\rtf1\pard\ls1{\listtext\pard\plain \u8226\'95\tab}x\par\pard y})", "a list of \\listtable"},
  };
  for (const Case& c : cases) {
    const Document document = ReadRtf(c.rtf);
    ASSERT_EQ(document.paragraphs.size(), 2u) << c.why;
    EXPECT_TRUE(document.paragraphs[0].bullet) << c.why;
    EXPECT_FALSE(document.paragraphs[1].bullet) << c.why << ": \\pard ends the list";
    EXPECT_EQ(document.paragraphs[0].runs.at(0).text, "x") << c.why;
  }
}

TEST(RtfReader, PictureSizesAndBinaryData) {
  const Document document = ReadRtf(
      "{\\rtf1{\\pict\\jpegblip\\picw4\\pich2\\picwgoal100\\pichgoal50\\picscalex200\\bin3 \x01}\x02}}");
  ASSERT_EQ(document.paragraphs.at(0).runs.size(), 1u);
  const Picture& picture = *document.paragraphs[0].runs[0].picture;
  EXPECT_EQ(picture.kind, Picture::Kind::Jpeg);
  EXPECT_EQ(picture.data, std::string("\x01}\x02")) << "\\bin bytes are data, braces included";
  EXPECT_EQ(picture.widthPixels, 4);
  EXPECT_EQ(picture.heightPixels, 2);
  EXPECT_EQ(picture.widthTwips, 200) << "scaled by \\picscalex";
  EXPECT_EQ(picture.heightTwips, 50);
}

}  // namespace
}  // namespace velmora::rtf
