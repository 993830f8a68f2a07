#include "complex/complexkeypad.h"

#include <string>

#include "complex/complexmessages.h"
#include "complex/complexparse.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::complex {
namespace {

constexpr std::string_view kZeroPart = "0";
constexpr std::string_view kClearedOperand = "0+j0";

}  // namespace

ComplexKeypad::ComplexKeypad(ComplexFields& fields, platform::MessageBox& box) : fields_(fields), box_(box) {}

void ComplexKeypad::cmdBroj(int index) {
  down_.fill(false);
  if (index >= 1 && index <= kParts) down_[static_cast<std::size_t>(index - 1)] = true;
}

bool ComplexKeypad::PartDown(int index) const {
  return index >= 1 && index <= kParts && down_[static_cast<std::size_t>(index - 1)];
}

int ComplexKeypad::ActivePart() const {
  for (int index = 1; index <= kParts; ++index) {
    if (PartDown(index)) return index;
  }
  return 0;
}

std::string* ComplexKeypad::ActiveField() {
  switch (ActivePart()) {
    case 1:
    case 2: {
      std::string z1 = fields_.lblZ1;
      ParseZ1(z1, fields_, box_);
      return ActivePart() == 1 ? &fields_.lbla : &fields_.lblb;
    }
    case 3:
    case 4: {
      std::string z2 = fields_.lblZ2;
      ParseZ2(z2, fields_, box_);
      return ActivePart() == 3 ? &fields_.lblc : &fields_.lbld;
    }
    default: return nullptr;
  }
}

void ComplexKeypad::RebuildLabel() {
  if (ActivePart() <= 2) {
    fields_.lblZ1 = fields_.lbla + "+j" + fields_.lblb;
  } else {
    fields_.lblZ2 = fields_.lblc + "+j" + fields_.lbld;
  }
}

void ComplexKeypad::Type(char key) {
  std::string* field = ActiveField();
  if (field == nullptr) return;
  if (*field == kZeroPart) field->clear();
  field->push_back(key);
  RebuildLabel();
}

void ComplexKeypad::Number(int digit) {
  if (digit < 0 || digit > 9) return;
  Type(static_cast<char>('0' + digit));
}

void ComplexKeypad::Decimal() { Type('.'); }

void ComplexKeypad::PlusMinus() {
  std::string* field = ActiveField();
  if (field == nullptr) return;
  if (*field == kZeroPart) {
    field->clear();
  } else {
    try {
      *field = expr::NumberToText(-1.0 * expr::TextToNumber(*field));
    } catch (const expr::Fault&) {
      // A part too long to read as a number keeps its text.
    }
  }
  RebuildLabel();
}

bool ComplexKeypad::ClearAll() {
  const platform::MsgResult answer =
      box_.Show(std::string(kClearAllQuestion.text), std::string(kClearAllQuestion.title),
                kClearAllQuestion.icon, platform::MsgButtons::OkCancel);
  if (answer != platform::MsgResult::Ok) return false;
  fields_.LabelRezultat.clear();
  fields_.lblZ1 = std::string(kClearedOperand);
  fields_.lblZ2 = std::string(kClearedOperand);
  fields_.lbla = fields_.lblb = fields_.lblc = fields_.lbld = std::string(kZeroPart);
  cmdBroj(1);
  return true;
}

}  // namespace velmora::complex
