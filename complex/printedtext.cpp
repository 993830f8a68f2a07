#include "complex/printedtext.h"

#include <algorithm>
#include <cmath>

#include "complex/printshortcut.h"
#include "complex/strtext.h"
#include "expr/numtext.h"

namespace velmora::complex {

PrintedText PrintedText::Print(double re, double im, int places, bool conjugate) {
  PrintedText t;
  t.SetPrint(re, im, places, conjugate);
  return t;
}

void PrintedText::SetPrint(double re, double im, int places, bool conjugate) {
  text_.clear();
  built_ = false;
  printed_ = true;
  conjugate_ = conjugate;
  squeezed_ = false;
  places_ = places;
  re_ = re;
  im_ = im;
  if (!PrintShortcuts()) Build();
}

void PrintedText::Build() const {
  const std::string r = ShortText(RoundPlaces(re_, places_));
  const std::string i = ShortText(RoundPlaces(std::fabs(im_), places_));
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
  const double r = RoundPlaces(re_, places_);
  const double i = RoundPlaces(std::fabs(im_), places_);
  if (!PrintsPlain(r) || !PrintsPlain(i)) return false;
  re = r + 0.0;  // "-0" is never printed: the text reads back as 0
  if (i == 0) {
    im = 0;
  } else {
    im = (im_ < 0) != conjugate_ ? -i : i;
  }
  return true;
}

}  // namespace velmora::complex
