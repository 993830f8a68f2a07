#include "platform/qt/qtstring.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora::qtplatform {
namespace {

struct TextCase {
  std::string utf8;
  QString qt;
  const char* why;
};

class QtStringTest : public ::testing::TestWithParam<TextCase> {};

TEST_P(QtStringTest, ConvertsBothWays) {
  const auto& c = GetParam();
  EXPECT_EQ(ToQString(c.utf8), c.qt) << c.why;
  EXPECT_EQ(ToStdString(c.qt), c.utf8) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, QtStringTest,
    ::testing::Values(TextCase{"SinX ; K | Cartesian", QStringLiteral("SinX ; K | Cartesian"), "ASCII"},
                      TextCase{"", QString(), "empty"},
                      TextCase{"\xC3\xB8 \xCF\x80", QString::fromUtf16(u"\u00F8 \u03C0"), "two-byte UTF-8"},
                      TextCase{"\xE2\x88\x9A"
                               "2",
                               QString::fromUtf16(u"\u221A2"), "three-byte UTF-8"},
                      TextCase{std::string("a\0b", 3), QString::fromUtf16(u"a\0b", 3), "an embedded NUL"}));

TEST(QtString, TakesAViewWithoutItsTerminator) {
  const std::string_view part = std::string_view("Graph 12").substr(0, 7);
  EXPECT_EQ(ToQString(part), QStringLiteral("Graph 1"));
}

}  // namespace
}  // namespace velmora::qtplatform
