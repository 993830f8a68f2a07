#pragma once

#include <span>
#include <string_view>

namespace velmora::graph {

// The function names of the window's list `C1`, in their order: choosing
// one inserts it where the caret of the function box stands.
std::span<const std::string_view> FunctionNames();

}  // namespace velmora::graph
