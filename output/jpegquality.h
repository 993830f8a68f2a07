#pragma once

#include <string>
#include <string_view>

namespace velmora::output {

// The quality of the JPEG dialog: the slider `Slider1` (0 to 100) and the
// box `txtQuality` kept equal. The box takes the digits "0" to "9" only; a
// value beyond the slider's range is pulled back into it.
class JpegQuality {
 public:
  static constexpr int kMinimum = 0;
  static constexpr int kMaximum = 100;
  static constexpr std::string_view kDefaultText = "100";

  // Whether a typed character may go into the box.
  static bool AcceptsKey(char32_t character) { return character >= U'0' && character <= U'9'; }

  // A change of the box: the value it stands for, clamped to 0 to 100 (the
  // leading digits are read; no digits read as 0), and the text the box is
  // to show: the clamped value when the typed one was out of range, the
  // text itself otherwise.
  struct BoxChange {
    int value = 0;
    std::string text;
  };
  static BoxChange FromText(std::string_view text);

  // A change of the slider: the box's text.
  static std::string ToText(int value);
};

}  // namespace velmora::output
