#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli matrix OP A.mcf [B.mcf] [--scalar TEXT] [--precision N]
// [--zeros] [--html FILE]: one calculation of the Matrix Calculator on .mcf
// files. The result grid goes to standard output as an .mcf file (trace and
// chareq print one line instead); messages go to standard error.
int RunMatrix(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::cli
