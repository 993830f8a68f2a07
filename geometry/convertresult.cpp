#include "geometry/convertresult.h"

#include <cstdint>

#include "expr/fault.h"
#include "expr/numtext.h"
#include "geometry/solver.h"

namespace velmora::geometry {
namespace {

constexpr std::string_view kBinaryLimit = "To convert to binary, the result value must be <= 32767.";
constexpr double kBinaryMax = 32767;

// The text to the left of the decimal point, read back as a number.
double WholePart(const std::string& text, std::size_t point) {
  return expr::TextToNumber(std::string_view(text).substr(0, point));
}

std::string Binary(double value) {
  // A fraction is rounded by the one digit after the point.
  const std::string text = expr::NumberToText(value);
  const auto point = text.find('.');
  if (point != std::string::npos) {
    const char next = point + 1 < text.size() ? text[point + 1] : '0';
    value = WholePart(text, point) + (next < '5' ? 0 : 1);
  }
  // Halving: a half with a point is an odd step. The digits stay in the order
  // they were made, lowest first.
  std::string digits;
  do {
    value /= 2;
    const std::string half = expr::NumberToText(value);
    const auto dot = half.find('.');
    if (dot != std::string::npos) {
      digits += '1';
      value = WholePart(half, dot);
    } else {
      digits += '0';
    }
  } while (value >= 1);
  return expr::NumberToText(expr::TextToNumber(digits));
}

// Upper-case digits of a 32-bit integer in base 16 or 8, negative values as
// their two's complement.
std::string Digits(std::int32_t value, unsigned base) {
  auto bits = static_cast<std::uint32_t>(value);
  std::string text;
  do {
    text.insert(text.begin(), "0123456789ABCDEF"[bits % base]);
    bits /= base;
  } while (bits != 0);
  return text;
}

}  // namespace

std::optional<ConvertedResult> ConvertResult(std::string_view value, int index, platform::MessageBox& box) {
  try {
    switch (index) {
      case static_cast<int>(ResultBase::Decimal): return ConvertedResult{std::string(value), "dec"};
      case static_cast<int>(ResultBase::Binary): {
        const double number = expr::TextToNumber(value);
        if (number > kBinaryMax) {
          ShowMessage(box, kBinaryLimit);
          return std::nullopt;
        }
        return ConvertedResult{Binary(number), "bin"};
      }
      case static_cast<int>(ResultBase::Hexadecimal):
        return ConvertedResult{Digits(expr::ToLong(expr::TextToNumber(value)), 16), "hex"};
      case static_cast<int>(ResultBase::Octal):
        return ConvertedResult{Digits(expr::ToLong(expr::TextToNumber(value)), 8), "oct"};
      default: return std::nullopt;
    }
  } catch (const expr::Fault& fault) {
    // Beyond the integer range: the platform's own run-time error box.
    ShowMessage(box, fault.what());
    return std::nullopt;
  }
}

}  // namespace velmora::geometry
