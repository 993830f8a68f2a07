#pragma once

#include <string>
#include <string_view>

namespace velmora::complex {

// The "&Show Panel" entry of the calculator's "Complex" popup. Its caption
// is its state: "&Show Panel" shows the panel, any other caption hides it.
// When the panel closes by itself the caption becomes "Show &Panel", which
// is not "&Show Panel": the next click hides (the already hidden panel) and
// brings "&Show Panel" back.
class PanelMenu {
 public:
  static constexpr std::string_view kShow = "&Show Panel";
  static constexpr std::string_view kHide = "&Hide Panel";
  static constexpr std::string_view kClosed = "Show &Panel";

  const std::string& Caption() const { return caption_; }
  // A click: returns true when the panel is to be shown, false when hidden.
  bool Click();
  // The panel window closed by itself.
  void PanelClosed() { caption_ = std::string(kClosed); }

 private:
  std::string caption_{kShow};
};

// The tool tip of cmdPan, the button that toggles the panel.
inline constexpr std::string_view kPanelButtonHide = "Hide panel";
inline constexpr std::string_view kPanelButtonShow = "Show panel";

}  // namespace velmora::complex
