// Zoom and move of the graph window. Both clear the surface and paint the
// paper; the frame then replays the functions with RedrawFunc.
#include <cmath>

#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/numtext.h"
#include "graph/drawingguard.h"
#include "graph/graphwindow.h"
#include "platform/settingskeys.h"

namespace velmora::graph {
namespace {

// The checked mnuZoom entries.
constexpr int kZoomInEntry = 0;
constexpr int kZoomOutEntry = 1;
constexpr int kDefaultEntry = 2;
constexpr int kCustomEntry = 4;

constexpr double kMinZoom = 5;
constexpr double kMaxZoom = 200;

// The fixed presets: value, checked entry, text of the active entry. "Zoom
// out" sets 15 while its text says 10; the pair stays as it is.
struct Preset {
  double value;
  int checked;
  std::string_view text;
};
constexpr Preset kZoomIn{50, kZoomInEntry, "> Zoom&In (50)"};
constexpr Preset kZoomOut{15, kZoomOutEntry, "> Zoom&Out (10)"};
constexpr Preset kZoomDefault{30, kDefaultEntry, "> &Default (30)"};
// The examples' own zooms are custom ones.
constexpr double kZumDec = 8;
constexpr double kZumStef = 15;
constexpr double kZumGama = 44;
constexpr double kZumPuding = 177;

}  // namespace

void GraphWindow::Zumiraj() {
  lblzm_.Caption = expr::NumberToText(view_.Zoom());
  Clearwith();
  DrawLines();
}

void GraphWindow::ZoomPreset(double value, int checked, std::string text) {
  if (draw_.Drawing()) return;
  zoomMenu_.Checked = checked;
  view_.SetZoom(value);
  lblzm_.Caption = expr::NumberToText(value);
  Clearwith();
  DrawLines();
  zoomMenu_.ZoomIn = "Zoom&In";
  zoomMenu_.ZoomOut = "Zoom&Out";
  zoomMenu_.Default = "&Default";
  zoomMenu_.Custom = "&Custom...";
  switch (checked) {
    case kZoomInEntry: zoomMenu_.ZoomIn = std::move(text); break;
    case kZoomOutEntry: zoomMenu_.ZoomOut = std::move(text); break;
    case kDefaultEntry: zoomMenu_.Default = std::move(text); break;
    default: zoomMenu_.Custom = std::move(text); break;
  }
  view_.SetZlevel(value);
}

void GraphWindow::mnuzoomin() { ZoomPreset(kZoomIn.value, kZoomIn.checked, std::string(kZoomIn.text)); }
void GraphWindow::mnuzoomout() { ZoomPreset(kZoomOut.value, kZoomOut.checked, std::string(kZoomOut.text)); }
void GraphWindow::mnuZoomDef() {
  ZoomPreset(kZoomDefault.value, kZoomDefault.checked, std::string(kZoomDefault.text));
}

void GraphWindow::ZumDec() {
  ZoomPreset(kZumDec, kCustomEntry, "> Custom (" + expr::NumberToText(kZumDec) + ")");
}
void GraphWindow::ZumStef() {
  ZoomPreset(kZumStef, kCustomEntry, "> Custom (" + expr::NumberToText(kZumStef) + ")");
}
void GraphWindow::ZumGama() {
  ZoomPreset(kZumGama, kCustomEntry, "> Custom (" + expr::NumberToText(kZumGama) + ")");
}
void GraphWindow::ZumPuding() {
  ZoomPreset(kZumPuding, kCustomEntry, "> Custom (" + expr::NumberToText(kZumPuding) + ")");
}

void GraphWindow::mnuFineZoom() {
  if (draw_.Drawing()) return;
  ApplyFineZoom(services_.input->Ask("Select zooming factor in range (5-200).", "Zooming", "").value_or(""));
}

void GraphWindow::ApplyFineZoom(std::string_view answer) {
  if (draw_.Drawing() || answer.empty()) return;
  double value = 0;
  try {
    value = expr::TextToNumber(answer);
  } catch (const expr::Fault&) {
    return;  // a number beyond any double is no zoom
  }
  // The refused value stays in Zoom; the view is not repainted until the
  // next command.
  view_.SetZoom(value);
  if (value < kMinZoom || value > kMaxZoom) {
    services_.messages->Show("Input out of range (5-200)!", std::string(kDefaultTitle),
                             platform::MsgIcon::None);
    return;
  }
  ZoomPreset(value, kCustomEntry, "> &Custom (" + expr::NumberToText(value) + ")");
}

void GraphWindow::Activate() {
  // The text-only forms of the presets that a window shows when it becomes
  // the active one.
  zoomMenu_.Custom = "Custom...";
  zoomMenu_.ZoomIn = "Zoomin";
  zoomMenu_.ZoomOut = "Zoomout";
  zoomMenu_.Default = "Default";
  const double zoom = view_.Zoom();
  if (zoom == kZoomOut.value) {
    zoomMenu_.ZoomOut = "> Zoomout (10)";
    zoomMenu_.Checked = kZoomOutEntry;
  } else if (zoom == kZoomDefault.value) {
    zoomMenu_.Default = "> Default (30)";
    zoomMenu_.Checked = kDefaultEntry;
  } else if (zoom == kZoomIn.value) {
    zoomMenu_.ZoomIn = "> Zoom&In (50)";
    zoomMenu_.Checked = kZoomInEntry;
  } else {
    zoomMenu_.Custom = "> Custom (" + expr::NumberToText(zoom) + ")";
    zoomMenu_.Checked = kCustomEntry;
  }
  view_.SetZlevel(zoom);
  if (services_.host != nullptr) services_.host->ShowStatusText(view_.MovedText());
}

void GraphWindow::Repaint() {
  {
    DrawingGuard drawing(draw_);
    Clearwith();
    DrawLines();
  }
  view_.UpdateMoveCentre(surface_.ScaleWidth(), surface_.ScaleHeight());
}

void GraphWindow::AskMove(std::string_view title, MoveDirection direction) {
  if (draw_.Drawing()) return;
  ApplyMove(direction,
            services_.input->Ask("Enter value for moving center of plotting area.", std::string(title), "1")
                .value_or(""));
}

void GraphWindow::ApplyMove(MoveDirection direction, std::string_view answer) {
  if (draw_.Drawing() || answer.empty()) return;
  // The answer counts grid steps of the X axis, whichever way the move goes.
  double shift = 0;
  expr::ResumeNext([&] {
    const double gridStep = expr::TextToNumber(
        platform::ReadSetting(*services_.settings, platform::keys::kGrid, platform::keys::grid::kScaleX));
    shift = expr::RoundTo(expr::TextToNumber(answer) * gridStep, 1);
  });
  view_.Move(direction, answer, shift);
  Repaint();
  if (services_.host != nullptr) services_.host->ShowStatusText(view_.MovedText());
}

void GraphWindow::mnuright() { AskMove("Moving Right", MoveDirection::Right); }
void GraphWindow::mnuleft() { AskMove("Moving Left", MoveDirection::Left); }
void GraphWindow::mnuup() { AskMove("Moving Up", MoveDirection::Up); }
void GraphWindow::mnudown() { AskMove("Moving Down", MoveDirection::Down); }

void GraphWindow::mnuCenter() {
  if (draw_.Drawing()) return;
  view_.SetCentre(surface_.ScaleWidth() / 2, surface_.ScaleHeight() / 2);
  Repaint();
  view_.ResetMovedText();
  if (services_.host != nullptr) services_.host->ShowStatusText(view_.MovedText());
}

}  // namespace velmora::graph
