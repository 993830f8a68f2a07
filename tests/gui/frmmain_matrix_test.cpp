// The frame and its Matrix Calculator: the Tools entry opens the one window,
// a command-line file opens in it on top of "Graph 1", and its first
// opening registers the .mcf type once.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>

#include "app/toolwindowhost.h"
#include "matrix/qt/frmmatrice.h"
#include "platform/settingsstore.h"
#include "tests/gui/framefixture.h"

namespace velmora::testing {
namespace {

matrix_qt::FrmMatrice* Calculator(app::FrmMain& frame) {
  return qobject_cast<matrix_qt::FrmMatrice*>(frame.Tools().Window(platform::ToolWindow::Matrix));
}

TEST(FrameMatrix, TheToolsEntryOpensOneMatrixCalculator) {
  FrameFixture f;
  app::FrmMain& frame = f.Start();
  EXPECT_EQ(Calculator(frame), nullptr);
  f.Trigger("mnuTools", 14);
  matrix_qt::FrmMatrice* window = Calculator(frame);
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Matrix Calculator"));
  f.Trigger("mnuTools", 14);
  EXPECT_EQ(Calculator(frame), window);  // the same window, brought forward
  EXPECT_EQ(platform::GetRegValue(*f.settings, "Mat", "Fajl", "False"), "True");
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST(FrameMatrix, ACommandLineFileOpensInTheCalculatorOverGraph1) {
  FrameFixture f;
  const QString path = f.folder.filePath(QStringLiteral("start.mcf"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(" 2  2 \r\n1\r\n2\r\n3\r\n4\r\n");
  file.close();
  f.Make();
  f.frame->show();
  f.frame->Load({path});
  QApplication::processEvents();
  EXPECT_EQ(f.Titles(), std::vector<QString>{QStringLiteral("Graph 1")});
  matrix_qt::FrmMatrice* window = Calculator(*f.frame);
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(window->Calculator().grdGrid1.TextMatrix(1, 1), "4");
}

}  // namespace
}  // namespace velmora::testing
