// velmora-cli engine, driven from outside: the input lines go to the program
// through a file, and every line must get exactly its one answer.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/clirun.h"

namespace velmora::testing {
namespace {

// Runs `velmora-cli engine` on the input text; returns its standard output.
std::string RunEngine(const std::string& input, int* status = nullptr) {
  const CliRun run = RunCli({"engine"}, input);
  if (status != nullptr) *status = run.status;
  return run.out;
}

std::string Join(const std::vector<std::string>& lines) {
  std::string s;
  for (const auto& l : lines) s += l + "\n";
  return s;
}

struct CliCase {
  const char* name;
  std::vector<std::string> lines;
  std::vector<std::string> answers;
};

class EngineCliTest : public ::testing::TestWithParam<CliCase> {};

TEST_P(EngineCliTest, OneAnswerPerLine) {
  const auto& c = GetParam();
  int status = -1;
  EXPECT_EQ(RunEngine(Join(c.lines), &status), Join(c.answers)) << c.name;
  EXPECT_EQ(status, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, EngineCliTest,
    ::testing::Values(
        CliCase{"plain values in both spellings",
                {"SIN((1.25))", "sin(1.25)", "Sin(1.25)", "PI(1)*(2)", "E(1)^((1))", "pi*(2)", "STL((3.7))"},
                {"0.948984619355586", "0.948984619355586", "0.948984619355586", "6.28318530717959",
                 "2.71828182845905", "6.28318530717959", "3"}},
        CliCase{"a derivative, then a plain value",
                {"Push(2000)", "Push(1)", "diff(x^2)", "PopAll()", "EP((0))"},
                {"ok", "ok", "2", "ok", "1"}},
        CliCase{"an integral read twice",
                {"Push(256)", "Push(0)", "Push(1)", "Intg(x)", "Intg(x)", "PopAll()"},
                {"ok", "ok", "ok", "0.5", "0.5", "ok"}},
        CliCase{"the plain trapezoid sum",
                {"Push(256)", "Push(0)", "Push(1)", "Trap(x)", "PopAll()"},
                {"ok", "ok", "ok", "128", "ok"}},
        CliCase{"faults",
                {"1/0", "SIN()", "2(3)", "x", "diff(x)", "Push(1/0)", "PopAll(2)", "1E999"},
                {"fault", "fault", "fault", "fault", "fault", "fault", "fault", "fault"}},
        CliCase{"numbers in text form",
                {"1E-05", "2.5E+20*2", "1e3", "1/3", "-2^2"},
                {"1E-05", "5E+20", "1000", "0.333333333333333", "-4"}},
        CliCase{
            "empty lines and CR LF endings", {"", "1+1\r", "", "Push(1)\r"}, {"fault", "2", "fault", "ok"}}));

TEST(EngineCliRobustnessTest, HostileLinesKeepTheirPlace) {
  std::string binary;
  for (int b = 1; b < 256; ++b) {
    if (b != '\n') binary += static_cast<char>(b);
  }
  const std::vector<std::string> lines = {
      "1+1",
      std::string(10000, '(') + "1" + std::string(10000, ')'),
      std::string(10000, '(') + "1",
      binary,
      std::string(1000000, '1'),
      std::string(500000, '(') + std::string(500000, ')'),
      "Push(" + std::string(100000, '9') + ")",
      "2*3",
  };
  EXPECT_EQ(RunEngine(Join(lines)), Join({"2", "1", "fault", "fault", "fault", "fault", "fault", "6"}));
}

TEST(EngineCliRobustnessTest, ArgumentsAreRefused) {
  // The command takes no arguments; a stray one is a usage error, not a hang.
  EXPECT_NE(RunCli({"engine", "extra"}).status, 0);
}

}  // namespace
}  // namespace velmora::testing
