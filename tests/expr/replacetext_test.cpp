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
                      ReplaceCase{"", "K", "(1)", "", "empty text"}));

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
