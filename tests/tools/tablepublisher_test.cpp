// The text form and the HTML page of a value table, and the publishing
// command with its dialog, question and preview.
#include "tools/tablepublisher.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "expr/formulacontrol.h"
#include "tests/support/fakefiledialogs.h"
#include "tests/support/filebytes.h"
#include "tests/support/recordinglauncher.h"
#include "tests/support/recordingmessagebox.h"
#include "tools/valuetabletool.h"

namespace velmora::tools {
namespace {

namespace fs = std::filesystem;

graph::ValueTable Table(std::vector<std::vector<std::string>> rows) {
  graph::ValueTable table(static_cast<int>(rows.size()), static_cast<int>(rows[0].size()));
  for (int r = 0; r < table.Rows(); ++r) {
    for (int c = 0; c < table.Cols(); ++c) table.SetTextMatrix(r, c, rows[r][c]);
  }
  return table;
}

TableHead Head() { return TableHead{false, "Y (X) =", "x^2", "-1", "1", "1"}; }

TEST(TableText, CartesianRowsInBracketsWithTabsByLength) {
  const graph::ValueTable table = Table({{"X", "Y", "Y'"}, {"1.25", "1.255", "-0.5"}});
  EXPECT_EQ(TablePublisher::BuildTableText(table, Head()),
            "Function: Y = x^2\r\nRange:    Xmin = -1  Xmax = 1\r\n"
            "\r\n[X;\t\tY;\t\tY';\t\t]"
            "\r\n[1.25;\t\t1.255;\t-0.5;\t\t]")
      << "four characters take two tabs, five take one, and the third piece keeps its own";
}

TEST(TableText, PolarRowsCountTwoCharacters) {
  const graph::ValueTable table =
      Table({{"\xC3\xB8", "R", "X", "Y"}, {"0", "1", "1", "1"}, {"pi/2", "1", "0", "0"}});
  TableHead head = Head();
  head.polar = true;
  head.function = "1";
  EXPECT_EQ(TablePublisher::BuildTableText(table, head),
            "Function: R (K) = 1\r\nRange:    Xmin = 0  Xmax = 2Pi\r\n"
            "\r\n[\xC3\xB8;\t\tR;\t\tX;\t\tY;\t\t]"
            "\r\n[0;\t\t1;\t\t1;\t\t1;\t\t]"
            "\r\n[pi/2;\t1;\t\t0;\t\t0;\t\t]")
      << "\"0\" takes two tabs and \"pi/2\" one; the angle sign counts as one character";
}

const char* const kPage =
    "   <!DOCTYPE HTML PUBLIC '-//W3C//DTD HTML 4.0 Transitional//EN'>\r\n"
    "<html>\r\n"
    "   <head>\r\n"
    "     <meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>\r\n"
    "     <meta name='GENERATOR' content='Velmora https://www.velmora.org/'>\r\n"
    "     <TITLE>Value Tables for x^2</TITLE>\r\n"
    "  </head>\r\n"
    "  <body bgcolor=#FFFFFF link='#000000' vlink='#000000' alink='#000000'>\r\n"
    "  <hr noshade size='1'>\r\n"
    "  <p><font face='Arial' size='2'><b>Value Tables for Function:&nbsp;</b></font></p>\r\n"
    "  <p align='center'><font face='Arial' size='3'><b>Y (X) =x^2</b> &nbsp;</font></p>\r\n"
    "  <p align='center'><font face='Arial' size='3'><b>Range: (-1 ; 1)</b> &nbsp;</font></p>\r\n"
    "  <p align='center'><font face='Arial' size='3'><b>Step: 1</b> &nbsp;</font></p>\r\n"
    "  <div align='center'>\r\n"
    "  <center>\r\n"
    "  <table border='1' cellspacing='1' width='80%'>\r\n"
    "\r\n"
    "  <tr>\r\n"
    "  <td width='33%' align='center' bgcolor='#D6D6D6' style='border-style: outset; border-width: 3'><font "
    "face='Arial' size='2'><b>X</b></font></td>\r\n"
    "  <td width='33%' align='center'  bgcolor='#D6D6D6' style='border-style: outset; border-width: 3'><font "
    "face='Arial' size='2'><b>Y</b></font></td>\r\n"
    "  <td width='33%' align='center'  bgcolor='#D6D6D6' style='border-style: outset; border-width: 3'><font "
    "face='Arial' size='2'><b>Y'</b></font></td>\r\n"
    "  </tr>\r\n"
    "  <tr>\r\n"
    "  <td width='33%'><font face='Arial' size='2'>-1</font></td>\r\n"
    "  <td width='33%'><font face='Arial' size='2'>1</font></td>\r\n"
    "  <td width='33%'><font face='Arial' size='2'>-2</font></td>\r\n"
    "  </tr>\r\n"
    "  </table>\r\n"
    "  </center>\r\n"
    "  </div>\r\n"
    "  <p>&nbsp;</p>\r\n"
    "  <hr noshade size='1'>\r\n"
    "    <p><font face='Arial' size='1'><a href='https://www.velmora.org/' "
    "target='_blank'>Velmora</a></font></p>\r\n"
    "  </body>\r\n"
    "</html>\r\n"
    "\r\n";

TEST(TablePage, ByteForByte) {
  const graph::ValueTable table = Table({{"X", "Y", "Y'"}, {"-1", "1", "-2"}});
  EXPECT_EQ(TablePublisher::HtmlPage(table, Head()), kPage);
}

TEST(TablePage, FourColumnsAreAQuarterWideAndTheAngleSignIsWindows1252) {
  const graph::ValueTable table = Table({{"\xC3\xB8", "R", "X", "Y"}, {"0", "1", "1", ""}});
  TableHead head = Head();
  head.polar = true;
  const std::string page = TablePublisher::HtmlPage(table, head);
  EXPECT_NE(
      page.find("<td width='25%' align='center' bgcolor='#D6D6D6' style='border-style: outset; border-width: "
                "3'><font face='Arial' size='2'><b>\xF8</b>"),
      std::string::npos);
  EXPECT_EQ(page.find("\xC3"), std::string::npos) << "no UTF-8 left";
  EXPECT_EQ(page.find("<font face='Arial' size='2'></font>"), std::string::npos)
      << "an empty fourth cell is not written";
}

// The pages of real tables go through a real HTML parser. It warns that the
// table has no summary attribute, and, reading UTF-8 unless told otherwise,
// about the Windows-1252 angle sign of a polar header; it finds no error.
TEST(TablePage, TidyFindsNoErrors) {
  for (const int type : {1, 3}) {
    std::unique_ptr<expr::FormulaControl> engine = expr::MakeFormulaControl();
    testing::RecordingMessageBox boxes;
    ValueTableTool tool(*engine, boxes);
    tool.SetType(type);
    tool.y = type == 3 ? "sin(k)" : "sin(x)";
    ASSERT_TRUE(tool.Calculate());
    const fs::path file = fs::temp_directory_path() / "velmora_tidy_table.htm";
    TableHead head = Head();
    head.polar = type == 3;
    testing::WriteFileBytes(file, TablePublisher::HtmlPage(tool.Table(), head));
    const fs::path report = fs::temp_directory_path() / "velmora_tidy_table.txt";
    const std::string command =
        std::string(VELMORA_TIDY) + " -errors -q " + file.string() + " > " + report.string() + " 2>&1";
    const int status = std::system(command.c_str());
    const std::string said = testing::ReadFileBytes(report);
    // Exit status 0 is a clean page, 1 warnings only, 2 errors.
    ASSERT_NE(status, -1);
    EXPECT_LT(WEXITSTATUS(status), 2) << said;
    EXPECT_EQ(said.find("Error:"), std::string::npos) << said;
    fs::remove(file);
    fs::remove(report);
  }
}

struct PublishFixture {
  PublishFixture() { fs::remove(path); }
  ~PublishFixture() { fs::remove(path); }
  fs::path path = fs::temp_directory_path() / "velmora_publish_test";
  testing::SaveAnswerFileDialog files;
  testing::RecordingMessageBox boxes;
  testing::RecordingLauncher shell;
  TablePublisher publisher{files, boxes, &shell};
  graph::ValueTable table = Table({{"X", "Y", "Y'"}, {"-1", "1", "-2"}});
};

TEST(PublishTable, WritesTheFileAsNamedAndOpensThePreview) {
  PublishFixture f;
  f.files.answer = f.path.string();  // no extension: used as it stands
  f.boxes.Answer(platform::MsgResult::Yes);
  EXPECT_EQ(f.publisher.Publish(f.table, Head()), f.path.string());
  EXPECT_EQ(f.files.asked, (std::vector<std::string>{"Publish Table|HTML (*.htm;*.html)|*.htm;*.html"}));
  EXPECT_EQ(testing::ReadFileBytes(f.path), kPage);
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Preview in Browser?");
  EXPECT_EQ(f.boxes.Boxes()[0].title, "Table Preview");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::Question);
  EXPECT_EQ(f.shell.opened, (std::vector<std::string>{"open " + f.path.string()}));
  EXPECT_EQ(f.publisher.PublishedFunction(), "x^2");
}

TEST(PublishTable, AnExistingFileIsReplacedOnlyOnYes) {
  PublishFixture f;
  testing::WriteFileBytes(f.path, "old");
  f.files.answer = f.path.string();
  f.boxes.Answer(platform::MsgResult::No);
  EXPECT_EQ(f.publisher.Publish(f.table, Head()), "");
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, f.path.string() + " already exists.\r\nDo you want to replace it?");
  EXPECT_EQ(f.boxes.Boxes()[0].title, "Save As");
  EXPECT_EQ(testing::ReadFileBytes(f.path), "old");
  f.boxes.Answer(platform::MsgResult::Yes);
  f.boxes.Answer(platform::MsgResult::No);
  EXPECT_EQ(f.publisher.Publish(f.table, Head()), f.path.string());
  EXPECT_EQ(testing::ReadFileBytes(f.path), kPage);
  EXPECT_TRUE(f.shell.opened.empty()) << "no preview on No";
}

TEST(PublishTable, ACancelEndsQuietly) {
  PublishFixture f;
  EXPECT_EQ(f.publisher.Publish(f.table, Head()), "");
  EXPECT_TRUE(f.boxes.Boxes().empty());
}

TEST(PublishTable, APathThatCannotBeWrittenGivesTheWarning) {
  PublishFixture f;
  f.files.answer = (fs::temp_directory_path() / "velmora_no_such_folder" / "t.htm").string();
  EXPECT_EQ(f.publisher.Publish(f.table, Head()), "");
  ASSERT_EQ(f.boxes.Boxes().size(), 1u);
  EXPECT_EQ(f.boxes.Boxes()[0].text, "Error. Specified file path cannot be acceded (file is ReadOnly etc.)");
  EXPECT_EQ(f.boxes.Boxes()[0].icon, platform::MsgIcon::Exclamation);
}

}  // namespace
}  // namespace velmora::tools
