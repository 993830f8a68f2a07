#pragma once

#include <string>
#include <string_view>

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

// True when the whole text, blanks around it allowed, reads as one number:
// an optional sign, digits with at most one point (at least one digit), and
// an optional exponent of "E" or "e", an optional sign and digits.
bool IsNumericText(std::string_view text);

}  // namespace velmora::complex
