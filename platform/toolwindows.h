#pragma once

#include <string>

namespace velmora::platform {

class MathPadTarget;
class EvaluatorTarget;

// The tool windows the frame owns, each made at its first use.
enum class ToolWindow {
  MathPad,
  Evaluator,
  PointEvaluate,
  Integrate,
  CriticalPoints,
  Zeros,
  Intersection,
  ValueTables,
  Complex,
  Matrix,
  Geometry,
  Converter,
};

// The frame's tool windows as the other windows reach them: the popup
// menus that open one tool from another, the history and the value tables
// that hand text to MathPad, the result popup and the converter that write
// into the Evaluator. A window that this version does not have is reported
// missing, and the entries that would open it stay disabled.
class ToolWindows {
 public:
  virtual ~ToolWindows() = default;

  // Whether this version has the window.
  virtual bool Has(ToolWindow window) const = 0;
  // Makes the window if it is not open, shows it, restores it when it was
  // minimised and brings it forward. Does nothing for a missing window.
  virtual void Show(ToolWindow window) = 0;
  // Brings the frame with its graph windows forward.
  virtual void ShowGraphMode() = 0;
  // MathPad, made and shown if needed; null when this version has none.
  virtual MathPadTarget* MathPad() = 0;
  // The Evaluator window: with `create` it is made and shown if needed;
  // without, null unless it is open. Null when this version has none.
  virtual EvaluatorTarget* Evaluator(bool create) = 0;
};

}  // namespace velmora::platform
