#pragma once

#include <memory>

#include <QPointer>
#include <QWidget>

#include "complex/panelmenu.h"
#include "expr/formulacontrol.h"
#include "mathpad/qt/frm2text.h"
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
// expression box through platform::EvaluatorTarget, at its caret. The right
// button opens the "Eval" popup, whose entries open the other tools, show the
// side panel and open the help; on the result label it opens the "Mode"
// popup of constants and base conversions.
class FrmTast final : public QWidget, public platform::EvaluatorTarget {
  Q_OBJECT

 public:
  FrmTast(QWidget* owner, ToolServices services);
  ~FrmTast() override;

  // Puts the text at the caret of the expression box, replacing the
  // selection.
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
  // The "Mode" popup of the result label.
  QMenu* ModeMenu() const { return modeMenu_; }
  QPushButton* Command3() const { return evaluate_; }
  QPushButton* Command4() const { return more_; }
  // The side panel; null until it is first shown.
  mathpad_qt::Frm2Text* Panel() const { return panel_; }
  bool PanelShown() const;

  void Evaluate();
  void Replace();
  void ClearAll();
  void SaveHistory();
  void SetPanelShown(bool shown);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  class SelfTools;

  void BuildEvalMenu();
  void PanelMenuClicked();
  void PanelClosedByItself();
  void OpenHelp();
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
  QPushButton* more_ = nullptr;
  QMenu* evalMenu_ = nullptr;
  QAction* panelEntry_ = nullptr;  // `mnupanelev`
  QAction* helpEntry_ = nullptr;   // `mnuhev`
  QMenu* modeMenu_ = nullptr;
  std::unique_ptr<SelfTools> selfTools_;
  complex::PanelMenu panelMenu_;
  QPointer<mathpad_qt::Frm2Text> panel_;
};

}  // namespace velmora::tools_qt
