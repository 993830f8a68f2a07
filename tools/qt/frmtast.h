#pragma once

#include <memory>

#include <QWidget>

#include "expr/formulacontrol.h"
#include "platform/evaluatortarget.h"
#include "tools/evaluatortool.h"
#include "tools/qt/toolservices.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QPushButton;
class QTextEdit;
class QToolBar;

namespace velmora::tools_qt {

// The Evaluator window (`frmTast`, "Evaluator"): the expression box with its
// list, the value for X, the function names, the accuracy, the result label
// and the history, over tools::EvaluatorTool. Other windows write into its
// expression box through platform::EvaluatorTarget. The right button opens
// the "Eval" popup, whose entries open the other tools.
class FrmTast final : public QWidget, public platform::EvaluatorTarget {
  Q_OBJECT

 public:
  FrmTast(QWidget* owner, ToolServices services);
  ~FrmTast() override;

  void WriteText(const std::string& text) override;

  tools::EvaluatorTool& Logic() { return *tool_; }
  // The controls, for tests.
  QComboBox* Text1() const { return text1_; }
  QLineEdit* Text2() const { return text2_; }
  QListWidget* BoxC1() const { return boxC1_; }
  QComboBox* Combo1() const { return combo1_; }
  QLabel* LbRezultat() const { return result_; }
  QTextEdit* Rtf() const { return rtf_; }
  QMenu* EvalMenu() const { return evalMenu_; }
  QPushButton* Command3() const { return evaluate_; }

  void Evaluate();
  void Replace();
  void ClearAll();
  void SaveHistory();

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void BuildEvalMenu();
  void RefreshEvalMenu();
  void InsertName();
  void ShowResult();

  ToolServices services_;
  std::unique_ptr<expr::FormulaControl> engine_;
  std::unique_ptr<tools::EvaluatorTool> tool_;
  QComboBox* text1_ = nullptr;
  QLineEdit* text2_ = nullptr;
  QListWidget* boxC1_ = nullptr;
  QComboBox* combo1_ = nullptr;
  QLabel* result_ = nullptr;
  QTextEdit* rtf_ = nullptr;
  QToolBar* toolbar_ = nullptr;
  QPushButton* evaluate_ = nullptr;
  QMenu* evalMenu_ = nullptr;
};

}  // namespace velmora::tools_qt
