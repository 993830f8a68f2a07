#include "complex/printshortcut.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "expr/numtext.h"

namespace velmora::complex {
namespace {

// Powers of ten that are exact in a double (10^0 .. 10^18) and as integers.
constexpr std::array<double, 19> kExactPow10 = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
                                                1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};
constexpr std::array<std::uint64_t, 19> kIntPow10 = {1ULL,
                                                     10ULL,
                                                     100ULL,
                                                     1000ULL,
                                                     10000ULL,
                                                     100000ULL,
                                                     1000000ULL,
                                                     10000000ULL,
                                                     100000000ULL,
                                                     1000000000ULL,
                                                     10000000000ULL,
                                                     100000000000ULL,
                                                     1000000000000ULL,
                                                     10000000000000ULL,
                                                     100000000000000ULL,
                                                     1000000000000000ULL,
                                                     10000000000000000ULL,
                                                     100000000000000000ULL,
                                                     1000000000000000000ULL};

// Decade boundaries 1E-04 .. 1E+14 as the nearest doubles. Each of the
// negative ones lies just above its decimal power, and no double lies between
// a power and its nearest double, so `ax >= kDecade[k]` holds exactly when
// ax >= 10^(k - 4).
constexpr std::array<double, 19> kDecade = {1e-4, 1e-3, 1e-2, 1e-1, 1e0,  1e1,  1e2,  1e3,  1e4, 1e5,
                                            1e6,  1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14};

constexpr double kPlainLow = 1e-4;
constexpr double kPlainHigh = 1e15;

// The integer nearest to the exact product ax * 10^q, ties to even. The
// product is below 2^53, so its rounding error is caught exactly by a fused
// multiply-add and only matters at a distance of one half.
std::uint64_t ScaledRound(double ax, int q) {
  const double scale = kExactPow10[static_cast<std::size_t>(q)];
  const double p = ax * scale;
  const double err = std::fma(ax, scale, -p);
  // Adding and taking away 2^52 rounds a value below 2^52 to an integer,
  // ties to even, in the default rounding mode, without a library call.
  constexpr double kRound = 4503599627370496.0;
  double n = (p + kRound) - kRound;
  const double f = p - n;
  if (f == 0.5 && err > 0) n += 1;
  if (f == -0.5 && err < 0) n -= 1;
  return static_cast<std::uint64_t>(n);
}

}  // namespace

double RoundPlaces(double x, int places) {
  if (!detail::gPrintShortcuts || places < 0 || places > 15 || !std::isfinite(x))
    return expr::RoundTo(x, places);
  if (x == 0.0) return 0.0;
  const double ax = std::fabs(x);
  if (!(ax >= kPlainLow && ax < kPlainHigh)) return expr::RoundTo(x, places);
  // The binary exponent puts the decimal one within a step: ax lies in
  // [2^e, 2^(e+1)), so its decimal exponent is floor(e log10 2) or one more;
  // 78913 / 2^18 is log10 2 closely enough for any exponent of a double.
  const int e = static_cast<int>((std::bit_cast<std::uint64_t>(ax) >> 52) & 0x7FF) - 1023;
  int decade = ((e * 78913) >> 18) + 4;  // index into kDecade
  if (decade < 0) decade = 0;
  if (decade + 1 < static_cast<int>(kDecade.size()) && ax >= kDecade[static_cast<std::size_t>(decade + 1)])
    ++decade;
  // The 15 significant digits as an integer mantissa m with q decimals.
  int q = 14 - (decade - 4);
  std::uint64_t m = ScaledRound(ax, q);
  if (m == kIntPow10[15]) {  // rounding carried into a new digit
    if (q == 0) return x < 0 ? -1e15 : 1e15;
    m = kIntPow10[14];
    --q;
  }
  double value = 0;
  if (places >= q) {
    value = static_cast<double>(m) / kExactPow10[static_cast<std::size_t>(q)];
  } else if (q - places > 15) {
    return 0.0;  // every digit cut and one more: a plain (positive) zero
  } else {
    const std::uint64_t div = kIntPow10[static_cast<std::size_t>(q - places)];
    std::uint64_t kept = m / div;
    const std::uint64_t rest = m % div;
    const std::uint64_t half = div / 2;
    if (rest > half || (rest == half && (kept & 1U) != 0)) ++kept;
    value = static_cast<double>(kept) / kExactPow10[static_cast<std::size_t>(places)];
  }
  return x < 0 ? -value : value;
}

namespace detail {
bool gPrintShortcuts = true;
}  // namespace detail

void SetPrintShortcuts(bool enabled) { detail::gPrintShortcuts = enabled; }

}  // namespace velmora::complex
