#include "app/framecommands.h"

namespace velmora::app {
namespace {

// Zezaj is set while a command changes the window.
class ChangeScope {
 public:
  explicit ChangeScope(graph::GraphWindow& logic) : logic_(logic) { logic_.SetZezaj(true); }
  ~ChangeScope() { logic_.SetZezaj(false); }
  ChangeScope(const ChangeScope&) = delete;
  ChangeScope& operator=(const ChangeScope&) = delete;

 private:
  graph::GraphWindow& logic_;
};

// The Color menu's entries in the window's order.
int ColourIndex(Command command) {
  switch (command) {
    case Command::ColorBack: return 0;
    case Command::ColorGrid: return 1;
    case Command::ColorAxes: return 2;
    case Command::ColorGraph: return 3;
    case Command::ColorDefault: return 4;
    default: return -1;
  }
}

}  // namespace

bool FrameCommands::Run(Command command, GraphChild* child) {
  const auto with = [child](auto routine) {
    if (child != nullptr) routine(*child);
  };
  switch (command) {
    case Command::DrawFunction: with([](GraphChild& c) { c.DrawFunction(); }); break;
    case Command::SwapYX: with([](GraphChild& c) { c.SwapYX(); }); break;
    case Command::CopyGraph: with([](GraphChild& c) { c.Kopirajgraf(); }); break;
    case Command::SaveBmp: with([](GraphChild& c) { c.Sav1(); }); break;
    case Command::LineWidth: with([](GraphChild& c) { c.mnuPlotWidth(); }); break;
    case Command::Options: with([](GraphChild& c) { c.OpenPlottingOptions(); }); break;
    case Command::ClearAll: with([](GraphChild& c) { c.ClearAll(); }); break;
    case Command::ClearScreen: with([](GraphChild& c) { c.ClearScreen(); }); break;
    case Command::ClearHistory: with([](GraphChild& c) { c.mnuclhistory(); }); break;
    case Command::ClearGrid: with([](GraphChild& c) { c.ClearGrid(); }); break;
    case Command::RedrawGrid: with([](GraphChild& c) { c.RedrawGrid(); }); break;
    case Command::ClearFunction: with([](GraphChild& c) { c.ClearFju(); }); break;
    case Command::DrawTangent: with([](GraphChild& c) { c.mnuDrawTangent(); }); break;
    case Command::DrawIntegral: with([](GraphChild& c) { c.mnuDrawIntegral(false); }); break;
    case Command::DrawIntegralAverage: with([](GraphChild& c) { c.mnuDrawIntegral(true); }); break;
    case Command::DrawDerivative: with([](GraphChild& c) { c.CrtajFJUDeriv(); }); break;
    case Command::ToolLabel: with([](GraphChild& c) { c.mnulabel(); }); break;
    case Command::SaveHistory: with([](GraphChild& c) { c.mnusaveHistory(); }); break;
    case Command::ColorBack:
    case Command::ColorGrid:
    case Command::ColorAxes:
    case Command::ColorGraph:
    case Command::ColorDefault: {
      const int index = ColourIndex(command);
      with([index](GraphChild& c) { c.ColourMenu(index); });
      break;
    }
    case Command::TypeCartesian: FunctionType(graph::kCartesian, child); break;
    case Command::TypeParametric: FunctionType(graph::kParametric, child); break;
    case Command::TypePolar: FunctionType(graph::kPolar, child); break;
    case Command::ZoomIn:
    case Command::ZoomOut:
    case Command::ZoomDefault:
    case Command::ZoomCustom:
    case Command::MoveLeft:
    case Command::MoveRight:
    case Command::MoveUp:
    case Command::MoveDown:
    case Command::MoveCenter: ViewCommand(command, child); break;
    default: return false;
  }
  return true;
}

void FrameCommands::ViewCommand(Command command, GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.State().Drawing()) return;
  {
    ChangeScope scope(logic);
    switch (command) {
      case Command::ZoomIn: logic.mnuzoomin(); break;
      case Command::ZoomOut: logic.mnuzoomout(); break;
      case Command::ZoomDefault: logic.mnuZoomDef(); break;
      case Command::ZoomCustom: logic.mnuFineZoom(); break;
      case Command::MoveLeft: logic.mnuleft(); break;
      case Command::MoveRight: logic.mnuright(); break;
      case Command::MoveUp: logic.mnuup(); break;
      case Command::MoveDown: logic.mnudown(); break;
      case Command::MoveCenter: logic.mnuCenter(); break;
      default: return;
    }
    // With AutoRedraw off RedrawFunc forgets the functions: the paper stays
    // empty.
    if (logic.State().KolkoFunkc() > 0) logic.RedrawFunc();
  }
  child->SyncFromLogic();
}

void FrameCommands::FunctionType(int type, GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.State().Drawing()) return;
  logic.optFunk(type);
  child->SyncFromLogic();
}

void FrameCommands::DrawRecent(std::string_view line, GraphChild* child) {
  if (child == nullptr || line.empty()) return;
  auto& logic = child->Logic();
  if (logic.State().Drawing()) return;
  logic.PodeliFje(line);
  child->SyncFromLogic();
  if (logic.Boxes().optFunkcije() == graph::kPolar) {
    logic.CrtajPolar();
  } else {
    logic.CrtajFJU();
  }
  child->SyncFromLogic();
}

void FrameCommands::LoadExample(const graph::Example& example, GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.State().Drawing()) return;
  graph::LoadExample(logic, example);
  child->SyncFromLogic();
}

}  // namespace velmora::app
