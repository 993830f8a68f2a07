#include "app/menustate.h"

namespace velmora::app {

bool IsEnabled(EnableRule rule, const FrameView& view) {
  switch (rule) {
    case EnableRule::Always: return true;
    case EnableRule::NeedsWindow: return view.windowCount > 0 && view.hasActive;
    case EnableRule::NotBuilt: return false;
    case EnableRule::HelpFile: return view.helpFile;
    case EnableRule::NeedsMathPad: return view.windowCount > 0 && view.hasActive && view.mathPad;
  }
  return false;
}

bool IsChecked(CheckRule rule, int value, const FrameView& view) {
  switch (rule) {
    case CheckRule::None: return false;
    case CheckRule::Band: return value >= 1 && value <= 4 && view.bands[static_cast<std::size_t>(value - 1)];
    case CheckRule::Type: return view.hasActive && view.functionType == value;
    case CheckRule::Zoom: return view.hasActive && view.zoom.Checked == value;
  }
  return false;
}

std::string ZoomMenuText(int zoomEntry, const graph::ZoomMenu& zoom) {
  switch (zoomEntry) {
    case 0: return zoom.ZoomIn;
    case 1: return zoom.ZoomOut;
    case 2: return zoom.Default;
    case 4: return zoom.Custom;
    default: return {};
  }
}

}  // namespace velmora::app
