#include "graph/tablerows.h"

#include <cmath>
#include <string>

#include "base/asciicase.h"
#include "expr/fault.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"

namespace velmora::graph {
namespace {

constexpr std::string_view kRefuseKText =
    "Expression included a variable K instead of X for Cartesian Functions. Please edit the equation and try "
    "again.";
constexpr std::string_view kRefuseKTitle = "Error Calculating Values";

struct Pair {
  std::string_view find;
  std::string_view replace;
};

// In front of every row loop: blanks out, brackets to round ones.
constexpr Pair kBrackets[] = {{" ", ""}, {"{", "("}, {"}", ")"}, {"[", "("}, {"]", ")"}};
// Then, on upper-cased text, the names that hold the letter of a variable.
constexpr Pair kNames[] = {{"EXP", "EP"}, {"FIX", "STL"}};

// The thirteen angles of the polar table.
constexpr std::string_view kPolarAngles[13] = {"0",     "pi/6",  "pi/3",  "pi/2",  "2pi/3",  "5pi/6", "pi",
                                               "7pi/6", "4pi/3", "3pi/2", "5pi/3", "11pi/6", "2pi"};

constexpr int kLastRow = 32767;  // the row counter is a signed 16-bit number

// Rounding as the tables do it: a value that is not finite passes as it is,
// so that the tests on its text can see it.
double RoundKeep(double value, int decimals) {
  if (!std::isfinite(value)) return value;
  return expr::RoundTo(value, decimals);
}

double ValOfText(double value) { return expr::TextToNumber(expr::NumberToText(value)); }

void SetHeader(ValueTable& table, TableLayout layout) {
  static constexpr std::string_view kCartesian[] = {"X", "Y", "Y'"};
  static constexpr std::string_view kParametric[] = {"K", "X (K)", "Y (K)"};
  static constexpr std::string_view kPolar[] = {"\xC3\xB8", "R", "X", "Y"};
  const auto put = [&table](const auto& names) {
    table.SetCols(static_cast<int>(std::size(names)));
    table.SetRows(2);
    for (int c = 0; c < table.Cols(); ++c) table.SetTextMatrix(0, c, names[c]);
  };
  switch (layout) {
    case TableLayout::Cartesian: put(kCartesian); break;
    case TableLayout::Parametric: put(kParametric); break;
    case TableLayout::Polar: put(kPolar); break;
  }
}

// One more row: the counter overflows at the 32768th.
void NextRow(ValueTable& table, int& counter) {
  if (counter >= kLastRow) throw expr::Fault(expr::Fault::kOverflow);
  ++counter;
  table.SetRows(table.Rows() + 1);
}

bool Loops(double x, double end, double step) { return step >= 0 ? x <= end : x >= end; }

}  // namespace

void ResetTable(ValueTable& table, TableLayout layout) {
  table.SetRows(0);
  SetHeader(table, layout);
}

std::string TableTextForm(std::string_view typed, TableLayout layout) {
  std::string text(typed);
  for (const auto& p : kBrackets) expr::ReplaceAllInPlace(text, p.find, p.replace);
  text = base::UpperCase(text);
  if (layout == TableLayout::Polar) return text;
  for (const auto& p : kNames) expr::ReplaceAllInPlace(text, p.find, p.replace);
  if (layout == TableLayout::Cartesian) {
    expr::ReplaceAllInPlace(text, "X", "(X)");
  } else {
    expr::ReplaceAllInPlace(text, "K", "(K)");
  }
  return base::LowerCase(text);
}

bool TableRows::NoDerivative(std::string_view function) {
  const std::string upper = base::UpperCase(function);
  return upper.find("BLANC") != std::string::npos || upper.find("GAMMA") != std::string::npos ||
         upper.find("FOUR") != std::string::npos;
}

double TableRows::Value(const std::string& formula) {
  evaluator_.SetFormula(formula);
  const double value = evaluator_.Result();
  evaluator_.SetFormula("PopAll()");
  return value;
}

double TableRows::Derivative(const std::string& at, const std::string& function) {
  evaluator_.SetFormula("Push(2000)");
  evaluator_.SetFormula("Push(" + at + ")");
  evaluator_.SetFormula("diff(" + function + ")");
  const double value = evaluator_.Result();
  evaluator_.SetFormula("PopAll()");
  return value;
}

bool TableRows::CartesianTable(ValueTable& table, std::string_view function, double xmin, double xmax,
                               double step, int decimals, bool refuseK) {
  if (refuseK) {
    messages_.Show(std::string(kRefuseKText), std::string(kRefuseKTitle), platform::MsgIcon::Critical);
    ResetTable(table, TableLayout::Cartesian);
    return false;
  }
  const bool noDerivative = NoDerivative(function);
  try {
    SetHeader(table, TableLayout::Cartesian);
    const std::string text = TableTextForm(function, TableLayout::Cartesian);
    int counter = 1;
    for (double x = xmin; Loops(x, xmax, step); x += step) {
      const std::string xText = expr::NumberToText(x);
      const double y = RoundKeep(Value(expr::ReplaceAll(text, "x", xText)), decimals);
      const double d = RoundKeep(Derivative(xText, text), decimals);
      table.SetTextMatrix(counter, 0, expr::NumberToText(expr::RoundTo(x, decimals)));
      const bool yBad = std::fabs(ValOfText(y)) > kCartesianLimit || expr::PrcniFunc(y);
      table.SetTextMatrix(counter, 1, yBad ? "Error" : expr::NumberToText(y));
      const bool dBad = std::fabs(y) > kCartesianLimit || std::fabs(d) > kCartesianLimit ||
                        expr::PrcniFunc(d) || noDerivative;
      table.SetTextMatrix(counter, 2, dBad ? "Error" : expr::NumberToText(d));
      NextRow(table, counter);
    }
    table.SetRows(table.Rows() - 1);
    return true;
  } catch (const expr::Fault&) {
    ResetTable(table, TableLayout::Cartesian);
    return false;
  }
}

bool TableRows::ParametricTable(ValueTable& table, std::string_view yFunction, std::string_view xFunction,
                                double kmin, double kmax, double step, int decimals) {
  try {
    SetHeader(table, TableLayout::Parametric);
    const std::string yText = TableTextForm(yFunction, TableLayout::Parametric);
    const std::string xText = TableTextForm(xFunction, TableLayout::Parametric);
    int counter = 1;
    for (double k = kmin; Loops(k, kmax, step); k += step) {
      const std::string kText = expr::NumberToText(k);
      const double x = RoundKeep(Value(expr::ReplaceAll(xText, "k", kText)), decimals);
      const double y = RoundKeep(Value(expr::ReplaceAll(yText, "k", kText)), decimals);
      table.SetTextMatrix(counter, 0, expr::NumberToText(expr::RoundTo(k, decimals)));
      // The tests are crossed: each cell follows the other value's test.
      const bool yBad = std::fabs(y) > kParametricLimit || expr::PrcniFunc(y);
      const bool xBad = std::fabs(x) > kParametricLimit || expr::PrcniFunc(x);
      table.SetTextMatrix(counter, 1, yBad ? "Error" : expr::NumberToText(x));
      table.SetTextMatrix(counter, 2, xBad ? "Error" : expr::NumberToText(y));
      NextRow(table, counter);
    }
    table.SetRows(table.Rows() - 1);
    return true;
  } catch (const expr::Fault&) {
    ResetTable(table, TableLayout::Parametric);
    return false;
  }
}

bool TableRows::PolarTable(ValueTable& table, std::string_view rFunction, int decimals) {
  try {
    const std::string text = TableTextForm(rFunction, TableLayout::Polar);
    // A trial at K = 0 lets a bad function fail before the grid is touched.
    Value(expr::ReplaceAll(text, "K", "(0)"));
    SetHeader(table, TableLayout::Polar);
    int counter = 1;
    for (int i = 0; i <= 12; ++i) {
      const double r =
          RoundKeep(Value(expr::ReplaceAll(text, "K", "(" + std::to_string(i) + "*pi/6)")), decimals);
      table.SetTextMatrix(counter, 0, kPolarAngles[i]);
      table.SetTextMatrix(counter, 1, std::fabs(r) > kPolarLimit ? "Error" : expr::NumberToText(r));
      const double x = RoundKeep(r * std::cos(i * kPolarAngleStep), decimals);
      table.SetTextMatrix(counter, 2, std::fabs(x) > kPolarLimit ? "Error" : expr::NumberToText(x));
      const double y = RoundKeep(r * std::sin(i * kPolarAngleStep), decimals);
      // The Y column shows the text of X: the table has always done so.
      table.SetTextMatrix(counter, 3, std::fabs(y) > kPolarLimit ? "Error" : expr::NumberToText(x));
      NextRow(table, counter);
    }
    table.SetRows(table.Rows() - 1);
    return true;
  } catch (const expr::Fault&) {
    ResetTable(table, TableLayout::Polar);
    return false;
  }
}

}  // namespace velmora::graph
