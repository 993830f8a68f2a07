#pragma once

#include <string>
#include <vector>

#include "tests/support/longtext.h"

namespace velmora::testing {

// Lines no user types on purpose, for the line-per-line commands of
// velmora-cli: each must get its one answer line (tests/cli) and soon
// (bench/cli_badinput_bench.cpp).
struct BadLine {
  std::string text;
  std::string evaluator;  // the answer of `velmora-cli evaluator`, or "" to check only its form
  std::string trial;      // the answer of `velmora-cli evaluator --trial`, or ""
};

inline std::vector<BadLine> BadLines() {
  const std::string big = "1" + std::string(308, '0');
  return {
      {"", "2\t0", "Check syntax!"},
      {std::string("1\0+2", 4), "", ""},
      {RandomBytes(1000, 7, true), "", ""},
      {RandomBytes(1000000, 8, true), "", ""},
      {Repeat("1+", 500000) + "1", "0\t500001", "ok"},
      {std::string(1000000, '('), "8\t0", "Check bracket placement!"},
      {Nested("(", "1", ")", 10000), "16\t0", "ok"},
      {Nested("sin(", "x", ")", 10000), "16\t0", "ok"},
      {std::string(1000000, '9'), "16\t0", "ok"},
      {big + "+" + big, "fault", "fault"},
      {"1+1", "0\t2", "ok"},
  };
}

// The lines as one standard input.
inline std::string BadInput() {
  std::string input;
  for (const auto& l : BadLines()) input += l.text + "\n";
  return input;
}

// The chains of `velmora-cli normalise`.
inline const std::vector<std::string>& NormaliseChains() {
  static const std::vector<std::string> chains = {"cleanup",    "evalform", "trial",     "zagrade",
                                                  "shortforms", "tangent",  "zamenisve", "tooltext"};
  return chains;
}

}  // namespace velmora::testing
