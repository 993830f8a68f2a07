// velmora-cli geo --jpeg, --bmp and --pdf: the figure the Geometry
// Calculator draws, saved and printed, read back by separate tools.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/cli/clirun.h"
#include "tests/output/outputtools.h"

namespace velmora::testing {
namespace {

namespace fs = std::filesystem;

// The 3-4-5 triangle's record, as geo prints it without pictures.
const char* const kRightTriangle =
    "txtta=3\ntxttb=4\ntxttc=5\ntxtta1=0.6435\ntxttb1=0.9273\ntxttc1=1.5708\ntxtts=6\ntxttarea=6\n"
    "txttobim=12\ntxttha=4\ntxtthb=3\ntxtthc=2.4\ntxttRv=2.5\ntxtRm=1\n"
    "result=Triangle: a = 3 b = 4 c = 5\nresult=A = 0.6435 rad (36.86983 deg)\n"
    "result=B = 0.9273 rad (53.13038 deg)\nresult=C = 1.5708 rad (90.00021 deg)\n"
    "result=Perimeter: 12   Area: 6\n";

int Word16(const std::string& bytes, std::size_t at) {
  return static_cast<int>(static_cast<unsigned char>(bytes[at]) |
                          (static_cast<unsigned char>(bytes[at + 1]) << 8));
}

// The pixels of a 24-bit bitmap that are not white paper.
int InkedPixels(const std::string& bytes) {
  const int width = Word16(bytes, 18);
  const int height = Word16(bytes, 22);
  const std::size_t start = static_cast<std::size_t>(Word16(bytes, 10));
  const std::size_t stride = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
  int inked = 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const std::size_t at = start + static_cast<std::size_t>(y) * stride + static_cast<std::size_t>(x) * 3;
      if (at + 2 >= bytes.size()) return -1;
      if (static_cast<unsigned char>(bytes[at]) < 250 || static_cast<unsigned char>(bytes[at + 1]) < 250 ||
          static_cast<unsigned char>(bytes[at + 2]) < 250)
        ++inked;
    }
  }
  return inked;
}

class GeoPictureCli : public ::testing::Test {
 protected:
  CliRun Geo(std::vector<std::string> args) {
    CliOptions options;
    options.environment = {"HOME=" + dir_.string(), "XDG_CONFIG_HOME=" + (dir_ / "config").string(),
                           "XDG_DATA_HOME=" + (dir_ / "data").string()};
    args.insert(args.begin(), {"geo", "--settings", Settings().string()});
    return RunCli(args, options);
  }
  fs::path Settings() const { return dir_ / "settings.ini"; }

  CliScratch scratch_{"geopicture-" +
                      std::string(::testing::UnitTest::GetInstance()->current_test_info()->name())};
  const fs::path& dir_ = scratch_.Folder();
};

TEST_F(GeoPictureCli, JpegAtTheQualityGivenAndTheRecordUnchanged) {
  std::uintmax_t previous = 0;
  for (const int quality : {100, 60, 20}) {
    const fs::path file = dir_ / ("abc" + std::to_string(quality) + ".jpg");
    const CliRun run = Geo({"triangle", "mnuabc", "3", "4", "5", "--jpeg", file.string(), "--quality",
                            std::to_string(quality), "--width", "600", "--height", "450"});
    ASSERT_EQ(run.status, 0) << run.err;
    // The picture is an extra output: what geo prints stays as it was.
    EXPECT_EQ(run.out, kRightTriangle);
    const DecodedSize size = DjpegSize(file);
    EXPECT_EQ(size.width, 600);
    EXPECT_EQ(size.height, 450);
    const std::uintmax_t bytes = fs::file_size(file);
    if (previous != 0) {
      EXPECT_LT(bytes, previous) << "quality " << quality;
    }
    previous = bytes;
  }
  // Without --quality the JPEG dialog's default, 100: the finest table.
  const fs::path file = dir_ / "default.jpg";
  ASSERT_EQ(Geo({"cone", "mnuK1", "3", "4", "--jpeg", file.string()}).status, 0);
  EXPECT_EQ(FirstQuantEntry(Slurp(file)), 1);
  const DecodedSize size = DjpegSize(file);
  EXPECT_EQ(size.width, 480) << "the default size";
  EXPECT_EQ(size.height, 400);
}

TEST_F(GeoPictureCli, ABitmapOfTheDrawnFigure) {
  const fs::path right = dir_ / "right.bmp";
  const fs::path equal = dir_ / "equal.bmp";
  ASSERT_EQ(
      Geo({"triangle", "mnuabc", "3", "4", "5", "--bmp", right.string(), "--width", "321", "--height", "123"})
          .status,
      0);
  ASSERT_EQ(
      Geo({"triangle", "mnuabc", "5", "5", "5", "--bmp", equal.string(), "--width", "321", "--height", "123"})
          .status,
      0);
  const std::string bytes = Slurp(right);
  ASSERT_GT(bytes.size(), 54u);
  EXPECT_EQ(bytes.substr(0, 2), "BM");
  EXPECT_EQ(Word16(bytes, 18), 321);
  EXPECT_EQ(Word16(bytes, 22), 123);
  EXPECT_EQ(Word16(bytes, 28), 24) << "24 bits a pixel";
  // Lines and letters on white paper, and the figure drawn from the solved record.
  EXPECT_GT(InkedPixels(bytes), 200);
  EXPECT_NE(bytes, Slurp(equal)) << "a 3-4-5 and an equilateral triangle are drawn apart";
}

TEST_F(GeoPictureCli, APdfPageWithTheFigureInsideTheMargins) {
  std::ofstream(Settings()) << "[Print]\nlevo=2\ndesno=1\ngore=1\ndole=1\n";
  const fs::path file = dir_ / "sphere.pdf";
  const CliRun run = Geo({"sphere", "mnulopta4", "113.097335529233", "--shade", "--pdf", file.string()});
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(PdfPages(file), 1);
  const PdfImage image = FirstPdfImage(file);
  EXPECT_EQ(image.width, 480);
  EXPECT_EQ(image.height, 400);
  EXPECT_NEAR(image.xPpi, 96, 1) << "five inches at screen size fit beside margins of 2 and 1 inch";
}

TEST_F(GeoPictureCli, BadOptionsAreRefused) {
  struct Row {
    std::vector<std::string> words;
    int status;
    std::string error;
    std::string why;
  };
  const std::vector<Row> rows = {
      {{"triangle", "mnuabc", "3", "4", "5", "--jpeg", "x.jpg", "--quality", "101"},
       2,
       "velmora-cli geo: --quality must be a whole number from 0 to 100\n",
       "the encoder takes 0 to 100"},
      {{"triangle", "mnuabc", "3", "4", "5", "--bmp", "x.bmp", "--width", "0"},
       2,
       "velmora-cli geo: --width must be a whole number from 1 to 10000\n",
       "a picture has at least one pixel"},
      {{"triangle", "mnuabc", "3", "4", "5", "--bmp"},
       2,
       "velmora-cli geo: --bmp needs a value\n",
       "no file"},
      {{"triangle", "mnuabc", "3", "4", "5", "--bmp", (dir_ / "no" / "dir.bmp").string()},
       1,
       "velmora-cli geo: cannot write " + (dir_ / "no" / "dir.bmp").string() + "\n",
       "a folder that is not there"},
  };
  for (const auto& row : rows) {
    const CliRun run = Geo(row.words);
    EXPECT_EQ(run.status, row.status) << row.why;
    EXPECT_EQ(run.err, row.error) << row.why;
  }
}

}  // namespace
}  // namespace velmora::testing
