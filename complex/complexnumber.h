#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "complex/printedtext.h"

namespace velmora::complex {

// The message of a rectangular text that cannot be read as a number: the
// parser's ErrDescription, and the message of a matrix entry refused.
inline constexpr const char* kInvalidComplexNumber = "You must enter a valid complex number.";

// A complex number held in both forms at once, rectangular and polar, with
// the texts of both forms, the roots of its last root extraction and the code
// of its last failure. It is the value behind every matrix entry.
//
// Nothing here throws (except Root with an index outside the roots, which is
// the caller's bounds failure): a failed parse or calculation leaves a
// number and a text in ErrNumber and ErrDescription. Power, Roots and Divide
// run guarded and always leave their outcome there (0 and "" on success). The
// parsers write the two fields only on failure. The unguarded operations
// (Add, Subtract, Multiply, Negate and the conversions between the forms)
// record an overflow there too, and the four arithmetic ones also return
// false, so that a caller can treat it as a failure of its own.
//
// The numbers are doubles; rounding happens only when a form is printed, to
// the places given per call (1 to 15; anything else means 15).
class ComplexNumber {
 public:
  ComplexNumber();

  // Plain reads and stores: nothing else is recomputed.
  double Imaginary() const { return imaginary_; }
  void SetImaginary(double value);
  double Real() const { return real_; }
  void SetReal(double value);
  double Modulus() const { return modulus_; }
  void SetModulus(double value);
  double Angle() const {
    if (anglePending_) SettleAngle();
    return angle_;
  }
  void SetAngle(double value);

  // Minus the imaginary part, as of the last parse, print or division.
  double ConjImaginary() const { return conjImaginary_; }
  const std::string& ConjText() const { return conjText_.Text(); }
  std::int16_t ErrNumber() const { return errNumber_; }
  const std::string& ErrDescription() const { return errDescription_; }

  // Storing a text parses it.
  void SetRectText(std::string text);
  // True when the last rectangular parse met a number too large to hold: a
  // part beyond the range of a double, or one whose square (for the modulus)
  // is. The overflow is recorded as any fault; a reader of typed entries
  // refuses such an entry instead of taking the numbers it was left with.
  bool ParseOverflowed() const { return parseOverflowed_; }
  const std::string& RectText() const { return rectText_.Text(); }
  void SetPolarText(std::string text);
  const std::string& PolarText() const { return polarText_; }

  // Root `index` of the last Roots; outside them a bounds failure
  // (expr::Fault 9) of the caller.
  const std::string& Root(std::int32_t index) const;
  std::size_t RootCount() const { return rootTexts_.size(); }

  // Both parts times -1, then the polar form.
  bool Negate();
  // Modulus^n at n times the angle.
  void Power(double n);
  // The n-th roots into the root texts, printed to lngPlaces.
  void Roots(double n, std::int32_t lngPlaces);
  // This object becomes a / b. Reads b's stored ConjImaginary, not its
  // Imaginary: a stale conjugate field gives a wrong quotient.
  void Divide(const ComplexNumber& a, const ComplexNumber& b);
  // This object becomes a * b. No copy is taken: with this object as `a`,
  // the imaginary part is computed with the new real part.
  bool Multiply(const ComplexNumber& a, const ComplexNumber& b);
  bool Subtract(const ComplexNumber& a, const ComplexNumber& b);
  bool Add(const ComplexNumber& a, const ComplexNumber& b);

  // Fills RectText and ConjText (and refreshes ConjImaginary).
  void FormatRectangular(std::int32_t lngPlaces);
  // Fills PolarText: "M / A rad" CR LF "M / G deg".
  void FormatPolar(std::int32_t lngPlaces);

  // The steps behind the text setters and the arithmetic.
  void ParseRectangular();
  void ParsePolar();
  void PolarToRectangular();
  void RectangularToPolar();
  static bool IsLetter(int code);

  // SetRectText(other.RectText()), the move by which every matrix entry
  // travels. It skips the characters when the other number's value is
  // already known to be what its text reads as.
  void CopyRectText(const ComplexNumber& other);

 private:
  void RecordFault(int number);
  void SetParseFailure(std::int16_t number, const char* description);
  void ParseRectangularText();
  void RectangularToPolarCore();
  void PolarToRectangularCore();
  std::int32_t Places(std::int32_t lngPlaces) const;
  void StoreAngle(double value);
  void SettleAngle() const;

  PrintedText rectText_;
  std::string polarText_;
  PrintedText conjText_;
  double real_ = 0;
  double imaginary_ = 0;
  double conjImaginary_ = 0;
  double modulus_ = 0;
  // The angle's arctangent is taken when the angle is first read: most
  // numbers of an elimination are never asked for theirs. Until then the
  // ratio y / x and the quadrant's turn (0, 1 or 2 times pi) stand for it.
  mutable double angle_ = 0;
  mutable bool anglePending_ = false;
  double angleRatio_ = 0;
  int angleTurn_ = 0;
  double pi_;
  std::int32_t precision_ = 15;
  std::vector<std::string> rootTexts_;
  std::int16_t errNumber_ = 0;
  std::string errDescription_;
  // True while the numbers are exactly what a new object would hold after
  // parsing RectText: then a copy through the text may copy the numbers.
  bool parsedClean_ = false;
  bool parseOverflowed_ = false;
};

}  // namespace velmora::complex
