#include "complex/complexmemory.h"

#include <gtest/gtest.h>

#include <string>

#include "complex/complexcalculator.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::complex {
namespace {

using platform::MsgIcon;

class MemoryTest : public ::testing::Test {
 protected:
  testing::RecordingMessageBox box;
  ComplexFields f;

  void Result(const char* re, const char* im, const char* line) {
    f.TextResultReal = re;
    f.TextResultImaginary = im;
    f.LabelRezultat = line;
  }
  void ExpectOneBox(const char* text, MsgIcon icon) {
    ASSERT_EQ(box.Boxes().size(), 1u);
    EXPECT_EQ(box.Boxes()[0].text, text);
    EXPECT_EQ(box.Boxes()[0].title, "Velmora");
    EXPECT_EQ(box.Boxes()[0].icon, icon);
  }
  void ExpectMemory(const char* re, const char* im, const char* shown) {
    EXPECT_EQ(f.txtmemoryReal, re);
    EXPECT_EQ(f.txtmemoryImaginar, im);
    EXPECT_EQ(f.lblMemory1, shown);
  }
};

struct NullCase {
  const char* line;
};

TEST_F(MemoryTest, NullResultIsRefused) {
  for (const NullCase c : {NullCase{"0."}, NullCase{"0"}}) {
    box.Clear();
    Result("0", "0", c.line);
    MemoryAdd(f, box);
    ExpectOneBox("Can't add null result.", MsgIcon::Information);
    ExpectMemory("", "", "");
    EXPECT_FALSE(f.Label4Visible);
  }
}

TEST_F(MemoryTest, NoResultAndNoMemoryAsksForCalculations) {
  Result("3", "4", "");
  MemoryAdd(f, box);
  ExpectOneBox("Perform some calculations first.", MsgIcon::None);
  ExpectMemory("", "", "");
}

TEST_F(MemoryTest, AddsResultRoundedToFivePlaces) {
  // 1.234565 is a tie at the 6th place, kept at 1.23456 (6 is even);
  // -0.1234567 goes to -0.12346.
  Result("1.234565", "-0.1234567", "1.234565+j-0.1234567");
  MemoryAdd(f, box);
  EXPECT_TRUE(box.Boxes().empty());
  ExpectMemory("1.23456", "-0.12346", "1.23456+j-0.12346");
  EXPECT_TRUE(f.Label4Visible);
}

TEST_F(MemoryTest, TwiceWithSameResultDoublesMemory) {
  Result("2.5", "-1", "2.5+j-1");
  MemoryAdd(f, box);
  MemoryAdd(f, box);
  ExpectMemory("5", "-2", "5+j-2");
}

TEST_F(MemoryTest, EmptyResultLineStillAddsToExistingMemory) {
  // Clear All empties the result line but not the result fields: with a
  // memory already there, M+ adds the fields once more.
  Result("1", "2", "1+j2");
  MemoryAdd(f, box);
  f.LabelRezultat.clear();
  MemoryAdd(f, box);
  EXPECT_TRUE(box.Boxes().empty());
  ExpectMemory("2", "4", "2+j4");
}

TEST_F(MemoryTest, SumBeyondRangeLeavesMemory) {
  f.txtmemoryReal = "1E+308";
  f.txtmemoryImaginar = "0";
  f.lblMemory1 = "1E+308+j0";
  Result("1E+308", "0", "1E+308+j0");
  MemoryAdd(f, box);
  ExpectOneBox("Invalid input.", MsgIcon::Critical);
  ExpectMemory("1E+308", "0", "1E+308+j0");
}

TEST_F(MemoryTest, ClearEmptiesAndHidesMarker) {
  Result("2.5", "-1", "2.5+j-1");
  MemoryAdd(f, box);
  MemoryClear(f);
  ExpectMemory("", "", "");
  EXPECT_FALSE(f.Label4Visible);
}

TEST_F(MemoryTest, RecallWithEmptyMemory) {
  MemoryAsZ1(f, box);
  ExpectOneBox("Memory is empty.", MsgIcon::Information);
  EXPECT_EQ(f.lblZ1, "0+i0");
  box.Clear();
  MemoryAsZ2(f, box);
  ExpectOneBox("Memory is empty.", MsgIcon::Information);
  EXPECT_EQ(f.lblZ2, "0+i0");
}

TEST_F(MemoryTest, RecallIntoEitherOperand) {
  Result("2.5", "-1", "2.5+j-1");
  MemoryAdd(f, box);
  MemoryAsZ1(f, box);
  EXPECT_EQ(f.lbla, "2.5");
  EXPECT_EQ(f.lblb, "-1");
  EXPECT_EQ(f.lblZ1, "2.5+j-1");
  EXPECT_EQ(f.LastInput, "NUMS");
  MemoryAsZ2(f, box);
  EXPECT_EQ(f.lblc, "2.5");
  EXPECT_EQ(f.lbld, "-1");
  EXPECT_EQ(f.lblZ2, "2.5+j-1");
  EXPECT_TRUE(box.Boxes().empty());
}

TEST_F(MemoryTest, RecallOfEmptyImaginaryEndsInPlusI0) {
  f.txtmemoryReal = "5";
  MemoryAsZ2(f, box);
  EXPECT_EQ(f.lblZ2, "5+i0");
  EXPECT_EQ(f.lblc, "5");
  EXPECT_EQ(f.lbld, "");
}

TEST(MemoryWithCalculator, MagnitudeOfZeroIsNullResult) {
  // |0 + i0| = 0: its real result line reads "0".
  testing::RecordingMessageBox box;
  ComplexCalculator calc(box);
  calc.Run(Operation::Abs);
  ASSERT_EQ(calc.Fields().LabelRezultat, "0");
  MemoryAdd(calc.Fields(), box);
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_EQ(box.Boxes()[0].text, "Can't add null result.");
}

TEST(MemoryWithCalculator, BeforeAnyCalculationResultIsNull) {
  testing::RecordingMessageBox box;
  ComplexCalculator calc(box);
  MemoryAdd(calc.Fields(), box);
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_EQ(box.Boxes()[0].text, "Can't add null result.");
}

TEST(MemoryWithCalculator, ResultThroughMemoryBackIntoOperand) {
  // 1 / 3 = .333333 in the result, .33333 in the memory.
  testing::RecordingMessageBox box;
  ComplexCalculator calc(box);
  auto& f = calc.Fields();
  f.lblZ1 = "1+j0";
  f.lblZ2 = "3+j0";
  calc.Run(Operation::Divide);
  MemoryAdd(f, box);
  MemoryAsZ1(f, box);
  EXPECT_EQ(f.lblZ1, "0.33333+j0");
  EXPECT_TRUE(box.Boxes().empty());
}

}  // namespace
}  // namespace velmora::complex
