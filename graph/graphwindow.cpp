#include "graph/graphwindow.h"

#include <cmath>

#include "expr/fault.h"
#include "expr/numtext.h"
#include "platform/settingskeys.h"
#include "tools/tablerows.h"

namespace velmora::graph {
namespace {

// Captions of labY by function type.
constexpr std::string_view kLabY[] = {"Y (X) =", "Y (K) =", "R (K) ="};
constexpr Colour kLabelGrey = 0xDFDFDF;

}  // namespace

GraphWindow::GraphWindow(Surface& pDraw, GraphServices services)
    : surface_(pDraw),
      services_(std::move(services)),
      paper_(surface_, *services_.settings, *services_.messages) {
  if (services_.history != nullptr) rtb = services_.history->ReadAll();
  KolkoFunkc = 0;
  Zoom = 30;
  zlevel = 30;
  lblzm.Caption = expr::NumberToText(Zoom);
  lblzm.Visible = false;
  CenterX = surface_.ScaleWidth() / 2;
  CenterY = surface_.ScaleHeight() / 2;
  txtX.Text = "K";
  LABx.Caption = "X (K) =";
  optFunk(kCartesian);
  // Colours from the settings.
  auto& settings = *services_.settings;
  surface_.SetBackColor(static_cast<Colour>(platform::ReadSettingNumber(settings, "Boje", "Pozadina")));
  Graph_Clr = static_cast<Colour>(platform::ReadSettingNumber(settings, "Boje", "Grafik"));
  GridColor = static_cast<Colour>(platform::ReadSettingNumber(settings, "Boje", "Grid"));
  AxesColor = static_cast<Colour>(platform::ReadSettingNumber(settings, "Boje", "Ose"));
  lblBoja.BackColor = Graph_Clr;
  lblBoja.Visible = false;
  AvBoja = 255;
  MovedText = "Moved:";
  lblPerCent.BackColor = kLabelGrey;
  lblPerCent.Visible = false;
  LblChart.BackColor = kLabelGrey;
  lblxy.Caption = "Y";
  lblxy.Visible = false;
  lblPointtab.Caption = "Value Tables:";
  tools::ResetTable(MS1, tools::TableLayout::Cartesian);
  // The picture box draws its text over a box of the back colour until the
  // axes are assigned.
  surface_.SetFontTransparent(false);
  Clearwith();
  Redraw();
  Zezaj = false;
}

GraphWindow::~GraphWindow() = default;

double GraphWindow::Grid(std::string_view name) const {
  return platform::ReadSettingNumber(*services_.settings, "Grid", name);
}

PaperView GraphWindow::View() const { return PaperView{Zoom, CenterX, CenterY, GridColor, AxesColor}; }

double GraphWindow::ZoomText() const {
  try {
    return expr::TextToNumber(lblzm.Caption);
  } catch (const expr::Fault&) {
    return 0;
  }
}

void GraphWindow::Progress(const std::string& text, bool visible) {
  lblPerCent.Caption = text;
  lblPerCent.Visible = visible;
  if (services_.host != nullptr) services_.host->ProgressChanged();
}

// ---- Type and boxes -----------------------------------------------------------

void GraphWindow::optFunk(int index) {
  if (index < kCartesian || index > kPolar) return;
  optFunkcije = index;
  labY.Caption = std::string(kLabY[index - 1]);
  const bool parametric = index == kParametric;
  if (!parametric) txtX.Text = "K";
  txtX.Visible = parametric;
  LABx.Visible = parametric;
  if (services_.host != nullptr) {
    services_.host->TypeChosen(index);
    services_.host->FocusFunctionBox();
  }
}

void GraphWindow::PodeliFje(std::string_view line) {
  const auto semicolon = line.find(';');
  if (semicolon == std::string_view::npos) return;  // not a recent-functions line
  const auto bar = line.find('|', semicolon);
  if (bar == std::string_view::npos || line.empty()) return;
  txtY.Text = std::string(line.substr(0, semicolon));
  txtX.Text = std::string(line.substr(semicolon + 1, bar - semicolon - 1));
  switch (line.back()) {
    case 'n': optFunk(kCartesian); break;
    case 'c': optFunk(kParametric); break;
    case 'r': optFunk(kPolar); break;
    default: break;
  }
}

// ---- Evaluation ------------------------------------------------------------------

double GraphWindow::F(double v) { return EvaluateAt(FuncY, v); }

double GraphWindow::EvaluateAt(std::string_view evaluationForm, double v) {
  try {
    char number[expr::kNumberTextMax];
    const std::size_t length = expr::NumberToText(v, number);
    return SubstituteAndRun(evaluationForm, std::string_view(number, length), {});
  } catch (const expr::Fault&) {
    return 0;
  }
}

double GraphWindow::F2(double v, double w) {
  try {
    // The Cartesian X is "K" itself: its value is the number its text reads,
    // which is what the engine would return for "(" & v & ")". The loop's K
    // has three decimals, and such a value reads back as itself, so the
    // text is needed only for other values.
    const bool onlyK = FuncX == "K" || FuncX == "k";
    if (onlyK && std::fabs(v) < 1e12 && std::floor(v * 1000) / 1000 == v) return v;
    char number[expr::kNumberTextMax];
    const std::size_t length = expr::NumberToText(v, number);
    if (onlyK) return expr::TextToNumber(std::string_view(number, length));
    char yNumber[expr::kNumberTextMax];
    const std::size_t yLength = expr::NumberToText(w, yNumber);
    // K first, then Y: X may depend on the current Y.
    return SubstituteAndRun(FuncX, std::string_view(number, length), std::string_view(yNumber, yLength));
  } catch (const expr::Fault&) {
    return 0;
  }
}

double GraphWindow::SubstituteAndRun(std::string_view evaluationForm, std::string_view kText,
                                     std::string_view yText) {
  formula_.clear();
  // Every K (after upper-casing) becomes the value in brackets, and so does
  // every Y when a Y text is given; the replacements hold neither letter, so
  // one left-to-right pass is the whole rescan.
  for (const char c : evaluationForm) {
    const char u = (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
    const std::string_view value =
        u == 'K' ? kText : (u == 'Y' && !yText.empty() ? yText : std::string_view{});
    if (value.empty()) {
      formula_ += u;
    } else {
      formula_ += '(';
      formula_ += value;
      formula_ += ')';
    }
  }
  auto& evaluator = Evaluator1();
  evaluator.SetFormula(formula_);
  const double value = evaluator.Result();
  evaluator.SetFormula("PopAll()");
  return value;
}

// ---- Paper and clearing --------------------------------------------------------------

void GraphWindow::DrawLines() {
  try {
    if (paper_.DrawLines(View())) Check1 = true;
  } catch (const expr::Fault&) {
    // A view the device cannot hold (a centre moved beyond any pixel) ends
    // the paint where it is.
  }
}

void GraphWindow::Redraw() {
  if (!Drawing) DrawLines();
}

void GraphWindow::Clearwith() { surface_.Clear(); }

void GraphWindow::ClearGraph(bool whole) {
  if (whole) {
    // The boxes are emptied with their lists, so nothing is left to replay.
    txtY.Text.clear();
    txtY.List.clear();
    txtX.List.clear();
    cmbR3.List.clear();
    KolkoFunkc = 0;
    txtX.Visible = false;
    lblxy.Caption = "Y (X) =";
    optFunk(kCartesian);
    txtX.Text = "K";
    lblPointtab.Caption = "Value Tables:";
    tools::ResetTable(MS1, tools::TableLayout::Cartesian);
  }
  LineY.Visible = false;
  Line1.Visible = false;
  Line2.Visible = false;
  Clearwith();
  Redraw();
}

// ---- Colours the evaluator switches -------------------------------------------------------

void GraphWindow::Boje2() { Graph_Clr = surface_.BackColor(); }
void GraphWindow::Boje3() { Graph_Clr = lblBoja.BackColor; }

// ---- Frame ----------------------------------------------------------------------------------

std::string GraphWindow::StatusCaption() const {
  if (optFunkcije == kParametric) {
    return labY.Caption + " " + txtY.Text + " ; " + LABx.Caption + " " + txtX.Text;
  }
  return labY.Caption + " " + txtY.Text;
}

}  // namespace velmora::graph
