// The main frame with real graph windows, offscreen: start-up, typing and
// Enter, the window limit, closing, the status bar, menus, toolbars and
// their settings, recent functions, zoom and move, examples, and the clear
// and options commands of the active window.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include "app/menutable.h"
#include "graph/qt/frmgridopt.h"
#include "tests/gui/framefixture.h"

namespace velmora::app {
namespace {

using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;
using testing::FrameFixture;

TEST(FrmMain, StartUpShowsGraph1WithTheFocusInItsFunctionBox) {
  FrameFixture f;
  f.Start();
  ASSERT_EQ(f.frame->Windows().WindowCount(), 1);
  EXPECT_EQ(f.frame->Windows().WindowSerial(), 1);
  EXPECT_EQ(f.Titles(), std::vector<QString>{QStringLiteral("Graph 1")});
  EXPECT_TRUE(f.Active().isVisible());
  QWidget* focus = QApplication::focusWidget();
  ASSERT_NE(focus, nullptr);
  EXPECT_TRUE(focus == f.Active().txtY() || focus == f.Active().txtY()->lineEdit());
  EXPECT_EQ(f.Panel(1), QStringLiteral("Y (X) = "));
  EXPECT_EQ(f.Panel(2), QStringLiteral("Zoom: 30"));
  EXPECT_EQ(f.Panel(4), QStringLiteral("Total: 1"));
  EXPECT_EQ(f.Action("mnuFile", 15)->text(), QStringLiteral("E&xit\tAlt+F4"));
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST(FrmMain, TypingSinXAndEnterDrawsItAndRefreshesTheFrame) {
  FrameFixture f;
  f.Start();
  f.TypeAndEnter(QStringLiteral("SinX"));
  EXPECT_EQ(f.Logic().State().KolkoFunkc(), 1);
  EXPECT_TRUE(f.Logic().State().Plotted());
  EXPECT_EQ(f.Logic().Boxes().txtY().List, std::vector<std::string>{"SinX"});
  EXPECT_EQ(f.Active().windowTitle(), QStringLiteral("Graph 1 - Y (X) = SinX"));
  EXPECT_EQ(f.Panel(1), QStringLiteral("Y (X) = SinX"));
  // The draw went to the recent functions, and the File menu shows it.
  QAction* recent = f.Action("mnuRecent", 1);
  ASSERT_NE(recent, nullptr);
  EXPECT_TRUE(recent->isVisible());
  EXPECT_EQ(recent->text(), QStringLiteral("SinX ; K | Cartesian"));
  EXPECT_FALSE(f.Action("mnuRecent", 2)->isVisible());
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST(FrmMain, TheTwentyFirstWindowIsRefusedWithItsMessage) {
  FrameFixture f;
  f.Start();
  for (int i = 0; i < 19; ++i) f.Trigger("mnuFile", 0);
  ASSERT_EQ(f.frame->Windows().WindowCount(), 20);
  EXPECT_EQ(f.Titles().back(), QStringLiteral("Graph 20"));
  EXPECT_TRUE(f.messages.Boxes().empty());
  // The New button of the second band asks the same routine.
  f.frame->Bars().Button(QStringLiteral("New"))->click();
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Maximum number of windows reached.");
  EXPECT_EQ(f.messages.Boxes()[0].title, "Error Creating new Window");
  EXPECT_EQ(f.messages.Boxes()[0].icon, MsgIcon::Critical);
  EXPECT_EQ(f.frame->Windows().WindowCount(), 20);
  EXPECT_EQ(f.frame->Area()->subWindowList().size(), 20);
  EXPECT_EQ(f.Panel(4), QStringLiteral("Total: 20"));
}

TEST(FrmMain, ClosingGraph2OfThreeThenNewGivesGraph4) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuFile", 0);
  f.Trigger("mnuFile", 0);
  ASSERT_EQ(f.Titles(), (std::vector<QString>{"Graph 1", "Graph 2", "Graph 3"}));
  graph_qt::FrmFunc* second = f.frame->GraphWindows()[1];
  f.frame->Activate(second);
  f.Trigger("mnuFile", 1);  // &Close
  QApplication::processEvents();
  EXPECT_EQ(f.frame->Windows().WindowCount(), 2);
  EXPECT_EQ(f.Titles(), (std::vector<QString>{"Graph 1", "Graph 3"}));
  EXPECT_EQ(f.Panel(4), QStringLiteral("Total: 2"));
  f.Trigger("mnuFile", 0);
  EXPECT_EQ(f.Titles(), (std::vector<QString>{"Graph 1", "Graph 3", "Graph 4"}));
  EXPECT_EQ(f.frame->Windows().WindowCount(), 3);
  EXPECT_EQ(f.frame->Windows().WindowSerial(), 4);
  EXPECT_EQ(f.Panel(4), QStringLiteral("Total: 3"));
}

TEST(FrmMain, ClosingTheLastWindowLeavesHashInAllPanelsAndCommandsIdle) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuFile", 1);
  QApplication::processEvents();
  EXPECT_EQ(f.frame->Windows().WindowCount(), 0);
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(f.Panel(i), QStringLiteral("#")) << i;
  // Commands that need a window are disabled, and do nothing when run.
  EXPECT_FALSE(f.Action("mnued2")->isEnabled());
  EXPECT_FALSE(f.Action("mnuZoom", 0)->isEnabled());
  EXPECT_FALSE(f.Action("mnuComon", 0)->isEnabled());
  f.frame->Run(Command::ZoomIn);
  f.frame->Run(Command::ClearAll);
  EXPECT_EQ(f.Panel(1), QStringLiteral("#"));
  EXPECT_TRUE(f.messages.Boxes().empty());
  // New still works and goes on from the last number.
  f.Trigger("mnuFile", 0);
  EXPECT_EQ(f.Titles(), std::vector<QString>{"Graph 2"});
}

TEST(FrmMain, WindowMenuListsTheGraphWindowsAndArrangesThem) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuFile", 0);
  QMenu* menu = f.frame->findChild<QMenu*>(QStringLiteral("mnuWin"));
  ASSERT_NE(menu, nullptr);
  emit menu->aboutToShow();
  QAction* first = f.Action("mnuWinList", 0);
  QAction* second = f.Action("mnuWinList", 1);
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(first->text(), QStringLiteral("&1 Graph 1"));
  EXPECT_EQ(second->text(), QStringLiteral("&2 Graph 2"));
  EXPECT_TRUE(second->isChecked());  // the new window is the active one
  first->trigger();
  QApplication::processEvents();
  EXPECT_EQ(f.frame->ActiveGraphWindow(), f.frame->GraphWindows()[0]);
  f.Trigger("mnuWinall", 1);  // &Tile
  f.Trigger("mnuWinall", 0);  // &Cascade
  EXPECT_EQ(f.frame->Windows().WindowCount(), 2);
}

TEST(FrmMain, MenuBarShowsEveryCaptionOfTheTable) {
  FrameFixture f;
  f.Start();
  const QList<QAction*> top = f.frame->menuBar()->actions();
  const auto menus = MenuBar();
  ASSERT_EQ(top.size(), static_cast<qsizetype>(menus.size()));
  for (std::size_t i = 0; i < menus.size(); ++i) {
    EXPECT_EQ(top[static_cast<qsizetype>(i)]->text().toStdString(), menus[i].caption);
  }
  // Each table entry is an action with its caption; tools of later versions
  // stand disabled.
  std::function<void(std::span<const MenuItem>)> check = [&](std::span<const MenuItem> items) {
    for (const MenuItem& item : items) {
      if (item.IsSeparator()) continue;
      if (!item.submenu.empty()) {
        check(item.submenu);
        continue;
      }
      QAction* action = f.frame->Menus().Action(ControlName(item.name, item.index));
      ASSERT_NE(action, nullptr) << item.caption;
      if (!(item.name == kExitName && item.index == kExitIndex)) {
        EXPECT_EQ(action->text().toStdString(), item.caption);
      }
      if (item.enable == EnableRule::NotBuilt) {
        EXPECT_FALSE(action->isEnabled()) << item.caption;
      }
      if (item.enable == EnableRule::NeedsWindow) {
        EXPECT_TRUE(action->isEnabled()) << item.caption;
      }
    }
  };
  for (const TopMenu& menu : menus) check(menu.items);
  // The Examples menu holds the seven submenus of the catalogue.
  QMenu* examples = f.frame->findChild<QMenu*>(QStringLiteral("mnuExamples"));
  ASSERT_NE(examples, nullptr);
  ASSERT_EQ(examples->actions().size(), 7);
  EXPECT_EQ(examples->actions()[0]->text(), QStringLiteral("&Common Functions"));
  EXPECT_EQ(examples->actions()[6]->text(), QStringLiteral("P&olar Functions"));
  EXPECT_EQ(f.Action("mnuComon", 2)->text(), QStringLiteral("X + 2/X"));
  EXPECT_EQ(f.Action("mnupf2", 16)->text(), QStringLiteral("Y = Sin(5K) ; X = Cos(3K)"));
}

TEST(FrmMain, AnEmptySettingsStoreGivesTheDefaultBands) {
  FrameFixture f;
  f.Start();
  const bool shown[] = {true, true, false, true};  // band 3 hidden
  for (int band = 1; band <= 4; ++band) {
    EXPECT_EQ(f.frame->Bars().Band(band)->isVisible(), shown[band - 1]) << band;
    EXPECT_EQ(f.Action("mnuView", band - 1)->isChecked(), shown[band - 1]) << band;
  }
  // The bands are as wide as their buttons: none hides any in a wide frame.
  f.frame->resize(1200, 700);
  QApplication::processEvents();
  for (int band = 1; band <= 4; ++band) EXPECT_FALSE(f.frame->Bars().HidesButtons(band)) << band;
  EXPECT_FALSE(f.frame->toolBarBreak(f.frame->Bars().Band(3)));
}

TEST(FrmMain, StoredBandsAreShownAndTheViewMenuHidesThem) {
  FrameFixture f;
  f.settings->Store("TB", "TB1", "False");
  f.settings->Store("TB", "TB3", "True");
  f.settings->Store("TB", "Rows", "2");
  f.Start();
  EXPECT_FALSE(f.frame->Bars().Band(1)->isVisible());
  EXPECT_TRUE(f.frame->Bars().Band(3)->isVisible());
  EXPECT_FALSE(f.Action("mnuView", 0)->isChecked());
  EXPECT_TRUE(f.Action("mnuView", 2)->isChecked());
  EXPECT_TRUE(f.frame->toolBarBreak(f.frame->Bars().Band(3)));  // a second row
  f.Trigger("mnuView", 3);
  EXPECT_FALSE(f.frame->Bars().Band(4)->isVisible());
  EXPECT_FALSE(f.Action("mnuView", 3)->isChecked());
  f.Trigger("mnuView", 3);
  EXPECT_TRUE(f.frame->Bars().Band(4)->isVisible());
}

TEST(FrmMain, TheToolbarLayoutIsSavedOnlyWhenTheFrameClosesMaximized) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuView", 1);  // hide band 2
  f.frame->close();
  EXPECT_FALSE(f.settings->Query("TB", "TB2").has_value());
  f.Restart(true);
  EXPECT_TRUE(f.frame->Bars().Band(2)->isVisible());  // not kept
  f.Trigger("mnuView", 1);
  f.frame->close();
  EXPECT_EQ(f.settings->Query("TB", "TB2"), "False");
  EXPECT_EQ(f.settings->Query("TB", "TB3"), "False");
  EXPECT_EQ(f.settings->Query("TB", "TB1"), "True");
  EXPECT_TRUE(f.settings->Query("TBW", "TB1").has_value());
  f.Restart();
  EXPECT_FALSE(f.frame->Bars().Band(2)->isVisible());
}

