#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli complex OP Z1 [Z2]: one operation of the Complex Calculator's
// buttons on operand texts as its labels hold them. Prints each message box
// as "message: TEXT"; then, unless a test refused the operands, the result
// fields "REAL<TAB>IMAGINARY" and the lines of the log block.
int RunComplex(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::cli
