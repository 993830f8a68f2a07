// The four toolbars as data: each button by its key, with the command it
// runs, its drop-down and when it can be used.
#include "app/toolbartable.h"

#include <array>

namespace velmora::app {
namespace {

using C = Command;
using E = EnableRule;

constexpr std::array kZoomMenu{
    ToolMenuItem{"Zoomin", "Zoom In", C::ZoomIn, E::NeedsWindow, 0},
    ToolMenuItem{"Zoomout", "Zoom Out", C::ZoomOut, E::NeedsWindow, 1},
    ToolMenuItem{"Defaultzoom", "Default", C::ZoomDefault, E::NeedsWindow, 2},
    ToolMenuItem{"", "-"},
    ToolMenuItem{"Finezoom", "Custom Zooming", C::ZoomCustom, E::NeedsWindow, 4},
};

constexpr std::array kColorMenu{
    ToolMenuItem{"Back", "Background...", C::ColorBack},
    ToolMenuItem{"Grid", "Grid...", C::ColorGrid},
    ToolMenuItem{"Axes", "Axes...", C::ColorAxes},
    ToolMenuItem{"Graph", "Graph...", C::ColorGraph},
    ToolMenuItem{"", "-"},
    ToolMenuItem{"Defaultcol", "Default", C::ColorDefault},
};

constexpr std::array kMoveMenu{
    ToolMenuItem{"Left", "Left...", C::MoveLeft},
    ToolMenuItem{"Right", "Right...", C::MoveRight},
    ToolMenuItem{"Up", "Up...", C::MoveUp},
    ToolMenuItem{"Down", "Down...", C::MoveDown},
    ToolMenuItem{"", "-"},
    ToolMenuItem{"Defaultmove", "Center", C::MoveCenter},
};

constexpr std::array kSaveMenu{
    ToolMenuItem{"bmp", "BMP, WMF", C::SaveBmp},
    ToolMenuItem{"jpg", "JPEG...", C::SaveJpeg, E::NeedsWindow},
};

constexpr std::array kNewtonMenu{
    ToolMenuItem{"newt1", "Find Zeros...", C::ToolZeros, E::Always},
    ToolMenuItem{"newt2", "Find Intersection...", C::ToolIntersection, E::Always},
};

constexpr std::array kEvaluatorMenu{
    ToolMenuItem{"ev1", "Evaluator...", C::ToolEvaluator, E::Always},
    ToolMenuItem{"ev2", "Point Evaluate...", C::ToolPointEvaluate, E::Always},
};

constexpr std::array kCalcMenu{
    ToolMenuItem{"c1", "Scientific Calculator...", C::ToolScientific, E::NotBuilt},
    ToolMenuItem{"c2", "Complex Calculator...", C::ToolComplex, E::Always},
    ToolMenuItem{"c3", "Geometry Calculator...", C::ToolGeometry, E::Always},
    ToolMenuItem{"c4", "Matrix Calculator...", C::ToolMatrix, E::Always},
    ToolMenuItem{"c6", "Units Converter...", C::ToolConverter, E::Always},
};

constexpr std::array kToolbar1{
    ToolButton{"Draw Graph", "Draw", "Draw the function", C::DrawFunction},
    ToolButton{"Draw Tangent", "Tangent", "Draw tangent", C::DrawTangent},
    ToolButton{"Tangent/Normal", "Normal", "Tangent and normal", C::DrawTangent},
    ToolButton{"Draw Integral", "Integral", "Draw integral", C::DrawIntegral},
    ToolButton{"Integral/Average", "Average", "Integral and average", C::DrawIntegralAverage},
    ToolButton{"Izvod", "Derivative", "Draw derivative", C::DrawDerivative},
    ToolButton{"Zoom", "Zoom", "Zoom", C::None, E::NeedsWindow, kZoomMenu},
    ToolButton{"Color", "Color", "Colours", C::None, E::NeedsWindow, kColorMenu},
    ToolButton{"Move", "Move", "Move the centre", C::None, E::NeedsWindow, kMoveMenu},
    ToolButton{"ClearG", "Clear Grid", "Clear grid", C::ClearGrid},
    ToolButton{"ClearF", "Clear Function", "Clear function", C::ClearFunction},
};

constexpr std::array kToolbar2{
    ToolButton{"New", "New", "New graph window", C::New, E::Always},
    ToolButton{"Copy", "Copy", "Copy graph", C::CopyGraph},
    ToolButton{"Save", "Save", "Save picture", C::SaveBmp, E::NeedsWindow, kSaveMenu},
    ToolButton{"Print", "Print", "Print graph", C::PrintGraph, E::NeedsWindow},
};

constexpr std::array kToolbar3{
    // The scientific calculator's button has no action in this version.
    ToolButton{"Scientific", "Scientific", "Scientific calculator", C::ToolScientific, E::NotBuilt},
    ToolButton{"Complex", "Complex", "Complex calculator", C::ToolComplex, E::Always},
    ToolButton{"Geometry", "Geometry", "Geometry calculator", C::ToolGeometry, E::Always},
    ToolButton{"Matrix", "Matrix", "Matrix calculator", C::ToolMatrix, E::Always},
};

constexpr std::array kToolbar4{
    ToolButton{"Newton", "Zeros", "Find zeros", C::ToolZerosCartesian, E::Always, kNewtonMenu},
    ToolButton{"Analiza", "Critical", "Find critical points", C::ToolCriticalPoints, E::NeedsWindow},
    ToolButton{"Integral", "Integrate", "Integrate", C::ToolIntegrate, E::Always},
    ToolButton{"Tabela", "Tables", "Value tables", C::ToolValueTables, E::Always},
    ToolButton{"Label", "Label", "Insert label", C::ToolLabel},
    ToolButton{"MathPad", "MathPad", "MathPad", C::ToolMathPad},
    ToolButton{"Options", "Options", "Plotting options", C::Options},
    ToolButton{"Evaluator", "Evaluator", "Evaluator", C::ToolEvaluator, E::Always, kEvaluatorMenu},
    ToolButton{"Calc", "Calculators", "Calculators", C::None, E::Always, kCalcMenu},
};

constexpr std::array kToolbars{
    ToolbarSpec{"Toolbar1", 1, kToolbar1},
    ToolbarSpec{"Toolbar2", 2, kToolbar2},
    ToolbarSpec{"Toolbar3", 3, kToolbar3},
    ToolbarSpec{"Toolbar4", 4, kToolbar4},
};

}  // namespace

std::span<const ToolbarSpec> Toolbars() { return kToolbars; }

const ToolButton* FindToolButton(std::string_view key) {
  for (const ToolbarSpec& bar : kToolbars) {
    for (const ToolButton& button : bar.buttons) {
      if (button.key == key) return &button;
    }
  }
  return nullptr;
}

}  // namespace velmora::app