TEST(FrmMain, RecentFunctionsComeBackAfterARestartAndDrawWhenChosen) {
  FrameFixture f;
  f.Start();
  f.TypeAndEnter(QStringLiteral("SinX"));
  f.Trigger("mnuftype", 2);  // P&olar
  f.TypeAndEnter(QStringLiteral("1+CosK"));
  ASSERT_TRUE(f.messages.Boxes().empty());
  f.Restart();
  EXPECT_TRUE(f.frame->findChild<QAction*>(QStringLiteral("mnuSeparator2"))->isVisible());
  ASSERT_TRUE(f.Action("mnuRecent", 2)->isVisible());
  EXPECT_EQ(f.Action("mnuRecent", 1)->text(), QStringLiteral("1+CosK ; K | Polar"));
  EXPECT_EQ(f.Action("mnuRecent", 2)->text(), QStringLiteral("SinX ; K | Cartesian"));
  EXPECT_FALSE(f.Action("mnuRecent", 3)->isVisible());
  // Every start shows one empty graph window.
  EXPECT_EQ(f.Logic().State().KolkoFunkc(), 0);
  f.Trigger("mnuRecent", 2);
  EXPECT_EQ(f.Logic().State().KolkoFunkc(), 1);
  EXPECT_EQ(f.Logic().Boxes().optFunkcije(), graph::kCartesian);
  EXPECT_EQ(f.Active().txtY()->currentText(), QStringLiteral("SinX"));
  // Drawing it again brings it to the top of the list.
  EXPECT_EQ(f.Action("mnuRecent", 1)->text(), QStringLiteral("SinX ; K | Cartesian"));
  f.Trigger("mnuRecent", 2);  // the polar one, drawn as polar
  EXPECT_EQ(f.Logic().Boxes().optFunkcije(), graph::kPolar);
  EXPECT_TRUE(f.Action("mnuftype", 2)->isChecked());
}

