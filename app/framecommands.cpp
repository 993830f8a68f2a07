#include "app/framecommands.h"

#include <tuple>

#include "platform/settingskeys.h"

namespace velmora::app {
namespace {

using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;

// Zezaj is set while a command changes the window.
class ChangeScope {
 public:
  explicit ChangeScope(graph::GraphWindow& logic) : logic_(logic) { logic_.Zezaj = true; }
  ~ChangeScope() { logic_.Zezaj = false; }
  ChangeScope(const ChangeScope&) = delete;
  ChangeScope& operator=(const ChangeScope&) = delete;

 private:
  graph::GraphWindow& logic_;
};

auto Colours(graph::GraphWindow& logic) {
  return std::make_tuple(logic.Graph_Clr, logic.GridColor, logic.AxesColor, logic.pDraw().BackColor());
}

}  // namespace

bool FrameCommands::AutoRedraw() { return platform::ReadSettingNumber(settings_, "Grid", "Autored") == 1; }

bool FrameCommands::Run(Command command, GraphChild* child) {
  switch (command) {
    case Command::DrawFunction:
      if (child != nullptr) child->DrawFunction();
      break;
    case Command::SwapYX:
      if (child != nullptr) child->SwapYX();
      break;
    case Command::CopyGraph:
      if (child != nullptr) child->Kopirajgraf();
      break;
    case Command::SaveBmp:
      if (child != nullptr) child->Sav1();
      break;
    case Command::LineWidth:
      if (child != nullptr) child->mnuPlotWidth();
      break;
    case Command::Options:
      if (child != nullptr) child->OpenPlottingOptions();
      break;
    case Command::ClearAll: ClearAll(child); break;
    case Command::ClearScreen: ClearScreen(child); break;
    case Command::ClearHistory: ClearHistory(child); break;
    case Command::ClearGrid: ClearGrid(child); break;
    case Command::RedrawGrid: RedrawGrid(child); break;
    case Command::ClearFunction: ClearFunction(child); break;
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
    case Command::MoveCenter:
    case Command::ColorBack:
    case Command::ColorGrid:
    case Command::ColorAxes:
    case Command::ColorGraph:
    case Command::ColorDefault: ViewCommand(command, child); break;
    default: return false;
  }
  return true;
}

void FrameCommands::ClearAll(GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.Drawing || logic.KolkoFunkc <= 0) return;
  if (messages_.Show("Clear graphs and equation lists?", "Clear All", MsgIcon::Question, MsgButtons::YesNo) !=
      MsgResult::Yes) {
    return;
  }
  logic.ClearGraph(true);
  child->SyncFromLogic();
}

void FrameCommands::ClearScreen(GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.Drawing) return;
  {
    ChangeScope scope(logic);
    logic.ClearGraph(false);
  }
  child->SyncFromLogic();
}

void FrameCommands::ClearHistory(GraphChild* child) {
  if (child == nullptr) return;
  if (messages_.Show("Clear Function History?", std::string(graph::GraphWindow::kDefaultTitle),
                     MsgIcon::Question, MsgButtons::YesNo) != MsgResult::Yes) {
    return;
  }
  if (history_ != nullptr) history_->Clear();
  child->Logic().rtb.clear();
  child->SyncFromLogic();
}

bool FrameCommands::ConfirmGridChange(graph::GraphWindow& logic) {
  if (logic.KolkoFunkc <= 0 || platform::ReadSettingNumber(settings_, "Grid", "Autored") != 0) return true;
  return messages_.Show("Your current graph(s) will be erased.\nContinue?", "Clear", MsgIcon::Question,
                        MsgButtons::OkCancel) == MsgResult::Ok;
}

void FrameCommands::ClearGrid(GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.Drawing || !ConfirmGridChange(logic)) return;
  logic.Clearwith();
  if (AutoRedraw()) logic.RedrawFunc();
  child->SyncFromLogic();
}

void FrameCommands::RedrawGrid(GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.Drawing || !ConfirmGridChange(logic)) return;
  logic.Redraw();
  if (AutoRedraw()) logic.RedrawFunc();
  child->SyncFromLogic();
}

void FrameCommands::ClearFunction(GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.Drawing) return;
  if (messages_.Show("Function expression will be erased.\nContinue?", "Clear Function", MsgIcon::Question,
                     MsgButtons::OkCancel) != MsgResult::Ok) {
    return;
  }
  logic.txtY.Text.clear();
  if (logic.optFunkcije == graph::kParametric) logic.txtX.Text.clear();
  child->SyncFromLogic();
}

void FrameCommands::ViewCommand(Command command, GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.Drawing) return;
  const auto before = Colours(logic);
  bool colours = false;
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
      case Command::ColorBack:
        child->mnuBojeBack();
        colours = true;
        break;
      case Command::ColorGrid:
        child->mnuBojeGrid();
        colours = true;
        break;
      case Command::ColorAxes:
        child->mnuBojeAxes();
        colours = true;
        break;
      case Command::ColorGraph:
        child->mnuBojeGraph();
        colours = true;
        break;
      case Command::ColorDefault:
        child->mnuBojeDef();
        colours = true;
        break;
      default: return;
    }
    if (colours && Colours(logic) != before) child->Sacboje();
    if (logic.KolkoFunkc > 0) logic.RedrawFunc();
  }
  child->SyncFromLogic();
}

void FrameCommands::FunctionType(int type, GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.Drawing) return;
  logic.optFunk(type);
  child->SyncFromLogic();
}

void FrameCommands::DrawRecent(std::string_view line, GraphChild* child) {
  if (child == nullptr || line.empty()) return;
  auto& logic = child->Logic();
  if (logic.Drawing) return;
  logic.PodeliFje(line);
  child->SyncFromLogic();
  if (logic.optFunkcije == graph::kPolar) {
    logic.CrtajPolar();
  } else {
    logic.CrtajFJU();
  }
  child->SyncFromLogic();
}

void FrameCommands::LoadExample(const graph::Example& example, GraphChild* child) {
  if (child == nullptr) return;
  auto& logic = child->Logic();
  if (logic.Drawing) return;
  graph::LoadExample(logic, example, settings_);
  child->SyncFromLogic();
}

}  // namespace velmora::app
