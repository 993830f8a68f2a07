// Whole curves drawn on the Qt image surface leave no breaks: every visible
// segment the sampling loop draws is a chain of 8-connected pixels from the
// pixel of its start to the pixel of its end.
#include <gtest/gtest.h>

#include <cmath>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "expr/formulacontrol.h"
#include "graph/graphwindow.h"
#include "graph/qt/headlessgui.h"
#include "graph/qt/qimagesurface.h"
#include "platform/memorysettingsstore.h"
#include "platform/settingskeys.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::graph_qt {

namespace keys = platform::keys;
namespace {

constexpr graph::Colour kCurve = 0x0000FF;  // pure red: neither grid, axes nor paper

class PassLog final : public graph::LoopObserver {
 public:
  void Pass(const graph::LoopPass& pass) override { passes.push_back(pass); }
  std::vector<graph::LoopPass> passes;
};

// The pixel a coordinate falls in: the nearest pixel centre.
int PixelOf(double v) { return static_cast<int>(std::floor(v + 0.5)); }

struct Segment {
  double x1, y1, x2, y2;
};

// The visible segments of a draw, from the loop's passes: a line pass drawn
// with the solid pen the pass before left, from the current point.
std::vector<Segment> VisibleSegments(const std::vector<graph::LoopPass>& passes) {
  std::vector<Segment> out;
  bool haveCurrent = false;
  double cx = 0;
  double cy = 0;
  int style = graph::kSolid;
  for (const auto& pass : passes) {
    if (pass.action == graph::PassAction::Line && haveCurrent && style == graph::kSolid)
      out.push_back({cx, cy, pass.Xp, pass.Yp});
    if (pass.action != graph::PassAction::Skip) {
      cx = pass.Xp;
      cy = pass.Yp;
      haveCurrent = true;
    }
    style = pass.drawStyle;
  }
  return out;
}

// Whether the curve's pixels join the two end pixels of a segment, walking
// 8-connected pixels of the curve colour inside the segment's box.
bool Connected(const QImage& image, const Segment& s) {
  const int ax = PixelOf(s.x1);
  const int ay = PixelOf(s.y1);
  const int bx = PixelOf(s.x2);
  const int by = PixelOf(s.y2);
  const int left = std::max(0, std::min(ax, bx) - 1);
  const int right = std::min(image.width() - 1, std::max(ax, bx) + 1);
  const int top = std::max(0, std::min(ay, by) - 1);
  const int bottom = std::min(image.height() - 1, std::max(ay, by) + 1);
  const auto isCurve = [&](int x, int y) { return (image.pixel(x, y) & 0xFFFFFF) == 0xFF0000u; };
  if (!isCurve(ax, ay) || !isCurve(bx, by)) return false;
  const int w = right - left + 1;
  std::vector<char> seen(static_cast<std::size_t>(w * (bottom - top + 1)), 0);
  std::deque<std::pair<int, int>> todo{{ax, ay}};
  seen[static_cast<std::size_t>((ay - top) * w + (ax - left))] = 1;
  while (!todo.empty()) {
    const auto [x, y] = todo.front();
    todo.pop_front();
    if (x == bx && y == by) return true;
    for (int dy = -1; dy <= 1; ++dy) {
      for (int dx = -1; dx <= 1; ++dx) {
        const int nx = x + dx;
        const int ny = y + dy;
        if (nx < left || nx > right || ny < top || ny > bottom || !isCurve(nx, ny)) continue;
        auto& mark = seen[static_cast<std::size_t>((ny - top) * w + (nx - left))];
        if (mark) continue;
        mark = 1;
        todo.emplace_back(nx, ny);
      }
    }
  }
  return false;
}

struct CurveCase {
  const char* y;
  const char* why;
};

void PrintTo(const CurveCase& c, std::ostream* os) { *os << c.y; }

class CurveContinuity : public ::testing::TestWithParam<CurveCase> {};

TEST_P(CurveContinuity, EveryDrawnSegmentLeavesConnectedPixels) {
  HeadlessGui gui;
  QImageSurface surface(600, 400);
  platform::MemorySettingsStore settings;
  platform::SetRegValue(settings, keys::kBoje, keys::boje::kGrafik, std::to_string(kCurve));
  testing::RecordingMessageBox messages;
  testing::ScriptedInputBox input;
  PassLog log;
  graph::GraphServices services;
  services.settings = &settings;
  services.messages = &messages;
  services.input = &input;
  services.evaluator1 = expr::MakeFormulaControl();
  services.observer = &log;
  graph::GraphWindow window(surface, std::move(services));
  window.SetFunctionTexts(GetParam().y, "K");
  window.CrtajFJU();
  const auto segments = VisibleSegments(log.passes);
  ASSERT_GT(segments.size(), 50u) << GetParam().y;
  const QImage image = surface.Image();
  int broken = 0;
  for (const auto& s : segments) {
    const bool inside = s.x1 >= 0 && s.x2 >= 0 && s.y1 >= 0 && s.y2 >= 0 && s.x1 < 599.5 && s.x2 < 599.5 &&
                        s.y1 < 399.5 && s.y2 < 399.5;
    if (inside && !Connected(image, s)) {
      if (++broken <= 3)
        ADD_FAILURE() << GetParam().y << ": break between (" << s.x1 << ", " << s.y1 << ") and (" << s.x2
                      << ", " << s.y2 << ")";
    }
  }
  EXPECT_EQ(broken, 0) << GetParam().why;
}

INSTANTIATE_TEST_SUITE_P(
    Curves, CurveContinuity,
    ::testing::Values(CurveCase{"2*SinX",
                                "segments about one pixel long in both directions, the reported break"},
                      CurveCase{"Sqr(X^2-1)-3", "a slope near 1 over a long stretch: the dotted look"},
                      CurveCase{"X^2/10", "slopes from steep to flat and back"},
                      CurveCase{"5*CosX", "long steep segments near the zero crossings"},
                      CurveCase{"X/3", "a shallow straight line: runs of samples within one pixel row"},
                      CurveCase{"TanX", "steep joins across the poles"}));

}  // namespace
}  // namespace velmora::graph_qt
