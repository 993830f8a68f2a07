#pragma once

#include <memory>

#include <QWidget>

#include "expr/formulacontrol.h"
#include "tools/qt/toolservices.h"
#include "tools/zerotool.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;

namespace velmora::tools_qt {

// The three windows of the zero search over tools::ZeroTool: Zeros
// (`frmNjutn`), Intersection (`frmNjutnDve`, a second function box) and
// Point Evaluate (`frmEvalPoint`, the value for Y visible). A range scan
// keeps the window answering and shows its progress; closing the window
// stops it.
class FrmNjutn final : public QWidget {
  Q_OBJECT

 public:
  FrmNjutn(QWidget* owner, ToolServices services, tools::ZeroKind kind);
  ~FrmNjutn() override;

  tools::ZeroTool& Logic() { return *tool_; }
  // The controls, for tests.
  QComboBox* Text1() const { return text1_; }
  QComboBox* Text7() const { return text7_; }
  QRadioButton* Option1(int index) const { return options_[index]; }
  QLineEdit* Text2() const { return text2_; }
  QLineEdit* Text4() const { return text4_; }
  QLineEdit* Text5() const { return text5_; }
  QLineEdit* Text6() const { return text6_; }
  QCheckBox* Check1() const { return check1_; }
  QPlainTextEdit* Text3() const { return text3_; }
  QPushButton* Command1() const { return calculate_; }

  void Calculate();
  void CopyResult();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void OptionClicked();

  ToolServices services_;
  std::unique_ptr<expr::FormulaControl> newton_;
  std::unique_ptr<expr::FormulaControl> other_;
  std::unique_ptr<tools::ZeroTool> tool_;
  QComboBox* text1_ = nullptr;
  QComboBox* text7_ = nullptr;
  QRadioButton* options_[2] = {};
  QLineEdit* text2_ = nullptr;
  QLineEdit* text4_ = nullptr;
  QLineEdit* text5_ = nullptr;
  QLineEdit* text6_ = nullptr;
  QCheckBox* check1_ = nullptr;
  QPlainTextEdit* text3_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QPushButton* calculate_ = nullptr;
  bool running_ = false;
  bool stop_ = false;
};

}  // namespace velmora::tools_qt
