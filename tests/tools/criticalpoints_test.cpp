// Critical Points: the coarse and the fine pass, and the log they leave.
#include "tools/criticalpoints.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "expr/formulacontrol.h"
#include "tests/support/fakegraphtarget.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/tools/toolfixture.h"

namespace velmora::tools {
namespace {

struct Fixture : ToolOverEngine<CriticalPoints> {
  std::string Run(const char* function, const char* min, const char* max) {
    tool.minText = min;
    tool.maxText = max;
    tool.Calculate(function);
    return tool.Log();
  }
};

TEST(CriticalPoints, TheLogOfARun) {
  struct Case {
    const char* function;
    const char* min;
    const char* max;
    const char* log;
    const char* why;
  };
  const Case cases[] = {
      {"x^2", "-2", "2", "\r\nRange: (-2; 2)\r\nFunction: y = x^2\r\nMin: Y = 0 ; X = 0\r\n\r\n",
       "one candidate near 0, refined and classified"},
      {"-x^2+1", "-2", "2", "\r\nRange: (-2; 2)\r\nFunction: y = -x^2+1\r\nMax: Y = 1 ; X = 0\r\n\r\n",
       "a maximum"},
      {"x^3", "-1", "1",
       "\r\nRange: (-1; 1)\r\nFunction: y = x^3\r\nNo critical points found for this function.\r\n"
       "Try to redefine range and/or increase accuracy.\r\n\r\n",
       "a saddle is labelled Critical point and kept out of the result"},
      {"SIN(K)", "-2", "2",
       "\r\nRange: (-2; 2)\r\nFunction: y = sin(x)\r\nMin: Y = -0.9999999793 ; X = -1.571\r\n"
       "Max: Y = 0.9999999793 ; X = 1.571\r\n\r\n",
       "K is read as x and the text lower-cased, so the K refusal is never reached"},
      {"x^2", "-4/2", "2*1", "\r\nRange: (-2; 2)\r\nFunction: y = x^2\r\nMin: Y = 0 ; X = 0\r\n\r\n",
       "the bounds are evaluated and written back as numbers"},
  };
  for (const Case& c : cases) {
    Fixture f;
    EXPECT_EQ(f.Run(c.function, c.min, c.max), c.log) << c.why;
    EXPECT_TRUE(f.boxes.Boxes().empty()) << c.why;
  }
}

TEST(CriticalPoints, AFlatLineLosesAccuracy) {
  Fixture f;
  EXPECT_EQ(f.Run("0", "-10", "10"), "\r\nRange: (-10; 10)\r\nStoped by user.\r\n\r\n");
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text,
            "Lost accuracy in approximation.\r\nPlease define smaller range around the expected critical "
            "points and "
            "try again.");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::Information);
  EXPECT_TRUE(f.tool.LostAccuracy());
  EXPECT_TRUE(f.tool.Candidates().empty());
}

TEST(CriticalPoints, BoundsAreRoundedToWholeNumbersForTheCoarseTable) {
  Fixture f;
  f.Run("x^2", "-0.4", "0.4");
  EXPECT_EQ(f.tool.Candidates(), (std::vector<std::string>{"0"})) << "0 to 0: one row";
}

TEST(CriticalPoints, TheLogGrows) {
  Fixture f;
  f.Run("x^2", "-1", "1");
  const std::string first = f.tool.Log();
  f.Run("x^2", "-1", "1");
  EXPECT_EQ(f.tool.Log(), first + first);
}

TEST(CriticalPoints, AnEmptyRangeIsRefused) {
  Fixture f;
  f.Run("x^2", "", "2");
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Define range.");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::Critical);
  EXPECT_EQ(f.tool.Log(), "");
}

TEST(CriticalPoints, TheSearchedFunctionGoesBackIntoTheGraphWindow) {
  const struct {
    const char* function;
    const char* min;
    const char* written;
    const char* why;
  } rows[] = {
      {"X^2", "-2", "x^2", "lower case"},
      {"Sin(K)+K", "-1", "sin(x)+x", "K read as x"},
      {"x^3", "", "X^3", "no range: the window keeps its text"},
  };
  for (const auto& row : rows) {
    Fixture f;
    testing::FakeGraphTarget window;
    window.y = row.min[0] == 0 ? "X^3" : row.function;
    f.tool.window = &window;
    f.Run(row.function, row.min, "1");
    EXPECT_EQ(window.y, row.written) << row.why;
    EXPECT_TRUE(window.requests.empty()) << "nothing drawn: " << row.why;
  }
}

TEST(CriticalPoints, TheScanTableKeepsOnlyRowsOfSmallSlope) {
  Fixture f;
  f.tool.Calculate("x^2");  // sets the function; the default range is -2 to 2
  const std::vector<ScanRow> rows = f.tool.ScanTable(-1, 1);
  ASSERT_EQ(rows.size(), 11u) << "|2x| <= 0.1 from -0.05 to 0.05";
  EXPECT_EQ(rows.front().x, "-0.05");
  EXPECT_EQ(rows.front().d, "-0.1");
}

TEST(CriticalPoints, TheProgressBarIsRightOnlyForANegativeStart) {
  Fixture f;
  f.tool.Calculate("x^2");
  std::vector<int> seen;
  f.tool.ScanTable(-1, 1, [&seen](int percent) {
    seen.push_back(percent);
    return true;
  });
  ASSERT_EQ(seen.size(), 200u) << "the added steps end a hair short of 1";
  EXPECT_EQ(seen.front(), 0);
  EXPECT_EQ(seen[100], 100) << "100 at X = 0";
  EXPECT_EQ(seen.back(), -1) << "beyond 0 the value is refused and the bar stays";
  seen.clear();
  f.tool.ScanTable(0, 1, [&seen](int percent) {
    seen.push_back(percent);
    return true;
  });
  EXPECT_EQ(seen.front(), -1) << "a division by a zero start fails";
}

TEST(CriticalPoints, AStopEndsTheRunWithoutALogLine) {
  Fixture f;
  f.tool.minText = "-5";
  f.tool.maxText = "5";
  int calls = 0;
  EXPECT_FALSE(f.tool.Calculate("x^2", [&calls](int) { return ++calls < 10; }));
  EXPECT_TRUE(f.tool.Stopped());
  EXPECT_EQ(calls, 10);
  EXPECT_EQ(f.tool.Log(), "");
}

}  // namespace
}  // namespace velmora::tools
