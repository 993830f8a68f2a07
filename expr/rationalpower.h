#pragma once

#include <span>

// The table that decides a power a^b when the graph window's fraction keypad
// has left the exponent as a ratio of two integers ("rational mode"). It lets
// a negative base have a real odd root, which the plain power refuses.
namespace velmora::expr {

// Which open interval the exponent lies in (the comparisons are strict, so
// b = 0 and |b| = 1 lie in none).
enum class ExponentRange { ZeroToOne, AboveOne, MinusOneToZero, BelowMinusOne };
// The sign of the base (a = 0 has none).
enum class BaseSign { Positive, Negative };
// Which parity flag a row reads besides Q: P (of txtY3) or R (of txtY2).
enum class RowParity { P, R };
// What the row computes: a^b, -((-a)^b) or (-a)^b.
enum class RationalForm { Plain, NegatedOfNegated, OfNegated };

struct RationalRow {
  int row;  // 1..16, the order in which rows are tried
  ExponentRange exponent;
  BaseSign base;
  RowParity parity;  // the flag that must hold
  bool q;            // the value Q must have
  RationalForm form;
};

// The sixteen rows in the order they are tried.
std::span<const RationalRow> RationalRows();

// The first row that matches, or null when none does (the caller then takes
// the plain power).
const RationalRow* FindRationalRow(double a, double b, bool p, bool q, bool r);

// The value of a row's form, with the plain power checked like every power
// (expr::CheckedPow: a fault for a negative base with a fractional exponent,
// for 0 to a negative exponent and for overflow).
double ApplyRationalForm(RationalForm form, double a, double b);

}  // namespace velmora::expr
