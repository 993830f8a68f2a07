// velmora-cli plot: the headless graph window, run as a program.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/cli/clirun.h"

namespace velmora::testing {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Split(const std::string& line) {
  std::vector<std::string> cells;
  std::size_t start = 0;
  for (;;) {
    const auto tab = line.find('\t', start);
    cells.push_back(line.substr(start, tab - start));
    if (tab == std::string::npos) return cells;
    start = tab + 1;
  }
}

class PlotCli : public ::testing::Test {
 protected:
  CliRun Plot(const std::vector<std::string>& args, bool ownFiles = true) {
    return scratch_.Plot(args, ownFiles);
  }
  fs::path Settings() const { return scratch_.Settings(); }
  fs::path History() const { return scratch_.History(); }
  void SetGrid(const std::string& lines) { std::ofstream(Settings()) << "[Grid]\n" << lines; }

  CliScratch scratch_{"plot-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name())};
  const fs::path& dir_ = scratch_.Folder();
};

TEST_F(PlotCli, TraceHasOneLinePerPassWithSevenColumns) {
  const CliRun run = Plot({"--y", "SinX", "--trace"});
  ASSERT_EQ(run.status, 0) << run.out;
  const auto lines = Lines(run.out);
  ASSERT_EQ(lines.size(), 601u);
  EXPECT_EQ(lines[0], "-10\t0.54402111088937\t-10\t0\t183.679366673319\tmove\t0");
  EXPECT_EQ(Split(lines[1])[5], "line");
  for (const auto& line : lines) EXPECT_EQ(Split(line).size(), 7u) << line;
}

// Each Cartesian record names the first table row of its own function.
TEST_F(PlotCli, HistoryRecordsTheFirstRowOfTheFunctionJustDrawn) {
  const CliRun run = Plot({"--y", "SinX", "--y", "CosX"});
  ASSERT_EQ(run.status, 0) << run.out;
  std::ostringstream text;
  text << std::ifstream(History()).rdbuf();
  const std::string log = text.str();
  EXPECT_NE(log.find(" Y(X) = sinx\r\n X = -10; Y = 0.544\r\n"), std::string::npos) << log;
  EXPECT_NE(log.find(" Y(X) = cosx\r\n X = -10; Y = -0.839\r\n"), std::string::npos) << log;
}

TEST_F(PlotCli, SamplesFollowTheWidth) {
  const CliRun run = Plot({"--width", "100", "--height", "80", "--y", "X", "--trace"});
  EXPECT_EQ(Lines(run.out).size(), 101u);
  EXPECT_EQ(Split(Lines(run.out)[0])[0], "-1.667");  // -50 / 30 cut toward minus infinity
}

TEST_F(PlotCli, SkippedSamplesAndTheInvisiblePenInTheTrace) {
  // 1/X at zoom 177: the samples next to the pole pass 100, are skipped, and
  // leave the pen invisible for the next segment.
  const CliRun run = Plot({"--width", "60", "--zoom", "177", "--y", "1/X", "--trace"});
  const auto lines = Lines(run.out);
  ASSERT_EQ(lines.size(), 61u);
  int beyond = 0;
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    const auto cells = Split(lines[i]);
    if (cells[5] != "skip" || std::abs(std::stod(cells[1])) <= 100) continue;
    ++beyond;
    EXPECT_EQ(cells[6], "5") << lines[i];
  }
  EXPECT_GE(beyond, 2);
  const CliRun zero = Plot({"--width", "10", "--y", "0", "--trace"});
  for (const auto& line : Lines(zero.out)) EXPECT_EQ(Split(line)[5], "skip");
}

TEST_F(PlotCli, TableAndStatus) {
  const CliRun run = Plot({"--y", "X^2", "--table", "--status"});
  ASSERT_EQ(run.status, 0) << run.out;
  const auto lines = Lines(run.out);
  // From Xpoc to Xkraj: -10 to 9.999, the last K cut down, by 1.
  ASSERT_EQ(lines.size(), 21u + 3u);
  EXPECT_EQ(lines[0], "X\tY\tY'");
  EXPECT_EQ(lines[1], "-10\t100\t-20");
  EXPECT_EQ(lines[11], "0\t0\t0");
  EXPECT_EQ(lines[20], "9\t81\t18");
  EXPECT_EQ(lines[21], "Y (X) = X^2");
  EXPECT_EQ(lines[22], "Zoom: 30");
  EXPECT_EQ(lines[23], "Moved:");
}

TEST_F(PlotCli, HistoryGoesToTheGivenFileWithCrLf) {
  Plot({"--y", "SinK"});
  Plot({"--type", "polar", "--y", "1+CosK"});
  EXPECT_EQ(Slurp(History()),
            "\r\n Y(X) = sinx\r\n X = ; Y = \r\n ____________________________________\r\n"
            "\r\n R(K) = 1+cosk\r\n ____________________________________\r\n");
  EXPECT_FALSE(fs::exists(dir_ / "data" / "Velmora" / "GraphLog.txt"));
}

TEST_F(PlotCli, WithoutFilesTheUsersStoreAndLogAreUsed) {
  Plot({"--y", "X/2"}, false);
  EXPECT_NE(Slurp(dir_ / "config" / "Velmora" / "Velmora.ini").find("Recent1=\"X/2 ; K | Cartesian\""),
            std::string::npos);
  EXPECT_NE(Slurp(dir_ / "data" / "Velmora" / "GraphLog.txt").find(" Y(X) = x/2"), std::string::npos);
}

TEST_F(PlotCli, RecentFunctionsAreKeptInTheSettingsFile) {
  Plot({"--y", "X/2", "--type", "parametric", "--y", "SinK", "--x", "CosK"});
  const std::string ini = Slurp(Settings());
  EXPECT_NE(ini.find("Recent1=\"SinK ; CosK | Parametric\""), std::string::npos) << ini;
  EXPECT_NE(ini.find("Recent2=\"X/2 ; K | Cartesian\""), std::string::npos) << ini;
}

TEST_F(PlotCli, ParametricTable) {
  const CliRun run = Plot({"--type", "parametric", "--y", "SinK", "--x", "CosK", "--table", "--status"});
  const auto lines = Lines(run.out);
  ASSERT_EQ(lines.size(), 20u + 3u);
  EXPECT_EQ(lines[0], "K\tX (K)\tY (K)");
  EXPECT_EQ(lines[1], "-9\t-0.911\t-0.412");
  EXPECT_EQ(lines[20], "Y (K) = SinK ; X (K) = CosK");
}

TEST_F(PlotCli, ZoomPresetsAndTheRangeRule) {
  EXPECT_EQ(Lines(Plot({"--zoom", "out", "--status"}).out)[1], "Zoom: 15");
  EXPECT_EQ(Lines(Plot({"--zoom", "50", "--status"}).out)[1], "Zoom: 50");
  EXPECT_EQ(Lines(Plot({"--zoom", "200", "--status"}).out)[1], "Zoom: 200");
  EXPECT_EQ(Lines(Plot({"--zoom", "5", "--status"}).out)[1], "Zoom: 5");
  const auto refused = Lines(Plot({"--zoom", "4.9", "--status"}).out);
  EXPECT_EQ(refused[0], "message: Input out of range (5-200)!");
  EXPECT_EQ(refused[2], "Zoom: 30");
  EXPECT_EQ(Lines(Plot({"--zoom", "200.1", "--status"}).out)[0], "message: Input out of range (5-200)!");
}

TEST_F(PlotCli, MovesInOrderAndCenter) {
  auto lines = Lines(Plot({"--y", "X", "--right", "2", "--up", "1", "--status"}).out);
  EXPECT_EQ(lines.back(), "Moved: R: 2 Up: 1");
  lines = Lines(Plot({"--right", "2", "--center", "--status"}).out);
  EXPECT_EQ(lines.back(), "Moved:");
  // A move replays the function at the new view: the trace runs twice, the
  // second time from K = -12.
  lines = Lines(Plot({"--y", "X/2", "--right", "2", "--trace"}).out);
  ASSERT_EQ(lines.size(), 1202u);
  EXPECT_EQ(Split(lines[601])[0], "-12");
}

TEST_F(PlotCli, WithAutoredOffAViewChangeDoesNotReplay) {
  SetGrid("Autored=0\n");
  const auto lines = Lines(Plot({"--y", "X/2", "--zoom", "in", "--trace"}).out);
  EXPECT_EQ(lines.size(), 601u);
}

TEST_F(PlotCli, ReplayRunsRedrawFuncAtTheEnd) {
  const auto lines = Lines(Plot({"--y", "X/2", "--y", "X/3", "--replay", "--trace"}).out);
  EXPECT_EQ(lines.size(), 4u * 601u);
}

TEST_F(PlotCli, BadSyntaxIsAMessageAndNoRecord) {
  const CliRun run = Plot({"--y", "Sin(X", "--trace"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(Lines(run.out), (std::vector<std::string>{"message: Check bracket placement!"}));
  EXPECT_FALSE(fs::exists(History()));
}

#ifdef VELMORA_CLI_HAS_PNG
// The image surface draws the arrow fonts' glyphs itself.
TEST_F(PlotCli, ArrowsNeedNoMessageOnTheImageSurface) {
  SetGrid("Ozna=1\n");
  const CliRun run = Plot({"--status"});
  EXPECT_EQ(run.out.find("message: Fonts Marlett or Webdings are missing."), std::string::npos);
}
#else
TEST_F(PlotCli, MissingArrowFontsArePrintedAsAMessage) {
  SetGrid("Ozna=1\n");
  const CliRun run = Plot({"--status"});
  EXPECT_NE(run.out.find("message: Fonts Marlett or Webdings are missing."), std::string::npos);
}
#endif

TEST_F(PlotCli, BadCommandLines) {
  EXPECT_NE(Plot({"--bogus"}).status, 0);
  EXPECT_NE(Plot({"--y"}).status, 0);
  EXPECT_NE(Plot({"--type", "round", "--y", "X"}).status, 0);
  EXPECT_NE(Plot({"--width", "0"}).status, 0);
}

#ifdef VELMORA_CLI_HAS_PNG
TEST_F(PlotCli, PngOfTheSurface) {
  const fs::path png = dir_ / "plot.png";
  const CliRun run = Plot({"--width", "321", "--height", "123", "--y", "SinX", "--png", png.string()});
  ASSERT_EQ(run.status, 0) << run.out;
  const std::string data = Slurp(png);
  ASSERT_GT(data.size(), 24u);
  EXPECT_EQ(data.substr(1, 3), "PNG");
  const auto byte = [&data](std::size_t i) { return static_cast<unsigned char>(data[i]); };
  EXPECT_EQ((byte(16) << 24) | (byte(17) << 16) | (byte(18) << 8) | byte(19), 321);
  EXPECT_EQ((byte(20) << 24) | (byte(21) << 16) | (byte(22) << 8) | byte(23), 123);
  EXPECT_NE(Plot({"--png", (dir_ / "no" / "such" / "dir.png").string()}).status, 0);
}

// The random colours are never seeded: every start draws the same colours.
TEST_F(PlotCli, RandomColoursRepeatFromStartToStart) {
  SetGrid("Rnd=1\n");
  const fs::path a = dir_ / "a.png";
  const fs::path b = dir_ / "b.png";
  Plot({"--y", "X/2", "--y", "X/3", "--png", a.string()});
  Plot({"--y", "X/2", "--y", "X/3", "--png", b.string()});
  EXPECT_EQ(Slurp(a), Slurp(b));
  std::ofstream(Settings()) << "[Grid]\nRnd=0\n";
  Plot({"--y", "X/2", "--y", "X/3", "--png", b.string()});
  EXPECT_NE(Slurp(a), Slurp(b));
}
#else
TEST_F(PlotCli, PngNeedsQt) {
  const CliRun run = Plot({"--y", "X", "--png", (dir_ / "plot.png").string(), "--status"});
  EXPECT_NE(run.status, 0);
  EXPECT_NE(run.out.find("--png needs a build with Qt"), std::string::npos);
  EXPECT_NE(run.out.find("Y (X) = X"), std::string::npos);  // the rest still ran
}
#endif

}  // namespace
}  // namespace velmora::testing
