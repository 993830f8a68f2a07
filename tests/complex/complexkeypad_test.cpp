#include "complex/complexkeypad.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "complex/complexkeys.h"
#include "complex/panelmenu.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::complex {
namespace {

using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;

class KeypadTest : public ::testing::Test {
 protected:
  testing::RecordingMessageBox box;
  ComplexFields f;
  ComplexKeypad keypad{f, box};

  // Keys as a user presses them: "A".."D" the part keys, digits, "." and
  // "~" for the sign key.
  void Press(const std::string& keys) {
    for (char key : keys) {
      if (key >= 'A' && key <= 'D') {
        keypad.cmdBroj(key - 'A' + 1);
      } else if (key >= '0' && key <= '9') {
        keypad.Number(key - '0');
      } else if (key == '.') {
        keypad.Decimal();
      } else if (key == '~') {
        keypad.PlusMinus();
      }
    }
  }
  void ClearAll() {
    box.Answer(MsgResult::Ok);
    ASSERT_TRUE(keypad.ClearAll());
    box.Clear();
  }
};

TEST_F(KeypadTest, PartOneIsDownAtLoadAndTheGroupIsARadioGroup) {
  EXPECT_EQ(keypad.ActivePart(), 1);
  keypad.cmdBroj(3);
  EXPECT_FALSE(keypad.PartDown(1));
  EXPECT_TRUE(keypad.PartDown(3));
  EXPECT_EQ(keypad.ActivePart(), 3);
  // An index outside the group leaves none down, and keys then do nothing.
  keypad.cmdBroj(0);
  EXPECT_EQ(keypad.ActivePart(), 0);
  const ComplexFields before = f;
  keypad.Number(7);
  EXPECT_EQ(f.lblZ1, before.lblZ1);
  EXPECT_EQ(f.lblZ2, before.lblZ2);
}

struct TypingCase {
  const char* keys;
  const char* z1;
  const char* z2;
  const char* why;
};

TEST_F(KeypadTest, KeysTypeIntoThePartDownAndRebuildTheLabel) {
  const TypingCase cases[] = {
      {"A5", "5+j0", "0+j0", "a first digit replaces the zero of the cleared part"},
      {"A5B4", "5+j4", "0+j0", "the imaginary part after a switch to B"},
      {"A12", "12+j0", "0+j0", "later digits join the part"},
      {"B4~", "0+j-4", "0+j0", "a negative imaginary part reads +j-4"},
      {"A5B~", "5+j", "0+j0", "the sign key on a zero part empties it"},
      {"A5B~4", "5+j4", "0+j0", "and the next digit fills the emptied part"},
      {"A.5", ".5+j0", "0+j0", "the first point replaces the zero"},
      {"A1.2.", "1.2.+j0", "0+j0", "a second point is not refused"},
      {"C1D2~", "0+j0", "1+j-2", "C and D type into Complex 2"},
      {"A3~~", "3+j0", "0+j0", "the sign key twice gives the number back"},
  };
  for (const auto& c : cases) {
    f = ComplexFields{};
    ClearAll();
    Press(c.keys);
    EXPECT_EQ(f.lblZ1, c.z1) << c.why;
    EXPECT_EQ(f.lblZ2, c.z2) << c.why;
    EXPECT_TRUE(box.Boxes().empty()) << c.why;
  }
}

TEST_F(KeypadTest, AKeyReadsTheLabelFirst) {
  // The label as another road left it (the popup's replace, a recall) is what
  // the key extends, and the design text "0+i0" is read too.
  f.lblZ1 = "3-j4";
  keypad.cmdBroj(2);
  keypad.Number(1);
  EXPECT_EQ(f.lblb, "-41");
  EXPECT_EQ(f.lblZ1, "3+j-41");
}

TEST_F(KeypadTest, ALabelWithoutUnitShowsTheParsersMessageAndTheKeyGoesOn) {
  f.lblZ1 = "2";
  keypad.Number(7);
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_EQ(box.Boxes()[0].text, "Check input. The Complex number must contain either j or i for imaginary.");
  EXPECT_EQ(f.lblZ1, "7+j0");  // the part kept its "0", which the digit replaced
}

TEST_F(KeypadTest, ClearAllAsksAndCancelChangesNothing) {
  Press("A7B8C9D1");
  f.LabelRezultat = "1+j2";
  f.txtmemoryReal = "5";
  box.Answer(MsgResult::Cancel);
  EXPECT_FALSE(keypad.ClearAll());
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_EQ(box.Boxes()[0].text, "Clear All?");
  EXPECT_EQ(box.Boxes()[0].title, "Velmora");
  EXPECT_EQ(box.Boxes()[0].icon, MsgIcon::Critical);
  EXPECT_EQ(box.Boxes()[0].buttons, MsgButtons::OkCancel);
  EXPECT_EQ(f.lblZ1, "7+j8");
  EXPECT_EQ(f.LabelRezultat, "1+j2");
  EXPECT_EQ(keypad.ActivePart(), 4);
}

TEST_F(KeypadTest, ClearAllOnOkClearsOperandsAndResultLineButKeepsTheMemory) {
  Press("A7B8C9D1");
  f.LabelRezultat = "1+j2";
  f.txtmemoryReal = "5";
  f.lblMemory1 = "5+j0";
  box.Answer(MsgResult::Ok);
  EXPECT_TRUE(keypad.ClearAll());
  EXPECT_EQ(f.lblZ1, "0+j0");
  EXPECT_EQ(f.lblZ2, "0+j0");
  for (const std::string* part : {&f.lbla, &f.lblb, &f.lblc, &f.lbld}) EXPECT_EQ(*part, "0");
  EXPECT_EQ(f.LabelRezultat, "");
  EXPECT_EQ(f.txtmemoryReal, "5");
  EXPECT_EQ(f.lblMemory1, "5+j0");
  EXPECT_EQ(keypad.ActivePart(), 1);
}

// ------------------------------------------------------------------ key table

struct KeyCase {
  int code;
  const char* control;
  int index;
  const char* why;
};

TEST(ComplexKeys, TheTableMapsLettersKeypadAndDelete) {
  const KeyCase cases[] = {
      {65, "cmdBroj", 1, "A picks the real part of Complex 1"},
      {68, "cmdBroj", 4, "D the imaginary part of Complex 2"},
      {96, "Number", 0, "keypad 0"},
      {105, "Number", 9, "keypad 9"},
      {106, "cmdmnozenje", -1, "keypad * multiplies"},
      {107, "cmdzbir", -1, "keypad + adds"},
      {109, "cmdrazlika", -1, "keypad - subtracts"},
      {111, "cmddeljenje", -1, "keypad / divides"},
      {110, "Decimal", -1, "keypad point"},
      {46, "cmdClearAll", -1, "Delete clears all (after asking)"},
  };
  for (const auto& c : cases) {
    const KeyEntry* entry = FindKey(c.code);
    ASSERT_NE(entry, nullptr) << c.why;
    EXPECT_EQ(entry->control, c.control) << c.why;
    EXPECT_EQ(entry->index, c.index) << c.why;
  }
  EXPECT_EQ(KeyTable().size(), 20u);
}

TEST(ComplexKeys, MainRowDigitsAndOtherLettersAreNotMapped) {
  for (int code = 48; code <= 57; ++code) EXPECT_EQ(FindKey(code), nullptr) << code;  // main-row digits
  EXPECT_EQ(FindKey(69), nullptr);                                                    // E
  EXPECT_EQ(FindKey(108), nullptr);  // the keypad's separator key
  EXPECT_EQ(FindKey(13), nullptr);   // Enter
}

// ------------------------------------------------------------ the panel entry

TEST(PanelMenu, ShowHideAndTheCaptionAfterThePanelClosedByItself) {
  PanelMenu menu;
  EXPECT_EQ(menu.Caption(), "&Show Panel");
  EXPECT_TRUE(menu.Click());
  EXPECT_EQ(menu.Caption(), "&Hide Panel");
  EXPECT_FALSE(menu.Click());
  EXPECT_EQ(menu.Caption(), "&Show Panel");
  EXPECT_TRUE(menu.Click());
  menu.PanelClosed();
  EXPECT_EQ(menu.Caption(), "Show &Panel");
  // "Show &Panel" is not "&Show Panel": the first click hides, the second shows.
  EXPECT_FALSE(menu.Click());
  EXPECT_EQ(menu.Caption(), "&Show Panel");
  EXPECT_TRUE(menu.Click());
}

}  // namespace
}  // namespace velmora::complex
