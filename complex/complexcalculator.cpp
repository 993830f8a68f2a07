#include "complex/complexcalculator.h"

#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "complex/complexmessages.h"
#include "complex/complexparse.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::complex {
namespace {

// The joint of an operand text as the keypad and the result write it.
constexpr std::string_view kPlusJ = "+j";
constexpr std::string_view kMinusJ = "-j";
constexpr std::string_view kLogLineBreak = "\r\n";
constexpr std::string_view kLogEquals = "= ";

// Val of a part field; nothing when the text is too large for a number.
std::optional<double> Val(const std::string& text) {
  try {
    return expr::TextToNumber(text);
  } catch (const expr::Fault&) {
    return std::nullopt;
  }
}

bool IsZero(double x, double y) { return x == 0.0 && y == 0.0; }

}  // namespace

ComplexCalculator::ComplexCalculator(platform::MessageBox& box) : box_(box), library_(box) {
  SelectFunction(ComboFunctionEntries().front().name);
}

void ComplexCalculator::SelectFunction(std::string_view entry) {
  fields_.ComboFunction = std::string(entry);
  if (const FunctionEntry* found = FindFunctionEntry(entry)) fields_.LabelRule = std::string(found->rule);
}

void ComplexCalculator::ParseOperands(Operands operands) {
  // The parsers get a copy of each label's text, so the labels keep theirs.
  std::string z1 = fields_.lblZ1;
  ParseZ1(z1, fields_, box_);
  if (operands == Operands::Two) {
    std::string z2 = fields_.lblZ2;
    ParseZ2(z2, fields_, box_);
  }
}

std::optional<ComplexCalculator::Parts> ComplexCalculator::ReadParts(Operands operands) const {
  const std::optional<double> a = Val(fields_.lbla);
  const std::optional<double> b = Val(fields_.lblb);
  // A one-operand button never reads Complex 2, whatever its fields hold.
  const bool two = operands == Operands::Two;
  const std::optional<double> c = two ? Val(fields_.lblc) : 0.0;
  const std::optional<double> d = two ? Val(fields_.lbld) : 0.0;
  if (!a || !b || !c || !d) {
    Show(box_, kOperandTooLarge);
    return std::nullopt;
  }
  return Parts{*a, *b, two ? *c : 0.0, two ? *d : 0.0};
}

void ComplexCalculator::Compute(Operation operation, const Parts& p) {
  double& re = resultReal_;
  double& im = resultImag_;
  Complex& lib = library_;
  try {
    switch (operation) {
      case Operation::Add: lib.CAdd(p.a, p.b, p.c, p.d, re, im); break;
      case Operation::Subtract: lib.CSub(p.a, p.b, p.c, p.d, re, im); break;
      case Operation::Multiply: lib.CMul(p.a, p.b, p.c, p.d, re, im); break;
      case Operation::Divide: lib.CDiv(p.a, p.b, p.c, p.d, re, im); break;
      case Operation::Inverse: lib.CInv(p.a, p.b, re, im); break;
      case Operation::Power: lib.CPow(p.a, p.b, p.c, p.d, re, im); break;
      case Operation::Exp: lib.CExp(p.a, p.b, re, im); break;
      case Operation::Ln: lib.CLn(p.a, p.b, re, im); break;
      case Operation::Sin: lib.CSin(p.a, p.b, re, im); break;
      case Operation::Cos: lib.CCos(p.a, p.b, re, im); break;
      case Operation::Tan: lib.CTan(p.a, p.b, re, im); break;
      case Operation::HSin: lib.CSinh(p.a, p.b, re, im); break;
      case Operation::HCos: lib.CCosh(p.a, p.b, re, im); break;
      case Operation::HTan: lib.CTanh(p.a, p.b, re, im); break;
      case Operation::Abs:
        // The magnitude is real: its imaginary part reads 0.
        lib.CAbs(p.a, p.b, re);
        im = 0.0;
        break;
      case Operation::Square: lib.CPow(p.a, p.b, 2.0, 0.0, re, im); break;
      case Operation::Cube: lib.CPow(p.a, p.b, 3.0, 0.0, re, im); break;
      case Operation::SquareRoot: lib.CPow(p.a, p.b, 0.5, 0.0, re, im); break;
      case Operation::ArgRad: lib.CArgRad(p.a, p.b, re, im); break;
      case Operation::ArgDeg: lib.CArgDeg(p.a, p.b, re, im); break;
      case Operation::LogBase: lib.CLogBase(p.a, p.b, p.c, p.d, re, im); break;
    }
  } catch (const expr::Fault&) {
    // A fault from an unguarded function of the library: the same box as
    // the guarded ones show, and the caller goes on with what is left.
    Show(box_, kInvalidInput);
  }
}

