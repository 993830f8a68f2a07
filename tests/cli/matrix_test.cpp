#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/clirun.h"

namespace velmora::cli {
namespace {

using testing::CliScratch;
using testing::Slurp;

const char* const kA = " 2  2 \r\n1\r\n2\r\n3\r\n4\r\n";
const char* const kB = " 2  1 \r\n5\r\n6\r\n";
const char* const kSingular = " 2  2 \r\n1\r\n2\r\n2\r\n4\r\n";

class MatrixCommandTest : public ::testing::Test {
 protected:
  MatrixCommandTest() {
    a_ = cli_.File("a.mcf", kA).string();
    b_ = cli_.File("b.mcf", kB).string();
    singular_ = cli_.File("s.mcf", kSingular).string();
  }
  CliScratch cli_{"matrix"};
  std::string a_;
  std::string b_;
  std::string singular_;
};

struct RunCase {
  std::vector<std::string> words;  // "A", "B", "S" stand for the three files
  int status;
  const char* out;
  const char* err;
  const char* why;
};

TEST_F(MatrixCommandTest, Operations) {
  const RunCase cases[] = {
      {{"inverse", "A"},
       0,
       " 2  2 \r\n-2\r\n1\r\n1.5\r\n-.5\r\n",
       "Det |A| = -2\n",
       "inverse and determinant"},
      {{"solve", "A", "B", "--precision", "4"},
       0,
       " 2  1 \r\n-4\r\n4.5\r\n",
       "Det |A| = -2\n",
       "solution set"},
      {{"inverse", "S"}, 1, "", "Matrix A is singular and cannot be inverted.\n", "singular"},
      {{"add", "A", "A"}, 0, " 2  2 \r\n2\r\n4\r\n6\r\n8\r\n", "", "add"},
      {{"sub", "A", "A"}, 0, " 2  2 \r\n0\r\n0\r\n0\r\n0\r\n", "", "subtract"},
      {{"mul", "A", "B"}, 0, " 2  1 \r\n17\r\n39\r\n", "", "multiply"},
      {{"add", "A", "B"},
       1,
       "",
       "Matrix A and Matrix B must be the same order to perform addition.\n",
       "sizes that do not fit"},
      {{"smul", "A", "--scalar", "2+j1"},
       0,
       " 2  2 \r\n2+j1\r\n4+j2\r\n6+j3\r\n8+j4\r\n",
       "",
       "scalar product"},
      {{"sdiv", "A", "--scalar", "3"}, 0, " 2  2 \r\n.333\r\n.667\r\n1\r\n1.333\r\n", "", "scalar quotient"},
      {{"sdiv", "A", "--scalar", "1+2+3+j"},
       1,
       "",
       "The Scalar Constant must be a valid complex number.\n",
       "a scalar that does not parse"},
      {{"adjoint", "A"}, 0, " 2  2 \r\n4\r\n-2\r\n-3\r\n1\r\n", "", "adjoint"},
      {{"adjoint", "S"},
       1,
       "",
       "Matrix A is singular and cannot be inverted.\n",
       "no adjoint of a singular matrix"},
      {{"adjoint", "B"}, 1, "", "Matrix [A] must be the square matrix.\n", "no adjoint of a non-square"},
      {{"trace", "A"}, 0, "5\n", "", "trace"},
      {{"chareq", "A"}, 0, "X^2 - 5*X -2 = 0\n", "", "characteristic equation"},
      {{"chareq", "B"}, 1, "", "Available only for square matrix (2 x 2) or (3 x 3) in size.\n", "not 2 x 2"},
      {{"transpose", "B"}, 0, " 1  2 \r\n5\r\n6\r\n", "", "transpose"},
      {{"inverse", "A", "--precision", "20"},
       0,
       " 2  2 \r\n-2\r\n1\r\n1.5\r\n-.5\r\n",
       "Invalid input (1 - 15).\nDet |A| = -2\n",
       "a precision out of range falls back to 2"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> words = {"matrix"};
    for (const auto& w : c.words) words.push_back(w == "A" ? a_ : w == "B" ? b_ : w == "S" ? singular_ : w);
    const auto r = cli_.Run(words);
    EXPECT_EQ(r.status, c.status) << c.why;
    EXPECT_EQ(r.out, c.out) << c.why;
    EXPECT_EQ(r.err, c.err) << c.why;
  }
}

TEST_F(MatrixCommandTest, EmptyCellsNeedZeros) {
  const std::string holes = cli_.File("h.mcf", " 1  2 \r\n1\r\n\r\n").string();
  auto r = cli_.Run({"matrix", "add", holes, holes});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "All cells must contain an entry.\n");
  r = cli_.Run({"matrix", "add", holes, holes, "--zeros"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, " 1  2 \r\n2\r\n0\r\n");
}

TEST_F(MatrixCommandTest, NumbersTooLargeToHoldAreRefused) {
  // A 201-digit entry used to be taken as a stale or zero value.
  const std::string digits201 = "1" + std::string(200, '0');
  const std::string cell = cli_.File("big.mcf", " 1  2 \r\n5\r\n" + digits201 + "\r\n").string();
  auto r = cli_.Run({"matrix", "add", cell, cell});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "You must enter a valid complex number.\n");
  r = cli_.Run({"matrix", "trace", cli_.File("bigtrace.mcf", " 1  1 \r\n" + digits201 + "\r\n").string()});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "You must enter a valid complex number.\n");
  r = cli_.Run({"matrix", "smul", a_, "--scalar", digits201});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "The Scalar Constant must be a valid complex number.\n");
  r = cli_.Run({"matrix", "smul", a_, "--scalar", std::string(400, '9')});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "The Scalar Constant must be a valid complex number.\n");
}

