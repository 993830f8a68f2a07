#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmora::app {

// The longest caption a menu entry that shows a user's text (a recent
// function, a graph window's title) is given, in characters.
inline constexpr std::size_t kMenuCaptionLimit = 60;

// A text cut in the middle to at most `limit` characters (UTF-8 code points),
// the cut marked by one "…", so that both the start and the end of a long
// function stay readable and the menu never grows wider than the screen. A
// text within the limit is returned as it is.
std::string ElideMiddle(std::string_view text, std::size_t limit = kMenuCaptionLimit);

}  // namespace velmora::app
