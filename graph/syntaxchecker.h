#pragma once

#include <memory>
#include <string_view>

#include "expr/graphfields.h"
#include "platform/messagebox.h"

namespace velmora::graph {

// The check before a draw: the trial text goes through the program's own
// evaluator with its messages on, and the error code it leaves decides.
class SyntaxChecker {
 public:
  virtual ~SyntaxChecker() = default;
  // Returns the evaluator's error code after a loud evaluation; 0 is good
  // (a trapped run-time fault also reads 0: the loud variant clears it).
  virtual int Check(std::string_view trial) = 0;
};

// Makes the checker of a window; called once, at the first check.
using SyntaxCheckerFactory = std::unique_ptr<SyntaxChecker> (*)(platform::MessageBox& messages,
                                                                expr::ActiveWindow* window);

// The program's checker on one expr::Evaluator.
std::unique_ptr<SyntaxChecker> MakeEvaluatorChecker(platform::MessageBox& messages,
                                                    expr::ActiveWindow* window);

}  // namespace velmora::graph
