#include "expr/formulatokenizer.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::expr {
namespace {

// Character classes, looked up once per byte on the hot path of the shape scan.
enum CharClass : std::uint8_t { kOther = 0, kDigit = 1, kPoint = 2, kNameStart = 4, kNameOnly = 8 };

constexpr std::array<std::uint8_t, 256> MakeClasses() {
  std::array<std::uint8_t, 256> t{};
  for (int c = '0'; c <= '9'; ++c) t[static_cast<std::size_t>(c)] = kDigit;
  t['.'] = kPoint;
  for (int c = 'A'; c <= 'Z'; ++c) t[static_cast<std::size_t>(c)] = kNameStart;
  for (int c = 'a'; c <= 'z'; ++c) t[static_cast<std::size_t>(c)] = kNameStart;
  for (int c = 0x80; c <= 0xFF; ++c) t[static_cast<std::size_t>(c)] = kNameStart;
  t['_'] = kNameOnly;
  return t;
}

constexpr std::array<std::uint8_t, 256> kClasses = MakeClasses();

inline std::uint8_t ClassOf(char c) { return kClasses[static_cast<unsigned char>(c)]; }
inline bool IsDigit(char c) { return ClassOf(c) == kDigit; }
inline bool IsNameStart(char c) { return ClassOf(c) == kNameStart; }
inline bool IsNameChar(char c) { return (ClassOf(c) & (kNameStart | kDigit | kNameOnly)) != 0; }

// 10^0 to 10^22: every one exactly a double.
constexpr double kExactPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                        1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The value of a number beyond the fast rule of ScanNumber: from_chars, and
// for an out-of-range literal the program's leading-number parse, which reads
// an underflow as 0 and faults on an overflow (infinity here).
double SlowNumberValue(std::string_view numberText) {
  double value = 0.0;
  const auto [ptr, ec] = std::from_chars(numberText.data(), numberText.data() + numberText.size(), value,
                                         std::chars_format::general);
  if (ec == std::errc() && ptr == numberText.data() + numberText.size()) return value;
  try {
    return TextToNumber(numberText);
  } catch (const Fault&) {
    return std::numeric_limits<double>::infinity();
  }
}

// Reads the number that starts at `i` (a digit or "."): digits, at most one
// ".", digits, and an exponent only when a digit follows the "E" (after an
// optional sign). Returns its end; for a lone "." (no digit) that is i + 1.
// With `value`, also stores the number's value: when the mantissa has at most
// 18 significant digits (and is below 2^53) and the power of ten is exact,
// one correctly rounded multiplication or division gives it, the same double
// a full parse gives, bit for bit; otherwise the full parse does.
std::size_t ScanNumber(std::string_view text, std::size_t i, double* value) {
  const std::size_t begin = i;
  const std::size_t n = text.size();
  std::uint64_t mantissa = 0;
  int significant = 0;
  int fraction = 0;
  std::size_t digits = 0;
  bool fast = true;
  const auto take = [&](char c, bool afterPoint) {
    ++digits;
    if (!fast) return;
    mantissa = mantissa * 10 + static_cast<std::uint64_t>(c - '0');
    if (afterPoint) ++fraction;
    if (mantissa != 0 && ++significant > 18) fast = false;
  };
  for (; i < n && IsDigit(text[i]); ++i) take(text[i], false);
  if (i < n && text[i] == '.') {
    for (++i; i < n && IsDigit(text[i]); ++i) take(text[i], true);
  }
  if (digits == 0) return i;
  int exponent = 0;
  if (i < n && (text[i] == 'e' || text[i] == 'E')) {
    std::size_t j = i + 1;
    const bool negative = j < n && text[j] == '-';
    if (j < n && (text[j] == '+' || text[j] == '-')) ++j;
    if (j < n && IsDigit(text[j])) {
      int expDigits = 0;
      for (; j < n && IsDigit(text[j]); ++j) {
        if (++expDigits <= 4) exponent = exponent * 10 + (text[j] - '0');
      }
      if (expDigits > 4) fast = false;
      if (negative) exponent = -exponent;
      i = j;
    }
  }
  if (value == nullptr) return i;
  const int scale = exponent - fraction;
  if (fast && mantissa <= (std::uint64_t{1} << 53)) {
    const double m = static_cast<double>(mantissa);
    if (scale == 0) {
      *value = m;
      return i;
    }
    if (scale > 0 && scale <= 22) {
      *value = m * kExactPowersOfTen[scale];
      return i;
    }
    if (scale < 0 && scale >= -22) {
      *value = m / kExactPowersOfTen[-scale];
      return i;
    }
    if (mantissa == 0) {
      *value = 0.0;
      return i;
    }
  }
  *value = SlowNumberValue(text.substr(begin, i - begin));
  return i;
}

}  // namespace

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
    const std::size_t end = ScanNumber(text, pos, nullptr);
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
  ScanNumber(numberText, 0, &value);
  return value;
}

bool ScanShape(std::string_view text, std::string& shape, std::vector<double>& literals) {
  shape.clear();
  literals.clear();
  // The tokens that matter here are names (whose digits are no literals) and
  // numbers; every other byte is a token of its own or a blank, copied as it
  // is. This walks the bytes with the same rules as NextToken.
  const std::size_t n = text.size();
  std::size_t copied = 0;
  std::size_t i = 0;
  while (i < n) {
    const char c = text[i];
    const std::uint8_t cls = ClassOf(c);
    if (cls == kOther) {
      if (c == kShapeNumberMarker) return false;
      ++i;
    } else if (cls == kNameStart) {
      for (++i; i < n && IsNameChar(text[i]);) ++i;
    } else if (cls == kNameOnly) {
      ++i;  // "_" outside a name: an invalid token
    } else {
      double value = 0.0;
      const std::size_t end = ScanNumber(text, i, &value);
      if (end == i + 1 && c == '.') {  // a point with no digit
        ++i;
        continue;
      }
      shape.append(text.data() + copied, i - copied);
      shape.push_back(kShapeNumberMarker);
      literals.push_back(value);
      copied = i = end;
    }
  }
  shape.append(text.data() + copied, n - copied);
  return true;
}

}  // namespace velmora::expr