TEST(FrmMain, WithAnEmptyStoreNoRecentEntryAndNoSeparator) {
  FrameFixture f;
  f.Start();
  EXPECT_FALSE(f.frame->findChild<QAction*>(QStringLiteral("mnuSeparator2"))->isVisible());
  for (int i = 1; i <= 8; ++i) EXPECT_FALSE(f.Action("mnuRecent", i)->isVisible()) << i;
}

TEST(FrmMain, ZoomFromTheMenuAndTheToolbarShowsItsTextsAndChecks) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuZoom", 0);  // Zoom&in
  EXPECT_EQ(f.Logic().View().Zoom(), 50);
  EXPECT_EQ(f.Panel(2), QStringLiteral("Zoom: 50"));
  EXPECT_TRUE(f.Action("mnuZoom", 0)->isChecked());
  EXPECT_FALSE(f.Action("mnuZoom", 2)->isChecked());
  EXPECT_EQ(f.frame->Bars().MenuEntry(QStringLiteral("Zoomin"))->text(), QStringLiteral("> Zoom&In (50)"));
  EXPECT_EQ(f.frame->Bars().MenuEntry(QStringLiteral("Defaultzoom"))->text(), QStringLiteral("&Default"));
  // The toolbar's zoom out: 15, while its text says 10.
  f.frame->Bars().MenuEntry(QStringLiteral("Zoomout"))->trigger();
  QApplication::processEvents();
  EXPECT_EQ(f.Logic().View().Zoom(), 15);
  EXPECT_EQ(f.frame->Bars().MenuEntry(QStringLiteral("Zoomout"))->text(), QStringLiteral("> Zoom&Out (10)"));
  EXPECT_TRUE(f.Action("mnuZoom", 1)->isChecked());
  // Custom zoom asks, and a value out of range is refused with its box.
  f.input.Answer("200.1");
  f.Trigger("mnuZoom", 4);
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Input out of range (5-200)!");
  f.input.Answer("200");
  f.Trigger("mnuZoom", 4);
  EXPECT_EQ(f.Logic().View().Zoom(), 200);
  EXPECT_EQ(f.frame->Bars().MenuEntry(QStringLiteral("Finezoom"))->text(), QStringLiteral("> &Custom (200)"));
  EXPECT_EQ(f.input.AskedBoxes()[0].title, "Zooming");
  EXPECT_EQ(f.input.AskedBoxes()[0].prompt, "Select zooming factor in range (5-200).");
}

