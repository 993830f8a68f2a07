#include "graph/historyrecord.h"

#include "expr/replacetext.h"
#include "base/asciicase.h"

namespace velmora::graph {

RecordKind ChooseRecord(bool tngentaP, bool normalkaP, int functionType, bool tngenta, bool normalka) {
  if (tngentaP) return RecordKind::ParametricTangent;
  if (normalkaP) return RecordKind::ParametricNormal;
  if (functionType == 2) return RecordKind::Parametric;
  if (functionType == 3) return RecordKind::Polar;
  if (tngenta) return RecordKind::CartesianTangent;
  if (normalka) return RecordKind::CartesianNormal;
  return RecordKind::Cartesian;
}

std::vector<std::string> HistoryRecord(const RecordFields& f) {
  std::vector<std::string> lines{""};
  switch (f.kind) {
    case RecordKind::Cartesian:
      lines.push_back(" Y(X) = " + f.function);
      if (f.firstRow) lines.push_back(" X = " + f.firstRow->first + "; Y = " + f.firstRow->second);
      break;
    case RecordKind::Parametric:
      lines.push_back(" Y(K) = " + f.function);
      lines.push_back(" X = " + f.xText);
      break;
    case RecordKind::Polar: lines.push_back(" R(K) = " + f.function); break;
    case RecordKind::CartesianTangent:
    case RecordKind::CartesianNormal: {
      const bool tangent = f.kind == RecordKind::CartesianTangent;
      lines.push_back((tangent ? " Tangent for Y = " : " Normal for Y = ") + f.fjaT);
      lines.push_back(" X = " + f.x0 + "; Y = " + f.y0);
      lines.push_back(" Slope: " + f.slope);
      lines.push_back((tangent ? " Tangent Line: " : " Normal Line: ") + f.lineText);
      break;
    }
    case RecordKind::ParametricTangent:
    case RecordKind::ParametricNormal: {
      const bool tangent = f.kind == RecordKind::ParametricTangent;
      // The heading is one text with two line breaks in it.
      lines.push_back(tangent ? " Tangent for Parametric Function: " : " Normal for Parametric Function: ");
      lines.push_back(" Y = " + f.fja1P);
      lines.push_back(" X = " + f.fja2P);
      lines.push_back(" K = " + f.k);
      lines.push_back(" X = " + f.x + "; Y = " + f.y);
      lines.push_back((tangent ? " Tangent Line: Y = " : " Normal Line: Y = ") + f.lineText +
                      "; X = " + f.txtX);
      break;
    }
  }
  lines.emplace_back(kHistorySeparator);
  return lines;
}

std::string HistoryFunctionText(std::string_view typed, bool cartesian) {
  std::string text = base::LowerCase(typed);
  if (cartesian) expr::ReplaceAllInPlace(text, "k", "x");
  return text;
}

}  // namespace velmora::graph
