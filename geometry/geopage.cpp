#include "geometry/geopage.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace velmora::geometry {
namespace {

// The boxes of all the page's figures, each once, in the order they first
// appear.
BoxRecord PageBoxes(const std::vector<const FigureKind*>& kinds) {
  std::vector<std::string_view> names;
  for (const auto* k : kinds) {
    for (const auto name : k->boxes) {
      if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
  }
  return BoxRecord(std::span<const std::string_view>(names));
}

std::vector<const FigureKind*> KindsOf(std::string_view caption) {
  std::vector<const FigureKind*> kinds;
  for (const auto& k : FigureKinds()) {
    if (k.page == caption) kinds.push_back(&k);
  }
  if (kinds.empty()) throw std::invalid_argument("no geometry page named " + std::string(caption));
  return kinds;
}

}  // namespace

GeoPage::GeoPage(std::string_view caption)
    : caption_(caption), kinds_(KindsOf(caption)), state_(PageBoxes(kinds_)) {}

bool GeoPage::SelectOption(std::string_view option) {
  for (std::size_t i = 0; i < kinds_.size(); ++i) {
    if (kinds_[i]->option != option) continue;
    selected_ = i;
    // A new type of triangle starts from empty boxes.
    if (caption_ == "Triangle") state_.boxes.Clear();
    return true;
  }
  return false;
}

bool GeoPage::Run(std::string_view entry, platform::MessageBox& box) {
  for (const auto& e : Menu()) {
    if (e.name == entry) {
      e.solve(state_, box);
      return true;
    }
  }
  return false;
}

}  // namespace velmora::geometry
