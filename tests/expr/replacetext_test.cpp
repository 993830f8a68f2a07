#include "expr/replacetext.h"

#include <gtest/gtest.h>

#include "expr/fault.h"

namespace velmora::expr {
namespace {

struct ReplaceCase {
  const char* text;
  const char* find;
  const char* replace;
  const char* expected;
  const char* why;
};

class ReplaceTextTest : public ::testing::TestWithParam<ReplaceCase> {};

TEST_P(ReplaceTextTest, Rescans) {
  const auto& c = GetParam();
  EXPECT_EQ(ReplaceText(c.text, c.find, c.replace), c.expected) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ReplaceTextTest,
    ::testing::Values(ReplaceCase{"SINK", "K", "(1.25)", "SIN(1.25)", "a value for K"},
                      ReplaceCase{"K^2+K", "K", "(-3)", "(-3)^2+(-3)", "every occurrence"},
                      ReplaceCase{"ab", "x", "x", "", "find equal to replace gives empty text"},
                      ReplaceCase{"ab", "", "y", "", "empty find gives empty text"},
                      ReplaceCase{"abc", "x", "y", "abc", "nothing found: the text itself"},
                      ReplaceCase{"aab", "ab", "b", "b", "rescan from the start catches the new occurrence"},
                      ReplaceCase{"aaab", "ab", "b", "b", "rescan repeats"},
                      ReplaceCase{"sink", "K", "(1)", "sink", "binary compare: case matters"},
                      ReplaceCase{"", "K", "(1)", "", "empty text"},
                      ReplaceCase{"abab", "ab", "ba", "bbaa", "swaps bubble to the left until none is left"},
                      ReplaceCase{"xaab", "aab", "ya", "xya", "an occurrence formed inside the replacement"},
                      ReplaceCase{"aaabb", "ab", "c", "aacb", "replacement does not re-form the pair"},
                      ReplaceCase{"KK", "KK", "(1)", "(1)", "two-character find"}));

TEST(ReplaceText, LongTextStaysLinear) {
  const std::string text(1'000'000, 'K');
  EXPECT_EQ(ReplaceText(text, "K", "(1)").size(), 3'000'000u);
  const std::string pairs = [] {
    std::string s;
    for (int i = 0; i < 200'000; ++i) s += "ab";
    return s;
  }();
  EXPECT_EQ(ReplaceText(pairs, "ab", "c").size(), 200'000u);
}

TEST(ReplaceText, ReplacementContainingFindFaultsInsteadOfLooping) {
  EXPECT_THROW(ReplaceText("K", "K", "(K)"), Fault);
}

struct AllCase {
  const char* text;
  const char* find;
  const char* replace;
  const char* expected;
  const char* why;
};

class ReplaceAllTest : public ::testing::TestWithParam<AllCase> {};

TEST_P(ReplaceAllTest, SinglePass) {
  const auto& c = GetParam();
  EXPECT_EQ(ReplaceAll(c.text, c.find, c.replace), c.expected) << c.why;
}

INSTANTIATE_TEST_SUITE_P(Cases, ReplaceAllTest,
                         ::testing::Values(AllCase{"aab", "ab", "b", "ab", "no rescan"},
                                           AllCase{"x+x", "x", "(x)", "(x)+(x)", "replacement may hold find"},
                                           AllCase{"abc", "", "y", "abc", "empty find leaves the text"},
                                           AllCase{"XxX", "X", "K", "KxK", "case-sensitive"},
                                           AllCase{"aaaa", "aa", "b", "bb", "non-overlapping, left to right"},
                                           AllCase{"", "a", "b", "", "empty text"}));

}  // namespace
}  // namespace velmora::expr
