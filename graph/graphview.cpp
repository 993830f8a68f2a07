// Zoom and move of the graph window. Both clear the surface and paint the
// paper; the frame then replays the functions with RedrawFunc.
#include <cmath>

#include "expr/fault.h"
#include "expr/numtext.h"
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

template <class Statement>
void ResumeNext(Statement&& statement) {
  try {
    statement();
  } catch (const expr::Fault&) {
  }
}

}  // namespace

void GraphWindow::Zumiraj() {
  lblzm.Caption = expr::NumberToText(Zoom);
  Clearwith();
  DrawLines();
}

void GraphWindow::ZoomPreset(double value, int checked, std::string text) {
  if (Drawing) return;
  zoomMenu.Checked = checked;
  Zoom = value;
  lblzm.Caption = expr::NumberToText(value);
  Clearwith();
  DrawLines();
  zoomMenu.ZoomIn = "Zoom&In";
  zoomMenu.ZoomOut = "Zoom&Out";
  zoomMenu.Default = "&Default";
  zoomMenu.Custom = "&Custom...";
  switch (checked) {
    case kZoomInEntry: zoomMenu.ZoomIn = std::move(text); break;
    case kZoomOutEntry: zoomMenu.ZoomOut = std::move(text); break;
    case kDefaultEntry: zoomMenu.Default = std::move(text); break;
    default: zoomMenu.Custom = std::move(text); break;
  }
  zlevel = value;
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
  if (Drawing) return;
  const std::string answer =
      services_.input->Ask("Select zooming factor in range (5-200).", "Zooming", "").value_or("");
  if (answer.empty()) return;
  double value = 0;
  try {
    value = expr::TextToNumber(answer);
  } catch (const expr::Fault&) {
    return;  // a number beyond any double is no zoom
  }
  // The refused value stays in Zoom; the view is not repainted until the
  // next command.
  Zoom = value;
  if (Zoom < kMinZoom || Zoom > kMaxZoom) {
    services_.messages->Show("Input out of range (5-200)!", std::string(kDefaultTitle),
                             platform::MsgIcon::None);
    return;
  }
  ZoomPreset(Zoom, kCustomEntry, "> &Custom (" + expr::NumberToText(Zoom) + ")");
}

void GraphWindow::Activate() {
  // The text-only forms of the presets that a window shows when it becomes
  // the active one.
  zoomMenu.Custom = "Custom...";
  zoomMenu.ZoomIn = "Zoomin";
  zoomMenu.ZoomOut = "Zoomout";
  zoomMenu.Default = "Default";
  if (Zoom == kZoomOut.value) {
    zoomMenu.ZoomOut = "> Zoomout (10)";
    zoomMenu.Checked = kZoomOutEntry;
  } else if (Zoom == kZoomDefault.value) {
    zoomMenu.Default = "> Default (30)";
    zoomMenu.Checked = kDefaultEntry;
  } else if (Zoom == kZoomIn.value) {
    zoomMenu.ZoomIn = "> Zoom&In (50)";
    zoomMenu.Checked = kZoomInEntry;
  } else {
    zoomMenu.Custom = "> Custom (" + expr::NumberToText(Zoom) + ")";
    zoomMenu.Checked = kCustomEntry;
  }
  zlevel = Zoom;
  if (services_.host != nullptr) services_.host->ShowStatusText(MovedText);
}

double GraphWindow::PomeriX(double v) const { return (MovedLeft || MovedRight) ? v - MoveX : v; }
double GraphWindow::PomeriY(double v) const { return (MovedUp || MovedDown) ? v - MoveY : v; }

void GraphWindow::Repaint() {
  Drawing = true;
  Clearwith();
  DrawLines();
  Drawing = false;
  ResumeNext([&] { MoveX = expr::RoundTo((CenterX - surface_.ScaleWidth() / 2) / Zoom, 3); });
  ResumeNext([&] { MoveY = expr::RoundTo(-(CenterY - surface_.ScaleHeight() / 2) / Zoom, 3); });
}

// axis 0 moves CenterX, axis 1 CenterY; sign +1 is right or up.
void GraphWindow::Move(std::string_view title, std::string_view tag, int axis, int sign) {
  if (Drawing) return;
  const std::string answer =
      services_.input->Ask("Enter value for moving center of plotting area.", std::string(title), "1")
          .value_or("");
  if (answer.empty()) return;
  if (axis == 0) {
    MovedRight = sign > 0;
    MovedLeft = sign < 0;
  } else {
    MovedUp = sign > 0;
    MovedDown = sign < 0;
  }
  // The answer counts grid steps of the X axis, whichever way the move goes.
  double shift = 0;
  ResumeNext([&] {
    const double gridStep = expr::TextToNumber(
        platform::ReadSetting(*services_.settings, platform::keys::kGrid, platform::keys::grid::kScaleX));
    shift = expr::RoundTo(expr::TextToNumber(answer) * gridStep, 1);
  });
  if (axis == 0) {
    CenterX += sign * Zoom * shift;
  } else {
    CenterY -= sign * Zoom * shift;  // up raises the plot: the origin's row goes up
  }
  Repaint();
  LastMoveInput = answer;
  LastMoveShift = shift;
  MovedText += std::string(tag) + answer;
  if (services_.host != nullptr) services_.host->ShowStatusText(MovedText);
}

void GraphWindow::mnuright() { Move("Moving Right", " R: ", 0, +1); }
void GraphWindow::mnuleft() { Move("Moving Left", " L: ", 0, -1); }
void GraphWindow::mnuup() { Move("Moving Up", " Up: ", 1, +1); }
void GraphWindow::mnudown() { Move("Moving Down", " D: ", 1, -1); }

void GraphWindow::mnuCenter() {
  if (Drawing) return;
  CenterX = surface_.ScaleWidth() / 2;
  CenterY = surface_.ScaleHeight() / 2;
  Repaint();
  MovedText = "Moved:";
  if (services_.host != nullptr) services_.host->ShowStatusText(MovedText);
}

}  // namespace velmora::graph
