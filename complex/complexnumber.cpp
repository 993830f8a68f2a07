#include "complex/complexnumber.h"

#include <algorithm>
#include <cmath>

#include "complex/printshortcut.h"
#include "complex/strtext.h"
#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::complex {
namespace {

using expr::Fault;

constexpr const char* kBadRectangular = kInvalidComplexNumber;
constexpr const char* kBadPolar = "You must enter a valid complex number in polar form.";
constexpr std::int16_t kTooManySigns = 1001;
constexpr std::int16_t kTooManyLetters = 1002;
constexpr std::int16_t kNoSeparator = 1001;
constexpr std::int16_t kNotNumeric = 1002;

// More roots than this cannot be held; asking for them is an out-of-memory
// failure rather than minutes of work.
constexpr std::int32_t kMaxRoots = 1 << 20;

std::string WithoutBlanks(const std::string& s) {
  std::string out;
  out.reserve(s.size());
  for (char c : s)
    if (c != ' ') out.push_back(c);
  return out;
}

// Pi as arctangent(1) * 4, taken once rather than for every number made.
double PiValue() {
  static const double pi = std::atan(1.0) * 4;
  return pi;
}

}  // namespace

ComplexNumber::ComplexNumber() : pi_(PiValue()) {}

void ComplexNumber::SetImaginary(double value) {
  imaginary_ = value;
  parsedClean_ = false;
}
void ComplexNumber::SetReal(double value) {
  real_ = value;
  parsedClean_ = false;
}
void ComplexNumber::SetModulus(double value) {
  modulus_ = value;
  parsedClean_ = false;
}
void ComplexNumber::SetAngle(double value) {
  StoreAngle(value);
  parsedClean_ = false;
}

void ComplexNumber::SetRectText(std::string text) {
  rectText_ = PrintedText(std::move(text));
  ParseRectangular();
}

void ComplexNumber::SetPolarText(std::string text) {
  polarText_ = std::move(text);
  ParsePolar();
}

const std::string& ComplexNumber::Root(std::int32_t index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= rootTexts_.size())
    throw Fault(Fault::kSubscriptOutOfRange);
  return rootTexts_[static_cast<std::size_t>(index)];
}

void ComplexNumber::RecordFault(int number) {
  errNumber_ = static_cast<std::int16_t>(number);
  errDescription_ = expr::FaultDescription(number);
}

void ComplexNumber::SetParseFailure(std::int16_t number, const char* description) {
  errNumber_ = number;
  errDescription_ = description;
}

std::int32_t ComplexNumber::Places(std::int32_t lngPlaces) const {
  return lngPlaces > precision_ || lngPlaces < 1 ? precision_ : lngPlaces;
}

bool ComplexNumber::Negate() {
  parsedClean_ = false;
  try {
    real_ = expr::CheckedMul(real_, -1.0);
    imaginary_ = expr::CheckedMul(imaginary_, -1.0);
    RectangularToPolarCore();
    return true;
  } catch (const Fault& f) {
    RecordFault(f.Number());
    return false;
  }
}

void ComplexNumber::Power(double n) {
  parsedClean_ = false;
  int fault = 0;
  try {
    // One statement after the other, so the first fault met is the one kept.
    double power = expr::CheckedPow(modulus_, n);
    real_ = expr::CheckedMul(power, expr::Checked(std::cos(expr::CheckedMul(Angle(), n))));
    power = expr::CheckedPow(modulus_, n);
    imaginary_ = expr::CheckedMul(power, expr::Checked(std::sin(expr::CheckedMul(Angle(), n))));
    RectangularToPolarCore();
  } catch (const Fault& f) {
    fault = f.Number();
  }
  errNumber_ = static_cast<std::int16_t>(fault);
  errDescription_ = fault == 0 ? std::string() : expr::FaultDescription(fault);
}

