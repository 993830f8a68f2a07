#include "expr/evaluator.h"
#include "expr/fault.h"
#include "graph/syntaxchecker.h"

namespace velmora::graph {
namespace {

class EvaluatorChecker final : public SyntaxChecker {
 public:
  static constexpr int kUntrapped = -1;

  EvaluatorChecker(platform::MessageBox& messages, expr::ActiveWindow* window)
      : evaluator_(&messages, window) {}
  int Check(std::string_view trial) override {
    try {
      evaluator_.Evaluate(trial, false);
    } catch (const expr::Fault&) {
      // A fault that leaves the evaluator untrapped ends the command quietly.
      return kUntrapped;
    }
    return evaluator_.Error();
  }

 private:
  expr::Evaluator evaluator_;
};

}  // namespace

std::unique_ptr<SyntaxChecker> MakeEvaluatorChecker(platform::MessageBox& messages,
                                                    expr::ActiveWindow* window) {
  return std::make_unique<EvaluatorChecker>(messages, window);
}

}  // namespace velmora::graph
