#pragma once

#include <cstdint>
#include <string>

#include "matrix/grid.h"

// Trace and characteristic equation of a matrix, worked on the cell texts of
// its grid: the text the user sees is what counts, and the precision plays
// no part. The equation's coefficients are rounded to integers (ties to
// even), so it is exact only for integer matrices.
namespace velmora::matrix {

struct TraceSum {
  double re = 0;
  double im = 0;
  // False when a diagonal cell holds a number too large to hold (see
  // ComplexNumber::ParseOverflowed): then the sums mean nothing, and the
  // caller refuses the entry.
  bool held = true;
};

// The sums of the real and imaginary parts of the diagonal cells (i, i) for
// every row of the grid. A grid with fewer columns than rows faults
// (expr::Fault) at the first missing cell.
TraceSum TraceCells(const Grid& grid);

// "re + jim", "re - j|im|", or "re" alone for a zero imaginary part.
std::string TraceValueText(const TraceSum& trace);

// The text of the trace box: "Trace Matrix [A]:" (or [B]), a line end, and the value.
std::string TraceMessage(const std::string& which, const TraceSum& trace);

inline constexpr const char* kEquationOnlyForSmall =
    "Available only for square matrix (2 x 2) or (3 x 3) in size.";

// The integer coefficients: the trace's parts, and for a 3 x 3 grid the sum
// of the three principal 2 x 2 minors, each product's parts rounded.
struct EquationCoefficients {
  std::int32_t tr = 0;
  std::int32_t ti = 0;
  std::int64_t mr = 0;
  std::int64_t mi = 0;
};
EquationCoefficients CoefficientsOf(const Grid& grid);

// The equations, with d the text of the determinant box.
std::string CharacteristicEquation2(std::int32_t tr, std::int32_t ti, const std::string& d);
std::string CharacteristicEquation3(std::int32_t tr, std::int32_t ti, std::int64_t mr, std::int64_t mi,
                                    const std::string& d);

// True when a cell or determinant text holds the imaginary unit.
bool HoldsImaginaryUnit(const std::string& text);

}  // namespace velmora::matrix
