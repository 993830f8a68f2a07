#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli evaluator [--trial] [--no-window] [--field NAME=VALUE]...
// Each input line goes to the text evaluator. Plain: Evaluate(line, silent)
// and "<Error>\t<result>". --trial: the line is typed text, cleaned up and
// rewritten by ProveriSyn, then evaluated loudly; prints "ok" or the message
// that would be shown (lines of one message joined by " | "). A fault that
// leaves the evaluator prints "fault".
int RunEvaluator(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
                 std::ostream& err);

}  // namespace velmora::cli
