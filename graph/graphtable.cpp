// The graph window's value table and its history record.
#include <cmath>
#include <optional>

#include "expr/fault.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"
#include "graph/graphwindow.h"
#include "graph/historyrecord.h"
#include "tools/tablerows.h"
#include "base/asciicase.h"

namespace velmora::graph {
namespace {

template <class Statement>
void ResumeNext(Statement&& statement) {
  try {
    statement();
  } catch (const expr::Fault&) {
  }
}

}  // namespace

void GraphWindow::FillValueTable(double from, double to) {
  const bool hasK = base::UpperCase(txtY.Text).find('K') != std::string::npos;
  const bool refuse = hasK && optFunkcije != kCartesian;
  tools::TableRows rows(Evaluator1(), *services_.messages);
  if (!refuse) lblPointtab.Caption = "Value Tables for " + txtY.Text;
  rows.CartesianTable(MS1, txtY.Text, from, to, kTableStep, kTableDecimals, refuse);
}

// The table runs K between the two bounds, from the lower up.
void GraphWindow::FillValueTableParam(double top, double bottom) {
  tools::TableRows rows(Evaluator1(), *services_.messages);
  lblPointtab.Caption = "Value Tables for " + txtY.Text;
  rows.ParametricTable(MS1, txtY.Text, txtX.Text, std::min(top, bottom), std::max(top, bottom), kTableStep,
                       kTableDecimals);
}

void GraphWindow::FillValueTablePolar() {
  tools::TableRows rows(Evaluator1(), *services_.messages);
  lblPointtab.Caption = "Value Tables for " + txtY.Text;
  rows.PolarTable(MS1, txtY.Text, kTableDecimals);
}

void GraphWindow::funcSave() {
  if (services_.history == nullptr) return;
  const HistoryLog& log = *services_.history;
  rtb = log.ReadAll();
  const int type = lastDrawPolar_ ? kPolar : optFunkcije;
  RecordFields fields;
  fields.kind = ChooseRecord(TngentaP, NormalkaP, type, Tngenta, Normalka);
  // The value of a function at a point, through Evaluator1, in the history
  // form of the text; a failure leaves the text empty.
  const auto valueAt = [this](const std::string& function, const std::string& point, int decimals) {
    std::string text;
    ResumeNext([&] {
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
      // The table still holds the rows of the draw before: it is filled after the record.
      if (MS1.Rows() > 1 && MS1.Cols() > 1)
        fields.firstRow.emplace(MS1.TextMatrix(1, 0), MS1.TextMatrix(1, 1));
      break;
    case RecordKind::Parametric:
      fields.function = typedY_;
      fields.xText = typedX_;
      break;
    case RecordKind::Polar: fields.function = HistoryFunctionText(typedY_, false); break;
    case RecordKind::CartesianTangent:
    case RecordKind::CartesianNormal:
      fields.fjaT = fjaT;
      fields.x0 = TngentaX;
      fields.y0 = valueAt(fjaT, TngentaX, 5);
      fields.slope = Slopka;
      fields.lineText = txtY.Text;
      break;
    case RecordKind::ParametricTangent:
    case RecordKind::ParametricNormal:
      fields.fja1P = fja1P;
      fields.fja2P = fja2P;
      fields.k = TngentaXP;
      fields.x = valueAt(fja2P, TngentaXP, 4);
      fields.y = valueAt(fja1P, TngentaXP, 4);
      fields.lineText = txtY.Text;
      fields.txtX = txtX.Text;
      break;
  }
  log.Append(HistoryRecord(fields));
  rtb = log.ReadAll();
}

}  // namespace velmora::graph
