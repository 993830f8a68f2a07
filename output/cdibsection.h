#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include "base/messagebox.h"

namespace velmora::output {

// `cDIBSection`: a 24-bit picture in memory that both the drawing layer and
// the program's own code reach. Pixels are 3 bytes in blue, green, red
// order; each row is padded to a multiple of 4 bytes, and row 0 is the top
// row. This is the layout the JPEG writer reads. A freshly created picture
// is black.
class cDIBSection {
 public:
  static constexpr std::string_view kNoDibOnClipboard =
      "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!";

  cDIBSection() = default;
  ~cDIBSection() { ClearUp(); }
  cDIBSection(const cDIBSection&) = delete;
  cDIBSection& operator=(const cDIBSection&) = delete;
  cDIBSection(cDIBSection&&) noexcept;
  cDIBSection& operator=(cDIBSection&&) noexcept;

  // Makes a picture of the size; a picture held before is released first.
  // False (and nothing held) for a size below 1 or one too large to address.
  bool Create(int lWidth, int lHeight);
  // Releases everything; also run at the end of the object's life.
  void ClearUp();

  int Width() const { return width_; }
  int Height() const { return height_; }
  // Row stride: 3 bytes a pixel rounded up to a multiple of 4.
  int BytesPerScanLine() const { return bytesPerLine_; }
  std::uint8_t* DIBSectionBitsPtr() { return bits_.get(); }
  const std::uint8_t* DIBSectionBitsPtr() const { return bits_.get(); }
  // The first byte of row y.
  std::uint8_t* Row(int y) { return bits_.get() + static_cast<std::ptrdiff_t>(y) * bytesPerLine_; }
  const std::uint8_t* Row(int y) const {
    return bits_.get() + static_cast<std::ptrdiff_t>(y) * bytesPerLine_;
  }

  // A pixel as a program colour (red in the low byte, blue in the high
  // byte); outside the picture 0 is read and nothing is written.
  std::uint32_t Pixel(int x, int y) const;
  void SetPixel(int x, int y, std::uint32_t colour);

  // Writes random bytes into the pixels (never into the padding), equal for
  // the three colours of a pixel when `bGray` is true. The generator is
  // seeded with the clock, or with `seed` for a picture that can be repeated.
  void RandomiseBits(bool bGray);
  void RandomiseBits(bool bGray, std::uint32_t seed);

  // A new picture of the new size, each colour byte interpolated bilinearly
  // from the four nearest source pixels (pixel centres aligned). Null when
  // this holds nothing or the new size cannot be created.
  std::unique_ptr<cDIBSection> Resample(int lNewHeight, int lNewWidth) const;

  // The clipboard copy. A DIB copy is refused with kNoDibOnClipboard in a
  // plain box; otherwise `putBitmap` receives the picture to put on the
  // clipboard as a bitmap. Returns true when the picture was handed over.
  bool CopyToClipboard(bool bAsDIB, base::MessageBox& messages,
                       const std::function<void(const cDIBSection&)>& putBitmap) const;

 private:
  std::unique_ptr<std::uint8_t[]> bits_;
  int width_ = 0;
  int height_ = 0;
  int bytesPerLine_ = 0;
};

}  // namespace velmora::output
