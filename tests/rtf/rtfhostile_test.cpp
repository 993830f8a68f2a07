#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "rtf/rtfreader.h"
#include "rtf/rtfwriter.h"
#include "tests/rtf/rtfsamples.h"

namespace velmora::rtf {
namespace {

std::string Text(const std::string& rtf) { return PlainText(ReadRtf(rtf)); }

TEST(RtfHostile, MalformedInputGivesWhatCouldBeRead) {
  struct Case {
    std::string rtf;
    std::string text;
    const char* why;
  };
  const std::vector<Case> cases = {
      {"{\\rtf1 unclosed {\\b group", "unclosed group", "unbalanced open braces"},
      {"{\\rtf1 a}}}}", "a", "extra closing braces"},
      {"{\\rtf1 }}}{{{ x", "", "closing before opening"},
      {"{\\rtf1 a\\", "a", "a backslash at the very end"},
      {"{\\rtf1 a\\'4", "a", "a cut \\'hh"},
      {"{\\rtf1 a\\'zz b}", "azz b", "\\' without hex digits"},
      {"{\\rtf1 a\\b99999999999999999999 b}", "ab", "a parameter beyond int"},
      {"{\\rtf1 a\\fs-2147483648 b}", "ab", "the smallest parameter"},
      {"{\\rtf1 a\\bin999999999 xyz}", "a", "\\binN longer than the input"},
      {"{\\rtf1 a\\bin-5 b}", "ab", "a negative \\bin"},
      {std::string("{\\rtf1 a\0b\0}", 12), "ab", "NUL bytes are not text"},
      {"{\\rtf1 {\\fonttbl{\\f0 Arial", "", "cut inside the font table"},
      {"{\\rtf1 {\\pict\\pngblip 8950", "[", "cut inside a picture: the bytes read are kept"},
      {"{\\rtf1 \\u", "", "\\u without a number"},
      {"{\\rtf1 \\u-99999999999 ?x}", "\xEF\xBF\xBDx", "a \\u far out of range is a replacement character"},
      {"{\\rtf1 \\uc999999 \\u945 abc}", "\xCE\xB1", "a huge \\uc is bounded"},
      {"{\\rtf1 \\cf99 \\f77 \\cf-1 x}", "x", "indexes not in the tables"},
      {std::string("{\\rtf1 ") + std::string(100, 'a') + "\\" + std::string(500, 'z') + " b}",
       std::string(100, 'a') + "b", "a very long control word"},
  };
  for (const Case& c : cases) {
    const Document document = ReadRtf(c.rtf);
    const std::string text = PlainText(document);
    if (c.text == "[") {
      ASSERT_FALSE(document.paragraphs.at(0).runs.empty()) << c.why;
      EXPECT_EQ(document.paragraphs[0].runs[0].picture->data, "\x89P") << c.why;
    } else {
      EXPECT_EQ(text, c.text) << c.why;
    }
  }
}

TEST(RtfHostile, HundredThousandNestedGroups) {
  const std::string deep =
      "{\\rtf1 " + std::string(100000, '{') + "deep" + std::string(100000, '}') + " after}";
  EXPECT_EQ(Text(deep), "deep after");
  const std::string unclosed = "{\\rtf1 " + std::string(100000, '{') + "\\b x";
  EXPECT_EQ(Text(unclosed), "x");
}

TEST(RtfHostile, EveryCutOfAWrittenDocumentReads) {
  // A document with every feature, cut after each byte: reading never
  // fails and never gives more text than the whole has.
  Document document;
  Paragraph paragraph;
  CharFormat format;
  format.bold = true, format.color = Color{1, 2, 3}, format.font = "Courier New", format.offset = 6;
  paragraph.runs.push_back(rtf::Run{format, "x\xCE\xB1\t{}", std::nullopt});
  paragraph.runs.push_back(
      rtf::Run{CharFormat{}, "", Picture{Picture::Kind::Png, testing::TinyPng(), 1, 1, 0, 0}});
  paragraph.bullet = true;
  document.paragraphs = {paragraph, paragraph};
  const std::string rtf = WriteRtf(document);
  const std::size_t whole = PlainText(document).size();
  for (std::size_t cut = 0; cut <= rtf.size(); ++cut) {
    EXPECT_LE(Text(rtf.substr(0, cut)).size(), whole) << cut;
  }
}

TEST(RtfHostile, RandomBytesNeverBreakTheReader) {
  // A fixed pseudo-random walk over the bytes that mean most to RTF.
  const std::string alphabet = "{}\\'*abinpictu0123456789- ;\x01\xFF";
  unsigned state = 12345;
  for (int round = 0; round < 2000; ++round) {
    std::string input = "{\\rtf1 ";
    for (int i = 0; i < 200; ++i) {
      state = state * 1103515245u + 12345u;
      input += alphabet[(state >> 16) % alphabet.size()];
    }
    const Document document = ReadRtf(input);
    EXPECT_FALSE(document.paragraphs.empty());
  }
}

}  // namespace
}  // namespace velmora::rtf
