// Rational powers: the sixteen-row table on its own, and each row through
// the evaluator with the graph window's fields set as the fraction keypad
// leaves them.
#include "expr/rationalpower.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "expr/evaluator.h"
#include "expr/fault.h"
#include "tests/expr/fakegraphwindow.h"
#include "tests/support/evaluatorstate.h"

namespace velmora::expr {
namespace {

using testing::FakeGraphWindow;

struct RowCase {
  double a, b;
  bool p, q, r;
  int row;  // 0: no row matches
};
void PrintTo(const RowCase& c, std::ostream* os) { *os << "a=" << c.a << " b=" << c.b; }

class RationalRowTest : public ::testing::TestWithParam<RowCase> {};

TEST_P(RationalRowTest, FirstMatchingRow) {
  const auto& c = GetParam();
  const RationalRow* row = FindRationalRow(c.a, c.b, c.p, c.q, c.r);
  EXPECT_EQ(row == nullptr ? 0 : row->row, c.row)
      << "a=" << c.a << " b=" << c.b << " P=" << c.p << " Q=" << c.q << " R=" << c.r;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RationalRowTest,
    ::testing::Values(RowCase{8, 0.5, true, true, false, 1}, RowCase{-8, 0.5, true, true, false, 2},
                      RowCase{-8, 0.5, true, false, false, 3}, RowCase{8, 0.5, true, false, false, 4},
                      RowCase{-8, 2.5, true, false, false, 5}, RowCase{8, 2.5, true, false, false, 6},
                      RowCase{-8, 2.5, true, true, false, 7}, RowCase{8, 2.5, true, true, false, 8},
                      RowCase{8, -0.5, false, false, true, 9}, RowCase{-8, -0.5, false, false, true, 10},
                      RowCase{8, -0.5, false, true, true, 11}, RowCase{-8, -0.5, false, true, true, 12},
                      RowCase{-8, -2.5, false, true, true, 13}, RowCase{8, -2.5, false, true, true, 14},
                      RowCase{8, -2.5, false, false, true, 15}, RowCase{-8, -2.5, false, false, true, 16}));

INSTANTIATE_TEST_SUITE_P(
    NoRow, RationalRowTest,
    ::testing::Values(RowCase{0, 0.5, true, true, true, 0},    // a = 0
                      RowCase{8, 0, true, true, true, 0},      // b = 0
                      RowCase{8, 1, true, true, true, 0},      // b = 1
                      RowCase{-8, -1, true, true, true, 0},    // b = -1
                      RowCase{-8, 0.5, false, true, true, 0},  // P false: rows 1-8 need P
                      RowCase{-8, -0.5, true, true, false, 0}  // R false: rows 9-16 need R
                      ));

TEST(RationalRowTableTest, SixteenRowsInOrder) {
  const auto rows = RationalRows();
  ASSERT_EQ(rows.size(), 16u);
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].row, static_cast<int>(i + 1));
}

TEST(RationalFormTest, Forms) {
  EXPECT_DOUBLE_EQ(ApplyRationalForm(RationalForm::Plain, 8, 1.0 / 3), 2);
  EXPECT_DOUBLE_EQ(ApplyRationalForm(RationalForm::NegatedOfNegated, -8, 1.0 / 3), -2);
  EXPECT_DOUBLE_EQ(ApplyRationalForm(RationalForm::OfNegated, -8, 1.0 / 3), 2);
  EXPECT_THROW(ApplyRationalForm(RationalForm::Plain, -8, 1.0 / 3), Fault);
}

// Through the evaluator: the fields (txtY3, txtImenilac, txtY2) fix P, Q and
// R by the parity of their last digit; lblY3 reads "OK".
struct PowerCase {
  const char* text;
  const char* y3;
  const char* imenilac;
  const char* y2;
  int error;
  double value;
  const char* why;
};
void PrintTo(const PowerCase& c, std::ostream* os) { *os << c.text << " (" << c.why << ")"; }

class RationalPowerTest : public ::testing::TestWithParam<PowerCase> {};

TEST_P(RationalPowerTest, Evaluate) {
  const auto& c = GetParam();
  FakeGraphWindow window;
  window.Rational(c.y3, c.imenilac, c.y2);
  Evaluator ev(nullptr, &window);
  const double value = ev.Evaluate(c.text, true);
  EXPECT_EQ(ev.Error(), c.error) << c.text << ": " << c.why;
  EXPECT_NEAR(value, c.value, 1e-12) << c.text << ": " << c.why;
}

