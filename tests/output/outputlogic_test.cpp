// The Qt-free rules of the output dialogs: the JPEG quality box, the print
// margins, the save dialog wrapper, the print commands' texts and the
// scaling table.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "output/clsresize.h"
#include "output/jpegquality.h"
#include "output/mcommondialog.h"
#include "output/pagemargins.h"
#include "output/printcommands.h"
#include "tests/graph/dialogfakes.h"
#include "tests/support/fakesettingsstore.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::output {
namespace {

namespace fs = std::filesystem;

TEST(JpegQuality, TheBoxTakesDigitsOnly) {
  struct Row {
    char32_t key;
    bool accepted;
    const char* why;
  };
  const Row rows[] = {
      {U'0', true, "the lowest digit"},
      {U'9', true, "the highest digit"},
      {U'-', false, "no sign"},
      {U'.', false, "no decimals"},
      {U' ', false, "no blanks"},
      {U'a', false, "no letters"},
      {U'\u0665', false, "digits of other scripts are not 0 to 9"},
  };
  for (const Row& row : rows) EXPECT_EQ(JpegQuality::AcceptsKey(row.key), row.accepted) << row.why;
}

TEST(JpegQuality, ABoxChangeIsClampedToTheSlider) {
  struct Row {
    const char* text;
    int value;
    const char* shown;
    const char* why;
  };
  const Row rows[] = {
      {"100", 100, "100", "the default"},
      {"50", 50, "50", "inside the range stays as typed"},
      {"0", 0, "0", "the lowest quality"},
      {"007", 7, "007", "leading zeros are read and left in the box"},
      {"101", 100, "100", "above 100 becomes 100"},
      {"999", 100, "100", "far above too"},
      {"", 0, "", "an empty box reads 0 and stays empty"},
      {"12x", 12, "12x", "a paste with other characters reads its leading digits"},
      {"99999999999999999999", 100, "100", "digits beyond any integer"},
  };
  for (const Row& row : rows) {
    const auto change = JpegQuality::FromText(row.text);
    EXPECT_EQ(change.value, row.value) << row.why;
    EXPECT_EQ(change.text, row.shown) << row.why;
  }
}

TEST(JpegQuality, TheSliderSetsTheBox) {
  EXPECT_EQ(JpegQuality::ToText(0), "0");
  EXPECT_EQ(JpegQuality::ToText(64), "64");
  EXPECT_EQ(JpegQuality::ToText(100), "100");
  EXPECT_EQ(JpegQuality::ToText(-3), "0") << "below 0 becomes 0";
  EXPECT_EQ(JpegQuality::ToText(250), "100");
}

TEST(PrintMargine, AbsentMarginsReadOneInch) {
  testing::FakeSettingsStore store;
  const MarginTexts texts = PrintMargine::Load(store);
  EXPECT_EQ(texts.levo, " 1");
  EXPECT_EQ(texts.desno, " 1");
  EXPECT_EQ(texts.gore, " 1");
  EXPECT_EQ(texts.dole, " 1");
  EXPECT_EQ(store.Writes(), 0) << "reading writes nothing";
  const PageMargins margins = PrintMargine::Read(store);
  EXPECT_EQ(margins.left, 1);
  EXPECT_EQ(margins.bottom, 1);
}

TEST(PrintMargine, TheFourKeysOfPrintAreWrittenAsTyped) {
  testing::FakeSettingsStore store;
  PrintMargine::Save(store, {"2", "0.5", " 1.25", "abc"});
  EXPECT_EQ(store.Values().at({"Print", "levo"}), "2");
  EXPECT_EQ(store.Values().at({"Print", "desno"}), "0.5");
  EXPECT_EQ(store.Values().at({"Print", "gore"}), " 1.25");
  EXPECT_EQ(store.Values().at({"Print", "dole"}), "abc");
  const PageMargins margins = PrintMargine::Read(store);
  EXPECT_EQ(margins.left, 2);
  EXPECT_EQ(margins.right, 0.5);
  EXPECT_EQ(margins.top, 1.25);
  EXPECT_EQ(margins.bottom, 0) << "a text with no number is no margin";
}

TEST(PrintMargine, NumbersAreReadByTheLeadingNumberRule) {
  struct Row {
    const char* text;
    double inches;
    const char* why;
  };
  const Row rows[] = {
      {"1.5in", 1.5, "the number before the unit"},
      {"-2", 0, "a negative margin is none"},
      {"1,5", 1, "a comma is no decimal separator"},
      {"1e999", 0, "too large to be a number"},
      {"", 0, "an empty box"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(PrintMargine::FromTexts({row.text, "1", "1", "1"}).left, row.inches) << row.why;
  }
}

class CommonDialogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("velmora_dialog_" + std::to_string(::getpid()));
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }
  fs::path folder_;
  testing::ScriptedFileDialog files_;
  testing::RecordingMessageBox messages_;
};

