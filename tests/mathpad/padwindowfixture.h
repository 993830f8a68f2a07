#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include <QPointer>
#include <QTemporaryDir>

#include "mathpad/qt/frmmapuskice.h"
#include "platform/memorysettingsstore.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::mathpad_qt::testing {

// File dialogs that answer from a queue and record what they were asked.
class QueuedFileDialog final : public platform::FileDialog {
 public:
  std::optional<std::string> Open(const std::string& title, const std::string& filter,
                                  const std::string&) override {
    return Next(title, filter);
  }
  std::optional<std::string> Save(const std::string& title, const std::string& filter, const std::string&,
                                  const std::string&) override {
    return Next(title, filter);
  }
  std::deque<std::optional<std::string>> answers;
  std::vector<std::string> titles;
  std::vector<std::string> filters;

 private:
  std::optional<std::string> Next(const std::string& title, const std::string& filter) {
    titles.push_back(title);
    filters.push_back(filter);
    if (answers.empty()) {
      ADD_FAILURE() << "unexpected file dialog " << title;
      return std::nullopt;
    }
    auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

class RecordingShell final : public platform::ShellLauncher {
 public:
  int Execute(const std::string& file, const std::string& parameters, const std::string&, const std::string&,
              bool) override {
    runs.push_back(file + " " + parameters);
    return 33;
  }
  std::vector<std::string> runs;
};

// One MathPad window on recording services and a temporary folder.
class PadWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder.isValid());
    MathPadServices services;
    services.settings = &settings;
    services.messages = &messages;
    services.input = &input;
    services.files = &files;
    services.shell = &shell;
    pad = new FrmMaPuskice(nullptr, services);
    guard = pad;
    pad->show();
  }
  void TearDown() override { delete guard.data(); }

  std::string Path(const char* name) const {
    return folder.filePath(QString::fromLatin1(name)).toStdString();
  }

  QTemporaryDir folder;
  platform::MemorySettingsStore settings;
  velmora::testing::RecordingMessageBox messages;
  velmora::testing::ScriptedInputBox input;
  QueuedFileDialog files;
  RecordingShell shell;
  FrmMaPuskice* pad = nullptr;
  // Null once the window has deleted itself.
  QPointer<FrmMaPuskice> guard;
};

}  // namespace velmora::mathpad_qt::testing
