#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::tools {

// The hidden lists of the tool windows hold texts; these are their two
// clean-ups. RemoveDuplicates drops every later item whose text equals an
// earlier one exactly.
void RemoveDuplicates(std::vector<std::string>& list);

// Adds a text at the end of a list and drops the exact duplicates: how the
// tools keep the lists of their function boxes.
void AddUnique(std::vector<std::string>& list, std::string_view text);

// Keeps one of a group of close values: for every item i and every item j
// whose value differs from item i's by at most 0.3 (and is not equal to it),
// item j goes. The bounds of both loops are taken when each loop starts and
// not adjusted after a removal, so the item after a removed one is passed
// over and an index beyond the end does nothing; a second call mends most of
// what the first skipped. When an item "0" was seen, a "0" is added at the
// end, so that a value at the origin survives its neighbours.
void RemoveNearValues(std::vector<std::string>& list);

// The band of RemoveNearValues.
inline constexpr double kNearBand = 0.3;

}  // namespace velmora::tools