TEST(FrmMain, ActivatingAWindowShowsItsOwnZoomTypeAndMoves) {
  FrameFixture f;
  f.Start();
  f.Trigger("mnuZoom", 0);
  f.Trigger("mnuftype", 2);
  f.Trigger("mnuFile", 0);  // Graph 2 at zoom 30, Cartesian
  EXPECT_EQ(f.Panel(2), QStringLiteral("Zoom: 30"));
  EXPECT_TRUE(f.Action("mnuftype", 0)->isChecked());
  EXPECT_EQ(f.frame->Bars().MenuEntry(QStringLiteral("Defaultzoom"))->text(),
            QStringLiteral("> Default (30)"));
  f.frame->Activate(f.frame->GraphWindows()[0]);
  QApplication::processEvents();
  EXPECT_EQ(f.Panel(2), QStringLiteral("Zoom: 50"));
  EXPECT_TRUE(f.Action("mnuftype", 2)->isChecked());
  EXPECT_FALSE(f.Action("mnuftype", 0)->isChecked());
  EXPECT_EQ(f.frame->Bars().MenuEntry(QStringLiteral("Zoomin"))->text(), QStringLiteral("> Zoom&In (50)"));
  EXPECT_EQ(f.Panel(1), QStringLiteral("R (K) = "));
}

TEST(FrmMain, MovesAskAndShowTheirStatusText) {
  FrameFixture f;
  f.Start();
  f.input.Answer("2");
  f.frame->Bars().MenuEntry(QStringLiteral("Right"))->trigger();
  QApplication::processEvents();
  EXPECT_EQ(f.input.AskedBoxes().back().title, "Moving Right");
  EXPECT_EQ(f.input.AskedBoxes().back().prompt, "Enter value for moving center of plotting area.");
  EXPECT_EQ(f.input.AskedBoxes().back().defaultText, "1");
  EXPECT_EQ(f.Panel(3), QStringLiteral("Moved: R: 2"));
  f.input.Answer("1");
  f.Trigger("mnuMove", 2);  // &Up...
  EXPECT_EQ(f.Panel(3), QStringLiteral("Moved: R: 2 Up: 1"));
  f.Trigger("mnuMove", 4);  // &Center
  EXPECT_EQ(f.Panel(3), QStringLiteral("Moved:"));
  EXPECT_EQ(f.Logic().View().MoveX(), 0);
}

