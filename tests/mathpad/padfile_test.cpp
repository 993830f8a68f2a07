// MathPad's file commands over a recording view and scripted boxes: the
// questions of New, Open, Save, Revert, closing and Send to Email, the
// caption and panels, and the recent files.
#include "mathpad/padfile.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <map>
#include <vector>

#include "mathpad/documentfile.h"
#include "platform/memorysettingsstore.h"
#include "rtf/rtfreader.h"
#include "tests/support/fakefiledialogs.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::mathpad {
namespace {

namespace fs = std::filesystem;
using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;

class FakeView final : public PadView {
 public:
  rtf::Document Content() const override { return content; }
  void SetContent(const rtf::Document& document) override {
    content = document;
    if (file) file->ContentChanged(rtf::PlainText(document).size());
  }
  void ShowCaption(const std::string& text) override { caption = text; }
  void ShowFileName(const std::string& text) override { fileName = text; }
  void ShowSize(const std::string& text) override { size = text; }
  void ShowRecent(const platform::RecentList& list) override {
    recent.clear();
    for (int i = 1; i <= list.VisibleEntries(); ++i) recent.push_back(list.Caption(i));
  }

  PadFile* file = nullptr;
  rtf::Document content;
  std::string caption, fileName, size;
  std::vector<std::string> recent;
};

class FakeShell final : public platform::ShellLauncher {
 public:
  int Execute(const std::string& file, const std::string& parameters, const std::string&, const std::string&,
              bool runAsProgram) override {
    runs.push_back(file + " " + parameters + (runAsProgram ? " (program)" : ""));
    return result;
  }
  std::vector<std::string> runs;
  int result = 33;
};

class PadFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder =
        fs::temp_directory_path() /
        ("velmora-padfile-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(folder);
    fs::create_directories(folder);
    PadServices services;
    services.messages = &messages;
    services.files = &files;
    services.input = &input;
    services.settings = &settings;
    services.shell = &shell;
    services.findProgram = [this](const std::string& name) -> std::optional<std::string> {
      if (!haveMail) return std::nullopt;
      return "/usr/bin/" + name;
    };
    file = std::make_unique<PadFile>(view, services);
    view.file = file.get();
    file->Load();
  }
  void TearDown() override { fs::remove_all(folder); }

  std::string Path(const std::string& name) const { return (folder / name).string(); }
  void Type(const std::string& text) {
    view.content = rtf::FromPlainText(text);
    file->ContentChanged(text.size());
  }
  void Write(const std::string& name, const std::string& bytes) const { std::ofstream(Path(name)) << bytes; }

  fs::path folder;
  testing::RecordingMessageBox messages;
  testing::QueuedFileDialog files;
  testing::ScriptedInputBox input;
  platform::MemorySettingsStore settings;
  FakeShell shell;
  bool haveMail = true;
  FakeView view;
  std::unique_ptr<PadFile> file;
};

TEST_F(PadFileTest, StartsUntitled) {
  EXPECT_EQ(view.caption, "MathPad - Untitled");
  EXPECT_EQ(view.fileName, "Untitled");
  EXPECT_EQ(view.size, "0 KB");
  EXPECT_FALSE(file->Dirty());
  EXPECT_TRUE(view.recent.empty());
}

TEST_F(PadFileTest, NewAsksOnlyWhenDirtyWithThreeAnswers) {
  file->New();
  EXPECT_TRUE(messages.Boxes().empty()) << "a clean document is cleared without a question";

  Type("notes");
  messages.Answer(MsgResult::Cancel);
  file->New();
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Do you want to save the changes to Untitled?");
  EXPECT_EQ(messages.Boxes()[0].title, "MathPad");
  EXPECT_EQ(messages.Boxes()[0].buttons, MsgButtons::YesNoCancel);
  EXPECT_EQ(rtf::PlainText(view.content), "notes") << "cancel keeps the document";
  EXPECT_TRUE(file->Dirty());

  messages.Answer(MsgResult::No);
  file->New();
  EXPECT_EQ(rtf::PlainText(view.content), "");
  EXPECT_FALSE(file->Dirty());
  EXPECT_EQ(view.size, "0 KB");
  EXPECT_EQ(view.caption, "MathPad - Untitled");
}