void ComplexNumber::Roots(double n, std::int32_t lngPlaces) {
  const std::int32_t places = Places(lngPlaces);
  int fault = 0;
  try {
    const std::int32_t last = expr::ToLong(expr::CheckedSub(n, 1));
    if (last < 0) throw Fault(Fault::kSubscriptOutOfRange);
    if (last >= kMaxRoots) throw Fault(Fault::kOutOfMemory);
    rootTexts_.assign(static_cast<std::size_t>(last) + 1, std::string());
    for (std::int32_t k = 0; k <= last; ++k) {
      const double t =
          expr::CheckedDiv(expr::CheckedAdd(expr::CheckedMul(expr::CheckedMul(2, k), pi_), Angle()), n);
      const double r = expr::CheckedPow(modulus_, expr::CheckedDiv(1, n));
      const double re = expr::CheckedMul(r, std::cos(t));
      const double im = expr::CheckedMul(r, std::sin(t));
      // The untrimmed print: a non-negative part keeps its leading blank.
      std::string text = StrText(RoundPlaces(re, places));
      if (im >= 0) {
        text += " + j" + StrText(RoundPlaces(im, places));
      } else {
        text += " - j" + StrText(std::fabs(RoundPlaces(im, places)));
      }
      rootTexts_[static_cast<std::size_t>(k)] = std::move(text);
    }
  } catch (const Fault& f) {
    fault = f.Number();
  }
  errNumber_ = static_cast<std::int16_t>(fault);
  errDescription_ = fault == 0 ? std::string() : expr::FaultDescription(fault);
}

void ComplexNumber::Divide(const ComplexNumber& a, const ComplexNumber& b) {
  parsedClean_ = false;
  int fault = 0;
  try {
    // Each statement reads the operands afresh, so an operand that is this
    // object is seen with the parts written so far.
    const double d =
        expr::CheckedAdd(expr::CheckedMul(expr::CheckedMul(b.Imaginary(), -1), b.ConjImaginary()),
                         expr::CheckedMul(b.Real(), b.Real()));
    real_ = expr::CheckedDiv(
        expr::CheckedAdd(expr::CheckedMul(expr::CheckedMul(a.Imaginary(), -1), b.ConjImaginary()),
                         expr::CheckedMul(b.Real(), a.Real())),
        d);
    imaginary_ = expr::CheckedDiv(expr::CheckedAdd(expr::CheckedMul(a.Imaginary(), b.Real()),
                                                   expr::CheckedMul(b.ConjImaginary(), a.Real())),
                                  d);
    conjImaginary_ = -imaginary_;
    RectangularToPolarCore();
  } catch (const Fault& f) {
    fault = f.Number();
  }
  errNumber_ = static_cast<std::int16_t>(fault);
  errDescription_ = fault == 0 ? std::string() : expr::FaultDescription(fault);
}

bool ComplexNumber::Multiply(const ComplexNumber& a, const ComplexNumber& b) {
  parsedClean_ = false;
  try {
    real_ = expr::CheckedAdd(expr::CheckedMul(expr::CheckedMul(a.Imaginary(), b.Imaginary()), -1),
                             expr::CheckedMul(b.Real(), a.Real()));
    imaginary_ = expr::CheckedAdd(expr::CheckedMul(a.Imaginary(), b.Real()),
                                  expr::CheckedMul(b.Imaginary(), a.Real()));
    RectangularToPolarCore();
    return true;
  } catch (const Fault& f) {
    RecordFault(f.Number());
    return false;
  }
}

bool ComplexNumber::Subtract(const ComplexNumber& a, const ComplexNumber& b) {
  parsedClean_ = false;
  try {
    real_ = expr::CheckedSub(a.Real(), b.Real());
    imaginary_ = expr::CheckedSub(a.Imaginary(), b.Imaginary());
    RectangularToPolarCore();
    return true;
  } catch (const Fault& f) {
    RecordFault(f.Number());
    return false;
  }
}

bool ComplexNumber::Add(const ComplexNumber& a, const ComplexNumber& b) {
  parsedClean_ = false;
  try {
    real_ = expr::CheckedAdd(a.Real(), b.Real());
    imaginary_ = expr::CheckedAdd(a.Imaginary(), b.Imaginary());
    RectangularToPolarCore();
    return true;
  } catch (const Fault& f) {
    RecordFault(f.Number());
    return false;
  }
}

