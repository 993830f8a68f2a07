#include "graph/tablerows.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedformula.h"

namespace velmora::graph {
namespace {

using testing::BracketedNumber;
using testing::RecordingMessageBox;
using testing::ScriptedFormula;

constexpr double kInf = std::numeric_limits<double>::infinity();

std::vector<std::string> Row(const ValueTable& t, int row) {
  std::vector<std::string> out;
  for (int c = 0; c < t.Cols(); ++c) out.push_back(t.TextMatrix(row, c));
  return out;
}

// ---- Text forms ----------------------------------------------------------------

struct FormCase {
  const char* typed;
  TableLayout layout;
  const char* form;
};

class TableTextFormTest : public ::testing::TestWithParam<FormCase> {};

TEST_P(TableTextFormTest, Rewrites) {
  EXPECT_EQ(TableTextForm(GetParam().typed, GetParam().layout), GetParam().form);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, TableTextFormTest,
    ::testing::Values(FormCase{"exp(x)", TableLayout::Cartesian, "ep((x))"},         // exp goes through ep
                      FormCase{"Fix(X) + 1", TableLayout::Cartesian, "stl((x))+1"},  // fix keeps its X
                      FormCase{"{x+1}*[x-1]", TableLayout::Cartesian, "((x)+1)*((x)-1)"},  // brackets
                      FormCase{"sin(k)", TableLayout::Cartesian, "sin(k)"},                // K is not X here
                      FormCase{"SinK*x", TableLayout::Parametric, "sin(k)*x"},    // K is the variable
                      FormCase{"2 * sin [k]", TableLayout::Polar, "2*SIN(K)"}));  // polar: upper only

// ---- Cartesian rows --------------------------------------------------------------

// y = x * x with the derivative 2x at the pushed point.
std::optional<double> Square(std::string_view formula) {
  if (formula.rfind("diff(", 0) == 0) return std::nullopt;  // replaced below
  const double x = BracketedNumber(formula);
  return x * x;
}

struct Fixture {
  RecordingMessageBox messages;
  ScriptedFormula engine;
  TableRows rows{engine, messages};
  ValueTable table;
  explicit Fixture(ScriptedFormula::Script script) : engine(std::move(script)) {}
};

TEST(CartesianTable, RowsOfXValueAndDerivative) {
  Fixture f([&f](std::string_view formula) -> std::optional<double> {
    if (formula.rfind("diff(", 0) == 0) return 2 * f.engine.Pushes().back();
    return Square(formula);
  });
  ASSERT_TRUE(f.rows.CartesianTable(f.table, "X*X", -2, 2, 1, 3, false));
  ASSERT_EQ(f.table.Rows(), 6);  // header and five rows
  EXPECT_EQ(Row(f.table, 0), (std::vector<std::string>{"X", "Y", "Y'"}));
  EXPECT_EQ(Row(f.table, 1), (std::vector<std::string>{"-2", "4", "-4"}));
  EXPECT_EQ(Row(f.table, 5), (std::vector<std::string>{"2", "4", "4"}));
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST(CartesianTable, CallOrderEndsEachUseWithPopAll) {
  Fixture f([&f](std::string_view formula) -> std::optional<double> {
    if (formula.rfind("diff(", 0) == 0) return 2 * f.engine.Pushes().back();
    return Square(formula);
  });
  f.rows.CartesianTable(f.table, "X*X", 1.5, 1.5, 1, 3, false);
  EXPECT_EQ(f.engine.Sent(), (std::vector<std::string>{"(1.5)*(1.5)", "PopAll()", "Push(2000)", "Push(1.5)",
                                                       "diff((x)*(x))", "PopAll()"}));
}

struct LimitCase {
  const char* name;
  double y;
  double d;
  const char* cellY;
  const char* cellD;
};

class CartesianLimitTest : public ::testing::TestWithParam<LimitCase> {};

TEST_P(CartesianLimitTest, ErrorCells) {
  const auto& c = GetParam();
  Fixture f([&c](std::string_view formula) -> std::optional<double> {
    return formula.rfind("diff(", 0) == 0 ? c.d : c.y;
  });
  ASSERT_TRUE(f.rows.CartesianTable(f.table, "X", 0, 0, 1, 5, false));
  EXPECT_EQ(f.table.TextMatrix(1, 1), c.cellY);
  EXPECT_EQ(f.table.TextMatrix(1, 2), c.cellD);
}

INSTANTIATE_TEST_SUITE_P(
    Limits, CartesianLimitTest,
    ::testing::Values(LimitCase{"AtLimit", 300, 1, "300", "1"},                    // 300 is shown
                      LimitCase{"AboveLimit", 300.0001, 1, "Error", "Error"},      // Y over: both cells
                      LimitCase{"NegativeAbove", -300.0001, 1, "Error", "Error"},  // sign does not matter
                      LimitCase{"DerivativeOver", 1, 300.0001, "1", "Error"},      // D over: third only
                      LimitCase{"DerivativeAtLimit", 1, -300, "1", "-300"},        // -300 shown
                      LimitCase{"DerivativeInf", 1, kInf, "1", "Error"},           // non-finite D: third only
                      LimitCase{"DerivativeNaN", 2, std::nan(""), "2", "Error"},   // indefinite D
                      LimitCase{"ValueInf", kInf, 1, "Error", "Error"},            // non-finite Y: both
                      LimitCase{"Cube7", 343, 147, "Error", "Error"}),             // x^3 at 7, on purpose
    [](const auto& row) { return std::string(row.param.name); });

TEST(CartesianTable, NamesWithoutDerivativeShowErrorInTheThirdColumn) {
  for (const char* function : {"Blanc(X)", "gamma(x)", "Four(X)"}) {
    Fixture f([](std::string_view) -> std::optional<double> { return 1; });
    ASSERT_TRUE(f.rows.CartesianTable(f.table, function, 1, 1, 1, 3, false));
    EXPECT_EQ(f.table.TextMatrix(1, 1), "1") << function;
    EXPECT_EQ(f.table.TextMatrix(1, 2), "Error") << function;
  }
}

TEST(CartesianTable, RefusedKShowsTheMessageAndEmptiesTheGrid) {
  Fixture f([](std::string_view) -> std::optional<double> { return 1; });
  f.table = ValueTable(5, 3);
  EXPECT_FALSE(f.rows.CartesianTable(f.table, "sin(k)", -5, 5, 1, 3, true));
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(
      f.messages.Boxes()[0].text,
      "Expression included a variable K instead of X for Cartesian Functions. Please edit the equation and "
      "try again.");
  EXPECT_EQ(f.messages.Boxes()[0].title, "Error Calculating Values");
  EXPECT_EQ(f.messages.Boxes()[0].icon, platform::MsgIcon::Critical);
  EXPECT_EQ(f.table.Rows(), 2);
  EXPECT_EQ(Row(f.table, 0), (std::vector<std::string>{"X", "Y", "Y'"}));
  EXPECT_TRUE(f.engine.Sent().empty());
}

TEST(CartesianTable, ExpIsAcceptedAndComputedThroughEp) {
  Fixture f([](std::string_view formula) -> std::optional<double> {
    return formula.rfind("diff(", 0) == 0 ? 1 : std::exp(BracketedNumber(formula));
  });
  ASSERT_TRUE(f.rows.CartesianTable(f.table, "exp(x)", 0, 0, 1, 3, false));
  EXPECT_EQ(f.engine.Sent()[0], "ep((0))");
  EXPECT_EQ(f.table.TextMatrix(1, 1), "1");
}

TEST(CartesianTable, MinAboveMaxLeavesTheHeaderAlone) {
  Fixture f([](std::string_view) -> std::optional<double> { return 1; });
  ASSERT_TRUE(f.rows.CartesianTable(f.table, "X", 5, -5, 1, 3, false));
  EXPECT_EQ(f.table.Rows(), 1);
  EXPECT_EQ(Row(f.table, 0), (std::vector<std::string>{"X", "Y", "Y'"}));
}

TEST(CartesianTable, AFailureResetsTheGridAndLosesTheRows) {
  Fixture f([](std::string_view formula) -> std::optional<double> {
    if (formula.rfind("diff(", 0) == 0) return 0.5;
    if (BracketedNumber(formula) == 2) return std::nullopt;  // the engine faults at x = 2
    return 1;
  });
  EXPECT_FALSE(f.rows.CartesianTable(f.table, "X", 0, 5, 1, 3, false));
  EXPECT_EQ(f.table.Rows(), 2);
  EXPECT_EQ(f.table.TextMatrix(1, 0), "");
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST(CartesianTable, ZeroStepOverflowsTheRowCounterAndResets) {
  int values = 0;
  Fixture f([&values](std::string_view formula) -> std::optional<double> {
    if (formula.rfind("diff(", 0) != 0) ++values;
    return 1;
  });
  EXPECT_FALSE(f.rows.CartesianTable(f.table, "X", 0, 1, 0, 3, false));
  EXPECT_EQ(values, 32767);  // the 32768th row overflows
  EXPECT_EQ(f.table.Rows(), 2);
}

TEST(CartesianTable, FourteenDecimalsShowAtMostFifteenDigits) {
  Fixture f([](std::string_view formula) -> std::optional<double> {
    return formula.rfind("diff(", 0) == 0 ? 0.1 : 1.0 / 3.0;
  });
  ASSERT_TRUE(f.rows.CartesianTable(f.table, "X", 0, 0, 1, 14, false));
  EXPECT_EQ(f.table.TextMatrix(1, 1), "0.33333333333333");
}

TEST(CartesianTable, XCellIsRoundedToTheDecimals) {
  Fixture f([](std::string_view) -> std::optional<double> { return 1; });
  ASSERT_TRUE(f.rows.CartesianTable(f.table, "X", 0.12345, 0.2, 1, 3, false));
  EXPECT_EQ(f.table.TextMatrix(1, 0), "0.123");
  EXPECT_EQ(f.engine.Sent()[0], "(0.12345)");  // the formula takes the full value
}

// ---- Parametric rows --------------------------------------------------------------

TEST(ParametricTable, CrossedTestsAndOrder) {
  // X (K) = 20000 at K = 1 (over the limit), Y (K) = 5 everywhere.
  Fixture f([](std::string_view formula) -> std::optional<double> {
    if (formula.find("x") == 0) return BracketedNumber(formula) == 1 ? 20000 : 3;
    return 5;
  });
  ASSERT_TRUE(f.rows.ParametricTable(f.table, "5+0*k", "x+K", 0, 1, 1, 3));
  EXPECT_EQ(Row(f.table, 0), (std::vector<std::string>{"K", "X (K)", "Y (K)"}));
  EXPECT_EQ(Row(f.table, 1), (std::vector<std::string>{"0", "3", "5"}));
  // X over the limit shows in the Y cell, and the X cell still shows X.
  EXPECT_EQ(Row(f.table, 2), (std::vector<std::string>{"1", "20000", "Error"}));
  EXPECT_EQ(f.engine.Sent()[0], "x+(0)");  // X first
  EXPECT_EQ(f.engine.Sent()[2], "5+0*(0)");
}

TEST(ParametricTable, YOverLimitHidesTheXCell) {
  Fixture f([](std::string_view formula) -> std::optional<double> {
    return formula.rfind("2", 0) == 0 ? 10000.5 : 1;
  });
  ASSERT_TRUE(f.rows.ParametricTable(f.table, "2*K", "K", -9, 9, 9, 3));
  ASSERT_EQ(f.table.Rows(), 4);
  EXPECT_EQ(Row(f.table, 1), (std::vector<std::string>{"-9", "Error", "10000.5"}));
}

TEST(ParametricTable, FailureResetsToTheParametricLayout) {
  Fixture f([](std::string_view) -> std::optional<double> { return std::nullopt; });
  EXPECT_FALSE(f.rows.ParametricTable(f.table, "K", "K", -9, 9, 1, 3));
  EXPECT_EQ(f.table.Rows(), 2);
  EXPECT_EQ(f.table.TextMatrix(0, 1), "X (K)");
}

// ---- Polar rows ----------------------------------------------------------------------

TEST(PolarTable, ThirteenAnglesAndTheRepeatedXColumn) {
  Fixture f([](std::string_view) -> std::optional<double> { return 2; });
  ASSERT_TRUE(f.rows.PolarTable(f.table, "2", 3));
  ASSERT_EQ(f.table.Rows(), 14);
  EXPECT_EQ(Row(f.table, 0), (std::vector<std::string>{"\xC3\xB8", "R", "X", "Y"}));
  const char* angles[] = {"0",     "pi/6",  "pi/3",  "pi/2",  "2pi/3",  "5pi/6", "pi",
                          "7pi/6", "4pi/3", "3pi/2", "5pi/3", "11pi/6", "2pi"};
  for (int i = 0; i < 13; ++i) EXPECT_EQ(f.table.TextMatrix(i + 1, 0), angles[i]);
  EXPECT_EQ(Row(f.table, 1), (std::vector<std::string>{"0", "2", "2", "2"}));
  // At pi/2 X is 0 and Y is 2, but the Y column shows X.
  EXPECT_EQ(Row(f.table, 4), (std::vector<std::string>{"pi/2", "2", "0", "0"}));
  EXPECT_EQ(f.engine.Sent()[0], "2");  // the trial at K = 0
  EXPECT_EQ(f.engine.Sent()[2], "2");  // no K to replace
}

TEST(PolarTable, AngleTextReachesTheFormula) {
  Fixture f([](std::string_view) -> std::optional<double> { return 1; });
  ASSERT_TRUE(f.rows.PolarTable(f.table, "sin k", 3));
  EXPECT_EQ(f.engine.Sent()[0], "SIN(0)");
  EXPECT_EQ(f.engine.Sent()[4], "SIN(1*pi/6)");
}

TEST(PolarTable, RadiusOverLimitIsError) {
  Fixture f([](std::string_view) -> std::optional<double> { return 301; });
  ASSERT_TRUE(f.rows.PolarTable(f.table, "301", 3));
  EXPECT_EQ(Row(f.table, 1), (std::vector<std::string>{"0", "Error", "Error", "301"}));
}

TEST(PolarTable, AFailedTrialLeavesTheEmptyPolarGrid) {
  Fixture f([](std::string_view) -> std::optional<double> { return std::nullopt; });
  f.table = ValueTable(6, 3);
  EXPECT_FALSE(f.rows.PolarTable(f.table, "ln(k)", 3));
  EXPECT_EQ(f.table.Rows(), 2);
  EXPECT_EQ(f.table.Cols(), 4);
  EXPECT_EQ(f.engine.Sent().size(), 1u);
}

}  // namespace
}  // namespace velmora::graph
