#pragma once

#include <memory>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include "app/framemenus.h"
#include "app/framestatusbar.h"
#include "app/frametoolbars.h"
#include "app/frmmain.h"
#include "graph/graphwindow.h"
#include "graph/qt/frmfunc.h"
#include "platform/qt/qtsettingsstore.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::testing {

// A desktop that opens nothing: every target gets the result number given.
struct ScriptedShell final : platform::ShellLauncher {
  int Execute(const std::string& file, const std::string& /*parameters*/, const std::string& /*directory*/,
              const std::string& /*verb*/, bool /*runAsProgram*/) override {
    opened.push_back(file);
    return result;
  }
  int result = 2;  // file not found
  std::vector<std::string> opened;
};

// A frame on a settings file and a history file in a temporary folder, with
// recording message and input boxes: a box nobody scripted fails the test
// instead of waiting for a click.
struct FrameFixture {
  FrameFixture() : settings(std::make_unique<qtplatform::QtSettingsStore>(IniPath())) {}

  QString IniPath() const { return folder.filePath(QStringLiteral("Velmora.ini")); }

  app::FrmMain& Start(bool maximized = false) {
    Make();
    if (maximized) {
      frame->showMaximized();
    } else {
      frame->show();
    }
    return Loaded();
  }

  // Starts as the program does: the frame where and as it last closed.
  app::FrmMain& StartAsLastClosed() {
    Make();
    frame->ShowAsLastClosed();
    return Loaded();
  }

  void Make() {
    app::FrameServices services;
    services.settings = settings.get();
    services.messages = &messages;
    services.input = &input;
    services.shell = &shell;
    services.readMePath = folder.filePath(QStringLiteral("missing/README.md"));
    services.historyPath = folder.filePath(QStringLiteral("GraphLog.txt")).toStdString();
    frame = std::make_unique<app::FrmMain>(services);
  }

  app::FrmMain& Loaded() {
    frame->Load({});
    QApplication::setActiveWindow(frame.get());
    QApplication::processEvents();
    return *frame;
  }

  // Closes the frame as the user would and starts a new one on the same
  // settings (a restart of the program).
  app::FrmMain& Restart(bool maximized = false) {
    frame->close();
    frame.reset();
    return Start(maximized);
  }

  graph_qt::FrmFunc& Active() {
    graph_qt::FrmFunc* window = frame->ActiveGraphWindow();
    if (window == nullptr) throw std::runtime_error("no active graph window");
    return *window;
  }
  graph::GraphWindow& Logic() { return Active().Logic(); }
  QString Panel(int i) const { return frame->Status().PanelText(i); }
  QAction* Action(const char* name, int index = -1) const {
    return frame->Menus().Action(QString::fromLatin1(name), index);
  }
  void Trigger(const char* name, int index = -1) {
    QAction* action = Action(name, index);
    ASSERT_NE(action, nullptr) << name << " " << index;
    ASSERT_TRUE(action->isEnabled()) << name << " " << index;
    action->trigger();
    QApplication::processEvents();
  }
  void TypeAndEnter(const QString& text) {
    QComboBox* box = Active().txtY();
    // The new text replaces what the box holds, as after a select-all.
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
    QApplication::processEvents();
  }
  std::vector<QString> Titles() const {
    std::vector<QString> titles;
    for (graph_qt::FrmFunc* w : frame->GraphWindows()) titles.push_back(w->windowTitle());
    return titles;
  }

  QTemporaryDir folder;
  std::unique_ptr<qtplatform::QtSettingsStore> settings;
  RecordingMessageBox messages;
  ScriptedInputBox input;
  ScriptedShell shell;
  std::unique_ptr<app::FrmMain> frame;
};

}  // namespace velmora::testing
