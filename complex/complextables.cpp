#include "complex/complextables.h"

#include <array>

namespace velmora::complex {
namespace {

using enum Operation;
constexpr Operands kOne = Operands::One;
constexpr Operands kTwo = Operands::Two;

constexpr std::array kOperations{
    OperationEntry{Add, "cmdzbir", "z1+z2", "z1+z2", kTwo, " + ", false, "", ZeroTest::None, nullptr},
    OperationEntry{Subtract, "cmdrazlika", "z1-z2", "z1-z2", kTwo, " - ", false, "", ZeroTest::None, nullptr},
    OperationEntry{Multiply, "cmdmnozenje", "z1*z2", "z1*z2", kTwo, " * ", false, "", ZeroTest::None,
                   nullptr},
    OperationEntry{Divide, "cmddeljenje", "z1/z2", "z1/z2", kTwo, " / ", false, "", ZeroTest::Second,
                   &kButtonDivisionByZero},
    OperationEntry{Inverse, "cmdOver", "1/x", "1/x", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{Power, "cmdExp", "z1^z2", "z1^z2", kTwo, " ^ ", false, "", ZeroTest::None, nullptr},
    OperationEntry{Exp, "cmde", "e^", "e^", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{Ln, "cmdLn", "Ln", "Ln", kOne, "", false, "", ZeroTest::First, &kButtonLnOfZero},
    OperationEntry{Sin, "cmdSin", "Sin", "Sin", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{Cos, "cmdCos", "Cos", "Cos", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{Tan, "cmdtang", "Tan", "Tan", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{HSin, "cmdSinh", "HSin", "HSin", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{HCos, "cmdCosh", "HCos", "HCos", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{HTan, "cmdTanh", "HTan", "HTan", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{Abs, "pi", "Abs", "Abs", kOne, "", true, "", ZeroTest::None, nullptr},
    OperationEntry{Square, "Command2", "z1^2", "z1^2", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{Cube, "Command4", "z1^3", "z1^3", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{SquareRoot, "Command3", "z1^1/2", "z1^1/2", kOne, "", false, "", ZeroTest::None, nullptr},
    OperationEntry{ArgRad, "Command1", "Arg", "Arg-rad", kOne, "", true, " rad", ZeroTest::None, nullptr},
    OperationEntry{ArgDeg, "Command1", "Arg", "Arg-deg", kOne, "", true, " deg", ZeroTest::None, nullptr},
    // The base logarithm runs its own tests (three of them) and log form.
    OperationEntry{LogBase, "cmdlog", "LogBase", "LogBase", kTwo, "", false, "", ZeroTest::None, nullptr},
};

constexpr std::array kFunctionEntries{
    FunctionEntry{"Addition", "(a+i*b)+(c+i*d) = (a+c)+i*(b+d)", Add, kTwo},
    FunctionEntry{"Subtraction", "(a+i*b)-(c+i*d) = (a-c)+i*(b-d)", Subtract, kTwo},
    FunctionEntry{"Multiplication", "(a+i*b)*(c+i*d) = a*c-b*d + i*(a*d+b*c)", Multiply, kTwo},
    FunctionEntry{"Division", "(a+i*b)/(c+i*d) = [(a+i*b)*(c-i*d)]/(c^2+d^2)", Divide, kTwo},
    FunctionEntry{"Magnitude of Complex 1", "|a+i*b| = sqrt(a^2+b^2)", Abs, kOne},
    FunctionEntry{"e ^ (Complex 1)", "e ^ (a+i*b) = (e ^ a)[Cos(b)+i*Sin(b)]", Exp, kOne},
    FunctionEntry{"(Complex 1) ^ (Complex 2)", "(a+i*b)^(c+i*d) = e ^ [(c+i*d)*log(a+i*b)]", Power, kTwo},
    FunctionEntry{"Log (Complex 1)", "log(|a+i*b|) + i*arctan(b/a)", Ln, kOne},
    FunctionEntry{"Log (Complex 1) [base (Complex 2)]",
                  "Log (Complex 1) [base (Complex 2)] = [Log (Complex 1)]/[Log (Complex 2)]", LogBase, kTwo},
    FunctionEntry{"Sin (Complex 1)", "Sin(a+i*b) = {e^[i*(a+i*b)]-e^[-i*(a+i*b)]}/(2*i)", Sin, kOne},
    // The rule reads "/i" although the arithmetic divides by 2: the text users
    // know is kept.
    FunctionEntry{"Cos (Complex 1)", "Cos(a+i*b) = {e^[i*(a+i*b)]+e^[-i*(a+i*b)]}/i", Cos, kOne},
    FunctionEntry{"Tan (Complex 1)", "Tan(a+i*b) = Sin(a+i*b)/Cos(a+i*b)", Tan, kOne},
};

}  // namespace

std::span<const OperationEntry> Operations() { return kOperations; }

const OperationEntry& FindOperation(Operation operation) {
  for (const auto& entry : kOperations) {
    if (entry.operation == operation) return entry;
  }
  return kOperations.front();  // unreachable: every operation has its row
}

const OperationEntry* FindOperationByName(std::string_view name) {
  for (const auto& entry : kOperations) {
    if (entry.name == name) return &entry;
  }
  return nullptr;
}

std::span<const FunctionEntry> ComboFunctionEntries() { return kFunctionEntries; }

const FunctionEntry* FindFunctionEntry(std::string_view name) {
  for (const auto& entry : kFunctionEntries) {
    if (entry.name == name) return &entry;
  }
  return nullptr;
}

}  // namespace velmora::complex
