#include "expr/functionlibrary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

namespace velmora::expr {
namespace {

const double kPi = 4 * std::atan(1.0);

struct ValueCase {
  const char* name;
  double x;
  double expected;
  double tolerance;
  const char* why;
};

class ApplyTest : public ::testing::TestWithParam<ValueCase> {};

TEST_P(ApplyTest, Value) {
  const auto& c = GetParam();
  const auto fn = FindEvaluatorFunction(c.name);
  ASSERT_TRUE(fn.has_value()) << c.name;
  EXPECT_NEAR(Apply(*fn, c.x), c.expected, c.tolerance) << c.name << "(" << c.x << "): " << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ApplyTest,
    ::testing::Values(
        ValueCase{"NIL", -8, 4, 1e-12, "even in x"}, ValueCase{"NIL", 0, 0, 0, "zero at zero"},
        ValueCase{"CBR", -8, -2, 1e-12, "real cube root"},
        ValueCase{"CBR2", 0, 0, 0, "zero on purpose, no fault"},
        ValueCase{"CBR2", -8, -0.5, 1e-12, "negative branch"},
        ValueCase{"PBR", -32, -2, 1e-12, "real fifth root"}, ValueCase{"QVT", 2, 16, 0, "fourth power"},
        ValueCase{"QVD", 2, 16, 0, "the same function"}, ValueCase{"BIN", -3, 9, 0, "square"},
        ValueCase{"\xC2\xB2", 4, 16, 0, "superscript two"}, ValueCase{"CUB", -2, -8, 0, "cube"},
        ValueCase{"PNT", 2, 32, 0, "fifth power"}, ValueCase{"LOG", 1000, 3, 1e-12, "decimal logarithm"},
        ValueCase{"ACOT", 0, kPi / 2, 1e-15, "stated form at 0"},
        ValueCase{"ACOT", -1, kPi / 4, 1e-15, "no jump at 0"},
        ValueCase{"ASEC", 0.5, 100, 0, "sentinel inside |x| < 1"},
        ValueCase{"ACSC", 1, 100, 0, "sentinel at |x| = 1"},
        ValueCase{"ASEC", 2, std::atan(2 / std::sqrt(3.0)) + kPi / 2, 1e-12, "stated form, in domain"},
        ValueCase{"ASEC", -2, std::atan(-2 / std::sqrt(3.0)) - kPi / 2, 1e-12, "sgn(x - 1) is -1"},
        ValueCase{"ACSC", 2, std::atan(2 / std::sqrt(3.0)), 1e-12, "stated form, (sgn(x) - 1) is 0"},
        ValueCase{"ACSC", -2, std::atan(-2 / std::sqrt(3.0)) - kPi, 1e-12, "(sgn(x) - 1) is -2"},
        ValueCase{"FAC", 2.5, 2, 0, "2.5 rounds to 2"}, ValueCase{"FAC", 3.5, 24, 0, "3.5 rounds to 4"},
        ValueCase{"FAC", -1, 0, 0, "negative gives 0"},
        ValueCase{"FAC", 170, 7.257415615307994e306, 1e293, "largest without overflow"},
        ValueCase{"GAMMA", 5, 24, 1e-8, "Lanczos accuracy"},
        ValueCase{"GAMMA", 26, 0, 0, "outside -25..25 is 0"},
        ValueCase{"GAMMA", -26, 0, 0, "outside -25..25 is 0"},
        ValueCase{"BETA", 30, 0, 0, "outside -25..25 is 0"}, ValueCase{"BLANC", 0, 0, 0, "zero"},
        ValueCase{"BLANC", 0.5, 0.5, 1e-15, "peak of the first round"},
        ValueCase{"FOUR", 1.5707963, kPi / 4, 1e-3, "square wave"},
        ValueCase{"STEF", 0.5, 10 * std::sin(0.5) * std::cos(0.5), 1e-14, "10 sin cos"},
        ValueCase{"PI", 7, kPi, 0, "argument ignored"}, ValueCase{"D", 1, kPi / 180, 0, "one degree"},
        ValueCase{"E", 1, std::exp(1.0), 0, "e"},
        ValueCase{"HSIN", 1, std::sinh(1.0), 1e-15, "from exponentials"},
        ValueCase{"HCOTAN", 1, 1 / std::tanh(1.0), 1e-14, "hyperbolic cotangent"},
        ValueCase{"ASINH", 1, std::asinh(1.0), 1e-15, "inverse hyperbolic sine"},
        ValueCase{"ATNH", 0.5, std::atanh(0.5), 1e-15, "inverse hyperbolic tangent"},
        ValueCase{"FIX", -2.7, -2, 0, "truncation toward 0"}, ValueCase{"FI", 2.7, 2, 0, "alias of FIX"},
        ValueCase{"INT", -2.7, -3, 0, "floor"}, ValueCase{"SGN", -5, -1, 0, "sign"},
        ValueCase{"ARCSIN", 0.5, std::asin(0.5), 1e-15, "through arctangent"},
        ValueCase{"ARCCOS", 0.5, std::acos(0.5), 1e-15, "through arctangent"}));

struct FaultCase {
  const char* name;
  double x;
  const char* why;
};

class ApplyFaultTest : public ::testing::TestWithParam<FaultCase> {};

TEST_P(ApplyFaultTest, Faults) {
  const auto& c = GetParam();
  const auto fn = FindEvaluatorFunction(c.name);
  ASSERT_TRUE(fn.has_value()) << c.name;
  EXPECT_TRUE(std::isnan(Apply(*fn, c.x))) << c.name << "(" << c.x << "): " << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ApplyFaultTest,
    ::testing::Values(
        FaultCase{"QVR", -1, "fourth root of a negative"}, FaultCase{"LOG", 0, "log of zero"},
        FaultCase{"LN", -1, "log of a negative"}, FaultCase{"SQR", -1, "square root of a negative"},
        FaultCase{"ASEC", 1, "divides by zero at 1"}, FaultCase{"ASEC", -1, "divides by zero at -1"},
        FaultCase{"ARCSIN", 1, "divides by zero at 1"}, FaultCase{"ARCCOS", -1, "divides by zero at -1"},
        FaultCase{"ARCSIN", 2, "outside the domain"}, FaultCase{"FAC", 171, "overflows"},
        FaultCase{"FAC", 40000, "outside 16 bits"}, FaultCase{"GAMMA", 0, "divides by zero"},
        FaultCase{"GAMMA", -3, "pole"}, FaultCase{"EXP", 710, "overflow"},
        FaultCase{"HSIN", 710, "overflows near 709"},
        FaultCase{"HSEC", 710, "overflow inside, although 2/inf is 0"}, FaultCase{"COT", 0, "1/tan(0)"},
        FaultCase{"CSC", 0, "1/sin(0)"}, FaultCase{"ATANH", 1, "divides by zero"},
        FaultCase{"ACOTH", 1, "divides by zero"}, FaultCase{"HASEC", 0, "divides by zero"}));

TEST(FunctionNames, EveryEvaluatorNameIsUpperCaseAndUnique) {
  std::set<std::string> seen;
  for (const auto& entry : EvaluatorFunctionNames()) {
    EXPECT_TRUE(seen.insert(std::string(entry.name)).second) << entry.name;
    for (char c : entry.name) EXPECT_FALSE(c >= 'a' && c <= 'z') << entry.name;
  }
  EXPECT_EQ(seen.size(), 103u);
}

TEST(FunctionNames, EvaluatorMatchIsExact) {
  EXPECT_FALSE(FindEvaluatorFunction("sin").has_value());
  EXPECT_FALSE(FindEvaluatorFunction("SINX").has_value());
  EXPECT_FALSE(FindEvaluatorFunction("STL").has_value());
  EXPECT_FALSE(FindEvaluatorFunction("").has_value());
}

TEST(FunctionNames, EngineTakesAnyCaseAndItsOwnSpellings) {
  EXPECT_EQ(FindEngineFunction("sin"), Fn::Sin);
  EXPECT_EQ(FindEngineFunction("Sin"), Fn::Sin);
  EXPECT_EQ(FindEngineFunction("HAsin"), Fn::HAsin);
  EXPECT_EQ(FindEngineFunction("stl"), Fn::Fix);
  EXPECT_EQ(FindEngineFunction("Rad"), Fn::Rad);
  EXPECT_EQ(FindEngineFunction("Deg"), Fn::Deg);
  EXPECT_FALSE(FindEngineFunction("sinus").has_value());
}

TEST(Factorial2, Values) {
  EXPECT_EQ(Factorial2(0), 1);
  EXPECT_EQ(Factorial2(5), 120);
  EXPECT_EQ(Factorial2(-3), 0);
  EXPECT_TRUE(std::isnan(Factorial2(171)));
}

TEST(Gamma, OutsideTheProductRangeFaults) {
  EXPECT_TRUE(std::isnan(Gamma(100)));  // (x+1)...(x+6) beyond 32 bits
  EXPECT_NEAR(Gamma(0.5), std::sqrt(4 * std::atan(1.0)), 1e-9);
}

TEST(Rnd, SelectorRepeatsAndRestarts) {
  const float first = NextRandom(-1);
  const float again = NextRandom(0);
  EXPECT_EQ(first, again);  // 0 repeats the last value
  const float next = NextRandom(1);
  EXPECT_NE(next, first);
  EXPECT_EQ(NextRandom(-1), first);  // restarting from the same seed repeats
  for (int i = 0; i < 1000; ++i) {
    const float v = NextRandom(1);
    EXPECT_GE(v, 0.0f);
    EXPECT_LT(v, 1.0f);
  }
}

TEST(Clock, ValuesInRange) {
  EXPECT_GE(Apply(Fn::Month, 0), 1);
  EXPECT_LE(Apply(Fn::Month, 0), 12);
  EXPECT_GE(Apply(Fn::Weekday, 0), 1);
  EXPECT_LE(Apply(Fn::Weekday, 0), 7);
  EXPECT_GE(Apply(Fn::Timer, 0), 0);
  EXPECT_LT(Apply(Fn::Timer, 0), 86400.5);
  EXPECT_GE(Apply(Fn::Year, 0), 2024);
}

}  // namespace
}  // namespace velmora::expr
