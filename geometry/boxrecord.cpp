#include "geometry/boxrecord.h"

#include <algorithm>
#include <stdexcept>

#include "expr/numtext.h"

namespace velmora::geometry {

BoxRecord::BoxRecord(std::initializer_list<std::string_view> names)
    : BoxRecord(std::span<const std::string_view>(names.begin(), names.size())) {}

BoxRecord::BoxRecord(std::span<const std::string_view> names) {
  boxes_.reserve(names.size());
  for (const auto name : names) boxes_.emplace_back(std::string(name), std::string());
}

bool BoxRecord::Has(std::string_view name) const {
  return std::any_of(boxes_.begin(), boxes_.end(), [&](const auto& box) { return box.first == name; });
}

std::pair<std::string, std::string>& BoxRecord::Find(std::string_view name) {
  for (auto& box : boxes_) {
    if (box.first == name) return box;
  }
  throw std::out_of_range("no text box named " + std::string(name));
}

const std::pair<std::string, std::string>& BoxRecord::Find(std::string_view name) const {
  for (const auto& box : boxes_) {
    if (box.first == name) return box;
  }
  throw std::out_of_range("no text box named " + std::string(name));
}

const std::string& BoxRecord::Text(std::string_view name) const { return Find(name).second; }

void BoxRecord::SetText(std::string_view name, std::string text) { Find(name).second = std::move(text); }

Real BoxRecord::Read(std::string_view name) const { return Real(expr::TextToNumber(Text(name))); }

void BoxRecord::Write(std::string_view name, Real value, int places) {
  Find(name).second = expr::NumberToText(expr::RoundTo(value.Value(), places));
}

void BoxRecord::Clear() {
  for (auto& box : boxes_) box.second.clear();
}

}  // namespace velmora::geometry
