#include "complex/complexmemory.h"

#include <string>

#include "complex/complexmessages.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::complex {
namespace {

// The memory adds what the fields show, cut to 5 places where the results
// have 6.
constexpr int kMemoryPlaces = 5;
constexpr std::string_view kNullResults[] = {"0.", "0"};
constexpr std::string_view kNoImaginaryEnding = "+i0";

bool IsNullResult(const std::string& text) {
  for (auto null : kNullResults) {
    if (text == null) return true;
  }
  return false;
}

void RecallInto(ComplexFields& fields, std::string& label, std::string& real, std::string& imaginary,
                platform::MessageBox& box) {
  if (fields.txtmemoryReal.empty() && fields.txtmemoryImaginar.empty()) {
    Show(box, kMemoryEmpty);
    return;
  }
  real = fields.txtmemoryReal;
  imaginary = fields.txtmemoryImaginar;
  label = imaginary.empty() ? real + std::string(kNoImaginaryEnding) : real + "+j" + imaginary;
  fields.LastInput = "NUMS";
}

}  // namespace

void MemoryAdd(ComplexFields& fields, platform::MessageBox& box) {
  if (IsNullResult(fields.LabelRezultat)) {
    Show(box, kNullResult);
    return;
  }
  if (fields.lblMemory1.empty() && fields.LabelRezultat.empty()) {
    Show(box, kNoCalculations);
    return;
  }
  try {
    // An empty memory text reads 0.
    const double real = expr::TextToNumber(fields.txtmemoryReal) +
                        expr::RoundTo(expr::TextToNumber(fields.TextResultReal), kMemoryPlaces);
    const double imaginary = expr::TextToNumber(fields.txtmemoryImaginar) +
                             expr::RoundTo(expr::TextToNumber(fields.TextResultImaginary), kMemoryPlaces);
    const std::string realText = expr::NumberToText(real);
    const std::string imaginaryText = expr::NumberToText(imaginary);
    if (expr::PrcniFunc(realText) || expr::PrcniFunc(imaginaryText))
      throw expr::Fault(expr::Fault::kOverflow);
    fields.txtmemoryReal = realText;
    fields.txtmemoryImaginar = imaginaryText;
    fields.lblMemory1 = realText + "+j" + imaginaryText;
    fields.Label4Visible = true;
  } catch (const expr::Fault&) {
    // A sum beyond the range of a number leaves the memory as it was.
    Show(box, kInvalidInput);
  }
}

void MemoryClear(ComplexFields& fields) {
  fields.lblMemory1.clear();
  fields.txtmemoryReal.clear();
  fields.txtmemoryImaginar.clear();
  fields.Label4Visible = false;
}

void MemoryAsZ1(ComplexFields& fields, platform::MessageBox& box) {
  RecallInto(fields, fields.lblZ1, fields.lbla, fields.lblb, box);
}

void MemoryAsZ2(ComplexFields& fields, platform::MessageBox& box) {
  RecallInto(fields, fields.lblZ2, fields.lblc, fields.lbld, box);
}

}  // namespace velmora::complex
