#include <istream>

#include "cli/command.h"
#include "cli/numbercommand.h"

namespace velmora::cli {

const std::vector<Command>& Commands() {
  static const std::vector<Command> table = {
      {"number", "number totext|tonumber|roundto N|toshort: numeric text conventions, one line each",
       RunNumber},
  };
  return table;
}

bool ReadLine(std::istream& in, std::string& line) {
  if (!std::getline(in, line)) return false;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return true;
}

}  // namespace velmora::cli
