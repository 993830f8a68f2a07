#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli engine: each input line is set as the formula of one formula
// engine that lives for the whole run; prints "ok" for a Push(...) or
// PopAll() line, otherwise the text of Result, or "fault" when the engine
// faults (a failed Push or PopAll too).
int RunEngine(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::cli
