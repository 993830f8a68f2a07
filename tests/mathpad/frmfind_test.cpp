// Find and Replace over MathPad's editor, with each of the crossed boxes.
#include "mathpad/qt/frmfind.h"

#include <vector>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

#include "tests/mathpad/padwindowfixture.h"

namespace velmora::mathpad_qt {
namespace {

using testing::PadWindowTest;

class FindTest : public PadWindowTest {
 protected:
  // Every hit of a search from Find through Find Next until none is left.
  std::vector<int> Hits(const QString& text, const QString& what, bool check1, bool check2) {
    pad->Editor()->setPlainText(text);
    FrmFind* find = pad->FindDialog();
    find->Text1()->setText(what);
    find->Check1()->setChecked(check1);
    find->Check2()->setChecked(check2);
    std::vector<int> hits;
    find->Find();
    while (find->FoundAt() >= 0 && hits.size() < 10) {
      hits.push_back(find->FoundAt());
      find->FindNext();
    }
    return hits;
  }
};

TEST_F(FindTest, CheckBoxesActCrossed) {
  const QString text = "Sin sin sinus SIN";
  struct Case {
    bool check1;
    bool check2;
    std::vector<int> hits;
    const char* why;
  };
  const std::vector<Case> cases = {
      {false, false, {0, 4, 8, 14}, "no box: every spelling, inside words too"},
      {true, false, {0, 4, 14}, "\"Case sensitive\" finds whole words in any case"},
      {false, true, {4, 8}, "\"Whole word only\" matches the case, inside words too"},
      {true, true, {4}, "both: whole words in the same case"},
  };
  for (const Case& c : cases) EXPECT_EQ(Hits(text, "sin", c.check1, c.check2), c.hits) << c.why;
}

TEST_F(FindTest, NoHitDisablesTheButtons) {
  Hits("abc", "zzz", false, false);
  FrmFind* find = pad->FindDialog();
  EXPECT_EQ(find->FoundAt(), -1);
  EXPECT_FALSE(find->FindNextButton()->isEnabled());
  EXPECT_FALSE(find->ReplaceButton()->isEnabled());
  EXPECT_FALSE(find->ReplaceAllButton()->isEnabled());
  find->Text1()->setText("b");
  EXPECT_TRUE(find->FindNextButton()->isEnabled()) << "a new text to find can be searched again";
}

TEST_F(FindTest, ReplaceGoesOnFromTheHit) {
  pad->Editor()->setPlainText("a a a");
  FrmFind* find = pad->FindDialog();
  find->Text1()->setText("a");
  find->Text2()->setText("b");
  find->Find();
  find->Replace();
  EXPECT_EQ(pad->Editor()->toPlainText(), "b a a");
  EXPECT_EQ(find->FoundAt(), 2);
  EXPECT_EQ(pad->Editor()->textCursor().selectedText(), "a");
}

TEST_F(FindTest, ReplaceAllReplacesEachHitOnce) {
  pad->Editor()->setPlainText("a a a");
  FrmFind* find = pad->FindDialog();
  find->Text1()->setText("a");
  find->Text2()->setText("aa");
  find->ReplaceAll();
  EXPECT_EQ(pad->Editor()->toPlainText(), "aa aa aa") << "the replacement's own text is not searched again";
  pad->Undo();
  EXPECT_EQ(pad->Editor()->toPlainText(), "a a a") << "Replace All is one undo step";
}

TEST_F(FindTest, FindNextFromTheMenu) {
  pad->Editor()->setPlainText("x y x");
  pad->FindDialog()->Text1()->setText("x");
  pad->Action("mnuFNext")->trigger();
  EXPECT_EQ(pad->FindDialog()->FoundAt(), 0);
  pad->Action("mnuFNext")->trigger();
  EXPECT_EQ(pad->FindDialog()->FoundAt(), 4);
}

}  // namespace
}  // namespace velmora::mathpad_qt
