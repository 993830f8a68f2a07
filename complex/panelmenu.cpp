#include "complex/panelmenu.h"

namespace velmora::complex {

bool PanelMenu::Click() {
  const bool show = caption_ == kShow;
  caption_ = std::string(show ? kHide : kShow);
  return show;
}

}  // namespace velmora::complex
