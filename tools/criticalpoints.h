#pragma once

#include <functional>
#include <string>
#include <vector>

#include "expr/formulacontrol.h"
#include "graph/graphtooltarget.h"
#include "graph/tablerows.h"
#include "graph/valuetable.h"
#include "platform/messagebox.h"

namespace velmora::tools {

// One row the scan table keeps: X, Y and Y' as the value table writes them.
struct ScanRow {
  std::string x;
  std::string y;
  std::string d;
};

// The Critical Points search (`frmAnalizaNew` driving its hidden scan form
// `frmTabelaNew`, which is this object, not a window): a coarse table at
// step 0.01 that keeps the rows of small slope and picks candidates from
// them, then for each candidate a fine table at step 0.001 around it whose
// row of least slope is classified by the rows three places to each side.
class CriticalPoints {
 public:
  static constexpr double kCoarseStep = 0.01;
  static constexpr double kFineStep = 0.001;
  static constexpr int kTableDecimals = 10;
  static constexpr double kRowFilter = 0.1;
  static constexpr double kCandidateSlope = 0.2;
  static constexpr double kCandidateDistance = 0.3;
  static constexpr int kMaxCandidates = 20;
  static constexpr int kClassifyRows = 3;

  // Called at each X of the coarse table with the progress bar's value (0
  // to 100), or -1 when the bar stays where it was; returns false to stop
  // the run (Cancel, Escape, closing the window).
  using Pulse = std::function<bool(int percent)>;

  CriticalPoints(expr::FormulaControl& engine, platform::MessageBox& messages)
      : engine_(engine), messages_(messages), rows_(engine, messages) {}

  std::string minText = "-2";     // `txtMin`
  std::string maxText = "2";      // `txtMax`
  bool increaseAccuracy = false;  // `Check1`
  // The active graph window: the function as searched is written back into
  // its Y box before the scan. Null: no window to write to.
  graph::GraphToolTarget* window = nullptr;

  // "Calculate" on the active window's function. The function as searched
  // ("k" read as "x", lower case) is kept in Formula() and written back
  // into the window's Y box; the bounds are
  // written back into their boxes as numbers. False when the range is
  // missing or the run was stopped.
  bool Calculate(const std::string& function, const Pulse& pulse = {});

  // The parts, for tests.
  // The coarse table: rows of |Y'| <= 0.1 only, faults ignored.
  std::vector<ScanRow> ScanTable(double xmin, double xmax, const Pulse& pulse = {});
  void CoarseScan(double xmin, double xmax, const Pulse& pulse = {});
  std::string RefinePoints();

  const std::string& Formula() const { return formula_; }
  const std::string& Log() const { return log_; }
  void SetLog(std::string text) { log_ = std::move(text); }
  const std::vector<std::string>& Candidates() const { return candidates_; }
  bool LostAccuracy() const { return lostAccuracy_; }
  bool Stopped() const { return stopped_; }

 private:
  double Derivative(const std::string& at, const std::string& expression);

  expr::FormulaControl& engine_;
  platform::MessageBox& messages_;
  graph::TableRows rows_;
  graph::ValueTable fine_;
  std::string formula_;
  std::string log_;
  std::vector<std::string> candidates_;  // `cmbXk`
  bool lostAccuracy_ = false;
  bool stopped_ = false;
};

}  // namespace velmora::tools
