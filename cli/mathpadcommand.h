#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli mathpad convert IN OUT: loads IN as MathPad's Open does (rich
// text when the name ends in ".rtf" in any case, plain text otherwise) and
// saves OUT as MathPad's Save does (by OUT's name), replacing OUT
// atomically. velmora-cli mathpad text IN: prints the plain text of IN.
int RunMathPad(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::cli
