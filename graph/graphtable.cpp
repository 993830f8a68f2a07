// The graph window's value table and its history record.
#include <cmath>
#include <optional>

#include "base/asciicase.h"
#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"
#include "graph/graphwindow.h"
#include "graph/historyrecord.h"
#include "graph/tablerows.h"

namespace velmora::graph {
void GraphWindow::FillValueTable(double from, double to) {
  const std::string& y = boxes_.txtY().Text;
  const bool hasK = base::UpperCase(y).find('K') != std::string::npos;
  const bool refuse = hasK && boxes_.optFunkcije() != kCartesian;
  TableRows rows(Evaluator1(), *services_.messages);
  if (!refuse) lblPointtab_.Caption = "Value Tables for " + y;
  rows.CartesianTable(ms1_, y, from, to, kTableStep, kTableDecimals, refuse);
}

// The table runs K between the two bounds, from the lower up.
void GraphWindow::FillValueTableParam(double top, double bottom) {
  TableRows rows(Evaluator1(), *services_.messages);
  lblPointtab_.Caption = "Value Tables for " + boxes_.txtY().Text;
  rows.ParametricTable(ms1_, boxes_.txtY().Text, boxes_.txtX().Text, std::min(top, bottom),
                       std::max(top, bottom), kTableStep, kTableDecimals);
}

void GraphWindow::FillValueTablePolar() {
  TableRows rows(Evaluator1(), *services_.messages);
  lblPointtab_.Caption = "Value Tables for " + boxes_.txtY().Text;
  rows.PolarTable(ms1_, boxes_.txtY().Text, kTableDecimals);
}

void GraphWindow::funcSave() {
  if (services_.history == nullptr) return;
  const HistoryLog& log = *services_.history;
  rtb_ = log.ReadAll();
  const int type = lastDrawPolar_ ? kPolar : boxes_.optFunkcije();
  const TangentRequest& t = tangent_;
  RecordFields fields;
  fields.kind = ChooseRecord(t.TngentaP(), t.NormalkaP(), type, t.Tngenta(), t.Normalka());
  // The value of a function at a point, through Evaluator1, in the history
  // form of the text; a failure leaves the text empty.
  const auto valueAt = [this](const std::string& function, const std::string& point, int decimals) {
    std::string text;
    expr::ResumeNext([&] {
      auto& evaluator = Evaluator1();
      evaluator.SetFormula(expr::ReplaceAll(expr::Zagrade(function), "x", "(" + point + ")"));
      double value = evaluator.Result();
      evaluator.SetFormula("PopAll()");
      if (std::isfinite(value)) value = expr::RoundTo(value, decimals);
      text = expr::NumberToText(value);
    });
    return text;
  };
  switch (fields.kind) {
    case RecordKind::Cartesian:
      fields.function = HistoryFunctionText(typedY_, true);
      // The draw has filled the table before its record.
      if (ms1_.Rows() > 1 && ms1_.Cols() > 1)
        fields.firstRow.emplace(ms1_.TextMatrix(1, 0), ms1_.TextMatrix(1, 1));
      break;
    case RecordKind::Parametric:
      fields.function = typedY_;
      fields.xText = typedX_;
      break;
    case RecordKind::Polar: fields.function = HistoryFunctionText(typedY_, false); break;
    case RecordKind::CartesianTangent:
    case RecordKind::CartesianNormal:
      fields.fjaT = t.fjaT();
      fields.x0 = t.TngentaX();
      fields.y0 = valueAt(t.fjaT(), t.TngentaX(), 5);
      fields.slope = t.Slopka();
      fields.lineText = boxes_.txtY().Text;
      break;
    case RecordKind::ParametricTangent:
    case RecordKind::ParametricNormal:
      fields.fja1P = t.fja1P();
      fields.fja2P = t.fja2P();
      fields.k = t.TngentaXP();
      fields.x = valueAt(t.fja2P(), t.TngentaXP(), 4);
      fields.y = valueAt(t.fja1P(), t.TngentaXP(), 4);
      fields.lineText = boxes_.txtY().Text;
      fields.txtX = boxes_.txtX().Text;
      break;
  }
  log.Append(HistoryRecord(fields));
  rtb_ = log.ReadAll();
}

}  // namespace velmora::graph
