#pragma once

#include <cstdint>

namespace velmora::output {

// `clsResize`: the rules by which forms laid out for a screen 800 pixels wide
// are scaled on other screens. Qt's own high-DPI scaling does the work for
// every window; these rules remain the reference, and serve where Qt's
// scaling does not reach, such as the frame's size at a first start.
class clsResize {
 public:
  // The desktop's horizontal resolution at which nothing is scaled.
  static constexpr int kPlainDpi = 96;

  // `Picku`: true when the desktop runs at 96 dots per inch.
  static bool Picku(int horizontalDpi) { return horizontalDpi == kPlainDpi; }
  // The factor of a screen width in pixels: 640 0.8, 720 0.9, 800 1.0,
  // 1024 1.28, 1152 1.44, 1280 1.6, and for any other width w / 800
  // rounded to 2 decimals, as a 32-bit float. Widths below 1 give 1.
  static float Factor(int screenWidth);
  // A control's Width, Height, Left or Top: divided by the factor.
  static double ScaleLength(double length, float factor);
  // A control's font size s: ToShort(s / f) * 1.2.
  static double ScaleFontSize(double size, float factor);

  // The frame's size at a first start: at 96 dots per inch `base` as it is;
  // otherwise `base` (laid out for a 1024-pixel screen) in proportion to the
  // screen's factor. Never larger than the available area.
  struct Size {
    int width = 0;
    int height = 0;
  };
  static Size FirstStartSize(Size base, int screenWidth, int horizontalDpi, Size available);
};

}  // namespace velmora::output
