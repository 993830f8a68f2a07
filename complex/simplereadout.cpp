#include "complex/simplereadout.h"

#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

#include "complex/complexmessages.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::complex {
namespace {

constexpr double kDegree = std::numbers::pi / 180.0;

// The text of a number being typed when it starts: the locale's zero-less
// point, with the pending sign in front of it.
constexpr std::string_view kStart = ".";
constexpr std::string_view kNegativeStart = "-.";

std::optional<double> Evaluate(RealFunction function, bool inverse, bool degrees, double x) {
  if (!inverse) {
    const double angle = degrees ? x * kDegree : x;
    switch (function) {
      case RealFunction::Sin: return std::sin(angle);
      case RealFunction::Cos: return std::cos(angle);
      case RealFunction::Tan: return std::tan(angle);
      case RealFunction::Cot: {
        const double tangent = std::tan(angle);
        if (tangent == 0.0) return std::nullopt;  // division by zero
        return 1.0 / tangent;
      }
    }
    return std::nullopt;
  }
  double angle = 0.0;
  switch (function) {
    case RealFunction::Sin:
      if (x < -1.0 || x > 1.0) return std::nullopt;
      angle = std::asin(x);
      break;
    case RealFunction::Cos:
      if (x < -1.0 || x > 1.0) return std::nullopt;
      angle = std::acos(x);
      break;
    case RealFunction::Tan: angle = std::atan(x); break;
    // The arccotangent in (0, pi), so that it is defined at 0 too.
    case RealFunction::Cot: angle = std::numbers::pi / 2.0 - std::atan(x); break;
  }
  return degrees ? angle / kDegree : angle;
}

}  // namespace

SimpleReadout::SimpleReadout(ComplexFields& fields, platform::MessageBox& box) : fields_(fields), box_(box) {}

void SimpleReadout::SetMirror(int index, bool ticked) {
  if (index >= 1 && index <= 4) mirror_[static_cast<std::size_t>(index - 1)] = ticked;
}

bool SimpleReadout::Mirror(int index) const {
  return index >= 1 && index <= 4 && mirror_[static_cast<std::size_t>(index - 1)];
}

void SimpleReadout::SetReadout(std::string text) {
  readout_ = std::move(text);
  if (mirror_[0] || mirror_[1]) {
    (mirror_[0] ? fields_.lbla : fields_.lblb) = readout_;
    fields_.lblZ1 = fields_.lbla + "+j" + fields_.lblb;
  } else if (mirror_[2] || mirror_[3]) {
    (mirror_[2] ? fields_.lblc : fields_.lbld) = readout_;
    fields_.lblZ2 = fields_.lblc + "+j" + fields_.lbld;
  }
}

void SimpleReadout::Digit(int digit) {
  if (digit < 0 || digit > 9) return;
  std::string text = readout_;
  if (fields_.LastInput != kNums) {
    text = std::string(kStart);
    decimalFlag_ = false;
  }
  const char key = static_cast<char>('0' + digit);
  if (decimalFlag_) {
    text.push_back(key);
  } else {
    const std::size_t point = text.find('.');
    // A readout without its point (a function's result is never typed on)
    // is the invalid-argument fault that the routine ignores: nothing
    // changes.
    if (point == std::string::npos) return;
    text = text.substr(0, point) + key + ".";
  }
  if (fields_.LastInput == kNeg) text = "-" + text;
  fields_.LastInput = std::string(kNums);
  SetReadout(std::move(text));
}

void SimpleReadout::Point() {
  if (fields_.LastInput == kNeg) {
    SetReadout(std::string(kNegativeStart));
  } else if (fields_.LastInput != kNums) {
    SetReadout(std::string(kStart));
  }
  decimalFlag_ = true;
  fields_.LastInput = std::string(kNums);
}

void SimpleReadout::Sign() {
  if (fields_.LastInput == kNums) {
    std::string text = readout_;
    if (!text.empty() && text.front() == '-') {
      text.erase(0, 1);
    } else {
      text.insert(0, 1, '-');
    }
    SetReadout(std::move(text));
    return;
  }
  fields_.LastInput = std::string(kNeg);
  decimalFlag_ = false;
  SetReadout(std::string(kNegativeStart));
}

void SimpleReadout::CancelEntry() {
  decimalFlag_ = false;
  fields_.LastInput = std::string(kCancelEntry);
  SetReadout(std::string(kCleared));
}

void SimpleReadout::Apply(RealFunction function) {
  std::optional<double> value;
  try {
    value = Evaluate(function, inverse_, degrees_, expr::TextToNumber(readout_));
  } catch (const expr::Fault&) {
    value.reset();
  }
  if (!value || !std::isfinite(*value)) {
    Show(box_, kReadoutInvalidInput);
    return;
  }
  // The result is a finished number: the next digit starts a new one.
  decimalFlag_ = false;
  fields_.LastInput = std::string(kCancelEntry);
  SetReadout(expr::NumberToText(*value));
}

}  // namespace velmora::complex
