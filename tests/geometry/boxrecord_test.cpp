#include "geometry/boxrecord.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "expr/fault.h"

namespace velmora::geometry {
namespace {

struct ReadCase {
  const char* text;
  double value;
  const char* why;
};

class BoxReadTest : public ::testing::TestWithParam<ReadCase> {};

TEST_P(BoxReadTest, ReadsTheLeadingNumber) {
  BoxRecord boxes({"txtA"});
  boxes.SetText("txtA", GetParam().text);
  EXPECT_EQ(boxes.Read("txtA").Value(), GetParam().value) << GetParam().why;
}

INSTANTIATE_TEST_SUITE_P(Cases, BoxReadTest,
                         ::testing::Values(ReadCase{"", 0, "an empty box reads 0"},
                                           ReadCase{"12abc", 12, "a trailing word is ignored"},
                                           ReadCase{"1,5", 1, "a comma is no decimal separator"},
                                           ReadCase{"  -2.5", -2.5, "leading blanks and a sign"},
                                           ReadCase{"1e3", 1000, "exponent form"}));

struct WriteCase {
  double value;
  int places;
  const char* text;
  const char* why;
};

class BoxWriteTest : public ::testing::TestWithParam<WriteCase> {};

TEST_P(BoxWriteTest, WritesTheRoundedValue) {
  BoxRecord boxes({"txtA"});
  boxes.Write("txtA", GetParam().value, GetParam().places);
  EXPECT_EQ(boxes.Text("txtA"), GetParam().text) << GetParam().why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, BoxWriteTest,
    ::testing::Values(WriteCase{3.14159265358979, 5, "3.14159", "five places"},
                      WriteCase{2.000001, 5, "2", "no trailing zeros"},
                      WriteCase{0.123455, 5, "0.12346", "a tie rounds to the even digit"},
                      WriteCase{0.123445, 5, "0.12344", "a tie rounds to the even digit"},
                      WriteCase{51.428571, 2, "51.43", "two places when asked"},
                      WriteCase{-1.5, 5, "-1.5", "negative values"}));

TEST(BoxRecord, KeepsItsOrderAndClears) {
  BoxRecord boxes({"txtB", "txtA"});
  boxes.SetText("txtA", "1");
  boxes.SetText("txtB", "2");
  ASSERT_EQ(boxes.Size(), 2u);
  EXPECT_EQ(boxes.NameAt(0), "txtB");
  EXPECT_EQ(boxes.TextAt(1), "1");
  EXPECT_TRUE(boxes.Has("txtA"));
  EXPECT_FALSE(boxes.Has("txtC"));
  boxes.Clear();
  EXPECT_EQ(boxes.Text("txtA"), "");
  EXPECT_EQ(boxes.Text("txtB"), "");
}

TEST(BoxRecord, UnknownNameThrows) {
  BoxRecord boxes({"txtA"});
  EXPECT_THROW(boxes.Text("txtZ"), std::out_of_range);
  EXPECT_THROW(boxes.SetText("txtZ", "1"), std::out_of_range);
}

TEST(BoxRecord, OverflowingTextFaults) {
  BoxRecord boxes({"txtA"});
  boxes.SetText("txtA", "1e999");
  EXPECT_THROW(boxes.Read("txtA"), expr::Fault);
}

}  // namespace
}  // namespace velmora::geometry
