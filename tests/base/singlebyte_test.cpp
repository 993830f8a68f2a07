#include "base/singlebyte.h"

#include <gtest/gtest.h>

namespace velmora::base {
namespace {

struct Row {
  const char* why;
  std::string_view utf8;
  char32_t lowest;
  std::string_view bytes;
};

const Row kRows[] = {
    {"ASCII stays", "abc 1+2", 0x80, "abc 1+2"},
    {"a Latin-1 letter becomes its byte", "\xC3\xA9t\xC3\xA9", 0x80, "\xE9t\xE9"},
    {"the top of Latin-1", "\xC3\xBF", 0xA0, "\xFF"},
    {"Latin-1 keeps a C1 control", "\xC2\x85", 0x80, "\x85"},
    {"below `lowest` a C1 control is a question mark", "\xC2\x85", 0xA0, "?"},
    {"no-break space is the first byte kept from 0xA0", "\xC2\xA0", 0xA0, "\xA0"},
    {"a two-byte character beyond U+00FF", "\xC4\x80", 0x80, "?"},
    {"a three-byte character is one question mark",
     "a\xE2\x82\xAC"
     "b",
     0xA0, "a?b"},
    {"a four-byte character is one question mark", "\xF0\x9F\x98\x80", 0x80, "?"},
    {"a lead byte cut short at the end", "\xC3", 0x80, "?"},
    {"a lead byte without its continuation keeps what follows",
     "\xC3"
     "A",
     0x80, "?A"},
    {"a stray continuation byte", "\x80x", 0x80, "?x"},
    {"an overlong form of an ASCII letter", "\xC1\x81", 0x80, "?"},
};

TEST(Utf8ToSingleByte, Table) {
  for (const Row& row : kRows) {
    EXPECT_EQ(Utf8ToSingleByte(row.utf8, row.lowest), row.bytes) << row.why;
  }
}

}  // namespace
}  // namespace velmora::base
