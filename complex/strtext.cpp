#include "complex/strtext.h"

#include "expr/numtext.h"

namespace velmora::complex {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string ShortText(double x) {
  char buffer[expr::kNumberTextMax];
  const std::size_t n = expr::NumberToText(x, buffer);
  std::string text(buffer, n);
  // "0.5" -> ".5", "-0.25" -> "-.25"; "0" itself stays.
  if (text.size() > 1 && text[0] == '0' && text[1] == '.') {
    text.erase(0, 1);
  } else if (text.size() > 2 && text[0] == '-' && text[1] == '0' && text[2] == '.') {
    text.erase(1, 1);
  }
  return text;
}

std::string StrText(double x) {
  std::string text = ShortText(x);
  if (text.empty() || text[0] != '-') text.insert(text.begin(), ' ');
  return text;
}

bool IsNumericText(std::string_view text) {
  std::size_t i = 0;
  const std::size_t n = text.size();
  while (i < n && text[i] == ' ') ++i;
  std::size_t end = n;
  while (end > i && text[end - 1] == ' ') --end;
  if (i < end && (text[i] == '+' || text[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < end && IsDigit(text[i])) {
    ++i;
    ++digits;
  }
  if (i < end && text[i] == '.') {
    ++i;
    while (i < end && IsDigit(text[i])) {
      ++i;
      ++digits;
    }
  }
  if (digits == 0) return false;
  if (i < end && (text[i] == 'e' || text[i] == 'E')) {
    ++i;
    if (i < end && (text[i] == '+' || text[i] == '-')) ++i;
    std::size_t expDigits = 0;
    while (i < end && IsDigit(text[i])) {
      ++i;
      ++expDigits;
    }
    if (expDigits == 0) return false;
  }
  return i == end;
}

}  // namespace velmora::complex
