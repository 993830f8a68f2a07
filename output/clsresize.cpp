#include "output/clsresize.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::output {
namespace {

constexpr std::array<std::pair<int, float>, 6> kFactors{{
    {640, 0.8F},
    {720, 0.9F},
    {800, 1.0F},
    {1024, 1.28F},
    {1152, 1.44F},
    {1280, 1.6F},
}};

constexpr float kBaseFactor = 1.28F;  // the factor of the screen `base` is laid out for

}  // namespace

float clsResize::Factor(int screenWidth) {
  if (screenWidth < 1) return 1.0F;
  for (const auto& [width, factor] : kFactors) {
    if (width == screenWidth) return factor;
  }
  return static_cast<float>(expr::RoundTo(screenWidth / 800.0, 2));
}

double clsResize::ScaleLength(double length, float factor) { return factor > 0 ? length / factor : length; }

double clsResize::ScaleFontSize(double size, float factor) {
  if (factor <= 0) return size;
  try {
    return expr::ToShort(size / factor) * 1.2;
  } catch (const expr::Fault&) {
    return size;  // a control whose font cannot take the size keeps its own
  }
}

clsResize::Size clsResize::FirstStartSize(Size base, int screenWidth, int horizontalDpi, Size available) {
  Size size = base;
  if (!Picku(horizontalDpi)) {
    const double scale = Factor(screenWidth) / kBaseFactor;
    size.width = static_cast<int>(std::lround(base.width * scale));
    size.height = static_cast<int>(std::lround(base.height * scale));
  }
  if (available.width > 0) size.width = std::min(size.width, available.width);
  if (available.height > 0) size.height = std::min(size.height, available.height);
  return size;
}

}  // namespace velmora::output
