// The figure's picture save: the dialog, the question before a file is
// replaced, and the message when writing fails.
#include "geometry/figuresave.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/recordingmessagebox.h"

namespace velmora::geometry {
namespace {

using velmora::testing::RecordingMessageBox;

class ScriptedFileDialog final : public platform::FileDialog {
 public:
  explicit ScriptedFileDialog(std::optional<std::string> answer) : answer_(std::move(answer)) {}
  std::optional<std::string> Open(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> Save(const std::string& title, const std::string& filter, const std::string&,
                                  const std::string&) override {
    titles.push_back(title);
    filters.push_back(filter);
    return answer_;
  }
  std::vector<std::string> titles;
  std::vector<std::string> filters;

 private:
  std::optional<std::string> answer_;
};

class FigureSaveTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::temp_directory_path() /
              ("velmora_figuresave_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
               "_" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }
  std::filesystem::path folder_;
};

TEST_F(FigureSaveTest, ANameWithoutExtensionIsSavedAsABitmap) {
  ScriptedFileDialog files((folder_ / "triangle").string());
  RecordingMessageBox box;
  std::string written;
  EXPECT_TRUE(SaveFigurePicture(files, box, [&](const std::string& path) {
    written = path;
    return true;
  }));
  EXPECT_EQ(written, (folder_ / "triangle.bmp").string());
  EXPECT_EQ(files.titles, std::vector<std::string>{"Save Graph As"});
  EXPECT_EQ(files.filters, std::vector<std::string>{"Bitmap (*.bmp)|*.bmp"});
  EXPECT_TRUE(box.Boxes().empty());
}

TEST_F(FigureSaveTest, CancellingWritesNothing) {
  ScriptedFileDialog files(std::nullopt);
  RecordingMessageBox box;
  bool wrote = false;
  EXPECT_FALSE(SaveFigurePicture(files, box, [&](const std::string&) { return wrote = true; }));
  EXPECT_FALSE(wrote);
}

TEST_F(FigureSaveTest, AnExistingFileIsReplacedOnlyOnYes) {
  const auto path = folder_ / "old.bmp";
  std::ofstream(path) << "old";
  for (const auto answer : {platform::MsgResult::No, platform::MsgResult::Yes}) {
    ScriptedFileDialog files(path.string());
    RecordingMessageBox box;
    box.Answer(answer);
    bool wrote = false;
    EXPECT_EQ(SaveFigurePicture(files, box, [&](const std::string&) { return wrote = true; }),
              answer == platform::MsgResult::Yes);
    EXPECT_EQ(wrote, answer == platform::MsgResult::Yes);
    ASSERT_EQ(box.Boxes().size(), 1u);
    EXPECT_EQ(box.Boxes()[0].text, path.string() + " already exists.\r\nDo you want to replace it?");
    EXPECT_EQ(box.Boxes()[0].title, "Save As");
    EXPECT_EQ(box.Boxes()[0].buttons, platform::MsgButtons::YesNo);
  }
}

TEST_F(FigureSaveTest, AFailedWriteSaysSo) {
  ScriptedFileDialog files((folder_ / "x.bmp").string());
  RecordingMessageBox box;
  EXPECT_FALSE(SaveFigurePicture(files, box, [](const std::string&) { return false; }));
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_EQ(box.Boxes()[0].text, (folder_ / "x.bmp").string() + "\r\nThe picture could not be saved.");
  EXPECT_EQ(box.Boxes()[0].title, "Save Graph As");
  EXPECT_EQ(box.Boxes()[0].icon, platform::MsgIcon::Critical);
}

}  // namespace
}  // namespace velmora::geometry
