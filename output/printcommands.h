#pragma once

#include <string_view>

#include "base/messagebox.h"

namespace velmora::output {

// The print commands' texts and the history print's choice.
class PrintCommands {
 public:
  static constexpr std::string_view kNothingToPrint = "Nothing to print.";
  static constexpr std::string_view kHistoryQuestion =
      "Open function history in MathPad and edit it, save or print?";
  static constexpr std::string_view kTitle = "Velmora";
  static constexpr std::string_view kPrintFailed = "The printer could not be started.";

  // Where the function history goes from File > Print > History.
  enum class HistoryRoute { MathPad, Printer };
  // Asks the history question (yes and no). Yes opens the history in
  // MathPad, to be edited and printed there; with no MathPad in this
  // version, and on no, the history goes to the printer as it stands.
  static HistoryRoute AskHistoryRoute(base::MessageBox& messages, bool mathPadPresent);
  // "Nothing to print." in a plain box.
  static void NothingToPrint(base::MessageBox& messages);
};

}  // namespace velmora::output
