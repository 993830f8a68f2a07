#pragma once

namespace velmora::app {

// Every command of the frame's menus and toolbars. The menu and toolbar
// tables name one of these; the frame runs it and ends with UpdateStatus().
enum class Command {
  None,
  // File
  New,
  Close,
  DrawFunction,
  DrawTangent,
  DrawIntegral,
  DrawIntegralAverage,  // the toolbar's "Integral/Average": its own refusal text
  DrawDerivative,
  SwapYX,
  SaveBmp,
  SaveJpeg,
  SaveHistory,
  PrintGraph,
  PrintHistory,
  PrintSetup,
  Exit,
  // Edit
  CopyGraph,
  ClearAll,
  ClearScreen,
  ClearHistory,
  ClearGrid,
  RedrawGrid,
  LineWidth,
  ClearFunction,
  // View: the four toolbar bands
  ViewBand1,
  ViewBand2,
  ViewBand3,
  ViewBand4,
  // Function type
  TypeCartesian,
  TypeParametric,
  TypePolar,
  // Zoom
  ZoomIn,
  ZoomOut,
  ZoomDefault,
  ZoomCustom,
  // Move
  MoveLeft,
  MoveRight,
  MoveUp,
  MoveDown,
  MoveCenter,
  // Colour
  ColorBack,
  ColorGrid,
  ColorAxes,
  ColorGraph,
  ColorDefault,
  Options,
  // Tools and calculators
  ToolEvaluator,
  ToolPointEvaluate,
  ToolIntegrate,
  ToolCriticalPoints,
  ToolZeros,
  ToolZerosCartesian,  // the toolbar's "Newton": refuses a function that is not Cartesian
  ToolIntersection,
  ToolLabel,
  ToolValueTables,
  ToolScientific,
  ToolComplex,
  ToolGeometry,
  ToolMatrix,
  ToolConverter,
  ToolMathPad,
  // Window
  WindowCascade,
  WindowTile,
  // Help
  HelpContents,
  HelpWeb,
  About,
};

// When a menu entry or toolbar button can be used.
enum class EnableRule {
  Always,        // no window needed
  NeedsWindow,   // a graph window must be open
  NotBuilt,      // the tool it opens is not part of this version: always disabled
  HelpFile,      // the help file must be present beside the program
  NeedsMathPad,  // a graph window must be open and this version must have MathPad
};

// Which state a checkable entry shows.
enum class CheckRule {
  None,
  Band,  // the band `value` (1 to 4) is visible
  Type,  // the active window's function type is `value` (1 to 3)
  Zoom,  // the active window's checked zoom entry is `value` (0, 1, 2, 4)
};

}  // namespace velmora::app
