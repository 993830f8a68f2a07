#include "geometry/real.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "expr/fault.h"

namespace velmora::geometry {
namespace {

struct FaultCase {
  std::function<Real()> op;
  int number;  // 0: no fault
  double value;
  std::string why;
};

class RealTest : public ::testing::TestWithParam<FaultCase> {};

TEST_P(RealTest, ChecksEachOperation) {
  const auto& c = GetParam();
  if (c.number == 0) {
    EXPECT_DOUBLE_EQ(c.op().Value(), c.value) << c.why;
    return;
  }
  try {
    c.op();
    ADD_FAILURE() << "no fault: " << c.why;
  } catch (const expr::Fault& f) {
    EXPECT_EQ(f.Number(), c.number) << c.why;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RealTest,
    ::testing::Values(
        FaultCase{[] { return Real(6) / 4; }, 0, 1.5, "plain division"},
        FaultCase{[] { return Real(1) / 0; }, expr::Fault::kDivisionByZero, 0, "x / 0 is division by zero"},
        FaultCase{[] { return Real(0) / 0; }, expr::Fault::kOverflow, 0, "0 / 0 is reported as overflow"},
        FaultCase{[] { return Real(1e308) * 10; }, expr::Fault::kOverflow, 0, "product beyond the range"},
        FaultCase{[] { return Real(1e308) + 1e308; }, expr::Fault::kOverflow, 0, "sum beyond the range"},
        FaultCase{[] { return Real(-1e308) - 1e308; }, expr::Fault::kOverflow, 0,
                  "difference beyond the range"},
        FaultCase{[] { return Sqr(9); }, 0, 3, "square root"},
        FaultCase{[] { return Sqr(-1); }, expr::Fault::kInvalidCall, 0, "root of a negative number"},
        FaultCase{[] { return Ln(0); }, expr::Fault::kInvalidCall, 0, "logarithm of 0"},
        FaultCase{[] { return Ln(-2); }, expr::Fault::kInvalidCall, 0, "logarithm of a negative number"},
        FaultCase{[] { return Pow(-8, Real(1) / 3); }, expr::Fault::kInvalidCall, 0,
                  "fractional power of a negative"},
        FaultCase{[] { return Pow(-2, 3); }, 0, -8, "whole power of a negative"},
        FaultCase{[] { return Pow(0, -1); }, expr::Fault::kInvalidCall, 0, "0 to a negative power"},
        FaultCase{[] { return Pow(10, 400); }, expr::Fault::kOverflow, 0, "power beyond the range"},
        FaultCase{[] { return Atn(1) * 4; }, 0, 3.14159265358979312, "arctangent"},
        FaultCase{[] { return Abs(-2.5); }, 0, 2.5, "absolute value"},
        FaultCase{[] { return -Real(2); }, 0, -2, "negation"}));

TEST(Real, ComparesWithLiterals) {
  EXPECT_TRUE(Real(0) == 0);
  EXPECT_TRUE(Real(-1) < 0);
  EXPECT_TRUE(Real(2) >= 2);
  EXPECT_FALSE(Real(1.5) > 1.5);
}

}  // namespace
}  // namespace velmora::geometry
