#include "graph/mousereadout.h"

#include <cmath>

#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "graph/graphwindow.h"

namespace velmora::graph {
namespace {

// The platform's pi of the polar readout: 12 significant digits.
constexpr double kPi12 = 3.14159265359;
constexpr double kPi = 3.14159265358979;
// Half the step of the central difference.
constexpr double kSlopeStep = 0.001;
// The only value test of the trace: a value this large reads "Error".
constexpr double kValueLimit = 1000;
// Half the length of the tangent mark, in user units.
constexpr double kMarkHalf = 4;

std::string T(double value) { return expr::NumberToText(value); }

}  // namespace

void MouseReadout::MakeMouseFormula() {
  // The same rewriting as a draw: blanks and brackets, upper case, EXP and
  // FIX kept, X as K.
  mouseY_ = expr::EvaluationForm(expr::CleanUp(w_.Boxes().txtY().Text));
  mouseX_ = expr::EvaluationForm(expr::CleanUp(w_.Boxes().txtX().Text));
}

void MouseReadout::MouseMove(int button, double x, double y) {
  if (w_.State().Drawing()) return;
  Surface& s = w_.pDraw();
  const double width = s.ScaleWidth();
  const double height = s.ScaleHeight();
  // The function boxes as a draw would read them, in case they changed.
  MakeMouseFormula();
  // The zoom as its label shows it; the mouse from the middle of the surface.
  const double z = w_.ZoomText();
  double mx = 0;
  double my = 0;
  expr::ResumeNext([&] { mx = expr::CheckedDiv(x - width / 2, z); });
  expr::ResumeNext([&] { my = -expr::CheckedDiv(y - height / 2, z); });
  expr::ResumeNext([&] { v_.mx1 = expr::RoundTo(mx, 1); });
  expr::ResumeNext([&] { v_.my1 = expr::RoundTo(my, 1); });
  expr::ResumeNext([&] { v_.mx5 = expr::RoundTo(mx, 5); });
  expr::ResumeNext([&] { v_.my5 = expr::RoundTo(my, 5); });
  // A moved centre: the readout counts from the moved origin.
  if (w_.View().MovedRight() || w_.View().MovedLeft()) {
    expr::ResumeNext([&] { v_.mx1 = expr::RoundTo(v_.mx1 - w_.View().MoveX(), 1); });
    expr::ResumeNext([&] { v_.mx5 = expr::RoundTo(v_.mx5 - w_.View().MoveX(), 5); });
  }
  if (w_.View().MovedUp() || w_.View().MovedDown()) {
    expr::ResumeNext([&] { v_.my1 = expr::RoundTo(v_.my1 - w_.View().MoveY(), 1); });
    expr::ResumeNext([&] { v_.my5 = expr::RoundTo(v_.my5 - w_.View().MoveY(), 5); });
  }
  // The readout as it stands: a branch that computes nothing leaves it, and
  // every way out shows what it became.
  std::string text = w_.LblChart().Caption;
  struct ShowOnExit {
    GraphWindow& window;
    std::string& text;
    ~ShowOnExit() { window.ShowReadout(text); }
  } show{w_, text};
  // The plain readout: no right button alone, or nothing plotted yet.
  if (button != kRightButton || !w_.State().Plotted()) {
    text = "   x = " + T(v_.mx1) + ", y = " + T(v_.my1) + "";
    return;
  }
  // Parametric: k from the mouse, x (k) and y (k).
  if (w_.Boxes().optFunkcije() == kParametric) {
    expr::ResumeNext([&] { v_.xk = expr::RoundTo(w_.EvaluateAt(mouseX_, v_.mx5), 5); });
    expr::ResumeNext([&] { v_.value = expr::RoundTo(w_.EvaluateAt(mouseY_, v_.mx5), 5); });
    text = "   " + std::string(" k = ") + T(v_.mx1) + " [" + T(v_.mx5) + "]; " + " x (k) = " + T(v_.xk) +
           "; y (k) = " + T(v_.value);
    w_.ShowLine(OverlayLine::Line2, LineControl{x, 0, x, height, true});
    return;
  }
  // The function at the mouse column and its slope.
  if (w_.Boxes().txtY().Text.empty()) return;
  expr::ResumeNext([&] { v_.tx = expr::CheckedDiv(x - w_.View().CenterX(), w_.View().Zoom()); });
  const auto cut = [](double value) { return std::floor(value * 1000) / 1000; };
  expr::ResumeNext([&] { v_.ty = w_.EvaluateAt(mouseY_, cut(v_.tx)); });
  double y1 = 0;
  double y2 = 0;
  expr::ResumeNext([&] { y1 = w_.EvaluateAt(mouseY_, cut(v_.tx - kSlopeStep)); });
  expr::ResumeNext([&] { y2 = w_.EvaluateAt(mouseY_, cut(v_.tx + kSlopeStep)); });
  v_.slope = (y2 - y1) / (2 * kSlopeStep);
  // The tangent mark, 4 units either side of the point, and the vertical
  // cross-hair.
  if (w_.Boxes().optFunkcije() == kCartesian) {
    const double a = std::atan(v_.slope);
    const auto px = [&](double ux) { return w_.View().CenterX() + ux * w_.View().Zoom(); };
    const auto py = [&](double uy) { return w_.View().CenterY() + (-uy) * w_.View().Zoom(); };
    w_.ShowLine(OverlayLine::Line1,
                LineControl{px(v_.tx - kMarkHalf * std::cos(a)), py(v_.ty - kMarkHalf * std::sin(a)),
                            px(v_.tx + kMarkHalf * std::cos(a)), py(v_.ty + kMarkHalf * std::sin(a)), true});
    w_.ShowLine(OverlayLine::Line2, LineControl{x, 0, x, height, true});
  }
  // Polar: the angle and the distance of the mouse, not of the curve.
  if (w_.Boxes().optFunkcije() == kPolar) {
    const double mx5 = v_.mx5;
    const double my5 = v_.my5;
    double a = 0;
    expr::ResumeNext([&] {
      if (mx5 > 0 && my5 != 0) {
        a = expr::RoundTo(std::atan(my5 / mx5), 5);
      } else if (mx5 < 0 && my5 != 0) {
        a = expr::RoundTo(kPi12 - std::atan(my5 / std::fabs(mx5)), 5);
      } else if (mx5 == 0 && my5 != 0) {
        a = expr::RoundTo(kPi / 2, 5);  // positive below the axis too
      }
    });
    v_.angle = a;
    expr::ResumeNext([&] { v_.radius = expr::RoundTo(std::sqrt(mx5 * mx5 + my5 * my5), 5); });
    expr::ResumeNext([&] { v_.polarR = w_.EvaluateAt(mouseY_, v_.angle); });
    double turns = 0;
    expr::ResumeNext([&] { turns = expr::RoundTo(v_.angle / kPi12, 3); });
    text = "   " + std::string(" x = ") + T(v_.mx1) + " [" + T(mx5) + "]; " + "y = " + T(v_.my1) + " [" +
           T(my5) + "];" + " r = " + T(v_.radius);
    text += "; \xC3\xB8 = " + T(v_.angle) + " (" + T(turns) + "*Pi)";
    return;
  }
  // Cartesian: the value at the mouse.
  expr::ResumeNext([&] { v_.value = expr::RoundTo(w_.EvaluateAt(mouseY_, v_.mx5), 5); });
  if (std::fabs(v_.value) >= kValueLimit) {
    text = "   " + std::string(" (x1 , y1) = (") + T(v_.mx1) + " , Error )";
    return;
  }
  // The horizontal cross-hair, from the middle of the surface rather
  // than the centre: with a moved centre it stays in the frame of the plot
  // area's middle.
  expr::ResumeNext([&] {
    const double h = expr::RoundTo(height / 2 + (-(v_.value * z)), 3);
    w_.ShowLine(OverlayLine::LineY, LineControl{0, h, width, h, true});
  });
  // The Cartesian readout: the mouse and the function's value there.
  text = "   " + std::string(" x = ") + T(v_.mx1) + " [" + T(v_.mx5) + "], " + "y (x) = " + T(v_.value);
}

void MouseReadout::MouseUp() { w_.HideLines(); }

}  // namespace velmora::graph
