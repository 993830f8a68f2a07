// The graph window's labels: composed in their dialog, held over the plot,
// dragged, and burnt into the picture or thrown away.
#include <cmath>

#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/numtext.h"
#include "graph/graphwindow.h"

namespace velmora::graph {

std::optional<std::string> GraphWindow::mnulabel() {
  if (label_.Visible()) {
    services_.messages->Show(std::string(kLabelInHand), std::string(kDefaultTitle),
                             platform::MsgIcon::Exclamation);
    return std::nullopt;
  }
  const std::string y = boxes_.labY().Caption + boxes_.txtY().Text;
  if (boxes_.optFunkcije() == kParametric) return boxes_.LABx().Caption + boxes_.txtX().Text + "  " + y;
  return y;
}

bool GraphWindow::cmdLabelL(const LabelStyle& style, double left, double top) {
  if (style.text.empty()) {
    services_.messages->Show(std::string(kLabelEmpty), std::string(kDefaultTitle),
                             platform::MsgIcon::Exclamation);
    return false;
  }
  label_.Show(style, left, top);
  return true;
}

std::optional<double> GraphWindow::AskLabelAngle() {
  const auto answer = services_.input->Ask(std::string(kLabelAnglePrompt), std::string(kDefaultTitle), "0");
  if (!answer || answer->empty()) return std::nullopt;
  double value = 0;
  bool numeric = false;
  expr::ResumeNext([&] {
    numeric = expr::IsNumericText(*answer);
    value = expr::TextToNumber(*answer);
  });
  if (!numeric || value < -180 || value > 180) return std::nullopt;
  return value;
}

void GraphWindow::DragLabel(double dx, double dy) {
  lblChart_.Caption = std::string(kLabelDragHint);
  label_.MoveBy(dx, dy);
}

void GraphWindow::daLabele() {
  if (!label_.Visible()) return;
  expr::ResumeNext(
      [&] { surface_.BurnLabel(label_.Style(), label_.Left(), label_.Top(), surface_.BackColor()); });
  label_.Hide();
}

}  // namespace velmora::graph
