#include "graph/controls.h"

namespace velmora::graph {

void ComboBox::AddItemNoDuplicates(std::string_view item) {
  List.emplace_back(item);
  for (std::size_t i = 0; i < List.size(); ++i) {
    for (std::size_t j = List.size(); j-- > i + 1;) {
      if (List[j] == List[i]) List.erase(List.begin() + static_cast<std::ptrdiff_t>(j));
    }
  }
}

}  // namespace velmora::graph
