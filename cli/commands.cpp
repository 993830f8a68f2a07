#include <istream>

#include "cli/analysiscommand.h"
#include "cli/cnumbercommand.h"
#include "cli/command.h"
#include "cli/complexcommand.h"
#include "cli/enginecommand.h"
#include "cli/evaluatorcommand.h"
#include "cli/geocommand.h"
#include "cli/mathpadcommand.h"
#include "cli/matrixcommand.h"
#include "cli/normalisecommand.h"
#include "cli/numbercommand.h"
#include "cli/plotcommand.h"
#include "cli/printtextcommand.h"

namespace velmora::cli {

const std::vector<Command>& Commands() {
  static const std::vector<Command> table = {
      {"number", "number totext|tonumber|roundto N|toshort: numeric text conventions, one line each",
       RunNumber},
      {"complex", "complex OP Z1 [Z2]: one Complex Calculator operation on operand texts such as 3+j-4",
       RunComplex},
      {"evaluator",
       "evaluator [--trial] [--no-window] [--field NAME=VALUE]...: the text evaluator, one line each",
       RunEvaluator},
      {"normalise",
       "normalise cleanup|evalform|trial|zagrade|shortforms|tangent|zamenisve|tooltext: one chain, "
       "one line each",
       RunNormalise},
      {"geo",
       "geo FIGURE CASE VALUES... [--yes|--no] [--jpeg FILE] [--bmp FILE] [--pdf FILE]: one solver of the "
       "Geometry Calculator, its figure saved",
       RunGeo},
      {"convert",
       "convert angles|areas|lengths FROM TO VALUE, or convert degrees DEG MIN SEC: units converter",
       RunConvert},
      {"base", "base INDEX VALUE: a result in base 10, 2, 16 or 8 (INDEX 0, 1, 2, 3)", RunBase},
      {"engine", "engine: formulas to the formula engine, one a line; prints ok, the result or fault",
       RunEngine},
      {"cnumber",
       "cnumber: complex numbers of the matrix side, one line each (RECT/POLAR text or an operation)",
       RunCNumber},
      {"matrix",
       "matrix OP A.mcf [B.mcf] [--scalar T] [--precision N] [--zeros] [--html F]: one matrix calculation",
       RunMatrix},
      {"mathpad",
       "mathpad convert IN OUT | mathpad text IN | mathpad print IN OUT.pdf: a MathPad document (.rtf or "
       "text) converted, printed as text, or printed to PDF with the stored margins",
       RunMathPad},
      {"plot",
       "plot [--type T] --y TEXT [--x TEXT] [--zoom Z] [--right N] ... [--png F] [--trace] [--table] "
       "[--status] [--jpeg F [--quality Q]] [--bmp F] [--pdf F]: "
       "a headless graph window",
       RunPlot},
      {"table",
       "table [--type T] --y TEXT [--x TEXT] [--xmin T] [--xmax T] [--step T] [--accuracy N] [--text] "
       "[--html F]: a value table",
       RunTable},
      {"zeros", "zeros FUNCTION (--guess G | --range XMIN XMAX) [--accurate]: zeros by the Newton search",
       RunZeros},
      {"intersect", "intersect F1 F2 (--guess G | --range XMIN XMAX) [--accurate]: where two functions meet",
       RunIntersect},
      {"point", "point FUNCTION (--x X | --y Y --range XMIN XMAX) [--accurate]: Y at X, or the X of a Y",
       RunPoint},
      {"integral",
       "integral FUNCTION MIN MAX [--segments N] [--trapezoid] [--average] [--accuracy N], or integral "
       "--derivative FUNCTION POINT: integral, average, derivative",
       RunIntegral},
      {"critical", "critical FUNCTION [XMIN XMAX] [--accurate]: minima and maxima in a range", RunCritical},
      {"evaluate", "evaluate: the Evaluator window, one expression a line (a tab and a value for X optional)",
       RunEvaluate},
      {"print-text",
       "print-text IN OUT.pdf [--settings F] [--html]: a text printed to PDF with the stored margins",
       RunPrintText},
  };
  return table;
}

bool ReadLine(std::istream& in, std::string& line) {
  if (!std::getline(in, line)) return false;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return true;
}

}  // namespace velmora::cli
