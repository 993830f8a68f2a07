// The frame opens the Complex Calculator from Tools, from the calculators'
// toolbar and from its drop-down: one window, non-modal, made again after
// OFF, with the help entry on the frame's help file.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QMenu>
#include <QToolButton>

#include "app/toolwindowhost.h"
#include "complex/qt/frmcomplex.h"
#include "tests/gui/framefixture.h"

namespace velmora::app {
namespace {

using testing::FrameFixture;

complex_qt::FrmComplex* Calculator(FrameFixture& f) {
  return qobject_cast<complex_qt::FrmComplex*>(f.frame->Tools().Window(platform::ToolWindow::Complex));
}

TEST(FrmMainComplex, ToolsComplexCalculatorOpensOneWindow) {
  FrameFixture f;
  f.Start();
  EXPECT_TRUE(f.frame->Tools().Has(platform::ToolWindow::Complex));
  f.Trigger("mnuTools", 12);
  complex_qt::FrmComplex* first = Calculator(f);
  ASSERT_NE(first, nullptr);
  EXPECT_TRUE(first->isVisible());
  EXPECT_EQ(first->windowTitle(), QStringLiteral("Complex Calculator"));
  EXPECT_FALSE(first->isModal());
  // The toolbar's key shows the same window.
  QToolButton* key = f.frame->Bars().Button(QStringLiteral("Complex"));
  ASSERT_NE(key, nullptr);
  ASSERT_TRUE(key->isEnabled());
  key->click();
  QApplication::processEvents();
  EXPECT_EQ(Calculator(f), first);
  // OFF closes it; the next opening makes a new one.
  first->Button("cmdOff")->click();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Calculator(f), nullptr);
  f.Trigger("mnuTools", 12);
  EXPECT_NE(Calculator(f), nullptr);
}

// Every calculator of this version is live; the scientific calculator,
// which this version does not have, stays disabled.
TEST(FrmMainComplex, TheCalculatorsDropDownHasEveryBuiltCalculatorLive) {
  FrameFixture f;
  f.Start();
  QToolButton* calc = f.frame->Bars().Button(QStringLiteral("Calc"));
  ASSERT_NE(calc, nullptr);
  ASSERT_NE(calc->menu(), nullptr);
  for (QAction* action : calc->menu()->actions()) {
    const bool missing = action->text() == QStringLiteral("Scientific Calculator...");
    EXPECT_EQ(action->isEnabled(), !missing) << action->text().toStdString();
  }
}

TEST(FrmMainComplex, TheHelpEntryOpensTheHelpFileBesideTheProgram) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuTools", 12);
  complex_qt::FrmComplex* calculator = Calculator(f);
  ASSERT_NE(calculator, nullptr);
  calculator->ShowComplexMenu(QPoint(5, 5));
  QAction* help = calculator->MenuAction("mnuhelp");
  ASSERT_NE(help, nullptr);
  EXPECT_FALSE(help->isEnabled());  // no help file beside the program
  calculator->ComplexMenu()->hide();
  calculator->close();
}

}  // namespace
}  // namespace velmora::app
