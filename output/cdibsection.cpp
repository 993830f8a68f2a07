#include "output/cdibsection.h"

#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <new>
#include <random>
#include <string>

namespace velmora::output {
namespace {

// The largest picture held: 2^31 bytes of pixels, far beyond any screen.
constexpr std::int64_t kMaxBytes = std::int64_t{1} << 31;

}  // namespace

cDIBSection::cDIBSection(cDIBSection&& other) noexcept
    : bits_(std::move(other.bits_)),
      width_(other.width_),
      height_(other.height_),
      bytesPerLine_(other.bytesPerLine_) {
  other.width_ = other.height_ = other.bytesPerLine_ = 0;
}

cDIBSection& cDIBSection::operator=(cDIBSection&& other) noexcept {
  if (this != &other) {
    bits_ = std::move(other.bits_);
    width_ = other.width_;
    height_ = other.height_;
    bytesPerLine_ = other.bytesPerLine_;
    other.width_ = other.height_ = other.bytesPerLine_ = 0;
  }
  return *this;
}

bool cDIBSection::Create(int lWidth, int lHeight) {
  ClearUp();
  if (lWidth < 1 || lHeight < 1) return false;
  const std::int64_t stride = ((std::int64_t{lWidth} * 3 + 3) / 4) * 4;
  const std::int64_t bytes = stride * lHeight;
  if (stride > std::numeric_limits<int>::max() || bytes > kMaxBytes) return false;
  bits_.reset(new (std::nothrow) std::uint8_t[static_cast<std::size_t>(bytes)]());
  if (!bits_) return false;
  width_ = lWidth;
  height_ = lHeight;
  bytesPerLine_ = static_cast<int>(stride);
  return true;
}

void cDIBSection::ClearUp() {
  bits_.reset();
  width_ = height_ = bytesPerLine_ = 0;
}

std::uint32_t cDIBSection::Pixel(int x, int y) const {
  if (!bits_ || x < 0 || y < 0 || x >= width_ || y >= height_) return 0;
  const std::uint8_t* p = Row(y) + static_cast<std::ptrdiff_t>(x) * 3;
  return std::uint32_t{p[2]} | (std::uint32_t{p[1]} << 8) | (std::uint32_t{p[0]} << 16);
}

void cDIBSection::SetPixel(int x, int y, std::uint32_t colour) {
  if (!bits_ || x < 0 || y < 0 || x >= width_ || y >= height_) return;
  std::uint8_t* p = Row(y) + static_cast<std::ptrdiff_t>(x) * 3;
  p[0] = static_cast<std::uint8_t>(colour >> 16);
  p[1] = static_cast<std::uint8_t>(colour >> 8);
  p[2] = static_cast<std::uint8_t>(colour);
}

void cDIBSection::RandomiseBits(bool bGray) {
  const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
  RandomiseBits(bGray, static_cast<std::uint32_t>(ticks));
}

void cDIBSection::RandomiseBits(bool bGray, std::uint32_t seed) {
  if (!bits_) return;
  std::minstd_rand random(seed);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int y = 0; y < height_; ++y) {
    std::uint8_t* row = Row(y);
    for (int x = 0; x < width_; ++x) {
      std::uint8_t* p = row + static_cast<std::ptrdiff_t>(x) * 3;
      if (bGray) {
        p[0] = p[1] = p[2] = static_cast<std::uint8_t>(byte(random));
      } else {
        for (int c = 0; c < 3; ++c) p[c] = static_cast<std::uint8_t>(byte(random));
      }
    }
  }
}

std::unique_ptr<cDIBSection> cDIBSection::Resample(int lNewHeight, int lNewWidth) const {
  if (!bits_) return nullptr;
  auto out = std::make_unique<cDIBSection>();
  if (!out->Create(lNewWidth, lNewHeight)) return nullptr;
  // Source coordinate of a target pixel centre, held inside the picture.
  const auto source = [](int target, int targetSize, int sourceSize, int& low, int& high, double& weight) {
    double s = (target + 0.5) * sourceSize / targetSize - 0.5;
    if (s < 0) s = 0;
    if (s > sourceSize - 1) s = sourceSize - 1;
    low = static_cast<int>(std::floor(s));
    high = low + 1 < sourceSize ? low + 1 : low;
    weight = s - low;
  };
  for (int y = 0; y < lNewHeight; ++y) {
    int y0 = 0, y1 = 0;
    double wy = 0;
    source(y, lNewHeight, height_, y0, y1, wy);
    const std::uint8_t* top = Row(y0);
    const std::uint8_t* bottom = Row(y1);
    std::uint8_t* row = out->Row(y);
    for (int x = 0; x < lNewWidth; ++x) {
      int x0 = 0, x1 = 0;
      double wx = 0;
      source(x, lNewWidth, width_, x0, x1, wx);
      for (int c = 0; c < 3; ++c) {
        const double upper = top[x0 * 3 + c] * (1 - wx) + top[x1 * 3 + c] * wx;
        const double lower = bottom[x0 * 3 + c] * (1 - wx) + bottom[x1 * 3 + c] * wx;
        const double value = upper * (1 - wy) + lower * wy;
        row[x * 3 + c] = static_cast<std::uint8_t>(std::lround(value));
      }
    }
  }
  return out;
}

bool cDIBSection::CopyToClipboard(bool bAsDIB, base::MessageBox& messages,
                                  const std::function<void(const cDIBSection&)>& putBitmap) const {
  if (bAsDIB) {
    messages.Show(std::string(kNoDibOnClipboard), "Velmora", base::MsgIcon::None);
    return false;
  }
  if (!bits_ || !putBitmap) return false;
  putBitmap(*this);
  return true;
}

}  // namespace velmora::output
