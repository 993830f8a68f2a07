#include "graph/samplingloop.h"

#include <cmath>

#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/numtext.h"
#include "graph/graphwindow.h"

namespace velmora::graph {
namespace {

// The plot limit in user units.
constexpr double kLimit = 100;

// Abs(Val(text of Y)) > 100: the test reads the value's text, so the five
// spellings of a value that is not finite read as 1 or -1 and never pass,
// and a value a hair above 100 whose 15 digits read 100 does not either.
bool TextAboveLimit(double y) {
  if (!std::isfinite(y)) return false;
  const double a = std::fabs(y);
  if (a < kLimit - 0.01 || a > kLimit + 0.01) return a > kLimit;
  return std::fabs(expr::TextToNumber(expr::NumberToText(y))) > kLimit;
}

// How many passes the loop makes: the end is tested before each pass and
// reached when the sum of the steps hits it. Counting the passes from the
// span keeps them at one per pixel column, ScaleWidth + 1, whatever the
// rounding of the repeated addition does near the end.
long PassCount(double start, double end, double step) {
  const double steps = (end - start) / step;
  if (!std::isfinite(steps) || steps < 0) return 0;
  constexpr double kMaxPasses = 10000000;
  return static_cast<long>(std::floor(std::min(steps + 1e-7, kMaxPasses))) + 1;
}

// PrcniFunc: the value's text is one of the five non-finite spellings. The
// text form spells exactly the values that are not finite, so the test is
// made on the value and the loop saves two conversions to text per sample.
bool NotFinite(double value) { return !std::isfinite(value); }

}  // namespace

const char* ActionName(PassAction action) {
  switch (action) {
    case PassAction::Skip: return "skip";
    case PassAction::Move: return "move";
    case PassAction::Line: return "line";
  }
  return "skip";
}

double CurveStrategy::SampleY(double kr) { return window_.F(kr); }
double CurveStrategy::SampleX(double kr, double yr) { return window_.F2(kr, yr); }

std::string SamplingLoop::ProgressText(double k, double centerX, double zoom, double scaleWidth) {
  std::string text = "Done...   ";
  expr::ResumeNext([&] {
    const double share =
        expr::Checked(100 * (k + centerX / zoom) / ((scaleWidth - centerX) / zoom + centerX / zoom));
    // Int() of a share beyond any whole number the label can show faults.
    if (std::fabs(share) >= 1e15) throw expr::Fault(expr::Fault::kOverflow);
    text += std::to_string(static_cast<long long>(std::floor(share)));
  });
  text += '%';
  return text;
}

LoopResult SamplingLoop::Run() {
  GraphWindow& w = window_;
  Surface& s = w.surface_;
  LoopResult result;
  const double start = -w.view_.CenterX() / w.view_.Zoom();
  const double step = 1 / w.view_.Zoom();
  const double end = (s.ScaleWidth() - w.view_.CenterX()) / w.view_.Zoom();
  const long passes = PassCount(start, end, step);

  bool penUp = true;       // the last sample was off the plot vertically
  bool notStarted = true;  // nothing plotted yet
  bool first = false;      // Xpoc taken
  double y = 0;
  double x = 0;
  double xp = 0;
  double yp = 0;
  double k = start;
  for (long pass = 0; pass < passes; ++pass, k += step) {
    ++result.passes;
    PassAction action = PassAction::Skip;
    // K cut to three decimals toward minus infinity.
    const double kr = std::floor(k * 1000) / 1000;
    y = strategy_.SampleY(kr);
    // A value that is not finite, an exact 0 (how a failed evaluation
    // comes back) or one beyond the limit is skipped.
    if (!NotFinite(y) && y != 0 && !(std::fabs(y) > kLimit)) {
      y = strategy_.PlotY(kr, y);
      // X of the sample (K itself in Cartesian type), and both in pixels.
      x = strategy_.SampleX(kr, std::floor(y * 1000) / 1000);
      expr::ResumeNext([&] { xp = expr::Checked(w.view_.CenterX() + expr::Checked(x * w.view_.Zoom())); });
      expr::ResumeNext([&] { yp = expr::Checked(w.view_.CenterY() + (-y) * w.view_.Zoom()); });
      // The first plotted X of a Cartesian curve, for the value table.
      if (strategy_.TakesXpoc() && !first) {
        expr::ResumeNext([&] {
          w.draw_.SetXpoc(w.view_.PomeriX(expr::Checked((xp - s.ScaleWidth() / 2) / w.ZoomText())));
        });
        first = true;
      }
      // Join, move or lift the pen. A fault in the range test takes the branch, as the platform's
      // resume-next does.
      expr::ResumeNext([&] { s.SetDrawWidth(expr::ToShort(w.pen_.GraphLineWidth())); });
      bool inRange = true;
      expr::ResumeNext([&] {
        const float narrowed = expr::CheckedToSingle(yp);
        inRange = 0 < narrowed && narrowed < s.ScaleHeight();
      });
      bool progress = true;
      // A line to the sample, with the stroke down to the X axis where the
      // strategy fills, drawn solid even when the curve is hidden; the next
      // line starts at the stroke's foot, so the strokes close up.
      const auto lineTo = [&] {
        if (inRange && strategy_.Fills(xp)) {
          expr::ResumeNext([&] { s.SetDrawStyle(kSolid); });
          expr::ResumeNext([&] { s.LineTo(xp, yp, w.pen_.Graph_Clr()); });
          expr::ResumeNext([&] { s.Line(xp, yp, xp, w.view_.CenterY(), w.pen_.Graph_Clr()); });
          expr::ResumeNext([&] { s.SetDrawStyle(strategy_.SolidStyle()); });
        } else {
          expr::ResumeNext([&] { s.LineTo(xp, yp, w.pen_.Graph_Clr()); });
        }
      };
      if (penUp) {
        if (inRange) {
          if (!notStarted) {
            lineTo();
            action = PassAction::Line;
          } else {
            s.SetCurrentX(xp);
            s.SetCurrentY(yp);
            notStarted = false;
            action = PassAction::Move;
          }
          penUp = false;
        } else {
          s.SetCurrentX(xp);
          s.SetCurrentY(yp);
          action = PassAction::Move;
          progress = false;
        }
      } else {
        lineTo();
        action = PassAction::Line;
        if (!inRange) {
          s.SetCurrentX(xp);
          s.SetCurrentY(yp);
          penUp = true;
        }
      }
      // Progress, and events run: only samples that get here.
      if (progress) {
        w.lblPerCent_.Caption = ProgressText(k, w.view_.CenterX(), w.view_.Zoom(), s.ScaleWidth());
        if (w.services_.host != nullptr) {
          w.services_.host->ProgressChanged();
          w.services_.host->DoEvents();
        }
      }
    }
    // The pen for the next segment: invisible after a sample whose text
    // reads beyond the limit or whose X is not finite.
    const bool invisible = TextAboveLimit(y) || NotFinite(x);
    expr::ResumeNext([&] { s.SetDrawStyle(invisible ? kInvisible : strategy_.SolidStyle()); });
    if (w.services_.observer != nullptr)
      w.services_.observer->Pass({kr, y, x, xp, yp, action, s.DrawStyle()});
    // A Stop (Esc, the progress label) ends the loop after this sample.
    if (w.draw_.StopCrtanje()) {
      result.stopped = true;
      break;
    }
  }
  result.lastXp = xp;
  return result;
}

}  // namespace velmora::graph
