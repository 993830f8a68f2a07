#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "graph/graphwindow.h"

namespace velmora::graph {

// The view an example sets before it draws: one of the window's fixed
// zooms (Decart also moves the centre right).
enum class ExampleView { Keep, ZumDec, ZumStef, ZumGama, ZumPuding };

// One entry of the Examples menu. Several curves of one entry are separated
// by " ; " in `y` and `x`, pair by pair, and drawn one after another.
struct Example {
  std::string_view caption;  // the menu text
  std::string_view loader;   // the loading procedure; "" where the caption is the function
  int type;                  // 1 Cartesian, 2 parametric, 3 polar
  std::string_view y;        // Y (K), or R (K) in polar type
  std::string_view x;        // X (K); "K" in Cartesian and polar type
  ExampleView view = ExampleView::Keep;
};

// One submenu of the Examples menu with the control array of its entries.
struct ExampleSubmenu {
  std::string_view caption;
  std::string_view array;
  int type;
  std::span<const Example> entries;
};

// The seven submenus in menu order.
std::span<const ExampleSubmenu> ExampleMenus();

// The (Y, X) pairs of an entry, in drawing order.
std::vector<std::pair<std::string, std::string>> ExampleCurves(const Example& example);

// The Decart example's own move: this many grid steps to the right.
inline constexpr std::string_view kDecartMove = "3";

// Loads an example into a graph window: hides the tangent mark, chooses the
// type, sets the example's view, then puts each pair into txtY and txtX and
// draws it (CrtajPolar in polar type, CrtajFJU otherwise). Decart's move is the
// window's own right move with the answer kDecartMove.
void LoadExample(GraphWindow& window, const Example& example);

}  // namespace velmora::graph
