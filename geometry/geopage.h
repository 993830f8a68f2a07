#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "geometry/catalogue.h"
#include "geometry/solver.h"

namespace velmora::geometry {

// One page of the Geometry Calculator (`frmGeo`) without its window: the
// figure its option buttons select, its boxes, its Reset button, and the
// solver behind each entry of its "Select Case:" menu. The window binds its
// text boxes to State().boxes, shows Help() and draws the figure.
class GeoPage {
 public:
  // The page with this tab caption ("Triangle", "Circle", ...). An unknown
  // caption throws std::invalid_argument.
  explicit GeoPage(std::string_view caption);

  std::string_view Caption() const { return caption_; }
  // The figures the page serves, one per option (the first is selected).
  const std::vector<const FigureKind*>& Kinds() const { return kinds_; }
  const FigureKind& Kind() const { return *kinds_[selected_]; }

  // Selects the figure whose option has this caption ("" for the triangle
  // with neither option set). The Triangle page clears its boxes. Returns
  // false when the page has no such option.
  bool SelectOption(std::string_view option);

  // The menu that the page's Calculate button opens, and the help texts.
  std::span<const MenuEntry> Menu() const { return Kind().entries; }
  std::span<const std::string_view> Help() const { return Kind().help; }

  // The Reset button: every box of the page empty.
  void Reset() { state_.boxes.Clear(); }

  // Runs the entry of the current menu; false when the menu has no such entry.
  bool Run(std::string_view entry, platform::MessageBox& box);

  Figure& State() { return state_; }
  const Figure& State() const { return state_; }

 private:
  std::string_view caption_;
  std::vector<const FigureKind*> kinds_;
  std::size_t selected_ = 0;
  Figure state_;
};

}  // namespace velmora::geometry
