// velmora-cli table, zeros, intersect, point, integral, critical and
// evaluate, run as a user runs them.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/clirun.h"

namespace velmora::testing {
namespace {

struct CliCase {
  std::vector<std::string> words;
  std::string input;
  int status;
  std::string out;
  std::string why;
};

class AnalysisCliTest : public ::testing::TestWithParam<CliCase> {};

TEST_P(AnalysisCliTest, PrintsWhatTheWindowShows) {
  const auto& c = GetParam();
  const CliRun o = RunCli(c.words, c.input);
  EXPECT_EQ(o.status, c.status) << c.why << "\n" << o.err;
  EXPECT_EQ(o.out, c.out) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Analysis, AnalysisCliTest,
    ::testing::Values(
        CliCase{{"table", "--y", "x^3", "--xmin", "6", "--xmax", "7"},
                "",
                0,
                "X\tY\tY'\n6\t216\t108\n7\tError\tError\n",
                "the plain limit of 300: 343 is an Error"},
        CliCase{
            {"table", "--type", "polar", "--y", "1", "--accuracy", "2"},
            "",
            0,
            "\xC3\xB8\tR\tX\tY\n0\t1\t1\t1\npi/6\t1\t0.87\t0.87\npi/3\t1\t0.5\t0.5\npi/2\t1\t0\t0\n"
            "2pi/3\t1\t-0.5\t-0.5\n5pi/6\t1\t-0.87\t-0.87\npi\t1\t-1\t-1\n7pi/6\t1\t-0.87\t-0.87\n"
            "4pi/3\t1\t-0.5\t-0.5\n3pi/2\t1\t0\t0\n5pi/3\t1\t0.5\t0.5\n11pi/6\t1\t0.87\t0.87\n2pi\t1\t1\t1\n",
            "thirteen angles, the Y column repeating X"},
        CliCase{
            {"table", "--y", "x", "--xmin", "0", "--xmax", "1", "--text"},
            "",
            0,
            "Function: Y = x\nRange:    Xmin = 0  Xmax = 1\n\n[X;\t\tY;\t\tY';\t\t]\n[0;\t\t0;\t\t1;\t\t]\n"
            "[1;\t\t1;\t\t1;\t\t]\n",
            "the text form"},
        CliCase{
            {"table", "--y", "sin(k)"},
            "",
            0,
            "message: Expression included a variable K instead of X for Cartesian Functions. Please edit the "
            "equation and try again.\nX\tY\tY'\n\t\t\n",
            "K refused in a Cartesian table"},
        CliCase{{"zeros", "x^2-1", "--range", "-2", "2"}, "", 0, "Zero:  X = -1\nZero:  X = 1\n", "a range"},
        CliCase{{"zeros", "x^2-2", "--guess", "1", "--accurate"},
                "",
                0,
                "Zero:  X = 1.4142135624\n",
                "a guess with increased accuracy"},
        CliCase{{"zeros", "x"}, "", 2, "", "a guess or a range is needed"},
        CliCase{{"intersect", "x^2", "x+2", "--range", "-3", "3"},
                "",
                0,
                "Intersection: X = -1\nIntersection: X = 2\n",
                "one blank in the range form"},
        CliCase{{"intersect", "x", "x", "--guess", "1"},
                "",
                0,
                "message: Please select two different functions.\n",
                "the same text twice"},
        CliCase{{"point", "x^2", "--x", "3"}, "", 0, " Y = 9 ; X = 3\n", "solve for Y"},
        CliCase{{"point", "x^2", "--y", "4", "--range", "-3", "3"},
                "",
                0,
                " X = -2 for Y = 4\n X = 2 for Y = 4\n",
                "solve for X"},
        CliCase{
            {"integral", "x^2", "0", "3"}, "", 0, "txtkorak=256\nlblintg=Integral:\nText10=9\n", "Simpson"},
        CliCase{{"integral", "x", "0", "1", "--segments", "2048", "--trapezoid"},
                "",
                0,
                "message: Please, define step in range [200 ; 2000].\ntxtkorak= 2000\nlblintg=Integral:\n"
                "Text10=0.5\n",
                "2048 capped to 2000"},
        CliCase{{"integral", "--derivative", "x^3", "2"}, "", 0, "Text11=12\n", "a derivative"},
        CliCase{{"critical", "x^2", "-2", "2"},
                "",
                0,
                "\nRange: (-2; 2)\nFunction: y = x^2\nMin: Y = 0 ; X = 0\n\n",
                "the log of a run"},
        CliCase{{"evaluate"},
                "2+3\nexp(x)\t2\n\n",
                0,
                "5\t2+3 = 5\n7.38905609893065\texp((2)) = 7.38905609893065\n\n",
                "a plain line, a line with X, an empty line"}));

TEST(AnalysisCli, TableHtmlWritesThePage) {
  const std::filesystem::path file = std::filesystem::temp_directory_path() / "velmora_cli_table.htm";
  const CliRun o = RunCli({"table", "--y", "x", "--xmin", "0", "--xmax", "0", "--html", file.string()});
  EXPECT_EQ(o.status, 0);
  const std::string page = Slurp(file);
  EXPECT_EQ(page.rfind("   <!DOCTYPE HTML PUBLIC", 0), 0u);
  EXPECT_NE(page.find("<TITLE>Value Tables for x</TITLE>\r\n"), std::string::npos);
  std::filesystem::remove(file);
}

}  // namespace
}  // namespace velmora::testing