TEST_F(CommonDialogTest, TheDefaultExtensionGoesOnABareName) {
  files_.answers.push_back((folder_ / "graph").string());
  FileRequest request;
  request.defaultExt = "JPG";
  request.filter = "JPEG Files (*.JPG)|*.JPG|";
  request.title = "Save As";
  const auto chosen = mCommonDialog::VBGetSaveFileName(files_, messages_, request);
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->fileName, (folder_ / "graph.JPG").string());
  EXPECT_EQ(chosen->fileTitle, "graph.JPG");
  ASSERT_EQ(files_.asked.size(), 1u);
  EXPECT_EQ(files_.asked[0].title, "Save As");
  EXPECT_EQ(files_.asked[0].filter, "JPEG Files (*.JPG)|*.JPG") << "the trailing separator names nothing";
  EXPECT_TRUE(messages_.Boxes().empty());
}

TEST_F(CommonDialogTest, AnExistingFileIsReplacedOnlyOnYes) {
  const fs::path existing = folder_ / "old.jpg";
  std::ofstream(existing) << "x";
  FileRequest request;
  request.defaultExt = "JPG";
  for (const auto answer : {platform::MsgResult::No, platform::MsgResult::Yes}) {
    files_.answers.push_back(existing.string());
    messages_.Answer(answer);
    const auto chosen = mCommonDialog::VBGetSaveFileName(files_, messages_, request);
    EXPECT_EQ(chosen.has_value(), answer == platform::MsgResult::Yes);
  }
  ASSERT_EQ(messages_.Boxes().size(), 2u);
  EXPECT_EQ(messages_.Boxes()[0].text, existing.string() + " already exists.\r\nDo you want to replace it?");
  EXPECT_EQ(messages_.Boxes()[0].title, "Save As");
  EXPECT_EQ(messages_.Boxes()[0].buttons, platform::MsgButtons::YesNo);
}

TEST_F(CommonDialogTest, ACancelChoosesNothing) {
  files_.answers.push_back(std::nullopt);
  EXPECT_FALSE(mCommonDialog::VBGetSaveFileName(files_, messages_, {}));
  files_.answers.push_back(std::nullopt);
  EXPECT_FALSE(mCommonDialog::VBGetOpenFileName(files_, {}));
}

TEST(CommonDialogFilter, ColonsAndBarsBothSeparate) {
  struct Row {
    const char* filter;
    const char* normal;
    const char* why;
  };
  const Row rows[] = {
      {"JPEG Files (*.JPG)|*.JPG|", "JPEG Files (*.JPG)|*.JPG", "the JPEG dialog's filter"},
      {"Text (*.txt):*.txt:All (*.*):*.*", "Text (*.txt)|*.txt|All (*.*)|*.*", "colons as separators"},
      {"Bitmap (*.bmp)|*.bmp", "Bitmap (*.bmp)|*.bmp", "already in the bar form"},
  };
  for (const Row& row : rows) EXPECT_EQ(mCommonDialog::NormaliseFilter(row.filter), row.normal) << row.why;
}

