// Long user texts in menu captions: cut in the middle at the limit.
#include "app/menucaption.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora::app {
namespace {

// The number of characters (UTF-8 code points) of a text.
std::size_t Characters(const std::string& text) {
  std::size_t count = 0;
  for (char c : text) count += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
  return count;
}

TEST(ElideMiddle, CutsLongTextsAndKeepsShortOnes) {
  const std::string sixty(60, 'a');
  const std::string sixtyOne = std::string(30, 'a') + "M" + std::string(30, 'z');
  struct Case {
    std::string text;
    std::size_t limit;
    std::string expected;
    const char* why;
  };
  const Case cases[] = {
      {"SinX ; K | Cartesian", 60, "SinX ; K | Cartesian", "a short text stands as it is"},
      {"", 60, "", "an empty text stays empty"},
      {sixty, 60, sixty, "exactly the limit is not cut"},
      {sixtyOne, 60, std::string(30, 'a') + "\xE2\x80\xA6" + std::string(29, 'z'),
       "one over: the middle goes, the start keeps the odd character"},
      {"abcdefghij", 5, "ab\xE2\x80\xA6ij", "an odd limit keeps as much of both ends"},
      {"abcdefghij", 4, "ab\xE2\x80\xA6j", "an even limit: the start keeps one more"},
      {"abcdefghij", 1, "\xE2\x80\xA6", "a limit of one is the mark alone"},
      {"\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9", 3, "\xC3\xA9\xE2\x80\xA6\xC3\xA9",
       "two-byte letters are never split"},
  };
  for (const auto& c : cases) {
    const std::string elided = ElideMiddle(c.text, c.limit);
    EXPECT_EQ(elided, c.expected) << c.why;
    EXPECT_LE(Characters(elided), c.limit) << c.why;
  }
}

TEST(ElideMiddle, ALongRecentFunctionFitsTheMenuLimit) {
  const std::string line = "Sin(X)*Cos(2*X)+" + std::string(200, '1') + "*Tan(X/3) ; K | Cartesian";
  const std::string elided = ElideMiddle(line);
  EXPECT_EQ(Characters(elided), kMenuCaptionLimit);
  EXPECT_EQ(elided.substr(0, 16), "Sin(X)*Cos(2*X)+");
  EXPECT_EQ(elided.substr(elided.size() - 12), " | Cartesian") << "the type at the end stays readable";
}

}  // namespace
}  // namespace velmora::app
