// A round trip with a real word processor: LibreOffice (soffice, headless)
// converts an RTF that MathPad wrote to text and HTML, and turns an HTML
// page into an RTF that MathPad reads. Skipped when soffice is missing.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>

#include "mathpad/documentfile.h"
#include "mathpad/padfile.h"
#include "rtf/document.h"

namespace velmora::mathpad {
namespace {

namespace fs = std::filesystem;

class LibreOfficeTest : public ::testing::Test {
 protected:
  void SetUp() override {
    soffice_ = FindOnPath("soffice");
    if (!soffice_) {
      GTEST_SKIP() << "soffice is not installed (Debian package libreoffice-writer-nogui, which "
                      "scripts/install-deps.sh installs): the round trip with a word processor is skipped";
    }
    folder_ = fs::temp_directory_path() /
              ("velmora-lo-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) +
               "-" + std::to_string(::getpid()));
    fs::remove_all(folder_);
    fs::create_directories(folder_ / "out");
  }
  void TearDown() override {
    if (!folder_.empty()) fs::remove_all(folder_);
  }

  // Converts a file with soffice into out/; its own profile folder keeps it
  // apart from a running LibreOffice and from parallel test runs.
  std::string Convert(const fs::path& input, const std::string& filter, const std::string& extension) {
    const std::string command = "\"" + *soffice_ + "\" -env:UserInstallation=file://" +
                                (folder_ / "profile").string() + " --headless --norestore --convert-to '" +
                                filter + "' --outdir \"" + (folder_ / "out").string() + "\" \"" +
                                input.string() + "\" > \"" + (folder_ / "soffice.log").string() + "\" 2>&1";
    const int status = std::system(command.c_str());
    EXPECT_EQ(status, 0) << command;
    const fs::path output = folder_ / "out" / (input.stem().string() + "." + extension);
    const auto bytes = ReadFileBytes(output.string());
    EXPECT_TRUE(bytes.has_value()) << "soffice wrote no " << output << "; "
                                   << ReadFileBytes((folder_ / "soffice.log").string()).value_or("");
    return bytes.value_or("");
  }

  std::optional<std::string> soffice_;
  fs::path folder_;
};

rtf::Document MathPadDocument() {
  rtf::Document document;
  document.paragraphs.clear();
  rtf::Paragraph first;
  rtf::CharFormat bold;
  bold.bold = true;
  rtf::CharFormat italic;
  italic.italic = true;
  rtf::CharFormat raised;  // MathPad's own superscript: an offset and a smaller size
  raised.offset = 4;
  raised.halfPoints = 14;
  rtf::AppendText(first, {}, "Plain ");
  rtf::AppendText(first, bold, "Boldword");
  rtf::AppendText(first, {}, " and ");
  rtf::AppendText(first, italic, "Italicword");
  rtf::AppendText(first, {}, " x");
  rtf::AppendText(first, raised, "2");
  document.paragraphs.push_back(first);
  rtf::Paragraph second;
  second.alignment = rtf::Alignment::Center;
  rtf::AppendText(second, {}, "Centred \xCE\xB1 caf\xC3\xA9");
  document.paragraphs.push_back(second);
  rtf::Paragraph third;
  third.bullet = true;
  rtf::AppendText(third, {}, "Bulleted");
  document.paragraphs.push_back(third);
  return document;
}

TEST_F(LibreOfficeTest, WriterReadsWhatMathPadWrites) {
  const fs::path rtf = folder_ / "mathpad.rtf";
  ASSERT_TRUE(SaveDocument(MathPadDocument(), rtf.string()));

  const std::string text = Convert(rtf, "txt:Text (encoded):UTF8", "txt");
  EXPECT_NE(text.find("Plain Boldword and Italicword x2"), std::string::npos) << text;
  EXPECT_NE(text.find("Centred \xCE\xB1 caf\xC3\xA9"), std::string::npos)
      << "Unicode and code page text: " << text;
  EXPECT_NE(text.find("Bulleted"), std::string::npos) << text;

  const std::string html = Convert(rtf, "html", "html");
  const auto has = [&html](const char* pattern) { return std::regex_search(html, std::regex(pattern)); };
  EXPECT_TRUE(has("<b>Boldword</b>")) << html;
  EXPECT_TRUE(has("<i>Italicword</i>")) << html;
  EXPECT_TRUE(has("<sup>(<[^>]*>)*2(</[^>]*>)*</sup>")) << "the raised 2 is a superscript: " << html;
  EXPECT_TRUE(has("<p align=\"center\"[^>]*>(<[^>]*>)*Centred")) << html;
  EXPECT_TRUE(has("<li>(<[^>]*>)*Bulleted")) << html;
}

TEST_F(LibreOfficeTest, MathPadReadsWhatWriterWrites) {
  const fs::path page = folder_ / "writer.html";
  std::ofstream(page) << "<html><body><p>Plain words here</p>"
                         "<p><b>Boldword</b> and <i>Italicword</i> and <u>Underword</u> x<sup>2</sup></p>"
                         "<p align=\"center\">Centred line</p>"
                         "<ul><li>First bullet</li><li>Second bullet</li></ul></body></html>";
  const std::string bytes = Convert(page, "rtf:Rich Text Format", "rtf");
  const rtf::Document document = DocumentFromBytes(bytes, true);
  const std::string text = rtf::PlainText(document);
  EXPECT_EQ(text,
            "Plain words here\nBoldword and Italicword and Underword x2\nCentred line\nFirst bullet\nSecond "
            "bullet");

  const auto run = [&document](const std::string& words) -> const rtf::Run* {
    for (const auto& paragraph : document.paragraphs) {
      for (const auto& r : paragraph.runs) {
        if (r.text == words) return &r;
      }
    }
    return nullptr;
  };
  ASSERT_NE(run("Boldword"), nullptr);
  EXPECT_TRUE(run("Boldword")->format.bold);
  ASSERT_NE(run("Italicword"), nullptr);
  EXPECT_TRUE(run("Italicword")->format.italic);
  ASSERT_NE(run("Underword"), nullptr);
  EXPECT_TRUE(run("Underword")->format.underline);
  ASSERT_NE(run("2"), nullptr);
  EXPECT_TRUE(run("2")->format.offset > 0 || run("2")->format.script == rtf::Script::Super);
  ASSERT_GE(document.paragraphs.size(), 5u);
  EXPECT_EQ(document.paragraphs[2].alignment, rtf::Alignment::Center);
  EXPECT_TRUE(document.paragraphs[3].bullet);
  EXPECT_TRUE(document.paragraphs[4].bullet);
  EXPECT_FALSE(document.paragraphs[0].bullet);
}

}  // namespace
}  // namespace velmora::mathpad
