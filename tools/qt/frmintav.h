#pragma once

#include <memory>

#include <QWidget>

#include "expr/formulacontrol.h"
#include "tools/integraltool.h"
#include "tools/qt/toolservices.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace velmora::tools_qt {

// The Integral - Derivative window (`frmIntAv`) over tools::IntegralTool.
class FrmIntAv final : public QWidget {
  Q_OBJECT

 public:
  FrmIntAv(QWidget* owner, ToolServices services);
  ~FrmIntAv() override;

  tools::IntegralTool& Logic() { return *tool_; }
  // The controls, for tests.
  QComboBox* Text4() const { return text4_; }
  QLineEdit* TxtMin() const { return txtMin_; }
  QLineEdit* TxtMax() const { return txtMax_; }
  QComboBox* TxtKorak() const { return txtkorak_; }
  QRadioButton* Option1(int index) const { return options_[index]; }
  QLabel* LblIntg() const { return lblintg_; }
  QLineEdit* Text10() const { return text10_; }
  QComboBox* Text7() const { return text7_; }
  QLineEdit* Text8() const { return text8_; }
  QLineEdit* Text11() const { return text11_; }
  QComboBox* Combo1() const { return combo1_; }

  void Integral();
  void Average();
  void Derivative();

 private:
  void ToLogic();
  void ShowResults();
  void Remember(QComboBox* box);

  ToolServices services_;
  std::unique_ptr<expr::FormulaControl> engine_;
  std::unique_ptr<tools::IntegralTool> tool_;
  QComboBox* text4_ = nullptr;
  QLineEdit* txtMin_ = nullptr;
  QLineEdit* txtMax_ = nullptr;
  QComboBox* txtkorak_ = nullptr;
  QRadioButton* options_[2] = {};
  QLabel* lblintg_ = nullptr;
  QLineEdit* text10_ = nullptr;
  QComboBox* text7_ = nullptr;
  QLineEdit* text8_ = nullptr;
  QLineEdit* text11_ = nullptr;
  QComboBox* combo1_ = nullptr;
  bool showing_ = false;
};

}  // namespace velmora::tools_qt
