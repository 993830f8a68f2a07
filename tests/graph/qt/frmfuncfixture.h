#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include "graph/graphwindow.h"
#include "graph/historylog.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/pdrawview.h"
#include "graph/qt/qimagesurface.h"
#include "platform/recentlist.h"
#include "tests/graph/dialogfakes.h"
#include "tests/support/evaluatorstate.h"
#include "tests/support/fakesettingsstore.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::testing {

// The program's colours as the picture holds them.
inline QRgb Rgb(graph::Colour c) { return graph_qt::ToQColor(c).rgb() & 0xFFFFFF; }
constexpr graph::Colour kGraphColour = 0xC08000;
constexpr graph::Colour kGridColour = 0xBFBFBF;
constexpr graph::Colour kBackColour = 0xF5F5F5;

inline int CountPixels(const QImage& image, graph::Colour colour, QRect area = {}) {
  if (area.isNull()) area = image.rect();
  const QRgb wanted = Rgb(colour);
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      if ((image.pixel(x, y) & 0xFFFFFF) == wanted) ++count;
  return count;
}

// The rightmost column holding a pixel of the colour, or -1.
inline int LastColumnOf(const QImage& image, graph::Colour colour) {
  const QRgb wanted = Rgb(colour);
  for (int x = image.width() - 1; x >= 0; --x)
    for (int y = 0; y < image.height(); ++y)
      if ((image.pixel(x, y) & 0xFFFFFF) == wanted) return x;
  return -1;
}

// A graph window on in-memory settings, a history file in a temporary
// folder, recording boxes and dialogs and a recording frame. pDraw is fixed
// at 600 x 400 unless a test resizes it.
class FrmFuncTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dir.isValid());
    history = std::make_unique<graph::HistoryLog>(dir.filePath(QStringLiteral("GraphLog.txt")).toStdString());
    recent = std::make_unique<platform::RecentList>(settings, platform::RecentList::kFunctions);
  }
  void TearDown() override { window.reset(); }

  graph_qt::FrmFunc& Make(int width = 600, int height = 400) {
    graph_qt::FrmFuncServices services;
    services.settings = &settings;
    services.messages = &messages;
    services.input = &input;
    services.colours = &colours;
    services.files = &files;
    services.recent = recent.get();
    services.history = history.get();
    services.frame = &frame;
    services.clockMs = clockMs;
    services.tools = tools;
    window = std::make_unique<graph_qt::FrmFunc>(services);
    window->pDraw()->setFixedSize(width, height);
    window->show();
    QApplication::setActiveWindow(window.get());
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    window->SettleSize();
    return *window;
  }

  graph::GraphWindow& Logic() { return window->Logic(); }
  QImage Picture() { return window->Picture().Image().copy(); }
  QLineEdit* EditY() { return window->txtY()->lineEdit(); }

  // Types a function into txtY and presses Enter, as a user does: the keys
  // go to the combo box, which hands the text keys to its line edit.
  void TypeAndEnter(const QString& text) {
    EditY()->selectAll();
    QTest::keyClicks(window->txtY(), text);
    QTest::keyClick(window->txtY(), Qt::Key_Return);
  }

  std::function<std::int64_t()> clockMs;   // empty: the window's steady clock
  platform::ToolWindows* tools = nullptr;  // null: no other tool windows
  QTemporaryDir dir;
  velmora::testing::FakeSettingsStore settings;
  RecordingMessageBox messages;
  ScriptedInputBox input;
  ScriptedColorDialog colours;
  ScriptedFileDialog files;
  RecordingFrame frame;
  std::unique_ptr<graph::HistoryLog> history;
  std::unique_ptr<platform::RecentList> recent;
  std::unique_ptr<graph_qt::FrmFunc> window;
};

}  // namespace velmora::testing
