#pragma once

#include <string>

// The rectangular text of a complex number, as its print leaves it.
//
// A print records the two parts and the places; the characters are built on
// the first read. An elimination prints every intermediate value but reads
// few of the texts, and a reparse of a print in plain form needs only the
// rounded parts (see printshortcut.h), so most prints never become text.
// What is read is always exactly what the eager print would have given.
namespace velmora::complex {

class PrintedText {
 public:
  PrintedText() = default;
  explicit PrintedText(std::string text) : text_(std::move(text)) {}

  // The print of re + j im to `places` decimals: "R + jI", "R - jI" or "R"
  // when the imaginary part rounds to nothing. With `conjugate` the sign
  // before the j is the other one. The parts are written in positional form
  // (".00001", not "1E-05"), so that the text reads back as the numbers it
  // shows. Both parts must be finite.
  static PrintedText Print(double re, double im, int places, bool conjugate);
  // The same print, made in place. A part whose rounding overflows (within
  // half a 15-digit step of the largest double) cannot be printed: then the
  // text is left as it was and the fault number is returned; otherwise 0.
  int SetPrint(double re, double im, int places, bool conjugate);

  const std::string& Text() const;
  bool Empty() const;

  // Drops every blank, as the rectangular parser does to its input.
  void Squeeze();

  // When this is a print, gives the values that the rectangular parser reads
  // from its text and returns true. Never throws.
  bool PlainValues(double& re, double& im) const;

 private:
  void Build() const;

  mutable std::string text_;
  mutable bool built_ = true;
  bool printed_ = false;  // the fields below describe text_
  bool conjugate_ = false;
  bool squeezed_ = false;
  int places_ = 15;
  double re_ = 0;
  double im_ = 0;
};

}  // namespace velmora::complex
