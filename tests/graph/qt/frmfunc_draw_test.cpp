// Drawing from the keyboard in the graph window: Enter draws, a second Enter
// during a draw changes nothing, Esc and a click on the progress label stop.
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTableWidget>
#include <QTimer>

#include "tests/graph/qt/frmfuncfixture.h"

namespace velmora::testing {
namespace {

using DrawTest = FrmFuncTest;

TEST_F(DrawTest, TypingSinXAndEnterDrawsTheCurve) {
  Make();
  ASSERT_EQ(QApplication::focusWidget(), window->txtY())
      << "txtY has the focus at start, not " << QApplication::focusWidget()->metaObject()->className() << " "
      << QApplication::focusWidget()->objectName().toStdString();
  const int before = CountPixels(Picture(), kGraphColour);
  TypeAndEnter(QStringLiteral("SinX"));
  const QImage picture = Picture();
  // The curve crosses the whole surface in the graph colour.
  EXPECT_GT(CountPixels(picture, kGraphColour), before + 500);
  EXPECT_GE(LastColumnOf(picture, kGraphColour), 595);
  // Sin(1) at x = 1: the pixel row 200 - 0.841 * 30.
  EXPECT_GT(CountPixels(picture, kGraphColour, QRect(329, 170, 3, 8)), 0);
  // History, table, list, focus.
  EXPECT_NE(window->rtb()->toPlainText().indexOf(QStringLiteral(" Y(X) = sinx")), -1);
  EXPECT_GT(window->MS1()->rowCount(), 10);
  EXPECT_EQ(window->MS1()->horizontalHeaderItem(0)->text(), QStringLiteral("X"));
  EXPECT_EQ(window->txtY()->count(), 1);
  EXPECT_EQ(window->txtY()->itemText(0), QStringLiteral("SinX"));
  EXPECT_EQ(Logic().State().KolkoFunkc(), 1);
  EXPECT_EQ(QApplication::focusWidget(), window->txtY());
  EXPECT_EQ(EditY()->cursorPosition(), 4) << "caret at the end";
  EXPECT_FALSE(window->lblPerCent()->isVisible());
  EXPECT_GT(frame.updates, 0);
  EXPECT_EQ(settings.Query("Recent Functions", "Recent1"),
            std::optional<std::string>("SinX ; K | Cartesian"));
  EXPECT_TRUE(messages.Boxes().empty());
}

TEST_F(DrawTest, ASecondEnterDuringADrawChangesNothing) {
  Make();
  bool ranDuringDraw = false;
  QTimer::singleShot(0, window.get(), [&] {
    ranDuringDraw = Logic().State().Drawing();
    EXPECT_TRUE(EditY()->isReadOnly());
    QTest::keyClicks(window->txtY(), QStringLiteral("+1"));  // refused: read-only
    QTest::keyClick(window->txtY(), Qt::Key_Return);
  });
  TypeAndEnter(QStringLiteral("CosX"));
  EXPECT_TRUE(ranDuringDraw);
  EXPECT_EQ(Logic().State().KolkoFunkc(), 1);
  EXPECT_EQ(window->txtY()->count(), 1);
  EXPECT_EQ(window->txtY()->currentText(), QStringLiteral("CosX"));
  EXPECT_EQ(window->rtb()->toPlainText().count(QStringLiteral("Y(X) =")), 1);
  EXPECT_FALSE(EditY()->isReadOnly());
}

TEST_F(DrawTest, EscInTxtYStopsTheDraw) {
  Make();
  QTimer::singleShot(0, window.get(), [&] { QTest::keyClick(window->txtY(), Qt::Key_Escape); });
  TypeAndEnter(QStringLiteral("X/2"));
  // Stopped at the first samples: the curve ends near the left edge.
  EXPECT_LT(LastColumnOf(Picture(), kGraphColour), 100);
  EXPECT_FALSE(Logic().State().Drawing());
  // A stopped draw still leaves its record.
  EXPECT_NE(window->rtb()->toPlainText().indexOf(QStringLiteral("Y(X) = x/2")), -1);
}

TEST_F(DrawTest, EscInPDrawStopsTheDraw) {
  Make();
  QTimer::singleShot(0, window.get(), [&] { QTest::keyClick(window->pDraw(), Qt::Key_Escape); });
  TypeAndEnter(QStringLiteral("X/2"));
  EXPECT_LT(LastColumnOf(Picture(), kGraphColour), 100);
}

TEST_F(DrawTest, AClickOnTheProgressLabelStops) {
  Make();
  QString shown;
  QTimer::singleShot(0, window.get(), [&] {
    shown = window->lblPerCent()->text();
    EXPECT_TRUE(window->lblPerCent()->isVisible());
    QTest::mouseClick(window->lblPerCent(), Qt::LeftButton);
  });
  TypeAndEnter(QStringLiteral("X/2"));
  EXPECT_TRUE(shown.startsWith(QStringLiteral("Done...")));
  EXPECT_EQ(window->lblPerCent()->toolTip(), QStringLiteral("Click to stop drawing"));
  EXPECT_LT(LastColumnOf(Picture(), kGraphColour), 100);
}

TEST_F(DrawTest, BadSyntaxShowsTheMessageAndDrawsNothing) {
  Make();
  const QImage before = Picture();
  TypeAndEnter(QStringLiteral("Sin(X"));
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Check bracket placement!");
  EXPECT_EQ(Picture(), before);
  EXPECT_EQ(Logic().State().KolkoFunkc(), 0);
}

TEST_F(DrawTest, EnterInTxtXDrawsAParametricCurve) {
  Make();
  window->optFunkcije(2)->click();
  EXPECT_TRUE(window->txtX()->isVisible());
  EXPECT_EQ(window->labY()->text(), QStringLiteral("Y (K) ="));
  EXPECT_EQ(frame.types.back(), 2);
  EditY()->selectAll();
  QTest::keyClicks(EditY(), QStringLiteral("3*SinK"));
  window->txtX()->lineEdit()->selectAll();
  QTest::keyClicks(window->txtX()->lineEdit(), QStringLiteral("3*CosK"));
  QTest::keyClick(window->txtX()->lineEdit(), Qt::Key_Return);
  // A circle of radius 3: its top at row 200 - 90.
  EXPECT_GT(CountPixels(Picture(), kGraphColour, QRect(290, 108, 20, 5)), 0);
  EXPECT_EQ(window->txtX()->count(), 1);
}

TEST_F(DrawTest, EnterTakesTheTextAsItStandsInTheBox) {
  Make();
  // Set by a program, not typed: no edit signal reached the logic.
  EditY()->setText(QStringLiteral("X/3"));
  QTest::keyClick(window->txtY(), Qt::Key_Enter);  // the keypad's Enter
  EXPECT_EQ(Logic().Boxes().txtY().Text, "X/3");
  EXPECT_EQ(Logic().State().KolkoFunkc(), 1);
  EXPECT_GT(CountPixels(Picture(), kGraphColour), 500);
}

TEST_F(DrawTest, TheWidgetsFollowADrawStartedThroughTheLogic) {
  Make();
  // As the frame runs an example: the logic's boxes, then its draw.
  Logic().optFunk(3);
  Logic().SettxtY("2");
  Logic().CrtajPolar();
  EXPECT_EQ(window->txtY()->currentText(), QStringLiteral("2"));
  EXPECT_EQ(window->labY()->text(), QStringLiteral("R (K) ="));
  EXPECT_TRUE(window->optFunkcije(3)->isChecked());
  EXPECT_EQ(window->txtY()->count(), 1);
  EXPECT_EQ(window->MS1()->rowCount(), 13);
}

TEST_F(DrawTest, TheScreenIsRepaintedAtScreenRateNotPerSample) {
  // A clock the test moves by `step` at every read; the window reads it once
  // per pumped sample. The draws go through the logic, as the frame starts
  // them.
  std::int64_t now = 0;
  std::int64_t step = 0;
  int reads = 0;
  clockMs = [&] {
    ++reads;
    now += step;
    return now;
  };
  Make();
  struct Row {
    std::int64_t step;
    const char* function;
    const char* why;
  };
  const Row rows[] = {
      {0, "SinX", "a clock that stands still: the first sample only"},
      {1, "CosX", "1 ms per sample: the first, then one in every 16"},
      {16, "X/2", "16 ms per sample: every sample"},
      {40, "X/3", "slower than the screen: still every sample, never more"},
  };
  for (const auto& r : rows) {
    step = r.step;
    reads = 0;
    const int before = window->ScreenUpdates();
    Logic().SettxtY(r.function);
    Logic().CrtajFJU();
    const int updates = window->ScreenUpdates() - before;
    ASSERT_GT(reads, 100) << r.why;  // one read per sample of 600 columns
    const int expected = r.step == 0 ? 1 : r.step >= 16 ? reads : (reads + 15) / 16;
    EXPECT_EQ(updates, expected) << r.why;
  }
  // The function box loses the focus while the window is whole, not in its
  // destructor (the box's focus-out reaches the window's list handler).
  window->pDraw()->setFocus();
  QApplication::processEvents();
}

}  // namespace
}  // namespace velmora::testing
