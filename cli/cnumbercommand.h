#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli cnumber: each input line makes a complex number (RECT text,
// POLAR text) or works on the last ones (ADD, SUB, MUL, DIV, MULSELF, NEG,
// POWER n, ROOTS n [places], FRECT places, FPOLAR places, SETRECT text,
// SETPOLAR text); each prints the fields of the number it leaves as one line
// of tab-separated name=value pairs.
int RunCNumber(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::cli
