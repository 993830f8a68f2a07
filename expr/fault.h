#pragma once

#include <exception>
#include <string>

namespace velmora::expr {

// A trapped run-time fault: what a checked floating-point operation, a
// narrowing conversion or a primitive outside its domain raises. Routines
// trap it where their own rules say (the evaluator turns it into error 16,
// a plot skips the sample). It never leaves a class that keeps an error field.
class Fault : public std::exception {
 public:
  // The platform's run-time error numbers that the program tells apart.
  static constexpr int kInvalidCall = 5;
  static constexpr int kOverflow = 6;
  static constexpr int kOutOfMemory = 7;
  static constexpr int kSubscriptOutOfRange = 9;
  static constexpr int kDivisionByZero = 11;
  static constexpr int kTypeMismatch = 13;
  // Recursion past the depth the program allows (deeply nested brackets).
  static constexpr int kOutOfStackSpace = 28;
  // A window that is not there, as when no graph window is active.
  static constexpr int kObjectNotSet = 91;

  explicit Fault(int number);

  int Number() const noexcept { return number_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  int number_;
  std::string description_;
};

// The platform's description of a run-time error number.
std::string FaultDescription(int number);

}  // namespace velmora::expr
