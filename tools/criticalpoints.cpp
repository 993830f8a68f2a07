#include "tools/criticalpoints.h"

#include <cmath>

#include "base/asciicase.h"
#include "expr/checked.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"
#include "graph/forstep.h"
#include "tools/toollists.h"

namespace velmora::tools {
namespace {

constexpr const char* kTitle = "Velmora";
constexpr double kLimit = graph::TableRows::kCartesianLimit;

double Val(const std::string& text) {
  double value = 0;
  expr::ResumeNext([&] { value = expr::TextToNumber(text); });
  return value;
}

}  // namespace

double CriticalPoints::Derivative(const std::string& at, const std::string& expression) {
  engine_.SetFormula("Push(2000)");
  engine_.SetFormula("Push(" + at + ")");
  engine_.SetFormula("diff(" + expression + ")");
  double value = 0;
  const bool ok = expr::ResumeNext([&] { value = engine_.Result(); });
  engine_.SetFormula("PopAll()");
  if (!ok) throw expr::Fault(expr::Fault::kInvalidCall);
  return value;
}

bool CriticalPoints::Calculate(const std::string& function, const Pulse& pulse) {
  if (minText.empty() || maxText.empty()) {
    messages_.Show("Define range.", kTitle, platform::MsgIcon::Critical);
    return false;
  }
  double bounds[2] = {0, 0};
  std::string* boxes[2] = {&minText, &maxText};
  for (int i = 0; i < 2; ++i) {
    engine_.SetFormula(*boxes[i]);
    expr::ResumeNext([&] { bounds[i] = engine_.Result(); });
    engine_.SetFormula("PopAll()");
    *boxes[i] = expr::NumberToText(bounds[i]);
  }
  formula_ = expr::ReplaceAll(base::LowerCase(function), "k", "x");
  if (window != nullptr) window->SetFunctionYText(formula_);
  stopped_ = false;
  double from = 0;
  double to = 0;
  expr::ResumeNext([&] { from = expr::RoundTo(bounds[0], 0); });
  expr::ResumeNext([&] { to = expr::RoundTo(bounds[1], 0); });
  CoarseScan(from, to, pulse);
  if (stopped_) return false;
  const std::string result = RefinePoints();
  log_ += "\r\nRange: (" + minText + "; " + maxText + ")\r\n" + result + "\r\n";
  return true;
}

std::vector<ScanRow> CriticalPoints::ScanTable(double xmin, double xmax, const Pulse& pulse) {
  std::vector<ScanRow> rows;
  const bool noDerivative = graph::TableRows::NoDerivative(formula_);
  const std::string text = graph::TableTextForm(formula_, graph::TableLayout::Cartesian);
  double y = 0;
  double d = 0;
  graph::ForStep(xmin, xmax, kCoarseStep, [&](double x) {
    if (pulse) {
      // The bar's value is right only for a negative start: 0 there, 100 at
      // X = 0; any other value is refused and the bar stays.
      int percent = -1;
      const float value = static_cast<float>(100 - (100 * x / xmin));
      if (xmin != 0 && value >= 0 && value <= 100) percent = static_cast<int>(value);
      if (!pulse(percent)) {
        stopped_ = true;
        return false;
      }
    }
    const std::string xText = expr::NumberToText(x);
    expr::ResumeNext([&] {
      engine_.SetFormula(expr::ReplaceAll(text, "x", xText));
      y = expr::RoundTo(engine_.Result(), kTableDecimals);
    });
    engine_.SetFormula("PopAll()");
    expr::ResumeNext([&] { d = expr::RoundTo(Derivative(xText, text), kTableDecimals); });
    if (std::fabs(d) > kRowFilter) return true;
    ScanRow row;
    expr::ResumeNext([&] { row.x = expr::NumberToText(expr::RoundTo(x, kTableDecimals)); });
    const bool yBad = std::fabs(y) > kLimit || expr::PrcniFunc(y);
    row.y = yBad ? "Error" : expr::NumberToText(y);
    const bool dBad = yBad || std::fabs(d) > kLimit || expr::PrcniFunc(d) || noDerivative;
    row.d = dBad ? "Error" : expr::NumberToText(d);
    rows.push_back(std::move(row));
    return true;
  });
  return rows;
}

void CriticalPoints::CoarseScan(double xmin, double xmax, const Pulse& pulse) {
  lostAccuracy_ = false;
  candidates_.clear();
  const std::vector<ScanRow> rows = ScanTable(xmin, xmax, pulse);
  if (stopped_) return;
  const std::string expression = expr::ToolTextForm(formula_);
  double d = 0;
  for (const ScanRow& row : rows) {
    const double slope = Val(row.d);
    if (!(std::fabs(slope) < kRowFilter) || row.d == "Error") continue;
    expr::ResumeNext([&] { d = expr::RoundTo(Derivative("(" + row.x + ")", expression), 1); });
    if (candidates_.empty()) {
      candidates_.push_back(row.x);
    } else if (std::fabs(d) < kCandidateSlope &&
               std::fabs(Val(row.x) - Val(candidates_.back())) > kCandidateDistance) {
      AddUnique(candidates_, row.x);
    }
    if (static_cast<int>(candidates_.size()) > kMaxCandidates) {
      messages_.Show(
          "Lost accuracy in approximation.\r\nPlease define smaller range around the expected critical "
          "points and "
          "try again.",
          kTitle, platform::MsgIcon::Information);
      candidates_.clear();
      lostAccuracy_ = true;
      return;
    }
  }
}

std::string CriticalPoints::RefinePoints() {
  // The text stands for the lost-accuracy case; its spelling is the program's.
  if (lostAccuracy_) return "Stoped by user.\r\n";
  const double delta = increaseAccuracy ? 0.13 : 0.23;
  const int decimals = increaseAccuracy ? 1 : 0;
  const std::string expression = expr::ToolTextForm(formula_);
  std::string out = "Function: y = " + formula_ + "\r\n";
  std::vector<std::string> found;  // `cmbXk2`
  // These keep their values from one candidate to the next, as the search
  // always has: a candidate whose best row is the first one reuses them.
  std::string x;
  std::string y;
  std::string label;
  double yUp = 0;
  double yDown = 0;
  double d = 0;
  for (const std::string& c : candidates_) {
    const double centre = Val(c);
    expr::ResumeNext([&] {
      rows_.CartesianTable(fine_, formula_, centre - delta, centre + delta, kFineStep, kTableDecimals,
                           base::UpperCase(formula_).find('K') != std::string::npos);
    });
    const int last = fine_.Rows() - 1;
    double best = std::fabs(Val(fine_.TextMatrix(1, 2)));
    for (int row = 1; row <= last; ++row) {
      const double v = std::fabs(Val(fine_.TextMatrix(row, 2)));
      if (!(v < best)) continue;
      best = v;
      x = fine_.TextMatrix(row, 0);
      y = fine_.TextMatrix(row, 1);
      bool zero = false;
      expr::ResumeNext([&] { zero = expr::RoundTo(Val(y), 2) == 0; });
      if (zero) y = "0";
      const double yC = Val(fine_.TextMatrix(row, 1));
      if (row + kClassifyRows <= last) yUp = Val(fine_.TextMatrix(row + kClassifyRows, 1));
      if (row - kClassifyRows >= 0) yDown = Val(fine_.TextMatrix(row - kClassifyRows, 1));
      if (yC < yDown && yUp > yC) {
        label = "Min: ";
      } else if (yC > yDown && yUp < yC) {
        label = "Max: ";
      } else {
        label = "Critical point: ";
      }
    }
    expr::ResumeNext([&] { d = expr::RoundTo(Derivative("(" + x + ")", expression), decimals); });
    if (d == 0 && label != "Critical point: ") AddUnique(found, label + "Y = " + y + " ; X = " + x);
  }
  if (found.empty()) {
    out +=
        "No critical points found for this function.\r\nTry to redefine range and/or increase accuracy.\r\n";
  } else {
    for (const std::string& item : found) {
      if (item != "Y =  ; X = ") out += item + "\r\n";
    }
  }
  return out;
}

}  // namespace velmora::tools
