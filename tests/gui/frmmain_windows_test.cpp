// The frame as a new user meets it, offscreen: new windows, menus and focus
// changes never draw; Ctrl+F4 closes the active window; Tile fits every
// window into the area and Cascade keeps the active one; long recent
// functions and window titles are cut in the menus; the frame comes back
// where and as it closed, and stored band widths never force its size.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QToolBar>

#include "app/menucaption.h"
#include "graph/qt/pdrawview.h"
#include "graph/qt/qimagesurface.h"
#include "tests/gui/framefixture.h"

namespace velmora::app {
namespace {

using testing::FrameFixture;

// The keys go where the keyboard is, as a user's do.
void Keys(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget* focus = QApplication::focusWidget();
  ASSERT_NE(focus, nullptr) << "no widget has the keyboard";
  QTest::keyClick(focus, static_cast<Qt::Key>(key), modifiers);
  QApplication::processEvents();
}

void Type(const QString& text) {
  QWidget* focus = QApplication::focusWidget();
  ASSERT_NE(focus, nullptr);
  QTest::keyClicks(focus, text);
}

// Pixels in the default graph colour.
int GraphPixels(const QImage& image) {
  const QRgb graph = graph_qt::ToQColor(0xC08000).rgb() & 0xFFFFFF;
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if ((image.pixel(x, y) & 0xFFFFFF) == graph) ++count;
  return count;
}

// SinX drawn, then with Alt+O the polar type and CosX drawn: the window's
// list holds both and its box shows CosX.
void SinThenPolarCos(FrameFixture& f) {
  // The new window's first layout done, as before a user's first key.
  QApplication::processEvents();
  f.Active().SettleSize();
  Type(QStringLiteral("SinX"));
  Keys(Qt::Key_Return);
  // The access key clicks the option after the button's press animation,
  // and the option gives the keyboard back to the box.
  Keys(Qt::Key_O, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([&] { return f.Active().optFunkcije(3)->isChecked(); }));
  ASSERT_TRUE(f.Active().txtY()->lineEdit()->hasFocus());
  Keys(Qt::Key_A, Qt::ControlModifier);  // CosX replaces SinX in the box
  Type(QStringLiteral("CosX"));
  Keys(Qt::Key_Return);
  ASSERT_EQ(f.Active().windowTitle(), QStringLiteral("Graph 1 - R (K) = CosX"));
  ASSERT_EQ(f.Active().txtY()->count(), 2);
  ASSERT_TRUE(f.messages.Boxes().empty());
}

// Graph 1 as SinThenPolarCos left it, with no draw since.
void ExpectGraph1Untouched(FrameFixture& f, graph_qt::FrmFunc* first, int updates, const char* what) {
  EXPECT_EQ(first->ScreenUpdates(), updates) << what << ": Graph 1 drew";
  EXPECT_EQ(first->windowTitle(), QStringLiteral("Graph 1 - R (K) = CosX")) << what;
  EXPECT_EQ(first->Logic().Boxes().optFunkcije(), graph::kPolar) << what;
  EXPECT_TRUE(first->optFunkcije(3)->isChecked()) << what;
  EXPECT_EQ(first->txtY()->currentText(), QStringLiteral("CosX")) << what;
  EXPECT_TRUE(f.messages.Boxes().empty()) << what;
}

TEST(FrmMainWindows, CtrlNAfterAPolarDrawOpensGraph2AndLeavesGraph1AsItWas) {
  FrameFixture f;
  f.Start();
  SinThenPolarCos(f);
  graph_qt::FrmFunc* first = &f.Active();
  const int updates = first->ScreenUpdates();
  Keys(Qt::Key_N, Qt::ControlModifier);
  ASSERT_EQ(f.Titles(), (std::vector<QString>{"Graph 1 - R (K) = CosX", "Graph 2"}));
  EXPECT_EQ(f.frame->ActiveGraphWindow(), f.frame->GraphWindows()[1]);
  EXPECT_EQ(f.Active().ScreenUpdates(), 0) << "the new window drew";
  ExpectGraph1Untouched(f, first, updates, "Ctrl+N");
  // Back to Graph 1 from the Window menu: an activation, not a draw.
  QMenu* menu = f.frame->findChild<QMenu*>(QStringLiteral("mnuWin"));
  emit menu->aboutToShow();
  f.Action("mnuWinList", 0)->trigger();
  QApplication::processEvents();
  EXPECT_EQ(f.frame->ActiveGraphWindow(), first);
  ExpectGraph1Untouched(f, first, updates, "Window menu");
}

TEST(FrmMainWindows, AMenuOpenedWhileTheBoxHasTheKeyboardDrawsNothing) {
  FrameFixture f;
  f.Start();
  SinThenPolarCos(f);
  graph_qt::FrmFunc* first = &f.Active();
  const int updates = first->ScreenUpdates();
  Keys(Qt::Key_F, Qt::AltModifier);
  QMenu* file = f.frame->findChild<QMenu*>(QStringLiteral("mnuFileMenu"));
  ASSERT_TRUE(file->isVisible()) << "Alt+F opens the File menu";
  ExpectGraph1Untouched(f, first, updates, "menu open");
  EXPECT_GT(GraphPixels(first->Picture().Image()), 100) << "the curves stay on screen";
  QTest::keyClick(file, Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_FALSE(file->isVisible());
  // The menu bar lets the keyboard go back to the box.
  if (QApplication::focusWidget() == f.frame->menuBar()) Keys(Qt::Key_Escape);
  ExpectGraph1Untouched(f, first, updates, "menu closed");
}

TEST(FrmMainWindows, CtrlF4ClosesTheActiveWindow) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuFile", 0);
  f.Trigger("mnuFile", 0);
  ASSERT_EQ(f.Titles(), (std::vector<QString>{"Graph 1", "Graph 2", "Graph 3"}));
  f.frame->Activate(f.frame->GraphWindows()[1]);
  QApplication::processEvents();
  Keys(Qt::Key_F4, Qt::ControlModifier);
  QApplication::processEvents();
  EXPECT_EQ(f.Titles(), (std::vector<QString>{"Graph 1", "Graph 3"}));
  EXPECT_EQ(f.frame->Windows().WindowCount(), 2);
  EXPECT_EQ(f.Panel(4), QStringLiteral("Total: 2"));
  EXPECT_EQ(f.Action("mnuFile", 1)->shortcut(), QKeySequence(QStringLiteral("Ctrl+F4")));
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST(FrmMainWindows, ReadMeThatCannotBeOpenedIsNamedInTheMessage) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuhelp");
  ASSERT_EQ(f.shell.opened.size(), 1u);
  const std::string path =
      QDir::toNativeSeparators(f.folder.filePath(QStringLiteral("missing/README.md"))).toStdString();
  EXPECT_EQ(f.shell.opened[0], f.folder.filePath(QStringLiteral("missing/README.md")).toStdString());
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "File not found\r\n" + path);
  EXPECT_EQ(f.messages.Boxes()[0].title, "Velmora");
  EXPECT_EQ(f.messages.Boxes()[0].icon, platform::MsgIcon::Exclamation);
}

TEST(FrmMainWindows, TileFitsTwelveWindowsIntoTheAreaAndRepaintsThem) {
  FrameFixture f;
  f.Start();
  f.frame->resize(1024, 720);
  for (int i = 0; i < 11; ++i) f.Trigger("mnuFile", 0);
  ASSERT_EQ(f.frame->Windows().WindowCount(), 12);
  f.frame->Activate(f.frame->GraphWindows()[4]);
  QApplication::processEvents();
  f.Trigger("mnuWinall", 1);  // &Tile
  QApplication::processEvents();
  QMdiArea* area = f.frame->Area();
  const QRect inside = area->viewport()->rect();
  for (QMdiSubWindow* sub : area->subWindowList()) {
    EXPECT_TRUE(inside.contains(sub->geometry())) << sub->windowTitle().toStdString() << " lies out of view";
    EXPECT_FALSE(sub->isMinimized() || sub->isMaximized());
  }
  EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
  EXPECT_FALSE(area->verticalScrollBar()->isVisible());
  EXPECT_EQ(f.frame->ActiveGraphWindow(), f.frame->GraphWindows()[4]) << "the active window stays";
  // Each window's picture follows its new size.
  for (graph_qt::FrmFunc* window : f.frame->GraphWindows()) {
    window->SettleSize();
    EXPECT_EQ(window->Picture().Image().size(), window->pDraw()->size())
        << window->windowTitle().toStdString();
  }
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST(FrmMainWindows, TileTakesMaximizedAndMinimizedWindowsIn) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuFile", 0);
  f.Trigger("mnuFile", 0);
  QMdiArea* area = f.frame->Area();
  const QList<QMdiSubWindow*> subs = area->subWindowList(QMdiArea::CreationOrder);
  subs[0]->showMinimized();
  subs[2]->showMaximized();
  QApplication::processEvents();
  f.Trigger("mnuWinall", 1);
  QApplication::processEvents();
  for (QMdiSubWindow* sub : subs) {
    EXPECT_FALSE(sub->isMinimized() || sub->isMaximized()) << sub->windowTitle().toStdString();
    EXPECT_TRUE(area->viewport()->rect().contains(sub->geometry())) << sub->windowTitle().toStdString();
  }
}

TEST(FrmMainWindows, CascadeKeepsTheActiveWindowActive) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuFile", 0);
  f.Trigger("mnuFile", 0);
  for (int which : {0, 1, 2}) {
    f.frame->Activate(f.frame->GraphWindows()[static_cast<std::size_t>(which)]);
    QApplication::processEvents();
    f.Trigger("mnuWinall", 0);  // &Cascade
    QApplication::processEvents();
    EXPECT_EQ(f.frame->ActiveGraphWindow(), f.frame->GraphWindows()[static_cast<std::size_t>(which)])
        << which;
    EXPECT_EQ(f.frame->Area()->activeSubWindow()->widget(),
              f.frame->GraphWindows()[static_cast<std::size_t>(which)])
        << which;
  }
}

