// The texts of the matrix side from any bytes: rectangular and polar number
// texts, size texts and .mcf files must never crash, hang or leak, and the
// print shortcuts must read every print exactly as its characters read.
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <sstream>
#include <string>

#include "complex/complexnumber.h"
#include "complex/printedtext.h"
#include "complex/printshortcut.h"
#include "expr/fault.h"
#include "expr/numtext.h"
#include "matrix/complexmatrix.h"
#include "matrix/grid.h"
#include "matrix/mcffile.h"

namespace {

using velmora::complex::ComplexNumber;

bool Same(double a, double b) { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); }

void CheckRoads(const std::string& text) {
  velmora::complex::SetPrintShortcuts(true);
  ComplexNumber fast;
  fast.SetRectText(text);
  velmora::complex::SetPrintShortcuts(false);
  ComplexNumber slow;
  slow.SetRectText(text);
  if (!Same(fast.Real(), slow.Real()) || !Same(fast.Imaginary(), slow.Imaginary())) __builtin_trap();
  velmora::complex::SetPrintShortcuts(true);
}

// A rounding, or nothing when it faults.
std::optional<double> Rounded(double (*round)(double, int), double x, int places) {
  try {
    return round(x, places);
  } catch (const velmora::expr::Fault&) {
    return std::nullopt;
  }
}

// Two doubles and the places: a print read back by both roads.
void CheckPrint(const std::uint8_t* data, std::size_t size) {
  if (size < 17) return;
  double re = 0;
  double im = 0;
  std::memcpy(&re, data, 8);
  std::memcpy(&im, data + 8, 8);
  const int places = data[16] % 17;
  ComplexNumber z;
  z.SetReal(re);
  z.SetImaginary(im);
  z.FormatRectangular(places);
  ComplexNumber fast;
  fast.CopyRectText(z);
  velmora::complex::SetPrintShortcuts(false);
  ComplexNumber slow;
  slow.SetRectText(z.RectText());
  velmora::complex::SetPrintShortcuts(true);
  if (fast.RectText() != slow.RectText()) __builtin_trap();
  if (!Same(fast.Real(), slow.Real()) || !Same(fast.Imaginary(), slow.Imaginary())) __builtin_trap();
  if (std::isfinite(re)) {
    // The shortcut and the plain rounding agree, faults included: near the
    // largest double both fault on the overflow of the scaled value.
    const std::optional<double> shortcut = Rounded(velmora::complex::RoundPlaces, re, places);
    const std::optional<double> plain = Rounded(velmora::expr::RoundTo, re, places);
    if (shortcut.has_value() != plain.has_value()) __builtin_trap();
    if (shortcut && !Same(*shortcut, *plain)) __builtin_trap();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  switch (data[0] % 5) {
    case 0: CheckRoads(text); break;
    case 1: {
      ComplexNumber z;
      z.SetPolarText(text);
      z.FormatPolar(data[0] / 5);
      z.Roots(static_cast<double>(data[0] % 7), 3);
      break;
    }
    case 2: {
      velmora::matrix::ComplexMatrix m;
      m.SetSizeText(text);
      if (m.ErrNumber() == 0) m.Init();
      break;
    }
    case 3: {
      std::istringstream in(text);
      velmora::matrix::Grid grid;
      velmora::matrix::ReadMcf(in, grid);
      // What is written reads back the same, cell for cell.
      std::istringstream again(velmora::matrix::McfText(grid));
      velmora::matrix::Grid back;
      velmora::matrix::ReadMcf(again, back);
      bool linesInCells = false;
      for (int r = 0; r < grid.Rows(); ++r)
        for (int c = 0; c < grid.Cols(); ++c)
          linesInCells = linesInCells || grid.TextMatrix(r, c).find_first_of("\r\n") != std::string::npos;
      if (!linesInCells && !(back == grid)) __builtin_trap();
      break;
    }
    default: CheckPrint(data + 1, size - 1); break;
  }
  return 0;
}
