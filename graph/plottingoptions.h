#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "platform/messagebox.h"
#include "platform/settingsstore.h"

namespace velmora::graph {

class GraphWindow;

// Plotting Options (`frmGridOpt`) without widgets: the values of its boxes
// and check boxes, which of them are enabled, and what Load, the clicks,
// Reset and Apply do with the section Grid of the settings and with the
// active graph window. The dialog is a thin view over it.
class PlottingOptions {
 public:
  static constexpr std::string_view kCaption = "Plotting Options";
  static constexpr std::string_view kEraseQuestion =
      "AutoRedraw options not selected. Your current graphs will be erased.\r\nContinue?";

  // A text box: control name, caption, key.
  struct TextBox {
    std::string_view control;
    std::string_view caption;
    std::string_view key;
  };
  // A check box: its number (Check1 to Check13), caption and key. Check7 and
  // Check11 are hidden: they follow the paper type.
  struct CheckBox {
    int number;
    std::string_view caption;
    std::string_view key;
    bool visible;
  };
  enum Text : int { kTxtX = 0, kTxtY = 1, kTxtX1 = 2, kTxtY1 = 3 };
  static constexpr int kChecks = 13;
  // The check boxes by the number Check(n) takes, with the key each writes.
  enum CheckNumber : int {
    kCheckHideGrid = 1,      // Axes
    kCheckAssignAxes = 2,    // Ozna
    kCheckTicksOnly = 3,     // Crte
    kCheckScaleNote = 4,     // Skala
    kCheckRandomColour = 5,  // Rnd
    kCheckAutoRedraw = 6,    // Autored
    kCheckPolarPaper = 7,    // PolarP, hidden
    kCheckNumbersX = 8,      // BrojX
    kCheckNumbersY = 9,      // BrojY
    kCheckGridColour = 10,   // BrojBoja
    kCheckTrigPaper = 11,    // Trigo, hidden
    kCheckDashes = 12,       // Dash
    kCheckFrame = 13,        // Ram
  };
  // The paper types, the index of Option2.
  enum Paper : int { kStandardPaper = 0, kPolarPaper = 1, kTrigPaper = 2 };
  static std::span<const TextBox> TextBoxes();
  static std::span<const CheckBox> CheckBoxes();
  // The paper types of Option2, index 0 to 2, and their captions.
  static std::span<const std::string_view> PaperCaptions();

  // ---- The controls ----------------------------------------------------------
  std::array<std::string, 4> texts;  // by Text
  // Check(n) for n = 1 to 13.
  bool Check(int n) const { return checks_.at(static_cast<std::size_t>(n - 1)); }
  void SetCheck(int n, bool on) { checks_.at(static_cast<std::size_t>(n - 1)) = on; }
  int Option2 = kStandardPaper;  // paper type (Paper)
  // "Hide grid" disables the scale note's boxes and "Show grid ticks only".
  bool txtX1Enabled = true;
  bool txtY1Enabled = true;
  bool Check3Enabled = true;

  // ---- What the dialog does ---------------------------------------------------
  // Reads every key into its control with this dialog's defaults (BrojBoja
  // reads 0 here). The paper type has no key: Standard is selected, and the
  // two hidden checks keep what is stored.
  void Load(platform::SettingsStore& settings);
  // A click on Check1 after its value changed.
  void Check1Click();
  // A click on Check2 after its value changed: the active window's text
  // becomes transparent (and its Check1 ticked), or back to opaque.
  void Check2Click(GraphWindow* active);
  // A click on a paper type (or its picture).
  void Option2Click(int index);
  // Texts to "1", every check off (AutoRedraw too), Standard paper. Nothing
  // is written.
  void Reset();
  // Writes every key, then repaints the active window: the paper and the
  // functions again when AutoRedraw reads on; else after the question, the
  // empty paper. A null window: the keys only.
  void Apply(platform::SettingsStore& settings, platform::MessageBox& messages, GraphWindow* active);

  // The key filter of the scale note's boxes: digits, the decimal point,
  // the minus sign and the editing keys (backspace) pass; any other typed
  // character is dropped.
  static bool ScaleNoteKeyAllowed(char key);

 private:
  void EnableFromCheck1();

  std::array<bool, kChecks> checks_{};
};

}  // namespace velmora::graph
