// The draw commands of the graph window: the plot procedures around the one
// sampling loop, the replay of the list, and what a finished draw leaves
// behind (history, recent line, lists, table).
#include <cmath>

#include "base/asciicase.h"
#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/functionlibrary.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "graph/drawingguard.h"
#include "graph/graphwindow.h"
#include "graph/settingnumber.h"
#include "platform/settingskeys.h"

namespace velmora::graph {

// The plot procedures: one loop, and these differences around it.
void GraphWindow::CrtajFJU() {
  Draw({.polar = false, .polarInType3 = false, .checkSyntax = true, .remember = true});
}
// The replay: no check, no record, no recent line, lists or count; a
// function of type 3 is wrapped as a polar one.
void GraphWindow::CrtajFJUAuto() {
  Draw({.polar = false, .polarInType3 = true, .checkSyntax = false, .remember = false});
}
void GraphWindow::CrtajPolar() {
  Draw({.polar = true, .polarInType3 = false, .checkSyntax = true, .remember = true});
}
void GraphWindow::CrtajPolarAuto() {
  Draw({.polar = true, .polarInType3 = false, .checkSyntax = true, .remember = false});
}

void GraphWindow::DrawFromTxtY() {
  if (boxes_.optFunkcije() == kPolar) {
    CrtajPolar();
  } else {
    CrtajFJU();
  }
}

bool GraphWindow::CheckSyntax(const std::string& cleaned) {
  if (services_.makeChecker == nullptr) return true;
  if (!checker_) {
    expr::ActiveWindow* active = services_.activeWindow != nullptr ? services_.activeWindow : &self_;
    checker_ = services_.makeChecker(*services_.messages, active);
  }
  return checker_->Check(expr::ProveriSyn(cleaned)) == 0;
}

void GraphWindow::ChooseColour() {
  if (Grid(platform::keys::grid::kRnd) == 1) {
    // Red first; the generator is never seeded here, so a fresh start
    // repeats the same colours.
    const int red = static_cast<int>(std::floor(expr::NextRandom(1) * 255));
    const int green = static_cast<int>(std::floor(expr::NextRandom(1) * 255));
    const int blue = static_cast<int>(std::floor(expr::NextRandom(1) * 255));
    pen_.SetGraph_Clr(Rgb(red, green, blue));
  } else {
    pen_.ChooseGraphColour(static_cast<Colour>(
        ReadSettingNumber(*services_.settings, platform::keys::kBoje, platform::keys::boje::kGrafik)));
  }
}

void GraphWindow::Draw(const PlotProcedure& procedure) {
  // A draw in progress owns the working texts, the colour and the pen, so a
  // second command (a second Enter from the event pump) ends here at once.
  if (draw_.Drawing()) return;
  const bool polar = procedure.polar || (procedure.polarInType3 && boxes_.optFunkcije() == kPolar);
  // The boxes lose their blanks in place; the working copies also get round
  // brackets for square and curly ones.
  draw_.ClearStop();
  boxes_.RemoveBlanks(polar);
  std::string funcY = procedure.fixedY != nullptr ? *procedure.fixedY : expr::CleanUp(boxes_.txtY().Text);
  std::string funcX = procedure.fixedY != nullptr ? std::string("K")
                      : polar                     ? draw_.FuncX()
                                                  : expr::CleanUp(boxes_.txtX().Text);
  // The trial: a bad text has shown its message and nothing is drawn.
  if (procedure.checkSyntax && procedure.fixedY == nullptr) {
    if (!CheckSyntax(funcY)) return;
    if (!polar && boxes_.optFunkcije() == kParametric && !CheckSyntax(funcX)) return;
  }
  // A solid pen, no cross-hairs or tangent mark, this plot's colour and width.
  expr::ResumeNext([&] { surface_.SetDrawStyle(kSolid); });
  HideLines();
  if (!procedure.keepColour) ChooseColour();
  pen_.EnsureLineWidth();
  expr::ResumeNext([&] { surface_.SetDrawWidth(expr::ToShort(pen_.GraphLineWidth())); });
  // K is the only variable; EP and STL keep the X of EXP and FIX. A polar R
  // becomes the pair R sin K, R cos K.
  if (polar) {
    const std::string r = expr::EvaluationForm(funcY);
    draw_.SetFunctions(expr::EvaluationForm(expr::CleanUp("(" + r + ")*(sinK)")),
                       "(" + r + ")*(cosK)");  // mixed case: F2 upper-cases it
  } else {
    draw_.SetFunctions(expr::EvaluationForm(funcY), expr::EvaluationForm(funcX));
  }
  // The texts as typed, for the history.
  if (procedure.remember) {
    typedY_ = boxes_.txtY().Text;
    typedX_ = boxes_.txtX().Text;
    lastDrawPolar_ = polar;
  }
  LoopResult result;
  {
    // Drawing is cleared however the loop ends, a fault included.
    DrawingGuard drawing(draw_);
    Progress("Done...    0 %", true);
    CurveStrategy curve(*this, !polar && boxes_.optFunkcije() == kCartesian);
    SampleStrategy& strategy = procedure.strategy != nullptr ? *procedure.strategy : curve;
    // A hidden curve starts with the invisible pen.
    expr::ResumeNext([&] { surface_.SetDrawStyle(strategy.SolidStyle()); });
    result = SamplingLoop(*this, strategy).Run();
    // The value table first: the history record of a Cartesian function
    // names the table's first row, which must be this function's. Faults
    // are ignored from here on.
    if (procedure.table) FinishTable(polar, result.lastXp);
    if (procedure.remember) funcSave();
    if (services_.host != nullptr) services_.host->RefreshFrame();
    if (procedure.remember) AddRecent(polar);
    if (services_.host != nullptr) services_.host->FocusFunctionBox();
    if (procedure.remember) Remember(polar);
    lblPointtab_.ForeColor = Grid(platform::keys::grid::kRnd) == 1 ? pen_.Graph_Clr() : 0;
  }
  Progress(lblPerCent_.Caption, false);
  draw_.SetPlotted();
  tangent_.EndCartesian();
}

void GraphWindow::AddRecent(bool polar) {
  if (services_.recent == nullptr) return;
  const int type = boxes_.optFunkcije();
  const char* word = polar ? "Polar" : type == kParametric ? "Parametric" : "Cartesian";
  expr::ResumeNext(
      [&] { services_.recent->AddRecent(boxes_.txtY().Text + " ; " + boxes_.txtX().Text + " | " + word); });
}

void GraphWindow::FinishTable(bool polar, double lastXp) {
  expr::ResumeNext([&] {
    if (polar) {
      FillValueTablePolar();
    } else if (boxes_.optFunkcije() == kCartesian) {
      expr::ResumeNext(
          [&] { draw_.SetXkraj(view_.PomeriX((lastXp - surface_.ScaleWidth() / 2) / ZoomText())); });
      FillValueTable(draw_.Xpoc(), draw_.Xkraj());
    } else if (boxes_.optFunkcije() == kParametric) {
      FillValueTableParam(9, -9);
    }
  });
}

void GraphWindow::Remember(bool polar) {
  draw_.CountFunction();
  boxes_.Remember(!polar && boxes_.optFunkcije() == kParametric);
}

void GraphWindow::RedrawFunc() {
  if (draw_.Drawing()) return;
  if (Grid(platform::keys::grid::kAutored) != 1) {
    draw_.SetKolkoFunkc(0);
    return;
  }
  // The oldest first: entry i from the end, for i from the count down. An
  // entry that is not there (a repeated function stands once in the list
  // but counts twice) leaves the box as it is.
  for (int i = draw_.KolkoFunkc(); i >= 1; --i) {
    const auto& list = boxes_.txtY().List;
    const auto size = static_cast<int>(list.size());
    if (size - i >= 0) boxes_.SetTxtY(list[static_cast<std::size_t>(size - i)]);
    txtY_Click();
  }
}

void GraphWindow::txtY_Click() {
  optFunk(boxes_.TypeOfPick());
  if (services_.host != nullptr) services_.host->RefreshFrame();
  lblPointtab_.ForeColor = 0;
  if (Grid(platform::keys::grid::kAutored) == 1) {
    if (boxes_.optFunkcije() == kPolar) {
      CrtajPolarAuto();
    } else {
      CrtajFJUAuto();
    }
    return;
  }
  expr::ResumeNext([&] {
    switch (boxes_.optFunkcije()) {
      case kCartesian: FillValueTable(draw_.Xpoc(), draw_.Xkraj()); break;
      case kParametric: FillValueTableParam(9, -9); break;
      default: FillValueTablePolar(); break;
    }
  });
}

void GraphWindow::mnuPlotWidth() {
  // The box comes back with 1 as its default after a refused answer too.
  for (;;) {
    const std::string answer =
        services_.input->Ask("Enter value for Graph-Line Width (e.g. 1, 1.6 ...).", "Graph-Line Width", "1")
            .value_or("");
    if (answer.empty() || ApplyPlotWidth(answer)) return;
  }
}

bool GraphWindow::ApplyPlotWidth(std::string_view answer) {
  double value = 0;
  bool numeric = false;
  try {
    numeric = expr::IsNumericText(answer);
    value = expr::TextToNumber(answer);
  } catch (const expr::Fault&) {
    numeric = false;
  }
  if (numeric && value > 0) {
    pen_.SetGraphLineWidth(value);
    return true;
  }
  std::string text = "Invalid input: Line width = ";
  text += answer;
  text += '.';
  services_.messages->Show(text, std::string(kDefaultTitle), platform::MsgIcon::None);
  return false;
}

}  // namespace velmora::graph
