#include "expr/rationalpower.h"

#include <array>
#include <cmath>

#include "expr/checked.h"

namespace velmora::expr {
namespace {

using enum ExponentRange;
using enum BaseSign;
using enum RowParity;
using enum RationalForm;

// Rows 1 to 8 read P (the numerator's parity), rows 9 to 16 read R; each
// pairs an exponent interval and a base sign with the value Q must have.
constexpr std::array<RationalRow, 16> kRows = {{
    {1, ZeroToOne, Positive, P, true, Plain},
    {2, ZeroToOne, Negative, P, true, NegatedOfNegated},
    {3, ZeroToOne, Negative, P, false, OfNegated},
    {4, ZeroToOne, Positive, P, false, Plain},
    {5, AboveOne, Negative, P, false, OfNegated},
    {6, AboveOne, Positive, P, false, Plain},
    {7, AboveOne, Negative, P, true, NegatedOfNegated},
    {8, AboveOne, Positive, P, true, Plain},
    {9, MinusOneToZero, Positive, R, false, Plain},
    {10, MinusOneToZero, Negative, R, false, OfNegated},
    {11, MinusOneToZero, Positive, R, true, Plain},
    {12, MinusOneToZero, Negative, R, true, NegatedOfNegated},
    {13, BelowMinusOne, Negative, R, true, NegatedOfNegated},
    {14, BelowMinusOne, Positive, R, true, Plain},
    {15, BelowMinusOne, Positive, R, false, Plain},
    {16, BelowMinusOne, Negative, R, false, OfNegated},
}};

bool InRange(ExponentRange range, double b) {
  switch (range) {
    case ZeroToOne: return b > 0 && b < 1;
    case AboveOne: return b > 1;
    case MinusOneToZero: return b > -1 && b < 0;
    case BelowMinusOne: return b < -1;
  }
  return false;
}

bool HasSign(BaseSign sign, double a) { return sign == Positive ? a > 0 : a < 0; }

}  // namespace

std::span<const RationalRow> RationalRows() { return kRows; }

const RationalRow* FindRationalRow(double a, double b, bool p, bool q, bool r) {
  for (const auto& row : kRows) {
    const bool flag = row.parity == P ? p : r;
    if (InRange(row.exponent, b) && HasSign(row.base, a) && flag && q == row.q) return &row;
  }
  return nullptr;
}

double ApplyRationalForm(RationalForm form, double a, double b) {
  switch (form) {
    case Plain: return CheckedPow(a, b);
    case NegatedOfNegated: return -CheckedPow(-a, b);
    case OfNegated: return CheckedPow(-a, b);
  }
  return CheckedPow(a, b);
}

}  // namespace velmora::expr
