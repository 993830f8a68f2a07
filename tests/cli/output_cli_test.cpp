// velmora-cli plot --jpeg, --bmp and --pdf (the picture saved and printed
// as the graph window saves and prints it) and print-text, read back by
// separate tools.
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

class PlotPictureCli : public ::testing::Test {
 protected:
  CliRun Plot(const std::vector<std::string>& args) { return scratch_.Plot(args); }
  fs::path Settings() const { return scratch_.Settings(); }

  CliScratch scratch_{"plotpicture-" +
                      std::string(::testing::UnitTest::GetInstance()->current_test_info()->name())};
  const fs::path& dir_ = scratch_.Folder();
};

TEST_F(PlotPictureCli, JpegAtTheQualityGiven) {
  std::uintmax_t previous = 0;
  for (const int quality : {100, 60, 20}) {
    const fs::path file = dir_ / ("sin" + std::to_string(quality) + ".jpg");
    const CliRun run = Plot({"--width", "800", "--height", "600", "--y", "SinX", "--jpeg", file.string(),
                             "--quality", std::to_string(quality)});
    ASSERT_EQ(run.status, 0) << run.out;
    const DecodedSize size = DjpegSize(file);
    EXPECT_EQ(size.width, 800);
    EXPECT_EQ(size.height, 600);
    const std::uintmax_t bytes = fs::file_size(file);
    if (previous != 0) {
      EXPECT_LT(bytes, previous) << "quality " << quality;
    }
    previous = bytes;
  }
  // Without --quality the dialog's default, 100: the finest table.
  const fs::path file = dir_ / "default.jpg";
  ASSERT_EQ(Plot({"--y", "X", "--jpeg", file.string()}).status, 0);
  EXPECT_EQ(FirstQuantEntry(Slurp(file)), 1);
}

TEST_F(PlotPictureCli, BadQualitiesAreRefused) {
  for (const char* quality : {"101", "-1", "abc", "50.5"}) {
    const CliRun run = Plot({"--y", "X", "--jpeg", (dir_ / "q.jpg").string(), "--quality", quality});
    EXPECT_EQ(run.status, 2) << quality;
    EXPECT_NE(run.out.find("--quality must be a whole number from 0 to 100"), std::string::npos) << run.out;
  }
}

TEST_F(PlotPictureCli, ABitmapOfTheWindowsSize) {
  const fs::path file = dir_ / "sin.bmp";
  ASSERT_EQ(Plot({"--width", "321", "--height", "123", "--y", "SinX", "--bmp", file.string()}).status, 0);
  const std::string bytes = Slurp(file);
  ASSERT_GT(bytes.size(), 54u);
  EXPECT_EQ(bytes.substr(0, 2), "BM");
  const auto word = [&bytes](std::size_t at) {
    return static_cast<int>(static_cast<unsigned char>(bytes[at]) |
                            (static_cast<unsigned char>(bytes[at + 1]) << 8));
  };
  EXPECT_EQ(word(18), 321);
  EXPECT_EQ(word(22), 123);
  EXPECT_EQ(word(28), 24) << "24 bits a pixel";
  EXPECT_NE(Plot({"--y", "X", "--bmp", (dir_ / "no" / "dir.bmp").string()}).status, 0);
}

TEST_F(PlotPictureCli, APdfPageWithThePictureInsideTheMargins) {
  std::ofstream(Settings()) << "[Print]\nlevo=2\ndesno=1\ngore=1\ndole=1\n";
  const fs::path file = dir_ / "sin.pdf";
  const CliRun run = Plot({"--width", "480", "--height", "240", "--y", "SinX", "--pdf", file.string()});
  ASSERT_EQ(run.status, 0) << run.out;
  EXPECT_EQ(PdfPages(file), 1);
  const PdfImage image = FirstPdfImage(file);
  EXPECT_EQ(image.width, 480);
  EXPECT_EQ(image.height, 240);
  // Five inches at screen size fit beside margins of 2 and 1 inch.
  EXPECT_NEAR(image.xPpi, 96, 1);
}

