// The graph window's commands through its widgets: Clear Grid, colours,
// line width, the readout under the mouse, Sav1, copy, Swap, resize.
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QTimer>

#include "platform/settingskeys.h"
#include "tests/graph/qt/frmfuncfixture.h"

namespace velmora::testing {

namespace keys = platform::keys;
namespace {

using platform::MsgResult;
using CommandsTest = FrmFuncTest;

TEST_F(CommandsTest, ClearGridWithAutoRedrawOnRedrawsWithoutAsking) {
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  ASSERT_GT(CountPixels(Picture(), kGridColour), 1000);
  window->ClearGrid();
  EXPECT_TRUE(messages.Boxes().empty());
  const QImage picture = Picture();
  EXPECT_EQ(CountPixels(picture, kGridColour), 0) << "the grid is gone";
  EXPECT_GT(CountPixels(picture, kGraphColour), 500) << "the function came back";
  EXPECT_GT(frame.updates, 0);
}

TEST_F(CommandsTest, ClearGridWithAutoRedrawOffAsksFirst) {
  settings.Store(keys::kGrid, keys::grid::kAutored, "0");
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  const QImage drawn = Picture();
  messages.Answer(MsgResult::Cancel);
  window->ClearGrid();
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Your current graph(s) will be erased.\r\nContinue?");
  EXPECT_EQ(messages.Boxes()[0].title, "Clear");
  EXPECT_EQ(Picture(), drawn) << "Cancel leaves the picture";
  messages.Answer(MsgResult::Ok);
  window->ClearGrid();
  const QImage cleared = Picture();
  EXPECT_EQ(CountPixels(cleared, kGraphColour), 0);
  EXPECT_EQ(CountPixels(cleared, kBackColour), 600 * 400);
}

TEST_F(CommandsTest, ABackgroundColourFromTheDialog) {
  Make();
  colours.answers.push_back(0x00FF00);
  window->ColourMenu(0);
  ASSERT_EQ(colours.opened.size(), 1u);
  EXPECT_EQ(colours.opened[0], kBackColour);
  EXPECT_EQ(Picture().pixel(2, 2) & 0xFFFFFF, Rgb(0x00FF00));
  EXPECT_EQ(settings.Query(keys::kBoje, keys::boje::kPozadina),
            std::optional<std::string>(std::to_string(0x00FF00)));
}

TEST_F(CommandsTest, TheGraphColourDrawsTheNextCurve) {
  Make();
  colours.answers.push_back(0x0000FF);  // red
  EXPECT_TRUE(window->mnuBojeGraph());
  window->Sacboje();
  TypeAndEnter(QStringLiteral("X/2"));
  EXPECT_GT(CountPixels(Picture(), 0x0000FF), 500);
  EXPECT_EQ(CountPixels(Picture(), kGraphColour), 0);
}

TEST_F(CommandsTest, LineWidthFromTheInputBox) {
  Make();
  input.Answer(std::string("3"));
  window->mnuPlotWidth();
  ASSERT_EQ(input.AskedBoxes().size(), 1u);
  EXPECT_EQ(input.AskedBoxes()[0].title, "Graph-Line Width");
  EXPECT_EQ(input.AskedBoxes()[0].prompt, "Enter value for Graph-Line Width (e.g. 1, 1.6 ...).");
  EXPECT_EQ(input.AskedBoxes()[0].defaultText, "1");
  EXPECT_DOUBLE_EQ(Logic().Pen().GraphLineWidth(), 3);
  TypeAndEnter(QStringLiteral("1"));
  // A level line three pixels thick at row 170.
  const QImage picture = Picture();
  int thick = 0;
  for (int y = 160; y < 180; ++y)
    if ((picture.pixel(100, y) & 0xFFFFFF) == Rgb(kGraphColour)) ++thick;
  EXPECT_EQ(thick, 3);
}

TEST_F(CommandsTest, TheReadoutFollowsTheMouse) {
  Make();
  QTest::mouseMove(window->pDraw(), QPoint(330, 185));
  EXPECT_EQ(window->LblChart()->text(), QStringLiteral("   x = 1, y = 0.5"));
  QTest::mouseMove(window->pDraw(), QPoint(240, 260));
  EXPECT_EQ(window->LblChart()->text(), QStringLiteral("   x = -2, y = -2"));
}

TEST_F(CommandsTest, TheTraceIsAnOverlayThatNeverTouchesThePicture) {
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  const QImage before = Picture();
  QTest::mousePress(window->pDraw(), Qt::RightButton, {}, QPoint(330, 200));
  EXPECT_EQ(window->LblChart()->text(), QStringLiteral("    x = 1 [1], y (x) = 0.84147"));
  EXPECT_TRUE(Logic().LineY().Visible);
  EXPECT_TRUE(Logic().Line1().Visible);
  EXPECT_TRUE(Logic().Line2().Visible);
  // On screen the cross-hair shows; in the picture it does not.
  const QImage screen = window->pDraw()->grab().toImage();
  EXPECT_EQ(screen.pixel(330, 20) & 0xFFFFFF, graph_qt::PDrawView::CrossHairColour().rgb() & 0xFFFFFF);
  EXPECT_EQ(Picture(), before);
  QTest::mouseRelease(window->pDraw(), Qt::RightButton, {}, QPoint(330, 200));
  EXPECT_FALSE(Logic().LineY().Visible);
  EXPECT_FALSE(Logic().Line2().Visible);
  const QImage after = window->pDraw()->grab().toImage();
  EXPECT_EQ(after.pixel(330, 20) & 0xFFFFFF, before.pixel(330, 20) & 0xFFFFFF);
}

TEST_F(CommandsTest, Sav1WritesABitmapAndAsksBeforeReplacing) {
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  const QString path = dir.filePath(QStringLiteral("graph.bmp"));
  files.answers.push_back(path.toStdString());
  ASSERT_TRUE(window->Sav1());
  QImageReader reader(path);
  EXPECT_EQ(reader.format(), QByteArray("bmp"));
  const QImage saved = reader.read();
  EXPECT_EQ(saved.size(), QSize(600, 400));
  EXPECT_EQ(saved.convertToFormat(QImage::Format_RGB32), Picture().convertToFormat(QImage::Format_RGB32));
  // Again onto the same file: No keeps it, Yes replaces it.
  window->ClearScreen();
  files.answers.push_back(path.toStdString());
  messages.Answer(MsgResult::No);
  EXPECT_FALSE(window->Sav1());
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, path.toStdString() + " already exists.\r\nDo you want to replace it?");
  EXPECT_EQ(messages.Boxes()[0].title, "Save As");
  EXPECT_EQ(QImage(path).convertToFormat(QImage::Format_RGB32), saved.convertToFormat(QImage::Format_RGB32));
  files.answers.push_back(path.toStdString());
  messages.Answer(MsgResult::Yes);
  EXPECT_TRUE(window->Sav1());
  EXPECT_EQ(QImage(path).convertToFormat(QImage::Format_RGB32),
            Picture().convertToFormat(QImage::Format_RGB32));
  // Written through a temporary file that was renamed: nothing else is left.
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files, QDir::Name),
            (QStringList{QStringLiteral("GraphLog.txt"), QStringLiteral("graph.bmp")}));
}

