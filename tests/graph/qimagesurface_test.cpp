#include "graph/qt/qimagesurface.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QTemporaryDir>

#include "graph/graphpaper.h"
#include "graph/qt/headlessgui.h"
#include "platform/settingskeys.h"
#include "tests/support/fakesettingsstore.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::graph_qt {

namespace keys = platform::keys;
namespace {

using graph::Colour;

QRgb Pixel(QImageSurface& s, int x, int y) { return s.Image().pixel(x, y) & 0xFFFFFF; }
QRgb Rgb(Colour c) { return ToQColor(c).rgb() & 0xFFFFFF; }

TEST(QImageSurface, ClearFillsWithTheBackColour) {
  QImageSurface s(60, 40);
  s.SetBackColor(0xF5F5F5);
  s.Clear();
  EXPECT_EQ(Pixel(s, 0, 0), Rgb(0xF5F5F5));
  EXPECT_EQ(Pixel(s, 59, 39), Rgb(0xF5F5F5));
}

TEST(QImageSurface, ALineIsPaintedInItsColourWithoutSmoothing) {
  QImageSurface s(60, 40);
  s.SetBackColor(0xFFFFFF);
  s.Clear();
  s.Line(10, 5, 10, 30, 0x0000FF);  // red, blue in the high byte
  EXPECT_EQ(Pixel(s, 10, 20), qRgb(255, 0, 0) & 0xFFFFFF);
  EXPECT_EQ(Pixel(s, 11, 20), Rgb(0xFFFFFF));
  EXPECT_EQ(Pixel(s, 9, 20), Rgb(0xFFFFFF));
}

TEST(QImageSurface, TheInvisiblePenPaintsNothingButMovesThePoint) {
  QImageSurface s(60, 40);
  s.Clear();
  s.SetDrawStyle(graph::kInvisible);
  s.Line(10, 5, 10, 30, 0);
  EXPECT_EQ(Pixel(s, 10, 20), Rgb(0xFFFFFF));
  EXPECT_EQ(s.CurrentY(), 30);
}

TEST(QImageSurface, DottedPenLeavesGaps) {
  QImageSurface s(100, 10);
  s.Clear();
  s.SetDrawStyle(graph::kDot);
  s.Line(0, 5, 99, 5, 0);
  int dark = 0;
  for (int x = 0; x < 100; ++x) dark += Pixel(s, x, 5) == 0 ? 1 : 0;
  EXPECT_GT(dark, 20);
  EXPECT_LT(dark, 80);
}

TEST(QImageSurface, TextIsPaintedHeadless) {
  QImageSurface s(80, 30);
  s.SetBackColor(0xFFFFFF);
  s.Clear();
  s.SetForeColor(0);
  s.SetCurrentX(2);
  s.SetCurrentY(2);
  s.Print("Wq8");
  int dark = 0;
  for (int y = 0; y < 30; ++y)
    for (int x = 0; x < 80; ++x) dark += qGray(s.Image().pixel(x, y)) < 128 ? 1 : 0;
  EXPECT_GT(dark, 10);
  EXPECT_GT(s.TextWidth("Wq8"), 10);
  EXPECT_GT(s.TextHeight("Wq8"), 8);
}

TEST(QImageSurface, OpaqueTextCoversWhatIsBelow) {
  QImageSurface s(80, 30);
  s.SetBackColor(0xFFFFFF);
  s.Clear();
  s.Line(0, 8, 79, 8, 0x00FF00);
  s.SetFontTransparent(false);
  s.SetCurrentX(0);
  s.SetCurrentY(0);
  s.Print("    ");
  EXPECT_EQ(Pixel(s, 2, 8), Rgb(0xFFFFFF));
}

TEST(QImageSurface, FontNamesResolve) {
  QImageSurface s(10, 10);
  s.SetFontName("MS Sans Serif");
  EXPECT_EQ(s.FontName(), "MS Sans Serif");
  s.SetFontName("Arial");
  EXPECT_EQ(s.FontName(), "Arial");
  s.SetFontName("No Such Font Velmora");
  EXPECT_NE(s.FontName(), "No Such Font Velmora");
  // The arrow fonts are the surface's own.
  s.SetFontName("Marlett");
  EXPECT_EQ(s.FontName(), "Marlett");
  s.SetFontName("Webdings");
  EXPECT_EQ(s.FontName(), "Webdings");
}

// The arrow heads of the symbol fonts, printed as the paper prints them.
struct ArrowCase {
  const char* font;
  const char* glyph;
  QPoint inside;   // a pixel the head covers, from the print position
  QPoint outside;  // one beside its point that it leaves alone
};

class SymbolArrows : public ::testing::TestWithParam<ArrowCase> {};

TEST_P(SymbolArrows, AreFilledHeadsOfTheFontSize) {
  const ArrowCase& c = GetParam();
  QImageSurface s(60, 60);
  s.SetBackColor(0xFFFFFF);
  s.Clear();
  s.SetFontName(c.font);
  s.SetFontSize(14);
  s.SetForeColor(0);
  // 14 points at 96 dots per inch: an em of 18.67 pixels, an advance of 0.68 em.
  EXPECT_NEAR(s.TextWidth(c.glyph), 12.69, 0.01);
  EXPECT_NEAR(s.TextHeight(c.glyph), 18.67, 0.01);
  s.SetCurrentX(20);
  s.SetCurrentY(20);
  s.Print(c.glyph);
  EXPECT_EQ(Pixel(s, 20 + c.inside.x(), 20 + c.inside.y()), 0u);
  EXPECT_EQ(Pixel(s, 20 + c.outside.x(), 20 + c.outside.y()), 0xFFFFFFu);
  // The cell is filled with the back colour unless the text is transparent;
  // either way the head is solid and a few pixels big.
  int dark = 0;
  for (int y = 0; y < 60; ++y)
    for (int x = 0; x < 60; ++x) dark += Pixel(s, x, y) == 0 ? 1 : 0;
  EXPECT_GT(dark, 20);
  EXPECT_LT(dark, 120);
}

INSTANTIATE_TEST_SUITE_P(Fonts, SymbolArrows,
                         ::testing::Values(
                             // Marlett "4": right; centre (8, 8), point at x + 12.5.
                             ArrowCase{"Marlett", "4", {8, 8}, {13, 4}},
                             // Marlett "5": up; centre (8, 11.2), point at y + 6.7.
                             ArrowCase{"Marlett", "5", {8, 11}, {3, 7}},
                             // Webdings draws the same heads for the same digits.
                             ArrowCase{"Webdings", "4", {8, 8}, {13, 4}},
                             ArrowCase{"Webdings", "5", {8, 11}, {3, 7}}));

TEST(QImageSurface, AssignedAxesGetArrowHeadsAndNoMessage) {
  QImageSurface s(200, 100);
  s.SetBackColor(0xFFFFFF);
  s.Clear();
  velmora::testing::FakeSettingsStore settings;
  settings.Store(keys::kGrid, keys::grid::kOzna, "1");
  settings.Store(keys::kGrid, keys::grid::kAxes, "1");
  testing::RecordingMessageBox messages;
  graph::GraphPaper paper(s, settings, messages);
  graph::PaperView view{30, 100, 50, 0xBFBFBF, 0};
  paper.DrawLines(view);
  EXPECT_TRUE(messages.Boxes().empty());
  // The right arrow head at the end of the X axis: dark above and below the
  // axis line, inside the last 13 pixels.
  EXPECT_EQ(Pixel(s, 192, 47), 0u);
  EXPECT_EQ(Pixel(s, 192, 52), 0u);
  // The up arrow head on the Y axis near the top: dark either side of it.
  EXPECT_EQ(Pixel(s, 98, 7), 0u);
  EXPECT_EQ(Pixel(s, 101, 7), 0u);
  // Away from the heads only the axes are dark.
  EXPECT_EQ(Pixel(s, 150, 45), 0xFFFFFFu);
}

TEST(QImageSurface, ThePicturePersistsAndACopyStaysAsItWas) {
  QImageSurface s(40, 40);
  s.Clear();
  s.Line(5, 0, 5, 39, 0);
  const QImage copy = s.Image();
  s.Line(20, 0, 20, 39, 0);
  EXPECT_EQ(copy.pixel(20, 10) & 0xFFFFFF, 0xFFFFFFu);
  EXPECT_EQ(Pixel(s, 5, 10), 0u);  // still there after more drawing
  EXPECT_EQ(Pixel(s, 20, 10), 0u);
}

TEST(QImageSurface, ResizeKeepsWhatFits) {
  QImageSurface s(40, 40);
  s.SetBackColor(0x00FFFF);
  s.Clear();
  s.Line(5, 0, 5, 39, 0);
  s.Resize(80, 20);
  EXPECT_EQ(s.ScaleWidth(), 80);
  EXPECT_EQ(s.Image().width(), 80);
  EXPECT_EQ(Pixel(s, 5, 10), 0u);
  EXPECT_EQ(Pixel(s, 70, 10), Rgb(0x00FFFF));
}

TEST(QImageSurface, PaperOnTheImageAndSavedAsPng) {
  QImageSurface s(600, 400);
  velmora::testing::FakeSettingsStore store;
  testing::RecordingMessageBox messages;
  graph::GraphPaper paper(s, store, messages);
  s.SetBackColor(0xF5F5F5);
  s.Clear();
  paper.DrawLines({30, 300, 200, 0xBFBFBF, 0});
  EXPECT_EQ(Pixel(s, 330, 100), Rgb(0xBFBFBF));  // a grid column
  EXPECT_EQ(Pixel(s, 300, 100), 0u);             // the Y axis
  EXPECT_EQ(Pixel(s, 315, 115), Rgb(0xF5F5F5));  // between lines
  QTemporaryDir dir;
  const QString file = dir.filePath(QStringLiteral("paper.png"));
  ASSERT_TRUE(s.SavePng(file));
  QImage back(file);
  EXPECT_EQ(back.size(), QSize(600, 400));
  EXPECT_EQ(back.pixel(300, 100) & 0xFFFFFF, 0u);
}

}  // namespace
}  // namespace velmora::graph_qt

int main(int argc, char** argv) {
  velmora::graph_qt::HeadlessGui gui;
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
