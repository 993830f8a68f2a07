// The frame's Tools menu and calculators toolbar open the Geometry
// Calculator and the Units Converter: one window of each, above the frame.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPushButton>

#include "app/toolwindowhost.h"
#include "geometry/qt/frmconvert.h"
#include "geometry/qt/frmgeo.h"
#include "tests/gui/framefixture.h"

namespace velmora::testing {
namespace {

using platform::ToolWindow;

struct Entry {
  int index;  // in the Tools menu
  ToolWindow window;
  const char* title;
};

TEST(GeometryTools, TheToolsMenuOpensOneWindowOfEachAboveTheFrame) {
  for (const Entry& e : {Entry{13, ToolWindow::Geometry, "Geometry Calculator"},
                         Entry{15, ToolWindow::Converter, "Geometry Units Converter"}}) {
    FrameFixture f;
    app::FrmMain& frame = f.Start();
    QAction* action = frame.Menus().Action(QStringLiteral("mnuTools"), e.index);
    ASSERT_NE(action, nullptr) << e.title;
    EXPECT_TRUE(action->isEnabled()) << e.title;
    EXPECT_TRUE(frame.Tools().Has(e.window)) << e.title;
    action->trigger();
    QApplication::processEvents();
    QWidget* window = frame.Tools().Window(e.window);
    ASSERT_NE(window, nullptr) << e.title;
    EXPECT_TRUE(window->isVisible()) << e.title;
    EXPECT_EQ(window->windowTitle(), QString::fromLatin1(e.title));
    EXPECT_TRUE(window->isWindow()) << e.title;
    action->trigger();
    QApplication::processEvents();
    EXPECT_EQ(frame.Tools().Window(e.window), window) << "one window of a kind: " << e.title;
  }
}

TEST(GeometryTools, TheConverterSendsNothingWhileThisVersionHasNoEvaluator) {
  FrameFixture f;
  app::FrmMain& frame = f.Start();
  frame.Tools().Show(ToolWindow::Converter);
  auto* converter = qobject_cast<geometry_qt::FrmConvert*>(frame.Tools().Window(ToolWindow::Converter));
  ASSERT_NE(converter, nullptr);
  EXPECT_EQ(converter->EvaluatorOpen(),
            frame.Tools().Has(ToolWindow::Evaluator) && frame.Tools().Evaluator(false) != nullptr);
  EXPECT_EQ(converter->Button("cmdEvaluator1")->isEnabled(), converter->EvaluatorOpen());
}

}  // namespace
}  // namespace velmora::testing
