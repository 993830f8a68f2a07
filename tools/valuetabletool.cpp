#include "tools/valuetabletool.h"

#include "base/asciicase.h"
#include "expr/checked.h"
#include "expr/numtext.h"
#include "tools/toollists.h"

namespace velmora::tools {

void ValueTableTool::SetType(int type) {
  if (type < 1 || type > 3) return;
  type_ = type;
  if (type != 2) x = "K";
}

std::string ValueTableTool::YLabel() const {
  switch (type_) {
    case 2: return "Y (K) =";
    case 3: return "R (K) =";
    default: return "Y (X) =";
  }
}

graph::TableLayout ValueTableTool::Layout() const {
  switch (type_) {
    case 2: return graph::TableLayout::Parametric;
    case 3: return graph::TableLayout::Polar;
    default: return graph::TableLayout::Cartesian;
  }
}

double ValueTableTool::Evaluate(const std::string& text) {
  engine_.SetFormula(text);
  double value = 0;
  expr::ResumeNext([&] { value = expr::RoundTo(engine_.Result(), 5); });
  engine_.SetFormula("PopAll()");
  return value;
}

bool ValueTableTool::RunLoop(double from, double to) {
  const int places = static_cast<int>(expr::TextToNumber(decimals));
  switch (type_) {
    case 2: return rows_.ParametricTable(table_, y, x, from, to, stepValue_, places);
    case 3: return rows_.PolarTable(table_, y, places);
    default: {
      const bool refuseK = base::UpperCase(y).find('K') != std::string::npos;
      return rows_.CartesianTable(table_, y, from, to, stepValue_, places, refuseK);
    }
  }
}

bool ValueTableTool::Calculate() {
  if (xmin.empty() || xmax.empty()) {
    messages_.Show("Range not defined", "Velmora", platform::MsgIcon::Information);
    return false;
  }
  const double from = Evaluate(xmin);
  const double to = Evaluate(xmax);
  stepValue_ = Evaluate(step);
  bool ok = false;
  expr::ResumeNext([&] { ok = RunLoop(from, to); });
  AddUnique(yList, y);
  AddUnique(xList, x);
  return ok;
}

bool ValueTableTool::ChooseFromList() {
  if (base::UpperCase(y).find('K') == std::string::npos) {
    SetType(1);
  } else {
    // A K function that stands in the parametric list is parametric, any
    // other is polar.
    for (std::size_t i = 0; i < parametric.size(); ++i) {
      if (parametric[i] == y) {
        if (i < xList.size()) x = xList[i];
        type_ = 2;
        break;
      }
      SetType(3);
    }
  }
  bool ok = false;
  expr::ResumeNext([&] { ok = type_ == 2 ? RunLoop(-9, 9) : RunLoop(0, 0); });
  return ok;
}

}  // namespace velmora::tools
