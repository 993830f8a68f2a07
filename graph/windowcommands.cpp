#include "graph/windowcommands.h"

#include "graph/graphwindow.h"
#include "graph/settingnumber.h"
#include "platform/picturesave.h"
#include "platform/settingskeys.h"

namespace velmora::graph {
namespace {

constexpr std::string_view kColours = platform::keys::kBoje;

Colour DefaultColour(std::string_view key) {
  return static_cast<Colour>(std::stoul(std::string(platform::DefaultOf(kColours, key))));
}

}  // namespace

// ---- Colours ------------------------------------------------------------------------

bool WindowCommands::ChooseColour(std::uint32_t& colour) {
  if (w_.State().Drawing() || colours_ == nullptr) return false;
  const auto chosen = colours_->Choose(colour);
  if (!chosen) return false;
  colour = *chosen & 0xFFFFFF;
  return true;
}

void WindowCommands::RepaintPaper() {
  w_.Clearwith();
  w_.DrawLines();
}

Colour WindowCommands::CurrentColour(ColourEntry entry) const {
  switch (entry) {
    case ColourEntry::Background: return w_.pDraw().BackColor();
    case ColourEntry::Grid: return w_.Pen().GridColor();
    case ColourEntry::Axes: return w_.Pen().AxesColor();
    // The dialog starts from the chosen colour, not from a random one.
    case ColourEntry::Graph: return w_.Pen().lblBoja();
    case ColourEntry::Default: break;
  }
  return 0;
}

void WindowCommands::SetColour(ColourEntry entry, Colour colour) {
  switch (entry) {
    case ColourEntry::Background:
      w_.pDraw().SetBackColor(colour);
      RepaintPaper();
      break;
    case ColourEntry::Grid:
      w_.SetGridColor(colour);
      RepaintPaper();
      break;
    case ColourEntry::Axes:
      w_.SetAxesColor(colour);
      RepaintPaper();
      break;
    case ColourEntry::Graph: w_.ChooseGraphColour(colour); break;
    case ColourEntry::Default: mnuBojeDef(); break;
  }
}

bool WindowCommands::mnuBojeBack() { return AskColour(ColourEntry::Background); }
bool WindowCommands::mnuBojeGrid() { return AskColour(ColourEntry::Grid); }
bool WindowCommands::mnuBojeAxes() { return AskColour(ColourEntry::Axes); }
bool WindowCommands::mnuBojeGraph() { return AskColour(ColourEntry::Graph); }

bool WindowCommands::AskColour(ColourEntry entry) {
  std::uint32_t colour = CurrentColour(entry);
  if (!ChooseColour(colour)) return false;
  SetColour(entry, colour);
  return true;
}

void WindowCommands::mnuBojeDef() {
  if (w_.State().Drawing()) return;
  w_.pDraw().SetBackColor(DefaultColour(platform::keys::boje::kPozadina));
  w_.ChooseGraphColour(DefaultColour(platform::keys::boje::kGrafik));
  w_.SetGridColor(DefaultColour(platform::keys::boje::kGrid));
  w_.SetAxesColor(DefaultColour(platform::keys::boje::kOse));
  RepaintPaper();
}

void WindowCommands::Sacboje() {
  const auto store = [&](std::string_view key, Colour colour) {
    platform::SetRegValue(settings_, kColours, key, std::to_string(colour & 0xFFFFFF));
  };
  store(platform::keys::boje::kPozadina, w_.pDraw().BackColor());
  store(platform::keys::boje::kGrafik, w_.Pen().lblBoja());
  store(platform::keys::boje::kGrid, w_.Pen().GridColor());
  store(platform::keys::boje::kOse, w_.Pen().AxesColor());
}

void WindowCommands::ColourMenu(ColourEntry entry) {
  if (w_.State().Drawing()) return;
  if (entry == ColourEntry::Default) {
    ApplyColour(entry);
    return;
  }
  // Zezaj stands while the dialog is open, as through the whole command.
  w_.SetZezaj(true);
  std::uint32_t colour = CurrentColour(entry);
  if (ChooseColour(colour)) ApplyColour(entry, colour);
  w_.SetZezaj(false);
}

void WindowCommands::ApplyColour(ColourEntry entry, Colour colour) {
  if (w_.State().Drawing()) return;
  w_.SetZezaj(true);
  SetColour(entry, colour & 0xFFFFFF);
  Sacboje();
  if (w_.State().KolkoFunkc() > 0) w_.RedrawFunc();
  w_.SetZezaj(false);
}

// ---- Edit menu ---------------------------------------------------------------------------

void WindowCommands::ClearAll() {
  if (w_.State().Drawing()) return;
  if (w_.State().KolkoFunkc() > 0) {
    const auto answer = messages_.Show(std::string(kClearAllQuestion), std::string(kClearAllTitle),
                                       platform::MsgIcon::Question, platform::MsgButtons::YesNo);
    if (answer != platform::MsgResult::Yes) return;
  }
  ApplyClearAll();
}

void WindowCommands::ApplyClearAll() {
  if (w_.State().Drawing()) return;
  w_.ClearGraph(true);
}

void WindowCommands::ClearScreen() {
  if (w_.State().Drawing()) return;
  w_.SetZezaj(true);
  w_.ClearGraph(false);
  w_.SetZezaj(false);
}

void WindowCommands::mnuclhistory() {
  if (w_.State().Drawing()) return;
  const auto answer =
      messages_.Show(std::string(kClearHistoryQuestion), std::string(GraphWindow::kDefaultTitle),
                     platform::MsgIcon::Question, platform::MsgButtons::YesNo);
  if (answer != platform::MsgResult::Yes) return;
  ApplyClearHistory();
}

void WindowCommands::ApplyClearHistory() {
  if (w_.State().Drawing()) return;
  if (history_ != nullptr) history_->Clear();
  w_.ClearHistoryView();
}

bool WindowCommands::AskBeforeErasing() {
  if (w_.State().KolkoFunkc() > 0 &&
      ReadSettingNumber(settings_, platform::keys::kGrid, platform::keys::grid::kAutored) == 0) {
    const auto answer = messages_.Show(std::string(kClearGridQuestion), std::string(kClearGridTitle),
                                       platform::MsgIcon::None, platform::MsgButtons::OkCancel);
    if (answer != platform::MsgResult::Ok) return false;
  }
  return true;
}

void WindowCommands::ClearGrid() {
  if (w_.State().Drawing() || !AskBeforeErasing()) return;
  ApplyClearGrid();
}

void WindowCommands::ApplyClearGrid() {
  if (w_.State().Drawing()) return;
  w_.Clearwith();
  if (AutoRedraw()) w_.RedrawFunc();
}

void WindowCommands::RedrawGrid() {
  if (w_.State().Drawing() || !AskBeforeErasing()) return;
  ApplyRedrawGrid();
}

void WindowCommands::ApplyRedrawGrid() {
  if (w_.State().Drawing()) return;
  w_.Redraw();
  if (AutoRedraw()) w_.RedrawFunc();
}

bool WindowCommands::AutoRedraw() {
  return ReadSettingNumber(settings_, platform::keys::kGrid, platform::keys::grid::kAutored) == 1;
}

void WindowCommands::ClearFju() {
  if (w_.State().Drawing()) return;
  const auto answer = messages_.Show(std::string(kClearFunctionQuestion), std::string(kClearFunctionTitle),
                                     platform::MsgIcon::None, platform::MsgButtons::OkCancel);
  if (answer != platform::MsgResult::Ok) return;
  ApplyClearFju();
}

void WindowCommands::ApplyClearFju() {
  if (w_.State().Drawing()) return;
  w_.ClearFunctionText();
}

void WindowCommands::SwapYX() {
  if (w_.State().Drawing()) return;
  w_.SwapYX();
}

// ---- Pictures ---------------------------------------------------------------------------------

bool WindowCommands::Sav1(const PictureWriter& write) {
  if (w_.State().Drawing() || files_ == nullptr) return false;
  static constexpr platform::PictureSaveTexts kTexts{kSaveTitle, kSaveFilter, kReplaceTitle, kReplaceQuestion,
                                                     kSaveFailed};
  return platform::SavePictureFile(*files_, messages_, kTexts, write);
}

bool WindowCommands::FrameOnCopies() {
  return ReadSettingNumber(settings_, platform::keys::kGrid, platform::keys::grid::kRam) == 1;
}

}  // namespace velmora::graph
