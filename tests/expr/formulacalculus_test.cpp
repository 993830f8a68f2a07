#include "expr/formulacalculus.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velmora::expr {
namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();

double Square(double x) { return x * x; }
double Cube(double x) { return x * x * x; }
double Linear(double x) { return x; }
double Sine(double x) { return std::sin(x); }
double Abs(double x) { return std::fabs(x); }
double Root(double x) { return x < 0 ? kNaN : std::sqrt(x); }
double One(double) { return 1; }
double Huge(double) { return 1e308; }
double Large(double) { return 1e300; }
double Jump(double x) { return x < 1 ? -1e308 : 1e308; }

struct StepCase {
  double parameter;
  double step;  // NaN: no step
  const char* why;
};

class DerivativeStepTest : public ::testing::TestWithParam<StepCase> {};

TEST_P(DerivativeStepTest, Step) {
  const auto& c = GetParam();
  const double h = DerivativeStep(c.parameter);
  if (std::isnan(c.step)) {
    EXPECT_TRUE(std::isnan(h)) << c.why;
  } else {
    EXPECT_EQ(h, c.step) << c.why;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DerivativeStepTest,
    ::testing::Values(StepCase{2000, 0.00048828125, "2^-11, the power of two nearest 1/2000"},
                      StepCase{1, 1, "one step per unit"},
                      StepCase{1024, 1.0 / 1024, "an exact power of two"},
                      StepCase{0.5, 2, "below one step per unit"}, StepCase{0, kNaN, "zero is no parameter"},
                      StepCase{-2000, kNaN, "negative is no parameter"}));

struct DerivativeCase {
  double (*f)(double);
  double parameter;
  double x;
  double expected;  // NaN: fault
  double tolerance;
  const char* why;
};

class DerivativeTest : public ::testing::TestWithParam<DerivativeCase> {};

TEST_P(DerivativeTest, Value) {
  const auto& c = GetParam();
  const double d = Derivative(c.f, c.parameter, c.x);
  if (std::isnan(c.expected)) {
    EXPECT_TRUE(std::isnan(d)) << c.why << "; got " << d;
  } else {
    EXPECT_NEAR(d, c.expected, c.tolerance) << c.why;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DerivativeTest,
    ::testing::Values(DerivativeCase{Square, 2000, 1, 2, 0, "x^2 at 1 is exactly 2"},
                      DerivativeCase{Square, 2000, -3, -6, 0, "x^2 at -3"},
                      DerivativeCase{Cube, 2000, 2, 12, 1e-12, "x^3 at 2"},
                      DerivativeCase{Linear, 2000, 5, 1, 0, "a line"},
                      DerivativeCase{One, 2000, 5, 0, 0, "a constant"},
                      DerivativeCase{Sine, 2000, 1, std::cos(1.0), 1e-12, "sin at 1"},
                      DerivativeCase{Sine, 2000, 100, std::cos(100.0), 1e-10, "sin far from 0"},
                      DerivativeCase{Abs, 2000, 0, 0, 0, "a kink: the symmetric rule gives 0"},
                      DerivativeCase{Root, 2000, 0, kNaN, 0, "edge of the domain faults"},
                      DerivativeCase{Root, 2000, 0.0005, kNaN, 0, "x - 2h outside the domain"},
                      DerivativeCase{Root, 2000, 1, 0.5, 1e-12, "inside the domain"},
                      DerivativeCase{Square, 0, 1, kNaN, 0, "parameter 0"},
                      DerivativeCase{Square, -1, 1, kNaN, 0, "negative parameter"},
                      DerivativeCase{Square, 2000, std::numeric_limits<double>::max(), kNaN, 0,
                                     "points beyond the range of a double"},
                      DerivativeCase{Large, 2000, 1, 0, 0, "large but equal values cancel"},
                      DerivativeCase{Huge, 2000, 1, 0, 0, "equal values at the top of the range cancel"},
                      DerivativeCase{Jump, 2000, 1, kNaN, 0, "a difference beyond the range of a double"}));

struct SegmentCase {
  double segments;
  long count;
  const char* why;
};

class SegmentCountTest : public ::testing::TestWithParam<SegmentCase> {};

TEST_P(SegmentCountTest, Count) {
  const auto& c = GetParam();
  EXPECT_EQ(SegmentCount(c.segments), c.count) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SegmentCountTest,
    ::testing::Values(SegmentCase{256, 256, "the window's default"}, SegmentCase{2.5, 2, "ties to even"},
                      SegmentCase{3.5, 4, "ties to even, upwards"}, SegmentCase{0.4, 0, "rounds to 0: none"},
                      SegmentCase{-4, 0, "negative"}, SegmentCase{65536, 65536, "the largest count"},
                      SegmentCase{65537, 0, "beyond the largest"}, SegmentCase{kNaN, 0, "not a number"}));

struct IntegralCase {
  double (*f)(double);
  double segments;
  double a;
  double b;
  double simpson;    // NaN: fault
  double trapezoid;  // the plain sum; NaN: fault
  double tolerance;
  const char* why;
};

class IntegralTest : public ::testing::TestWithParam<IntegralCase> {};

TEST_P(IntegralTest, SimpsonAndTrapezoidSum) {
  const auto& c = GetParam();
  const double s = SimpsonIntegral(c.f, c.segments, c.a, c.b);
  const double t = TrapezoidSum(c.f, c.segments, c.a, c.b);
  if (std::isnan(c.simpson)) {
    EXPECT_TRUE(std::isnan(s)) << c.why << "; got " << s;
  } else {
    EXPECT_NEAR(s, c.simpson, c.tolerance) << c.why;
  }
  if (std::isnan(c.trapezoid)) {
    EXPECT_TRUE(std::isnan(t)) << c.why << "; got " << t;
  } else {
    EXPECT_NEAR(t, c.trapezoid, c.tolerance) << c.why;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, IntegralTest,
    ::testing::Values(
        IntegralCase{Linear, 256, 0, 1, 0.5, 128, 1e-15, "x from 0 to 1: 0.5; the sum times 1/256 is 0.5"},
        IntegralCase{Linear, 256, 1, 0, -0.5, 128, 1e-15,
                     "reversed bounds: Simpson is signed, the sum is not"},
        IntegralCase{Square, 2, 0, 3, 9, 0 / 2.0 + 2.25 + 9 / 2.0, 1e-14, "Simpson is exact for x^2"},
        IntegralCase{Cube, 4, 0, 2, 4, 0 / 2.0 + 0.125 + 1 + 3.375 + 8 / 2.0, 1e-14, "and for x^3"},
        IntegralCase{Square, 3, 0, 3, 9, 0 + 1 + 4 + 4.5, 1e-14,
                     "odd count: Simpson takes 4 segments, the sum keeps 3"},
        IntegralCase{Sine, 2000, 0, 3.141592653589793, 2, 2000 * 2 / 3.141592653589793, 1e-3,
                     "sin over a half period"},
        IntegralCase{One, 1, 5, 5, 0, 1, 0, "empty range"},
        IntegralCase{Root, 256, -1, 1, kNaN, kNaN, 0, "a point outside the domain faults the whole"},
        IntegralCase{Linear, 0, 0, 1, kNaN, kNaN, 0, "no segments"},
        IntegralCase{Linear, 1e6, 0, 1, kNaN, kNaN, 0, "too many segments"},
        IntegralCase{Huge, 4, 0, 1, kNaN, kNaN, 0, "sums beyond the range of a double"},
        IntegralCase{Linear, 4, -1.7e308, 1.7e308, kNaN, kNaN, 0, "a width beyond the range"}));

}  // namespace
}  // namespace velmora::expr
