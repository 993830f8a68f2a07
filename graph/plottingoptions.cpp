#include "graph/plottingoptions.h"

#include <cmath>

#include "graph/graphwindow.h"
#include "platform/settingskeys.h"

namespace velmora::graph {
namespace {

constexpr std::string_view kSection = "Grid";

constexpr PlottingOptions::TextBox kTextBoxes[] = {
    {"txtX", "X:", "ScaleX"},    // grid step in X
    {"txtY", "Y:", "ScaleY"},    // grid step in Y
    {"txtX1", "X:", "ScaleX1"},  // first number of the scale note
    {"txtY1", "Y:", "ScaleY1"},  // second number of the scale note
};

constexpr PlottingOptions::CheckBox kCheckBoxes[] = {
    {1, "&Hide grid", "Axes", true},
    {2, "&Assign axes ", "Ozna", true},
    {3, "&Show grid ticks only", "Crte", true},
    {4, "S&how grid scaling", "Skala", true},
    {5, "&Randomize graph color", "Rnd", true},
    {6, "A&utoRedraw functions", "Autored", true},
    {7, "&Use polar graph paper", "PolarP", false},  // follows the Polar paper type
    {8, "Show &X coordinates", "BrojX", true},
    {9, "Show &Y coordinates", "BrojY", true},
    {10, "&Use grid color for axes numbres", "BrojBoja", true},
    {11, "", "Trigo", false},  // follows the Trig paper type
    {12, "&Draw Grid with dashes", "Dash", true},
    {13, "Draw graph  &frame while Copy/Print", "Ram", true},
};

constexpr std::string_view kPaperCaptions[] = {"&Standard", "&Polar", "&Trig"};

constexpr int kPolarPaper = 1;
constexpr int kTrigPaper = 2;
constexpr int kPolarCheck = 7;
constexpr int kTrigCheck = 11;

}  // namespace

std::span<const PlottingOptions::TextBox> PlottingOptions::TextBoxes() { return kTextBoxes; }
std::span<const PlottingOptions::CheckBox> PlottingOptions::CheckBoxes() { return kCheckBoxes; }
std::span<const std::string_view> PlottingOptions::PaperCaptions() { return kPaperCaptions; }

void PlottingOptions::Load(platform::SettingsStore& settings) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    texts[i] = platform::ReadSetting(settings, kSection, kTextBoxes[i].key,
                                     platform::SettingReader::PlottingOptions);
  }
  // A check box takes the absolute value of what is stored: any number but
  // 0 ticks it.
  for (const auto& box : kCheckBoxes) {
    const double value =
        platform::ReadSettingNumber(settings, kSection, box.key, platform::SettingReader::PlottingOptions);
    SetCheck(box.number, std::fabs(value) != 0);
  }
  Option2 = 0;
  EnableFromCheck1();
}

void PlottingOptions::EnableFromCheck1() {
  const bool enabled = !Check(1);
  txtX1Enabled = enabled;
  txtY1Enabled = enabled;
  Check3Enabled = enabled;
}

void PlottingOptions::Check1Click() { EnableFromCheck1(); }

void PlottingOptions::Check2Click(GraphWindow* active) {
  if (active == nullptr) return;
  if (Check(2)) {
    active->SetCheck1(true);
    active->pDraw().SetFontTransparent(true);
  } else {
    // Back to the window's own default: text over a box of the back colour.
    active->SetCheck1(false);
    active->pDraw().SetFontTransparent(false);
  }
}

void PlottingOptions::Option2Click(int index) {
  if (index < 0 || index > kTrigPaper) return;
  Option2 = index;
  SetCheck(kPolarCheck, index == kPolarPaper);
  SetCheck(kTrigCheck, index == kTrigPaper);
}

void PlottingOptions::Reset() {
  // Assigned whole: the short literal copied into each string trips a
  // false overlap warning of g++ 12.
  texts.fill(std::string(1, '1'));
  checks_.fill(false);
  Option2Click(0);
  EnableFromCheck1();
}

void PlottingOptions::Apply(platform::SettingsStore& settings, platform::MessageBox& messages,
                            GraphWindow* active) {
  // Every key: a box as its text, a check as 0 or 1.
  for (std::size_t i = 0; i < texts.size(); ++i)
    platform::SetRegValue(settings, kSection, kTextBoxes[i].key, texts[i]);
  for (const auto& box : kCheckBoxes)
    platform::SetRegValue(settings, kSection, box.key, Check(box.number) ? "1" : "0");
  if (active == nullptr) return;
  // The active window's numbers are printed transparent, and its own box
  // follows the dialog's.
  active->pDraw().SetFontTransparent(true);
  if (Check(2)) active->SetCheck1(true);
  // Redrawn at once in the new settings: with AutoRedraw the functions come
  // back; without it they would be lost, so the user is asked first.
  if (platform::ReadSettingNumber(settings, kSection, "Autored") == 1) {
    active->Clearwith();
    active->DrawLines();
    active->RedrawFunc();
    return;
  }
  const auto answer = messages.Show(std::string(kEraseQuestion), std::string(kCaption),
                                    platform::MsgIcon::Critical, platform::MsgButtons::OkCancel);
  if (answer != platform::MsgResult::Ok) return;
  active->Clearwith();
  active->DrawLines();
}

bool PlottingOptions::ScaleNoteKeyAllowed(char key) {
  if (key >= '0' && key <= '9') return true;
  if (key == '.' || key == '-') return true;
  return key == '\b';
}

}  // namespace velmora::graph