void ComplexCalculator::ShowResultFields() {
  fields_.TextResultReal = expr::NumberToText(resultReal_);
  fields_.TextResultImaginary = expr::NumberToText(resultImag_);
}

void ComplexCalculator::ShowResult(bool realResult) {
  ShowResultFields();
  fields_.LabelRezultat = fields_.TextResultReal;
  if (!realResult) {
    fields_.LabelRezultat += kPlusJ;
    fields_.LabelRezultat += fields_.TextResultImaginary;
  }
}

void ComplexCalculator::AppendLog(const std::string& expression, std::string_view ending) {
  if (!fields_.frm2textOpen) return;
  std::string block = expression;
  block += kLogLineBreak;
  block += kLogEquals;
  block += fields_.LabelRezultat;
  block += ending;
  block += kLogLineBreak;
  fields_.frm2text += block;
}

bool ComplexCalculator::Run(Operation operation) {
  if (operation == Operation::LogBase) return RunLogBase();
  const OperationEntry& entry = FindOperation(operation);
  ParseOperands(entry.operands);
  const std::optional<Parts> parts = ReadParts(entry.operands);
  if (!parts) return false;
  const Parts& p = *parts;
  const bool refused = (entry.zeroTest == ZeroTest::First && IsZero(p.a, p.b)) ||
                       (entry.zeroTest == ZeroTest::Second && IsZero(p.c, p.d));
  if (refused) {
    Show(box_, *entry.refusal);
    return false;
  }
  Compute(operation, p);
  fields_.lblSta = std::string(entry.word);
  ShowResult(entry.realResult);
  if (entry.operands == Operands::Two) {
    AppendLog("(" + fields_.lblZ1 + std::string(entry.logOperator) + fields_.lblZ2 + ")", entry.logEnding);
  } else {
    AppendLog("(" + std::string(entry.word) + "(" + fields_.lblZ1 + "))", entry.logEnding);
  }
  return true;
}

bool ComplexCalculator::RunLogBase() {
  ParseOperands(Operands::Two);
  const std::optional<Parts> parts = ReadParts(Operands::Two);
  if (!parts) return false;
  const Parts& p = *parts;
  const Message* refusal = nullptr;
  if (IsZero(p.a, p.b)) {
    refusal = &kButtonLogBaseOfZero;
  } else if (IsZero(p.c, p.d)) {
    refusal = &kButtonLogBaseZero;
  } else if (p.c == 1.0 && p.d == 0.0) {
    refusal = &kButtonLogBaseOne;
  }
  if (refusal != nullptr) {
    Show(box_, *refusal);
    return false;
  }
  Compute(Operation::LogBase, p);
  fields_.lblSta = std::string(FindOperation(Operation::LogBase).word);
  ShowResult(false);
  AppendLog("Log(" + fields_.lblZ1 + ") [Base(" + fields_.lblZ2 + ")]", "");
  return true;
}

bool ComplexCalculator::CommandCalculateClick() {
  fields_.CommandCalculate = std::string(kCalculateRunningCaption);
  const bool done = CalculateSelected();
  fields_.CommandCalculate = std::string(kCalculateCaption);
  return done;
}

