// Runs the built velmora-cli complex and compares its whole output.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/clirun.h"

namespace velmora::testing {
namespace {

// `velmora-cli complex` with the words after it.
CliRun RunComplex(const std::vector<std::string>& args) {
  std::vector<std::string> words = {"complex"};
  words.insert(words.end(), args.begin(), args.end());
  return RunCli(words);
}

struct CliCase {
  const char* name;
  std::vector<std::string> args;
  const char* out;
  int status;
};

void PrintTo(const CliCase& c, std::ostream* os) { *os << c.name; }

class ComplexCommandTest : public ::testing::TestWithParam<CliCase> {};

TEST_P(ComplexCommandTest, Output) {
  const auto& c = GetParam();
  const CliRun r = RunComplex(c.args);
  EXPECT_EQ(r.out, c.out);
  EXPECT_EQ(r.status, c.status);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ComplexCommandTest,
    ::testing::Values(
        // Result fields, then the two lines of the log block.
        CliCase{"Add", {"z1+z2", "3+j4", "1+j2"}, "4\t6\n(3+j4 + 1+j2)\n= 4+j6\n", 0},
        // (11 - 2i) / 5; the negative part in the keypad form.
        CliCase{"Divide", {"z1/z2", "3+j4", "1+j2"}, "2.2\t-0.4\n(3+j4 / 1+j2)\n= 2.2+j-0.4\n", 0},
        // A keypad operand with a negative imaginary part: (3 - 4i)(3 - 4i) = -7 - 24i.
        CliCase{"KeypadForm", {"z1*z2", "3+j-4", "3-j4"}, "-7\t-24\n(3+j-4 * 3-j4)\n= -7+j-24\n", 0},
        // Blanks in an operand go before the parse; the log keeps the label's text.
        CliCase{"Blanks", {"Abs", "3 + j 4"}, "5\t0\n(Abs(3 + j 4))\n= 5\n", 0},
        // .5 * ln 9 kept at 1.098612, e^1.098612 = 2.9999991.
        CliCase{"SquareRoot", {"z1^1/2", "9+j0"}, "2.999999\t0\n(z1^1/2(9+j0))\n= 2.999999+j0\n", 0},
        CliCase{"ArgDeg", {"Arg-deg", "3+j4"}, "53.130102\t0\n(Arg(3+j4))\n= 53.130102 deg\n", 0},
        CliCase{"ArgRad", {"Arg-rad", "1+j1"}, "0.785398\t0\n(Arg(1+j1))\n= 0.785398 rad\n", 0},
        CliCase{
            "LogBase", {"LogBase", "3+j4", "2+j1"}, "2\t-1E-06\nLog(3+j4) [Base(2+j1)]\n= 2+j-1E-06\n", 0},
        // A button's test refuses: the message alone.
        CliCase{"DivideByZero", {"z1/z2", "3+j4", "0+j0"}, "message: #IND\n", 0},
        CliCase{"LnOfZero", {"Ln", "0+i0"}, "message: Log of 0 + i0 is undefined.\n", 0},
        CliCase{"LogBaseOne", {"LogBase", "3+j4", "1+j0"}, "message: Base 1 + i0 . Undefined.\n", 0},
        // A part of 400 digits cannot be held: refused, never read as 0.
        CliCase{"PartTooLarge",
                {"z1+z2", std::string(400, '9') + "+j1", "1+j1"},
                "message: You must enter a valid complex number.\n",
                0},
        // A failure inside the arithmetic: the box, then the stale result.
        CliCase{
            "ExpOverflow", {"e^", "1000+j0"}, "message: Invalid input.\n0\t0\n(e^(1000+j0))\n= 0+j0\n", 0},
        // No unit in Complex 1: the parse's box, then the design parts 0 and
        // 0, which the logarithm's own test refuses.
        CliCase{"NoUnitThenRefused",
                {"Ln", "2"},
                "message: Check input. The Complex number must contain either j or i for imaginary.\n"
                "message: Log of 0 + i0 is undefined.\n",
                0},
        // The button road has no base cases: 0^2 is e^0 = 1.
        CliCase{"ZeroPower", {"z1^z2", "0+j0", "2+j0"}, "1\t0\n(0+j0 ^ 2+j0)\n= 1+j0\n", 0},
        // Usage errors.
        CliCase{"UnknownOperation", {"z1%z2", "1+j1", "1+j1"}, "", 2},
        CliCase{"MissingSecondOperand", {"z1+z2", "1+j1"}, "", 2},
        CliCase{"MissingOperands", {"Sin"}, "", 2}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace velmora::testing
