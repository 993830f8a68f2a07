#include "tools/toollists.h"

#include <cmath>
#include <cstddef>

#include "expr/numtext.h"

namespace velmora::tools {

void RemoveDuplicates(std::vector<std::string>& list) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    for (std::size_t j = i + 1; j < list.size();) {
      if (list[j] == list[i]) {
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(j));
      } else {
        ++j;
      }
    }
  }
}

void AddUnique(std::vector<std::string>& list, std::string_view text) {
  list.emplace_back(text);
  RemoveDuplicates(list);
}

void RemoveNearValues(std::vector<std::string>& list) {
  bool sawZero = false;
  const std::size_t lastI = list.size();
  for (std::size_t i = 0; i < lastI; ++i) {
    if (i >= list.size()) continue;  // beyond the end: nothing happens
    if (list[i] == "0") sawZero = true;
    const std::size_t lastJ = list.size();
    for (std::size_t j = 0; j < lastJ; ++j) {
      if (i >= list.size() || j >= list.size()) continue;
      const double a = expr::TextToNumber(list[i]);
      const double b = expr::TextToNumber(list[j]);
      if (b != a && std::fabs(b - a) <= kNearBand) list.erase(list.begin() + static_cast<std::ptrdiff_t>(j));
    }
  }
  if (sawZero) list.emplace_back("0");
}

}  // namespace velmora::tools
