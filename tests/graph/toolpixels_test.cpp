// The graph window's fills, average band and burnt-in labels as pixels of
// the Qt image surface.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <utility>

#include "expr/formulacontrol.h"
#include "graph/graphwindow.h"
#include "graph/qt/headlessgui.h"
#include "graph/qt/labelimage.h"
#include "graph/qt/qimagesurface.h"
#include "platform/memorysettingsstore.h"
#include "platform/settingskeys.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::graph_qt {
namespace {

namespace keys = platform::keys;

constexpr graph::Colour kCurve = 0xFF0000;  // pure blue: neither grid, axes nor paper
constexpr graph::Colour kBand = 0x00FF00;   // pure green
constexpr graph::Colour kPaper = 0xF5F5F5;
// Where the label boxes go: the curve Y = X (pixel row 500 - column at zoom
// 30 on 600 x 400) runs through a box of about 30 x 13 pixels here.
constexpr int kBoxLeft = 280;
constexpr int kBoxTop = 210;

class ToolPixels : public ::testing::Test {
 protected:
  ToolPixels() {
    platform::SetRegValue(settings_, keys::kBoje, keys::boje::kGrafik, std::to_string(kCurve));
    platform::SetRegValue(settings_, keys::kGrid, keys::grid::kAxes, "1");  // no grid lines in the way
    graph::GraphServices services;
    services.settings = &settings_;
    services.messages = &messages_;
    services.input = &input_;
    services.evaluator1 = expr::MakeFormulaControl();
    window_ = std::make_unique<graph::GraphWindow>(surface_, std::move(services));
  }

  QColor At(double x, double y) {
    return surface_.Image().pixelColor(static_cast<int>(x), static_cast<int>(y));
  }
  // The curve's and the blue text's pixels where the label box stands.
  std::pair<int, int> CountInBox(const QImage& box) {
    int curve = 0;
    int text = 0;
    for (int y = 0; y < box.height(); ++y) {
      for (int x = 0; x < box.width(); ++x) {
        const QColor c = At(kBoxLeft + x, kBoxTop + y);
        curve += c == ToQColor(kCurve);
        text += c == ToQColor(0x0000FF);
      }
    }
    return {curve, text};
  }
  // The pixel of a user point.
  double Col(double x) const { return window_->View().CenterX() + x * window_->View().Zoom(); }
  double Row(double y) const { return window_->View().CenterY() - y * window_->View().Zoom(); }

  HeadlessGui gui_;
  QImageSurface surface_{600, 400};
  platform::MemorySettingsStore settings_;
  testing::RecordingMessageBox messages_;
  testing::ScriptedInputBox input_;
  std::unique_ptr<graph::GraphWindow> window_;
};

TEST_F(ToolPixels, TheIntegralFillsBetweenTheCurveAndTheAxisInsideTheRangeOnly) {
  window_->SetFunctionTexts("2", "K");
  window_->ApplyIntegral(
      {.xMin = "1", .xMax = "3", .drawFunction = true, .drawAverage = false, .average = ""});
  EXPECT_EQ(At(Col(2), Row(1)), ToQColor(kCurve));    // under the curve, in the range
  EXPECT_EQ(At(Col(2), Row(-1)), ToQColor(kPaper));   // below the axis: nothing
  EXPECT_EQ(At(Col(4), Row(1)), ToQColor(kPaper));    // beyond XMax
  EXPECT_EQ(At(Col(0.5), Row(1)), ToQColor(kPaper));  // before XMin
  EXPECT_EQ(At(Col(5), Row(2)), ToQColor(kCurve));    // the curve itself outside the range
}

TEST_F(ToolPixels, WithTheCurveHiddenOnlyTheFillShows) {
  window_->SetFunctionTexts("2", "K");
  window_->ApplyIntegral(
      {.xMin = "1", .xMax = "3", .drawFunction = false, .drawAverage = false, .average = ""});
  EXPECT_EQ(At(Col(2), Row(1)), ToQColor(kCurve));
  EXPECT_EQ(At(Col(5), Row(2)), ToQColor(kPaper));
  EXPECT_EQ(At(Col(-5), Row(2)), ToQColor(kPaper));
}

TEST_F(ToolPixels, TheAverageBandIsItsOwnColourUpToItsValue) {
  window_->SetAvBoja(kBand);
  window_->SetFunctionTexts("3", "K");
  window_->ApplyIntegral(
      {.xMin = "1", .xMax = "3", .drawFunction = true, .drawAverage = true, .average = "1"});
  EXPECT_EQ(At(Col(2), Row(0.5)), ToQColor(kBand));   // inside the band
  EXPECT_EQ(At(Col(2), Row(2)), ToQColor(kCurve));    // above the band, under the curve
  EXPECT_EQ(At(Col(4), Row(0.5)), ToQColor(kPaper));  // beyond the range
}

TEST_F(ToolPixels, TheStrokesKeepTheGraphLineWidth) {
  window_->SetGraphLineWidth(3);
  window_->SetFunctionTexts("2", "K");
  window_->ApplyIntegral(
      {.xMin = "1", .xMax = "2", .drawFunction = false, .drawAverage = false, .average = ""});
  // The last stroke is at most at x = 2; three pixels wide it reaches the
  // column after, which a stroke one pixel wide leaves as paper.
  EXPECT_EQ(At(Col(2) + 1, Row(1)), ToQColor(kCurve));
  EXPECT_EQ(At(Col(2) + 3, Row(1)), ToQColor(kPaper));
}

TEST_F(ToolPixels, AnOpaqueLabelCoversThePlotWithItsBox) {
  window_->SetFunctionTexts("K", "K");
  window_->CrtajFJU();
  graph::LabelStyle style;
  style.text = "Label";
  style.colour = 0x0000FF;
  ASSERT_TRUE(window_->cmdLabelL(style, kBoxLeft, kBoxTop));
  window_->daLabele();
  EXPECT_FALSE(window_->picMCRBox().Visible());
  const QImage box = RenderLabel(style, kPaper);
  // The curve Y = X crosses the box: under an opaque box only the box shows.
  const auto [curvePixels, textPixels] = CountInBox(box);
  EXPECT_EQ(curvePixels, 0);
  EXPECT_GT(textPixels, 0);
}

TEST_F(ToolPixels, ATransparentLabelLetsThePlotShowThrough) {
  window_->SetFunctionTexts("K", "K");
  window_->CrtajFJU();
  graph::LabelStyle style;
  style.text = "Label";
  style.colour = 0x0000FF;
  style.transparent = true;
  ASSERT_TRUE(window_->cmdLabelL(style, kBoxLeft, kBoxTop));
  window_->daLabele();
  const QImage box = RenderLabel(style, kPaper);
  const auto [curvePixels, textPixels] = CountInBox(box);
  EXPECT_GT(curvePixels, 0);
  EXPECT_GT(textPixels, 0);
}

TEST(LabelImage, ANinetyDegreeLabelStandsUpright) {
  HeadlessGui gui;
  graph::LabelStyle style;
  style.text = "A long label";
  const QImage flat = RenderLabel(style, kPaper);
  style.angle = 90;
  const QImage upright = RenderLabel(style, kPaper);
  EXPECT_GT(flat.width(), flat.height() * 3);
  EXPECT_GT(upright.height(), upright.width() * 3);
  EXPECT_NEAR(upright.height(), flat.width(), 2);
  style.angle = -180;
  const QImage turned = RenderLabel(style, kPaper);
  EXPECT_NEAR(turned.width(), flat.width(), 2);
}

}  // namespace
}  // namespace velmora::graph_qt
