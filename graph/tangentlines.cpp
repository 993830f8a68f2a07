#include "graph/tangentlines.h"

#include <cmath>
#include <limits>

#include "expr/fault.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"

namespace velmora::graph {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
// The smallest slope whose normal is still drawn as a slanted line.
constexpr double kFlatSlope = 0.001;

std::string Text(double value) { return expr::NumberToText(value); }

// Round(v, n) of a value that may not be finite: such a value stays as it is.
double Round(double value, int places) {
  if (!std::isfinite(value)) return value;
  try {
    return expr::RoundTo(value, places);
  } catch (const expr::Fault&) {
    return kNaN;
  }
}

// Runs one formula; a failure gives NaN. "PopAll()" follows in every case.
double Run(expr::FormulaControl& engine, const std::string& formula) {
  double value = kNaN;
  try {
    engine.SetFormula(formula);
    value = engine.Result();
  } catch (const expr::Fault&) {
    value = kNaN;
  }
  try {
    engine.SetFormula("PopAll()");
  } catch (const expr::Fault&) {
  }
  return value;
}

}  // namespace

double TangentLines::ValueAt(expr::FormulaControl& engine, std::string_view toolForm, double at) {
  return Run(engine, expr::ReplaceAll(toolForm, "x", Text(at)));
}

double TangentLines::SlopeAt(expr::FormulaControl& engine, std::string_view toolForm, double at) {
  try {
    // The engine's working argument first, then the point.
    engine.SetFormula("Push(2000)");
    engine.SetFormula("Push(" + Text(at) + ")");
  } catch (const expr::Fault&) {
    return Run(engine, "PopAll()"), kNaN;
  }
  return Run(engine, "diff(" + std::string(toolForm) + ")");
}

LineText TangentLines::DrawTang(expr::FormulaControl& engine, std::string_view function, double x0) {
  const std::string f = expr::ToolTextForm(function);
  const double y0 = Round(ValueAt(engine, f, x0), 5);
  const double m = Round(SlopeAt(engine, f, x0), 5);
  LineText line;
  line.slope = Text(m);
  // The long form, kept when a value is not finite.
  line.text = Text(m) + "*" + "(x-(" + Text(x0) + ")) " + "+(" + Text(y0) + ")";
  if (std::isfinite(y0) && std::isfinite(m)) {
    const double b = Round(y0 + x0 * (-m), 6);
    // A slope of 1 (at two places) loses its coefficient: the text starts
    // with the asterisk.
    const std::string lead = Round(m, 2) == 1 ? "" : Text(m);
    line.text = b < 0 ? lead + "*x-" + Text(std::fabs(b)) : lead + "*x + " + Text(b);
  }
  return line;
}

LineText TangentLines::DrawNormal(expr::FormulaControl& engine, std::string_view function, double x0) {
  const std::string f = expr::ToolTextForm(function);
  const double y0 = Round(ValueAt(engine, f, x0), 5);
  const double m = Round(SlopeAt(engine, f, x0), 5);
  LineText line;
  double n = 0;
  double b = 0;
  if (m != 0) {
    n = Round(1 / m * -1, 6);
    line.text = Text(n) + "*x-(" + Text(n) + "*" + Text(x0) + "-(" + Text(y0) + "))";
    b = Round(y0 - n * x0, 6);
  }
  line.slope = Text(n);
  if (std::fabs(m) < kFlatSlope || m == 0) {
    // A horizontal tangent: the normal is the vertical line x = x0.
    line.text = "x";
    line.vertical = true;
    line.verticalX = Text(x0);
    return line;
  }
  if (std::isfinite(y0) && std::isfinite(m) && std::isfinite(n) && std::isfinite(b))
    line.text = b >= 0 ? Text(n) + "*x + " + Text(b) : Text(n) + "*x - " + Text(std::fabs(b));
  return line;
}

LineText TangentLines::Parametric(expr::FormulaControl& engineY, expr::FormulaControl& engineX,
                                  std::string_view y, std::string_view x, double k, bool normal) {
  const std::string fy = expr::ToolTextForm(y);
  const std::string fx = expr::ToolTextForm(x);
  const double yk = Round(ValueAt(engineY, fy, k), 4);
  const double dy = Round(SlopeAt(engineY, fy, k), 4);
  const double xk = Round(ValueAt(engineX, fx, k), 4);
  const double dx = Round(SlopeAt(engineX, fx, k), 4);
  LineText line;
  if (dx == 0 || (normal && dy == 0)) {
    line.text = "x";
    line.slope = "0";
    line.vertical = true;
    line.verticalX = Text(xk);
    return line;
  }
  double m = Round(dy / dx, 4);
  if (normal) m = Round(-dx / dy, 4);
  line.slope = Text(m);
  if (!normal) {
    const double b = Round(m * xk - yk, 4);
    line.text = b < 0   ? Text(m) + "*x+" + Text(std::fabs(b))
                : b > 0 ? Text(m) + "*x-" + Text(b)
                        : Text(m) + "*x";
  } else {
    const double b = Round(yk - m * xk, 4);
    line.text = b < 0   ? Text(m) + "*x-" + Text(std::fabs(b))
                : b > 0 ? Text(m) + "*x+" + Text(b)
                        : Text(m) + "*x";
  }
  return line;
}

}  // namespace velmora::graph
