#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli plot: draws functions in one headless graph window.
int RunPlot(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::cli
