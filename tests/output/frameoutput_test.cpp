// The frame's JPEG, print, page setup and help commands, offscreen: the
// print dialog is replaced by a PDF file, modal dialogs are answered by a
// timer, message boxes are recorded.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPrinter>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>

#include "app/frmmain.h"
#include "graph/graphwindow.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/qimagesurface.h"
#include "output/qt/frmjpg.h"
#include "output/qt/frmpagesetup.h"
#include "output/qt/printdialogs.h"
#include "platform/qt/qtsettingsstore.h"
#include "tests/graph/dialogfakes.h"
#include "tests/output/outputtools.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::testing {
namespace {

struct NoShell final : platform::ShellLauncher {
  int Execute(const std::string& file, const std::string&, const std::string&, const std::string&,
              bool) override {
    opened.push_back(file);
    return 2;  // file not found
  }
  std::vector<std::string> opened;
};

class FrameOutputTest : public ::testing::Test {
 protected:
  void SetUp() override {
    settings_ = std::make_unique<qtplatform::QtSettingsStore>(dir_.filePath(QStringLiteral("Velmora.ini")));
    pdf_ = dir_.filePath(QStringLiteral("printed.pdf"));
    output_qt::SetPrinterChooser([this](QPrinter& printer, QWidget*) {
      ++printDialogs_;
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(pdf_);
      return true;
    });
    app::FrameServices services;
    services.settings = settings_.get();
    services.messages = &messages_;
    services.input = &input_;
    services.files = &files_;
    services.shell = &shell_;
    services.historyPath = dir_.filePath(QStringLiteral("GraphLog.txt")).toStdString();
    services.helpPath = dir_.filePath(QStringLiteral("help/index.html"));
    frame_ = std::make_unique<app::FrmMain>(services);
    frame_->show();
    frame_->Load({});
    QApplication::processEvents();
  }
  void TearDown() override {
    frame_.reset();
    output_qt::SetPrinterChooser({});
  }

  void Draw(const char* function) {
    graph_qt::FrmFunc* window = frame_->ActiveGraphWindow();
    ASSERT_NE(window, nullptr);
    window->Logic().SetFunctionTexts(function, "K");
    window->SyncFromLogic();
    frame_->Run(app::Command::DrawFunction);
    QApplication::processEvents();
  }

  // Runs a command that opens a modal dialog of type T, and `answer` on it
  // once it is up.
  template <typename T, typename Answer>
  void WithDialog(app::Command command, Answer answer) {
    bool seen = false;
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<T*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      seen = true;
      answer(*dialog);
    });
    frame_->Run(command);
    EXPECT_TRUE(seen);
  }

  QTemporaryDir dir_;
  QString pdf_;
  int printDialogs_ = 0;
  std::unique_ptr<qtplatform::QtSettingsStore> settings_;
  RecordingMessageBox messages_;
  ScriptedInputBox input_;
  ScriptedFileDialog files_;
  NoShell shell_;
  std::unique_ptr<app::FrmMain> frame_;
};

TEST_F(FrameOutputTest, JpegSavesTheActivePictureAtTheQualityChosen) {
  Draw("SinX");
  const QString file = dir_.filePath(QStringLiteral("sin.jpg"));
  files_.answers.push_back(file.toStdString());
  WithDialog<output_qt::FrmJPG>(app::Command::SaveJpeg, [](output_qt::FrmJPG& dialog) {
    dialog.txtQuality()->setText(QStringLiteral("75"));
    dialog.cmdSaveStdPic()->click();
  });
  const QImage& picture = frame_->ActiveGraphWindow()->Picture().Image();
  const DecodedSize size = DjpegSize(file.toStdString());
  EXPECT_EQ(size.width, picture.width());
  EXPECT_EQ(size.height, picture.height());
  EXPECT_EQ(FirstQuantEntry(RunTool("cat " + Quoted(file.toStdString()))), 8) << "quality 75";
  EXPECT_TRUE(messages_.Boxes().empty());
}

