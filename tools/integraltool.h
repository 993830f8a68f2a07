#pragma once

#include <string>

#include "expr/formulacontrol.h"
#include "platform/messagebox.h"

namespace velmora::tools {

// The Integral - Derivative window (`frmIntAv`): a definite integral by
// Simpson's or the trapezoidal rule, an average value over a range and a
// derivative at a point, all through the formula engine's "Intg(", "Trap("
// and "diff(". The full text of each result is kept, so the decimals shown
// can change afterwards without a new calculation.
class IntegralTool {
 public:
  // Segments: the default of the integral and of the average, and the cap.
  static constexpr int kIntegralSegments = 256;
  static constexpr int kAverageSegments = 200;
  static constexpr int kMaxSegments = 2000;
  // A shown result beyond this reads "Error".
  static constexpr double kLargestResult = 1e37;

  IntegralTool(expr::FormulaControl& engine, platform::MessageBox& messages)
      : engine_(engine), messages_(messages) {}

  // The boxes as typed.
  std::string integrand;         // `Text4`
  std::string minText;           // `txtMin`
  std::string maxText;           // `txtMax`
  std::string segments = "256";  // `txtkorak`
  bool simpson = true;           // `Option1(1)`; false: `Option1(0)`, the trapezoidal rule
  std::string derivand;          // `Text7`
  std::string point;             // `Text8`
  int decimals = 6;              // `Combo1`

  // "Integral" and "Average": the result goes to ResultText (`Text10`) and
  // its caption to ResultCaption (`lblintg`).
  void Integral();
  void Average();
  // "Derivative": the result goes to DerivativeText (`Text11`).
  void Derivative();

  // A change of the segment box: above 2000 it is refused with a message
  // and becomes " 2000". Returns true when the box was changed.
  bool SegmentsChanged();
  // A change of the accuracy list: the results that are not zero are
  // rounded again from their full texts.
  void SetDecimals(int value);
  // Edits of the inputs empty the result that depends on them.
  void IntegralInputEdited();
  void DerivativeInputEdited();

  const std::string& ResultText() const { return resultText_; }
  const std::string& ResultCaption() const { return caption_; }
  const std::string& DerivativeText() const { return derivativeText_; }
  const std::string& FullIntegral() const { return fullIntegral_; }
  const std::string& FullDerivative() const { return fullDerivative_; }

 private:
  void Run(bool average);
  double Evaluate(const std::string& text);
  // The shown text of a value: rounded, or "Error" beyond the guard.
  std::string Shown(double value) const;

  expr::FormulaControl& engine_;
  platform::MessageBox& messages_;
  std::string resultText_;
  std::string caption_ = "Integral:";
  std::string derivativeText_;
  std::string fullIntegral_;
  std::string fullDerivative_;
};

}  // namespace velmora::tools
