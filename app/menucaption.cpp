#include "app/menucaption.h"

#include <vector>

namespace velmora::app {
namespace {

constexpr std::string_view kEllipsis = "\xE2\x80\xA6";  // U+2026

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// The byte offsets where the code points of `text` start.
std::vector<std::size_t> CodePointStarts(std::string_view text) {
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsContinuation(text[i])) starts.push_back(i);
  }
  return starts;
}

}  // namespace

std::string ElideMiddle(std::string_view text, std::size_t limit) {
  const std::vector<std::size_t> starts = CodePointStarts(text);
  if (starts.size() <= limit) return std::string(text);
  if (limit == 0) return {};
  // The kept characters, one less than the limit for the mark; the start
  // keeps the odd one.
  const std::size_t kept = limit - 1;
  const std::size_t head = kept - kept / 2;
  const std::size_t tail = kept / 2;
  std::string elided(text.substr(0, starts[head]));
  elided += kEllipsis;
  if (tail > 0) elided += text.substr(starts[starts.size() - tail]);
  return elided;
}

}  // namespace velmora::app
