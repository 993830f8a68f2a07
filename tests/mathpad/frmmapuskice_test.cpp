// MathPad's window offscreen: captions and panels, the file questions, the
// single undo, the Edit menu's tests, the toolbar following the selection,
// formatting that survives a save and an open, pictures, symbols.
#include "mathpad/qt/frmmapuskice.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QTest>
#include <QTextCursor>
#include <QTextEdit>
#include <QTextList>

#include "mathpad/documentfile.h"
#include "mathpad/qt/frmansi.h"
#include "mathpad/qt/padconvert.h"
#include "output/qt/printdialogs.h"
#include "rtf/rtfreader.h"
#include "tests/mathpad/padwindowfixture.h"

namespace velmora::mathpad_qt {
namespace {

using platform::MsgResult;
using testing::PadWindowTest;

void Type(QTextEdit* editor, const QString& text) {
  QTextCursor cursor = editor->textCursor();
  cursor.insertText(text);
  editor->setTextCursor(cursor);
}

void Select(QTextEdit* editor, int from, int to) {
  QTextCursor cursor(editor->document());
  cursor.setPosition(from);
  cursor.setPosition(to, QTextCursor::KeepAnchor);
  editor->setTextCursor(cursor);
}

TEST_F(PadWindowTest, CaptionMenusAndPanelsAtStart) {
  EXPECT_EQ(pad->windowTitle(), "MathPad - Untitled");
  EXPECT_EQ(pad->FilePanel(), "Untitled");
  EXPECT_EQ(pad->SizePanel(), "0 KB");
  EXPECT_EQ(pad->PlacePanel(), "Ln 1, Col 1");
  EXPECT_EQ(pad->Action("mnuEditUndo")->text(), "&Undo\tCtrl+Z");
  EXPECT_EQ(pad->Action("mnuEditClear")->text(), "&Delete\tDelete");
  EXPECT_EQ(pad->Action("mnuExit")->text(), "E&xit\tAlt+F4");
  EXPECT_EQ(pad->Action("mnuSelAll")->text(), "Sellect All");
  EXPECT_EQ(pad->Action("mnuFind")->text(), "&Find && Replace...");
  for (const char* key :
       {"New", "Open", "Save", "Print", "Copy", "Paste", "Undo", "Insert", "Sup", "Bul", "Sub", "simbol",
        "Find", "Bold", "Italic", "Underline", "Left", "Center", "Right"}) {
    EXPECT_NE(pad->Button(key), nullptr) << key;
  }
}

TEST_F(PadWindowTest, TypingSetsDirtyAndPanels) {
  Type(pad->Editor(), QString(1536, QLatin1Char('x')));
  EXPECT_TRUE(pad->File().Dirty());
  EXPECT_EQ(pad->SizePanel(), "1.5 KB");
  Type(pad->Editor(), "\nab");
  EXPECT_EQ(pad->PlacePanel(), "Ln 2, Col 3");
}

TEST_F(PadWindowTest, NewAsksThenClears) {
  Type(pad->Editor(), "notes");
  messages.Answer(MsgResult::Cancel);
  pad->Action("mnuNew")->trigger();
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Do you want to save the changes to Untitled?");
  EXPECT_EQ(pad->Editor()->toPlainText(), "notes");
  messages.Answer(MsgResult::No);
  pad->Action("mnuNew")->trigger();
  EXPECT_EQ(pad->Editor()->toPlainText(), "");
  EXPECT_FALSE(pad->File().Dirty());
  EXPECT_EQ(pad->SizePanel(), "0 KB");
}

TEST_F(PadWindowTest, SaveOpenRevertThroughTheMenus) {
  Type(pad->Editor(), "saved text");
  files.answers.push_back(Path("note.rtf"));
  pad->Action("mnuSave")->trigger();
  EXPECT_EQ(files.titles, std::vector<std::string>{"Save As"});
  EXPECT_EQ(pad->windowTitle().toStdString(), "Bekrak - " + Path("note.rtf"));
  EXPECT_FALSE(pad->File().Dirty());
  EXPECT_TRUE(rtf::LooksLikeRtf(*mathpad::ReadFileBytes(Path("note.rtf"))));

  Type(pad->Editor(), " and more");
  messages.Answer(MsgResult::Yes);
  pad->Action("mnuRevert")->trigger();
  EXPECT_EQ(messages.Boxes().back().text, "Revert to last saved version?");
  EXPECT_EQ(pad->Editor()->toPlainText(), "saved text");

  messages.Answer(MsgResult::No);
  pad->Action("mnuNew")->trigger();
  files.answers.push_back(Path("note.rtf"));
  pad->Action("mnuOpen")->trigger();
  EXPECT_EQ(pad->Editor()->toPlainText(), "saved text");
  EXPECT_EQ(pad->FilePanel().toStdString(), Path("note.rtf"));
  QAction* recent = pad->findChild<QAction*>("mnuRecent1");
  ASSERT_NE(recent, nullptr);
  EXPECT_TRUE(recent->isVisible());
  EXPECT_EQ(recent->text().toStdString(), "&1 " + Path("note.rtf"));
}

TEST_F(PadWindowTest, CloseQuestionKeepsADirtyWindowOnCancel) {
  Type(pad->Editor(), "x");
  messages.Answer(MsgResult::Cancel);
  EXPECT_FALSE(pad->close());
  EXPECT_EQ(messages.Boxes().back().text, "Save changes before closing?");
  EXPECT_EQ(messages.Boxes().back().title, "Save Changes");
  ASSERT_FALSE(guard.isNull());
  messages.Answer(MsgResult::No);
  EXPECT_TRUE(pad->close());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(guard.isNull()) << "a closed MathPad is deleted; the frame makes a new one";
}

TEST_F(PadWindowTest, UndoIsOneStep) {
  Type(pad->Editor(), "one");
  QTextCursor cursor(pad->Editor()->document());
  cursor.insertText("zero ");  // a second change, at another place
  ASSERT_EQ(pad->Editor()->toPlainText(), "zero one");
  pad->Undo();
  EXPECT_EQ(pad->Editor()->toPlainText(), "one");
  EXPECT_TRUE(pad->CanUndo());
  pad->Undo();
  EXPECT_EQ(pad->Editor()->toPlainText(), "zero one") << "undoing the undo brings the change back";
  pad->Undo();
  pad->Undo();
  pad->Undo();
  EXPECT_EQ(pad->Editor()->toPlainText(), "one") << "never further back than one step";
  QTest::keyClick(pad->Editor(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(pad->Editor()->toPlainText(), "zero one") << "Ctrl+Z is the same single step";
}

TEST_F(PadWindowTest, EditMenuFollowsTheThreeTests) {
  pad->RefreshEditMenu();
  EXPECT_FALSE(pad->Action("mnuEditUndo")->isEnabled());
  EXPECT_FALSE(pad->Action("mnuEditCut")->isEnabled());
  EXPECT_FALSE(pad->Action("mnuEditCopy")->isEnabled());
  EXPECT_FALSE(pad->Action("mnuEditClear")->isEnabled());
  Type(pad->Editor(), "abc");
  Select(pad->Editor(), 0, 2);
  pad->RefreshEditMenu();
  EXPECT_TRUE(pad->Action("mnuEditUndo")->isEnabled());
  EXPECT_TRUE(pad->Action("mnuEditCut")->isEnabled());
  EXPECT_TRUE(pad->Action("mnuEditCopy")->isEnabled());
  EXPECT_TRUE(pad->Action("mnuEditClear")->isEnabled());
  pad->Action("mnuEditClear")->trigger();
  EXPECT_EQ(pad->Editor()->toPlainText(), "c");
}

TEST_F(PadWindowTest, ToolbarFollowsTheSelection) {
  Type(pad->Editor(), "plain ");
  pad->ToggleBold();
  Type(pad->Editor(), "bold");
  EXPECT_TRUE(pad->Button("Bold")->isChecked());
  Select(pad->Editor(), 1, 1);
  EXPECT_FALSE(pad->Button("Bold")->isChecked()) << "the caret in plain text releases Bold";
  Select(pad->Editor(), 8, 8);
  EXPECT_TRUE(pad->Button("Bold")->isChecked());
  pad->SetAlignment(Qt::AlignHCenter);
  EXPECT_TRUE(pad->Button("Center")->isChecked());
  EXPECT_FALSE(pad->Button("Left")->isChecked());
  pad->ToggleBullets();
  EXPECT_TRUE(pad->Button("Bul")->isChecked());
  pad->ToggleBullets();
  EXPECT_FALSE(pad->Button("Bul")->isChecked());
}

TEST_F(PadWindowTest, SuperscriptAndSubscriptAreMirrorImages) {
  Type(pad->Editor(), "x");
  pad->ToggleSuperscript();
  EXPECT_TRUE(pad->Button("Sup")->isChecked());
  EXPECT_FALSE(pad->Button("Sub")->isChecked());
  const QTextCharFormat raised = pad->Editor()->currentCharFormat();
  EXPECT_EQ(raised.intProperty(kOffsetProperty), 4) << "(10 + 33) twips in half points";
  EXPECT_DOUBLE_EQ(raised.fontPointSize(), 7.0) << "0.7 times the size box";
  pad->ToggleSubscript();
  EXPECT_TRUE(pad->Button("Sub")->isChecked());
  EXPECT_FALSE(pad->Button("Sup")->isChecked());
  EXPECT_EQ(pad->Editor()->currentCharFormat().intProperty(kOffsetProperty), -4);
  pad->ToggleSubscript();
  EXPECT_FALSE(pad->Button("Sub")->isChecked());
  EXPECT_EQ(pad->Editor()->currentCharFormat().intProperty(kOffsetProperty), 0);
  EXPECT_DOUBLE_EQ(pad->Editor()->currentCharFormat().fontPointSize(), 10.0) << "the size comes back";
}

TEST_F(PadWindowTest, FormattingAndPicturesSurviveSaveAndOpen) {
  Type(pad->Editor(), "E = mc");
  pad->ToggleSuperscript();
  Type(pad->Editor(), "2");
  pad->ToggleSuperscript();
  pad->ToggleBold();
  Type(pad->Editor(), " bold");
  pad->ToggleBold();
  Type(pad->Editor(), "\n");
  pad->ToggleBullets();
  Type(pad->Editor(), "a point");
  QImage picture(40, 30, QImage::Format_RGB32);
  picture.fill(Qt::blue);
  const QString png = QString::fromStdString(Path("graph.png"));
  ASSERT_TRUE(picture.save(png));
  Type(pad->Editor(), "\n");
  ASSERT_TRUE(pad->InsertImageFile(png));
  const rtf::Document before = pad->Content();

  files.answers.push_back(Path("formatted.rtf"));
  ASSERT_TRUE(pad->File().SaveAs());
  messages.Answer(MsgResult::No);
  pad->File().New();
  ASSERT_TRUE(pad->File().OpenPath(Path("formatted.rtf")));
  const rtf::Document after = pad->Content();
  EXPECT_EQ(after, before);
  ASSERT_EQ(after.paragraphs.size(), 3u);
  EXPECT_TRUE(after.paragraphs[1].bullet);
  ASSERT_TRUE(after.paragraphs[2].runs.at(0).picture.has_value());
  EXPECT_EQ(after.paragraphs[2].runs[0].picture->widthPixels, 40);
}

TEST_F(PadWindowTest, PastedPictureIsKeptAsPng) {
  QImage picture(20, 10, QImage::Format_RGB32);
  picture.fill(Qt::red);
  QApplication::clipboard()->setImage(picture);
  pad->RefreshEditMenu();
  EXPECT_TRUE(pad->Action("mnuEditPaste")->isEnabled()) << "a picture on the clipboard can be pasted";
  pad->Action("mnuEditPaste")->trigger();
  const rtf::Document document = pad->Content();
  ASSERT_EQ(document.paragraphs.at(0).runs.size(), 1u);
  ASSERT_TRUE(document.paragraphs[0].runs[0].picture.has_value());
  EXPECT_EQ(document.paragraphs[0].runs[0].picture->kind, rtf::Picture::Kind::Png);
  EXPECT_EQ(document.paragraphs[0].runs[0].picture->widthPixels, 20);
}

TEST_F(PadWindowTest, WmfAndUnreadablePicturesAreRefused) {
  const std::string wmf = Path("old.wmf");
  FILE* f = std::fopen(wmf.c_str(), "wb");
  std::fputs("\xD7\xCD\xC6\x9A not really", f);
  std::fclose(f);
  EXPECT_FALSE(pad->InsertImageFile(QString::fromStdString(wmf)));
  EXPECT_EQ(messages.Boxes().back().title, "Insert Image");
}

TEST_F(PadWindowTest, InsertSymbolShowsCodesAndInserts) {
  FrmAnsi* symbols = pad->SymbolDialog();
  symbols->SelectCode(169);
  EXPECT_EQ(symbols->Codes()->text(), "Dec: 169 Hex: A9 Bin: 10101001");
  EXPECT_EQ(symbols->StatusText(),
            QString::fromUtf8("ASCII Code: 0169   Alphanumeric Representation: \xC2\xA9   ALT + 0169"));
  symbols->InsertSelected();
  EXPECT_EQ(pad->Editor()->toPlainText(), QString::fromUtf8("\xC2\xA9"));
  symbols->SelectCode(128);
  EXPECT_EQ(symbols->Text1()->text(), QString::fromUtf8("\xE2\x82\xAC"))
      << "code 128 is the euro of the code page";
}

TEST_F(PadWindowTest, OtherWindowsWriteThroughTheTarget) {
  platform::MathPadTarget& target = *pad;
  target.AppendText("Function History:\r\nY = x");
  EXPECT_EQ(pad->Editor()->toPlainText(), "Function History:\nY = x");
  target.InsertText("[table]", "Courier New");
  EXPECT_EQ(pad->Content().paragraphs.back().runs.back().format.font, "Courier New");
}

// The print dialog answered by printing to a PDF file in the test's folder.
class PrintToFile {
 public:
  explicit PrintToFile(std::string path) : path_(std::move(path)) {
    output_qt::SetPrinterChooser([this](QPrinter& printer, QWidget*) {
      ++asked;
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(QString::fromStdString(path_));
      return true;
    });
  }
  ~PrintToFile() { output_qt::SetPrinterChooser({}); }
  int asked = 0;

 private:
  std::string path_;
};

TEST_F(PadWindowTest, PrintOfAnEmptyDocumentAsksForThePrinterThenSaysSo) {
  PrintToFile printer(Path("empty.pdf"));
  pad->Action("mnuprint")->trigger();
  EXPECT_EQ(printer.asked, 1);  // the dialog comes first
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Nothing to print.");
  EXPECT_FALSE(QFileInfo::exists(QString::fromStdString(Path("empty.pdf"))));
}

TEST_F(PadWindowTest, PrintOfADocumentWritesItsPages) {
  Type(pad->Editor(), "printed words");
  PrintToFile printer(Path("page.pdf"));
  pad->Action("mnuprint")->trigger();
  EXPECT_TRUE(messages.Boxes().empty());
  EXPECT_GT(QFileInfo(QString::fromStdString(Path("page.pdf"))).size(), 0);
}

TEST_F(PadWindowTest, PrintSetupIsLive) { EXPECT_TRUE(pad->Action("mnuPrSetup")->isEnabled()); }

TEST_F(PadWindowTest, SendToEmailHandsTheSavedFileOver) {
  Type(pad->Editor(), "mail");
  files.answers.push_back(Path("mail.txt"));
  ASSERT_TRUE(pad->File().SaveAs());
  input.Answer("someone@example.org");
  pad->Action("mnuEmail")->trigger();
  if (!mathpad::FindOnPath("xdg-email")) GTEST_SKIP() << "xdg-email (xdg-utils) is not installed";
  ASSERT_EQ(shell.runs.size(), 1u);
  EXPECT_NE(shell.runs[0].find("xdg-email --attach \"" + Path("mail.txt") + "\" \"someone@example.org\""),
            std::string::npos)
      << shell.runs[0];
}

}  // namespace
}  // namespace velmora::mathpad_qt