TEST(FrmMainWindows, ALongFunctionIsCutInTheMenusWithTheWholeTextAsStatusTip) {
  FrameFixture f;
  f.Start();
  QString function = QStringLiteral("SinX");
  for (int i = 0; i < 40; ++i) function += QStringLiteral("+0.001*X");
  f.TypeAndEnter(function);
  ASSERT_TRUE(f.messages.Boxes().empty());
  const QString line = function + QStringLiteral(" ; K | Cartesian");
  QAction* recent = f.Action("mnuRecent", 1);
  ASSERT_TRUE(recent->isVisible());
  EXPECT_EQ(recent->text().size(), static_cast<qsizetype>(kMenuCaptionLimit));
  EXPECT_TRUE(recent->text().startsWith(function.left(29)));
  EXPECT_TRUE(recent->text().endsWith(QStringLiteral("| Cartesian")));
  EXPECT_TRUE(recent->text().contains(QChar(0x2026)));
  EXPECT_EQ(recent->statusTip(), line);
  QMenu* window = f.frame->findChild<QMenu*>(QStringLiteral("mnuWin"));
  emit window->aboutToShow();
  QAction* listed = f.Action("mnuWinList", 0);
  ASSERT_NE(listed, nullptr);
  EXPECT_EQ(listed->text().size(), static_cast<qsizetype>(3 + kMenuCaptionLimit));  // "&1 " first
  EXPECT_EQ(listed->statusTip(), QStringLiteral("Graph 1 - Y (X) = ") + function);
  // Neither menu grows wider than the screen.
  const int screen = f.frame->screen()->availableGeometry().width();
  QMenu* file = f.frame->findChild<QMenu*>(QStringLiteral("mnuFileMenu"));
  EXPECT_LT(file->sizeHint().width(), screen);
  EXPECT_LT(window->sizeHint().width(), screen);
  // A short one stands as it is.
  f.TypeAndEnter(QStringLiteral("CosX"));
  EXPECT_EQ(f.Action("mnuRecent", 1)->text(), QStringLiteral("CosX ; K | Cartesian"));
  EXPECT_EQ(f.Action("mnuRecent", 2)->statusTip(), line);
}

