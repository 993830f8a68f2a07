#include "output/jpegwriter.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/output/outputtools.h"
#include "tests/support/filebytes.h"

namespace velmora::output {
namespace {

namespace fs = std::filesystem;

class JpegWriterTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("velmora_jpeg_" + std::to_string(::getpid()));
    fs::create_directories(folder_);
    // A picture with detail, so that the quality shows in the file size.
    ASSERT_TRUE(picture_.Create(800, 600));
    picture_.RandomiseBits(false, 42);
    for (int y = 0; y < 600; y += 2)
      for (int x = 0; x < 800; ++x) picture_.SetPixel(x, y, static_cast<std::uint32_t>(x * 0x010203));
  }
  void TearDown() override { fs::remove_all(folder_); }

  fs::path folder_;
  cDIBSection picture_;
};

TEST_F(JpegWriterTest, ASeparateDecoderReadsTheSize) {
  const fs::path file = folder_ / "graph.jpg";
  const JpegResult result = SaveJPG(picture_, file.string(), 90);
  ASSERT_TRUE(result.ok) << result.error;
  const testing::DecodedSize size = testing::DjpegSize(file);
  EXPECT_EQ(size.width, 800);
  EXPECT_EQ(size.height, 600);
}

TEST_F(JpegWriterTest, OddWidthsWithPaddedRowsDecode) {
  cDIBSection odd;
  ASSERT_TRUE(odd.Create(13, 7));  // 39 bytes a row, 1 of padding
  odd.RandomiseBits(true, 3);
  const fs::path file = folder_ / "odd.jpg";
  ASSERT_TRUE(SaveJPG(odd, file.string(), 75).ok);
  const testing::DecodedSize size = testing::DjpegSize(file);
  EXPECT_EQ(size.width, 13);
  EXPECT_EQ(size.height, 7);
}

TEST_F(JpegWriterTest, FilesGetSmallerAsTheQualityFalls) {
  std::uintmax_t previous = 0;
  for (const int quality : {100, 90, 75, 50, 25, 10, 0}) {
    const fs::path file = folder_ / ("q" + std::to_string(quality) + ".jpg");
    ASSERT_TRUE(SaveJPG(picture_, file.string(), quality).ok) << quality;
    const std::uintmax_t size = fs::file_size(file);
    if (previous != 0) {
      EXPECT_LT(size, previous) << "quality " << quality;
    }
    previous = size;
    EXPECT_EQ(testing::DjpegSize(file).width, 800) << "quality " << quality << " decodes";
  }
}

TEST_F(JpegWriterTest, TheQualityReachesTheEncoderUnchanged) {
  // libjpeg scales its standard luminance table (first entry 16) by
  // 5000 / q below 50 and by 200 - 2q above, rounding and holding the
  // entries within 1 and 255.
  struct Row {
    int quality;
    int entry;
    const char* why;
  };
  const Row rows[] = {
      {100, 1, "the finest table"},
      {90, 3, "16 * 20 / 100, rounded"},
      {75, 8, "16 * 50 / 100"},
      {50, 16, "the standard table itself"},
      {10, 80, "16 * 500 / 100"},
      {1, 255, "the coarsest step, held at 255"},
      {0, 255, "0 reaches the encoder, which treats it as 1"},
  };
  for (const Row& row : rows) {
    std::string bytes;
    ASSERT_TRUE(EncodeJPG(picture_, row.quality, bytes).ok) << row.why;
    EXPECT_EQ(testing::FirstQuantEntry(bytes), row.entry) << row.why;
  }
}

TEST_F(JpegWriterTest, MemoryAndFileAgree) {
  const fs::path file = folder_ / "same.jpg";
  std::string bytes;
  ASSERT_TRUE(SaveJPG(picture_, file.string(), 60).ok);
  ASSERT_TRUE(EncodeJPG(picture_, 60, bytes).ok);
  EXPECT_EQ(testing::ReadFileBytes(file), bytes);
}

TEST_F(JpegWriterTest, AFileThatCannotBeOpenedFails) {
  const JpegResult result = SaveJPG(picture_, (folder_ / "missing" / "x.jpg").string(), 80);
  EXPECT_FALSE(result.ok);
  EXPECT_NE(result.error.find("Failed to save to JPG"), std::string::npos) << result.error;
  cDIBSection empty;
  EXPECT_FALSE(SaveJPG(empty, (folder_ / "empty.jpg").string(), 80).ok) << "no picture, no file";
}

TEST(JpegWriterText, TheWarningNamesTheFileInQuotes) {
  EXPECT_EQ(SaveFailedText("/tmp/a b.JPG"), "Failed to save the picture to the file: '/tmp/a b.JPG'");
}

}  // namespace
}  // namespace velmora::output
