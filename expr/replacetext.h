#pragma once

#include <string>
#include <string_view>

namespace velmora::expr {

// The evaluator's replace: every occurrence of `find` is replaced, and the
// search starts again from the beginning after each replacement, so a
// replacement that forms a new occurrence with the text before it is
// replaced too. It acts only when `find` is not empty and differs from
// `replace`; otherwise it returns an empty string, not the input. The
// comparison is binary (case-sensitive).
//
// A `replace` that contains `find` would rescan forever while the text grows
// until memory runs out; it faults (out of memory) at once instead, and so
// does any replacement chain that grows the text past 64 MiB.
std::string ReplaceText(std::string_view text, std::string_view find, std::string_view replace);

// The frame's and graph window's replace: split `text` at each occurrence of
// `find` and join the parts with `replace`. A single left-to-right pass,
// case-sensitive; an empty `find` leaves the text as it is.
std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view replace);

// ReplaceAll in place, for chains of pairs.
void ReplaceAllInPlace(std::string& text, std::string_view find, std::string_view replace);

}  // namespace velmora::expr
