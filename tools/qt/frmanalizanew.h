#pragma once

#include <memory>
#include <random>

#include <QWidget>

#include "expr/formulacontrol.h"
#include "tools/criticalpoints.h"
#include "tools/derivativescan.h"
#include "tools/qt/toolservices.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace velmora::tools_qt {

// The Critical Points window (`frmAnalizaNew`) over tools::CriticalPoints.
// A run shows its progress bar and keeps the window answering; Cancel,
// Escape, closing the window and a key or click in the log stop it. After
// the search the graph window draws the scan of the derivative
// (tools::DerivativeScan) over the range, upside down, in a random pen.
class FrmAnalizaNew final : public QWidget {
  Q_OBJECT

 public:
  FrmAnalizaNew(QWidget* owner, ToolServices services);
  ~FrmAnalizaNew() override;
  // The window for the active graph window's function, or null after the
  // message when that function still holds a K.
  static FrmAnalizaNew* Open(QWidget* owner, const ToolServices& services);

  tools::CriticalPoints& Logic() { return *tool_; }
  const tools::DerivativeScan& Scan() const { return *scan_; }
  // The controls, for tests.
  QLabel* TxtFormula() const { return txtformula_; }
  QLineEdit* TxtMin() const { return txtMin_; }
  QLineEdit* TxtMax() const { return txtMax_; }
  QCheckBox* Check1() const { return check1_; }
  QPlainTextEdit* TxtRoot() const { return txtRoot_; }
  QProgressBar* Pb1() const { return pb1_; }
  bool StopRequested() const { return stop_; }

  void Calculate();
  // `CrtajFJUKrit`: the scan over the range, drawn in the active graph
  // window, with this window's progress bar. False when stopped or when the
  // window is drawing.
  bool DrawScan(graph::GraphToolTarget& graph, double xmin, double xmax);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  ToolServices services_;
  std::unique_ptr<expr::FormulaControl> engine_;
  std::unique_ptr<tools::CriticalPoints> tool_;
  std::unique_ptr<tools::DerivativeScan> scan_;
  std::minstd_rand pen_{std::random_device{}()};
  QLabel* txtformula_ = nullptr;
  QLineEdit* txtMin_ = nullptr;
  QLineEdit* txtMax_ = nullptr;
  QCheckBox* check1_ = nullptr;
  QComboBox* cmbKoren_ = nullptr;
  QPlainTextEdit* txtRoot_ = nullptr;
  QProgressBar* pb1_ = nullptr;
  QPushButton* calculate_ = nullptr;
  bool running_ = false;
  bool stop_ = false;
};

}  // namespace velmora::tools_qt
