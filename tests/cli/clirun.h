#pragma once

#include <string>
#include <vector>

namespace velmora::testing {

// What one run of velmora-cli gave back.
struct CliRun {
  std::string out;
  int status = -1;  // as pclose reports it; 0 is a clean exit
  double seconds = 0;
};

// Runs velmora-cli with the words of `args` (each passed as one argument)
// and `input` on standard input, through a temporary file.
CliRun RunCli(const std::vector<std::string>& args, const std::string& input);

// The lines of a text, each without its "\n".
std::vector<std::string> Lines(const std::string& text);

}  // namespace velmora::testing
