#include "geometry/convertresult.h"

#include <gtest/gtest.h>

#include "tests/support/recordingmessagebox.h"

namespace velmora::geometry {
namespace {

using platform::MsgIcon;

struct BaseCase {
  const char* value;
  int index;
  const char* text;  // null: refused with `message`
  const char* mode;
  const char* message;
  const char* why;
};

class ConvertResultTest : public ::testing::TestWithParam<BaseCase> {};

TEST_P(ConvertResultTest, Converts) {
  const auto& c = GetParam();
  velmora::testing::RecordingMessageBox box;
  const auto result = ConvertResult(c.value, c.index, box);
  if (c.text != nullptr) {
    ASSERT_TRUE(result.has_value()) << c.why;
    EXPECT_EQ(result->text, c.text) << c.why;
    EXPECT_EQ(result->mode, c.mode) << c.why;
    EXPECT_TRUE(box.Boxes().empty()) << c.why;
    return;
  }
  EXPECT_FALSE(result.has_value()) << c.why;
  if (c.message == nullptr) {
    EXPECT_TRUE(box.Boxes().empty()) << c.why;
    return;
  }
  ASSERT_EQ(box.Boxes().size(), 1u) << c.why;
  EXPECT_EQ(box.Boxes()[0].text, c.message) << c.why;
  EXPECT_EQ(box.Boxes()[0].icon, MsgIcon::Critical) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ConvertResultTest,
    ::testing::Values(
        BaseCase{"32768", 1, nullptr, nullptr, "To convert to binary, the result value must be <= 32767.",
                 "just above the bound"},
        BaseCase{"32767.4", 1, nullptr, nullptr, "To convert to binary, the result value must be <= 32767.",
                 "a fraction above the bound"},
        BaseCase{"32767", 1, "111111111111111", "bin", nullptr, "the bound gives fifteen ones"},
        // 6: 3 "0", 1.5 "1" -> 1, 0.5 "1" -> 0: "011", read as the number 11.
        BaseCase{"6", 1, "11", "bin", nullptr, "digits lowest first, not reversed"},
        // 2.5 goes by its digit 5 to 3: 1.5 "1", 0.5 "1".
        BaseCase{"2.5", 1, "11", "bin", nullptr, "a digit 5 rounds up"},
        // 2.4 goes to 2: 1 "0", 0.5 "1": "01" is 1.
        BaseCase{"2.4", 1, "1", "bin", nullptr, "a digit below 5 rounds down"},
        // 12: 6 "0", 3 "0", 1.5 "1", 0.5 "1": "0011" is 11.
        BaseCase{"12", 1, "11", "bin", nullptr, "leading zeros of the reversed digits vanish"},
        // 5: 2.5 "1", 1 "0", 0.5 "1": "101".
        BaseCase{"5", 1, "101", "bin", nullptr, "a palindrome reads right"},
        BaseCase{"16384", 1, "1", "bin", nullptr, "a power of two is fourteen zeros and a one"},
        BaseCase{"1", 1, "1", "bin", nullptr, "one"}, BaseCase{"0", 1, "0", "bin", nullptr, "zero"},
        BaseCase{"255", 2, "FF", "hex", nullptr, "upper-case hexadecimal, no prefix"},
        BaseCase{"2.5", 2, "2", "hex", nullptr, "rounded to an integer, ties to even"},
        BaseCase{"3.5", 2, "4", "hex", nullptr, "ties to even, upwards"},
        BaseCase{"-1", 2, "FFFFFFFF", "hex", nullptr, "a negative value is its two's complement"},
        BaseCase{"2147483647", 2, "7FFFFFFF", "hex", nullptr, "the largest integer"},
        BaseCase{"3000000000", 2, nullptr, nullptr, "Overflow", "beyond the 32-bit range"},
        BaseCase{"8", 3, "10", "oct", nullptr, "octal"},
        BaseCase{"64", 3, "100", "oct", nullptr, "octal of 64"},
        BaseCase{"12.50", 0, "12.50", "dec", nullptr, "decimal writes the value back as it is"},
        BaseCase{"5", 4, nullptr, nullptr, nullptr, "no such base"}));

}  // namespace
}  // namespace velmora::geometry