TEST_F(PadFileTest, NewWithYesSavesFirstThroughSaveAs) {
  Type("keep me");
  messages.Answer(MsgResult::Yes);
  files.answers.push_back(Path("kept.txt"));
  file->New();
  EXPECT_EQ(files.titles, std::vector<std::string>{"Save As"});
  EXPECT_EQ(ReadFileBytes(Path("kept.txt")), "keep me");
  EXPECT_EQ(rtf::PlainText(view.content), "");
  EXPECT_EQ(view.fileName, "Untitled");
}

TEST_F(PadFileTest, OpenByExtensionInAnyCase) {
  Write("a.RtF", "{\\rtf1 {\\b bold} text}");
  Write("b.txt", "{\\rtf1 not read as rich}");
  files.answers.push_back(Path("a.RtF"));
  ASSERT_TRUE(file->Open());
  EXPECT_EQ(files.titles.back(), "Open");
  EXPECT_EQ(files.filters.back(),
            "Simple Text (*.txt)|*.txt|Rich Text Format (*.rtf)|*.rtf|All Files (*.*)|*.*");
  EXPECT_EQ(rtf::PlainText(view.content), "bold text");
  EXPECT_TRUE(view.content.paragraphs[0].runs[0].format.bold);
  EXPECT_EQ(view.caption, "Bekrak - " + Path("a.RtF"));
  EXPECT_EQ(view.fileName, Path("a.RtF"));
  EXPECT_EQ(view.size, "0.02 KB") << "23 bytes / 1024, two decimals";
  EXPECT_FALSE(file->Dirty()) << "Open clears Dirty";

  ASSERT_TRUE(file->OpenPath(Path("b.txt")));
  EXPECT_EQ(rtf::PlainText(view.content), "{\\rtf1 not read as rich}");
  EXPECT_EQ(view.recent, (std::vector<std::string>{Path("b.txt"), Path("a.RtF")}));
}

TEST_F(PadFileTest, OpenCancelledChangesNothing) {
  Type("x");
  files.answers.push_back(std::nullopt);
  EXPECT_FALSE(file->Open());
  EXPECT_EQ(rtf::PlainText(view.content), "x");
  EXPECT_EQ(view.caption, "MathPad - Untitled");
  EXPECT_TRUE(messages.Boxes().empty());
}

TEST_F(PadFileTest, OpenMissingFileSaysSo) {
  EXPECT_FALSE(file->OpenPath(Path("gone.rtf")));
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "The file could not be read: " + Path("gone.rtf"));
}

TEST_F(PadFileTest, SaveUntitledIsSaveAsThenSaveInPlace) {
  Type("first");
  files.answers.push_back(Path("doc.rtf"));
  ASSERT_TRUE(file->Save());
  EXPECT_EQ(files.titles, std::vector<std::string>{"Save As"});
  EXPECT_EQ(view.caption, "Bekrak - " + Path("doc.rtf"));
  EXPECT_FALSE(file->Dirty());
  EXPECT_EQ(rtf::PlainText(rtf::ReadRtf(*ReadFileBytes(Path("doc.rtf")))), "first");

  Type("second");
  ASSERT_TRUE(file->Save());
  EXPECT_EQ(files.titles.size(), 1u) << "a named document saves without a dialog";
  EXPECT_EQ(rtf::PlainText(rtf::ReadRtf(*ReadFileBytes(Path("doc.rtf")))), "second");
  EXPECT_EQ(view.recent, std::vector<std::string>{Path("doc.rtf")});
}

TEST_F(PadFileTest, FailedSaveKeepsTheOldFileAndDirty) {
  Write("old.txt", "old");
  ASSERT_TRUE(file->OpenPath(Path("old.txt")));
  Type("new");
  PadServices failing;
  // A writer that fails as a full disk would.
  FakeView otherView;
  failing.messages = &messages, failing.files = &files, failing.input = &input, failing.settings = &settings;
  failing.write = [](const std::string&, const std::string&) { return false; };
  PadFile other(otherView, failing);
  otherView.file = &other;
  ASSERT_TRUE(other.OpenPath(Path("old.txt")));
  other.ContentChanged(3);
  EXPECT_FALSE(other.Save());
  EXPECT_TRUE(other.Dirty());
  EXPECT_EQ(ReadFileBytes(Path("old.txt")), "old");
  EXPECT_EQ(messages.Boxes().back().text,
            "The file could not be saved; the old file is unchanged: " + Path("old.txt"));
}

