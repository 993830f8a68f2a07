#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace velmora::testing {

// Generated hostile texts for the robustness suites and their benchmarks.

// `piece` written `times` times in a row.
inline std::string Repeat(std::string_view piece, std::size_t times) {
  std::string out;
  out.reserve(piece.size() * times);
  for (std::size_t i = 0; i < times; ++i) out += piece;
  return out;
}

// `core` inside `depth` pairs of `open` and `close`: "((1))" for depth 2.
inline std::string Nested(std::string_view open, std::string_view core, std::string_view close,
                          std::size_t depth) {
  return Repeat(open, depth) + std::string(core) + Repeat(close, depth);
}

// `n` bytes of every value from a seeded generator, so a failure repeats.
// With `oneLine` no "\n" is among them: the text stays one input line of a
// line-per-line command.
inline std::string RandomBytes(std::size_t n, unsigned seed, bool oneLine = false) {
  std::mt19937 gen(seed);
  std::uniform_int_distribution<int> byte(0, 255);
  std::string out;
  out.reserve(n);
  while (out.size() < n) {
    const char c = static_cast<char>(byte(gen));
    if (!oneLine || c != '\n') out += c;
  }
  return out;
}

}  // namespace velmora::testing
