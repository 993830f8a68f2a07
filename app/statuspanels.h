#pragma once

#include <array>
#include <string>
#include <string_view>

#include "graph/graphwindow.h"

namespace velmora::app {

// The four panels of the frame's status bar, left to right: the active
// window's caption, "Zoom: " and its zoom level, the status text, and
// "Total: " and the number of open windows. With no window open all four
// read "#".
using StatusTexts = std::array<std::string, 4>;

StatusTexts StatusPanels(int windowCount, const graph::GraphWindow* active, std::string_view statusText);

// The title of a graph window: its tag ("Graph 3"), then " - " and the
// window's caption once a function is typed.
std::string WindowTitle(std::string_view tag, const graph::GraphWindow& window);

}  // namespace velmora::app
