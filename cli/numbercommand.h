#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli number FUNCTION [N]: each input line through one numeric text
// conversion; prints the result text, or "fault".
int RunNumber(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::cli
