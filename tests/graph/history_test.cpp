#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "graph/historylog.h"
#include "graph/historyrecord.h"

namespace velmora::graph {
namespace {

using Lines = std::vector<std::string>;
const std::string kSep = " ____________________________________";

struct ChooseCase {
  bool tp, np;
  int type;
  bool t, n;
  RecordKind kind;
};

class ChooseRecordTest : public ::testing::TestWithParam<ChooseCase> {};

TEST_P(ChooseRecordTest, ParametricRequestsFirstThenTypeThenCartesianRequests) {
  const auto& c = GetParam();
  EXPECT_EQ(ChooseRecord(c.tp, c.np, c.type, c.t, c.n), c.kind);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ChooseRecordTest,
    ::testing::Values(
        ChooseCase{false, false, 1, false, false, RecordKind::Cartesian},
        ChooseCase{false, false, 2, false, false, RecordKind::Parametric},
        ChooseCase{false, false, 3, false, false, RecordKind::Polar},
        ChooseCase{false, false, 1, true, false, RecordKind::CartesianTangent},
        ChooseCase{false, false, 1, false, true, RecordKind::CartesianNormal},
        ChooseCase{true, false, 1, true, false, RecordKind::ParametricTangent},  // TngentaP first
        ChooseCase{false, true, 1, false, false, RecordKind::ParametricNormal},
        ChooseCase{false, false, 2, true, false, RecordKind::Parametric}));  // type before Tngenta

struct RecordCase {
  const char* name;
  RecordFields fields;
  Lines lines;
};

RecordFields Fields(RecordKind kind) {
  RecordFields f;
  f.kind = kind;
  return f;
}

std::vector<RecordCase> RecordCases() {
  std::vector<RecordCase> cases;
  {
    auto f = Fields(RecordKind::Cartesian);
    f.function = "sin(x)";
    f.firstRow.emplace("-10", "0.544");
    cases.push_back({"Cartesian", f, {"", " Y(X) = sin(x)", " X = -10; Y = 0.544", kSep}});
  }
  {
    auto f = Fields(RecordKind::Cartesian);
    f.function = "x^2";
    cases.push_back({"CartesianNoRow", f, {"", " Y(X) = x^2", kSep}});
  }
  {
    auto f = Fields(RecordKind::Parametric);
    f.function = "SinK";
    f.xText = "CosK";
    cases.push_back({"Parametric", f, {"", " Y(K) = SinK", " X = CosK", kSep}});
  }
  {
    auto f = Fields(RecordKind::Polar);
    f.function = "1+cosk";
    cases.push_back({"Polar", f, {"", " R(K) = 1+cosk", kSep}});
  }
  {
    auto f = Fields(RecordKind::CartesianTangent);
    f.fjaT = "X^2";
    f.x0 = "1";
    f.y0 = "1";
    f.slope = "2";
    f.lineText = "2*x-1";
    cases.push_back(
        {"CartesianTangent",
         f,
         {"", " Tangent for Y = X^2", " X = 1; Y = 1", " Slope: 2", " Tangent Line: 2*x-1", kSep}});
  }
  {
    auto f = Fields(RecordKind::CartesianNormal);
    f.fjaT = "X^2";
    f.x0 = "1";
    f.y0 = "1";
    f.slope = "-0.5";
    f.lineText = "-0.5*x + 1.5";
    cases.push_back(
        {"CartesianNormal",
         f,
         {"", " Normal for Y = X^2", " X = 1; Y = 1", " Slope: -0.5", " Normal Line: -0.5*x + 1.5", kSep}});
  }
  {
    auto f = Fields(RecordKind::ParametricTangent);
    f.fja1P = "SinK";
    f.fja2P = "CosK";
    f.k = "1";
    f.x = "0.5403";
    f.y = "0.8415";
    f.lineText = "-0.6421*x+1.1884";
    f.txtX = "K";
    cases.push_back({"ParametricTangent",
                     f,
                     {"", " Tangent for Parametric Function: ", " Y = SinK", " X = CosK", " K = 1",
                      " X = 0.5403; Y = 0.8415", " Tangent Line: Y = -0.6421*x+1.1884; X = K", kSep}});
  }
  {
    auto f = Fields(RecordKind::ParametricNormal);
    f.fja1P = "SinK";
    f.fja2P = "CosK";
    f.k = "1";
    f.x = "0.5403";
    f.y = "0.8415";
    f.lineText = "1.5574*x";
    f.txtX = "K";
    cases.push_back({"ParametricNormal",
                     f,
                     {"", " Normal for Parametric Function: ", " Y = SinK", " X = CosK", " K = 1",
                      " X = 0.5403; Y = 0.8415", " Normal Line: Y = 1.5574*x; X = K", kSep}});
  }
  return cases;
}

class HistoryRecordTest : public ::testing::TestWithParam<RecordCase> {};

TEST_P(HistoryRecordTest, Lines) { EXPECT_EQ(HistoryRecord(GetParam().fields), GetParam().lines); }

INSTANTIATE_TEST_SUITE_P(Shapes, HistoryRecordTest, ::testing::ValuesIn(RecordCases()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HistoryRecord, SeparatorIsABlankAndThirtySixUnderscores) {
  EXPECT_EQ(kHistorySeparator.size(), 37u);
  EXPECT_EQ(kHistorySeparator.find_first_not_of('_', 1), std::string_view::npos);
}

TEST(HistoryRecord, FunctionTextIsLowerCaseWithKBackToXForCartesian) {
  EXPECT_EQ(HistoryFunctionText("SinK+X", true), "sinx+x");
  EXPECT_EQ(HistoryFunctionText("1+CosK", false), "1+cosk");
}

// ---- The file --------------------------------------------------------------------

class HistoryLogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ =
        std::filesystem::temp_directory_path() /
        ("velmora-history-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::remove_all(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }
  std::string Raw(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::string all;
    char c;
    while (in.get(c)) all += c;
    return all;
  }
  std::filesystem::path folder_;
};

TEST_F(HistoryLogTest, FirstRecordCreatesTheFileAndFolderWithCrLf) {
  const std::string path = (folder_ / "deep" / "GraphLog.txt").string();
  HistoryLog log(path);
  EXPECT_EQ(log.ReadAll(), "");
  ASSERT_TRUE(log.Append({"", " Y(X) = x", kSep}));
  EXPECT_EQ(Raw(path), "\r\n Y(X) = x\r\n" + kSep + "\r\n");
  ASSERT_TRUE(log.Append({"", " R(K) = k", kSep}));
  EXPECT_EQ(log.ReadAll(), "\n Y(X) = x\n" + kSep + "\n\n R(K) = k\n" + kSep + "\n");
  log.Clear();
  EXPECT_EQ(log.ReadAll(), "");
}

TEST_F(HistoryLogTest, WrittenInAnEightBitEncoding) {
  const std::string path = (folder_ / "GraphLog.txt").string();
  HistoryLog log(path);
  log.Append({"\xC3\xB8 \xE2\x82\xAC"});  // ø is Latin-1, the euro sign is not
  EXPECT_EQ(Raw(path), "\xF8 ?\r\n");
  EXPECT_EQ(log.ReadAll(), "\xC3\xB8 ?\n");
}

TEST_F(HistoryLogTest, AFailedWriteLosesTheRecordSilently) {
  std::filesystem::create_directories(folder_ / "GraphLog.txt");  // a folder where the file should be
  HistoryLog log((folder_ / "GraphLog.txt").string());
  EXPECT_FALSE(log.Append({"", " Y(X) = x", kSep}));
  EXPECT_EQ(log.ReadAll(), "");
}

TEST(HistoryLogPath, UnderTheUsersDataFolder) {
  const char* old = std::getenv("XDG_DATA_HOME");
  const std::string saved = old != nullptr ? old : "";
  setenv("XDG_DATA_HOME", "/tmp/velmora-data", 1);
  EXPECT_EQ(HistoryLog::DefaultPath(), "/tmp/velmora-data/Velmora/GraphLog.txt");
  if (old != nullptr) {
    setenv("XDG_DATA_HOME", saved.c_str(), 1);
  } else {
    unsetenv("XDG_DATA_HOME");
  }
}

TEST(Latin1, RoundTrip) {
  EXPECT_EQ(ToLatin1("abc"), "abc");
  EXPECT_EQ(FromLatin1(ToLatin1("\xC3\xA9t\xC3\xA9")), "\xC3\xA9t\xC3\xA9");
  EXPECT_EQ(ToLatin1("\xF0\x9F\x98\x80"), "?");
  EXPECT_EQ(ToLatin1("\xC3"), "?");  // a cut sequence
}

}  // namespace
}  // namespace velmora::graph
