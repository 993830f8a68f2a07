// velmora-cli: batch front end on Velmora's engines. Each subcommand reads
// its cases from standard input or its arguments and writes plain text.
#include <iostream>
#include <string>
#include <vector>

#include "cli/command.h"

namespace {

void Usage(std::ostream& out) {
  out << "usage: velmora-cli COMMAND [ARGS...]\n\ncommands:\n";
  for (const auto& c : velmora::cli::Commands()) {
    out << "  " << c.name << "\n      " << c.summary << "\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  if (argc < 2) {
    Usage(std::cerr);
    return 2;
  }
  const std::string word = argv[1];
  if (word == "--help" || word == "-h" || word == "help") {
    Usage(std::cout);
    return 0;
  }
  std::vector<std::string> args(argv + 2, argv + argc);
  for (const auto& c : velmora::cli::Commands()) {
    if (word == c.name) return c.run(args, std::cin, std::cout, std::cerr);
  }
  std::cerr << "velmora-cli: unknown command '" << word << "'\n";
  Usage(std::cerr);
  return 2;
}
