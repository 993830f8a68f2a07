#include "graph/graphwindow.h"

#include <cmath>

#include "expr/fault.h"
#include "expr/numtext.h"
#include "graph/settingnumber.h"
#include "graph/tablerows.h"
#include "platform/settingskeys.h"

namespace velmora::graph {
namespace {

namespace keys = platform::keys;

constexpr Colour kLabelGrey = 0xDFDFDF;

}  // namespace

GraphWindow::GraphWindow(Surface& pDraw, GraphServices services)
    : surface_(pDraw),
      services_(std::move(services)),
      paper_(surface_, *services_.settings, *services_.messages) {
  if (services_.history != nullptr) rtb_ = services_.history->ReadAll();
  lblzm_.Caption = expr::NumberToText(view_.Zoom());
  lblzm_.Visible = false;
  view_.SetCentre(surface_.ScaleWidth() / 2, surface_.ScaleHeight() / 2);
  optFunk(kCartesian);
  // Colours from the settings.
  auto& settings = *services_.settings;
  surface_.SetBackColor(static_cast<Colour>(ReadSettingNumber(settings, keys::kBoje, keys::boje::kPozadina)));
  pen_.ChooseGraphColour(static_cast<Colour>(ReadSettingNumber(settings, keys::kBoje, keys::boje::kGrafik)));
  pen_.SetGridColor(static_cast<Colour>(ReadSettingNumber(settings, keys::kBoje, keys::boje::kGrid)));
  pen_.SetAxesColor(static_cast<Colour>(ReadSettingNumber(settings, keys::kBoje, keys::boje::kOse)));
  lblPerCent_.BackColor = kLabelGrey;
  lblPerCent_.Visible = false;
  lblChart_.BackColor = kLabelGrey;
  lblPointtab_.Caption = "Value Tables:";
  ResetTable(ms1_, TableLayout::Cartesian);
  // The picture box draws its text over a box of the back colour until the
  // axes are assigned.
  surface_.SetFontTransparent(false);
  Clearwith();
  Redraw();
  draw_.SetZezaj(false);
}

GraphWindow::~GraphWindow() = default;

double GraphWindow::Grid(std::string_view name) const {
  return ReadSettingNumber(*services_.settings, keys::kGrid, name);
}

PaperView GraphWindow::Paper() const {
  return PaperView{view_.Zoom(), view_.CenterX(), view_.CenterY(), pen_.GridColor(), pen_.AxesColor()};
}

double GraphWindow::ZoomText() const {
  try {
    return expr::TextToNumber(lblzm_.Caption);
  } catch (const expr::Fault&) {
    return 0;
  }
}

void GraphWindow::Progress(const std::string& text, bool visible) {
  lblPerCent_.Caption = text;
  lblPerCent_.Visible = visible;
  if (services_.host != nullptr) services_.host->ProgressChanged();
}

// ---- Type and boxes -----------------------------------------------------------

void GraphWindow::optFunk(int index) {
  if (!boxes_.SetType(index)) return;
  if (services_.host != nullptr) {
    services_.host->TypeChosen(index);
    services_.host->FocusFunctionBox();
  }
}

void GraphWindow::SetFunctionTexts(std::string_view y, std::string_view x) {
  boxes_.SetTxtY(y);
  boxes_.SetTxtX(x);
}

void GraphWindow::PodeliFje(std::string_view line) {
  const auto semicolon = line.find(';');
  if (semicolon == std::string_view::npos) return;  // not a recent-functions line
  const auto bar = line.find('|', semicolon);
  if (bar == std::string_view::npos || line.empty()) return;
  SetFunctionTexts(line.substr(0, semicolon), line.substr(semicolon + 1, bar - semicolon - 1));
  switch (line.back()) {
    case 'n': optFunk(kCartesian); break;
    case 'c': optFunk(kParametric); break;
    case 'r': optFunk(kPolar); break;
    default: break;
  }
}

void GraphWindow::SetView(double zoom, double centerX, double centerY) {
  view_.SetZoom(zoom);
  view_.SetCentre(centerX, centerY);
  lblzm_.Caption = expr::NumberToText(zoom);
}

void GraphWindow::ShowLine(OverlayLine which, const LineControl& line) {
  switch (which) {
    case OverlayLine::LineY: lineY_ = line; break;
    case OverlayLine::Line1: line1_ = line; break;
    case OverlayLine::Line2: line2_ = line; break;
  }
}

void GraphWindow::HideLines() {
  lineY_.Visible = false;
  line1_.Visible = false;
  line2_.Visible = false;
}

void GraphWindow::AdoptListsOf(const GraphWindow& other) {
  boxes_.AdoptLists(other.boxes_);
  draw_.SetKolkoFunkc(other.draw_.KolkoFunkc());
}

// ---- The tools' view of the window ------------------------------------------------

ViewBounds GraphWindow::VisibleBounds() const {
  return ViewBounds{view_.LeftX(), view_.RightX(surface_.ScaleWidth()), view_.TopY(),
                    view_.BottomY(surface_.ScaleHeight())};
}

bool GraphWindow::DrawFunction(int type, std::string_view y, std::string_view x) {
  if (draw_.Drawing() || type < kCartesian || type > kPolar) return false;
  optFunk(type);
  SetFunctionTexts(y, type == kParametric ? x : std::string_view("K"));
  DrawFromTxtY();
  return true;
}

void GraphWindow::SetFunctionYText(std::string_view y) {
  boxes_.SetTxtY(y);
  if (services_.host != nullptr) services_.host->ToolChanged();
}

bool GraphWindow::DrawCurve(const std::vector<CurvePoint>& points, std::uint32_t colour) {
  if (draw_.Drawing()) return false;
  Surface& surface = pDraw();
  const int style = surface.DrawStyle();
  surface.SetDrawStyle(0);
  bool penDown = false;
  for (const CurvePoint& p : points) {
    if (!std::isfinite(p.x) || !std::isfinite(p.y) || std::fabs(p.y) > 100 || std::fabs(p.x) > 100) {
      penDown = false;
      continue;
    }
    const double xp = view_.PixelX(p.x);
    const double yp = view_.PixelY(p.y);
    if (penDown) {
      surface.LineTo(xp, yp, colour);
    } else {
      surface.SetCurrentX(xp);
      surface.SetCurrentY(yp);
    }
    penDown = true;
  }
  surface.SetDrawStyle(style);
  if (services_.host != nullptr) services_.host->ToolChanged();
  return true;
}

// ---- Evaluation ------------------------------------------------------------------

double GraphWindow::F(double v) { return EvaluateAt(draw_.FuncY(), v); }

double GraphWindow::EvaluateAt(std::string_view evaluationForm, double v) {
  try {
    char number[expr::kNumberTextMax];
    const std::size_t length = expr::NumberToText(v, number);
    return SubstituteAndRun(evaluationForm, std::string_view(number, length), {});
  } catch (const expr::Fault&) {
    return 0;
  }
}

double GraphWindow::F2(double v, double w) { return EvaluateXAt(draw_.FuncX(), v, w); }

double GraphWindow::EvaluateXAt(std::string_view evaluationForm, double v, double w) {
  try {
    // The Cartesian X is "K" itself: its value is the number its text reads,
    // which is what the engine would return for "(" & v & ")". The loop's K
    // has three decimals, and such a value reads back as itself, so the
    // text is needed only for other values.
    const std::string_view funcX = evaluationForm;
    const bool onlyK = funcX == "K" || funcX == "k";
    if (onlyK && std::fabs(v) < 1e12 && std::floor(v * 1000) / 1000 == v) return v;
    char number[expr::kNumberTextMax];
    const std::size_t length = expr::NumberToText(v, number);
    if (onlyK) return expr::TextToNumber(std::string_view(number, length));
    char yNumber[expr::kNumberTextMax];
    const std::size_t yLength = expr::NumberToText(w, yNumber);
    // K first, then Y: X may depend on the current Y.
    return SubstituteAndRun(funcX, std::string_view(number, length), std::string_view(yNumber, yLength));
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
    if (paper_.DrawLines(Paper())) check1_ = true;
  } catch (const expr::Fault&) {
    // A view the device cannot hold (a centre moved beyond any pixel) ends
    // the paint where it is.
  }
}

void GraphWindow::Redraw() {
  if (!draw_.Drawing()) DrawLines();
}

void GraphWindow::Clearwith() { surface_.Clear(); }

void GraphWindow::ClearGraph(bool whole) {
  if (whole) {
    // The boxes are emptied with their lists, so nothing is left to replay.
    boxes_.Clear();
    draw_.SetKolkoFunkc(0);
    optFunk(kCartesian);
    lblPointtab_.Caption = "Value Tables:";
    ResetTable(ms1_, TableLayout::Cartesian);
  }
  HideLines();
  Clearwith();
  Redraw();
}

// ---- Colours the evaluator switches -------------------------------------------------------

void GraphWindow::Boje2() { pen_.SetGraph_Clr(surface_.BackColor()); }
void GraphWindow::Boje3() { pen_.SetGraph_Clr(pen_.lblBoja()); }

}  // namespace velmora::graph
