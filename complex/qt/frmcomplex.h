#pragma once

#include <memory>

#include <QPointer>
#include <QString>
#include <QWidget>

#include "complex/complexcalculator.h"
#include "complex/complexkeypad.h"
#include "complex/panelmenu.h"
#include "complex/qt/complexface.h"
#include "complex/simplereadout.h"
#include "mathpad/qt/frm2text.h"
#include "platform/messagebox.h"
#include "platform/shellopen.h"
#include "platform/toolwindows.h"

class QAbstractButton;
class QAction;
class QMenu;

namespace velmora::complex_qt {

// What the calculator needs from the program.
struct ComplexServices {
  platform::MessageBox* messages = nullptr;  // required
  platform::ToolWindows* tools = nullptr;    // null: the entries opening other tools stay disabled
  platform::ShellLauncher* shell = nullptr;  // null: "&Help" stays disabled
  QString helpFile;                          // the help file's full path
};

// `frmComplex`, the Complex Calculator: a pocket calculator for Complex 1
// (a + ib) and Complex 2 (c + id). The keypad types into the part picked by
// A to D, the operation keys and the function list with CALCULATE ! compute
// with the 6-place library, M+ MR MC keep a memory, and a click on the
// readout switches to the simple real-number mode. The side panel frm2text
// collects a block per operation while it is open. One window, non-modal,
// deleted when closed.
class FrmComplex final : public QWidget {
  Q_OBJECT

 public:
  FrmComplex(QWidget* owner, ComplexServices services);
  ~FrmComplex() override;

  complex::ComplexCalculator& Calculator() { return calc_; }
  const complex::ComplexFields& Fields() const { return calc_.Fields(); }
  const complex::ComplexKeypad& Keypad() const { return keypad_; }
  const complex::SimpleReadout& Simple() const { return simple_; }
  const ComplexFace& Face() const { return face_; }

  // A control of the face by name ("Number", 5 is "Number(5)"); null if none.
  QAbstractButton* Button(const char* name, int index = -1) const;
  // The popup of the operand keys (frmmenu) and the "Complex" popup.
  QMenu* PopupMenu() const { return frmmenu_; }
  QMenu* ComplexMenu() const { return complexMenu_; }
  QAction* MenuAction(const char* name) const;
  // The side panel; null until it is first shown.
  mathpad_qt::Frm2Text* Panel() const { return panel_; }
  bool PanelShown() const;

  bool SimpleMode() const { return simple_.SimpleMode(); }
  void SetSimpleMode(bool simple);
  // Shows the "Complex" popup at a point of the window.
  void ShowComplexMenu(const QPoint& at);
  // Every widget from the fields.
  void Refresh();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Wire();
  void BuildPopup();
  void BuildComplexMenu();
  void InstallKeyFilter();
  bool HandleKey(const QKeyEvent& event);
  void RunOperation(complex::Operation operation);
  void Calculate();
  // The popup frmmenu at a key, with the entries of that key only.
  void ShowPopup(int key, QWidget* at);
  void FlushLog();
  void SetPanelShown(bool shown);
  void PanelMenuClicked();
  void PanelClosedByItself();
  void OpenHelp();
  void Off();

  ComplexServices services_;
  complex::ComplexCalculator calc_;
  complex::ComplexKeypad keypad_;
  complex::SimpleReadout simple_;
  complex::PanelMenu panelMenu_;
  ComplexFace face_;
  QMenu* frmmenu_ = nullptr;
  QMenu* complexMenu_ = nullptr;
  QPointer<mathpad_qt::Frm2Text> panel_;
};

}  // namespace velmora::complex_qt
