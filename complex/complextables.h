#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "complex/complexmessages.h"

// The fixed tables of the Complex Calculator: its operations with their
// buttons and words, and the entries of its function list with their rules.
namespace velmora::complex {

enum class Operation : std::uint8_t {
  Add,
  Subtract,
  Multiply,
  Divide,
  Inverse,
  Power,
  Exp,
  Ln,
  Sin,
  Cos,
  Tan,
  HSin,
  HCos,
  HTan,
  Abs,
  Square,
  Cube,
  SquareRoot,
  ArgRad,
  ArgDeg,
  LogBase,
};

// How many operands an operation reads: Complex 1 alone, or both.
enum class Operands : std::uint8_t { One, Two };

// Which operand a button refuses when it is exactly 0 + i0.
enum class ZeroTest : std::uint8_t { None, First, Second };

struct OperationEntry {
  Operation operation;
  std::string_view control;  // the button of the direct road
  std::string_view word;     // shown in lblSta and written to the log
  std::string_view name;     // the name a batch run calls it by
  Operands operands;
  std::string_view logOperator;  // between the operands in the log, for two operands
  bool realResult;               // a real value: the result line shows no imaginary part
  std::string_view logEnding;    // the unit after the result in the log
  ZeroTest zeroTest;             // the button's own test before the arithmetic
  const Message* refusal;        // its message
};

struct FunctionEntry {
  std::string_view name;  // the text of the entry in ComboFunction
  std::string_view rule;  // put in LabelRule
  Operation operation;    // the arithmetic it runs
  Operands operands;      // single-operand entries hide the fields of Complex 2
};

// Every operation, the direct buttons in the order of the keypad.
std::span<const OperationEntry> Operations();
const OperationEntry& FindOperation(Operation operation);
// By the name of a batch run ("z1+z2", "Arg-rad", "LogBase"); nullptr if none.
const OperationEntry* FindOperationByName(std::string_view name);

// The entries of ComboFunction in list order.
std::span<const FunctionEntry> ComboFunctionEntries();
// By the entry's text; nullptr if the text is no entry.
const FunctionEntry* FindFunctionEntry(std::string_view name);

// The captions of CommandCalculate at rest and while it runs.
inline constexpr std::string_view kCalculateCaption = "CALCULATE !";
inline constexpr std::string_view kCalculateRunningCaption = "Done";

}  // namespace velmora::complex
