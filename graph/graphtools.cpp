// The graph window's own tools: the tangent and the normal, the integral
// and average fills and the derivative curve.
#include <cmath>

#include "base/asciicase.h"
#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"
#include "graph/derivativestrategy.h"
#include "graph/fillstrategy.h"
#include "graph/graphwindow.h"
#include "graph/tangentlines.h"

namespace velmora::graph {
namespace {

bool IsK(const std::string& text) { return text == "K" || text == "k"; }

// A limit of frmMini as the engine reads it: blanks out, round brackets,
// lower case with "exp" and "fix" kept, and K as the variable.
std::string LimitForm(std::string_view typed) {
  std::string text = base::LowerCase(expr::CleanUp(typed));
  expr::ReplaceAllInPlace(text, "exp", "ep");
  expr::ReplaceAllInPlace(text, "fix", "stl");
  expr::ReplaceAllInPlace(text, "x", "k");
  return text;
}

}  // namespace

// ---- Tangent and normal -----------------------------------------------------------

bool GraphWindow::crtajt() {
  if (boxes_.txtY().Text.empty()) {
    services_.messages->Show("Draw function first.", "Tangent/Normal", platform::MsgIcon::Exclamation);
    return false;
  }
  if (!IsK(boxes_.txtX().Text)) {
    services_.messages->Show("This option is available only for Cartesian (Standard) functions.",
                             "Tamgent/Normal", platform::MsgIcon::Exclamation);
    return false;
  }
  return true;
}

std::optional<double> GraphWindow::EvaluatePoint(std::string_view text) {
  auto& evaluator = Evaluator1();
  try {
    evaluator.SetFormula(text);
    const double value = evaluator.Result();
    evaluator.SetFormula("PopAll()");
    return value;
  } catch (const expr::Fault& fault) {
    expr::ResumeNext([&] { evaluator.SetFormula("PopAll()"); });
    services_.messages->Show("Error. " + std::string(fault.what()), std::string(kDefaultTitle),
                             platform::MsgIcon::Critical);
    return std::nullopt;
  }
}

void GraphWindow::ApplyTangent(bool normal, double x0) {
  if (draw_.Drawing()) return;
  tangent_ = TangentRequest::Cartesian(normal, expr::NumberToText(x0), "", boxes_.txtY().Text);
  unesix();
}

void GraphWindow::ApplyParametricTangent(bool normal, double k) {
  if (draw_.Drawing()) return;
  const std::string& y = boxes_.txtY().Text;
  const std::string& x = boxes_.txtX().Text;
  tangent_ = TangentRequest::Parametric(normal, expr::NumberToText(k), y, x, "Y = " + y + " ; X = " + x);
  if (normal) {
    unesixParaNorm(k);
  } else {
    unesixPara(k);
  }
}

void GraphWindow::unesix() {
  if (draw_.Drawing() || (!tangent_.Tngenta() && !tangent_.Normalka())) return;
  double x0 = 0;
  expr::ResumeNext([&] { x0 = expr::TextToNumber(tangent_.TngentaX()); });
  const LineText line = tangent_.Tngenta() ? TangentLines::DrawTang(Evaluator1(), boxes_.txtY().Text, x0)
                                           : TangentLines::DrawNormal(Evaluator1(), boxes_.txtY().Text, x0);
  tangent_.SetSlopka(line.slope);
  boxes_.SetTxtY(line.text);
  // A vertical normal is drawn as X (K) = x0; the type stays as it is.
  if (line.vertical) boxes_.SetTxtX(line.verticalX);
  DrawTangentLine();
}

void GraphWindow::unesixPara(double k) {
  if (draw_.Drawing()) return;
  expr::FormulaControl& second = services_.evaluator2 ? *services_.evaluator2 : Evaluator1();
  const LineText line =
      TangentLines::Parametric(Evaluator1(), second, tangent_.fja1P(), tangent_.fja2P(), k, false);
  tangent_.SetSlopka(line.slope);
  optFunk(kCartesian);
  boxes_.SetTxtY(line.text);
  boxes_.SetTxtX(line.vertical ? line.verticalX : "K");
  DrawTangentLine();
}

void GraphWindow::unesixParaNorm(double k) {
  if (draw_.Drawing()) return;
  expr::FormulaControl& second = services_.evaluator2 ? *services_.evaluator2 : Evaluator1();
  const LineText line =
      TangentLines::Parametric(Evaluator1(), second, tangent_.fja1P(), tangent_.fja2P(), k, true);
  tangent_.SetSlopka(line.slope);
  optFunk(kCartesian);
  boxes_.SetTxtY(line.text);
  boxes_.SetTxtX(line.vertical ? line.verticalX : "K");
  DrawTangentLine();
}

void GraphWindow::DrawTangentLine() {
  // Boje4: the tangent colour for this draw; Boje5: the plot colour again.
  pen_.SetGraph_Clr(lblBoja2());
  Draw({.polar = false, .polarInType3 = false, .checkSyntax = true, .remember = true, .keepColour = true});
  pen_.SetGraph_Clr(pen_.lblBoja());
}

// ---- Integral, average and derivative --------------------------------------------------

bool GraphWindow::mnuDrawIntegral() {
  if (boxes_.txtY().Text.empty()) {
    services_.messages->Show("Enter function first.", std::string(kDefaultTitle),
                             platform::MsgIcon::Exclamation);
    return false;
  }
  if (boxes_.txtX().Text != "K") {
    services_.messages->Show("Not available for parametric functions.", std::string(kDefaultTitle),
                             platform::MsgIcon::Exclamation);
    return false;
  }
  return true;
}

bool GraphWindow::ApplyIntegral(const IntegralRequest& request) {
  if (draw_.Drawing()) return true;
  // Both limits are expressions ("pi/2"); a limit the engine cannot read is 0.
  const auto limit = [this](std::string_view text) {
    double value = 0;
    auto& evaluator = Evaluator1();
    expr::ResumeNext([&] {
      evaluator.SetFormula(LimitForm(text));
      value = evaluator.Result();
    });
    expr::ResumeNext([&] { evaluator.SetFormula("PopAll()"); });
    return value;
  };
  xMin_ = limit(request.xMin);
  xMax_ = limit(request.xMax);
  double average = 0;
  expr::ResumeNext([&] { average = expr::TextToNumber(request.average); });
  if (request.drawAverage && average == 0) {
    services_.messages->Show("Invalid input for Average value.", std::string(kDefaultTitle),
                             platform::MsgIcon::Exclamation);
    return false;
  }
  check2_ = request.drawFunction;
  averageText_ = expr::NumberToText(average);
  if (!request.drawAverage) {
    CrtajIntegralNovo();
    return true;
  }
  // Twice in that order: the second run goes over the first unchanged.
  for (int run = 0; run < 2; ++run) {
    CrtajIntegralNovo();
    CrtajAverageNovo();
  }
  return true;
}

void GraphWindow::CrtajIntegralNovo() {
  if (draw_.Drawing()) return;
  Clearwith();
  DrawLines();
  FillStrategy fill(*this, xMin_, xMax_, !check2_);
  Draw({.polar = false,
        .polarInType3 = false,
        .checkSyntax = true,
        .remember = false,
        .table = false,
        .strategy = &fill});
}

void GraphWindow::CrtajAverageNovo() {
  if (draw_.Drawing()) return;
  const Colour plot = pen_.Graph_Clr();
  pen_.SetGraph_Clr(pen_.AvBoja());
  FillStrategy band(*this, xMin_, xMax_, true);
  Draw({.polar = false,
        .polarInType3 = false,
        .checkSyntax = false,
        .remember = false,
        .table = false,
        .keepColour = true,
        .strategy = &band,
        .fixedY = &averageText_});
  pen_.SetGraph_Clr(plot);
}

void GraphWindow::CrtajFJUDeriv() {
  if (draw_.Drawing()) return;
  pen_.SetGraph_Clr(pen_.lblBoja());
  DerivativeStrategy derivative(*this);
  Draw({.polar = false,
        .polarInType3 = false,
        .checkSyntax = true,
        .remember = false,
        .table = false,
        .keepColour = true,
        .strategy = &derivative});
}

double GraphWindow::FDeriv(double v) {
  auto& evaluator = Evaluator1();
  double value = 0;
  try {
    evaluator.SetFormula("Push(2000)");
    evaluator.SetFormula("Push(" + expr::NumberToText(v) + ")");
    evaluator.SetFormula("diff(" + expr::ReplaceAll(draw_.FuncY(), "(X)", "K") + ")");
    value = evaluator.Result();
  } catch (const expr::Fault&) {
    value = 0;
  }
  expr::ResumeNext([&] { evaluator.SetFormula("PopAll()"); });
  return value;
}

}  // namespace velmora::graph