TEST_F(PlotPictureCli, PrintTextPagesWithTheStoredMargins) {
  std::ofstream(Settings()) << "[Print]\nlevo=1.5\ngore=2\n";
  std::string text;
  for (int i = 1; i <= 200; ++i) text += "line " + std::to_string(i) + " of the notebook\n";
  const fs::path in = scratch_.File("notes.txt", text);
  const fs::path pdf = dir_ / "notes.pdf";
  const CliRun run = RunCli({"print-text", in.string(), pdf.string(), "--settings", Settings().string()});
  ASSERT_EQ(run.status, 0) << run.out << run.err;
  const int pages = PdfPages(pdf);
  EXPECT_GT(pages, 2);
  EXPECT_EQ(run.out, "pages: " + std::to_string(pages) + "\n");
  const std::string words = RunTool("pdftotext " + Quoted(pdf) + " -");
  EXPECT_NE(words.find("line 1 of the notebook"), std::string::npos);
  EXPECT_NE(words.find("line 200 of the notebook"), std::string::npos);
  const std::string boxes = RunTool("pdftotext -f 1 -l 1 -bbox " + Quoted(pdf) + " -");
  const auto x = boxes.find("xMin=\"");
  const auto y = boxes.find("yMin=\"");
  ASSERT_NE(x, std::string::npos) << boxes;
  EXPECT_NEAR(std::stod(boxes.substr(x + 6)), 1.5 * 72, 3) << "the left margin";
  EXPECT_NEAR(std::stod(boxes.substr(y + 6)), 2 * 72, 6) << "the top margin";
}

TEST_F(PlotPictureCli, PrintTextOfNothingIsNothingToPrint) {
  const fs::path in = scratch_.File("empty.txt", "");
  const CliRun run =
      RunCli({"print-text", in.string(), (dir_ / "e.pdf").string(), "--settings", Settings().string()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "message: Nothing to print.\n");
  EXPECT_FALSE(fs::exists(dir_ / "e.pdf"));
  EXPECT_EQ(RunCli({"print-text", in.string()}).status, 2) << "two files are needed";
}

TEST_F(PlotPictureCli, AMathPadDocumentPrintsWithItsFormattingAndTheMargins) {
  std::ofstream(Settings()) << "[Print]\nlevo=2\ngore=1\n";
  std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs24 {\\b Results} of the notebook\\par ";
  for (int i = 1; i <= 150; ++i)
    rtf += "Row " + std::to_string(i) + " x{\\super 2} = " + std::to_string(i * i) + "\\par ";
  rtf += "}";
  const fs::path in = scratch_.File("notes.rtf", rtf);
  const fs::path pdf = dir_ / "notes.pdf";
  const CliRun run =
      RunCli({"mathpad", "print", in.string(), pdf.string(), "--settings", Settings().string()});
  ASSERT_EQ(run.status, 0) << run.out << run.err;
  const int pages = PdfPages(pdf);
  EXPECT_GE(pages, 3);
  EXPECT_EQ(run.out, "pages: " + std::to_string(pages) + "\n");
  const std::string words = RunTool("pdftotext " + Quoted(pdf) + " -");
  EXPECT_NE(words.find("Results of the notebook"), std::string::npos) << words.substr(0, 200);
  EXPECT_NE(words.find("Row 150"), std::string::npos);
  const std::string boxes = RunTool("pdftotext -f 1 -l 1 -bbox " + Quoted(pdf) + " -");
  const auto x = boxes.find("xMin=\"");
  ASSERT_NE(x, std::string::npos) << boxes;
  EXPECT_NEAR(std::stod(boxes.substr(x + 6)), 2 * 72, 3) << "the left margin";
}

TEST_F(PlotPictureCli, AnEmptyMathPadDocumentIsNothingToPrint) {
  const fs::path in = scratch_.File("empty.rtf", "{\\rtf1\\ansi }");
  const CliRun run =
      RunCli({"mathpad", "print", in.string(), (dir_ / "e.pdf").string(), "--settings", Settings().string()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "message: Nothing to print.\n");
  EXPECT_FALSE(fs::exists(dir_ / "e.pdf"));
}

}  // namespace
}  // namespace velmora::testing
