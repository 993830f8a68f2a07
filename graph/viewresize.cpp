#include "graph/viewresize.h"

#include <cmath>

#include "graph/graphwindow.h"
#include "graph/settingnumber.h"
#include "platform/settingskeys.h"

namespace velmora::graph {

ViewResize::Plan ViewResize::PlanFor(double oldWidth, double oldHeight, double newWidth, double newHeight) {
  Plan plan;
  plan.shiftX = (newWidth - oldWidth) / 2;
  plan.shiftY = (newHeight - oldHeight) / 2;
  // Whole pixels: the picture moves as its origin's pixel does, rounding
  // half a pixel toward zero so a grow and the shrink back cancel.
  plan.pictureDx = static_cast<int>(std::trunc(plan.shiftX));
  plan.pictureDy = static_cast<int>(std::trunc(plan.shiftY));
  return plan;
}

void ViewResize::Apply(GraphWindow& window, const Plan& plan) {
  window.ShiftCentre(plan.shiftX, plan.shiftY);
  Surface& s = window.pDraw();
  s.SetCurrentX(s.CurrentX() + plan.pictureDx);
  s.SetCurrentY(s.CurrentY() + plan.pictureDy);
}

bool ViewResize::RepaintWhenSettled(const GraphWindow& window, platform::SettingsStore& settings) {
  if (window.State().Drawing()) return false;
  return window.State().KolkoFunkc() == 0 ||
         ReadSettingNumber(settings, platform::keys::kGrid, platform::keys::grid::kAutored) == 1;
}

void ViewResize::Repaint(GraphWindow& window, platform::SettingsStore& settings) {
  window.Clearwith();
  window.DrawLines();
  if (window.State().KolkoFunkc() > 0 &&
      ReadSettingNumber(settings, platform::keys::kGrid, platform::keys::grid::kAutored) == 1)
    window.RedrawFunc();
}

}  // namespace velmora::graph
