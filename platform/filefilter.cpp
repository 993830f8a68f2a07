#include "platform/filefilter.h"

#include <vector>

namespace velmora::platform {
namespace {

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  while (true) {
    const std::size_t end = text.find(separator, start);
    parts.emplace_back(
        text.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start));
    if (end == std::string_view::npos) break;
    start = end + 1;
  }
  return parts;
}

// The patterns as a description shows them: "(*.bmp)".
std::string InBrackets(const std::string& patterns) {
  std::string out = "(";
  out.append(patterns);
  out.push_back(')');
  return out;
}

std::string Trim(std::string text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  const auto last = text.find_last_not_of(' ');
  return text.substr(first, last - first + 1);
}

}  // namespace

std::string FilterToQt(std::string_view filter) {
  if (filter.empty()) return {};
  const std::vector<std::string> parts = Split(filter, '|');
  std::string out;
  for (std::size_t i = 0; i < parts.size(); i += 2) {
    const std::string description = Trim(parts[i]);
    std::string raw = i + 1 < parts.size() ? Trim(parts[i + 1]) : std::string("*");
    if (raw.empty()) raw.push_back('*');
    std::string patterns = raw;
    for (char& c : patterns) {
      if (c == ';') c = ' ';
    }
    if (description.empty() && patterns == "*") continue;
    std::string entry = description.empty() ? patterns : description;
    // Qt reads the patterns from the last brackets of an entry, so a
    // description that already names them is kept as it is.
    const bool named = description.find(InBrackets(raw)) != std::string::npos ||
                       description.find(InBrackets(patterns)) != std::string::npos;
    if (!description.empty() && !named) {
      entry += ' ';
      entry += InBrackets(patterns);
    }
    if (!out.empty()) out += ";;";
    out += entry;
  }
  return out;
}

}  // namespace velmora::platform
