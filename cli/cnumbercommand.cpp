#include "cli/cnumbercommand.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <istream>
#include <ostream>
#include <string_view>

#include "base/asciicase.h"
#include "cli/command.h"
#include "complex/complexnumber.h"
#include "expr/numtext.h"

namespace velmora::cli {
namespace {

using complex::ComplexNumber;

// A text field on one line: backslash, tab, CR and LF as \\, \t, \r, \n.
std::string Escaped(const std::string& text) {
  std::string out;
  for (char c : text) {
    switch (c) {
      case '\\': out += "\\\\"; break;
      case '\t': out += "\\t"; break;
      case '\r': out += "\\r"; break;
      case '\n': out += "\\n"; break;
      default: out.push_back(c);
    }
  }
  return out;
}

void PrintFields(std::ostream& out, const ComplexNumber& z) {
  std::string roots;
  for (std::size_t k = 0; k < z.RootCount(); ++k) {
    if (k > 0) roots += ';';
    roots += z.Root(static_cast<std::int32_t>(k));
  }
  out << "Real=" << expr::NumberToText(z.Real()) << "\tImaginary=" << expr::NumberToText(z.Imaginary())
      << "\tModulus=" << expr::NumberToText(z.Modulus()) << "\tAngle=" << expr::NumberToText(z.Angle())
      << "\tRectText=" << Escaped(z.RectText()) << "\tConjText=" << Escaped(z.ConjText())
      << "\tPolarText=" << Escaped(z.PolarText()) << "\tErrNumber=" << z.ErrNumber()
      << "\tErrDescription=" << Escaped(z.ErrDescription()) << "\tRoots=" << Escaped(roots) << '\n';
}

bool ParseNumber(std::string_view s, double& value) {
  while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
  while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
  if (s.empty()) return false;
  const auto [ptr, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
  return ec == std::errc() && ptr == s.data() + s.size();
}

// The words of an operation's argument, split at blanks.
std::vector<std::string> Words(const std::string& rest) {
  std::vector<std::string> words;
  std::size_t i = 0;
  while (i < rest.size()) {
    while (i < rest.size() && rest[i] == ' ') ++i;
    const std::size_t start = i;
    while (i < rest.size() && rest[i] != ' ') ++i;
    if (i > start) words.push_back(rest.substr(start, i - start));
  }
  return words;
}

class Session {
 public:
  // Runs one line; returns an error text, or "" when the line printed its fields.
  std::string Line(const std::string& line, std::ostream& out) {
    const std::size_t blank = line.find(' ');
    const std::string word = base::UpperCase(line.substr(0, blank));
    const std::string rest = blank == std::string::npos ? std::string() : line.substr(blank + 1);
    if (word == "RECT" || word == "POLAR") {
      numbers_.emplace_back();
      if (word == "RECT") {
        numbers_.back().SetRectText(rest);
      } else {
        numbers_.back().SetPolarText(rest);
      }
    } else if (word == "ADD" || word == "SUB" || word == "MUL" || word == "DIV") {
      if (numbers_.size() < 2) return word + " needs two numbers before it";
      ComplexNumber z;
      const ComplexNumber& a = numbers_[numbers_.size() - 2];
      const ComplexNumber& b = numbers_.back();
      if (word == "ADD") z.Add(a, b);
      if (word == "SUB") z.Subtract(a, b);
      if (word == "MUL") z.Multiply(a, b);
      if (word == "DIV") z.Divide(a, b);
      numbers_.push_back(z);
    } else if (word == "MULSELF") {
      if (numbers_.size() < 2) return word + " needs two numbers before it";
      ComplexNumber& target = numbers_.back();
      target.Multiply(target, numbers_[numbers_.size() - 2]);
    } else {
      if (numbers_.empty()) return word + " needs a number before it";
      ComplexNumber& z = numbers_.back();
      const std::vector<std::string> args = Words(rest);
      double n = 0;
      double places = 15;
      if (word == "NEG") {
        z.Negate();
      } else if (word == "SETRECT") {
        z.SetRectText(rest);
      } else if (word == "SETPOLAR") {
        z.SetPolarText(rest);
      } else if (word == "POWER" || word == "ROOTS" || word == "FRECT" || word == "FPOLAR") {
        if (args.empty() || !ParseNumber(args[0], n)) return word + " needs a number";
        if (args.size() > 1 && !ParseNumber(args[1], places)) return word + ": places must be a number";
        const auto Places = [](double v) {
          if (std::isnan(v)) return std::int32_t{0};
          return static_cast<std::int32_t>(std::clamp(v, -2147483648.0, 2147483647.0));
        };
        if (word == "POWER") z.Power(n);
        if (word == "ROOTS") z.Roots(n, Places(places));
        if (word == "FRECT") z.FormatRectangular(Places(n));
        if (word == "FPOLAR") z.FormatPolar(Places(n));
      } else {
        return "unknown operation '" + word + "'";
      }
    }
    PrintFields(out, numbers_.back());
    return std::string();
  }

 private:
  std::vector<ComplexNumber> numbers_;
};

}  // namespace

int RunCNumber(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err) {
  if (!args.empty()) {
    err << "usage: velmora-cli cnumber < lines\n";
    return 2;
  }
  Session session;
  std::string line;
  bool failed = false;
  while (ReadLine(in, line)) {
    if (line.empty()) {
      out << '\n';
      continue;
    }
    const std::string error = session.Line(line, out);
    if (!error.empty()) {
      out << "error: " << error << '\n';
      failed = true;
    }
  }
  return failed ? 1 : 0;
}

}  // namespace velmora::cli