void ComplexNumber::FormatRectangular(std::int32_t lngPlaces) {
  parsedClean_ = false;
  const std::int32_t places = Places(lngPlaces);
  conjImaginary_ = imaginary_ * -1;
  if (!std::isfinite(real_) || !std::isfinite(imaginary_)) {
    RecordFault(Fault::kOverflow);
    return;
  }
  // A part at the very top of the range overflows in its rounding: the
  // texts stay as they were and the overflow is recorded.
  if (const int fault = rectText_.SetPrint(real_, imaginary_, places, false); fault != 0) {
    RecordFault(fault);
    return;
  }
  conjText_.SetPrint(real_, imaginary_, places, true);
}

void ComplexNumber::FormatPolar(std::int32_t lngPlaces) {
  const std::int32_t places = Places(lngPlaces);
  try {
    const std::string m = ShortText(expr::RoundTo(expr::Checked(modulus_), places));
    const std::string a = ShortText(expr::RoundTo(expr::Checked(Angle()), places));
    const std::string g =
        ShortText(expr::RoundTo(expr::CheckedDiv(expr::CheckedMul(Angle(), 180), pi_), places));
    polarText_ = m + " / " + a + " rad" + "\r\n" + m + " / " + g + " deg";
  } catch (const Fault& f) {
    RecordFault(f.Number());
  }
}

void ComplexNumber::ParseRectangular() {
  parsedClean_ = false;
  parseOverflowed_ = false;
  if (rectText_.Empty()) return;
  double re = 0;
  double im = 0;
  if (rectText_.PlainValues(re, im)) {
    // A print in plain form reads back as its rounded parts.
    rectText_.Squeeze();
    real_ = re;
    imaginary_ = im;
    conjImaginary_ = -imaginary_;
    try {
      RectangularToPolarCore();
      parsedClean_ = true;
    } catch (const Fault& f) {
      RecordFault(f.Number());
      parseOverflowed_ = true;
    }
    return;
  }
  try {
    ParseRectangularText();
  } catch (const Fault& f) {
    // Only a number too large for a double, or for the square taken for the
    // modulus, faults in a parse.
    RecordFault(f.Number());
    parseOverflowed_ = true;
  }
}

void ComplexNumber::ParseRectangularText() {
  const std::string s = WithoutBlanks(rectText_.Text());
  rectText_ = PrintedText(s);
  std::size_t length = s.size();
  int signs = 0;
  int letters = 0;
  std::size_t letterPos = 0;  // 1-based position of the (last) letter
  std::string before;         // the character just before it
  char previous = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const char c = s[i];
    if (c == '+' || c == '-') {
      if (++signs > 2) {
        SetParseFailure(kTooManySigns, kBadRectangular);
        return;
      }
    } else if (IsLetter(static_cast<unsigned char>(c))) {
      ++letters;
      letterPos = i + 1;
      before = previous != 0 ? std::string(1, previous) : std::string();
      if (letters > 1) {
        SetParseFailure(kTooManyLetters, kBadRectangular);
        return;
      }
    }
    previous = c;
  }
  std::string realText;
  std::string imagText;
  if (letters == 0) {
    realText = s;
    imagText = "0";
  } else {
    // Any letter is the imaginary unit, and the character before it is taken
    // as the sign of what follows it.
    imagText = before + s.substr(letterPos);
    if (imagText == "+" || imagText == "-" || imagText.empty()) {
      imagText = before + "1";
      ++length;
    }
    const std::size_t used = imagText.size() + 1;
    const std::size_t take = length > used ? std::min(length - used, s.size()) : 0;
    realText = s.substr(0, take);
    if (realText.empty()) realText = "0";
  }
  real_ = expr::TextToNumber(realText);
  imaginary_ = expr::TextToNumber(imagText);
  conjImaginary_ = -imaginary_;
  RectangularToPolarCore();
  parsedClean_ = true;
}

