#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli normalise CHAIN: prints each input line rewritten by one of the
// normalisation chains (cleanup, evalform, trial, zagrade, shortforms,
// tangent, zamenisve, tooltext).
int RunNormalise(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
                 std::ostream& err);

}  // namespace velmora::cli
