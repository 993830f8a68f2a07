// Any bytes through the formula engine: the whole input as one formula, then
// each of its lines in turn as a sequence of formulas (commands included) on
// one engine. An engine that caches shapes and one that compiles every
// formula afresh run side by side and must agree bit for bit. Nothing may
// crash or hang; a result is either a fault (NaN) or a finite value.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "expr/formulaengine.h"

namespace {

using velmora::expr::FormulaEngine;

void Check(bool ok) {
  if (!ok) std::abort();
}

bool ContainsNoCase(std::string_view text, std::string_view lowerWord);

// RND draws from one generator for the whole process and the clock functions
// read the clock, so the two engines may rightly get different values from
// them, and from anything pushed with them until the next PopAll().
bool MayDiffer(std::string_view text) {
  for (const char* word : {"rnd", "timer", "year", "month", "day", "hour", "minute", "second"}) {
    if (ContainsNoCase(text, word)) return true;
  }
  return false;
}

void CheckOne(const FormulaEngine& engine) {
  const double a = engine.Result();
  Check(std::isnan(a) == engine.Faulted());
  Check(engine.Faulted() || std::isfinite(a));
  const double again = engine.Result();
  Check(std::memcmp(&a, &again, sizeof a) == 0);  // read twice, the same value
  Check(engine.StackSize() <= FormulaEngine::kMaxStack);
  Check(engine.CachedShapes() <= 512);
}

// Sets the text on both engines and checks them. `diverged` is true while a
// value that may differ between them can be on their stacks.
void SetBoth(FormulaEngine& cached, FormulaEngine& fresh, std::string_view text, bool& diverged) {
  cached.SetFormula(text);
  fresh.SetFormula(text);
  CheckOne(cached);
  CheckOne(fresh);
  Check(cached.LastKind() == fresh.LastKind());
  Check(cached.StackSize() == fresh.StackSize() || diverged || MayDiffer(text));
  if (MayDiffer(text)) {
    diverged = true;
    return;
  }
  if (cached.LastKind() == FormulaEngine::Kind::PopAll && !cached.Faulted() && !fresh.Faulted())
    diverged = false;
  if (diverged) return;
  const double a = cached.Result();
  const double b = fresh.Result();
  Check(cached.Faulted() == fresh.Faulted());
  Check(std::memcmp(&a, &b, sizeof a) == 0);
  Check(cached.StackSize() == fresh.StackSize());
}

bool ContainsNoCase(std::string_view text, std::string_view lowerWord) {
  for (std::size_t i = 0; i + lowerWord.size() <= text.size(); ++i) {
    std::size_t k = 0;
    while (k < lowerWord.size()) {
      char c = text[i + k];
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
      if (c != lowerWord[k]) break;
      ++k;
    }
    if (k == lowerWord.size()) return true;
  }
  return false;
}

bool IsIntegralLine(std::string_view line) {
  return ContainsNoCase(line, "intg") || ContainsNoCase(line, "trap");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  // An integral runs its body up to 65536 times, and FOUR costs 5000 sines by
  // design: such inputs are slow because they ask for much work, not because
  // anything loops. They are kept small here so that a run finds real hangs.
  int integrals = 0;
  std::size_t start = 0;
  while (start <= input.size()) {
    std::size_t end = input.find('\n', start);
    if (end == std::string_view::npos) end = input.size();
    const std::string_view line = input.substr(start, end - start);
    if (IsIntegralLine(line)) {
      if (++integrals > 4 || line.size() > 64 || ContainsNoCase(line, "four")) return -1;
    }
    start = end + 1;
  }

  static FormulaEngine cached;
  static FormulaEngine fresh(false);
  // The cached engine lives for the whole run, so its cache fills, evicts
  // and is reused across inputs; both start each input with an empty stack.
  bool diverged = false;
  SetBoth(cached, fresh, "PopAll()", diverged);
  if (!IsIntegralLine(input)) SetBoth(cached, fresh, input, diverged);
  SetBoth(cached, fresh, "PopAll()", diverged);
  start = 0;
  while (start <= input.size()) {
    std::size_t end = input.find('\n', start);
    if (end == std::string_view::npos) end = input.size();
    SetBoth(cached, fresh, input.substr(start, end - start), diverged);
    start = end + 1;
  }
  return 0;
}
