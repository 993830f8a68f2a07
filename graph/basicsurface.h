#pragma once

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "graph/surface.h"

namespace velmora::graph {

// The state of a picture box (size, current point, pen, colours, font) with
// no pixels behind it. On its own it is the surface of a run without a
// screen: the graph logic behaves exactly as on screen and nothing is
// painted. Painting surfaces derive from it and put pixels where the Paint
// hooks say; the state rules live here once.
class BasicSurface : public Surface {
 public:
  // The font names that exist. "MS Sans Serif" and "Arial" always resolve:
  // every platform has a stand-in for them.
  explicit BasicSurface(int width, int height, std::vector<std::string> extraFonts = {});

  double ScaleWidth() const override { return width_; }
  double ScaleHeight() const override { return height_; }
  // A new size; the picture keeps what fits (painting surfaces).
  virtual void Resize(int width, int height);

  void Clear() override;
  Colour BackColor() const override { return backColor_; }
  void SetBackColor(Colour colour) override { backColor_ = colour & 0xFFFFFF; }
  Colour ForeColor() const override { return foreColor_; }
  void SetForeColor(Colour colour) override { foreColor_ = colour & 0xFFFFFF; }

  int DrawStyle() const override { return drawStyle_; }
  void SetDrawStyle(int style) override;
  int DrawWidth() const override { return drawWidth_; }
  void SetDrawWidth(int width) override;

  double CurrentX() const override { return currentX_; }
  void SetCurrentX(double x) override { currentX_ = x; }
  double CurrentY() const override { return currentY_; }
  void SetCurrentY(double y) override { currentY_ = y; }

  void Line(double x1, double y1, double x2, double y2, Colour colour) override;
  void LineTo(double x2, double y2, Colour colour) override;
  void Circle(double x, double y, double radius, Colour colour) override;
  void Print(std::string_view text) override;

  std::string FontName() const override { return fontName_; }
  void SetFontName(std::string_view name) override;
  double FontSize() const override { return fontSize_; }
  void SetFontSize(double points) override;
  bool FontBold() const override { return fontBold_; }
  void SetFontBold(bool bold) override {
    fontBold_ = bold;
    FontChanged();
  }
  bool FontTransparent() const override { return fontTransparent_; }
  void SetFontTransparent(bool transparent) override { fontTransparent_ = transparent; }

  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;

 protected:
  // Hooks for painting surfaces; the state has been checked and updated.
  virtual void PaintClear() {}
  // A segment as the picture box's Line paints it: from the pixel the start
  // falls in to the pixel the end falls in (PixelOf), both ends painted, so
  // consecutive segments of a curve always touch. The coordinates come as
  // the caller gave them (CurrentX and CurrentY keep them unrounded).
  virtual void PaintLine(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, Colour /*colour*/) {}
  virtual void PaintCircle(double /*x*/, double /*y*/, double /*radius*/, Colour /*colour*/) {}
  virtual void PaintText(double /*x*/, double /*y*/, std::string_view /*text*/) {}
  virtual void FontChanged() {}
  // The name a font reads back as after it is set: itself when it exists,
  // else the name of its stand-in.
  virtual std::string ResolveFontName(std::string_view requested) const;

  // The pixel a coordinate falls in: the one whose centre is nearest.
  static int PixelOf(double value) { return static_cast<int>(std::floor(value + 0.5)); }
  // Faults (overflow) for a coordinate that cannot reach the device.
  static void CheckCoordinate(double value);

 private:
  int width_;
  int height_;
  std::vector<std::string> fonts_;
  Colour backColor_ = 0xFFFFFF;
  Colour foreColor_ = 0;
  int drawStyle_ = kSolid;
  int drawWidth_ = 1;
  double currentX_ = 0;
  double currentY_ = 0;
  std::string fontName_ = "MS Sans Serif";
  double fontSize_ = 8;
  bool fontBold_ = false;
  bool fontTransparent_ = true;
};

}  // namespace velmora::graph
