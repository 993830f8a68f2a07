#include "expr/formulatokenizer.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::expr {
namespace {

inline bool IsDigit(char c) { return c >= '0' && c <= '9'; }

inline bool IsNameStart(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

inline bool IsNameChar(char c) { return IsNameStart(c) || IsDigit(c) || c == '_'; }

// End of the number that starts at `i` (a digit or "."), or `i` when there is
// no digit in the mantissa (a lone ".").
std::size_t NumberEnd(std::string_view text, std::size_t i) {
  const std::size_t n = text.size();
  std::size_t digits = 0;
  while (i < n && IsDigit(text[i])) {
    ++i;
    ++digits;
  }
  if (i < n && text[i] == '.') {
    ++i;
    while (i < n && IsDigit(text[i])) {
      ++i;
      ++digits;
    }
  }
  if (digits == 0) return i;
  if (i < n && (text[i] == 'e' || text[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < n && (text[j] == '+' || text[j] == '-')) ++j;
    if (j < n && IsDigit(text[j])) {
      while (j < n && IsDigit(text[j])) ++j;
      i = j;
    }
  }
  return i;
}

}  // namespace

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

Token NextToken(std::string_view text, std::size_t& pos) {
  const std::size_t n = text.size();
  while (pos < n && IsBlank(text[pos])) ++pos;
  Token token;
  token.begin = pos;
  if (pos >= n) {
    token.kind = TokenKind::End;
    return token;
  }
  const char c = text[pos];
  if (IsDigit(c) || c == '.') {
    const std::size_t end = NumberEnd(text, pos);
    const bool hasDigit = end > pos + 1 || IsDigit(c);
    if (hasDigit) {
      token.kind = TokenKind::Number;
      token.length = end - pos;
      pos = end;
      return token;
    }
    token.kind = TokenKind::Invalid;  // "." with no digit
    token.length = 1;
    ++pos;
    return token;
  }
  if (IsNameStart(c)) {
    std::size_t end = pos + 1;
    while (end < n && IsNameChar(text[end])) ++end;
    token.kind = TokenKind::Name;
    token.length = end - pos;
    pos = end;
    return token;
  }
  token.length = 1;
  ++pos;
  switch (c) {
    case '+': token.kind = TokenKind::Plus; break;
    case '-': token.kind = TokenKind::Minus; break;
    case '*': token.kind = TokenKind::Star; break;
    case '/': token.kind = TokenKind::Slash; break;
    case '^': token.kind = TokenKind::Caret; break;
    case '(': token.kind = TokenKind::LeftBracket; break;
    case ')': token.kind = TokenKind::RightBracket; break;
    default: token.kind = TokenKind::Invalid; break;
  }
  return token;
}

std::vector<Token> Tokenize(std::string_view text) {
  std::vector<Token> tokens;
  std::size_t pos = 0;
  for (;;) {
    const Token token = NextToken(text, pos);
    tokens.push_back(token);
    if (token.kind == TokenKind::End) break;
  }
  return tokens;
}

double NumberValue(std::string_view numberText) {
  double value = 0.0;
  const auto [ptr, ec] = std::from_chars(numberText.data(), numberText.data() + numberText.size(), value,
                                         std::chars_format::general);
  if (ec == std::errc() && ptr == numberText.data() + numberText.size()) return value;
  // Out of range (or a form from_chars does not take, such as "5." or ".5"
  // on some libraries): the program's leading-number parse decides, which
  // reads an underflow as 0 and faults on an overflow.
  try {
    return TextToNumber(numberText);
  } catch (const Fault&) {
    return std::numeric_limits<double>::infinity();
  }
}

bool ScanShape(std::string_view text, std::string& shape, std::vector<double>& literals) {
  shape.clear();
  literals.clear();
  if (std::memchr(text.data(), kShapeNumberMarker, text.size()) != nullptr) return false;
  std::size_t copied = 0;
  std::size_t pos = 0;
  for (;;) {
    const Token token = NextToken(text, pos);
    if (token.kind == TokenKind::End) break;
    if (token.kind != TokenKind::Number) continue;
    shape.append(text.data() + copied, token.begin - copied);
    shape.push_back(kShapeNumberMarker);
    copied = token.begin + token.length;
    literals.push_back(NumberValue(text.substr(token.begin, token.length)));
  }
  shape.append(text.data() + copied, text.size() - copied);
  return true;
}

}  // namespace velmora::expr
