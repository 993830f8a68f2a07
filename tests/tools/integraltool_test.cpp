// The Integral - Derivative window's logic over the formula engine.
#include "tools/integraltool.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "expr/fault.h"
#include "expr/formulacontrol.h"
#include "tests/support/scriptedformula.h"
#include "tests/tools/toolfixture.h"

namespace velmora::tools {
namespace {

using Fixture = ToolOverEngine<IntegralTool>;

TEST(IntegralTool, SimpsonAndTrapezoidOverTheEngine) {
  struct Case {
    const char* function;
    const char* min;
    const char* max;
    bool simpson;
    const char* shown;
    const char* why;
  };
  const Case cases[] = {
      {"x", "0", "1", true, "0.5", "Simpson's rule of a line is exact"},
      {"x", "0", "1", false, "0.5", "the trapezoid sum is scaled by (max - min) / segments"},
      {"x^2", "0", "3", true, "9", "Simpson's rule of a parabola is exact"},
      {"sin(x)", "0", "pi", true, "2", "bounds are expressions"},
      {"X*2", "0", "1", true, "1", "the tool form reads an upper-case X"},
  };
  for (const Case& c : cases) {
    Fixture f;
    f.tool.integrand = c.function;
    f.tool.minText = c.min;
    f.tool.maxText = c.max;
    f.tool.simpson = c.simpson;
    f.tool.Integral();
    EXPECT_EQ(f.tool.ResultText(), c.shown) << c.why;
    EXPECT_EQ(f.tool.ResultCaption(), "Integral:") << c.why;
    EXPECT_TRUE(f.boxes.Boxes().empty()) << c.why;
  }
}

TEST(IntegralTool, PushesInTheirOrderAndTheAverageTurnsItsBoundsRound) {
  testing::ScriptedFormula engine([](std::string_view formula) -> std::optional<double> {
    if (formula == "0") return 0.0;
    if (formula == "2") return 2.0;
    return 1.0;
  });
  testing::RecordingMessageBox boxes;
  IntegralTool tool(engine, boxes);
  tool.integrand = "x";
  tool.minText = "0";
  tool.maxText = "2";
  tool.Integral();
  const std::vector<std::string> integral = {"0",       "PopAll()", "2",         "PopAll()", "Push(256)",
                                             "Push(0)", "Push(2)",  "Intg((x))", "PopAll()"};
  EXPECT_EQ(engine.Sent(), integral);
  engine.ClearSent();
  tool.Average();
  const std::vector<std::string> average = {
      "0", "PopAll()", "2", "PopAll()", "Push(256)", "Push(2)", "Push(0)", "Intg((0.5)*((x)))", "PopAll()"};
  EXPECT_EQ(engine.Sent(), average);
  EXPECT_EQ(tool.ResultCaption(), "Average:");
}

TEST(IntegralTool, AnEmptySegmentBoxTakesEachCommandsOwnDefault) {
  Fixture f;
  f.tool.integrand = "x";
  f.tool.minText = "0";
  f.tool.maxText = "1";
  f.tool.segments = "";
  f.tool.Integral();
  EXPECT_EQ(f.tool.segments, " 256") << "the integral's default, with its leading blank";
  f.tool.segments = "0";
  f.tool.Average();
  EXPECT_EQ(f.tool.segments, " 200") << "the average's default differs on purpose";
  EXPECT_EQ(f.tool.ResultText(), "-0.5") << "the average pushes its bounds the other way round";
}

TEST(IntegralTool, SegmentsAbove2000AreCappedWithTheMessage) {
  Fixture f;
  f.tool.segments = "2048";  // the last entry of the list
  EXPECT_TRUE(f.tool.SegmentsChanged());
  EXPECT_EQ(f.tool.segments, " 2000");
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Please, define step in range [200 ; 2000].");
  EXPECT_EQ(f.boxes.Boxes()[0].title, "Invalid Input");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::Information);
  f.tool.segments = "100";  // the lower end the message names is not tested
  EXPECT_FALSE(f.tool.SegmentsChanged());
  EXPECT_EQ(f.tool.segments, "100");
}

TEST(IntegralTool, TheCappedSegmentCountIsTheOneUsed) {
  testing::ScriptedFormula engine([](std::string_view) -> std::optional<double> { return 1.0; });
  testing::RecordingMessageBox boxes;
  IntegralTool tool(engine, boxes);
  tool.integrand = "x";
  tool.minText = "0";
  tool.maxText = "1";
  tool.segments = "2048";
  tool.SegmentsChanged();
  tool.Integral();
  EXPECT_EQ(engine.Sent()[4], "Push(2000)");
}

TEST(IntegralTool, TheAverageOverAnEmptyRangeFailsWithTheRunTimeMessage) {
  Fixture f;
  f.tool.integrand = "x";
  f.tool.minText = "1";
  f.tool.maxText = "1";
  f.tool.Average();
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, expr::FaultDescription(expr::Fault::kDivisionByZero));
  EXPECT_EQ(f.tool.ResultText(), "");
}

TEST(IntegralTool, EmptyBoxesGiveTheirMessages) {
  Fixture f;
  f.tool.Integral();
  f.tool.Derivative();
  ASSERT_EQ(f.boxes.Boxes().size(), 2u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Please, Enter function and define range.");
  EXPECT_EQ(f.boxes.Boxes()[1].text, "Please, enter function and point value.");
  EXPECT_EQ(f.boxes.Boxes()[1].icon, platform::MsgIcon::Information);
}

TEST(IntegralTool, TheDecimalsChangeWithoutANewCalculation) {
  Fixture f;
  f.tool.derivand = "x^3";
  f.tool.point = "1/3";
  f.tool.Derivative();
  EXPECT_EQ(f.tool.DerivativeText(), "0.333333");
  f.tool.SetDecimals(2);
  EXPECT_EQ(f.tool.DerivativeText(), "0.33");
  f.tool.SetDecimals(6);
  EXPECT_EQ(f.tool.DerivativeText(), "0.333333") << "the full text is kept";
}

TEST(IntegralTool, AResultOfZeroIsNotRoundedAgain) {
  Fixture f;
  f.tool.derivand = "x^2";
  f.tool.point = "0";
  f.tool.Derivative();
  EXPECT_EQ(f.tool.DerivativeText(), "0");
  f.tool.SetDecimals(2);
  EXPECT_EQ(f.tool.DerivativeText(), "0");
}

TEST(IntegralTool, EditsEmptyTheResultThatDependsOnThem) {
  Fixture f;
  f.tool.integrand = "x";
  f.tool.minText = "0";
  f.tool.maxText = "1";
  f.tool.Integral();
  f.tool.derivand = "x";
  f.tool.point = "1";
  f.tool.Derivative();
  f.tool.IntegralInputEdited();
  EXPECT_EQ(f.tool.ResultText(), "");
  EXPECT_EQ(f.tool.FullIntegral(), "");
  EXPECT_EQ(f.tool.DerivativeText(), "1");
  f.tool.DerivativeInputEdited();
  EXPECT_EQ(f.tool.DerivativeText(), "");
}

}  // namespace
}  // namespace velmora::tools
