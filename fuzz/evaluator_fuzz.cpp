// Any bytes through the text evaluator (silent and loud, with and without a
// window, in rational mode), the normalisation chains and the syntax trial.
// None may crash or hang; the evaluator's answer must be one of its codes
// with a finite value, and only the untrapped outermost addition may fault
// out of it.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "expr/evaluator.h"
#include "expr/fault.h"
#include "expr/graphfields.h"
#include "expr/normalise.h"
#include "platform/messagebox.h"

namespace {

using velmora::expr::Evaluator;
using velmora::expr::Fault;

class FuzzWindow final : public velmora::expr::ActiveWindow, public velmora::expr::GraphFields {
 public:
  FuzzWindow(std::string y3, std::string imenilac, std::string y2, std::string label)
      : y3_(std::move(y3)), imenilac_(std::move(imenilac)), y2_(std::move(y2)), label_(std::move(label)) {}
  velmora::expr::GraphFields* ActiveGraph() override { return this; }
  std::string TxtImenilac() override { return imenilac_; }
  std::string TxtY3() override { return y3_; }
  std::string TxtY2() override { return y2_; }
  std::string LblY3() override { return label_; }
  void Boje2() override {}
  void Boje3() override {}

 private:
  std::string y3_, imenilac_, y2_, label_;
};

void Check(bool condition) {
  if (!condition) std::abort();
}

bool IsCode(int e) { return e == 0 || e == 1 || e == 2 || e == 4 || e == 8 || e == 16; }

void EvaluateChecked(Evaluator& ev, std::string_view text, bool silent, bool three) {
  try {
    const double v = three ? ev.Evaluate3(text, silent) : ev.Evaluate(text, silent);
    Check(std::isfinite(v));
    Check(IsCode(ev.Error()));
    if (silent) Check(ev.Assigned() == (ev.Error() == 0));
    if (!silent && !three) Check(ev.Error() != 16);
  } catch (const Fault& f) {
    Check(f.Number() == Fault::kOverflow);
  }
}

bool HasAny(const std::string& s, std::string_view chars) {
  return s.find_first_of(chars) != std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  static FuzzWindow fresh("", "", "", "");
  static FuzzWindow rational("3", "1", "1", "OK");
  static FuzzWindow rationalNoY2("5", "2", "", "OK");
  static velmora::platform::SilentMessageBox box;

  Evaluator::SetCurrentArgument(std::string(text.substr(0, 16)));
  for (velmora::expr::ActiveWindow* window : {static_cast<velmora::expr::ActiveWindow*>(&fresh),
                                              static_cast<velmora::expr::ActiveWindow*>(&rational),
                                              static_cast<velmora::expr::ActiveWindow*>(&rationalNoY2),
                                              static_cast<velmora::expr::ActiveWindow*>(nullptr)}) {
    Evaluator ev(&box, window);
    EvaluateChecked(ev, text, true, false);
    EvaluateChecked(ev, text, false, false);
    EvaluateChecked(ev, text, false, true);
  }

  const std::string cleaned = velmora::expr::CleanUp(text);
  Check(!HasAny(cleaned, " {}[]"));
  const std::string form = velmora::expr::EvaluationForm(cleaned);
  Check(!HasAny(form, "Xabcdefghijklmnopqrstuvwxyz"));
  const std::string trial = velmora::expr::ProveriSyn(cleaned);
  Check(!HasAny(trial, "KXabcdefghijklmnopqrstuvwxyz"));
  const std::string history = velmora::expr::Zagrade(text);
  Check(!HasAny(history, " {}[]kABCDEFGHIJKLMNOPQRSTUVWXYZ"));
  const std::string shortForms = velmora::expr::NormalizeShortForms(text);
  Check(!HasAny(shortForms, "XKk"));
  (void)velmora::expr::TangentForm(shortForms);
  (void)velmora::expr::ZameniSve(form);
  Check(!HasAny(velmora::expr::ToolTextForm(text), " {}[]kABCDEFGHIJKLMNOPQRSTUVWXYZ"));

  // The syntax trial and one sample, as the graph window runs them.
  Evaluator window(&box, &fresh);
  EvaluateChecked(window, trial, false, false);
  const std::string sample = velmora::expr::SubstituteValue(form, -1.25);
  Check(sample.find('K') == std::string::npos);
  EvaluateChecked(window, sample, true, false);
  return 0;
}
