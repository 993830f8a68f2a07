#include "matrix/gridedit.h"

#include <gtest/gtest.h>

#include "tests/matrix/matrixbuild.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::matrix {
namespace {

using testing::GridTexts;
using testing::MakeGrid;
using testing::Rows;
using velmora::testing::RecordingMessageBox;

TEST(GridEdit, DeletingALineKeepsTheOtherCellsInOrder) {
  Grid g = MakeGrid({{"1", "2", "3"}, {"4", "", "6"}});
  EXPECT_TRUE(DeleteGridRow(g, 0));
  EXPECT_EQ(GridTexts(g), (Rows{{"4", "", "6"}}));
  EXPECT_TRUE(DeleteGridColumn(g, 1));
  EXPECT_EQ(GridTexts(g), (Rows{{"4", "6"}}));
  // Outside the grid nothing happens.
  EXPECT_FALSE(DeleteGridRow(g, 1));
  EXPECT_FALSE(DeleteGridColumn(g, -1));
  EXPECT_EQ(GridTexts(g), (Rows{{"4", "6"}}));
}

TEST(GridEdit, IdentityKeepsTheSize) {
  Grid g = MakeGrid({{"7", "7", "7"}, {"7", "7", "7"}});
  SetIdentityGrid(g);
  EXPECT_EQ(GridTexts(g), (Rows{{"1", "0", "0"}, {"0", "1", "0"}}));
}

TEST(GridEdit, MathPadTextPutsABlankWhereASignWouldStand) {
  const Grid g = MakeGrid({{"1", "-2", "3+j4"}, {"", ".5", "-j"}});
  EXPECT_EQ(MathPadText("Matrix [A]", g), "Matrix [A]\r\n\r\n| 1\t-2\t3+j4|\r\n|\t .5\t-j|\r\n");
}

// The swap and submit dialog's OK, one case a row.
struct PairCase {
  const char* a;
  const char* b;
  int count;
  bool answered;  // false: the dialog stays open
  int first;
  int second;
  const char* message;
  const char* why;
};

TEST(GridEdit, TheLineDialogsCheckTheirNumbers) {
  const PairCase cases[] = {
      {"1", "3", 3, true, 0, 2, "", "1-based numbers become 0-based indices"},
      {"1.5", "2", 3, false, -1, -1, "Number of row and column must be an integer.", "a fraction"},
      {"0", "2", 3, true, -1, -1, "0; 2 \r\nInvalid input.", "below 1"},
      {"2", "4", 3, true, -1, -1, "2; 4 \r\nInvalid input.", "beyond the grid"},
      {"", "1", 3, true, -1, -1, "; 1 \r\nInvalid input.", "an empty box reads 0"},
  };
  for (const PairCase& c : cases) {
    RecordingMessageBox box;
    const auto pair = CheckLinePair(c.a, c.b, c.count, box);
    EXPECT_EQ(pair.has_value(), c.answered) << c.why;
    if (pair) {
      EXPECT_EQ(pair->first, c.first) << c.why;
      EXPECT_EQ(pair->second, c.second) << c.why;
    }
    if (c.message[0] == '\0') {
      EXPECT_TRUE(box.Boxes().empty()) << c.why;
    } else {
      ASSERT_EQ(box.Boxes().size(), 1u) << c.why;
      EXPECT_EQ(box.Boxes()[0].text, c.message) << c.why;
    }
  }
}

TEST(GridEdit, TheMultiplyDialogRefusesALineOutsideTheGrid) {
  RecordingMessageBox box;
  const LineFactor ok = CheckLineFactor("2", "1+j1", 2, box);
  EXPECT_EQ(ok.index, 1);
  EXPECT_EQ(ok.factor, "1+j1");
  const LineFactor bad = CheckLineFactor("3", "2", 2, box);
  EXPECT_EQ(bad.index, -1);
  EXPECT_EQ(bad.factor, "");
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_EQ(box.Boxes()[0].text, "Invalid input: 3");
  EXPECT_EQ(box.Boxes()[0].icon, platform::MsgIcon::Critical);
}

}  // namespace
}  // namespace velmora::matrix
