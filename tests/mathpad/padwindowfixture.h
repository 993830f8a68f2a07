#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include <QPointer>
#include <QTemporaryDir>

#include "mathpad/qt/frmmapuskice.h"
#include "platform/memorysettingsstore.h"
#include "tests/support/fakefiledialogs.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::mathpad_qt::testing {

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
  velmora::testing::QueuedFileDialog files;
  RecordingShell shell;
  FrmMaPuskice* pad = nullptr;
  // Null once the window has deleted itself.
  QPointer<FrmMaPuskice> guard;
};

}  // namespace velmora::mathpad_qt::testing