TEST(FrmMainWindows, TheFrameComesBackWhereAndAsItClosed) {
  FrameFixture f;
  f.StartAsLastClosed();
  f.frame->setGeometry(40, 50, 700, 500);
  QApplication::processEvents();
  f.frame->close();
  f.frame.reset();
  f.StartAsLastClosed();
  EXPECT_FALSE(f.frame->isMaximized());
  EXPECT_EQ(f.frame->geometry().size(), QSize(700, 500));
  EXPECT_EQ(f.frame->geometry().topLeft(), QPoint(40, 50));
  // Closed maximized, it comes back maximized, and unmaximized at its
  // size from before.
  f.frame->showMaximized();
  QApplication::processEvents();
  f.frame->close();
  f.frame.reset();
  f.StartAsLastClosed();
  EXPECT_TRUE(f.frame->isMaximized());
  f.frame->showNormal();
  QApplication::processEvents();
  EXPECT_EQ(f.frame->geometry().size(), QSize(700, 500));
  EXPECT_TRUE(f.settings->Query("Frame", "Geometry").has_value());
}

TEST(FrmMainWindows, BandWidthsKeptFromAMaximizedFrameNeverForceItsSize) {
  FrameFixture f;
  f.StartAsLastClosed();
  f.frame->showMaximized();
  QApplication::processEvents();
  f.frame->close();
  ASSERT_TRUE(f.settings->Query("TBW", "TB4").has_value());
  // As a wide screen's maximized frame left them (a last band that filled
  // its row), and as an older version stored them.
  f.settings->Store("TBW", "TB4", "28800");
  f.frame.reset();
  f.StartAsLastClosed();
  f.frame->showNormal();
  QApplication::processEvents();
  EXPECT_LT(f.frame->minimumSizeHint().width(), 700);
  for (int band = 1; band <= 4; ++band) EXPECT_LT(f.frame->Bars().Band(band)->minimumWidth(), 300) << band;
  f.frame->resize(640, 480);
  QApplication::processEvents();
  EXPECT_EQ(f.frame->width(), 640) << "the frame can be narrowed";
  // With room in the row, no band hides buttons behind its chevron.
  f.frame->resize(1200, 700);
  QApplication::processEvents();
  for (int band = 1; band <= 4; ++band) EXPECT_FALSE(f.frame->Bars().HidesButtons(band)) << band;
}

}  // namespace
}  // namespace velmora::app
