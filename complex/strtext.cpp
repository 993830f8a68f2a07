#include "complex/strtext.h"

#include "expr/numtext.h"

namespace velmora::complex {
namespace {

// "0.5" -> ".5", "-0.25" -> "-.25"; "0" itself stays.
void DropLeadingZero(std::string& text) {
  if (text.size() > 1 && text[0] == '0' && text[1] == '.') {
    text.erase(0, 1);
  } else if (text.size() > 2 && text[0] == '-' && text[1] == '0' && text[2] == '.') {
    text.erase(1, 1);
  }
}

}  // namespace

std::string ShortText(double x) {
  char buffer[expr::kNumberTextMax];
  const std::size_t n = expr::NumberToText(x, buffer);
  std::string text(buffer, n);
  DropLeadingZero(text);
  return text;
}

std::string PositionalText(double x) {
  std::string text = expr::NumberToPositionalText(x);
  DropLeadingZero(text);
  return text;
}

std::string StrText(double x) {
  std::string text = ShortText(x);
  if (text.empty() || text[0] != '-') text.insert(text.begin(), ' ');
  return text;
}

}  // namespace velmora::complex