TEST(PrintCommands, TheHistoryQuestionChoosesMathPadOrThePrinter) {
  struct Row {
    platform::MsgResult answer;
    bool mathPad;
    PrintCommands::HistoryRoute route;
    const char* why;
  };
  using R = PrintCommands::HistoryRoute;
  const Row rows[] = {
      {platform::MsgResult::Yes, true, R::MathPad, "yes opens the history in MathPad"},
      {platform::MsgResult::No, true, R::Printer, "no prints it as it stands"},
      {platform::MsgResult::Yes, false, R::Printer, "without MathPad the printer is the only road"},
  };
  for (const Row& row : rows) {
    testing::RecordingMessageBox messages;
    messages.Answer(row.answer);
    EXPECT_EQ(PrintCommands::AskHistoryRoute(messages, row.mathPad), row.route) << row.why;
    ASSERT_EQ(messages.Boxes().size(), 1u);
    EXPECT_EQ(messages.Boxes()[0].text, "Open function history in MathPad and edit it, save or print?");
    EXPECT_EQ(messages.Boxes()[0].buttons, platform::MsgButtons::YesNo);
  }
}

TEST(PrintCommands, NothingToPrintIsAPlainBox) {
  testing::RecordingMessageBox messages;
  PrintCommands::NothingToPrint(messages);
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Nothing to print.");
  EXPECT_EQ(messages.Boxes()[0].icon, platform::MsgIcon::None);
}

TEST(clsResize, TheFactorTable) {
  struct Row {
    int width;
    float factor;
    const char* why;
  };
  const Row rows[] = {
      {640, 0.8F, "table"},
      {720, 0.9F, "table"},
      {800, 1.0F, "the layout's own screen"},
      {1024, 1.28F, "table"},
      {1152, 1.44F, "table"},
      {1280, 1.6F, "table"},
      {1600, 2.0F, "w / 800"},
      {1366, 1.71F, "w / 800 = 1.7075, rounded to 2 places"},
      {1920, 2.4F, "w / 800"},
      {0, 1.0F, "no screen reads as the layout's own"},
  };
  for (const Row& row : rows) EXPECT_FLOAT_EQ(clsResize::Factor(row.width), row.factor) << row.why;
}

TEST(clsResize, NinetySixDotsPerInchChangesNothing) {
  EXPECT_TRUE(clsResize::Picku(96));
  EXPECT_FALSE(clsResize::Picku(120));
  EXPECT_FALSE(clsResize::Picku(192));
  const clsResize::Size base{1024, 720};
  for (const int width : {640, 1024, 1600, 3840}) {
    const auto size = clsResize::FirstStartSize(base, width, 96, {0, 0});
    EXPECT_EQ(size.width, 1024) << width;
    EXPECT_EQ(size.height, 720) << width;
  }
}

TEST(clsResize, FontsAndSizesAtOtherResolutions) {
  // At 120 dots per inch and a width of 800 the factor is 1: sizes stay and
  // fonts grow by 1.2.
  const float f800 = clsResize::Factor(800);
  EXPECT_DOUBLE_EQ(clsResize::ScaleLength(300, f800), 300);
  EXPECT_DOUBLE_EQ(clsResize::ScaleFontSize(8, f800), 8 * 1.2);
  // A width of 1600 gives 2: lengths halve, a font of 10 becomes 5 * 1.2.
  const float f1600 = clsResize::Factor(1600);
  EXPECT_DOUBLE_EQ(clsResize::ScaleLength(300, f1600), 150);
  EXPECT_DOUBLE_EQ(clsResize::ScaleFontSize(10, f1600), 6);
  // ToShort rounds ties to even: 9 / 2 = 4.5 gives 4.
  EXPECT_DOUBLE_EQ(clsResize::ScaleFontSize(9, f1600), 4 * 1.2);
}

TEST(clsResize, TheFirstStartSizeFollowsTheScreenAwayFrom96) {
  const clsResize::Size base{1024, 720};
  const auto same = clsResize::FirstStartSize(base, 1024, 120, {0, 0});
  EXPECT_EQ(same.width, 1024) << "a 1024 screen is the one the size is laid out for";
  const auto wide = clsResize::FirstStartSize(base, 1600, 144, {0, 0});
  EXPECT_EQ(wide.width, 1600);  // 1024 * 2 / 1.28
  EXPECT_EQ(wide.height, 1125);
  const auto held = clsResize::FirstStartSize(base, 1600, 144, {1400, 900});
  EXPECT_EQ(held.width, 1400) << "never beyond the available area";
  EXPECT_EQ(held.height, 900);
}

}  // namespace
}  // namespace velmora::output
