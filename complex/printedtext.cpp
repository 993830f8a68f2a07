#include "complex/printedtext.h"

#include <algorithm>
#include <cmath>

#include "complex/printshortcut.h"
#include "complex/strtext.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::complex {

PrintedText PrintedText::Print(double re, double im, int places, bool conjugate) {
  PrintedText t;
  t.SetPrint(re, im, places, conjugate);
  return t;
}

int PrintedText::SetPrint(double re, double im, int places, bool conjugate) {
  // Only the very largest values can fault in the rounding; try them now, so
  // that a lazy print can never fault when it is read.
  constexpr double kNearLargest = 1e308;
  if (std::fabs(re) >= kNearLargest || std::fabs(im) >= kNearLargest) {
    try {
      RoundPlaces(re, places);
      RoundPlaces(std::fabs(im), places);
    } catch (const expr::Fault& f) {
      return f.Number();
    }
  }
  text_.clear();
  built_ = false;
  printed_ = true;
  conjugate_ = conjugate;
  squeezed_ = false;
  places_ = places;
  re_ = re;
  im_ = im;
  if (!PrintShortcuts()) Build();
  return 0;
}

void PrintedText::Build() const {
  const std::string r = PositionalText(RoundPlaces(re_, places_));
  const std::string i = PositionalText(RoundPlaces(std::fabs(im_), places_));
  if (expr::TextToNumber(i) == 0) {
    text_ = r;
  } else if ((im_ < 0) != conjugate_) {
    text_ = r + " - j" + i;
  } else {
    text_ = r + " + j" + i;
  }
  if (squeezed_) text_.erase(std::remove(text_.begin(), text_.end(), ' '), text_.end());
  built_ = true;
}

const std::string& PrintedText::Text() const {
  if (!built_) Build();
  return text_;
}

bool PrintedText::Empty() const { return built_ && text_.empty(); }  // a print is never empty

void PrintedText::Squeeze() {
  squeezed_ = true;
  if (built_) text_.erase(std::remove(text_.begin(), text_.end(), ' '), text_.end());
}

bool PrintedText::PlainValues(double& re, double& im) const {
  if (!printed_ || !PrintShortcuts()) return false;
  // A print holds finite parts whose rounding was tried when it was made, so
  // the rounding below cannot fault; the trap keeps this a promise.
  try {
    const double r = RoundPlaces(re_, places_);
    const double i = RoundPlaces(std::fabs(im_), places_);
    re = r + 0.0;  // "-0" is never printed: the text reads back as 0
    if (i == 0) {
      im = 0;
    } else {
      im = (im_ < 0) != conjugate_ ? -i : i;
    }
    return true;
  } catch (const expr::Fault&) {
    return false;
  }
}

}  // namespace velmora::complex
