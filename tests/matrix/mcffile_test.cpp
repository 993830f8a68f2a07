#include "matrix/mcffile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/matrix/matrixbuild.h"
#include "tests/support/filebytes.h"

namespace velmora::matrix {
namespace {

using testing::GridTexts;
using testing::MakeGrid;
using testing::Rows;

namespace fs = std::filesystem;

// A fresh folder for one test, removed afterwards.
class McfFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() /
              ("velmora-mcf-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  static std::string ReadBytes(const fs::path& path) { return velmora::testing::ReadFileBytes(path); }
  static void WriteBytes(const fs::path& path, const std::string& bytes) {
    velmora::testing::WriteFileBytes(path, bytes);
  }

  fs::path folder_;
};

TEST_F(McfFileTest, BytesOfATwoByTwoWithAnEmptyRow) {
  const Grid g = MakeGrid({{"1", "2+j1"}, {"", ""}});
  EXPECT_EQ(McfText(g), " 2  2 \r\n1\r\n2+j1\r\n\r\n\r\n");
  ASSERT_TRUE(SaveGrid(folder_ / "a.mcf", g));
  EXPECT_EQ(ReadBytes(folder_ / "a.mcf"), " 2  2 \r\n1\r\n2+j1\r\n\r\n\r\n");
}

TEST_F(McfFileTest, SizeLineOfTwoDigitCounts) { EXPECT_EQ(McfText(Grid(12, 3)).substr(0, 9), " 12  3 \r\n"); }

TEST_F(McfFileTest, FiftyByFiftyIs2501Lines) {
  const std::string text = McfText(Grid(50, 50));
  std::size_t lines = 0;
  for (std::size_t p = text.find("\r\n"); p != std::string::npos; p = text.find("\r\n", p + 2)) ++lines;
  EXPECT_EQ(lines, 2501U);
  EXPECT_EQ(text.substr(text.size() - 2), "\r\n");
}

struct RoundTripCase {
  Rows cells;
  const char* why;
};

const RoundTripCase kRoundTrips[] = {
    {{{"1+j2", ""}, {"", ".5 - j3"}}, "empty cells"},
    {{{"1,5", "a, b, c"}}, "commas"},
    {{{"\"quoted\"", "say \"hi\""}, {"'", "\""}}, "quotes"},
    {{{"  blanks  ", "\t"}}, "blanks and a tab"},
    {{{""}}, "one empty cell"},
};

TEST_F(McfFileTest, RoundTrips) {
  for (const auto& c : kRoundTrips) {
    const Grid g = MakeGrid(c.cells);
    const fs::path path = folder_ / "round.mcf";
    ASSERT_TRUE(SaveGrid(path, g)) << c.why;
    Grid back(7, 7);
    back.SetTextMatrix(6, 6, "stale");
    LoadGrid(path, back);
    EXPECT_EQ(GridTexts(back), c.cells) << c.why;
  }
}

TEST_F(McfFileTest, SaveReplacesAndLeavesNoTemporaryFile) {
  const fs::path path = folder_ / "b.mcf";
  WriteBytes(path, std::string(10000, 'x'));
  ASSERT_TRUE(SaveGrid(path, MakeGrid({{"7"}})));
  EXPECT_EQ(ReadBytes(path), " 1  1 \r\n7\r\n");
  for (const auto& entry : fs::directory_iterator(folder_)) EXPECT_EQ(entry.path().filename(), "b.mcf");
}

TEST_F(McfFileTest, SaveIntoAMissingFolderFails) {
  EXPECT_FALSE(SaveGrid(folder_ / "no" / "such" / "c.mcf", MakeGrid({{"1"}})));
}

struct LoadCase {
  const char* bytes;
  Rows cells;
  const char* why;
};

const LoadCase kLoadCases[] = {
    {" 1  2 \r\n3\r\n4\r\n", {{"3", "4"}}, "the program's own form"},
    {"1 2\n3\n4\n", {{"3", "4"}}, "line feeds alone"},
    {"1,2\r\n3\r\n4", {{"3", "4"}}, "a comma between the counts, no end after the last cell"},
    {" 1  2  trailing words\r\n3\r\n4\r\n", {{"3", "4"}}, "the rest of the size line is not a cell"},
    {"1\r\n2\r\n3\r\n4\r\n", {{"3", "4"}}, "the counts on two lines"},
    {" 2  2 \r\n1\r\n2\r\n", {{"1", "2"}, {"", ""}}, "too few lines: the rest stay empty"},
    {" 1  1 \r\n1\r\nmore\r\nlines\r\n", {{"1"}}, "extra lines are not read"},
    {"abc\r\n1\r\n", {{""}}, "a size that is not a number: a 1 x 1 empty grid"},
    {"", {{""}}, "an empty file"},
    {" 2 ", {{""}, {""}}, "the rows are set as soon as they are read"},
    {"-1 2\r\n", {{""}}, "a negative count stops the load"},
    {"2 0\r\n", {{}, {}}, "no columns"},
};

TEST_F(McfFileTest, Loads) {
  for (const auto& c : kLoadCases) {
    std::istringstream in(c.bytes);
    Grid g(3, 3);
    ReadMcf(in, g);
    EXPECT_EQ(GridTexts(g), c.cells) << c.why;
  }
}

TEST_F(McfFileTest, HugeSizeInAFileDoesNotExhaustMemory) {
  std::istringstream in("100000 100000\r\n1\r\n");
  Grid g;
  ReadMcf(in, g);
  EXPECT_EQ(g.Rows(), 100000);
  EXPECT_EQ(g.Cols(), 1);  // the columns could not be set
}

TEST_F(McfFileTest, MissingFileGivesAnEmptyOneByOne) {
  Grid g = MakeGrid({{"1", "2"}});
  LoadGrid(folder_ / "missing.mcf", g);
  EXPECT_EQ(GridTexts(g), (Rows{{""}}));
}

TEST_F(McfFileTest, SwapThroughScratchFilesIgnoresOldOnes) {
  WriteBytes(folder_ / "tmp1.mcf", " 1  1 \r\nold\r\n");
  WriteBytes(folder_ / "tmp2.mcf", " 1  1 \r\nolder\r\n");
  Grid g1 = MakeGrid({{"1", "2"}});
  Grid g2 = MakeGrid({{"3"}, {"4"}, {""}});
  ASSERT_TRUE(SwapGridsThroughFiles(folder_, g1, g2));
  EXPECT_EQ(GridTexts(g1), (Rows{{"3"}, {"4"}, {""}}));
  EXPECT_EQ(GridTexts(g2), (Rows{{"1", "2"}}));
  EXPECT_TRUE(g1.Redraw());
  EXPECT_TRUE(g2.Redraw());
  EXPECT_TRUE(fs::exists(folder_ / "tmp1.mcf"));
}

TEST_F(McfFileTest, SwapInAFolderThatCannotBeWrittenChangesNothing) {
  Grid g1 = MakeGrid({{"1"}});
  Grid g2 = MakeGrid({{"2"}});
  EXPECT_FALSE(SwapGridsThroughFiles(folder_ / "missing", g1, g2));
  EXPECT_EQ(GridTexts(g1), (Rows{{"1"}}));
  EXPECT_EQ(GridTexts(g2), (Rows{{"2"}}));
}

}  // namespace
}  // namespace velmora::matrix
