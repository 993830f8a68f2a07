#pragma once

#include <optional>
#include <string_view>

#include "complex/complexfields.h"
#include "complex/complexlibrary.h"
#include "complex/complextables.h"
#include "platform/messagebox.h"

namespace velmora::complex {

// The logic of the Complex Calculator window: the operations on Complex 1
// (a + ib, in lblZ1) and Complex 2 (c + id, in lblZ2) by the direct buttons
// and by the function list with CALCULATE !, and the popup's replace, swap
// and conjugate. All arithmetic is the 6-place library. The window binds
// Fields() to its controls and forwards its clicks here.
class ComplexCalculator {
 public:
  // The form's load: "Addition" selected with its rule.
  explicit ComplexCalculator(platform::MessageBox& box);

  ComplexFields& Fields() { return fields_; }
  const ComplexFields& Fields() const { return fields_; }
  // The last result as numbers; the fields show them through their text.
  double ResultReal() const { return resultReal_; }
  double ResultImag() const { return resultImag_; }

  // The button of an operation: parse the operands, run the button's test,
  // the arithmetic, show the result and log it. Returns false when the
  // button's test refused the operands (its message shown, nothing changed).
  // A fault that leaves the arithmetic shows "Invalid input." and the steps
  // go on with the stale result.
  bool Run(Operation operation);

  // A click in ComboFunction: the entry's text and its rule.
  void SelectFunction(std::string_view entry);
  // CALCULATE !: the operation of the entry named by ComboFunction. Returns
  // false when a test refused the operands or the text is no entry.
  bool CommandCalculateClick();

  // The popup: the result into an operand, swap, conjugates.
  void ReplaceZ1WithResult();
  void ReplaceZ2WithResult();
  void Swap();
  void ConjugateZ1();
  void ConjugateZ2();

 private:
  struct Parts {
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    double d = 0.0;
  };

  bool RunLogBase();
  bool CalculateSelected();
  void ParseOperands(Operands operands);
  // The part fields of the operands as numbers; a part too large to read
  // shows its box and gives nothing, and the operation ends unchanged.
  std::optional<Parts> ReadParts(Operands operands) const;
  void Compute(Operation operation, const Parts& p);
  void ShowResultFields();
  void ShowResult(bool realResult);
  void AppendLog(const std::string& expression, std::string_view ending);

  platform::MessageBox& box_;
  Complex library_;
  ComplexFields fields_;
  double resultReal_ = 0.0;
  double resultImag_ = 0.0;
};

}  // namespace velmora::complex