TEST_F(CommandsTest, Sav1IntoAMissingFolderSaysSo) {
  Make();
  const QString path = dir.filePath(QStringLiteral("no/such/folder/graph.bmp"));
  files.answers.push_back(path.toStdString());
  EXPECT_FALSE(window->Sav1());
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, path.toStdString() + "\r\nThe picture could not be saved.");
}

TEST_F(CommandsTest, CopyGraphPutsThePictureOnTheClipboard) {
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  window->Kopirajgraf();
  const QImage copied = QGuiApplication::clipboard()->image();
  EXPECT_EQ(copied.convertToFormat(QImage::Format_RGB32), Picture().convertToFormat(QImage::Format_RGB32));
  // With the frame option the copy has a border; the picture does not.
  settings.Store(keys::kGrid, keys::grid::kRam, "1");
  window->Kopirajgraf();
  const QImage framed = QGuiApplication::clipboard()->image();
  EXPECT_EQ(framed.pixel(0, 100) & 0xFFFFFF, 0u);
  EXPECT_EQ(framed.pixel(599, 5) & 0xFFFFFF, 0u);
  EXPECT_EQ(Picture().pixel(599, 5) & 0xFFFFFF, Rgb(kBackColour));
}

TEST_F(CommandsTest, SwapYXExchangesTheBoxes) {
  Make();
  Logic().optFunk(2);
  Logic().SettxtY("SinK");
  Logic().SettxtX("CosK");
  window->SyncFromLogic();
  window->SwapYX();
  EXPECT_EQ(window->txtY()->currentText(), QStringLiteral("CosK"));
  EXPECT_EQ(window->txtX()->currentText(), QStringLiteral("SinK"));
}

TEST_F(CommandsTest, ClearAllAsksAndEmptiesTheLists) {
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  messages.Answer(MsgResult::Yes);
  window->ClearAll();
  EXPECT_EQ(messages.Boxes()[0].text, "Clear graphs and equation lists?");
  EXPECT_EQ(window->txtY()->count(), 0);
  EXPECT_EQ(window->txtY()->currentText(), QString());
  EXPECT_EQ(CountPixels(Picture(), kGraphColour), 0);
  EXPECT_EQ(window->lblPointtab()->text(), QStringLiteral("Value Tables:"));
}

