#pragma once

#include <span>
#include <string_view>

#include "geometry/solver.h"

// The figures of the Geometry Calculator: which page of `SSTab1` serves each,
// by which option and pop-up menu, on which boxes, with which help texts.
namespace velmora::geometry {

// The heading of every page's pop-up menu.
inline constexpr std::string_view kSelectCaseHeading = "Select Case:";

struct FigureKind {
  std::string_view word;    // the figure's word for velmora-cli ("triangle", "sfrustrum", ...)
  std::string_view page;    // the page of `SSTab1` that serves it
  std::string_view option;  // caption of the option button that selects it; empty for none
  std::string_view menu;    // control name of its pop-up menu; empty when it has none
  std::span<const std::string_view> boxes;  // its boxes, in the order of its record
  std::span<const MenuEntry> entries;
  std::span<const std::string_view> help;
};

// Every figure, page by page in the order of the tabs.
std::span<const FigureKind> FigureKinds();

// The captions of the pages of `SSTab1`, in tab order.
std::span<const std::string_view> PageCaptions();

// The entry named `entry` among the figures that `word` names (the triangle's
// three menus share one word); null when there is none. `kind` receives the
// figure the entry belongs to.
const MenuEntry* FindEntry(std::string_view word, std::string_view entry, const FigureKind** kind = nullptr);

}  // namespace velmora::geometry
