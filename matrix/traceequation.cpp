#include "matrix/traceequation.h"

#include <cstdlib>

#include "complex/complexnumber.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::matrix {
namespace {

using complex::ComplexNumber;

ComplexNumber Cell(const Grid& grid, int r, int c) {
  ComplexNumber z;
  z.SetRectText(grid.TextMatrix(r, c));
  return z;
}

std::string Sign(std::int64_t x) { return x < 0 ? "-" : x > 0 ? "+" : ""; }

std::string Abs(std::int64_t x) { return std::to_string(x < 0 ? -x : x); }

// A complex coefficient as "re" + sign + "j" + |im|.
std::string Parts(std::int64_t re, std::int64_t im) { return std::to_string(re) + Sign(im) + "j" + Abs(im); }

double ValOf(const std::string& text) {
  try {
    return expr::TextToNumber(text);
  } catch (const expr::Fault&) {
    return 0;
  }
}

// The product of two cells, its parts rounded to integers.
void AddProduct(const Grid& grid, int r1, int c1, int r2, int c2, int sign, EquationCoefficients& k) {
  ComplexNumber p;
  if (!p.Multiply(Cell(grid, r1, c1), Cell(grid, r2, c2))) throw expr::Fault(expr::Fault::kOverflow);
  k.mr += sign * static_cast<std::int64_t>(expr::ToLong(p.Real()));
  k.mi += sign * static_cast<std::int64_t>(expr::ToLong(p.Imaginary()));
}

}  // namespace

bool HoldsImaginaryUnit(const std::string& text) { return text.find_first_of("jJiI") != std::string::npos; }

TraceSum TraceCells(const Grid& grid) {
  TraceSum sum;
  for (int i = 0; i < grid.Rows(); ++i) {
    const ComplexNumber z = Cell(grid, i, i);
    if (z.ParseOverflowed()) sum.held = false;
    sum.re += z.Real();
    sum.im += z.Imaginary();
  }
  return sum;
}

std::string TraceValueText(const TraceSum& trace) {
  const std::string re = expr::NumberToText(trace.re);
  if (trace.im == 0) return re;
  if (trace.im > 0) return re + " + j" + expr::NumberToText(trace.im);
  return re + " - j" + expr::NumberToText(-trace.im);
}

std::string TraceMessage(const std::string& which, const TraceSum& trace) {
  return "Trace Matrix " + which + ":\r\n" + TraceValueText(trace);
}

EquationCoefficients CoefficientsOf(const Grid& grid) {
  EquationCoefficients k;
  const TraceSum trace = TraceCells(grid);
  k.tr = expr::ToLong(trace.re);
  k.ti = expr::ToLong(trace.im);
  if (grid.Rows() == 3) {
    // The principal minors (0,1), (0,2), (1,2).
    AddProduct(grid, 0, 0, 1, 1, 1, k);
    AddProduct(grid, 0, 1, 1, 0, -1, k);
    AddProduct(grid, 0, 0, 2, 2, 1, k);
    AddProduct(grid, 0, 2, 2, 0, -1, k);
    AddProduct(grid, 1, 1, 2, 2, 1, k);
    AddProduct(grid, 1, 2, 2, 1, -1, k);
  }
  return k;
}

std::string CharacteristicEquation2(std::int32_t tr, std::int32_t ti, const std::string& d) {
  std::string t;
  if (ti != 0) {
    t = " - (" + Parts(tr, ti) + ")";
  } else if (tr < 0) {
    t = " + " + Abs(tr);
  } else if (tr > 0) {
    t = " - " + std::to_string(tr);
  } else {
    t = " ";
  }
  std::string dt;
  const double dv = ValOf(d);
  if (HoldsImaginaryUnit(d)) {
    dt = " + (" + d + ")";
  } else if (dv > 0) {
    dt = " +" + d;
  } else if (dv < 0) {
    dt = " -" + expr::NumberToText(-dv);
  } else {
    dt = " ";
  }
  return "X^2" + t + "*X" + dt + " = 0";
}

std::string CharacteristicEquation3(std::int32_t tr, std::int32_t ti, std::int64_t mr, std::int64_t mi,
                                    const std::string& d) {
  std::string t;
  if (ti != 0) {
    t = " - (" + Parts(tr, ti) + ")*X^2";
  } else if (tr == -1) {
    t = " + X^2";
  } else if (tr < -1) {
    t = " + " + Abs(tr) + "*X^2";
  } else if (tr == 1) {
    t = " - X^2";
  } else if (tr > 1) {
    t = " - " + std::to_string(tr) + "*X^2";
  } else {
    t = " ";
  }
  std::string m;
  if (mi != 0) {
    m = " + (" + Parts(mr, mi) + ")*X";
  } else if (mr == 1) {
    m = " + X";
  } else if (mr == -1) {
    m = " - X";
  } else if (mr > 1) {
    m = " + " + std::to_string(mr) + "*X";
  } else if (mr < -1) {
    m = " - " + Abs(mr) + "*X";
  } else {
    m = " ";
  }
  std::string dt;
  const double dv = ValOf(d);
  if (HoldsImaginaryUnit(d)) {
    dt = " - (" + d + ")";
  } else if (dv > 0) {
    dt = " - " + d;
  } else if (dv < 0) {
    dt = " + " + expr::NumberToText(-dv);
  } else {
    dt = " ";
  }
  return "X^3" + t + m + dt + " = 0";
}

}  // namespace velmora::matrix
