#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers pass through text all over the program: formulas are strings, text
// boxes feed the calculators, values are displayed. These conversions are the
// program's single definition of how that happens.
namespace velmora::expr {

// The five spellings of a value that is not finite, as every check compares them.
inline constexpr std::string_view kPosInf = "1.#INF";
inline constexpr std::string_view kNegInf = "-1.#INF";
inline constexpr std::string_view kPosInd = "1.#IND";
inline constexpr std::string_view kNegInd = "-1.#IND";
inline constexpr std::string_view kQNaN = "1.#QNAN";

// The shortest general form with at most 15 significant digits: "." as the
// decimal separator, no trailing zeros, no "+" sign, "0.5" not ".5", an
// integer value without a decimal point, and exponent form ("1E-05",
// "1.5E+20") when the decimal exponent is below -4 or at least 15.
// Non-finite values give the spellings above.
std::string NumberToText(double x);

// The same into a caller's buffer, for hot loops; returns the length written.
// The buffer must hold at least kNumberTextMax characters.
inline constexpr std::size_t kNumberTextMax = 32;
std::size_t NumberToText(double x, char* buffer);

// The same 15 significant digits in positional form, never with an
// exponent: "0.00001" for 1E-05, "219524109102890000000" for
// 2.1952410910289E+20. It is the form of texts the program writes for itself
// and reads back, where an exponent letter could be taken for something else.
// Non-finite values give the spellings above.
std::string NumberToPositionalText(double x);

// True when the whole text reads as one decimal number: blanks (space or
// tab) around it, an optional sign, digits with at most one "." and at least
// one digit, and an optional exponent ("E" or "e", an optional sign, digits).
bool IsNumericText(std::string_view text);

// The leading-number parse: leading blanks, an optional sign, digits, one
// ".", digits and an optional exponent; it stops without complaint at the
// first other character, and a text with no leading number is 0. "," is no
// decimal separator. A number beyond the range of a double faults (overflow).
double TextToNumber(std::string_view text);

// Rounds to n decimals on the decimal (15 significant digit) form of x,
// exact ties going to the even neighbour. Faults for n < 0 and for a value
// that is not finite.
double RoundTo(double x, int n);

// To a 16-bit (32-bit) integer, ties to the even neighbour; faults outside
// -32768..32767 (-2147483648..2147483647) and for a value that is not finite.
std::int16_t ToShort(double x);
std::int32_t ToLong(double x);

// True when the text is one of the five non-finite spellings ("PrcniFunc":
// the function burst, that is, gave no number).
bool PrcniFunc(std::string_view text);
// True when the value's text form is one of them, that is, when it is not finite.
bool PrcniFunc(double value);

}  // namespace velmora::expr
