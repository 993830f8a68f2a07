#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora::graph {

struct LabelStyle;

// A colour as the program keeps it: a 24-bit integer with blue in the high
// byte (0x00BBGGRR).
using Colour = std::uint32_t;
constexpr Colour Rgb(int red, int green, int blue) {
  return static_cast<Colour>((red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16));
}
constexpr int RedOf(Colour c) { return static_cast<int>(c & 0xFF); }
constexpr int GreenOf(Colour c) { return static_cast<int>((c >> 8) & 0xFF); }
constexpr int BlueOf(Colour c) { return static_cast<int>((c >> 16) & 0xFF); }

// Pen styles of a picture box.
enum DrawStyleValue : int {
  kSolid = 0,
  kDash = 1,
  kDot = 2,
  kDashDot = 3,
  kDashDotDot = 4,
  kInvisible = 5,
  kInsideSolid = 6,
};

// The drawing surface of a graph window (`pDraw`): a picture box in pixel
// scale whose picture persists between commands. Curves, grid and numbers
// are drawn on it directly; nothing is repainted by hand. The operations are
// those of the picture box: a current point that Line, Circle and Print
// move, a pen (DrawStyle, DrawWidth), a fore colour for text, and a font.
//
// Coordinates are pixels from the top left, Y growing downward. A
// coordinate that is not finite or lies beyond 2^31 cannot reach the device
// and faults (expr::Fault, overflow), as the platform's own picture box does.
class Surface {
 public:
  virtual ~Surface() = default;

  // The size of the drawing area in pixels.
  virtual double ScaleWidth() const = 0;
  virtual double ScaleHeight() const = 0;

  // Cls: fills the surface with the back colour; the current point goes to (0, 0).
  virtual void Clear() = 0;
  virtual Colour BackColor() const = 0;
  virtual void SetBackColor(Colour colour) = 0;
  // The colour of printed text.
  virtual Colour ForeColor() const = 0;
  virtual void SetForeColor(Colour colour) = 0;

  virtual int DrawStyle() const = 0;
  virtual void SetDrawStyle(int style) = 0;
  // Faults (invalid call) for a width below 1.
  virtual int DrawWidth() const = 0;
  virtual void SetDrawWidth(int width) = 0;

  virtual double CurrentX() const = 0;
  virtual void SetCurrentX(double x) = 0;
  virtual double CurrentY() const = 0;
  virtual void SetCurrentY(double y) = 0;

  // Line (x1, y1)-(x2, y2) in a colour, with the current pen; the current
  // point becomes (x2, y2).
  virtual void Line(double x1, double y1, double x2, double y2, Colour colour) = 0;
  // Line -(x2, y2): from the current point.
  virtual void LineTo(double x2, double y2, Colour colour) = 0;
  // A circle outline with the current pen; the current point becomes the centre.
  virtual void Circle(double x, double y, double radius, Colour colour) = 0;
  // Prints text with its top left at the current point in the fore colour,
  // over a box of the back colour unless FontTransparent is set. Then the
  // current point goes to the start of the next line: CurrentX = 0,
  // CurrentY + the text height.
  virtual void Print(std::string_view text) = 0;

  // Reading FontName back after setting it tells whether the font exists:
  // a missing font reads back as the name of the font that stands in for it.
  virtual std::string FontName() const = 0;
  virtual void SetFontName(std::string_view name) = 0;
  virtual double FontSize() const = 0;
  virtual void SetFontSize(double points) = 0;
  virtual bool FontBold() const = 0;
  virtual void SetFontBold(bool bold) = 0;
  virtual bool FontTransparent() const = 0;
  virtual void SetFontTransparent(bool transparent) = 0;

  // The size of a text in the current font, in pixels.
  virtual double TextWidth(std::string_view text) const = 0;
  virtual double TextHeight(std::string_view text) const = 0;

  // Copies a label's box onto the picture with its top left at (left, top):
  // the text in its font, colour and angle over the box's background
  // `back`, which a transparent label leaves out pixel by pixel. A surface
  // without pixels draws nothing.
  virtual void BurnLabel(const LabelStyle& /*label*/, double /*left*/, double /*top*/, Colour /*back*/) {}
};

}  // namespace velmora::graph
