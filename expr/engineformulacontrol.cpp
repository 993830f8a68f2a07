#include "expr/fault.h"
#include "expr/formulacontrol.h"
#include "expr/formulaengine.h"

namespace velmora::expr {
namespace {

class EngineFormulaControl final : public FormulaControl {
 public:
  void SetFormula(std::string_view text) override { engine_.SetFormula(text); }
  double Result() override {
    if (engine_.Faulted()) throw expr::Fault(expr::Fault::kInvalidCall);
    return engine_.Result();
  }

 private:
  expr::FormulaEngine engine_;
};

}  // namespace

std::unique_ptr<FormulaControl> MakeFormulaControl() { return std::make_unique<EngineFormulaControl>(); }

}  // namespace velmora::expr
