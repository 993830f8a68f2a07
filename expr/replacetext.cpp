#include "expr/replacetext.h"

#include "expr/fault.h"

namespace velmora::expr {
namespace {
constexpr std::size_t kMaxGrownText = std::size_t{64} << 20;

bool EndsWith(const std::string& s, std::string_view tail) {
  return s.size() >= tail.size() && std::string_view(s).substr(s.size() - tail.size()) == tail;
}
}  // namespace

std::string ReplaceText(std::string_view text, std::string_view find, std::string_view replace) {
  if (find.empty() || find == replace) return std::string();
  if (replace.find(find) != std::string_view::npos) throw Fault(Fault::kOutOfMemory);
  // A one-character find can never be formed anew by a replacement that does
  // not contain it, so one pass gives the same text as the rescans.
  if (find.size() == 1) return ReplaceAll(text, find, replace);

  // Replacing the first occurrence and scanning again from the start is the
  // same as reading the text left to right into `out` (which never holds an
  // occurrence) and, whenever `out` comes to end with `find`, dropping it and
  // reading the replacement next, as if it stood in the input. The first
  // occurrence to complete in `out` is the leftmost one of the whole text.
  std::string out;
  out.reserve(text.size());
  std::string pending;  // replacement characters still to read, last first
  std::size_t next = 0;
  std::size_t rounds = 0;
  const std::size_t maxRounds = 64 * (text.size() + 1) + 1'000'000;
  while (!pending.empty() || next < text.size()) {
    if (!pending.empty()) {
      out.push_back(pending.back());
      pending.pop_back();
    } else {
      out.push_back(text[next++]);
    }
    if (EndsWith(out, find)) {
      out.resize(out.size() - find.size());
      pending.append(replace.rbegin(), replace.rend());
      // A chain of replacements that keeps forming new occurrences must still
      // end: past these bounds it is treated like endless growth.
      if (out.size() + pending.size() + (text.size() - next) > kMaxGrownText || ++rounds > maxRounds) {
        throw Fault(Fault::kOutOfMemory);
      }
    }
  }
  return out;
}

std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view replace) {
  if (find.empty()) return std::string(text);
  // Count first, so the result is built in one allocation: this runs once
  // per plotted sample.
  std::size_t count = 0;
  for (std::size_t pos = text.find(find); pos != std::string_view::npos;
       pos = text.find(find, pos + find.size())) {
    ++count;
  }
  if (count == 0) return std::string(text);
  std::string out;
  out.reserve(text.size() - count * find.size() + count * replace.size());
  std::size_t start = 0;
  for (std::size_t pos = text.find(find); pos != std::string_view::npos; pos = text.find(find, start)) {
    out.append(text.data() + start, pos - start);
    out.append(replace);
    start = pos + find.size();
  }
  out.append(text.data() + start, text.size() - start);
  return out;
}

void ReplaceAllInPlace(std::string& text, std::string_view find, std::string_view replace) {
  if (find.empty() || text.find(find) == std::string::npos) return;
  std::string out = ReplaceAll(text, find, replace);
  text.swap(out);
}

}  // namespace velmora::expr
