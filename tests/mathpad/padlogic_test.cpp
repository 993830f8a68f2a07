#include "mathpad/padlogic.h"

#include <gtest/gtest.h>

#include <vector>

#include "mathpad/documentfile.h"
#include "mathpad/symbolcodes.h"

namespace velmora::mathpad {
namespace {

TEST(PadLogic, SizePanel) {
  struct Case {
    std::uint64_t bytes;
    const char* text;
    const char* why;
  };
  const std::vector<Case> cases = {
      {0, "0 KB", "empty"},
      {1024, "1 KB", "no decimals for a whole number"},
      {1536, "1.5 KB", "no trailing zero"},
      {23, "0.02 KB", "rounded to two decimals"},
      {5 * 1024 * 1024 + 5, "5120 KB", "megabytes stay in KB"},
  };
  for (const Case& c : cases) EXPECT_EQ(SizePanelText(c.bytes), c.text) << c.why;
}

TEST(PadLogic, NamesAndCaptions) {
  EXPECT_EQ(CaptionFor(""), "MathPad - Untitled");
  EXPECT_EQ(CaptionFor("/home/u/a.rtf"), "Bekrak - /home/u/a.rtf");
  EXPECT_TRUE(IsUntitledName("Untitled"));
  EXPECT_TRUE(IsUntitledName("/tmp/myuntitled"));
  EXPECT_FALSE(IsUntitledName("/tmp/untitled.rtf"));
  EXPECT_TRUE(IsRichTextName("x.RTF"));
  EXPECT_TRUE(IsRichTextName("x.rTf"));
  EXPECT_FALSE(IsRichTextName("xrtf"));
  EXPECT_FALSE(IsRichTextName("x.rtf.txt"));
}

TEST(PadLogic, FindBoxesActCrossed) {
  struct Case {
    bool caseBox;
    bool wholeBox;
    int word;
    FindFlags flags;
    const char* why;
  };
  const std::vector<Case> cases = {
      {false, false, 0, {false, false}, "neither box"},
      {true, false, 2, {true, false}, "\"Case sensitive\" asks for whole words"},
      {false, true, 4, {false, true}, "\"Whole word only\" asks for matching case"},
      {true, true, 6, {true, true}, "both boxes, both options"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(FindOptionWord(c.caseBox, c.wholeBox), c.word) << c.why;
    EXPECT_EQ(FlagsOfOptionWord(c.word), c.flags) << c.why;
  }
}

TEST(PadLogic, CaretLineAndColumn) {
  const std::u16string text = u"ab\ncde\n";
  EXPECT_EQ(CaretLineColumn(text, 0), (CaretPlace{1, 1}));
  EXPECT_EQ(CaretLineColumn(text, 2), (CaretPlace{1, 3}));
  EXPECT_EQ(CaretLineColumn(text, 3), (CaretPlace{2, 1}));
  EXPECT_EQ(CaretLineColumn(text, 7), (CaretPlace{3, 1}));
  EXPECT_EQ(CaretLineColumn(text, 99), (CaretPlace{3, 1})) << "beyond the end is the end";
}

TEST(PadLogic, ChangeCase) {
  EXPECT_EQ(UpperCaseText(u"sin x \u00e9\u00f7"), u"SIN X \u00c9\u00f7");
  EXPECT_EQ(LowerCaseText(u"COS X \u00c9\u00d7"), u"cos x \u00e9\u00d7");
}

TEST(SymbolCodes, Texts) {
  struct Case {
    unsigned code;
    const char* character;
    const char* codes;
    const char* status;
    const char* keyboard;
  };
  const std::vector<Case> cases = {
      {169, "\xC2\xA9", "Dec: 169 Hex: A9 Bin: 10101001",
       "ASCII Code: 0169   Alphanumeric Representation: \xC2\xA9", "ALT + 0169"},
      {65, "A", "Dec: 65 Hex: 41 Bin: 1000001", "ASCII Code: 065   Alphanumeric Representation: A",
       "ALT + 0065"},
      {9, "\t", "Dec: 9 Hex: 9 Bin: 1001", "ASCII Code: 09   Alphanumeric Representation: \t", "ALT + 0009"},
      {8730, "\xE2\x88\x9A", "Dec: 8730 Hex: 221A Bin: 10001000011010",
       "ASCII Code: 08730   Alphanumeric Representation: \xE2\x88\x9A", "ALT + 8730"},
  };
  for (const Case& c : cases) {
    const SymbolCodes codes = CodesOf(c.code, c.character);
    EXPECT_EQ(codes.codes, c.codes);
    EXPECT_EQ(codes.status, c.status);
    EXPECT_EQ(codes.keyboard, c.keyboard);
  }
}

}  // namespace
}  // namespace velmora::mathpad
