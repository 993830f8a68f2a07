#pragma once

// Shortcuts through the print-and-reparse round trip of the matrix side.
//
// A matrix entry keeps its value as the text of its last print, so every
// step of an elimination prints a number to 15 places and reads it back. The
// value that comes back is a pure function of the number printed and the
// places: the print is positional (never in exponent form), so it is the
// rounded number itself. The shortcuts compute that value without building the text. They
// are on by default; turning them off sends every value through its
// characters, which the tests and the benchmark use to prove that both roads
// give the same digits.
namespace velmora::complex {

// Exactly expr::RoundTo(x, places): banker's rounding to `places` decimals on
// the 15-significant-digit decimal form of x. Values from 1E-04 up to 1E+15
// and places 0 to 15 take an integer road that needs no text; the rest (and
// every value while the shortcuts are off) goes through expr::RoundTo.
double RoundPlaces(double x, int places);

namespace detail {
extern bool gPrintShortcuts;
}  // namespace detail

void SetPrintShortcuts(bool enabled);
inline bool PrintShortcuts() { return detail::gPrintShortcuts; }

}  // namespace velmora::complex
