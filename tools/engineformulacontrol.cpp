#include "expr/fault.h"
#include "expr/formulaengine.h"
#include "tools/formulacontrol.h"

namespace velmora::tools {
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

}  // namespace velmora::tools
