#include "output/jpegquality.h"

namespace velmora::output {

JpegQuality::BoxChange JpegQuality::FromText(std::string_view text) {
  // Digits only reach the box, but a paste or a program may bring others:
  // the number is read from the leading digits, as far as it matters.
  long long value = 0;
  std::size_t i = 0;
  while (i < text.size() && text[i] == ' ') ++i;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    value = value * 10 + (text[i] - '0');
    if (value > kMaximum) break;
  }
  BoxChange change;
  if (value > kMaximum) {
    change.value = kMaximum;
    change.text = ToText(kMaximum);
  } else {
    change.value = static_cast<int>(value);
    change.text = std::string(text);
  }
  return change;
}

std::string JpegQuality::ToText(int value) {
  if (value < kMinimum) value = kMinimum;
  if (value > kMaximum) value = kMaximum;
  return std::to_string(value);
}

}  // namespace velmora::output
