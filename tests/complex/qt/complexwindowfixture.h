#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QTest>

#include "complex/qt/frmcomplex.h"
#include "platform/toolwindows.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::complex_qt {

// The frame's tool windows as the calculator sees them: which this version
// has, and every window it was asked to show.
class FakeTools final : public platform::ToolWindows {
 public:
  std::set<platform::ToolWindow> present;
  std::vector<platform::ToolWindow> shown;
  int graphMode = 0;

  bool Has(platform::ToolWindow window) const override { return present.count(window) != 0; }
  void Show(platform::ToolWindow window) override {
    if (Has(window)) shown.push_back(window);
  }
  void ShowGraphMode() override { ++graphMode; }
  platform::MathPadTarget* MathPad() override { return nullptr; }
  platform::EvaluatorTarget* Evaluator(bool) override { return nullptr; }
};

// A calculator window on recording services, shown offscreen.
class ComplexWindowTest : public ::testing::Test {
 protected:
  testing::RecordingMessageBox box;
  FakeTools tools;
  FrmComplex* window = nullptr;
  QPointer<FrmComplex> guard;  // null once the window deleted itself

  // A new calculator in place of the one open.
  void Open() {
    delete guard.data();
    window = new FrmComplex(nullptr, ComplexServices{&box, &tools, nullptr, QString()});
    guard = window;
    window->show();
    QApplication::processEvents();
  }
  void SetUp() override { Open(); }
  void TearDown() override {
    delete guard.data();
    QApplication::processEvents();
  }

  // A pointer the test cannot go on without.
  template <class T>
  static T& Must(T* pointer) {
    if (pointer == nullptr) {
      ADD_FAILURE() << "missing widget";
      std::abort();
    }
    return *pointer;
  }
  FrmComplex& W() { return *window; }
  QAbstractButton* Key(const char* name, int index = -1) {
    QAbstractButton* key = W().Button(name, index);
    EXPECT_NE(key, nullptr) << name << index;
    return key;
  }
  void Click(const char* name, int index = -1) {
    if (QAbstractButton* key = Key(name, index)) QTest::mouseClick(key, Qt::LeftButton);
  }
  QLabel* Label(const char* name) {
    auto* label = W().findChild<QLabel*>(QString::fromLatin1(name));
    EXPECT_NE(label, nullptr) << name;
    return label;
  }
  std::string Text(const char* name) {
    QLabel* label = Label(name);
    return label != nullptr ? label->text().toStdString() : std::string();
  }
  // A key of the keyboard pressed at a widget of the window (the window
  // itself when none is given).
  void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, QWidget* at = nullptr) {
    QTest::keyClick(at != nullptr ? at : static_cast<QWidget*>(window), key, modifiers);
  }
  void Keypad(Qt::Key key, QWidget* at = nullptr) { Type(key, Qt::KeypadModifier, at); }
  // Clear All by the Delete key, answered OK.
  void ClearAll() {
    box.Answer(platform::MsgResult::Ok);
    Type(Qt::Key_Delete);
    box.Clear();
  }
  // Types an operand's parts on the keypad: "A3B4" puts 3 in a and 4 in b,
  // "~" is the sign key, "." the point.
  void Enter(const std::string& keys) {
    for (char key : keys) {
      if (key >= 'A' && key <= 'D') {
        Type(static_cast<Qt::Key>(Qt::Key_A + (key - 'A')));
      } else if (key >= '0' && key <= '9') {
        Keypad(static_cast<Qt::Key>(Qt::Key_0 + (key - '0')));
      } else if (key == '.') {
        Keypad(Qt::Key_Period);
      } else if (key == '~') {
        Click("cmdPlusMinus");
      }
    }
  }
  QAction* Action(const char* name) {
    QAction* action = W().MenuAction(name);
    EXPECT_NE(action, nullptr) << name;
    return action;
  }
  // The names of the popup's entries that show.
  std::vector<std::string> VisibleEntries(QMenu* menu) {
    std::vector<std::string> names;
    for (QAction* action : menu->actions()) {
      if (action->isVisible() && !action->isSeparator()) names.push_back(action->objectName().toStdString());
    }
    return names;
  }
  void ExpectBox(const char* text, const char* title) {
    ASSERT_EQ(box.Boxes().size(), 1u) << text;
    EXPECT_EQ(box.Boxes()[0].text, text);
    EXPECT_EQ(box.Boxes()[0].title, title);
    box.Clear();
  }
  void SelectFunction(const char* entry);
};

}  // namespace velmora::complex_qt
