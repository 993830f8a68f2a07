#pragma once

#include <string>

namespace velmora::platform {

// The Evaluator window's text box as other windows write into it (the
// result popup's base conversions, the units converter's hand-back).
class EvaluatorTarget {
 public:
  virtual ~EvaluatorTarget() = default;

  virtual void WriteText(const std::string& text) = 0;
};

}  // namespace velmora::platform