INSTANTIATE_TEST_SUITE_P(RowByRow, RationalPowerTest,
                         ::testing::Values(PowerCase{"8^(1/3)", "3", "1", "1", 0, 2, "row 1"},
                                           PowerCase{
                                               "(-8)^(1/3)", "3", "1", "1", 0, -2,
                                               "row 2: the keypad's cube root of -8, Q true, digits differ"},
                                           PowerCase{"(-8)^(1/3)", "3", "2", "1", 0, 2, "row 3"},
                                           PowerCase{"8^(1/3)", "3", "2", "1", 0, 2, "row 4"},
                                           PowerCase{"(-8)^(5/3)", "5", "2", "1", 0, 32, "row 5"},
                                           PowerCase{"8^(5/3)", "5", "2", "1", 0, 32, "row 6"},
                                           PowerCase{"(-8)^(5/3)", "5", "3", "1", 0, -32, "row 7"},
                                           PowerCase{"8^(5/3)", "5", "3", "1", 0, 32, "row 8"},
                                           PowerCase{"8^(-1/3)", "3", "2", "1", 0, 0.5, "row 9"},
                                           PowerCase{"(-8)^(-1/3)", "3", "2", "1", 0, 0.5, "row 10"},
                                           PowerCase{"8^(-1/3)", "3", "1", "1", 0, 0.5, "row 11"},
                                           PowerCase{"(-8)^(-1/3)", "3", "1", "1", 0, -0.5, "row 12"},
                                           PowerCase{"(-8)^(-5/3)", "5", "3", "1", 0, -0.03125, "row 13"},
                                           PowerCase{"8^(-5/3)", "5", "3", "1", 0, 0.03125, "row 14"},
                                           PowerCase{"8^(-5/3)", "5", "2", "1", 0, 0.03125, "row 15"},
                                           PowerCase{"(-8)^(-5/3)", "5", "2", "1", 0, 0.03125, "row 16"}));

INSTANTIATE_TEST_SUITE_P(
    Exceptions, RationalPowerTest,
    ::testing::Values(
        PowerCase{"(-8)^(1/3)", "3", "13", "1", 16, 0, "Q and equal last digits: the plain power at once"},
        PowerCase{"(-8)^(1/3)", "2", "1", "1", 16, 0, "P false: no row, plain power faults"},
        PowerCase{"(-8)^(-1/3)", "3", "1", "2", 16, 0, "R false: no row"},
        PowerCase{"(-2)^2", "3", "1", "1", 0, -4, "b > 1 with P and Q: row 7 negates even an even power"},
        PowerCase{"2^2", "3", "1", "", 16, 0, "txtY2 empty: its parity read faults"},
        PowerCase{"2^2", "3", "1", "x", 16, 0, "txtY2 ends in no digit"},
        PowerCase{"(-8)^1", "3", "1", "1", 0, -8, "|b| = 1: no row, plain"},
        PowerCase{"0^(1/3)", "3", "1", "1", 0, 0, "a = 0: no row, plain"}));

TEST(RationalModeTest, WhenTheFieldsTurnItOn) {
  struct Row {
    const char* label;
    const char* imenilac;
    const char* y3;
    int error;  // of (-8)^(1/3): 0 in rational mode (row 2), 16 without it
  };
  const Row rows[] = {
      {"OK", "1", "3", 0},    // all conditions hold
      {"ok", "1", "3", 16},   // the caption must read exactly "OK"
      {"", "1", "3", 16},     //
      {"OK", "", "3", 16},    // txtImenilac empty
      {"OK", "1", "", 16},    // txtY3 empty
      {"OK", "3", "3", 16},   // equal fields
      {"OK", "1a", "3", 16},  // last character no digit
      {"OK", "1", "3 ", 16},  //
      {"OK", "21", "3", 0},   // only the last digit counts
  };
  for (const auto& r : rows) {
    FakeGraphWindow window;
    window.lblY3 = r.label;
    window.txtImenilac = r.imenilac;
    window.txtY3 = r.y3;
    window.txtY2 = "1";
    Evaluator ev(nullptr, &window);
    const double v = ev.Evaluate("(-8)^(1/3)", true);
    EXPECT_EQ(ev.Error(), r.error) << r.label << "|" << r.imenilac << "|" << r.y3;
    if (r.error == 0) {
      EXPECT_NEAR(v, -2, 1e-12);
    }
  }
}

TEST(RationalModeTest, FieldsAreReadOnEveryPower) {
  FakeGraphWindow window;
  Evaluator ev(nullptr, &window);
  ev.Evaluate("2*3", true);
  EXPECT_EQ(window.fieldReads, 0) << "no power, no read";
  ev.Evaluate("2^2", true);
  const int perPower = window.fieldReads;
  EXPECT_GT(perPower, 0);
  ev.Evaluate("2^2+3^2+4^2", true);
  EXPECT_EQ(window.fieldReads, perPower * 4);
  // In rational mode each power also reads txtY2.
  window.Rational("3", "1", "1");
  window.fieldReads = 0;
  ev.Evaluate("2^2", true);
  EXPECT_EQ(window.fieldReads, perPower + 1);
}

}  // namespace
}  // namespace velmora::expr
