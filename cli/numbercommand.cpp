#include "cli/numbercommand.h"

#include <charconv>
#include <cmath>
#include <istream>
#include <ostream>
#include <string_view>

#include "cli/command.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::cli {
namespace {

// A line read as a C++ double literal: the whole line (blanks around it
// allowed) must be one, including "inf" and "nan" spellings.
bool ParseDoubleLiteral(std::string_view s, double& value) {
  while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
  while (!s.empty() && (s.back() == ' ' || s.back() == '\t')) s.remove_suffix(1);
  bool negative = false;
  if (!s.empty() && (s.front() == '+' || s.front() == '-')) {
    negative = s.front() == '-';
    s.remove_prefix(1);
  }
  if (s.empty()) return false;
  const auto [ptr, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
  if (ptr != s.data() + s.size()) return false;
  if (ec != std::errc()) return false;  // not a literal, or out of range
  if (negative) value = -value;
  return true;
}

}  // namespace

int RunNumber(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err) {
  if (args.empty()) {
    err << "usage: velmora-cli number totext|tonumber|roundto N|toshort\n";
    return 2;
  }
  const std::string& fn = args[0];
  int places = 0;
  if (fn == "roundto") {
    if (args.size() < 2) {
      err << "velmora-cli number roundto: N (the number of decimals) is missing\n";
      return 2;
    }
    const auto [p, ec] = std::from_chars(args[1].data(), args[1].data() + args[1].size(), places);
    if (ec != std::errc() || p != args[1].data() + args[1].size()) {
      err << "velmora-cli number roundto: N must be an integer\n";
      return 2;
    }
  } else if (fn != "totext" && fn != "tonumber" && fn != "toshort") {
    err << "velmora-cli number: unknown function '" << fn << "'\n";
    return 2;
  }
  std::string line;
  while (ReadLine(in, line)) {
    try {
      if (fn == "tonumber") {
        out << expr::NumberToText(expr::TextToNumber(line)) << '\n';
        continue;
      }
      // The other functions take the line as a C++ double literal, so that a
      // case can name any double exactly.
      double v = 0;
      if (!ParseDoubleLiteral(line, v)) throw expr::Fault(expr::Fault::kTypeMismatch);
      if (fn == "totext") {
        out << expr::NumberToText(v) << '\n';
      } else if (fn == "roundto") {
        out << expr::NumberToText(expr::RoundTo(v, places)) << '\n';
      } else {
        out << expr::ToShort(v) << '\n';
      }
    } catch (const expr::Fault&) {
      out << "fault\n";
    }
  }
  return 0;
}

}  // namespace velmora::cli
