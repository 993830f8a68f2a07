#include "expr/checked.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <functional>
#include <limits>
#include <string>

namespace velmora::expr {
namespace {

constexpr double kMax = std::numeric_limits<double>::max();
constexpr double kInf = std::numeric_limits<double>::infinity();

// The fault a computation raises, or 0 when it gives a value.
int FaultOf(const std::function<double()>& f) {
  try {
    f();
    return 0;
  } catch (const Fault& fault) {
    return fault.Number();
  }
}

struct PolicyCase {
  const char* what;
  std::function<double()> compute;
  int fault;
  const char* why;
};

TEST(CheckedTest, OneFaultPolicy) {
  const PolicyCase cases[] = {
      {"max + max", [] { return CheckedAdd(kMax, kMax); }, Fault::kOverflow, "an overflow"},
      {"-max - max", [] { return CheckedSub(-kMax, kMax); }, Fault::kOverflow, "an overflow downwards"},
      {"max * 2", [] { return CheckedMul(kMax, 2); }, Fault::kOverflow, "a product too large"},
      {"inf - inf", [] { return Checked(kInf - kInf); }, Fault::kOverflow,
       "a NaN is the platform's overflow"},
      {"1 / 0", [] { return CheckedDiv(1, 0); }, Fault::kDivisionByZero, "a non-zero over zero"},
      {"-1 / -0", [] { return CheckedDiv(-1, -0.0); }, Fault::kDivisionByZero, "negative zero is zero"},
      {"0 / 0", [] { return CheckedDiv(0, 0); }, Fault::kOverflow, "zero over zero is an overflow"},
      {"max / 1e-10", [] { return CheckedDiv(kMax, 1e-10); }, Fault::kOverflow, "a quotient too large"},
      {"0 ^ -1", [] { return CheckedPow(0, -1); }, Fault::kInvalidCall, "zero to a negative power"},
      {"-8 ^ 0.5", [] { return CheckedPow(-8, 0.5); }, Fault::kInvalidCall,
       "a fractional power of a negative"},
      {"10 ^ 400", [] { return CheckedPow(10, 400); }, Fault::kOverflow, "a power too large"},
      {"sqrt(-1)", [] { return CheckedSqrt(-1); }, Fault::kInvalidCall, "outside the domain"},
      {"log(0)", [] { return CheckedLog(0); }, Fault::kInvalidCall, "outside the domain"},
      {"exp(710)", [] { return CheckedExp(710); }, Fault::kOverflow, "too large"},
      {"single(1e39)", [] { return CheckedToSingle(1e39); }, Fault::kOverflow, "beyond single precision"},
      {"single(nan)", [] { return CheckedToSingle(std::nan("")); }, Fault::kOverflow, "no single value"},
      {"1e-300 * 1e-300", [] { return CheckedMul(1e-300, 1e-300); }, 0, "underflow is no fault"},
      {"0 ^ 0", [] { return CheckedPow(0, 0); }, 0, "one"},
      {"-8 ^ 3", [] { return CheckedPow(-8, 3); }, 0, "an integer power of a negative"},
      {"single(FLT_MAX)", [] { return CheckedToSingle(FLT_MAX); }, 0, "the largest single"},
  };
  for (const auto& c : cases) EXPECT_EQ(FaultOf(c.compute), c.fault) << c.what << ": " << c.why;
}

TEST(CheckedTest, ValuesPassThrough) {
  EXPECT_EQ(CheckedAdd(1, 2), 3);
  EXPECT_EQ(CheckedSub(1, 2), -1);
  EXPECT_EQ(CheckedMul(3, 4), 12);
  EXPECT_EQ(CheckedDiv(1, 4), 0.25);
  EXPECT_EQ(CheckedPow(2, 10), 1024);
  EXPECT_EQ(CheckedSqrt(16), 4);
  EXPECT_EQ(CheckedLog(1), 0);
}

TEST(CheckedTest, FiniteOrFault) {
  EXPECT_EQ(FiniteOrFault(2.5), 2.5);
  EXPECT_TRUE(std::isnan(FiniteOrFault(kInf)));
  EXPECT_TRUE(std::isnan(FiniteOrFault(std::nan(""))));
  EXPECT_TRUE(std::isnan(kFaultValue));
}

TEST(CheckedTest, ResumeNextEndsOnlyTheFaultingStatement) {
  double a = 0;
  double b = 0;
  double c = 0;
  const bool first = ResumeNext([&] { a = CheckedAdd(1, 1); });
  const bool second = ResumeNext([&] {
    b = 7;  // assigned before the fault: it stays
    c = CheckedDiv(1, 0);
    b = 8;  // never reached
  });
  const bool third = ResumeNext([&] { c = 3; });
  EXPECT_TRUE(first);
  EXPECT_FALSE(second);
  EXPECT_TRUE(third);
  EXPECT_EQ(a, 2);
  EXPECT_EQ(b, 7);
  EXPECT_EQ(c, 3);
}

TEST(CheckedTest, ResumeNextLetsOtherExceptionsThrough) {
  EXPECT_THROW(ResumeNext([] { throw std::string("not a fault"); }), std::string);
}

}  // namespace
}  // namespace velmora::expr
