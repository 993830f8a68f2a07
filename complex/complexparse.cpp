#include "complex/complexparse.h"

#include <optional>

#include "complex/complexmessages.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::complex {
namespace {

// Mid(s, start, length): length characters from the 1-based start, fewer at
// the end of s. A start below 1 or a negative length is the platform's
// invalid call, given here as no value so that the statement is skipped.
std::optional<std::string> Mid(const std::string& s, long start, long length) {
  if (start < 1 || length < 0) return std::nullopt;
  const auto from = static_cast<std::size_t>(start - 1);
  if (from >= s.size()) return std::string();
  return s.substr(from, static_cast<std::size_t>(length));
}

// Mid(s, start): everything from the 1-based start.
std::optional<std::string> Mid(const std::string& s, long start) {
  return Mid(s, start, static_cast<long>(s.size()));
}

// The number text of -1 * Val(text), or no value when Val faults.
std::optional<std::string> Negated(const std::string& text) {
  try {
    return expr::NumberToText(-1.0 * expr::TextToNumber(text));
  } catch (const expr::Fault&) {
    return std::nullopt;
  }
}

// The 1-based position of the imaginary unit: the first "i" in any case, or
// failing that the first "j"; 0 when there is neither.
long UnitPosition(const std::string& text) {
  for (const char* units : {"iI", "jJ"}) {
    const auto p = text.find_first_of(units);
    if (p != std::string::npos) return static_cast<long>(p) + 1;
  }
  return 0;
}

void Parse(std::string& text, std::string& real, std::string& imaginary, bool checkClosingBracket,
           platform::MessageBox& box) {
  std::erase(text, ' ');
  if (!text.empty() && text.front() == ')') {
    Show(box, kRealPartBrackets);
    return;
  }
  const long p = UnitPosition(text);
  if (p == 0) {
    Show(box, kNoImaginaryUnit);
    return;
  }
  // The real part ends before the sign that stands in front of the unit.
  // With the unit first the length is negative, the statement fails, and
  // the field keeps what it held.
  if (auto part = Mid(text, 1, p - 2)) real = *part;
  if (real.empty()) real = "0";
  // The sign in front of the unit; with the unit first it cannot be read.
  std::string sign;
  if (auto s = Mid(text, p - 1, 1)) sign = *s;

  if (Mid(text, p + 1, 1).value_or("") != "(") {
    imaginary = Mid(text, p + 1).value_or("");
    if (sign == "-") {
      if (auto negated = Negated(imaginary)) imaginary = *negated;
    }
    if (imaginary.empty()) imaginary = "0";
    return;
  }
  // A bracketed part: whatever follows "(" with its last character dropped,
  // which is meant to be the ")".
  if (checkClosingBracket && text.back() != ')') {
    Show(box, kCheckBrackets);
    return;
  }
  if (auto part = Mid(text, p + 2, static_cast<long>(text.size()) - 2)) imaginary = *part;
  if (auto part = Mid(imaginary, 1, static_cast<long>(imaginary.size()) - 1)) imaginary = *part;
  if (sign == "-") {
    if (auto negated = Negated(imaginary)) imaginary = *negated;
  }
}

}  // namespace

void ParseZ1(std::string& text, ComplexFields& fields, platform::MessageBox& box) {
  Parse(text, fields.lbla, fields.lblb, false, box);
}

void ParseZ2(std::string& text, ComplexFields& fields, platform::MessageBox& box) {
  Parse(text, fields.lblc, fields.lbld, true, box);
}

}  // namespace velmora::complex
