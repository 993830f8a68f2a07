// The two clean-ups of the tools' hidden lists.
#include "tools/toollists.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora::tools {
namespace {

using List = std::vector<std::string>;

TEST(RemoveDuplicates, DropsLaterExactCopiesOnly) {
  struct Case {
    List in;
    List out;
    const char* why;
  };
  const Case cases[] = {
      {{"1", "1"}, {"1"}, "an exact copy goes"},
      {{"1", "2", "1", "1"}, {"1", "2"}, "every later copy goes, the first stays where it was"},
      {{"1", "1.0"}, {"1", "1.0"}, "texts are compared, not values"},
      {{"sin(x)", "SIN(X)"}, {"sin(x)", "SIN(X)"}, "the comparison is case-sensitive"},
      {{}, {}, "an empty list stays empty"},
  };
  for (const Case& c : cases) {
    List list = c.in;
    RemoveDuplicates(list);
    EXPECT_EQ(list, c.out) << c.why;
  }
}

TEST(RemoveNearValues, KeepsOneOfAGroupAndSkipsAfterARemoval) {
  struct Case {
    List in;
    List out;
    const char* why;
  };
  const Case cases[] = {
      {{"-1", "1"}, {"-1", "1"}, "values 2 apart both stay"},
      {{"1", "1.2"}, {"1"}, "within 0.3 the later one goes"},
      {{"0", "0.3"}, {"0", "0"}, "0.3 itself is near"},
      {{"1", "1.3"}, {"1", "1.3"}, "1.3 - 1 is a hair above 0.3 in binary: both stay"},
      {{"1", "1.31"}, {"1", "1.31"}, "beyond 0.3 both stay"},
      {{"0", "0.1", "-0.1"},
       {"-0.1", "0"},
       "a zero is seen and goes to its neighbour, and a 0 is added at the end"},
      {{"1", "1.1", "1.2"}, {"1.2"}, "1.2 is passed over after 1.1 goes, and its own sweep removes the 1"},
      {{"2", "1", "1.2", "1.1"}, {"2", "1.1"}, "the bounds stay: an index beyond the end does nothing"},
      {{"1", "1", "1.1"}, {"1", "1"}, "equal values are not near: exact copies are another clean-up's"},
  };
  for (const Case& c : cases) {
    List list = c.in;
    RemoveNearValues(list);
    EXPECT_EQ(list, c.out) << c.why;
  }
}

}  // namespace
}  // namespace velmora::tools
