#pragma once

#include <array>
#include <map>

#include <QString>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QWidget;

namespace velmora::complex_qt {

// The object name of a control: its name, with the index of a control array
// in brackets ("Number(5)", "cmdBroj(1)").
QString ControlName(const char* name, int index = -1);

// The widgets of frmComplex, by the names of its controls: the display with
// the operands, parts, result and the simple readout, the keypad, the
// function keys of both modes and the bottom rows. Every widget carries its
// control name as object name.
struct ComplexFace {
  // The display.
  QFrame* display = nullptr;
  QWidget* complexRows = nullptr;  // what the display shows in complex mode only
  QLabel* Label1c = nullptr;
  QLabel* Label2c = nullptr;
  QLabel* lblZ1 = nullptr;
  QLabel* lblZ2 = nullptr;
  std::array<QLabel*, 4> parts{};         // lbla, lblb, lblc, lbld
  std::array<QLabel*, 4> partCaptions{};  // the letters before them
  QLabel* lblSta = nullptr;
  QLabel* Label4 = nullptr;
  QLabel* lblMemory1 = nullptr;
  QLabel* LabelRezultat = nullptr;
  QLineEdit* TextResultReal = nullptr;
  QLineEdit* TextResultImaginary = nullptr;
  QLabel* LabelRule = nullptr;
  QLabel* Readout = nullptr;

  // The keys.
  QPushButton* cmdMenu = nullptr;  // opens the "Complex" popup
  QPushButton* cmdOff = nullptr;
  std::array<QPushButton*, 4> cmdBroj{};
  std::array<QPushButton*, 10> Number{};
  QPushButton* Decimal = nullptr;
  QPushButton* cmdPlusMinus = nullptr;
  QPushButton* CancelEntry = nullptr;
  QPushButton* cmdClearAll = nullptr;
  QPushButton* cmdMemory1 = nullptr;  // M+
  QPushButton* cmdMemory2 = nullptr;  // MR
  QPushButton* cmdMemory3 = nullptr;  // MC
  QPushButton* cmdconv = nullptr;
  QPushButton* cmdcopy = nullptr;
  QPushButton* cmdPan = nullptr;
  QPushButton* CommandCalculate = nullptr;
  QComboBox* ComboFunction = nullptr;
  QWidget* listRow = nullptr;  // ComboFunction with CALCULATE !
  // The operation keys of the direct road by control name.
  std::map<QString, QPushButton*> operations;

  // Function keys: the complex ones, or in simple mode the real ones.
  QStackedWidget* functionKeys = nullptr;
  std::array<QPushButton*, 4> realFunctions{};     // cmdsing, cmdcosr, cmdtanr, cmdcotg
  std::array<QPushButton*, 4> inverseFunctions{};  // cmdasin, cmdacos, cmdatan, cmdacot
  QCheckBox* Check1 = nullptr;                     // inv
  QCheckBox* Check2 = nullptr;                     // deg
  std::array<QCheckBox*, 4> mirrors{};             // checka to checkd
};

// Builds the calculator's face into `window` (which gets its layout and
// style) and returns its widgets.
ComplexFace BuildFace(QWidget& window);

// The display's look in each mode: in simple mode the readout is the big
// line and the complex rows are hidden.
void ShowMode(ComplexFace& face, bool simple);

}  // namespace velmora::complex_qt
