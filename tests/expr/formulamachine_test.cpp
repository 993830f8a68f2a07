#include "expr/formulamachine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "expr/formulacompiler.h"

namespace velmora::expr {
namespace {

// Each row compiles a formula and runs it with given literal values, so the
// machine is tested on the values it is fed, not on those in the text.
struct RunCase {
  const char* text;
  std::vector<double> literals;
  double variable;
  double expected;  // NaN: the run faults
  const char* why;
};

class RunProgramTest : public ::testing::TestWithParam<RunCase> {};

TEST_P(RunProgramTest, Value) {
  const auto& c = GetParam();
  const auto program = CompileFormula(c.text);
  ASSERT_TRUE(program.has_value()) << c.text;
  std::vector<double> stack;
  const double v = RunProgram(*program, c.literals, c.variable, stack);
  if (std::isnan(c.expected)) {
    EXPECT_TRUE(std::isnan(v)) << c.text << ": " << c.why << "; got " << v;
  } else {
    EXPECT_EQ(v, c.expected) << c.text << ": " << c.why;
  }
}

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Cases, RunProgramTest,
    ::testing::Values(RunCase{"1+2*3", {1, 2, 3}, 0, 7, "the text's own values"},
                      RunCase{"1+2*3", {10, 20, 30}, 0, 610, "other values in the same slots"},
                      RunCase{"-2^2", {2, 2}, 0, -4, "sign after the power"},
                      RunCase{"2^-3", {2, 3}, 0, 0.125, "negative exponent"},
                      RunCase{"2^3^2", {2, 3, 2}, 0, 512, "right-grouped power"},
                      RunCase{"8/4/2", {8, 4, 2}, 0, 1, "left-grouped quotient"},
                      RunCase{"x^2", {2}, 3, 9, "the variable"},
                      RunCase{"1/0", {1, 0}, 0, kNaN, "division by zero"},
                      RunCase{"0/0", {0, 0}, 0, kNaN, "indefinite quotient"},
                      RunCase{"1E308*10", {1e308, 10}, 0, kNaN, "overflow of a product"},
                      RunCase{"1E308+1E308", {1e308, 1e308}, 0, kNaN, "overflow of a sum"},
                      RunCase{"-1E308-1E308", {1e308, 1e308}, 0, kNaN, "overflow of a difference"},
                      RunCase{"(-8)^(1/3)", {8, 1, 3}, 0, kNaN, "negative base, fractional exponent"},
                      RunCase{"0^(-1)", {0, 1}, 0, kNaN, "zero to a negative power"},
                      RunCase{"10^400", {10, 400}, 0, kNaN, "power overflow"},
                      RunCase{"0^0", {0, 0}, 0, 1, "0^0 is 1, as the primitive has it"},
                      RunCase{"SQR(-1)", {1}, 0, kNaN, "function outside its domain"},
                      RunCase{"LN(0)", {0}, 0, kNaN, "logarithm of zero"},
                      RunCase{"ASEC(0.5)", {0.5}, 0, 100, "the sentinel is a value, not a fault"},
                      RunCase{"GAMMA(26)", {26}, 0, 0, "gamma outside -25..25 is 0"},
                      RunCase{"5", {kInf}, 0, kNaN, "a lone infinite literal"},
                      RunCase{"-5", {kInf}, 0, kNaN, "a negated infinite literal"},
                      RunCase{"1E-320*1E-10", {1e-320, 1e-10}, 0, 0, "underflow to 0 is no fault"}));

TEST(RunProgramTest, TooFewLiteralsIsAFault) {
  const auto program = CompileFormula("1+2");
  ASSERT_TRUE(program.has_value());
  std::vector<double> stack;
  const std::vector<double> one = {1};
  EXPECT_TRUE(std::isnan(RunProgram(*program, one, 0, stack)));
}

TEST(RunProgramTest, GrowsItsScratchStack) {
  std::string sums;
  for (int i = 0; i < 1000; ++i) sums += "1+(";
  sums += "1" + std::string(1000, ')');
  const auto program = CompileFormula(sums);
  ASSERT_TRUE(program.has_value());
  std::vector<double> stack;
  EXPECT_EQ(RunProgram(*program, program->literals, 0, stack), 1001);
  EXPECT_GE(stack.size(), 1001u);
}

}  // namespace
}  // namespace velmora::expr
