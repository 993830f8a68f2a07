#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "rtf/rtfreader.h"
#include "rtf/rtfwriter.h"
#include "tests/rtf/rtfsamples.h"

namespace velmora::rtf {
namespace {

using testing::OneParagraph;
using testing::OneRun;

CharFormat With(const std::function<void(CharFormat&)>& change) {
  CharFormat format;
  change(format);
  return format;
}

struct RoundTripCase {
  const char* name;
  const char* why;
  Document document;
};

std::vector<RoundTripCase> Cases() {
  std::vector<RoundTripCase> cases;
  cases.push_back({"empty", "an empty document is one empty paragraph", Document{}});
  cases.push_back({"plain", "text in the default font", OneParagraph(OneRun("Hello, world"))});
  cases.push_back(
      {"font", "a named font goes to the font table",
       OneParagraph(OneRun("Courier text", With([](CharFormat& f) { f.font = "Courier New"; })))});
  cases.push_back({"size", "sizes are half points",
                   OneParagraph(OneRun("big", With([](CharFormat& f) { f.halfPoints = 56; })))});
  cases.push_back(
      {"colour", "a colour goes to the colour table", OneParagraph(OneRun("red", With([](CharFormat& f) {
                                                                            f.color = Color{200, 10, 30};
                                                                          })))});
  cases.push_back({"black", "black is a colour of its own, not the automatic one",
                   OneParagraph(OneRun("black", With([](CharFormat& f) {
                                         f.color = Color{0, 0, 0};
                                       })))});
  cases.push_back({"bold", "\\b", OneParagraph(OneRun("bold", With([](CharFormat& f) { f.bold = true; })))});
  cases.push_back(
      {"italic", "\\i", OneParagraph(OneRun("italic", With([](CharFormat& f) { f.italic = true; })))});
  cases.push_back(
      {"underline", "\\ul", OneParagraph(OneRun("under", With([](CharFormat& f) { f.underline = true; })))});
  cases.push_back(
      {"strike", "\\strike", OneParagraph(OneRun("gone", With([](CharFormat& f) { f.strike = true; })))});
  cases.push_back({"super", "the word processors' superscript",
                   OneParagraph(OneRun("2", With([](CharFormat& f) { f.script = Script::Super; })))});
  cases.push_back({"sub", "the word processors' subscript",
                   OneParagraph(OneRun("i", With([](CharFormat& f) { f.script = Script::Sub; })))});
  cases.push_back({"up", "MathPad's raised text is an \\up offset with a smaller size",
                   OneParagraph(OneRun("2", With([](CharFormat& f) { f.offset = 8, f.halfPoints = 17; })))});
  cases.push_back({"down", "lowered text is \\dn",
                   OneParagraph(OneRun("n", With([](CharFormat& f) { f.offset = -8; })))});
  cases.push_back(
      {"everything", "all character formats at once",
       OneParagraph(
           OneRun("all", With([](CharFormat& f) {
                    f.font = "Times New Roman", f.halfPoints = 30, f.color = Color{1, 2, 3}, f.bold = true;
                    f.italic = true, f.underline = true, f.strike = true, f.offset = 4;
                  })))});
  for (const auto& [name, alignment] :
       {std::pair{"center", Alignment::Center}, std::pair{"right", Alignment::Right},
        std::pair{"justify", Alignment::Justify}}) {
    Paragraph paragraph = OneRun(name);
    paragraph.alignment = alignment;
    cases.push_back({name, "paragraph alignment", OneParagraph(paragraph)});
  }
  {
    Paragraph paragraph = OneRun("first point");
    paragraph.bullet = true;
    Document document;
    document.paragraphs = {paragraph, paragraph, OneRun("after the list")};
    cases.push_back({"bullets", "bullets end at the next plain paragraph", document});
  }
  cases.push_back({"tabs", "a tab is \\tab", OneParagraph(OneRun("x;\t\ty;\t"))});
  cases.push_back(
      {"linebreak", "a line break inside a paragraph is \\line", OneParagraph(OneRun("one\ntwo"))});
  cases.push_back({"specials", "braces and backslashes are escaped", OneParagraph(OneRun("{a\\b}"))});
  cases.push_back({"latin1", "code page text is \\'hh", OneParagraph(OneRun("caf\xC3\xA9 \xE2\x82\xAC 5"))});
  cases.push_back({"unicode", "Greek and maths beyond the code page are \\uN",
                   OneParagraph(OneRun("\xCE\xB1 \xE2\x88\x9A \xE2\x88\x9E \xE2\x89\xA4"))});
  cases.push_back({"astral", "a code point beyond U+FFFF is a surrogate pair",
                   OneParagraph(OneRun("\xF0\x9D\x91\x93(x)"))});
  {
    Document document;
    document.paragraphs = {OneRun("a"), Paragraph{}, OneRun("b"), Paragraph{}};
    cases.push_back({"emptylines", "empty paragraphs stay, the last one too", document});
  }
  {
    Paragraph paragraph = OneRun("x");
    paragraph.runs.push_back(rtf::Run{With([](CharFormat& f) { f.offset = 8; }), "2", std::nullopt});
    paragraph.runs.push_back(rtf::Run{CharFormat{}, " + y", std::nullopt});
    cases.push_back({"mixed", "runs of different formats in one paragraph", OneParagraph(paragraph)});
  }
  {
    Paragraph paragraph = OneRun("graph: ");
    Picture picture{Picture::Kind::Png, testing::TinyPng(), 1, 1, 15, 15};
    paragraph.runs.push_back(rtf::Run{CharFormat{}, "", picture});
    paragraph.runs.push_back(rtf::Run{CharFormat{}, " done", std::nullopt});
    cases.push_back({"png", "a PNG picture as \\pngblip with its sizes", OneParagraph(paragraph)});
  }
  {
    Paragraph paragraph;
    Picture picture{Picture::Kind::Jpeg,
                    std::string("\xFF\xD8\xFF\xE0 fake jpeg \x00\x01\xFF\xD9", 20),
                    640,
                    480,
                    9600,
                    7200};
    paragraph.runs.push_back(rtf::Run{CharFormat{}, "", picture});
    cases.push_back({"jpeg", "a JPEG picture as \\jpegblip, every byte kept", OneParagraph(paragraph)});
  }
  return cases;
}

TEST(RtfRoundTrip, EveryFeatureReadsBackAsWritten) {
  for (const RoundTripCase& c : Cases()) {
    const std::string rtf = WriteRtf(c.document);
    EXPECT_TRUE(LooksLikeRtf(rtf)) << c.name;
    EXPECT_EQ(ReadRtf(rtf), c.document) << c.name << ": " << c.why << "\n" << rtf;
  }
}

TEST(RtfRoundTrip, WritingIsStable) {
  // What was read back writes the same bytes again.
  for (const RoundTripCase& c : Cases()) {
    const std::string once = WriteRtf(c.document);
    EXPECT_EQ(WriteRtf(ReadRtf(once)), once) << c.name;
  }
}

TEST(RtfWriter, TextIsSevenBitAndReadable) {
  Document document = OneParagraph(OneRun("caf\xC3\xA9 \xCE\xB1"));
  const std::string rtf = WriteRtf(document);
  for (const char c : rtf) EXPECT_LT(static_cast<unsigned char>(c), 0x80) << rtf;
  EXPECT_NE(rtf.find("caf\\'e9 \\u945?"), std::string::npos) << rtf;
  EXPECT_NE(rtf.find("\\ansicpg1252"), std::string::npos);
}

TEST(PlainText, ParagraphsAreLines) {
  Document document;
  document.paragraphs = {OneRun("one"), Paragraph{}, OneRun("three")};
  EXPECT_EQ(PlainText(document), "one\n\nthree");
  EXPECT_EQ(FromPlainText("one\r\n\r\nthree"), document);
  EXPECT_EQ(FromPlainText(""), Document{});
}

}  // namespace
}  // namespace velmora::rtf
