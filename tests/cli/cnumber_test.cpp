#include <gtest/gtest.h>

#include <string>

#include "tests/cli/clirun.h"

namespace velmora::cli {
namespace {

using testing::CliScratch;

struct LineCase {
  const char* input;
  const char* output;
  const char* why;
};

const LineCase kLines[] = {
    {"RECT 3+j4\n",
     "Real=3\tImaginary=4\tModulus=5\tAngle=0.927295218001612\tRectText=3+j4\tConjText=\tPolarText=\t"
     "ErrNumber=0\tErrDescription=\tRoots=\n",
     "a parse: blanks-free text, no printed forms yet"},
    {"RECT 0+j0\nFPOLAR 15\n",
     "Real=0\tImaginary=0\tModulus=0\tAngle=0.785398163397448\tRectText=0+j0\tConjText=\tPolarText=\t"
     "ErrNumber=0\tErrDescription=\tRoots=\n"
     "Real=0\tImaginary=0\tModulus=0\tAngle=0.785398163397448\tRectText=0+j0\tConjText=\t"
     "PolarText=0 / .785398163397448 rad\\r\\n0 / 45 deg\tErrNumber=0\tErrDescription=\tRoots=\n",
     "the angle of zero, and the two polar lines escaped"},
    {"RECT 1+2+3+j\n",
     "Real=0\tImaginary=0\tModulus=0\tAngle=0\tRectText=1+2+3+j\tConjText=\tPolarText=\tErrNumber=1001\t"
     "ErrDescription=You must enter a valid complex number.\tRoots=\n",
     "a failed parse"},
    {"RECT 8\nROOTS 3 4\n",
     "Real=8\tImaginary=0\tModulus=8\tAngle=0\tRectText=8\tConjText=\tPolarText=\tErrNumber="
     "0\tErrDescription=\t"
     "Roots=\n"
     "Real=8\tImaginary=0\tModulus=8\tAngle=0\tRectText=8\tConjText=\tPolarText=\tErrNumber="
     "0\tErrDescription=\t"
     "Roots= 2 + j 0;-1 + j 1.7321;-1 - j 1.7321\n",
     "roots keep the blank of the untrimmed print"},
};

TEST(CNumberCommand, Lines) {
  CliScratch cli("cnumber-lines");
  for (const auto& c : kLines) {
    const auto r = cli.Run({"cnumber"}, c.input);
    EXPECT_EQ(r.status, 0) << c.why;
    EXPECT_EQ(r.out, c.output) << c.why;
    EXPECT_EQ(r.err, "") << c.why;
  }
}

// Only the field named is compared: the last line's value of it.
std::string Field(const std::string& out, const std::string& name) {
  const std::size_t lineStart = out.rfind('\n', out.size() - 2);
  const std::string line = out.substr(lineStart == std::string::npos ? 0 : lineStart + 1);
  const std::size_t at = line.find(name + "=");
  if (at == std::string::npos) return "<missing>";
  const std::size_t end = line.find_first_of("\t\n", at);
  return line.substr(at + name.size() + 1, end - at - name.size() - 1);
}

struct FieldCase {
  const char* input;
  const char* field;
  const char* value;
  const char* why;
};

const FieldCase kFields[] = {
    {"RECT 1+j2\nRECT 3-j4\nADD\n", "Real", "4", "sum of the last two"},
    {"RECT 1+j2\nRECT 3-j4\nSUB\n", "Imaginary", "6", "difference"},
    {"RECT 1+j2\nRECT 3-j4\nMUL\nFRECT 15\n", "RectText", "11 + j2", "product, printed"},
    {"RECT 1+j2\nRECT 3-j4\nDIV\nFRECT 15\n", "ConjText", "-.2 - j.4", "quotient and its conjugate"},
    {"RECT 1\nRECT 0\nDIV\n", "ErrDescription", "Overflow", "a zero divisor gives 0 / 0"},
    {"RECT 2+j1\nRECT 1+j0\nMULSELF\n", "Imaginary", "2", "the running product's quirk"},
    {"RECT 3-j4\nNEG\n", "Real", "-3", "negate"},
    {"RECT 1+j1\nPOWER 2\n", "Imaginary", "2", "power"},
    {"RECT 1+j1\nPOWER 2\n", "Angle", "1.5707963267949", "power recomputes the polar form"},
    {"POLAR 5/90d\n", "Real", "3.06161699786838E-16", "ninety degrees"},
    {"POLAR 5\n", "ErrNumber", "1001", "no separator"},
    {"RECT 3+j4\nSETPOLAR 1/2/3\n", "Modulus", "5", "a stale modulus stays"},
    {"RECT 3+4j\n", "Imaginary", "4", "the unit behind the digits"},
    {"RECT 1e5\n", "Imaginary", "15", "an exponent letter is the unit"},
    {"RECT 1.5\nFRECT 0\n", "RectText", "1.5", "0 places print at 15"},
};

TEST(CNumberCommand, Operations) {
  CliScratch cli("cnumber-ops");
  for (const auto& c : kFields) {
    const auto r = cli.Run({"cnumber"}, c.input);
    EXPECT_EQ(r.status, 0) << c.why;
    EXPECT_EQ(Field(r.out, c.field), c.value) << c.why;
  }
}

TEST(CNumberCommand, ErrorsAreLinesAndTheStatus) {
  CliScratch cli("cnumber-errors");
  const auto r = cli.Run({"cnumber"}, "ADD\nRECT 1\nBOGUS 2\nPOWER x\n\n");
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out.substr(0, r.out.find('\n')), "error: ADD needs two numbers before it");
  EXPECT_NE(r.out.find("error: unknown operation 'BOGUS'\n"), std::string::npos);
  EXPECT_NE(r.out.find("error: POWER needs a number\n"), std::string::npos);
  EXPECT_EQ(r.out.substr(r.out.size() - 2), "\n\n");  // an empty line answers with an empty line
  EXPECT_EQ(cli.Run({"cnumber", "extra"}).status, 2);
}

}  // namespace
}  // namespace velmora::cli