TEST_F(PadFileTest, RevertAsksAndReloads) {
  Write("r.rtf", "{\\rtf1 saved}");
  ASSERT_TRUE(file->OpenPath(Path("r.rtf")));
  Type("edited");
  messages.Answer(MsgResult::No);
  file->Revert();
  EXPECT_EQ(messages.Boxes().back().text, "Revert to last saved version?");
  EXPECT_EQ(rtf::PlainText(view.content), "edited");
  messages.Answer(MsgResult::Yes);
  file->Revert();
  EXPECT_EQ(rtf::PlainText(view.content), "saved");
}

TEST_F(PadFileTest, RevertTakesRichTextByTheLastThreeLetters) {
  Write("noteRTF", "{\\rtf1 rich}");
  ASSERT_TRUE(file->OpenPath(Path("noteRTF")));
  EXPECT_EQ(rtf::PlainText(view.content), "{\\rtf1 rich}") << "Open wants the dot";
  messages.Answer(MsgResult::Yes);
  file->Revert();
  EXPECT_EQ(rtf::PlainText(view.content), "rich") << "Revert does not";
}

TEST_F(PadFileTest, CloseQuestion) {
  EXPECT_TRUE(file->QueryClose());
  EXPECT_TRUE(messages.Boxes().empty());
  Type("x");
  messages.Answer(MsgResult::Cancel);
  EXPECT_FALSE(file->QueryClose());
  EXPECT_EQ(messages.Boxes().back().text, "Save changes before closing?");
  EXPECT_EQ(messages.Boxes().back().title, "Save Changes");
  messages.Answer(MsgResult::No);
  EXPECT_TRUE(file->QueryClose());
}

TEST_F(PadFileTest, RecentEntryAsksWhenDirtyAndOpens) {
  Write("one.txt", "one");
  Write("two.txt", "two");
  ASSERT_TRUE(file->OpenPath(Path("one.txt")));
  ASSERT_TRUE(file->OpenPath(Path("two.txt")));
  Type("changed");
  messages.Answer(MsgResult::No);
  file->OpenRecent(2);
  EXPECT_EQ(messages.Boxes().back().text, "Do you want to save the changes?");
  EXPECT_EQ(rtf::PlainText(view.content), "one");
  EXPECT_EQ(view.recent.front(), Path("one.txt"));
}

TEST_F(PadFileTest, SendToEmailUntitledStops) {
  file->SendToEmail();
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Save document before you proceed.");
  EXPECT_EQ(messages.Boxes()[0].title, "Send to Email");
  EXPECT_EQ(messages.Boxes()[0].icon, MsgIcon::Exclamation);
  EXPECT_TRUE(shell.runs.empty());
}

TEST_F(PadFileTest, SendToEmailSavesAsksAndHandsOver) {
  Write("m.txt", "m");
  ASSERT_TRUE(file->OpenPath(Path("m.txt")));
  Type("mail me");
  messages.Answer(MsgResult::Yes);
  input.Answer("someone@example.org");
  file->SendToEmail();
  EXPECT_EQ(messages.Boxes().back().buttons, MsgButtons::YesNo);
  EXPECT_EQ(ReadFileBytes(Path("m.txt")), "mail me") << "yes saves first";
  ASSERT_EQ(input.AskedBoxes().size(), 1u);
  EXPECT_EQ(input.AskedBoxes()[0].prompt, "Please, type recipient email adress.");
  EXPECT_EQ(input.AskedBoxes()[0].title, "Send to email");
  EXPECT_EQ(shell.runs, std::vector<std::string>{"/usr/bin/xdg-email --attach \"" + Path("m.txt") +
                                                 "\" \"someone@example.org\" (program)"});
}

TEST_F(PadFileTest, SendToEmailEmptyAddressOrNoProgram) {
  Write("m.txt", "m");
  ASSERT_TRUE(file->OpenPath(Path("m.txt")));
  input.Answer("");
  file->SendToEmail();
  EXPECT_TRUE(shell.runs.empty()) << "an empty answer stops";
  haveMail = false;
  input.Answer("a@b");
  file->SendToEmail();
  EXPECT_TRUE(shell.runs.empty());
  EXPECT_EQ(
      messages.Boxes().back().text,
      "No mail program was found: xdg-email (package xdg-utils) hands the document to the desktop's mail "
      "program.");
}

}  // namespace
}  // namespace velmora::mathpad
