#include "output/qt/printdialogs.h"

#include <memory>
#include <string>

#include <QPrintDialog>

#include "output/pagemargins.h"
#include "output/printcommands.h"
#include "output/qt/printout.h"

namespace velmora::output_qt {
namespace {

PrinterChooser& Chooser() {
  static PrinterChooser chooser;
  return chooser;
}

bool Choose(QPrinter& printer, QWidget* parent) {
  return Chooser() ? Chooser()(printer, parent) : ShowPrintDialog(printer, parent);
}

void PrintFailed(base::MessageBox& messages) {
  messages.Show(std::string(output::PrintCommands::kPrintFailed), std::string(output::PrintCommands::kTitle),
                base::MsgIcon::Exclamation);
}

}  // namespace

QPrinter& ProgramPrinter() {
  static std::unique_ptr<QPrinter> printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *printer;
}

bool ShowPrintDialog(QPrinter& printer, QWidget* parent) {
  QPrintDialog dialog(&printer, parent);
  return dialog.exec() == QDialog::Accepted;
}

void SetPrinterChooser(PrinterChooser chooser) { Chooser() = std::move(chooser); }

int PrintDocumentDialog(QWidget* parent, const QTextDocument& document, platform::SettingsStore& settings,
                        base::MessageBox& messages) {
  QPrinter& printer = ProgramPrinter();
  if (!Choose(printer, parent)) return 0;
  if (document.isEmpty()) {
    output::PrintCommands::NothingToPrint(messages);
    return 0;
  }
  const int pages = PrintDocument(printer, document, output::PrintMargine::Read(settings));
  if (pages < 0) {
    PrintFailed(messages);
    return 0;
  }
  return pages;
}

bool PrintPictureDialog(QWidget* parent, const QImage& picture, platform::SettingsStore& settings,
                        base::MessageBox& messages, bool frame) {
  QPrinter& printer = ProgramPrinter();
  if (!Choose(printer, parent)) return false;
  if (picture.isNull()) {
    output::PrintCommands::NothingToPrint(messages);
    return false;
  }
  if (!PrintPicture(printer, picture, output::PrintMargine::Read(settings), frame)) {
    PrintFailed(messages);
    return false;
  }
  return true;
}

}  // namespace velmora::output_qt
