#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include "matrix/qt/frmmatrice.h"
#include "matrix/qt/gridview.h"
#include "matrix/qt/linedialog.h"
#include "platform/memorysettingsstore.h"
#include "platform/shellopen.h"
#include "tests/support/fakefiledialogs.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::matrix_qt::testing {

// A shell that records what it was asked to open and answers `result`.
class RecordingShell final : public platform::ShellLauncher {
 public:
  int Execute(const std::string& file, const std::string&, const std::string&, const std::string&,
              bool) override {
    opened.push_back(file);
    return result;
  }
  int result = 33;
  std::vector<std::string> opened;
};

// The line dialogs answering from a queue; nothing queued is a cancel.
class ScriptedLines final : public LineDialogs {
 public:
  std::optional<std::pair<std::string, std::string>> Ask(const LineDialogCaptions& captions) override {
    asked.push_back(captions);
    if (answers.empty()) return std::nullopt;
    auto a = answers.front();
    answers.pop_front();
    return a;
  }
  std::deque<std::optional<std::pair<std::string, std::string>>> answers;
  std::vector<LineDialogCaptions> asked;
};

// One calculator window with every service faked.
struct Matrice {
  velmora::testing::RecordingMessageBox messages;
  velmora::testing::ScriptedInputBox input;
  velmora::testing::QueuedFileDialog files;
  RecordingShell shell;
  ScriptedLines lines;
  platform::MemorySettingsStore settings;
  int registrations = 0;
  FrmMatrice* window = nullptr;

  Matrice() {
    files.strict = false;  // an unexpected dialog is a cancel here
    FrmMatriceServices s;
    s.messages = &messages;
    s.input = &input;
    s.files = &files;
    s.shell = &shell;
    s.settings = &settings;
    s.lines = &lines;
    s.registerFileType = [this] {
      ++registrations;
      return true;
    };
    window = new FrmMatrice(nullptr, s);
    window->show();
  }
  ~Matrice() { delete window; }

  template <class T>
  T* Child(const char* name) const {
    return window->findChild<T*>(QString::fromLatin1(name));
  }
  void Option(const char* name) { Child<QRadioButton>(name)->click(); }
  void Sizes(const char* a, const char* b = "") {
    Child<QLineEdit>("txtEntry1")->setText(QString::fromLatin1(a));
    Child<QLineEdit>("txtEntry2")->setText(QString::fromLatin1(b));
    Child<QPushButton>("cmdGo")->click();
  }
  // Types into an operand grid as the keyboard does, from its current cell.
  void Type(int tab, const char* keys) {
    GridView* grid = window->Grid(tab);
    window->Tabs()->setCurrentIndex(tab);
    grid->setFocus();
    for (const char* k = keys; *k != '\0'; ++k) {
      if (*k == '\n') {
        QTest::keyClick(grid, Qt::Key_Return);
      } else if (*k == '\b') {
        QTest::keyClick(grid, Qt::Key_Backspace);
      } else {
        QTest::keyClicks(grid, QString(QLatin1Char(*k)));
      }
    }
  }
  // Fills a grid's cells, row by row, each followed by Enter.
  void Fill(int tab, const std::vector<const char*>& cells) {
    for (const char* cell : cells) {
      Type(tab, cell);
      Type(tab, "\n");
    }
  }
  // Presses the toolbar's go and waits for the calculation to end.
  void Go() {
    window->ToolbarButton(11)->trigger();
    for (int i = 0; i < 2000 && window->Busy(); ++i) QTest::qWait(5);
    ASSERT_FALSE(window->Busy());
  }
  std::string Cell(int tab, int r, int c) const { return window->Grid(tab)->Model().Grid().TextMatrix(r, c); }
  std::string Text(const char* name) const { return Child<QLineEdit>(name)->text().toStdString(); }
};

}  // namespace velmora::matrix_qt::testing
