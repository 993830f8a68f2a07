// The list of drawn functions in txtY: a choice made in the open list
// replays the function in its own type; editing that ends on a text of the
// list (the focus going to another control or window, a menu opening) only
// leaves the text in the box and never draws.
#include <QAbstractItemView>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>

#include "tests/graph/qt/frmfuncfixture.h"

namespace velmora::testing {
namespace {

class ListTest : public FrmFuncTest {
 protected:
  // SinX drawn Cartesian, then CosX drawn polar: the list holds both, the
  // box shows CosX, and its current list entry is another one.
  void DrawSinThenPolarCos() {
    Make();
    TypeAndEnter(QStringLiteral("SinX"));
    window->optFunkcije(3)->click();
    ASSERT_EQ(Logic().Boxes().optFunkcije(), graph::kPolar);
    TypeAndEnter(QStringLiteral("CosX"));
    ASSERT_EQ(window->txtY()->count(), 2);
    ASSERT_EQ(window->txtY()->currentText(), QStringLiteral("CosX"));
    ASSERT_EQ(Logic().State().KolkoFunkc(), 2);
    ASSERT_TRUE(messages.Boxes().empty());
    drawnPicture = Picture();
    updatesBefore = window->ScreenUpdates();
  }

  // Nothing was drawn since DrawSinThenPolarCos, and the window is as it left it.
  void ExpectNothingDrawn(const char* what) {
    EXPECT_EQ(window->ScreenUpdates(), updatesBefore) << what << ": a draw ran";
    EXPECT_EQ(Logic().Boxes().optFunkcije(), graph::kPolar) << what;
    EXPECT_TRUE(window->optFunkcije(3)->isChecked()) << what;
    EXPECT_EQ(window->labY()->text(), QStringLiteral("R (K) =")) << what;
    EXPECT_EQ(window->txtY()->currentText(), QStringLiteral("CosX")) << what;
    EXPECT_EQ(Logic().Boxes().txtY().Text, "CosX") << what;
    EXPECT_EQ(Logic().State().KolkoFunkc(), 2) << what;
    EXPECT_TRUE(Picture() == drawnPicture) << what << ": the picture changed";
    EXPECT_TRUE(messages.Boxes().empty()) << what;
  }

  // Opens txtY's list and moves its selection to an entry.
  QAbstractItemView* OpenListAt(const QString& text) {
    QComboBox* box = window->txtY();
    box->showPopup();
    QAbstractItemView* list = box->view();
    EXPECT_TRUE(list->isVisible());
    const int row = box->findText(text);
    EXPECT_GE(row, 0);
    list->setCurrentIndex(box->model()->index(row, 0));
    return list;
  }

