#include "expr/numtext.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "expr/fault.h"

namespace velmora::expr {
namespace {

constexpr std::uint64_t kSignBit = 0x8000000000000000ULL;
constexpr std::uint64_t kQuietBit = 0x0008000000000000ULL;
constexpr std::uint64_t kPayloadMask = 0x0007FFFFFFFFFFFFULL;

std::string_view NonFiniteText(double x) {
  if (std::isinf(x)) return x > 0 ? kPosInf : kNegInf;
  // The indefinite value is the quiet NaN with an empty payload, the one the
  // processor makes for 0/0; any other NaN is spelled as a plain quiet NaN.
  const auto bits = std::bit_cast<std::uint64_t>(x);
  const bool indefinite = (bits & kQuietBit) != 0 && (bits & kPayloadMask) == 0;
  if (indefinite) return (bits & kSignBit) != 0 ? kNegInd : kPosInd;
  return kQNaN;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Decimal exponent of the first significant digit of a scanned number, used
// only to tell an overflow from an underflow when the parse is out of range.
long LeadingExponent(std::string_view mantissa, long exponent) {
  long intDigits = 0;
  bool seenNonZero = false;
  long zerosAfterPoint = 0;
  bool afterPoint = false;
  for (char c : mantissa) {
    if (c == '.') {
      afterPoint = true;
      continue;
    }
    if (!afterPoint) {
      if (c != '0' || seenNonZero) {
        seenNonZero = true;
        ++intDigits;
      }
    } else if (!seenNonZero) {
      if (c == '0') {
        ++zerosAfterPoint;
      } else {
        seenNonZero = true;
      }
    }
  }
  if (intDigits > 0) return exponent + intDigits - 1;
  return exponent - zerosAfterPoint - 1;
}

// The 15-significant-digit general form from the shortest digits that read
// back as x. When those are at most 15 digits they are also x rounded to 15
// digits: x lies within half a unit in the last place of them, far inside
// half a step of the 15-digit grid. Returns 0 when there are more than 15,
// which the caller then rounds the long way, and for subnormal values, whose
// last place is too coarse for the argument. It saves the precision
// formatting on the plot's path, where values have few digits.
std::size_t ShortestGeneral15(double x, char* buffer) {
  if (std::fabs(x) < std::numeric_limits<double>::min()) return 0;
  std::array<char, 40> sci{};
  const auto [end, ec] = std::to_chars(sci.data(), sci.data() + sci.size(), x, std::chars_format::scientific);
  if (ec != std::errc()) return 0;
  const char* p = sci.data();
  char* out = buffer;
  if (*p == '-') *out++ = *p++;
  std::array<char, 20> digits{};
  int count = 0;
  for (; p != end && *p != 'e'; ++p) {
    if (*p == '.') continue;
    if (count == 15) return 0;
    digits[static_cast<std::size_t>(count++)] = *p;
  }
  while (count > 1 && digits[static_cast<std::size_t>(count - 1)] == '0') --count;
  int exp10 = 0;
  if (p != end) {
    ++p;  // 'e'
    const bool negative = *p == '-';
    if (*p == '+' || *p == '-') ++p;
    for (; p != end; ++p) exp10 = exp10 * 10 + (*p - '0');
    if (negative) exp10 = -exp10;
  }
  const auto digit = [&](int k) { return digits[static_cast<std::size_t>(k)]; };
  if (exp10 < -4 || exp10 >= 15) {
    // d.dddE+XX, with at least two exponent digits, as "%.15G" writes it.
    *out++ = digit(0);
    if (count > 1) {
      *out++ = '.';
      for (int k = 1; k < count; ++k) *out++ = digit(k);
    }
    *out++ = 'E';
    *out++ = exp10 < 0 ? '-' : '+';
    const int e = exp10 < 0 ? -exp10 : exp10;
    if (e >= 100) *out++ = static_cast<char>('0' + e / 100);
    *out++ = static_cast<char>('0' + (e / 10) % 10);
    *out++ = static_cast<char>('0' + e % 10);
  } else if (exp10 < 0) {
    *out++ = '0';
    *out++ = '.';
    for (int k = 0; k < -exp10 - 1; ++k) *out++ = '0';
    for (int k = 0; k < count; ++k) *out++ = digit(k);
  } else {
    for (int k = 0; k <= exp10; ++k) *out++ = k < count ? digit(k) : '0';
    if (count > exp10 + 1) {
      *out++ = '.';
      for (int k = exp10 + 1; k < count; ++k) *out++ = digit(k);
    }
  }
  return static_cast<std::size_t>(out - buffer);
}

}  // namespace

std::size_t NumberToText(double x, char* buffer) {
  if (!std::isfinite(x)) {
    const auto text = NonFiniteText(x);
    std::memcpy(buffer, text.data(), text.size());
    return text.size();
  }
  if (x == 0.0) {  // also -0, which the platform prints as "0"
    buffer[0] = '0';
    return 1;
  }
  if (const std::size_t n = ShortestGeneral15(x, buffer); n != 0) return n;
  const auto [end, ec] = std::to_chars(buffer, buffer + kNumberTextMax, x, std::chars_format::general, 15);
  (void)ec;  // 15 digits of a finite double always fit the buffer
  for (char* p = buffer; p != end; ++p) {
    if (*p == 'e') {
      *p = 'E';
      break;
    }
  }
  return static_cast<std::size_t>(end - buffer);
}

std::string NumberToText(double x) {
  std::array<char, kNumberTextMax> buffer{};
  const std::size_t n = NumberToText(x, buffer.data());
  return std::string(buffer.data(), n);
}

std::string NumberToPositionalText(double x) {
  std::array<char, kNumberTextMax> buffer{};
  const std::size_t n = NumberToText(x, buffer.data());
  const std::string_view general(buffer.data(), n);
  const std::size_t e = general.find('E');
  if (e == std::string_view::npos) return std::string(general);
  // d.dddE+XX: the digits without the point, and the place of the first one.
  std::string_view mantissa = general.substr(0, e);
  std::string text;
  if (!mantissa.empty() && mantissa.front() == '-') {
    text.push_back('-');
    mantissa.remove_prefix(1);
  }
  std::string digits;
  for (const char c : mantissa)
    if (IsDigit(c)) digits.push_back(c);
  int exp10 = 0;
  const std::string_view exponent = general.substr(e + 1);
  const bool negative = !exponent.empty() && exponent.front() == '-';
  for (const char c : exponent)
    if (IsDigit(c)) exp10 = exp10 * 10 + (c - '0');
  if (negative) exp10 = -exp10;
  const auto count = static_cast<int>(digits.size());
  if (exp10 < 0) {
    text += "0.";
    text.append(static_cast<std::size_t>(-exp10 - 1), '0');
    text += digits;
  } else if (exp10 + 1 >= count) {
    text += digits;
    text.append(static_cast<std::size_t>(exp10 + 1 - count), '0');
  } else {
    text += digits.substr(0, static_cast<std::size_t>(exp10 + 1));
    text += '.';
    text += digits.substr(static_cast<std::size_t>(exp10 + 1));
  }
  return text;
}

bool IsNumericText(std::string_view text) {
  std::size_t i = 0;
  std::size_t end = text.size();
  const auto blank = [](char c) { return c == ' ' || c == '\t'; };
  while (i < end && blank(text[i])) ++i;
  while (end > i && blank(text[end - 1])) --end;
  if (i < end && (text[i] == '+' || text[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < end && IsDigit(text[i])) ++i, ++digits;
  if (i < end && text[i] == '.') {
    ++i;
    while (i < end && IsDigit(text[i])) ++i, ++digits;
  }
  if (digits == 0) return false;
  if (i < end && (text[i] == 'e' || text[i] == 'E')) {
    ++i;
    if (i < end && (text[i] == '+' || text[i] == '-')) ++i;
    std::size_t exponentDigits = 0;
    while (i < end && IsDigit(text[i])) ++i, ++exponentDigits;
    if (exponentDigits == 0) return false;
  }
  return i == end;
}

double TextToNumber(std::string_view text) {
  std::size_t i = 0;
  const std::size_t n = text.size();
  while (i < n && (text[i] == ' ' || text[i] == '\t' || text[i] == '\r' || text[i] == '\n')) ++i;
  bool negative = false;
  if (i < n && (text[i] == '+' || text[i] == '-')) {
    negative = text[i] == '-';
    ++i;
  }
  const std::size_t mantissaStart = i;
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
  if (digits == 0) return 0.0;
  const std::size_t mantissaEnd = i;
  long exponent = 0;
  if (i < n && (text[i] == 'e' || text[i] == 'E')) {
    std::size_t j = i + 1;
    bool expNegative = false;
    if (j < n && (text[j] == '+' || text[j] == '-')) {
      expNegative = text[j] == '-';
      ++j;
    }
    if (j < n && IsDigit(text[j])) {
      while (j < n && IsDigit(text[j])) {
        if (exponent < 100000) exponent = exponent * 10 + (text[j] - '0');
        ++j;
      }
      if (expNegative) exponent = -exponent;
      i = j;
    }
  }
  const std::string_view number = text.substr(mantissaStart, i - mantissaStart);
  double value = 0.0;
  const auto [ptr, ec] =
      std::from_chars(number.data(), number.data() + number.size(), value, std::chars_format::general);
  (void)ptr;
  if (ec == std::errc::result_out_of_range) {
    const long lead = LeadingExponent(text.substr(mantissaStart, mantissaEnd - mantissaStart), exponent);
    if (lead > 0) throw Fault(Fault::kOverflow);
    value = 0.0;
  }
  return negative ? -value : value;
}

double RoundTo(double x, int n) {
  if (n < 0) throw Fault(Fault::kInvalidCall);
  if (!std::isfinite(x)) throw Fault(Fault::kOverflow);
  if (x == 0.0) return 0.0;
  // The 15 significant digits of x in scientific form: d.dddddddddddddde+XX.
  std::array<char, 40> buf{};
  const auto [end, ec] =
      std::to_chars(buf.data(), buf.data() + buf.size(), std::fabs(x), std::chars_format::scientific, 14);
  (void)ec;
  std::array<int, 16> digits{};
  int count = 0;
  const char* p = buf.data();
  for (; p != end && *p != 'e'; ++p) {
    if (IsDigit(*p)) digits[static_cast<std::size_t>(count++)] = *p - '0';
  }
  int exp10 = 0;
  std::from_chars(p + 1 + (p[1] == '+' ? 1 : 0), end, exp10);
  // Digit k (0-based) stands for 10^(exp10 - k). Keep the digits down to 10^-n.
  const int keep = exp10 + n + 1;  // number of digits that survive
  if (keep >= count) {
    // Nothing to cut: the value is its own 15-digit decimal form.
    const double value =
        TextToNumber(std::string_view(buf.data(), static_cast<std::size_t>(end - buf.data())));
    return x < 0 ? -value : value;
  }
  if (keep < 0) return 0.0;
  const int next = digits[static_cast<std::size_t>(keep)];
  bool restNonZero = false;
  for (int k = keep + 1; k < count; ++k)
    restNonZero = restNonZero || digits[static_cast<std::size_t>(k)] != 0;
  const int last = keep > 0 ? digits[static_cast<std::size_t>(keep - 1)] : 0;
  const bool up = next > 5 || (next == 5 && (restNonZero || (last % 2) == 1));
  // Build the kept digits as an integer mantissa m, value = m * 10^-n.
  std::string text;
  text.reserve(48);
  for (int k = 0; k < keep; ++k) text.push_back(static_cast<char>('0' + digits[static_cast<std::size_t>(k)]));
  if (text.empty()) text = "0";
  if (up) {
    int k = static_cast<int>(text.size()) - 1;
    while (k >= 0 && text[static_cast<std::size_t>(k)] == '9') {
      text[static_cast<std::size_t>(k)] = '0';
      --k;
    }
    if (k < 0) {
      text.insert(text.begin(), '1');
    } else {
      ++text[static_cast<std::size_t>(k)];
    }
  }
  text += "e-" + std::to_string(n);
  const double value = TextToNumber(text);
  return x < 0 ? -value : value;
}

std::int16_t ToShort(double x) {
  if (!std::isfinite(x)) throw Fault(Fault::kOverflow);
  const double r = std::nearbyint(x);
  if (r < -32768.0 || r > 32767.0) throw Fault(Fault::kOverflow);
  return static_cast<std::int16_t>(r);
}

std::int32_t ToLong(double x) {
  if (!std::isfinite(x)) throw Fault(Fault::kOverflow);
  const double r = std::nearbyint(x);
  if (r < -2147483648.0 || r > 2147483647.0) throw Fault(Fault::kOverflow);
  return static_cast<std::int32_t>(r);
}

bool PrcniFunc(std::string_view text) {
  return text == kNegInd || text == kQNaN || text == kPosInd || text == kPosInf || text == kNegInf;
}

bool PrcniFunc(double value) {
  std::array<char, kNumberTextMax> buffer{};
  const std::size_t n = NumberToText(value, buffer.data());
  return PrcniFunc(std::string_view(buffer.data(), n));
}

}  // namespace velmora::expr
