#pragma once

#include <string>
#include <vector>

#include "expr/formulacontrol.h"
#include "graph/tablerows.h"
#include "graph/valuetable.h"
#include "platform/messagebox.h"

namespace velmora::tools {

// The Value Tables window (`frmTabela`) without its widgets: the function
// boxes and their lists, the range, step and accuracy boxes, the grid, and
// the commands over the shared row loops of graph/tablerows.h.
class ValueTableTool {
 public:
  ValueTableTool(expr::FormulaControl& engine, platform::MessageBox& messages)
      : engine_(engine), messages_(messages), rows_(engine, messages) {
    graph::ResetTable(table_, graph::TableLayout::Cartesian);
  }

  // The boxes as typed.
  std::string y;                        // `txtY`
  std::string x = "K";                  // `txtX`
  std::string xmin = "-5";              // `txtdole`
  std::string xmax = "5";               // `txtgore`
  std::string step = "1";               // `Combo1`
  std::string decimals = "3";           // `txtDec`
  std::vector<std::string> yList;       // the list of `txtY`
  std::vector<std::string> xList;       // the list of `txtX`
  std::vector<std::string> parametric;  // `cmbR3`: the Y texts of parametric functions

  // The function type, 1 Cartesian, 2 parametric, 3 polar (`optFunkcije`).
  int Type() const { return type_; }
  // Clicking an option: the type and, for 1 and 3, "K" in `txtX`.
  void SetType(int type);
  // The label of `txtY` by type: "Y (X) =", "Y (K) =", "R (K) =".
  std::string YLabel() const;
  graph::TableLayout Layout() const;

  // "Calculate" is enabled while `txtY` holds text.
  bool CanCalculate() const { return !y.empty(); }
  // "Copy", "HTML" and "Save" are enabled while the table has rows.
  bool HasRows() const { return table_.Rows() != 2; }

  // "Calculate" (Enter in the step box). Returns whether a row loop ran to
  // its end.
  bool Calculate();
  // Choosing an entry from the list of `txtY` (already in `y`): the type is
  // guessed from the text and the lists, and the table made again over the
  // stored step (Cartesian from 0 to 0, parametric from -9 to 9).
  bool ChooseFromList();
  // "Clear Table", and every edit of `txtY`.
  void InitTableGrid() { graph::ResetTable(table_, graph::TableLayout::Cartesian); }

  const graph::ValueTable& Table() const { return table_; }
  // The step of the last calculation, as evaluated.
  double StepValue() const { return stepValue_; }

 private:
  bool RunLoop(double from, double to);
  double Evaluate(const std::string& text);

  expr::FormulaControl& engine_;
  platform::MessageBox& messages_;
  graph::TableRows rows_;
  graph::ValueTable table_;
  int type_ = 1;
  double stepValue_ = 0;
};

}  // namespace velmora::tools
