#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::graph {

// The visible part of the plane in user units: X grows to the right, Y up.
struct ViewBounds {
  double left = 0;
  double right = 0;
  double top = 0;
  double bottom = 0;
};

// A point of a curve a tool hands to the window, in user units.
struct CurvePoint {
  double x = 0;
  double y = 0;
};

// What a tool window may know of the active graph window and ask of it. A
// tool reads the boxes when it opens and asks for a curve to be drawn; it
// holds nothing of the window and reaches it only through this interface,
// so a tool is built and tested without a graph window behind it.
class GraphToolTarget {
 public:
  virtual ~GraphToolTarget() = default;

  // The texts of the function boxes as they stand: Y (or R), and X ("K"
  // outside the parametric type).
  virtual std::string FunctionYText() const = 0;
  virtual std::string FunctionXText() const = 0;
  // The function type, 1 Cartesian, 2 parametric, 3 polar.
  virtual int FunctionTypeIndex() const = 0;
  // The functions the window has drawn, oldest first: the list of the Y box,
  // the list of the X box, and the Y texts of the parametric ones (index for
  // index with the X list).
  virtual std::vector<std::string> DrawnFunctions() const = 0;
  virtual std::vector<std::string> DrawnXTexts() const = 0;
  virtual std::vector<std::string> DrawnParametricY() const = 0;
  // The part of the plane the surface shows, and the zoom in pixels per unit.
  virtual ViewBounds VisibleBounds() const = 0;
  virtual double ZoomFactor() const = 0;
  // A draw is running; a request to draw would do nothing.
  virtual bool IsDrawing() const = 0;
  // Draws a function as the user's Enter would: the type chosen, the texts
  // in the boxes, the window's draw of that type (history, lists and table
  // included). `x` counts in the parametric type only. False, and nothing
  // done, while a draw is running or for a type outside 1 to 3.
  virtual bool DrawFunction(int type, std::string_view y, std::string_view x) = 0;
  // Writes a function a tool has rewritten back into the Y box, where the
  // user sees it; nothing is drawn or remembered.
  virtual void SetFunctionYText(std::string_view y) = 0;
  // Joins the points, left to right, in `colour` (24-bit, blue in the high
  // byte) on the plot, as the plot loop joins its samples: a point that is
  // not finite or lies beyond 100 units lifts the pen. Nothing is
  // remembered. False, and nothing drawn, while a draw is running.
  virtual bool DrawCurve(const std::vector<CurvePoint>& points, std::uint32_t colour) = 0;
};

}  // namespace velmora::graph
