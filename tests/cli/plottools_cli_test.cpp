// velmora-cli plot: the graph window's own tools from the command line.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/clirun.h"

namespace velmora::testing {
namespace {

namespace fs = std::filesystem;

class PlotToolsCli : public ::testing::Test {
 protected:
  CliRun Plot(const std::vector<std::string>& args) { return scratch_.Plot(args); }
  fs::path History() const { return scratch_.History(); }

  CliScratch scratch_{"plottools-" +
                      std::string(::testing::UnitTest::GetInstance()->current_test_info()->name())};
  const fs::path& dir_ = scratch_.Folder();
};

struct Case {
  const char* why;
  std::vector<std::string> args;
  std::vector<std::string> lines;
};

class PlotToolsLines : public PlotToolsCli, public ::testing::WithParamInterface<Case> {};

TEST_P(PlotToolsLines, PrintWhatTheWindowShows) {
  const auto& c = GetParam();
  const CliRun run = Plot(c.args);
  EXPECT_EQ(run.status, 0) << c.why;
  EXPECT_EQ(Lines(run.out), c.lines) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, PlotToolsLines,
    ::testing::Values(Case{"the tangent of X^2 at 1", {"--y", "X^2", "--tangent", "1"}, {"txtY: 2*x-1"}},
                      Case{"the point is an expression", {"--y", "X^2", "--tangent", "2/2"}, {"txtY: 2*x-1"}},
                      Case{"the normal at a horizontal tangent is the vertical x",
                           {"--y", "X^2", "--normal", "0"},
                           {"txtY: x"}},
                      Case{"a parametric tangent at K",
                           {"--type", "parametric", "--y", "K^2", "--x", "K", "--tangent", "1"},
                           {"txtY: 2*x-1"}},
                      Case{"polar functions are refused",
                           {"--type", "polar", "--y", "1", "--tangent", "1"},
                           {"message: Available for Cartesian and Parametric functions.", "txtY: 1"}},
                      Case{"no function: the tangent asks for one first",
                           {"--tangent", "1"},
                           {"message: Draw function first.", "txtY: "}},
                      Case{"an average of 0 is refused",
                           {"--y", "SinX", "--integral", "0", "pi", "--average", "0"},
                           {"message: Invalid input for Average value."}},
                      Case{"the integral is for Cartesian functions",
                           {"--type", "parametric", "--y", "SinK", "--x", "CosK", "--integral", "0", "1"},
                           {"message: Available for Cartesian functions only."}},
                      Case{"a label is burnt in",
                           {"--y", "SinX", "--label", "Hi", "1", "1", "--angle", "90"},
                           {"label: Hi"}}));

TEST_F(PlotToolsCli, TheTangentWritesItsRecord) {
  ASSERT_EQ(Plot({"--y", "X^2", "--tangent", "1"}).status, 0);
  const std::string log = Slurp(History());
  EXPECT_NE(log.find(" Tangent for Y = X^2\r\n X = 1; Y = 1\r\n Slope: 2\r\n Tangent Line: 2*x-1\r\n"),
            std::string::npos)
      << log;
}

TEST_F(PlotToolsCli, FillsAndTheDerivativeWriteNoRecord) {
  ASSERT_EQ(Plot({"--y", "SinX", "--integral", "0", "pi", "--average", "0.5", "--hide-curve", "--derivative"})
                .status,
            0);
  const std::string log = Slurp(History());
  EXPECT_EQ(log.find("Y(X) = sinx"), log.rfind("Y(X) = sinx")) << log;  // only the draw's own record
}

TEST_F(PlotToolsCli, ModifiersFollowTheirCommand) {
  const CliRun run = Plot({"--y", "SinX", "--average", "1"});
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.out.find("--average follows --integral"), std::string::npos) << run.out;
  EXPECT_EQ(Plot({"--y", "SinX", "--label", "A", "0", "0", "--angle", "200"}).status, 2);
}

}  // namespace
}  // namespace velmora::testing
