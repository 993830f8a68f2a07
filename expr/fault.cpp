#include "expr/fault.h"

namespace velmora::expr {

std::string FaultDescription(int number) {
  switch (number) {
    case Fault::kInvalidCall: return "Invalid procedure call or argument";
    case Fault::kOverflow: return "Overflow";
    case Fault::kOutOfMemory: return "Out of memory";
    case Fault::kSubscriptOutOfRange: return "Subscript out of range";
    case Fault::kDivisionByZero: return "Division by zero";
    case Fault::kTypeMismatch: return "Type mismatch";
    case Fault::kOutOfStackSpace: return "Out of stack space";
    case Fault::kObjectNotSet: return "Object variable or With block variable not set";
    default: return "Application-defined or object-defined error";
  }
}

Fault::Fault(int number) : number_(number), description_(FaultDescription(number)) {}

}  // namespace velmora::expr