TEST_F(CommandsTest, ClearHistoryEmptiesTheLogAndTheBox) {
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  ASSERT_FALSE(window->rtb()->toPlainText().isEmpty());
  messages.Answer(MsgResult::Yes);
  window->mnuclhistory();
  EXPECT_TRUE(window->rtb()->toPlainText().isEmpty());
  EXPECT_TRUE(history->ReadAll().empty());
}

TEST_F(CommandsTest, AResizeKeepsTheOriginInTheMiddleAndRedraws) {
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  window->pDraw()->setFixedSize(800, 500);
  QApplication::processEvents();
  EXPECT_DOUBLE_EQ(Logic().View().CenterX(), 400);
  EXPECT_DOUBLE_EQ(Logic().View().CenterY(), 250);
  EXPECT_EQ(Picture().size(), QSize(800, 500));
  window->SettleSize();
  // Painted again at the new size: the curve reaches the new right edge.
  EXPECT_GE(LastColumnOf(Picture(), kGraphColour), 795);
  // The readout agrees with the new middle.
  QTest::mouseMove(window->pDraw(), QPoint(430, 235));
  EXPECT_EQ(window->LblChart()->text(), QStringLiteral("   x = 1, y = 0.5"));
}

TEST_F(CommandsTest, AnEmptyWindowFollowsItsSizeAtOnce) {
  Make();
  window->pDraw()->setFixedSize(700, 500);
  QApplication::processEvents();
  const QImage picture = Picture();
  EXPECT_EQ(picture.size(), QSize(700, 500));
  // The paper reaches the new edges: the X axis through the middle row.
  EXPECT_EQ(picture.pixel(2, 250) & 0xFFFFFF, 0u);
  EXPECT_EQ(picture.pixel(697, 250) & 0xFFFFFF, 0u);
}

TEST_F(CommandsTest, WithAutoRedrawOffAResizeKeepsTheCurves) {
  settings.Store(keys::kGrid, keys::grid::kAutored, "0");
  Make();
  TypeAndEnter(QStringLiteral("1"));
  window->pDraw()->setFixedSize(800, 600);
  QApplication::processEvents();
  window->SettleSize();
  // The level line y = 1 moved with the origin (300, 200) -> (400, 300).
  EXPECT_EQ(Picture().pixel(400, 270) & 0xFFFFFF, Rgb(kGraphColour));
  EXPECT_EQ(Logic().State().KolkoFunkc(), 1);
  EXPECT_TRUE(messages.Boxes().empty());
}

TEST_F(CommandsTest, AFunctionNameFromC1GoesToTheCaret) {
  Make();
  QTest::keyClicks(window->txtY(), QStringLiteral("2*"));
  const int sin = window->C1()->findText(QStringLiteral("Sin"));
  ASSERT_GE(sin, 0);
  window->C1()->setCurrentIndex(sin);
  emit window->C1()->activated(sin);
  EXPECT_EQ(window->txtY()->currentText(), QStringLiteral("2*Sin"));
  EXPECT_EQ(Logic().Boxes().txtY().Text, "2*Sin");
  EXPECT_EQ(window->C1()->count(), 40);
}

TEST_F(CommandsTest, AClosingWindowTellsTheFrame) {
  Make();
  window->close();
  ASSERT_EQ(frame.closing.size(), 1u);
  EXPECT_EQ(frame.closing[0], window.get());
}

TEST_F(CommandsTest, ACloseDuringADrawWaitsForTheDrawToStop) {
  Make();
  QTimer::singleShot(0, window.get(), [&] { window->close(); });
  TypeAndEnter(QStringLiteral("X/2"));
  EXPECT_LT(LastColumnOf(Picture(), kGraphColour), 100) << "the draw stopped";
  EXPECT_TRUE(frame.closing.empty());
  QApplication::processEvents();
  EXPECT_EQ(frame.closing.size(), 1u);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(CommandsTest, ASubWindowClosedDuringADrawClosesWhenTheDrawStops) {
  graph_qt::FrmFuncServices services;
  services.settings = &settings;
  services.messages = &messages;
  services.input = &input;
  services.frame = &frame;
  QMdiArea area;
  auto* child = new graph_qt::FrmFunc(services);
  QMdiSubWindow* sub = area.addSubWindow(child);
  sub->setAttribute(Qt::WA_DeleteOnClose);
  area.resize(900, 700);
  area.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
  QPointer<QMdiSubWindow> alive(sub);
  QTimer::singleShot(0, sub, [&] { sub->close(); });
  child->Logic().SettxtY("X/2");
  child->DrawFunction();
  EXPECT_TRUE(frame.closing.empty()) << "the window waited for the draw";
  ASSERT_FALSE(alive.isNull());
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(frame.closing.size(), 1u);
  EXPECT_TRUE(alive.isNull()) << "the sub-window closed and was deleted";
}

}  // namespace
}  // namespace velmora::testing
