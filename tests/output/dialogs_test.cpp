#include <gtest/gtest.h>

#include <filesystem>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

#include "output/qt/frmjpg.h"
#include "output/qt/frmpagesetup.h"
#include "output/qt/printdialogs.h"
#include "tests/graph/dialogfakes.h"
#include "tests/output/outputtools.h"
#include "tests/support/fakesettingsstore.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::output_qt {
namespace {

QImage Picture() {
  QImage image(160, 120, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setPen(QPen(Qt::darkGreen, 2));
  painter.drawLine(0, 60, 159, 20);
  return image;
}

class FrmJPGTest : public ::testing::Test {
 protected:
  testing::ScriptedFileDialog files_;
  testing::RecordingMessageBox messages_;
  FrmJPG dialog_{Picture(), files_, messages_};
};

TEST_F(FrmJPGTest, LoadsAtQualityOneHundredWithAPreview) {
  EXPECT_EQ(dialog_.Slider1()->value(), 100);
  EXPECT_EQ(dialog_.Slider1()->minimum(), 0);
  EXPECT_EQ(dialog_.Slider1()->maximum(), 100);
  EXPECT_EQ(dialog_.txtQuality()->text(), "100");
  EXPECT_EQ(dialog_.Quality(), 100);
  EXPECT_FALSE(dialog_.picTest()->pixmap().isNull());
  EXPECT_EQ(dialog_.cmdSaveStdPic()->text(), "&Save...");
  EXPECT_EQ(dialog_.Command2()->text(), "Cancel");
}

TEST_F(FrmJPGTest, TheBoxTakesOnlyDigits) {
  struct Row {
    const char* typed;
    const char* shown;
    int slider;
    const char* why;
  };
  const Row rows[] = {
      {"55", "55", 55, "digits go in and move the slider"},
      {"5a5", "55", 55, "a letter is refused"},
      {"-7", "7", 7, "no sign"},
      {"4.2", "42", 42, "no decimal point"},
      {" 9", "9", 9, "no blank"},
  };
  for (const Row& row : rows) {
    dialog_.txtQuality()->clear();
    QTest::keyClicks(dialog_.txtQuality(), QString::fromLatin1(row.typed));
    EXPECT_EQ(dialog_.txtQuality()->text().toStdString(), row.shown) << row.why;
    EXPECT_EQ(dialog_.Slider1()->value(), row.slider) << row.why;
    EXPECT_EQ(dialog_.Quality(), row.slider) << row.why;
  }
}

TEST_F(FrmJPGTest, AboveOneHundredIsPulledBack) {
  dialog_.txtQuality()->clear();
  QTest::keyClicks(dialog_.txtQuality(), QStringLiteral("250"));
  EXPECT_EQ(dialog_.txtQuality()->text(), "100");
  EXPECT_EQ(dialog_.Slider1()->value(), 100);
  // Backspace still edits the box.
  QTest::keyClick(dialog_.txtQuality(), Qt::Key_Backspace);
  EXPECT_EQ(dialog_.txtQuality()->text(), "10");
  EXPECT_EQ(dialog_.Slider1()->value(), 10);
}

TEST_F(FrmJPGTest, TheSliderSetsTheBox) {
  dialog_.Slider1()->setValue(37);
  EXPECT_EQ(dialog_.txtQuality()->text(), "37");
  EXPECT_EQ(dialog_.Quality(), 37);
  dialog_.Slider1()->setValue(0);
  EXPECT_EQ(dialog_.txtQuality()->text(), "0");
}

TEST_F(FrmJPGTest, SaveWritesTheFileAtTheQualityAndCloses) {
  QTemporaryDir dir;
  files_.answers.push_back(dir.filePath(QStringLiteral("graph")).toStdString());
  dialog_.Slider1()->setValue(50);
  dialog_.show();
  dialog_.SaveClicked();
  ASSERT_EQ(files_.asked.size(), 1u);
  EXPECT_EQ(files_.asked[0].filter, "JPEG Files (*.JPG)|*.JPG");
  const QString file = dir.filePath(QStringLiteral("graph.JPG"));
  EXPECT_EQ(dialog_.SavedFile(), file) << "the default extension JPG";
  EXPECT_EQ(testing::DjpegSize(file.toStdString()).width, 160);
  // Quality 50: the encoder's standard table.
  EXPECT_EQ(testing::FirstQuantEntry(testing::RunTool("cat " + testing::Quoted(file.toStdString()))), 16);
  EXPECT_TRUE(messages_.Boxes().empty());
  EXPECT_FALSE(dialog_.isVisible()) << "the dialog closes";
}

TEST_F(FrmJPGTest, AFailedWriteWarnsWithTheName) {
  QTemporaryDir dir;
  const std::string name = dir.filePath(QStringLiteral("missing/graph.jpg")).toStdString();
  files_.answers.push_back(name);
  dialog_.SaveClicked();
  ASSERT_EQ(messages_.Boxes().size(), 1u);
  EXPECT_EQ(messages_.Boxes()[0].text, "Failed to save the picture to the file: '" + name + "'");
  EXPECT_EQ(messages_.Boxes()[0].icon, platform::MsgIcon::Exclamation);
  EXPECT_TRUE(dialog_.SavedFile().isEmpty());
}

TEST(FrmPageSetup, ShowsTheStoredMarginsAndWritesThemOnOK) {
  testing::FakeSettingsStore store;
  store.Store("Print", "gore", "2.5");
  FrmPageSetup dialog(store);
  EXPECT_EQ(dialog.txtlevo()->text(), " 1") << "never set: one inch, as the store's default text";
  EXPECT_EQ(dialog.txtDesno()->text(), " 1");
  EXPECT_EQ(dialog.txtgore()->text(), "2.5");
  EXPECT_EQ(dialog.txtdole()->text(), " 1");
  EXPECT_EQ(dialog.Command1()->text(), "Printer...");
  dialog.txtlevo()->setText(QStringLiteral("0.75"));
  dialog.txtdole()->setText(QStringLiteral("3"));
  dialog.cmdOK()->click();
  EXPECT_EQ(store.Values().at({"Print", "levo"}), "0.75");
  EXPECT_EQ(store.Values().at({"Print", "desno"}), " 1");
  EXPECT_EQ(store.Values().at({"Print", "gore"}), "2.5");
  EXPECT_EQ(store.Values().at({"Print", "dole"}), "3");
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(FrmPageSetup, CancelWritesNothing) {
  testing::FakeSettingsStore store;
  FrmPageSetup dialog(store);
  dialog.txtlevo()->setText(QStringLiteral("4"));
  dialog.cmdCancel()->click();
  EXPECT_EQ(store.Writes(), 0);
}

// Prints to a PDF file in place of the print dialog.
class PrintDialogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    file_ = dir_.filePath(QStringLiteral("out.pdf"));
    SetPrinterChooser([this](QPrinter& printer, QWidget*) {
      ++asked_;
      if (!go_) return false;
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(file_);
      return true;
    });
  }
  void TearDown() override { SetPrinterChooser({}); }

  QTemporaryDir dir_;
  QString file_;
  int asked_ = 0;
  bool go_ = true;
  testing::FakeSettingsStore store_;
  testing::RecordingMessageBox messages_;
};

TEST_F(PrintDialogTest, AnEmptyDocumentIsNothingToPrint) {
  QTextDocument empty;
  EXPECT_EQ(PrintDocumentDialog(nullptr, empty, store_, messages_), 0);
  EXPECT_EQ(asked_, 1) << "the print dialog comes first";
  ASSERT_EQ(messages_.Boxes().size(), 1u);
  EXPECT_EQ(messages_.Boxes()[0].text, "Nothing to print.");
  EXPECT_FALSE(std::filesystem::exists(file_.toStdString()));
}

TEST_F(PrintDialogTest, ACancelledDialogPrintsNothing) {
  go_ = false;
  QTextDocument document(QStringLiteral("words"));
  EXPECT_EQ(PrintDocumentDialog(nullptr, document, store_, messages_), 0);
  EXPECT_TRUE(messages_.Boxes().empty());
  EXPECT_FALSE(std::filesystem::exists(file_.toStdString()));
}

TEST_F(PrintDialogTest, ADocumentPrintsWithTheStoredMargins) {
  store_.Store("Print", "levo", "2");
  QTextDocument document;
  document.setPlainText(QStringLiteral("Velmora prints"));
  EXPECT_EQ(PrintDocumentDialog(nullptr, document, store_, messages_), 1);
  EXPECT_TRUE(messages_.Boxes().empty());
  const std::string html = testing::RunTool("pdftotext -bbox " + testing::Quoted(file_.toStdString()) + " -");
  const auto at = html.find("xMin=\"");
  ASSERT_NE(at, std::string::npos) << html;
  EXPECT_NEAR(std::stod(html.substr(at + 6)), 144, 3) << "two inches from the left edge";
}

TEST_F(PrintDialogTest, APicturePrintsOnOnePage) {
  EXPECT_TRUE(PrintPictureDialog(nullptr, Picture(), store_, messages_, true));
  EXPECT_EQ(testing::PdfPages(file_.toStdString()), 1);
}

}  // namespace
}  // namespace velmora::output_qt
