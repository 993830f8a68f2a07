#pragma once

#include <span>
#include <string_view>

namespace velmora::graph {

// An entry of the constants popup: its menu index (from 1), its caption and
// the text it inserts, an expression in the evaluator's notation. Names and
// values stand as the program has always shown them.
struct ConstantEntry {
  int index;
  std::string_view caption;
  std::string_view text;
};

// `mnuconst`, "Constants &A - J" (index 2 is a separator and has no entry),
// and `mnuconst2`, "Constants &M - S".
std::span<const ConstantEntry> ConstantsAToJ();
std::span<const ConstantEntry> ConstantsMToS();

// `mnuconv`, "&Convert Result": index 0 to 3.
std::span<const std::string_view> ConvertEntries();

}  // namespace velmora::graph
