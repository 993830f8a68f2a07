// The Matrix Calculator's files through its dialogs, offscreen: .mcf saved
// from and opened into the grid of the active tab, the HTML report with its
// questions and preview, the command line's file, the text for MathPad.
#include <QTemporaryDir>

#include "tests/matrix/qt/matricefixture.h"
#include "tests/support/fakemathpad.h"
#include "tests/support/filebytes.h"

namespace velmora::matrix_qt::testing {
namespace {

using matrix::MatrixCalculator;
using platform::MsgResult;
using velmora::testing::ReadFileBytes;
using velmora::testing::WriteFileBytes;

constexpr int kA = MatrixCalculator::kTabA;
constexpr int kB = MatrixCalculator::kTabB;

struct Folder {
  QTemporaryDir dir;
  std::string Path(const char* name) const { return dir.filePath(QString::fromLatin1(name)).toStdString(); }
};

TEST(FrmMatriceFiles, ASavedMatrixLoadsToTheSameCellsEmptyOnesIncluded) {
  Folder folder;
  const std::string path = folder.Path("m.mcf");
  Matrice m;
  m.Sizes("2x2", "2x2");
  m.Fill(kA, {"1", "2+j1"});  // the second row stays empty
  m.files.answers.push_back(path);
  m.window->SaveMatrix();
  EXPECT_EQ(m.files.titles.at(0), "Save as Text");
  EXPECT_EQ(m.files.filters.at(0), "Matrix Calculator Files (*.mcf)|*.mcf");
  EXPECT_EQ(ReadFileBytes(path), " 2  2 \r\n1\r\n2+j1\r\n\r\n\r\n");

  m.window->Tabs()->setCurrentIndex(kB);
  m.files.answers.push_back(path);
  m.window->OpenMatrix();
  EXPECT_EQ(m.files.titles.at(1), "Open");
  EXPECT_EQ(m.window->Calculator().grdGrid2, m.window->Calculator().grdGrid1);
  EXPECT_EQ(m.Text("txtEntry2"), "2x2");
  EXPECT_TRUE(m.messages.Boxes().empty());
}

TEST(FrmMatriceFiles, ACellWithACommaOrAQuoteComesBackUnchanged) {
  Folder folder;
  const std::string path = folder.Path("q.mcf");
  WriteFileBytes(path, " 1  2 \r\n1,5\r\n\"2\"\r\n");
  Matrice m;
  m.window->Tabs()->setCurrentIndex(kA);
  m.files.answers.push_back(path);
  m.window->OpenMatrix();
  EXPECT_EQ(m.Cell(kA, 0, 0), "1,5");
  EXPECT_EQ(m.Cell(kA, 0, 1), "\"2\"");
  EXPECT_EQ(m.Text("txtEntry1"), "1x2");
}

TEST(FrmMatriceFiles, SavingOverAFileAsksAndNoKeepsIt) {
  Folder folder;
  const std::string path = folder.Path("old.mcf");
  WriteFileBytes(path, "old");
  Matrice m;
  m.Sizes("1x1", "1x1");
  m.files.answers.push_back(path);
  m.messages.Answer(MsgResult::No);
  m.window->SaveMatrix();
  ASSERT_EQ(m.messages.Boxes().size(), 1u);
  EXPECT_EQ(m.messages.Boxes()[0].text, path + " already exists.\r\nDo you want to replace it?");
  EXPECT_EQ(ReadFileBytes(path), "old");
  m.files.answers.push_back(path);
  m.messages.Answer(MsgResult::Yes);
  m.window->SaveMatrix();
  EXPECT_EQ(ReadFileBytes(path), " 1  1 \r\n\r\n");
}

TEST(FrmMatriceFiles, OpeningNeedsTheTabOfAnOperandAndACancelEndsQuietly) {
  Matrice m;
  m.window->Tabs()->setCurrentIndex(MatrixCalculator::kTabInverse);
  m.window->OpenMatrix();
  ASSERT_EQ(m.messages.Boxes().size(), 1u);
  EXPECT_EQ(m.messages.Boxes()[0].text, "Select Matrix [ A ] or Matrix [ B ] to open Matrix file.");
  m.window->Tabs()->setCurrentIndex(kA);
  m.window->OpenMatrix();  // the dialog is cancelled
  EXPECT_EQ(m.messages.Boxes().size(), 1u);
}

TEST(FrmMatriceFiles, TheCommandLinesFileGoesIntoA) {
  Folder folder;
  const std::string path = folder.Path("cli.mcf");
  WriteFileBytes(path, " 2  3 \r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
  Matrice m;
  m.window->OpenFile(QString::fromStdString(path));
  EXPECT_EQ(m.window->Tabs()->currentIndex(), kA);
  EXPECT_EQ(m.Cell(kA, 1, 2), "6");
  EXPECT_EQ(m.Text("txtEntry1"), "2x3");
  EXPECT_EQ(m.window->StatusText(1), QStringLiteral("Enter values for matrix [A] and [B]"));
  EXPECT_TRUE(m.window->ToolbarButton(11)->isEnabled());
}

TEST(FrmMatriceFiles, PublishWritesTheReportAndPreviewsItInTheBrowser) {
  Folder folder;
  const std::string path = folder.Path("r.htm");
  Matrice m;
  m.Sizes("1x1", "1x1");
  m.Fill(kA, {"2"});
  m.Fill(kB, {"3"});
  m.Go();
  m.files.answers.push_back(path);
  m.messages.Answer(MsgResult::Yes);
  m.window->PublishHtml();
  EXPECT_EQ(m.files.titles.at(0), "Publish Table");
  EXPECT_EQ(m.files.filters.at(0), "HTML (*.htm;*.html)|*.htm;*.html");
  const std::string html = ReadFileBytes(path);
  EXPECT_NE(html.find("<b>Addition</b>"), std::string::npos);
  ASSERT_EQ(m.messages.Boxes().size(), 1u);
  EXPECT_EQ(m.messages.Boxes()[0].text, "Preview in Browser?");
  EXPECT_EQ(m.messages.Boxes()[0].title, "Preview HTML");
  ASSERT_EQ(m.shell.opened.size(), 1u);
  EXPECT_EQ(m.shell.opened[0], path);

  // Over the file: the replace question first; a preview that fails says so.
  m.messages.Clear();
  m.shell.result = 2;
  m.files.answers.push_back(path);
  m.messages.Answer(MsgResult::Yes);
  m.messages.Answer(MsgResult::Yes);
  m.window->PublishHtml();
  ASSERT_EQ(m.messages.Boxes().size(), 3u);
  EXPECT_EQ(m.messages.Boxes()[0].text,
            "The file " + path + " already exists.\r\nDo you want to replace it?");
  EXPECT_EQ(m.messages.Boxes()[2].text,
            "Error. Specified file path cannot be acceded (file is ReadOnly etc.)");
}

TEST(FrmMatriceFiles, EditInMathPadHandsTheGridAsText) {
  velmora::testing::MathPadOnlyTools tools;
  velmora::testing::RecordingMessageBox messages;
  velmora::testing::ScriptedInputBox input;
  FrmMatriceServices s;
  s.messages = &messages;
  s.input = &input;
  s.tools = &tools;
  FrmMatrice window(nullptr, s);
  window.Calculator().grdGrid1.SetRows(1);
  window.Calculator().grdGrid1.SetCols(2);
  window.Calculator().grdGrid1.SetTextMatrix(0, 0, "1");
  window.Calculator().grdGrid1.SetTextMatrix(0, 1, "-2");
  window.Tabs()->setCurrentIndex(kA);
  QAction* entry = window.findChild<QAction*>(QStringLiteral("mnuMathPad"));
  ASSERT_TRUE(entry->isEnabled());
  entry->trigger();
  ASSERT_EQ(tools.pad.documents.size(), 1u);
  EXPECT_EQ(tools.pad.documents[0], "Matrix [A]\r\n\r\n| 1\t-2|\r\n");
}

}  // namespace
}  // namespace velmora::matrix_qt::testing
