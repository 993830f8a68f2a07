#include "geometry/solver.h"

#include "expr/numtext.h"

namespace velmora::geometry {

std::string Figure::ResultText() const {
  std::string text;
  for (std::size_t i = 0; i < result.size(); ++i) {
    if (i > 0) text += '\n';
    text += result[i];
  }
  return text;
}

std::size_t MenuEntry::InputCount() const {
  std::size_t n = 0;
  while (n < inputs.size() && !inputs[n].empty()) ++n;
  return n;
}

void ShowMessage(platform::MessageBox& box, std::string_view text, platform::MsgIcon icon) {
  box.Show(std::string(text), std::string(kMessageTitle), icon, platform::MsgButtons::Ok);
}

std::string Shown(Real value) { return expr::NumberToText(expr::RoundTo(value.Value(), 5)); }

std::string ShownDegrees(Real radians) { return Shown(radians * 180 / kPi); }

}  // namespace velmora::geometry