bool ComplexCalculator::CalculateSelected() {
  ParseOperands(Operands::Two);
  const FunctionEntry* entry = FindFunctionEntry(fields_.ComboFunction);
  if (entry == nullptr) return false;
  const std::optional<Parts> parts = ReadParts(Operands::Two);
  if (!parts) return false;
  const Parts& p = *parts;
  const Message* refusal = nullptr;
  switch (entry->operation) {
    case Operation::Divide:
      if (IsZero(p.c, p.d)) refusal = &kListDivisionByZero;
      break;
    case Operation::Ln:
      if (IsZero(p.a, p.b)) refusal = &kListLogOfZero;
      break;
    case Operation::LogBase:
      if (IsZero(p.a, p.b)) {
        refusal = &kListLogBaseOfZero;
      } else if (IsZero(p.c, p.d)) {
        refusal = &kListLogBaseZero;
      } else if (p.c == 1.0 && p.d == 0.0) {
        refusal = &kListLogBaseOne;
      }
      break;
    default: break;
  }
  if (refusal != nullptr) {
    Show(box_, *refusal);
    return false;
  }
  Compute(entry->operation, p);
  // A real power of zero overrules what the logarithm made of it. The
  // library's value stays in the result, unshown, when the power is refused.
  if (entry->operation == Operation::Power && IsZero(p.a, p.b) && p.d == 0.0) {
    if (p.c > 0.0) {
      resultReal_ = 0.0;
      resultImag_ = 0.0;
    } else if (p.c == 0.0) {
      resultReal_ = 1.0;
      resultImag_ = 0.0;
    } else {
      Show(box_, kListZeroToNegativePower);
      return false;
    }
  }
  ShowResult(entry->operation == Operation::Abs);
  fields_.LabelRule = std::string(entry->rule);
  const bool secondShown = entry->operands == Operands::Two;
  fields_.lblcVisible = secondShown;
  fields_.lbldVisible = secondShown;
  fields_.Label2cVisible = secondShown;
  return true;
}

void ComplexCalculator::ReplaceZ1WithResult() {
  fields_.lbla = fields_.TextResultReal;
  fields_.lblb = fields_.TextResultImaginary;
  fields_.lblZ1 = fields_.lbla + std::string(kPlusJ) + fields_.lblb;
}

void ComplexCalculator::ReplaceZ2WithResult() {
  fields_.lblc = fields_.TextResultReal;
  fields_.lbld = fields_.TextResultImaginary;
  fields_.lblZ2 = fields_.lblc + std::string(kPlusJ) + fields_.lbld;
}

void ComplexCalculator::Swap() {
  std::swap(fields_.lblZ1, fields_.lblZ2);
  std::swap(fields_.lbla, fields_.lblc);
  std::swap(fields_.lblb, fields_.lbld);
  ShowResultFields();
}

namespace {

// The conjugate written back into an operand label: the imaginary field
// takes -b, and the label reads real-j|b| or real+jb by its sign. A part
// too large to read leaves the operand as it stands.
void WriteConjugate(std::string& label, const std::string& real, std::string& imaginary) {
  const std::optional<double> part = Val(imaginary);
  if (!part) return;
  const double negated = -*part;
  imaginary = expr::NumberToText(negated);
  if (negated < 0.0) {
    label = real + std::string(kMinusJ) + expr::NumberToText(std::fabs(negated));
  } else {
    label = real + std::string(kPlusJ) + imaginary;
  }
}

}  // namespace

void ComplexCalculator::ConjugateZ1() {
  std::string z1 = fields_.lblZ1;
  ParseZ1(z1, fields_, box_);
  WriteConjugate(fields_.lblZ1, fields_.lbla, fields_.lblb);
  ShowResultFields();
}

void ComplexCalculator::ConjugateZ2() {
  std::string z2 = fields_.lblZ2;
  ParseZ2(z2, fields_, box_);
  WriteConjugate(fields_.lblZ2, fields_.lblc, fields_.lbld);
  ShowResultFields();
}

}  // namespace velmora::complex