  QImage drawnPicture;
  int updatesBefore = 0;
};

TEST_F(ListTest, EnterOnAnEntryOfTheOpenListReplaysItInItsType) {
  DrawSinThenPolarCos();
  window->ClearScreen();
  ASSERT_EQ(CountPixels(Picture(), kGraphColour), 0);
  QAbstractItemView* list = OpenListAt(QStringLiteral("SinX"));
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_FALSE(list->isVisible());
  EXPECT_EQ(window->txtY()->currentText(), QStringLiteral("SinX"));
  EXPECT_EQ(Logic().Boxes().optFunkcije(), graph::kCartesian) << "a text without K is Cartesian";
  EXPECT_GT(CountPixels(Picture(), kGraphColour), 500) << "replayed";
  EXPECT_EQ(Logic().State().KolkoFunkc(), 2) << "a replay adds nothing to the list";
}

TEST_F(ListTest, AClickOnAnEntryOfTheOpenListReplaysIt) {
  DrawSinThenPolarCos();
  window->ClearScreen();
  QAbstractItemView* list = OpenListAt(QStringLiteral("SinX"));
  // Past the double-click time that keeps the release of the opening click
  // from choosing at once.
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  const QRect item = list->visualRect(list->currentIndex());
  ASSERT_TRUE(item.isValid());
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, item.center());
  EXPECT_FALSE(list->isVisible());
  EXPECT_EQ(window->txtY()->currentText(), QStringLiteral("SinX"));
  EXPECT_EQ(Logic().Boxes().optFunkcije(), graph::kCartesian);
  EXPECT_GT(CountPixels(Picture(), kGraphColour), 500);
}

TEST_F(ListTest, AnOpenListClosedWithEscDrawsNothing) {
  DrawSinThenPolarCos();
  QAbstractItemView* list = OpenListAt(QStringLiteral("SinX"));
  QTest::keyClick(list, Qt::Key_Escape);
  QApplication::processEvents();
  ExpectNothingDrawn("Esc in the list");
}

TEST_F(ListTest, TheFocusGoingToAnotherControlDrawsNothing) {
  DrawSinThenPolarCos();
  window->C1()->setFocus(Qt::TabFocusReason);
  QApplication::processEvents();
  ASSERT_FALSE(window->txtY()->lineEdit()->hasFocus());
  ExpectNothingDrawn("focus to C1");
}

TEST_F(ListTest, AnotherWindowTakingTheActivationDrawsNothing) {
  // As when File > New opens the next window: this one loses the
  // activation with the keyboard still in its box.
  DrawSinThenPolarCos();
  QWidget other;
  auto* edit = new QLineEdit(&other);
  other.show();
  QApplication::setActiveWindow(&other);
  edit->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  QApplication::processEvents();
  ExpectNothingDrawn("another window active");
  // Coming back draws nothing either.
  QApplication::setActiveWindow(window.get());
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QApplication::processEvents();
  ExpectNothingDrawn("activated again");
}

TEST_F(ListTest, AMenuOpeningWhileTheBoxHasTheFocusDrawsNothing) {
  DrawSinThenPolarCos();
  ASSERT_TRUE(window->txtY()->lineEdit()->hasFocus());
  QMenu menu;
  menu.addAction(QStringLiteral("&New"));
  menu.popup(window->mapToGlobal(QPoint(10, 10)));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
  QApplication::processEvents();
  ExpectNothingDrawn("menu open");
  menu.close();
  QApplication::processEvents();
  ExpectNothingDrawn("menu closed");
}

TEST_F(ListTest, ArrowKeysStepThroughTheListWithoutDrawing) {
  DrawSinThenPolarCos();
  // Down to CosX's entry, then up to SinX's.
  QTest::keyClick(window->txtY(), Qt::Key_Down);
  QTest::keyClick(window->txtY(), Qt::Key_Up);
  QApplication::processEvents();
  EXPECT_EQ(window->ScreenUpdates(), updatesBefore);
  EXPECT_EQ(Logic().Boxes().optFunkcije(), graph::kPolar);
  // The box shows the entry, and Enter draws what it shows.
  EXPECT_EQ(window->txtY()->currentText(), QStringLiteral("SinX"));
  EXPECT_EQ(Logic().Boxes().txtY().Text, "SinX");
}

// Destroying the window takes the focus from the box, and the box then
// reports the end of editing on a text of its list (activated, focus-out)
// while the window's parts are going: nothing may reach the window's logic
// by then.
TEST_F(ListTest, DeletingTheWindowWhileTheBoxHasTheFocusIsQuiet) {
  DrawSinThenPolarCos();
  QLineEdit* edit = EditY();
  edit->setFocus(Qt::OtherFocusReason);
  ASSERT_TRUE(edit->hasFocus());
  // An edit that ends on the list's text: the box will report it as chosen.
  QTest::keyClick(edit, Qt::Key_Backspace);
  QTest::keyClicks(edit, QStringLiteral("X"));
  ASSERT_EQ(edit->text(), QStringLiteral("CosX"));
  ASSERT_EQ(window->txtY()->count(), 2);
  window.reset();
  QApplication::processEvents();
  EXPECT_TRUE(messages.Boxes().empty());
}

}  // namespace
}  // namespace velmora::testing
