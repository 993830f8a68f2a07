#pragma once

#include <string>
#include <string_view>

namespace velmora::tools {

// Letter case of the program's texts: ASCII letters only, as the
// expression language has no other letters.
inline std::string UpperCase(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return out;
}

inline std::string LowerCase(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return out;
}

}  // namespace velmora::tools
