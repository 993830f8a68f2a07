#include "app/statuspanels.h"

#include "expr/numtext.h"

namespace velmora::app {

StatusTexts StatusPanels(int windowCount, const graph::GraphWindow* active, std::string_view statusText) {
  if (windowCount == 0 || active == nullptr) return {"#", "#", "#", "#"};
  return {active->StatusCaption(), "Zoom: " + expr::NumberToText(active->View().zlevel()),
          std::string(statusText), "Total: " + std::to_string(windowCount)};
}

std::string WindowTitle(std::string_view tag, const graph::GraphWindow& window) {
  std::string title(tag);
  // An empty window keeps its plain name, so "Graph 1" is what a new
  // window shows.
  if (!window.Boxes().txtY().Text.empty()) title += " - " + window.StatusCaption();
  return title;
}

}  // namespace velmora::app
