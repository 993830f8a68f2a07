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
    ToolMenuItem{"newt1", "Find Zeros...", C::ToolZeros, E::NotBuilt},
    ToolMenuItem{"newt2", "Find Intersection...", C::ToolIntersection, E::NotBuilt},
};

constexpr std::array kEvaluatorMenu{
    ToolMenuItem{"ev1", "Evaluator...", C::ToolEvaluator, E::NotBuilt},
    ToolMenuItem{"ev2", "Point Evaluate...", C::ToolPointEvaluate, E::NotBuilt},
};

constexpr std::array kCalcMenu{
    ToolMenuItem{"c1", "Scientific Calculator...", C::ToolScientific, E::NotBuilt},
    ToolMenuItem{"c2", "Complex Calculator...", C::ToolComplex, E::NotBuilt},
    ToolMenuItem{"c3", "Geometry Calculator...", C::ToolGeometry, E::NotBuilt},
    ToolMenuItem{"c4", "Matrix Calculator...", C::ToolMatrix, E::NotBuilt},
    ToolMenuItem{"c6", "Units Converter...", C::ToolConverter, E::NotBuilt},
};

constexpr std::array kToolbar1{
    ToolButton{"Draw Graph", "Draw", "Draw the function", C::DrawFunction},
    ToolButton{"Draw Tangent", "Tangent", "Draw tangent", C::DrawTangent, E::NotBuilt},
    ToolButton{"Tangent/Normal", "Normal", "Tangent and normal", C::DrawTangent, E::NotBuilt},
    ToolButton{"Draw Integral", "Integral", "Draw integral", C::DrawIntegral, E::NotBuilt},
    ToolButton{"Integral/Average", "Average", "Integral and average", C::DrawIntegral, E::NotBuilt},
    ToolButton{"Izvod", "Derivative", "Draw derivative", C::DrawDerivative, E::NotBuilt},
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
    ToolButton{"Complex", "Complex", "Complex calculator", C::ToolComplex, E::NotBuilt},
    ToolButton{"Geometry", "Geometry", "Geometry calculator", C::ToolGeometry, E::NotBuilt},
    ToolButton{"Matrix", "Matrix", "Matrix calculator", C::ToolMatrix, E::NotBuilt},
};

constexpr std::array kToolbar4{
    ToolButton{"Newton", "Zeros", "Find zeros", C::ToolZeros, E::NotBuilt, kNewtonMenu},
    ToolButton{"Analiza", "Critical", "Find critical points", C::ToolCriticalPoints, E::NotBuilt},
    ToolButton{"Integral", "Integrate", "Integrate", C::ToolIntegrate, E::NotBuilt},
    ToolButton{"Tabela", "Tables", "Value tables", C::ToolValueTables, E::NotBuilt},
    ToolButton{"Label", "Label", "Insert label", C::ToolLabel, E::NotBuilt},
    ToolButton{"MathPad", "MathPad", "MathPad", C::ToolMathPad},
    ToolButton{"Options", "Options", "Plotting options", C::Options},
    ToolButton{"Evaluator", "Evaluator", "Evaluator", C::ToolEvaluator, E::NotBuilt, kEvaluatorMenu},
    ToolButton{"Calc", "Calculators", "Calculators", C::None, E::NotBuilt, kCalcMenu},
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
