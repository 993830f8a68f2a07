#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// One subcommand of velmora-cli: its word, a one-line summary for the usage
// text, and the function that runs it with the words after the subcommand.
struct Command {
  const char* name;
  const char* summary;
  int (*run)(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
};

// The table of subcommands (cli/commands.cpp).
const std::vector<Command>& Commands();

// Reads standard-input lines for the line-per-line commands: strips a
// trailing CR so that files written on any platform work, and keeps empty
// lines so that every input line gets its output line.
bool ReadLine(std::istream& in, std::string& line);

}  // namespace velmora::cli
