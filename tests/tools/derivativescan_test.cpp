// The graph window's derivative scan for the Critical Points tool.
#include "tools/derivativescan.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "expr/formulacontrol.h"

namespace velmora::tools {
namespace {

using List = std::vector<std::string>;

TEST(DerivativeScan, CandidatesBySideOfTheSlope) {
  struct Case {
    const char* function;
    double xmin;
    double xmax;
    double zoom;
    int accuracy;
    List rising;
    List falling;
    const char* why;
  };
  const Case cases[] = {
      {"x^2", -1, 1, 10, 2, {"0", "0.1"}, {"-0.1"}, "|2x| <= 0.3 rounded: -0.1 falls, 0 and 0.1 rise"},
      {"x^2",
       -1,
       1,
       100,
       1,
       {"0", "0.1", "0.2"},
       {"-0.2", "-0.1", "0"},
       "at 100 a unit the X are rounded to one decimal and doubles go; 0 lies on both sides"},
      {"x^3", 2, 3, 10, 2, {}, {}, "no small slope: no candidate"},
  };
  for (const Case& c : cases) {
    const auto engine = expr::MakeFormulaControl();
    DerivativeScan scan(*engine);
    EXPECT_TRUE(scan.Run(c.function, c.xmin, c.xmax, c.zoom, c.accuracy)) << c.why;
    EXPECT_EQ(scan.Rising(), c.rising) << c.why;
    EXPECT_EQ(scan.Falling(), c.falling) << c.why;
  }
}

TEST(DerivativeScan, OneSampleAPixelColumnPlottedAsItGoes) {
  const auto engine = expr::MakeFormulaControl();
  DerivativeScan scan(*engine);
  std::vector<double> xs;
  scan.Run("x", 0, 1, 30, 2, {}, [&xs](double x, double d) {
    xs.push_back(x);
    EXPECT_NEAR(d, 1, 1e-9);
  });
  EXPECT_EQ(scan.Samples(), 31);
  ASSERT_EQ(xs.size(), 31u);
  EXPECT_EQ(xs[1], 0.033) << "cut to three decimals, not rounded";
}

TEST(DerivativeScan, AStopEndsTheScan) {
  const auto engine = expr::MakeFormulaControl();
  DerivativeScan scan(*engine);
  int calls = 0;
  EXPECT_FALSE(scan.Run("x^2", -10, 10, 30, 2, [&calls](int) { return ++calls < 5; }));
  EXPECT_EQ(scan.Samples(), 5);
}

TEST(DerivativeScan, TheCurveIsTheDerivativeUpsideDown) {
  const auto engine = expr::MakeFormulaControl();
  DerivativeScan scan(*engine);
  scan.Run("x^2", 0, 1, 10, 2);
  ASSERT_EQ(scan.Curve().size(), 11u) << "one point a sample";
  for (const graph::CurvePoint& p : scan.Curve()) EXPECT_NEAR(p.y, -2 * p.x, 1e-6) << "at x = " << p.x;
  scan.Run("x", 0, 1, 10, 2);
  EXPECT_EQ(scan.Curve().size(), 11u) << "a new run starts a new curve";
  EXPECT_NEAR(scan.Curve().front().y, -1, 1e-9);
}

TEST(DerivativeScan, ThePenColourTakesEachPartInItsRange) {
  const struct {
    double draw;
    std::uint32_t colour;
    const char* why;
  } rows[] = {
      {0, 0, "the lowest draw: black"},
      {0.5, 100u | (12u << 8) | (127u << 16), "half way: Int of half of 200, 25 and 255"},
      {0.9999, 199u | (24u << 8) | (254u << 16), "the highest: red at most 199, green 24, blue 254"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(DerivativeScan::PenColour([&row] { return row.draw; }), row.colour) << row.why;
  }
  std::vector<double> draws = {0.1, 0.2, 0.3};
  std::size_t next = 0;
  EXPECT_EQ(DerivativeScan::PenColour([&] { return draws[next++]; }), 20u | (5u << 8) | (76u << 16))
      << "red, green and blue drawn in that order";
}

}  // namespace
}  // namespace velmora::tools