TEST_F(FrameOutputTest, PrintGraphPutsThePictureOnOnePage) {
  Draw("CosX");
  frame_->Run(app::Command::PrintGraph);
  EXPECT_EQ(printDialogs_, 1);
  EXPECT_EQ(PdfPages(pdf_.toStdString()), 1);
  const PdfImage image = FirstPdfImage(pdf_.toStdString());
  EXPECT_EQ(image.width, frame_->ActiveGraphWindow()->Picture().Image().width());
  EXPECT_TRUE(messages_.Boxes().empty());
}

TEST_F(FrameOutputTest, PrintHistoryAsksThenPrintsTheHistory) {
  Draw("SinX");
  messages_.Answer(platform::MsgResult::No);
  frame_->Run(app::Command::PrintHistory);
  ASSERT_EQ(messages_.Boxes().size(), 1u);
  EXPECT_EQ(messages_.Boxes()[0].text, "Open function history in MathPad and edit it, save or print?");
  EXPECT_EQ(messages_.Boxes()[0].buttons, platform::MsgButtons::YesNo);
  const std::string words = RunTool("pdftotext " + Quoted(pdf_.toStdString()) + " -");
  EXPECT_NE(words.find("Y(X) = sinx"), std::string::npos) << words;
}

TEST_F(FrameOutputTest, AnEmptyHistoryIsNothingToPrint) {
  messages_.Answer(platform::MsgResult::No);
  frame_->Run(app::Command::PrintHistory);
  ASSERT_EQ(messages_.Boxes().size(), 2u);
  EXPECT_EQ(messages_.Boxes()[1].text, "Nothing to print.");
  EXPECT_FALSE(QFile::exists(pdf_));
}

TEST_F(FrameOutputTest, PrintSetupKeepsTheMarginsForTheNextPrint) {
  WithDialog<output_qt::FrmPageSetup>(app::Command::PrintSetup, [](output_qt::FrmPageSetup& dialog) {
    EXPECT_EQ(dialog.txtlevo()->text(), " 1");
    dialog.txtlevo()->setText(QStringLiteral("2.5"));
    dialog.cmdOK()->click();
  });
  EXPECT_EQ(settings_->Query("Print", "levo"), "2.5");
  WithDialog<output_qt::FrmPageSetup>(app::Command::PrintSetup, [](output_qt::FrmPageSetup& dialog) {
    EXPECT_EQ(dialog.txtlevo()->text(), "2.5") << "read back when the dialog opens again";
    dialog.cmdCancel()->click();
  });
  Draw("SinX");
  messages_.Answer(platform::MsgResult::No);
  frame_->Run(app::Command::PrintHistory);
  const std::string boxes = RunTool("pdftotext -bbox " + Quoted(pdf_.toStdString()) + " -");
  const auto at = boxes.find("xMin=\"");
  ASSERT_NE(at, std::string::npos) << boxes;
  // The history's lines start with a blank: the first word stands one
  // fixed-pitch space right of the margin.
  const double x = std::stod(boxes.substr(at + 6));
  EXPECT_GE(x, 2.5 * 72 - 1);
  EXPECT_LE(x, 2.5 * 72 + 8);
}

TEST_F(FrameOutputTest, MissingHelpGivesTheShellOutText) {
  frame_->Run(app::Command::HelpContents);
  ASSERT_EQ(shell_.opened.size(), 1u);
  EXPECT_EQ(shell_.opened[0], dir_.filePath(QStringLiteral("help/index.html")).toStdString());
  ASSERT_EQ(messages_.Boxes().size(), 1u);
  EXPECT_EQ(messages_.Boxes()[0].text,
            "File not found\r\n" +
                QDir::toNativeSeparators(dir_.filePath(QStringLiteral("help/index.html"))).toStdString());
}

TEST_F(FrameOutputTest, WithoutAWindowThePictureCommandsDoNothing) {
  frame_->Run(app::Command::Close);
  QApplication::processEvents();
  frame_->Run(app::Command::PrintGraph);
  frame_->Run(app::Command::SaveJpeg);
  frame_->Run(app::Command::PrintHistory);
  EXPECT_EQ(printDialogs_, 0);
  EXPECT_TRUE(messages_.Boxes().empty());
}

}  // namespace
}  // namespace velmora::testing
