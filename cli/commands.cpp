#include <istream>

#include "cli/command.h"
#include "cli/complexcommand.h"
#include "cli/numbercommand.h"

namespace velmora::cli {

const std::vector<Command>& Commands() {
  static const std::vector<Command> table = {
      {"number", "number totext|tonumber|roundto N|toshort: numeric text conventions, one line each",
       RunNumber},
      {"complex", "complex OP Z1 [Z2]: one Complex Calculator operation on operand texts such as 3+j-4",
       RunComplex},
  };
  return table;
}

bool ReadLine(std::istream& in, std::string& line) {
  if (!std::getline(in, line)) return false;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return true;
}

}  // namespace velmora::cli
