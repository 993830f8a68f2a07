#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The lexical layer of the formula engine. One routine, NextToken, decides
// where every token starts and ends; the compiler and the shape scan both
// use it, so a formula's shape and its compiled form can never disagree about
// which characters were a number.
namespace velmora::expr {

enum class TokenKind : std::uint8_t {
  Number,        // digits with at most one "." and an optional exponent: 12, 1.5, .5, 1E-05, 1e3
  Name,          // a letter (or a byte >= 0x80) then letters, digits, "_" or bytes >= 0x80
  Plus,          // +
  Minus,         // -
  Star,          // *
  Slash,         // /
  Caret,         // ^
  LeftBracket,   // (
  RightBracket,  // )
  Invalid,       // any other character, one byte long
  End,           // nothing but blanks is left
};

struct Token {
  TokenKind kind = TokenKind::End;
  std::size_t begin = 0;   // offset in the text
  std::size_t length = 0;  // bytes
};

// Blanks between tokens: space, tab, CR, LF. They separate tokens and are
// otherwise ignored, so "SIN (1)" is SIN(1) but "SIN X" is two names.
inline bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

// The token that starts at `pos` after any blanks; `pos` moves past it.
// A number's exponent is only taken when a digit follows the "E" (with an
// optional sign between), so "2E" is the number 2 followed by the name "E".
Token NextToken(std::string_view text, std::size_t& pos);

// The whole text as tokens, ending with one End token.
std::vector<Token> Tokenize(std::string_view text);

// The value of a Number token's text (no sign). A literal beyond the range of
// a double gives infinity (the engine turns that into a fault); one below the
// smallest double reads as 0, as the program's leading-number parse does.
double NumberValue(std::string_view numberText);

// The marker that stands for a number in a shape.
inline constexpr char kShapeNumberMarker = '#';

// The shape of a formula: its text with every number literal replaced by the
// marker, and the literals' values in text order. Two formulas of the same
// shape compile to the same program and differ only in the values fed to it.
// Returns false (no shape) when the text itself contains the marker, since
// such a shape could be mistaken for another formula's.
bool ScanShape(std::string_view text, std::string& shape, std::vector<double>& literals);

}  // namespace velmora::expr
