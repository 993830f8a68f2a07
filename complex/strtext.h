#pragma once

#include <string>

// The printed form of a number on the matrix side. It differs from the
// formula path's NumberToText in two ways: a plain value below 1 has no zero
// before the point (".5", "-.25"), and the untrimmed form keeps a blank where
// a non-negative number would have its sign (" 2", "-2").
namespace velmora::complex {

// Untrimmed: a leading blank for a non-negative value (negative zero counts
// as non-negative), at most 15 significant digits, exponent form as
// NumberToText has it.
std::string StrText(double x);

// The same without the leading blank.
std::string ShortText(double x);

// ShortText's digits in positional form, never with an exponent: ".00001",
// "219524109102890000000". Rectangular prints are written so, because their
// text is read back by the rectangular parser, which takes any letter for the
// imaginary unit.
std::string PositionalText(double x);

}  // namespace velmora::complex
