#include "expr/formulaengine.h"

#include <cmath>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/asciicase.h"
#include "expr/formulacalculus.h"
#include "expr/formulacompiler.h"
#include "expr/formulamachine.h"
#include "expr/formulatokenizer.h"
#include "expr/shapecache.h"

namespace velmora::expr {
namespace {

constexpr double kFault = std::numeric_limits<double>::quiet_NaN();

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

// True when `text` is `name(...)` with `name` in any letter case, blanks
// allowed before the bracket; `inner` gets what stands between the first "("
// and the final ")".
bool MatchCommand(std::string_view text, std::string_view lowerName, std::string_view& inner) {
  if (text.size() < lowerName.size() + 2 || text.back() != ')') return false;
  if (!base::EqualsIgnoringCase(text.substr(0, lowerName.size()), lowerName)) return false;
  std::size_t i = lowerName.size();
  while (i < text.size() && IsBlank(text[i])) ++i;
  if (i >= text.size() - 1 || text[i] != '(') return false;
  inner = text.substr(i + 1, text.size() - i - 2);
  return true;
}

}  // namespace

struct FormulaEngine::Impl {
  explicit Impl(bool cacheOn) : cacheShapes(cacheOn) {}

  // A program ready to run, with the literal values of the text it stands for.
  struct Prepared {
    const Program* program;
    std::span<const double> literals;
  };

  std::optional<Prepared> Prepare(std::string_view text) {
    if (cacheShapes && ScanShape(text, shape, literals) && cache.Fits(shape)) {
      const ShapeCache::Entry* entry = cache.Find(shape);
      if (entry == nullptr) entry = cache.Insert(shape, CompileFormula(text));
      if (!entry->has_value()) return std::nullopt;
      return Prepared{&**entry, literals};
    }
    fresh = CompileFormula(text);
    if (!fresh) return std::nullopt;
    return Prepared{&*fresh, fresh->literals};
  }

  // The value of a text with no variable; NaN when it faults.
  double EvaluateValue(std::string_view text) {
    const auto prepared = Prepare(text);
    if (!prepared || prepared->program->usesVariable) return kFault;
    return RunProgram(*prepared->program, prepared->literals, 0.0, machine);
  }

  void Finish(Kind k, double value) {
    kind = k;
    result = value;
    faulted = std::isnan(value);
  }

  void Push(std::string_view inner) {
    const double value = EvaluateValue(inner);
    if (std::isnan(value) || stack.size() >= kMaxStack) return Finish(Kind::Push, kFault);
    stack.push_back(value);
    Finish(Kind::Push, value);
  }

  void PopAll(std::string_view inner) {
    if (!TrimBlanks(inner).empty()) return Finish(Kind::PopAll, kFault);
    stack.clear();
    Finish(Kind::PopAll, 0.0);
  }

  // diff(, Intg( and Trap(: the body is compiled once and run per point.
  void BodyCommand(Kind k, std::string_view body) {
    const std::size_t needed = k == Kind::Derivative ? 2 : 3;
    if (stack.size() < needed) return Finish(k, kFault);
    const auto prepared = Prepare(body);
    if (!prepared) return Finish(k, kFault);
    const Prepared p = *prepared;
    const RealFunction f = [this, p](double x) { return RunProgram(*p.program, p.literals, x, machine); };
    const double* top = stack.data() + stack.size();
    double value = kFault;
    switch (k) {
      case Kind::Derivative: value = Derivative(f, top[-2], top[-1]); break;
      case Kind::Integral: value = SimpsonIntegral(f, top[-3], top[-2], top[-1]); break;
      case Kind::TrapezoidSum: value = TrapezoidSum(f, top[-3], top[-2], top[-1]); break;
      case Kind::Value:
      case Kind::Push:
      case Kind::PopAll: break;
    }
    Finish(k, value);
  }

  void Set(std::string_view text) {
    const std::string_view t = TrimBlanks(text);
    std::string_view inner;
    if (MatchCommand(t, "popall", inner)) return PopAll(inner);
    if (MatchCommand(t, "push", inner)) return Push(inner);
    if (MatchCommand(t, "diff", inner)) return BodyCommand(Kind::Derivative, inner);
    if (MatchCommand(t, "intg", inner)) return BodyCommand(Kind::Integral, inner);
    if (MatchCommand(t, "trap", inner)) return BodyCommand(Kind::TrapezoidSum, inner);
    Finish(Kind::Value, EvaluateValue(t));
  }

  bool cacheShapes;
  ShapeCache cache;
  std::string shape;             // scratch: the shape of the text being set
  std::vector<double> literals;  // scratch: its literal values
  std::vector<double> machine;   // scratch: the machine's stack
  std::optional<Program> fresh;  // a program compiled without the cache
  std::vector<double> stack;     // the engine's value stack
  double result = 0.0;
  bool faulted = false;
  Kind kind = Kind::Value;
};

FormulaEngine::FormulaEngine() : FormulaEngine(true) {}
FormulaEngine::FormulaEngine(bool cacheShapes) : impl_(std::make_unique<Impl>(cacheShapes)) {}
FormulaEngine::~FormulaEngine() = default;

void FormulaEngine::SetFormula(std::string_view text) { impl_->Set(text); }
double FormulaEngine::Result() const { return impl_->result; }
bool FormulaEngine::Faulted() const { return impl_->faulted; }
FormulaEngine::Kind FormulaEngine::LastKind() const { return impl_->kind; }
std::size_t FormulaEngine::StackSize() const { return impl_->stack.size(); }
std::size_t FormulaEngine::CachedShapes() const { return impl_->cache.Size(); }

}  // namespace velmora::expr
