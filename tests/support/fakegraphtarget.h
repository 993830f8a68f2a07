#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "graph/graphtooltarget.h"

namespace velmora::testing {

// A graph window as a tool window sees it: what it reports is set by the
// test, and every draw it is asked for is recorded (and refused while
// `drawing` is set, as a window refuses during a draw).
class FakeGraphTarget final : public graph::GraphToolTarget {
 public:
  struct DrawRequest {
    int type;
    std::string y;
    std::string x;
    bool operator==(const DrawRequest&) const = default;
  };

  std::string FunctionYText() const override { return y; }
  std::string FunctionXText() const override { return x; }
  int FunctionTypeIndex() const override { return type; }
  std::vector<std::string> DrawnFunctions() const override { return drawn; }
  std::vector<std::string> DrawnXTexts() const override { return drawnX; }
  std::vector<std::string> DrawnParametricY() const override { return drawnParametricY; }
  graph::ViewBounds VisibleBounds() const override { return bounds; }
  double ZoomFactor() const override { return zoom; }
  bool IsDrawing() const override { return drawing; }
  bool DrawFunction(int drawType, std::string_view drawY, std::string_view drawX) override {
    if (drawing || drawType < 1 || drawType > 3) return false;
    requests.push_back({drawType, std::string(drawY), std::string(drawX)});
    return true;
  }
  void SetFunctionYText(std::string_view text) override { y = std::string(text); }
  bool DrawCurve(const std::vector<graph::CurvePoint>& points, std::uint32_t colour) override {
    if (drawing) return false;
    curves.push_back({points, colour});
    return true;
  }

  std::string y;
  std::string x = "K";
  int type = 1;
  std::vector<std::string> drawn;
  std::vector<std::string> drawnX;
  std::vector<std::string> drawnParametricY;
  graph::ViewBounds bounds{-10, 10, 6.667, -6.667};
  double zoom = 30;
  bool drawing = false;
  std::vector<DrawRequest> requests;
  struct Curve {
    std::vector<graph::CurvePoint> points;
    std::uint32_t colour;
  };
  std::vector<Curve> curves;
};

}  // namespace velmora::testing
