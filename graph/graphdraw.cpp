// The draw commands of the graph window: the plot procedures around the one
// sampling loop, the replay of the list, and what a finished draw leaves
// behind (history, recent line, lists, table).
#include <cmath>

#include "base/asciicase.h"
#include "expr/fault.h"
#include "expr/functionlibrary.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "graph/graphwindow.h"
#include "graph/settingnumber.h"
#include "platform/settingskeys.h"

namespace velmora::graph {
namespace {

// Runs one statement of a routine that goes on after a fault.
template <class Statement>
void ResumeNext(Statement&& statement) {
  try {
    statement();
  } catch (const expr::Fault&) {
  }
}

// A whole text that reads as one number: blanks round it, a sign, digits
// with one decimal point, an exponent.
bool IsNumericText(std::string_view text) {
  std::size_t i = 0;
  const auto skipBlanks = [&] {
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  };
  skipBlanks();
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  bool digits = false;
  while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, digits = true;
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, digits = true;
  }
  if (!digits) return false;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    bool exponent = false;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, exponent = true;
    if (!exponent) return false;
  }
  skipBlanks();
  return i == text.size();
}

std::string WithoutBlanks(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    if (c != ' ') out += c;
  }
  return out;
}

}  // namespace

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
  if (optFunkcije == kPolar) {
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
    Graph_Clr = Rgb(red, green, blue);
  } else {
    Graph_Clr = static_cast<Colour>(
        ReadSettingNumber(*services_.settings, platform::keys::kBoje, platform::keys::boje::kGrafik));
    lblBoja.BackColor = Graph_Clr;
  }
}

void GraphWindow::Draw(const PlotProcedure& procedure) {
  // A draw in progress owns the working texts, the colour and the pen, so a
  // second command (a second Enter from the event pump) ends here at once.
  if (Drawing) return;
  const bool polar = procedure.polar || (procedure.polarInType3 && optFunkcije == kPolar);
  // 1-3. The texts, blanks out of the boxes themselves.
  StopCrtanje = false;
  txtY.Text = WithoutBlanks(txtY.Text);
  if (!polar) txtX.Text = WithoutBlanks(txtX.Text);
  FuncY = expr::CleanUp(txtY.Text);
  if (!polar) FuncX = expr::CleanUp(txtX.Text);
  // 4. The trial; a bad text has shown its message and nothing is drawn.
  if (procedure.checkSyntax) {
    if (!CheckSyntax(FuncY)) return;
    if (!polar && optFunkcije == kParametric && !CheckSyntax(FuncX)) return;
  }
  // 5-7. Pen, colour, width.
  ResumeNext([&] { surface_.SetDrawStyle(kSolid); });
  LineY.Visible = false;
  Line1.Visible = false;
  Line2.Visible = false;
  ChooseColour();
  if (GraphLineWidth <= 0) GraphLineWidth = 1;
  ResumeNext([&] { surface_.SetDrawWidth(expr::ToShort(GraphLineWidth)); });
  // 9. K is the only variable; EP and STL keep the X of EXP and FIX.
  if (polar) {
    const std::string r = expr::EvaluationForm(FuncY);
    FuncY = expr::EvaluationForm(expr::CleanUp("(" + r + ")*(sinK)"));
    FuncX = "(" + r + ")*(cosK)";  // mixed case: F2 upper-cases it
  } else {
    FuncY = expr::EvaluationForm(FuncY);
    FuncX = expr::EvaluationForm(FuncX);
  }
  // 10. The texts as typed, for the history.
  typedY_ = txtY.Text;
  typedX_ = txtX.Text;
  lastDrawPolar_ = polar;
  // 11-12. The loop.
  Drawing = true;
  Progress("Done...    0 %", true);
  CurveStrategy strategy(*this, !polar && optFunkcije == kCartesian);
  const LoopResult result = SamplingLoop(*this, strategy).Run();
  // 13. The history record, and the frame refreshes.
  if (procedure.remember) funcSave();
  if (services_.host != nullptr) services_.host->RefreshFrame();
  // 14. The recent-functions line.
  if (procedure.remember) AddRecent(polar);
  // 15.
  if (services_.host != nullptr) services_.host->FocusFunctionBox();
  // 16. Errors are ignored from here on.
  FinishTable(polar, result.lastXp);
  // 17. Count and lists.
  if (procedure.remember) Remember(polar);
  // 18-19.
  lblPointtab.ForeColor = Grid(platform::keys::grid::kRnd) == 1 ? Graph_Clr : 0;
  Drawing = false;
  Progress(lblPerCent.Caption, false);
  Plotted = true;
  Normalka = false;
  Tngenta = false;
}

