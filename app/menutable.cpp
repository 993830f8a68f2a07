// The frame's menus as data: caption with its access letter, control name
// and index, shortcut, command, and when the entry can be used. Entries of
// tools that this version does not have stand in the menus, disabled.
#include "app/menutable.h"

#include <array>

namespace velmora::app {
namespace {

using C = Command;
using E = EnableRule;
using K = CheckRule;

constexpr MenuItem Sep(std::string_view name = "", int index = -1) { return {name, index, "-"}; }

constexpr std::array kSaveAs{
    MenuItem{"mnubmp", -1, "&BMP, WMF", "", C::SaveBmp, E::NeedsWindow},
    MenuItem{"mnujpg", -1, "&JPEG...", "", C::SaveJpeg, E::NeedsWindow},
};

constexpr std::array kPrint{
    MenuItem{"mnuFile2", -1, "&Graph...", "", C::PrintGraph, E::NeedsWindow},
    MenuItem{"mnuFile3", -1, "&History...", "", C::PrintHistory, E::NeedsWindow},
};

constexpr std::array kFile{
    MenuItem{"mnuFile", 0, "&New", "Ctrl+N", C::New, E::Always},
    // Ctrl+F4 closes the active child, as in every multiple-document frame.
    MenuItem{"mnuFile", 1, "&Close", "Ctrl+F4", C::Close, E::NeedsWindow},
    Sep("mnuFile", 2),
    MenuItem{"mnuFile", 3, "&Draw Function", "F5", C::DrawFunction, E::NeedsWindow},
    MenuItem{"mnuFile", 4, "Draw &Tangent && Normal...", "", C::DrawTangent, E::NeedsWindow},
    MenuItem{"mnuFile", 5, "Draw &Integral && Average...", "", C::DrawIntegral, E::NeedsWindow},
    MenuItem{"mnuFile", 6, "Draw D&erivative", "", C::DrawDerivative, E::NeedsWindow},
    MenuItem{"mnuFile", 7, "S&wap Y - X", "", C::SwapYX, E::NeedsWindow},
    Sep("mnuFile", 8),
    MenuItem{"mnuFile", 9, "Save &Graph As", "", C::None, E::Always, K::None, 0, kSaveAs},
    MenuItem{"mnuFile", 10, "&Save History...", "", C::SaveHistory, E::NeedsMathPad},
    Sep("mnuFile", 11),
    MenuItem{"mnuFile", 12, "&Print", "", C::None, E::Always, K::None, 0, kPrint},
    MenuItem{"mnuFile", 13, "Print Set&up...", "", C::PrintSetup, E::Always},
    // The recent functions follow this separator, which shows only with them.
    Sep("mnuSeparator2"),
    Sep("mnuFile", 14),
    MenuItem{"mnuFile", 15, "E&xit", "", C::Exit, E::Always},
};

constexpr std::array kEdit{
    MenuItem{"mnued1", -1, "&Copy Graph", "", C::CopyGraph, E::NeedsWindow},
    MenuItem{"mnued2", -1, "Clear &All", "", C::ClearAll, E::NeedsWindow},
    MenuItem{"mnued3", -1, "Clear &Screen", "", C::ClearScreen, E::NeedsWindow},
    MenuItem{"mnued4", -1, "Clear &History", "", C::ClearHistory, E::NeedsWindow},
    Sep(),
    MenuItem{"mnuclearall", -1, "Clear &Grid", "", C::ClearGrid, E::NeedsWindow},
    MenuItem{"mnuredraw", -1, "&Redraw Grid", "", C::RedrawGrid, E::NeedsWindow},
    Sep(),
    MenuItem{"mnuglwidth", -1, "Graph Line &Width...", "", C::LineWidth, E::NeedsWindow},
};

constexpr std::array kView{
    MenuItem{"mnuView", 0, "&Drawing Toolbar", "", C::ViewBand1, E::Always, K::Band, 1},
    MenuItem{"mnuView", 1, "&Standard Toolbar", "", C::ViewBand2, E::Always, K::Band, 2},
    MenuItem{"mnuView", 2, "&Calculators Toolbar", "", C::ViewBand3, E::Always, K::Band, 3},
    MenuItem{"mnuView", 3, "&Tools Toolbar", "", C::ViewBand4, E::Always, K::Band, 4},
};

constexpr std::array kType{
    MenuItem{"mnuftype", 0, "&Cartesian", "", C::TypeCartesian, E::NeedsWindow, K::Type, 1},
    MenuItem{"mnuftype", 1, "&Parametric", "", C::TypeParametric, E::NeedsWindow, K::Type, 2},
    MenuItem{"mnuftype", 2, "P&olar", "", C::TypePolar, E::NeedsWindow, K::Type, 3},
};

constexpr std::array kZoom{
    MenuItem{"mnuZoom", 0, "Zoom&in", "", C::ZoomIn, E::NeedsWindow, K::Zoom, 0},
    MenuItem{"mnuZoom", 1, "Zoom&out", "", C::ZoomOut, E::NeedsWindow, K::Zoom, 1},
    MenuItem{"mnuZoom", 2, "&Default", "", C::ZoomDefault, E::NeedsWindow, K::Zoom, 2},
    Sep("mnuZoom", 3),
    MenuItem{"mnuZoom", 4, "&Custom...", "", C::ZoomCustom, E::NeedsWindow, K::Zoom, 4},
};

constexpr std::array kMove{
    MenuItem{"mnuMove", 0, "&Left...", "", C::MoveLeft, E::NeedsWindow},
    MenuItem{"mnuMove", 1, "&Right...", "", C::MoveRight, E::NeedsWindow},
    MenuItem{"mnuMove", 2, "&Up...", "", C::MoveUp, E::NeedsWindow},
    MenuItem{"mnuMove", 3, "&Down...", "", C::MoveDown, E::NeedsWindow},
    MenuItem{"mnuMove", 4, "&Center", "", C::MoveCenter, E::NeedsWindow},
};

constexpr std::array kColor{
    MenuItem{"mnuColor", 0, "&Background...", "", C::ColorBack, E::NeedsWindow},
    MenuItem{"mnuColor", 1, "G&rid...", "", C::ColorGrid, E::NeedsWindow},
    MenuItem{"mnuColor", 2, "&Axes...", "", C::ColorAxes, E::NeedsWindow},
    MenuItem{"mnuColor", 3, "&Graph...", "", C::ColorGraph, E::NeedsWindow},
    MenuItem{"mnuColor", 4, "&Default", "", C::ColorDefault, E::NeedsWindow},
};

constexpr std::array kGraph{
    MenuItem{"mnuFtypeMenu", -1, "&Function Type", "", C::None, E::Always, K::None, 0, kType},
    MenuItem{"mnuZoomMenu", -1, "&Zoom", "", C::None, E::Always, K::None, 0, kZoom},
    MenuItem{"mnuMoveMenu", -1, "&Move", "", C::None, E::Always, K::None, 0, kMove},
    MenuItem{"mnuColorMenu", -1, "&Color", "", C::None, E::Always, K::None, 0, kColor},
    Sep(),
    MenuItem{"mnuOptions", -1, "Plotting &Options...", "", C::Options, E::NeedsWindow},
};

constexpr std::array kTools{
    MenuItem{"mnuTools", 0, "&Evaluator...", "", C::ToolEvaluator, E::Always},
    MenuItem{"mnuTools", 1, "&Point Evaluate...", "", C::ToolPointEvaluate, E::Always},
    Sep("mnuTools", 2),
    MenuItem{"mnuTools", 3, "&Integrate...", "", C::ToolIntegrate, E::Always},
    MenuItem{"mnuTools", 4, "Find Critic&al Points...", "", C::ToolCriticalPoints, E::NeedsWindow},
    MenuItem{"mnuTools", 5, "Find &Zeros...", "", C::ToolZeros, E::Always},
    MenuItem{"mnuTools", 6, "Find I&ntersection...", "", C::ToolIntersection, E::Always},
    Sep("mnuTools", 7),
    MenuItem{"mnuTools", 8, "Insert &Label...", "", C::ToolLabel, E::NeedsWindow},
    MenuItem{"mnuTools", 9, "&Value Tables...", "", C::ToolValueTables, E::Always},
    Sep("mnuTools", 10),
    // The scientific calculator's entry has no action in this version.
    MenuItem{"mnuTools", 11, "&Scientific Calculator...", "", C::ToolScientific, E::NotBuilt},
    MenuItem{"mnuTools", 12, "&Complex Calculator...", "", C::ToolComplex, E::Always},
    MenuItem{"mnuTools", 13, "&Geometry Calculator...", "", C::ToolGeometry, E::Always},
    MenuItem{"mnuTools", 14, "&Matrix Calculator...", "", C::ToolMatrix, E::Always},
    MenuItem{"mnuTools", 15, "&Units Converter...", "", C::ToolConverter, E::Always},
    Sep("mnuTools", 16),
    MenuItem{"mnuTools", 17, "Mat&hPad", "", C::ToolMathPad},
};

constexpr std::array kWindow{
    MenuItem{"mnuWinall", 0, "&Cascade", "", C::WindowCascade, E::NeedsWindow},
    MenuItem{"mnuWinall", 1, "&Tile", "", C::WindowTile, E::NeedsWindow},
};

constexpr std::array kHelp{
    MenuItem{"mnuHelpContents", -1, "&Contents...", "F1", C::HelpContents, E::Always},
    MenuItem{"mnuhelp", -1, "&Read Me...", "", C::HelpWeb, E::Always},
    Sep(),
    MenuItem{"mnuAbout", -1, "&About Velmora...", "", C::About, E::Always},
};

constexpr std::array kMenuBar{
    TopMenu{"mnuFileMenu", "&File", kFile},    TopMenu{"mnuEdit", "&Edit", kEdit},
    TopMenu{"mnuViewMenu", "&View", kView},    TopMenu{"mnuGraph", "&Graph", kGraph},
    TopMenu{"mnuToolsMenu", "&Tools", kTools}, TopMenu{"mnuExamples", "&Examples", {}},
    TopMenu{"mnuWin", "&Window", kWindow},     TopMenu{"mnuHelpMenu", "&Help", kHelp},
};

const MenuItem* Find(std::span<const MenuItem> items, std::string_view name, int index) {
  for (const MenuItem& item : items) {
    if (item.name == name && item.index == index) return &item;
    if (const MenuItem* inner = Find(item.submenu, name, index)) return inner;
  }
  return nullptr;
}

}  // namespace

std::span<const TopMenu> MenuBar() { return kMenuBar; }

char AccessLetter(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] == '&') {
      ++i;  // a literal ampersand
      continue;
    }
    return caption[i + 1];
  }
  return 0;
}

const MenuItem* FindMenuItem(std::string_view name, int index) {
  for (const TopMenu& menu : kMenuBar) {
    if (const MenuItem* item = Find(menu.items, name, index)) return item;
  }
  return nullptr;
}

}  // namespace velmora::app
