#include "expr/replacetext.h"

#include "expr/fault.h"

namespace velmora::expr {
namespace {
constexpr std::size_t kMaxGrownText = std::size_t{64} << 20;
}

std::string ReplaceText(std::string_view text, std::string_view find, std::string_view replace) {
  if (find.empty() || find == replace) return std::string();
  if (replace.find(find) != std::string_view::npos) throw Fault(Fault::kOutOfMemory);
  std::string out(text);
  // Rescanning from the start finds the first occurrence of the new text.
  // Nothing before the last replacement matched before it, so a new first
  // occurrence can only begin where it overlaps the replaced part: the
  // search resumes len(find) - 1 characters before it, which gives the
  // same result as a scan from the start.
  std::size_t from = 0;
  std::size_t pos;
  // A chain of replacements that keeps forming new occurrences without
  // growing must still end: more rounds than any finite rewrite of this text
  // could take are treated like the endless growth above.
  std::size_t rounds = 0;
  const std::size_t maxRounds = 64 * (text.size() + 1) + 1'000'000;
  while ((pos = out.find(find, from)) != std::string::npos) {
    out.replace(pos, find.size(), replace);
    if (out.size() > kMaxGrownText || ++rounds > maxRounds) throw Fault(Fault::kOutOfMemory);
    from = pos >= find.size() - 1 ? pos - (find.size() - 1) : 0;
  }
  return out;
}

std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view replace) {
  std::string out(text);
  ReplaceAllInPlace(out, find, replace);
  return out;
}

void ReplaceAllInPlace(std::string& text, std::string_view find, std::string_view replace) {
  if (find.empty()) return;
  std::size_t pos = text.find(find);
  if (pos == std::string::npos) return;
  std::string out;
  out.reserve(text.size() + (replace.size() > find.size() ? replace.size() * 4 : 0));
  std::size_t start = 0;
  while (pos != std::string::npos) {
    out.append(text, start, pos - start);
    out.append(replace);
    start = pos + find.size();
    pos = text.find(find, start);
  }
  out.append(text, start, std::string::npos);
  text.swap(out);
}

}  // namespace velmora::expr
