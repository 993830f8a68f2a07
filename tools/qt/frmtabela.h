#pragma once

#include <memory>

#include <QWidget>

#include "expr/formulacontrol.h"
#include "tools/qt/toolservices.h"
#include "tools/tablepublisher.h"
#include "tools/valuetabletool.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QTableView;
class QToolBar;

namespace velmora::tools_qt {

class ValueTableModel;

// The Value Tables window (`frmTabela`, "Value Tables") over
// tools::ValueTableTool: the function boxes, the three types, range, step
// and accuracy, the grid, and the toolbar that clears, copies, pastes into
// MathPad, publishes as HTML and calculates.
class FrmTabela final : public QWidget {
  Q_OBJECT

 public:
  FrmTabela(QWidget* owner, ToolServices services);
  ~FrmTabela() override;

  tools::ValueTableTool& Logic() { return *tool_; }
  // The controls, for tests.
  QComboBox* TxtY() const { return txtY_; }
  QComboBox* TxtX() const { return txtX_; }
  QRadioButton* OptFunkcije(int index) const { return options_[index - 1]; }
  QLineEdit* TxtDole() const { return txtdole_; }
  QLineEdit* TxtGore() const { return txtgore_; }
  QComboBox* Combo1() const { return combo1_; }
  QComboBox* TxtDec() const { return txtDec_; }
  QTableView* MS1() const { return grid_; }
  // The grid's rows and one cell's text as shown.
  int GridRows() const;
  QString Cell(int row, int col) const;
  QLabel* LabY() const { return labY_; }
  QAction* Button(const char* key) const;

  void CalculateTable();
  void CopyTable();
  void PasteInMathPad();
  void PublishTable();
  // The toolbar's mouse event: "Copy", "HTML" and "Save" follow the grid.
  void RefreshButtons();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ToLogic();
  void ShowTable();
  void TypeClicked(int type);
  void ChooseFromList(int index);
  tools::TableHead Head() const;

  ToolServices services_;
  std::unique_ptr<expr::FormulaControl> engine_;
  std::unique_ptr<tools::ValueTableTool> tool_;
  std::unique_ptr<tools::TablePublisher> publisher_;  // null without a file dialog
  QToolBar* toolbar_ = nullptr;
  QComboBox* txtY_ = nullptr;
  QComboBox* txtX_ = nullptr;
  QLabel* labY_ = nullptr;
  QLabel* labX_ = nullptr;
  QRadioButton* options_[3] = {};
  QLineEdit* txtdole_ = nullptr;
  QLineEdit* txtgore_ = nullptr;
  QComboBox* combo1_ = nullptr;
  QComboBox* txtDec_ = nullptr;
  QTableView* grid_ = nullptr;
  ValueTableModel* model_ = nullptr;
  bool filling_ = false;
};

}  // namespace velmora::tools_qt
