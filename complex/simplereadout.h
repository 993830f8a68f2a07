#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "complex/complexfields.h"
#include "platform/messagebox.h"

namespace velmora::complex {

// The real functions of the simple readout; with "inv" their inverses.
enum class RealFunction : std::uint8_t { Sin, Cos, Tan, Cot };

// The simple real-number mode of the Complex Calculator: the `Readout`
// display fed digit by digit in the manner of a pocket calculator, its entry
// state (`LastInput`, kept in the fields, and `DecimalFlag`), the real
// functions with "inv" and "deg", and the four check boxes that pick the part
// field mirroring the readout.
class SimpleReadout {
 public:
  // The readout's text at load and after CE.
  static constexpr std::string_view kCleared = "0.";
  // The entry states in LastInput.
  static constexpr std::string_view kNums = "NUMS";
  static constexpr std::string_view kNeg = "NEG";
  static constexpr std::string_view kCancelEntry = "CE";

  SimpleReadout(ComplexFields& fields, platform::MessageBox& box);

  const std::string& Readout() const { return readout_; }
  bool DecimalFlag() const { return decimalFlag_; }

  // Whether the readout is the calculator's entry: the keypad's digits,
  // point and sign then feed it instead of the part fields.
  bool SimpleMode() const { return simpleMode_; }
  void SetSimpleMode(bool on) { simpleMode_ = on; }

  // checka to checkd (index 1 to 4): the first ticked one names the part
  // field (a, b, c, d) that takes the readout's text at each change.
  void SetMirror(int index, bool ticked);
  bool Mirror(int index) const;
  // Check1 "inv" and Check2 "deg".
  void SetInverse(bool on) { inverse_ = on; }
  bool Inverse() const { return inverse_; }
  void SetDegrees(bool on) { degrees_ = on; }
  bool Degrees() const { return degrees_; }

  // A digit: a new number starts at "." unless one is being typed; before
  // the point the digit goes in front of it, after it at the end; a pending
  // sign is put in front.
  void Digit(int digit);
  // The point: the digits that follow go after it.
  void Point();
  // The sign key: negates the number being typed, or makes the next number
  // negative.
  void Sign();
  // CE: the readout back to "0.", a new number next.
  void CancelEntry();
  // The function of the readout's value (with "inv" its inverse, with "deg"
  // in degrees) into the readout. Outside the domain: "Invalid input." and
  // the readout stays.
  void Apply(RealFunction function);

  // A new text of the readout, copied into the mirrored part field, whose
  // operand label is rebuilt so that the next operation reads it.
  void SetReadout(std::string text);

 private:
  ComplexFields& fields_;
  platform::MessageBox& box_;
  std::string readout_{kCleared};
  bool decimalFlag_ = false;
  bool simpleMode_ = false;
  bool inverse_ = false;
  bool degrees_ = false;
  std::array<bool, 4> mirror_{};
};

}  // namespace velmora::complex
