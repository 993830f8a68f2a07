#pragma once

#include <string>
#include <vector>

#include "tests/support/longtext.h"

namespace velmora::testing {

// Long lines and deep nesting for the text evaluator, with the answer each
// must give (tests/expr) and the time budget it must keep
// (bench/longinput_bench.cpp): time in proportion to the length, and
// nesting past the limit is the platform's "Out of stack space" fault,
// trapped as error 16.
struct LongCase {
  std::string text;
  int error;
  double value;
  const char* why;
};

inline std::vector<LongCase> LongCases() {
  const std::string big = "1" + std::string(308, '0');
  return {
      {Repeat("1+", 500000) + "1", 0, 500001, "a million characters of sum"},
      {Repeat("1*", 500000) + "1", 0, 1, "a million characters of product"},
      {std::string(1000000, '('), 8, 0, "a million open brackets"},
      {std::string(1000000, ')'), 8, 0, "a million closing brackets"},
      {Nested("(", "1", ")", 500000), 16, 0, "half a million levels: out of stack space"},
      {Nested("(", "1", ")", 10000), 16, 0, "ten thousand levels"},
      {Nested("SIN(", "0", ")", 10000), 16, 0, "ten thousand nested calls"},
      {Nested("(-", "1", ")", 10000), 16, 0, "nested signs"},
      {Nested("(", "1", ")", 999), 0, 1, "999 brackets: 1000 sums, the limit"},
      {Nested("(", "1", ")", 1000), 16, 0, "one level more"},
      {Nested("ABS(", "-2", ")", 999), 0, 2, "999 calls"},
      {std::string(1000000, '1'), 16, 0, "a million digits overflow"},
      {"0," + std::string(1000000, '1'), 0, 0.111111111111111, "a million decimals"},
      {std::string(1000000, '-'), 2, 0, "a million signs"},
      {Repeat("(1)", 300000), 2, 0, "implied products"},
      {Repeat("2^", 300000) + "2", 2, 0, "a long power chain"},
      {Repeat("A", 1000000) + "(1)", 2, 0, "a very long unknown name"},
      {big + "0", 16, 0, "a 310-digit number overflows in its term"},
  };
}

// Over a million characters of typed text for the normalisation chains.
inline std::string LongTypedText() { return Repeat("SinX+Exp(K)*{k^2}-", 60000); }

}  // namespace velmora::testing
