#pragma once

#include <array>

#include "complex/complexfields.h"
#include "platform/messagebox.h"

namespace velmora::complex {

// The keypad of the Complex Calculator: four part buttons acting as a radio
// group pick which part field (a, b of Complex 1, c, d of Complex 2) the
// digit, point and sign keys type into, and Clear All starts over. Every key
// reads its operand label first, so a text typed or set elsewhere is what
// the key extends; the label is rebuilt in the "+j" form after each key.
class ComplexKeypad {
 public:
  // The number of part buttons (cmdBroj 1 to 4).
  static constexpr int kParts = 4;

  ComplexKeypad(ComplexFields& fields, platform::MessageBox& box);

  // cmdBroj(index), 1 to 4: every button released, then that one set down.
  // An index outside 1..4 only releases them all.
  void cmdBroj(int index);
  // Whether cmdBroj(index) is down; the first one down receives the keys.
  bool PartDown(int index) const;
  // The index of the first part button down, 0 when none is.
  int ActivePart() const;

  // Number(digit): the digit joins the active part field; a field that reads
  // "0" is emptied first so the digit replaces it.
  void Number(int digit);
  // Decimal: "." joins the field as a digit would; a second point is not
  // refused (the part then reads only up to it).
  void Decimal();
  // cmdPlusMinus: a "0" field is emptied, any other negated.
  void PlusMinus();
  // cmdClearAll: asks "Clear All?"; on OK both operands read "0+j0", the
  // parts "0", the result line is emptied and part 1 is set down. The
  // memory stays. Returns whether the fields were cleared.
  bool ClearAll();

 private:
  // The operand of the active part parsed from its label; null when no part
  // is down. Returns the part field the key types into.
  std::string* ActiveField();
  void RebuildLabel();
  void Type(char key);

  ComplexFields& fields_;
  platform::MessageBox& box_;
  std::array<bool, kParts> down_{true, false, false, false};
};

}  // namespace velmora::complex
