#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QStatusBar;
class QTableWidget;

namespace velmora::mathpad_qt {

// `frmansi`, Insert Symbol: the characters 32 to 255 of the code page in a
// grid, in a font the system has, with an enlarged preview, the codes of
// the selected character and its keyboard entry. A double click or Insert
// hands the character and the font to MathPad.
class FrmAnsi final : public QDialog {
  Q_OBJECT

 public:
  static constexpr int kColumns = 16;
  static constexpr int kFirst = 32;
  static constexpr int kLast = 255;

  explicit FrmAnsi(QWidget* owner);

  // Selects the character of a code, as a click on its cell does.
  void SelectCode(int code);
  void InsertSelected();

  QComboBox* Combo1() const { return combo1_; }
  QLabel* Codes() const { return lblcodes_; }
  QString StatusText() const;
  QLineEdit* Text1() const { return text1_; }

 signals:
  void Insert(const QString& text, const QString& family);

 private:
  void FillGrid();
  void CellClicked(int row, int column);

  QTableWidget* grid1_;
  QComboBox* combo1_;
  QLabel* picture1_;
  QLabel* lblcodes_;
  QLineEdit* text1_;
  QCheckBox* check1_;
  QStatusBar* sb1_;
  int code_ = -1;
};

}  // namespace velmora::mathpad_qt
