#include "graph/plottingoptions.h"

#include <cmath>

#include "graph/graphwindow.h"
#include "graph/settingnumber.h"
#include "platform/settingskeys.h"

namespace velmora::graph {
namespace {

constexpr std::string_view kSection = platform::keys::kGrid;
namespace grid = platform::keys::grid;

constexpr PlottingOptions::TextBox kTextBoxes[] = {
    {"txtX", "X:", grid::kScaleX},    // grid step in X
    {"txtY", "Y:", grid::kScaleY},    // grid step in Y
    {"txtX1", "X:", grid::kScaleX1},  // first number of the scale note
    {"txtY1", "Y:", grid::kScaleY1},  // second number of the scale note
};

constexpr PlottingOptions::CheckBox kCheckBoxes[] = {
    {PlottingOptions::kCheckHideGrid, "&Hide grid", grid::kAxes, true},
    {PlottingOptions::kCheckAssignAxes, "&Assign axes ", grid::kOzna, true},
    {PlottingOptions::kCheckTicksOnly, "&Show grid ticks only", grid::kCrte, true},
    {PlottingOptions::kCheckScaleNote, "S&how grid scaling", grid::kSkala, true},
    {PlottingOptions::kCheckRandomColour, "&Randomize graph color", grid::kRnd, true},
    {PlottingOptions::kCheckAutoRedraw, "A&utoRedraw functions", grid::kAutored, true},
    // Follows the Polar paper type.
    {PlottingOptions::kCheckPolarPaper, "&Use polar graph paper", grid::kPolarP, false},
    {PlottingOptions::kCheckNumbersX, "Show &X coordinates", grid::kBrojX, true},
    {PlottingOptions::kCheckNumbersY, "Show &Y coordinates", grid::kBrojY, true},
    {PlottingOptions::kCheckGridColour, "&Use grid color for axes numbres", grid::kBrojBoja, true},
    {PlottingOptions::kCheckTrigPaper, "", grid::kTrigo, false},  // follows the Trig paper type
    {PlottingOptions::kCheckDashes, "&Draw Grid with dashes", grid::kDash, true},
    {PlottingOptions::kCheckFrame, "Draw graph  &frame while Copy/Print", grid::kRam, true},
};

constexpr std::string_view kPaperCaptions[] = {"&Standard", "&Polar", "&Trig"};

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
        ReadSettingNumber(settings, kSection, box.key, platform::SettingReader::PlottingOptions);
    SetCheck(box.number, std::fabs(value) != 0);
  }
  Option2 = kStandardPaper;
  EnableFromCheck1();
}

void PlottingOptions::EnableFromCheck1() {
  const bool enabled = !Check(kCheckHideGrid);
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
  SetCheck(kCheckPolarPaper, index == kPolarPaper);
  SetCheck(kCheckTrigPaper, index == kTrigPaper);
}

void PlottingOptions::Reset() {
  // Assigned whole: the short literal copied into each string trips a
  // false overlap warning of g++ 12.
  texts.fill(std::string(1, '1'));
  checks_.fill(false);
  Option2Click(kStandardPaper);
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
  if (ReadSettingNumber(settings, kSection, platform::keys::grid::kAutored) == 1) {
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