TEST(FrmMain, ExamplesLoadIntoTheActiveWindowAndDraw) {
  struct Case {
    const char* array;
    int index;
    int type;
    std::string y;
    double zoom;
  };
  const Case cases[] = {
      {"mnuComon", 5, graph::kCartesian, "X/2+SinX", 30},           // caption is the function
      {"mnuPred2", 16, graph::kCartesian, "Blanc(x)", 177},         // Blancmange
      {"mnupf1", 11, graph::kParametric, "4*SinK-2*Sin(4*K)", 30},  // Epicycloid
      {"mnuPolar", 13, graph::kPolar, "StefK*StefK-10", 15},        // Stef
  };
  for (const auto& c : cases) {
    FrameFixture f;
    f.Start();
    f.Trigger(c.array, c.index);
    EXPECT_EQ(f.Logic().Boxes().optFunkcije(), c.type) << c.array;
    EXPECT_EQ(f.Logic().Boxes().txtY().Text, c.y) << c.array;
    EXPECT_EQ(f.Active().txtY()->currentText().toStdString(), c.y) << c.array;
    EXPECT_EQ(f.Logic().State().KolkoFunkc(), 1) << c.array;
    EXPECT_EQ(f.Logic().View().Zoom(), c.zoom) << c.array;
    EXPECT_TRUE(f.Action("mnuftype", c.type - 1)->isChecked()) << c.array;
    EXPECT_TRUE(f.messages.Boxes().empty()) << c.array;
  }
}

TEST(FrmMain, ClearGridWithAutoRedrawOnRedrawsTheFunctionsWithoutAQuestion) {
  FrameFixture f;
  f.Start();
  f.TypeAndEnter(QStringLiteral("SinX"));
  f.Trigger("mnuclearall");
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_EQ(f.Logic().State().KolkoFunkc(), 1);  // drawn again
  // The toolbar's ClearG is the same command.
  f.frame->Bars().Button(QStringLiteral("ClearG"))->click();
  QApplication::processEvents();
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_EQ(f.Logic().State().KolkoFunkc(), 1);
}

TEST(FrmMain, ClearGridWithAutoRedrawOffAsksFirst) {
  FrameFixture f;
  f.settings->Store("Grid", "Autored", "0");
  f.Start();
  f.TypeAndEnter(QStringLiteral("SinX"));
  f.messages.Answer(MsgResult::Cancel);
  f.Trigger("mnuclearall");
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Your current graph(s) will be erased.\r\nContinue?");
  EXPECT_EQ(f.messages.Boxes()[0].title, "Clear");
  EXPECT_EQ(f.messages.Boxes()[0].buttons, MsgButtons::OkCancel);
  EXPECT_EQ(f.Logic().State().KolkoFunkc(), 1);
  f.messages.Answer(MsgResult::Ok);
  f.Trigger("mnuclearall");
  EXPECT_EQ(f.messages.Boxes().size(), 2u);
}

TEST(FrmMain, PlottingOptionsResetThenApplyAsksForTheErase) {
  FrameFixture f;
  f.Start();
  f.TypeAndEnter(QStringLiteral("SinX"));
  f.Trigger("mnuOptions");
  auto* options = QApplication::activeModalWidget() != nullptr
                      ? qobject_cast<graph_qt::FrmGridOpt*>(QApplication::activeModalWidget())
                      : f.frame->findChild<graph_qt::FrmGridOpt*>();
  if (options == nullptr) {
    for (QWidget* w : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<graph_qt::FrmGridOpt*>(w)) options = dialog;
    }
  }
  ASSERT_NE(options, nullptr);
  EXPECT_EQ(options->windowTitle(), QStringLiteral("Plotting Options"));
  options->Command3()->click();  // &Reset: AutoRedraw off among the rest
  f.messages.Answer(MsgResult::Ok);
  options->Command1()->click();  // &Apply
  QApplication::processEvents();
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text,
            "AutoRedraw options not selected. Your current graphs will be erased.\r\nContinue?");
  EXPECT_EQ(f.messages.Boxes()[0].title, "Plotting Options");
  EXPECT_EQ(f.settings->Query("Grid", "Autored"), "0");
  if (options->isVisible()) options->close();
}

}  // namespace
}  // namespace velmora::app
