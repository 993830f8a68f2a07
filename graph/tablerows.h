#pragma once

#include <string>
#include <string_view>

#include "expr/formulacontrol.h"
#include "graph/valuetable.h"
#include "platform/messagebox.h"

namespace velmora::graph {

// The three layouts of a value table.
enum class TableLayout { Cartesian, Parametric, Polar };

// Clears the grid to its empty layout: the header row and one empty row.
// Cartesian "X", "Y", "Y'"; parametric "K", "X (K)", "Y (K)"; polar "ø",
// "R", "X", "Y".
void ResetTable(ValueTable& table, TableLayout layout);

// The text of a function as the row loops evaluate it: " " removed and the
// brackets mapped; then for a Cartesian or parametric text, upper case with
// "EXP" to "EP", "FIX" to "STL" and the variable (X, or K) to "(X)" or
// "(K)", and last lower case. A polar text gets only the first five
// replacements and is then upper-cased.
std::string TableTextForm(std::string_view typed, TableLayout layout);

// The row loops of a value table, written once for every window that fills
// one: each turns a function into rows of arguments and values through the
// formula control (plain value, then "PopAll()"). A row loop runs under a
// trap: any failure inside it (a failed evaluation, a value the rounding
// cannot take, the 32768th row) resets the grid to the empty layout of its
// type, drops the rows made so far, shows no message and returns false.
class TableRows {
 public:
  // Values beyond these show "Error".
  static constexpr double kCartesianLimit = 300;
  static constexpr double kParametricLimit = 10000;
  static constexpr double kPolarLimit = 300;
  // 0.5235987756: pi / 6 as the polar table stores it, with ten decimals.
  static constexpr double kPolarAngleStep = 0.5235987756;

  TableRows(expr::FormulaControl& evaluator, platform::MessageBox& messages)
      : evaluator_(evaluator), messages_(messages) {}

  // X from xmin to xmax by step (repeated addition), rows X, Y and the
  // derivative Y'. `refuseK` is the caller's test for a K where an X
  // belongs: the loop then shows "Expression included a variable K ..."
  // (critical, "Error Calculating Values"), empties the grid and stops.
  bool CartesianTable(ValueTable& table, std::string_view function, double xmin, double xmax, double step,
                      int decimals, bool refuseK);
  // K from kmin to kmax by step, rows K, X (K) and Y (K), the two value
  // tests crossed.
  bool ParametricTable(ValueTable& table, std::string_view yFunction, std::string_view xFunction, double kmin,
                       double kmax, double step, int decimals);
  // Thirteen fixed angles from 0 to 2pi, rows ø, R, X and Y, where the Y
  // column repeats the text of X.
  bool PolarTable(ValueTable& table, std::string_view rFunction, int decimals);

  // True when the derivative column of this function always shows "Error":
  // its upper-cased text holds "BLANC", "GAMMA" or "FOUR".
  static bool NoDerivative(std::string_view function);

 private:
  double Value(const std::string& formula);
  double Derivative(const std::string& at, const std::string& function);

  expr::FormulaControl& evaluator_;
  platform::MessageBox& messages_;
};

}  // namespace velmora::graph
