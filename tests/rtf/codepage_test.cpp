#include "rtf/codepage.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora::rtf {
namespace {

TEST(CodePage, Cp1252BothWays) {
  struct Case {
    unsigned char byte;
    char32_t codePoint;
    const char* why;
  };
  const std::vector<Case> cases = {
      {0x41, U'A', "ASCII is itself"},
      {0x80, 0x20AC, "the euro sign"},
      {0x96, 0x2013, "en dash"},
      {0xB7, 0x00B7, "middle dot is Latin-1"},
      {0xE9, 0x00E9, "e acute is Latin-1"},
      {0x81, 0x0081, "an undefined byte is its C1 control"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(FromCp1252(c.byte), c.codePoint) << c.why;
    EXPECT_EQ(ToCp1252(c.codePoint), c.byte) << c.why;
  }
  EXPECT_FALSE(ToCp1252(0x03B1).has_value()) << "alpha is not in the code page";
}

TEST(CodePage, Utf8Checks) {
  struct Case {
    std::string bytes;
    bool valid;
    const char* why;
  };
  const std::vector<Case> cases = {
      {"plain", true, "ASCII"},
      {"\xCE\xB1\xE2\x82\xAC\xF0\x9D\x91\x93", true, "two, three and four bytes"},
      {"\xEF\xBF\xBD", true, "a real replacement character"},
      {"caf\xE9", false, "a Latin-1 byte"},
      {"\xE2\x82", false, "a cut sequence"},
      {"\xC0\xAF", false, "an overlong form"},
      {"\xED\xA0\x80", false, "a surrogate"},
  };
  for (const Case& c : cases) EXPECT_EQ(IsValidUtf8(c.bytes), c.valid) << c.why;
}

}  // namespace
}  // namespace velmora::rtf