void ComplexNumber::ParsePolar() {
  parsedClean_ = false;
  try {
    const std::string s = WithoutBlanks(polarText_);
    polarText_ = s;
    std::size_t length = s.size();
    bool degrees = false;
    if (length > 0) {
      const char unit = s[length - 1];
      if (unit == 'd' || unit == 'D') {
        degrees = true;
        --length;
      } else if (unit == 'r' || unit == 'R') {
        --length;
      }
    }
    std::size_t separator = 0;  // 1-based; the last one counts
    for (std::size_t i = 0; i < length; ++i)
      if (s[i] == '/' || s[i] == '\\') separator = i + 1;
    if (separator == 0) {
      SetParseFailure(kNoSeparator, kBadPolar);
      return;
    }
    const std::string modulusText = s.substr(0, separator - 1);
    if (expr::IsNumericText(modulusText)) {
      modulus_ = expr::TextToNumber(modulusText);
    } else {
      SetParseFailure(kNotNumeric, kBadPolar);
    }
    const std::string angleText = s.substr(separator, length - separator);
    if (expr::IsNumericText(angleText)) {
      StoreAngle(expr::TextToNumber(angleText));
    } else {
      SetParseFailure(kNotNumeric, kBadPolar);
    }
    if (degrees) StoreAngle(expr::CheckedDiv(expr::CheckedMul(pi_, Angle()), 180));
    PolarToRectangularCore();
  } catch (const Fault& f) {
    RecordFault(f.Number());
  }
}

void ComplexNumber::PolarToRectangular() {
  parsedClean_ = false;
  try {
    PolarToRectangularCore();
  } catch (const Fault& f) {
    RecordFault(f.Number());
  }
}

void ComplexNumber::PolarToRectangularCore() {
  real_ = expr::CheckedMul(expr::Checked(std::cos(Angle())), modulus_);
  imaginary_ = expr::CheckedMul(expr::Checked(std::sin(Angle())), modulus_);
  conjImaginary_ = -imaginary_;
}

void ComplexNumber::RectangularToPolar() {
  parsedClean_ = false;
  try {
    RectangularToPolarCore();
  } catch (const Fault& f) {
    RecordFault(f.Number());
  }
}

void ComplexNumber::RectangularToPolarCore() {
  const double x = real_;
  const double y = imaginary_;
  modulus_ = std::sqrt(expr::CheckedAdd(expr::CheckedMul(x, x), expr::CheckedMul(y, y)));
  // The quadrant step: nothing for x and y not negative, pi for x negative
  // (y of either sign), 2 pi for y negative and x not negative.
  int turn = 0;
  if (y >= 0 && x >= 0) {
    turn = 0;
  } else if (x < 0) {
    turn = 1;
  } else if (y < 0 && x >= 0) {
    turn = 2;
  }
  if (x != 0) {
    angleRatio_ = expr::CheckedDiv(y, x);
    angleTurn_ = turn;
    anglePending_ = true;
    return;
  }
  double angle = 0;
  if (y > 0) {
    angle = pi_ / 2;
  } else if (y < 0) {
    angle = -pi_ / 2;
  } else {
    angle = std::atan(1.0);  // the angle of zero is a quarter of pi
  }
  if (turn == 1) angle = angle + pi_;
  if (turn == 2) angle = angle + 2 * pi_;
  StoreAngle(angle);
}

void ComplexNumber::StoreAngle(double value) {
  angle_ = value;
  anglePending_ = false;
}

void ComplexNumber::SettleAngle() const {
  angle_ = std::atan(angleRatio_);
  if (angleTurn_ == 1) angle_ = angle_ + pi_;
  if (angleTurn_ == 2) angle_ = angle_ + 2 * pi_;
  anglePending_ = false;
}

bool ComplexNumber::IsLetter(int code) { return (code >= 65 && code <= 90) || (code >= 97 && code <= 122); }

void ComplexNumber::CopyRectText(const ComplexNumber& other) {
  if (&other == this) {
    ParseRectangular();
    return;
  }
  rectText_ = other.rectText_;
  if (other.parsedClean_ && !other.rectText_.Empty() && PrintShortcuts()) {
    real_ = other.real_;
    imaginary_ = other.imaginary_;
    conjImaginary_ = other.conjImaginary_;
    modulus_ = other.modulus_;
    angle_ = other.angle_;
    anglePending_ = other.anglePending_;
    angleRatio_ = other.angleRatio_;
    angleTurn_ = other.angleTurn_;
    parsedClean_ = true;
    parseOverflowed_ = false;
    return;
  }
  ParseRectangular();
}

}  // namespace velmora::complex
