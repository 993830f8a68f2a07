#pragma once

#include <string>
#include <string_view>

#include "expr/formulacontrol.h"

namespace velmora::graph {

// A tangent or normal written as a function of x, the way the graph window
// draws it: the line's text for txtY, the slope the history names, and for a
// vertical line the X that txtX takes (the line is then drawn as X (K) = x0).
struct LineText {
  std::string text;
  std::string slope;  // Slopka
  bool vertical = false;
  std::string verticalX;  // the X of a vertical line, as text
};

// The line texts of the graph window's tangent and normal. The function is
// brought into the tool form ("x" as "(x)"); its value and its derivative at
// the point come from the formula engine ("Push(2000)", "Push(x0)",
// "diff(f)"), each followed by "PopAll()". An evaluation that fails gives a
// value that is not finite, and then the long form of the line stays.
class TangentLines {
 public:
  // `DrawTang`: the tangent of a Cartesian function at x0. With finite
  // values "m*x-b" or "m*x + b" (b rounded to 6 places); a slope that rounds
  // to 1 at two places drops its coefficient ("*x-1").
  static LineText DrawTang(expr::FormulaControl& engine, std::string_view function, double x0);
  // `DrawNormal`: the normal at x0. A slope under 0.001 in size gives the
  // vertical line "x" through x0; else "n*x + b" or "n*x - b".
  static LineText DrawNormal(expr::FormulaControl& engine, std::string_view function, double x0);
  // `unesixPara`, `unesixParaNorm`: the tangent or the normal of the
  // parametric pair Y (K), X (K) at k, Y through `engineY` and X through
  // `engineX`, every value rounded to 4 places. A dX of 0 (and for the
  // normal a dY of 0) gives the vertical line through X (k).
  static LineText Parametric(expr::FormulaControl& engineY, expr::FormulaControl& engineX, std::string_view y,
                             std::string_view x, double k, bool normal);

  // The function's value at a point through the engine, and its derivative
  // there; a failure gives NaN. `toolForm` is the text with "(x)".
  static double ValueAt(expr::FormulaControl& engine, std::string_view toolForm, double at);
  static double SlopeAt(expr::FormulaControl& engine, std::string_view toolForm, double at);
};

}  // namespace velmora::graph
