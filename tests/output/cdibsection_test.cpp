#include "output/cdibsection.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/recordingmessagebox.h"

namespace velmora::output {
namespace {

TEST(cDIBSection, RowsArePaddedToFourBytes) {
  struct Row {
    int width;
    int stride;
    const char* why;
  };
  const Row rows[] = {
      {1, 4, "3 bytes round up to 4"},          {2, 8, "6 bytes round up to 8"},
      {3, 12, "9 bytes round up to 12"},        {4, 12, "12 bytes need no padding"},
      {5, 16, "15 bytes round up to 16"},       {800, 2400, "a graph window's width needs no padding"},
      {801, 2404, "one pixel more pads again"},
  };
  for (const Row& row : rows) {
    cDIBSection picture;
    ASSERT_TRUE(picture.Create(row.width, 3)) << row.why;
    EXPECT_EQ(picture.BytesPerScanLine(), row.stride) << row.why;
    EXPECT_EQ(picture.Width(), row.width) << row.why;
    EXPECT_EQ(picture.Height(), 3) << row.why;
  }
}

TEST(cDIBSection, RefusesSizesThatHoldNothing) {
  struct Row {
    int width;
    int height;
    const char* why;
  };
  const Row rows[] = {
      {0, 10, "no columns"},
      {10, 0, "no rows"},
      {-5, 10, "a negative width"},
      {100000, 100000, "beyond what the picture may hold"},
  };
  for (const Row& row : rows) {
    cDIBSection picture;
    EXPECT_FALSE(picture.Create(row.width, row.height)) << row.why;
    EXPECT_EQ(picture.DIBSectionBitsPtr(), nullptr) << row.why;
    EXPECT_EQ(picture.Width(), 0) << row.why;
  }
}

TEST(cDIBSection, CreatingAgainReplacesTheEarlierPicture) {
  cDIBSection picture;
  ASSERT_TRUE(picture.Create(4, 4));
  picture.SetPixel(0, 0, 0xFFFFFF);
  ASSERT_TRUE(picture.Create(2, 2));
  EXPECT_EQ(picture.Width(), 2);
  EXPECT_EQ(picture.Pixel(0, 0), 0u) << "a new picture starts black";
  picture.ClearUp();
  EXPECT_EQ(picture.DIBSectionBitsPtr(), nullptr);
  EXPECT_EQ(picture.BytesPerScanLine(), 0);
}

TEST(cDIBSection, PixelsAreBlueGreenRedInMemory) {
  cDIBSection picture;
  ASSERT_TRUE(picture.Create(2, 2));
  // A program colour holds red in the low byte and blue in the high byte.
  picture.SetPixel(1, 1, 0x112233);
  const std::uint8_t* p = picture.Row(1) + 3;
  EXPECT_EQ(p[0], 0x11) << "blue first";
  EXPECT_EQ(p[1], 0x22) << "then green";
  EXPECT_EQ(p[2], 0x33) << "then red";
  EXPECT_EQ(picture.Pixel(1, 1), 0x112233u);
  EXPECT_EQ(picture.Pixel(2, 0), 0u) << "outside reads 0";
  picture.SetPixel(-1, 0, 0xFFFFFF);  // outside: nothing written, nothing broken
  EXPECT_EQ(picture.Pixel(0, 0), 0u);
}

TEST(cDIBSection, NoiseFillsPixelsAndLeavesThePadding) {
  cDIBSection picture;
  ASSERT_TRUE(picture.Create(5, 4));  // 15 bytes of pixels, 1 of padding a row
  picture.RandomiseBits(false, 7);
  bool someNonZero = false;
  for (int y = 0; y < 4; ++y) {
    EXPECT_EQ(picture.Row(y)[15], 0) << "padding of row " << y;
    for (int i = 0; i < 15; ++i) someNonZero |= picture.Row(y)[i] != 0;
  }
  EXPECT_TRUE(someNonZero);
}

TEST(cDIBSection, GrayNoiseHasEqualColourBytes) {
  cDIBSection picture;
  ASSERT_TRUE(picture.Create(16, 16));
  picture.RandomiseBits(true, 99);
  bool someColoured = false;
  for (int y = 0; y < 16; ++y) {
    for (int x = 0; x < 16; ++x) {
      const std::uint8_t* p = picture.Row(y) + x * 3;
      EXPECT_EQ(p[0], p[1]);
      EXPECT_EQ(p[1], p[2]);
      someColoured |= p[0] != 0;
    }
  }
  EXPECT_TRUE(someColoured);
}

TEST(cDIBSection, TheSameSeedGivesTheSameNoise) {
  cDIBSection a;
  cDIBSection b;
  ASSERT_TRUE(a.Create(9, 9));
  ASSERT_TRUE(b.Create(9, 9));
  a.RandomiseBits(false, 1234);
  b.RandomiseBits(false, 1234);
  EXPECT_EQ(std::memcmp(a.DIBSectionBitsPtr(), b.DIBSectionBitsPtr(), 9 * 28), 0);
  b.RandomiseBits(false, 1235);
  EXPECT_NE(std::memcmp(a.DIBSectionBitsPtr(), b.DIBSectionBitsPtr(), 9 * 28), 0);
}

TEST(cDIBSection, ResampleKeepsAPlainColour) {
  cDIBSection picture;
  ASSERT_TRUE(picture.Create(7, 5));
  for (int y = 0; y < 5; ++y)
    for (int x = 0; x < 7; ++x) picture.SetPixel(x, y, 0x4080C0);
  const auto bigger = picture.Resample(11, 13);
  ASSERT_NE(bigger, nullptr);
  EXPECT_EQ(bigger->Width(), 13) << "the new width is the second argument";
  EXPECT_EQ(bigger->Height(), 11);
  for (int y = 0; y < 11; ++y)
    for (int x = 0; x < 13; ++x) ASSERT_EQ(bigger->Pixel(x, y), 0x4080C0u) << x << "," << y;
}

TEST(cDIBSection, ResampleInterpolatesBetweenPixels) {
  cDIBSection picture;
  ASSERT_TRUE(picture.Create(2, 1));
  picture.SetPixel(0, 0, 0x000000);
  picture.SetPixel(1, 0, 0xC8C8C8);  // 200 in every colour
  const auto wide = picture.Resample(1, 4);
  ASSERT_NE(wide, nullptr);
  // Target centres 0.5, 1.5, 2.5, 3.5 fall on source -0.25 (held at 0),
  // 0.25, 0.75 and 1.25 (held at 1).
  EXPECT_EQ(wide->Pixel(0, 0), 0x000000u);
  EXPECT_EQ(wide->Pixel(1, 0), 0x323232u) << "a quarter of the way: 50";
  EXPECT_EQ(wide->Pixel(2, 0), 0x969696u) << "three quarters: 150";
  EXPECT_EQ(wide->Pixel(3, 0), 0xC8C8C8u);
  const auto narrow = picture.Resample(1, 1);
  ASSERT_NE(narrow, nullptr);
  EXPECT_EQ(narrow->Pixel(0, 0), 0x646464u) << "one pixel is the mean, 100";
}

TEST(cDIBSection, ResampleOfNothingIsNothing) {
  cDIBSection empty;
  EXPECT_EQ(empty.Resample(10, 10), nullptr);
  cDIBSection picture;
  ASSERT_TRUE(picture.Create(3, 3));
  EXPECT_EQ(picture.Resample(0, 10), nullptr) << "a new size that holds nothing";
}

TEST(cDIBSection, ADibCopyIsRefusedWithTheMessage) {
  cDIBSection picture;
  ASSERT_TRUE(picture.Create(3, 3));
  testing::RecordingMessageBox messages;
  int handed = 0;
  EXPECT_FALSE(picture.CopyToClipboard(true, messages, [&](const cDIBSection&) { ++handed; }));
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text,
            "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!");
  EXPECT_EQ(messages.Boxes()[0].icon, platform::MsgIcon::None) << "a plain box";
  EXPECT_EQ(handed, 0);
  EXPECT_TRUE(picture.CopyToClipboard(false, messages, [&](const cDIBSection& p) { handed += p.Width(); }));
  EXPECT_EQ(handed, 3) << "the bitmap copy hands the picture over";
  EXPECT_EQ(messages.Boxes().size(), 1u);
}

TEST(cDIBSection, MovingHandsThePictureOver) {
  cDIBSection a;
  ASSERT_TRUE(a.Create(3, 2));
  a.SetPixel(2, 1, 0xABCDEF);
  cDIBSection b(std::move(a));
  EXPECT_EQ(b.Pixel(2, 1), 0xABCDEFu);
  EXPECT_EQ(a.Width(), 0);  // NOLINT(bugprone-use-after-move): the moved-from state is part of the contract
  EXPECT_EQ(a.DIBSectionBitsPtr(), nullptr);
}

}  // namespace
}  // namespace velmora::output
