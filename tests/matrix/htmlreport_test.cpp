#include "matrix/htmlreport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/matrix/matrixbuild.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::matrix {
namespace {

using testing::MakeGrid;
using velmora::testing::RecordingMessageBox;

namespace fs = std::filesystem;

std::string Expected(const char* name) {
  std::ifstream in(fs::path(VELMORA_MATRIX_TEST_DATA) / name, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

const Grid kEmpty;

struct TemplateCase {
  const char* file;
  int operation;
  Grid a;
  Grid b;
  Grid solution;
  Grid inverse;
  Grid swap;
  const char* entry2;
  const char* determinant;
  const char* equation;
  const char* why;
};

TEST(HtmlReport, TemplatesByteForByte) {
  const TemplateCase cases[] = {
      {"two_operands.htm", 1, MakeGrid({{"1"}, {""}}), MakeGrid({{"2"}, {"3"}}), MakeGrid({{"3"}, {"3"}}),
       kEmpty, kEmpty, "", "", "",
       "two operands: an empty cell prints 0, one column is 100% wide, no equation"},
      {"one_operand.htm", 4, MakeGrid({{"1", "2", "j1"}}), kEmpty, MakeGrid({{"2", "4", "0+j2"}}), kEmpty,
       kEmpty, "2", "", "", "one operand, with the inverse's heading"},
      {"inverse_adjoint.htm", 6, MakeGrid({{"1", "2"}, {"3", "4"}}), kEmpty, kEmpty,
       MakeGrid({{"-2", "1"}, {"1.5", "-.5"}}), MakeGrid({{"4", "-2"}, {"-3", "1"}}), "", "-2",
       "X^2 - 5*X -2 = 0", "inverse and adjoint, with the characteristic equation"},
      {"system.htm", 7, MakeGrid({{"0", "2", "j1"}, {"1", "-1", "-2.5"}, {"2-j1", "3", "1"}}),
       MakeGrid({{"5"}, {"6"}, {"7"}}), MakeGrid({{"1"}, {"2"}, {"3"}}), kEmpty, kEmpty, "", "4", "",
       "the system: a zero first coefficient starts the row with 0 + "},
  };
  for (const auto& c : cases) {
    const MatrixReport report{c.operation, c.a,      c.b,           c.solution, c.inverse,
                              c.swap,      c.entry2, c.determinant, c.equation};
    const std::string expected = Expected(c.file);
    ASSERT_FALSE(expected.empty()) << c.file;
    EXPECT_EQ(HtmlReport(report), expected) << c.why;
  }
}

struct LineCase {
  int operation;
  const char* title;
  const char* scalarLine;
  const char* resultHeading;
  const char* why;
};

const LineCase kLineCases[] = {
    {2, "Subtraction", "<b></b>", "<b> [S] = [A] - [B] </b>", "subtraction"},
    {3, "Multiplication", "<b></b>", "<b> [S] = [A] x [B] </b>", "multiplication"},
    {5, "Scalar Division", "<b>1/r = 1/(2+j2)</b>", "<b>A<sup>-1</sup> = [S] = 1/r x [A] </b>", "division"},
};

TEST(HtmlReport, TitlesLabelsAndScalarLines) {
  const Grid one = MakeGrid({{"1"}});
  for (const auto& c : kLineCases) {
    const MatrixReport report{c.operation, one, one, one, one, one, "2+j2", "", ""};
    const std::string html = HtmlReport(report);
    EXPECT_NE(html.find(std::string("<b>") + c.title + "</b>"), std::string::npos) << c.why;
    EXPECT_NE(html.find(c.scalarLine), std::string::npos) << c.why;
    EXPECT_NE(html.find(c.resultHeading), std::string::npos) << c.why;
    EXPECT_EQ(html.find("Characteristic equation"), std::string::npos) << c.why;
  }
}

TEST(HtmlReport, UnknownOperationGivesNothing) {
  const Grid one = MakeGrid({{"1"}});
  EXPECT_EQ(HtmlReport(MatrixReport{0, one, one, one, one, one, "", "", ""}), "");
  EXPECT_EQ(HtmlReport(MatrixReport{8, one, one, one, one, one, "", "", ""}), "");
}

class PublishHtmlTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ =
        fs::temp_directory_path() /
        ("velmora-html-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }
  fs::path folder_;
  Grid one_ = MakeGrid({{"1"}});
  MatrixReport report_{1, one_, one_, one_, one_, one_, "", "", ""};
};

TEST_F(PublishHtmlTest, WritesAndOffersAPreview) {
  RecordingMessageBox box;
  box.Answer(platform::MsgResult::Yes);
  fs::path opened;
  PublishHtml(folder_ / "r.htm", report_, box, [&](const fs::path& p) {
    opened = p;
    return true;
  });
  ASSERT_EQ(box.Boxes().size(), 1U);
  EXPECT_EQ(box.Boxes()[0].text, "Preview in Browser?");
  EXPECT_EQ(box.Boxes()[0].title, "Preview HTML");
  EXPECT_EQ(box.Boxes()[0].icon, platform::MsgIcon::Question);
  EXPECT_EQ(box.Boxes()[0].buttons, platform::MsgButtons::YesNo);
  EXPECT_EQ(opened, folder_ / "r.htm");
  EXPECT_EQ(fs::file_size(folder_ / "r.htm"), HtmlReport(report_).size());
}

TEST_F(PublishHtmlTest, AsksBeforeReplacing) {
  const fs::path path = folder_ / "r.htm";
  std::ofstream(path) << "old";
  RecordingMessageBox box;
  box.Answer(platform::MsgResult::No);
  PublishHtml(path, report_, box, [](const fs::path&) { return true; });
  ASSERT_EQ(box.Boxes().size(), 1U);
  EXPECT_EQ(box.Boxes()[0].text,
            "The file " + path.string() + " already exists.\r\nDo you want to replace it?");
  EXPECT_EQ(box.Boxes()[0].title, "Save As");
  EXPECT_EQ(box.Boxes()[0].buttons, platform::MsgButtons::YesNo);
  EXPECT_EQ(fs::file_size(path), 3U);  // No ends the command

  RecordingMessageBox again;
  again.Answer(platform::MsgResult::Yes);
  again.Answer(platform::MsgResult::No);
  PublishHtml(path, report_, again, [](const fs::path&) { return true; });
  EXPECT_EQ(again.Boxes().size(), 2U);
  EXPECT_EQ(fs::file_size(path), HtmlReport(report_).size());
}

TEST_F(PublishHtmlTest, PreviewFailureIsReported) {
  RecordingMessageBox box;
  box.Answer(platform::MsgResult::Yes);
  PublishHtml(folder_ / "r.htm", report_, box, [](const fs::path&) { return false; });
  ASSERT_EQ(box.Boxes().size(), 2U);
  EXPECT_EQ(box.Boxes()[1].text, "Error. Specified file path cannot be acceded (file is ReadOnly etc.)");
  EXPECT_EQ(box.Boxes()[1].icon, platform::MsgIcon::Exclamation);
}

TEST_F(PublishHtmlTest, WriteFailureShowsTheFault) {
  RecordingMessageBox box;
  PublishHtml(folder_ / "missing" / "r.htm", report_, box, [](const fs::path&) { return true; });
  ASSERT_EQ(box.Boxes().size(), 1U);
  EXPECT_EQ(box.Boxes()[0].text, "Path/File access error");
  EXPECT_EQ(box.Boxes()[0].icon, platform::MsgIcon::Critical);
}

TEST_F(PublishHtmlTest, AGivenWriterTakesTheBytesAndItsFailureShowsTheFault) {
  // The window writes through its own file layer; the command hands it the
  // report's bytes and treats its failure as its own.
  RecordingMessageBox box;
  box.Answer(platform::MsgResult::No);
  std::string written;
  PublishHtml(
      folder_ / "r.htm", report_, box, [](const fs::path&) { return true; },
      [&](const fs::path&, const std::string& bytes) {
        written = bytes;
        return true;
      });
  EXPECT_EQ(written, HtmlReport(report_));
  EXPECT_FALSE(fs::exists(folder_ / "r.htm"));  // nothing written besides
  ASSERT_EQ(box.Boxes().size(), 1U);
  EXPECT_EQ(box.Boxes()[0].text, "Preview in Browser?");

  RecordingMessageBox failing;
  PublishHtml(
      folder_ / "r.htm", report_, failing, [](const fs::path&) { return true; },
      [](const fs::path&, const std::string&) { return false; });
  ASSERT_EQ(failing.Boxes().size(), 1U);
  EXPECT_EQ(failing.Boxes()[0].text, "Path/File access error");
}

}  // namespace
}  // namespace velmora::matrix
