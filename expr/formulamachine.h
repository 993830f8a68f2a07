#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "expr/functionlibrary.h"

// The compiled form of a formula and the stack machine that runs it.
//
// A program never holds the values of the formula's number literals: it reads
// them from slots that the caller fills, so one program serves every formula
// of the same shape ("SIN((1.25))" and "SIN((-3))" alike), and a cached
// program computes exactly what a freshly compiled one computes.
namespace velmora::expr {

enum class OpCode : std::uint8_t {
  Literal,   // push literal slot `index`
  Constant,  // push constants[index] (a bare PI, E or D)
  Variable,  // push the variable of a diff(, Intg( or Trap( body
  Negate,    // unary minus of the top
  Add,
  Subtract,
  Multiply,
  Divide,
  Power,
  Call,  // replace the top by Apply(fn, top)
};

struct Instruction {
  OpCode op = OpCode::Literal;
  Fn fn = Fn::Pi;  // for Call
  std::uint32_t index = 0;
};

struct Program {
  std::vector<Instruction> code;  // postfix order
  std::vector<double> constants;  // values of the Constant instructions
  std::vector<double> literals;   // the literal values of the text it was compiled from
  std::size_t literalCount = 0;   // slots the program reads
  std::size_t maxDepth = 0;       // deepest stack the program needs
  bool usesVariable = false;      // holds x or K: only a command body can run it
};

// Runs the program with the given literal values (at least literalCount of
// them) and variable value. Every step is checked as the program's own
// arithmetic is: a result that is not finite, and a function that faults, end
// the run with a quiet NaN. The value is therefore either finite or NaN, and
// NaN means a fault. `stack` is scratch space, grown as needed.
double RunProgram(const Program& program, std::span<const double> literals, double variable,
                  std::vector<double>& stack);

}  // namespace velmora::expr
