#pragma once

#include <optional>
#include <string_view>

#include "expr/formulamachine.h"

// Compiles a formula text into the postfix program of the formula engine.
//
// The grammar follows the text evaluator's precedence and accepts a superset
// of its forms, so that every text the program sends is taken:
//
//   sum      := term (("+" | "-") term)*              left to right
//   term     := signed (("*" | "/") signed)*          left to right
//   signed   := ("+" | "-")* power                    the sign applies to the finished power: -2^2 is -4
//   power    := operand ("^" signed)?                 right to left: 2^3^2 is 2^9; a sign may follow "^":
//   2^-3 operand  := number | "(" sum ")" | name "(" sum ")" | bare name
//
// Superset choices, beyond what the text evaluator takes:
//   - a sign after an operator (2*-3 is -6, 1--2 is 3, 2^-3 is 0.125), and any
//     number of signs in a row;
//   - chained powers, grouped from the right as in mathematics;
//   - numbers with an exponent (1E-05, 2.5E+20, 1e3) and without a leading
//     digit (.5); "." is the decimal separator and "," is no part of a number;
//   - blanks between tokens;
//   - names in any letter case, looked up by FindEngineFunction;
//   - bare names: PI, E and D are constants; x, X, k and K are the variable of
//     a command body; a function name joined to the variable ("SinX", "sink",
//     "CBRK", "FIX") is that function of the variable, as the short forms of
//     the graph window's function texts mean it. A constant called with a
//     bracket (PI(1), E(1)) evaluates its argument and ignores it.
// Still faults: an implied product ("2(3)", "2X", "(1)(2)"), an empty bracket
// ("SIN()", "()"), an unknown name, a missing operand, unbalanced brackets,
// a stray character, an empty text.
//
// The compiler keeps no recursion: brackets nested to any depth compile in
// linear time and space.
namespace velmora::expr {

// The program of the text, or nothing when the text is not a formula. The
// program's `literals` hold the values of the text's number literals.
std::optional<Program> CompileFormula(std::string_view text);

}  // namespace velmora::expr