void GraphWindow::AddRecent(bool polar) {
  if (services_.recent == nullptr) return;
  const char* word = polar ? "Polar" : optFunkcije == kParametric ? "Parametric" : "Cartesian";
  ResumeNext([&] { services_.recent->AddRecent(txtY.Text + " ; " + txtX.Text + " | " + word); });
}

void GraphWindow::FinishTable(bool polar, double lastXp) {
  ResumeNext([&] {
    if (polar) {
      FillValueTablePolar();
    } else if (optFunkcije == kCartesian) {
      ResumeNext([&] { Xkraj = PomeriX((lastXp - surface_.ScaleWidth() / 2) / ZoomText()); });
      FillValueTable(Xpoc, Xkraj);
    } else if (optFunkcije == kParametric) {
      FillValueTableParam(9, -9);
    }
  });
}

void GraphWindow::Remember(bool polar) {
  ++KolkoFunkc;
  txtY.AddItemNoDuplicates(txtY.Text);
  if (!polar && optFunkcije == kParametric) {
    txtX.AddItemNoDuplicates(txtX.Text);
    cmbR3.AddItemNoDuplicates(txtY.Text);
  }
}

void GraphWindow::RedrawFunc() {
  if (Drawing) return;
  if (Grid(platform::keys::grid::kAutored) != 1) {
    KolkoFunkc = 0;
    return;
  }
  // The oldest first: entry i from the end, for i from the count down. An
  // entry that is not there (a repeated function stands once in the list
  // but counts twice) leaves the box as it is.
  for (int i = KolkoFunkc; i >= 1; --i) {
    const auto size = static_cast<int>(txtY.List.size());
    if (size - i >= 0) txtY.Text = txtY.List[static_cast<std::size_t>(size - i)];
    txtY_Click();
  }
}

void GraphWindow::txtY_Click() {
  const std::string upper = base::UpperCase(txtY.Text);
  if (upper.find('K') != std::string::npos) {
    int found = -1;
    for (std::size_t i = 0; i < cmbR3.List.size(); ++i) {
      if (cmbR3.List[i] == txtY.Text) {
        found = static_cast<int>(i);
        break;
      }
    }
    if (found >= 0) {
      if (static_cast<std::size_t>(found) < txtX.List.size())
        txtX.Text = txtX.List[static_cast<std::size_t>(found)];
      optFunk(kParametric);
    } else {
      optFunk(kPolar);
    }
  } else {
    optFunk(kCartesian);
  }
  if (services_.host != nullptr) services_.host->RefreshFrame();
  lblPointtab.ForeColor = 0;
  if (Grid(platform::keys::grid::kAutored) == 1) {
    if (optFunkcije == kPolar) {
      CrtajPolarAuto();
    } else {
      CrtajFJUAuto();
    }
    return;
  }
  ResumeNext([&] {
    switch (optFunkcije) {
      case kCartesian: FillValueTable(Xpoc, Xkraj); break;
      case kParametric: FillValueTableParam(9, -9); break;
      default: FillValueTablePolar(); break;
    }
  });
}

void GraphWindow::mnuPlotWidth() {
  // The box comes back with 1 as its default after a refused answer too.
  const std::string defaultAnswer = "1";
  for (;;) {
    const std::string answer =
        services_.input
            ->Ask("Enter value for Graph-Line Width (e.g. 1, 1.6 ...).", "Graph-Line Width", defaultAnswer)
            .value_or("");
    if (answer.empty()) return;
    double value = 0;
    bool numeric = false;
    try {
      numeric = IsNumericText(answer);
      value = expr::TextToNumber(answer);
    } catch (const expr::Fault&) {
      numeric = false;
    }
    if (numeric && value > 0) {
      GraphLineWidth = value;
      return;
    }
    std::string text = "Invalid input: Line width = ";
    text += answer;
    text += '.';
    services_.messages->Show(text, std::string(kDefaultTitle), platform::MsgIcon::None);
  }
}

}  // namespace velmora::graph
