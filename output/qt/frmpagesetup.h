#pragma once

#include <QDialog>

#include "platform/settingsstore.h"

class QLineEdit;
class QPushButton;

namespace velmora::output_qt {

// `frmPageSetup`: the four page margins (inches) of printing, read from the
// section "Print" when the dialog opens (" 1" for a margin never set) and
// written back as typed on OK; Cancel closes. "Printer..." opens the page
// setup of the program's printer.
class FrmPageSetup final : public QDialog {
  Q_OBJECT

 public:
  explicit FrmPageSetup(platform::SettingsStore& settings, QWidget* parent = nullptr);

  QLineEdit* txtlevo() const { return levo_; }
  QLineEdit* txtDesno() const { return desno_; }
  QLineEdit* txtgore() const { return gore_; }
  QLineEdit* txtdole() const { return dole_; }
  QPushButton* cmdOK() const { return ok_; }
  QPushButton* cmdCancel() const { return cancel_; }
  QPushButton* Command1() const { return printer_; }

 private:
  void OkClicked();
  void PrinterClicked();

  platform::SettingsStore& settings_;
  QLineEdit* levo_ = nullptr;
  QLineEdit* desno_ = nullptr;
  QLineEdit* gore_ = nullptr;
  QLineEdit* dole_ = nullptr;
  QPushButton* ok_ = nullptr;
  QPushButton* cancel_ = nullptr;
  QPushButton* printer_ = nullptr;
};

// "Print Set&up...": the dialog, modal over `parent`.
void PageSetupDialog(QWidget* parent, platform::SettingsStore& settings);

}  // namespace velmora::output_qt