TEST_F(MatrixCommandTest, PrintedResultsReadBackUnchanged) {
  // Working values and results below 1E-04 or from 1E+15 up are written
  // positional; in exponent form the letter read back as the imaginary unit.
  const std::string tiny = cli_.File("tiny.mcf", " 1  1 \r\n100000\r\n").string();
  auto r = cli_.Run({"matrix", "inverse", tiny, "--precision", "15"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, " 1  1 \r\n.00001\r\n");
  EXPECT_EQ(r.err, "Det |A| = 100000\n");
  const std::string pair = cli_.File("pair.mcf", " 2  2 \r\n200\r\n1\r\n1\r\n200\r\n").string();
  r = cli_.Run({"matrix", "inverse", pair, "--precision", "6"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, " 2  2 \r\n.005\r\n-.000025\r\n-.000025\r\n.005\r\n");
  EXPECT_EQ(r.err, "Det |A| = 39999\n");
}

TEST_F(MatrixCommandTest, ReportsByteForByte) {
  struct ReportCase {
    std::vector<std::string> words;
    const char* expected;
  };
  const std::string column = cli_.File("col.mcf", " 2  1 \r\n1\r\n\r\n").string();
  const std::string column2 = cli_.File("col2.mcf", " 2  1 \r\n2\r\n3\r\n").string();
  const std::string row = cli_.File("row.mcf", " 1  3 \r\n1\r\n2\r\nj1\r\n").string();
  const ReportCase cases[] = {
      {{"add", column, column2, "--zeros"}, "two_operands.htm"},
      {{"smul", row, "--scalar", "2"}, "one_operand.htm"},
      {{"chareq", a_}, "inverse_adjoint.htm"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> words = {"matrix"};
    words.insert(words.end(), c.words.begin(), c.words.end());
    const auto html = cli_.Path("report.htm");
    words.push_back("--html");
    words.push_back(html.string());
    const auto r = cli_.Run(words);
    EXPECT_EQ(r.status, 0) << c.expected << ": " << r.err;
    EXPECT_EQ(Slurp(html), Slurp(std::filesystem::path(VELMORA_MATRIX_TEST_DATA) / c.expected)) << c.expected;
  }
  const auto html = cli_.Path("system.htm");
  EXPECT_EQ(cli_.Run({"matrix", "solve", a_, b_, "--html", html.string()}).status, 0);
  const std::string system = Slurp(html);
  EXPECT_EQ(system.substr(0, 34), "   <!-- Created with Velmora -->\r\n");
  EXPECT_NE(system.find("<b>X<sub>1</sub> + 2*X<sub>2</sub> = 5</b>"), std::string::npos);
  EXPECT_NE(system.find("<b> Det |A| = -2 </b>"), std::string::npos);
}

TEST_F(MatrixCommandTest, UsageErrors) {
  const std::vector<std::vector<std::string>> cases = {
      {"matrix"},
      {"matrix", "frobnicate", a_},
      {"matrix", "add", a_},
      {"matrix", "inverse", cli_.Path("missing.mcf").string()},
      {"matrix", "smul", a_},
      {"matrix", "trace", a_, "--html", cli_.Path("x.htm").string()},
      {"matrix", "inverse", a_, "--precision"},
      {"matrix", "inverse", a_, "--bogus"},
  };
  for (const auto& words : cases) EXPECT_EQ(cli_.Run(words).status, 2) << words.size();
}

}  // namespace
}  // namespace velmora::cli
