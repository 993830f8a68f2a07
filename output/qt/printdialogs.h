#pragma once

#include <functional>

#include <QImage>
#include <QPrinter>
#include <QTextDocument>

#include "base/messagebox.h"
#include "platform/settingsstore.h"

class QWidget;

namespace velmora::output_qt {

// The program's printer: one for the whole run, so that what the user picks
// in "Printer..." or in a print dialog holds for the next print.
QPrinter& ProgramPrinter();

// Asks where to print: true to go on with the printer as set. The default
// is Qt's print dialog, which offers printing to a PDF file on a machine
// without a printer.
using PrinterChooser = std::function<bool(QPrinter& printer, QWidget* parent)>;
bool ShowPrintDialog(QPrinter& printer, QWidget* parent);
// Replaces the print dialog for the whole program (an empty one puts the
// dialog back). The test hooks print to a file with it.
void SetPrinterChooser(PrinterChooser chooser);

// A document's Print: the print dialog (a cancel ends the command), then
// "Nothing to print." for an empty document, else the document page by page
// inside the stored margins. Returns the pages printed. MathPad's Print is
// this call on its document.
int PrintDocumentDialog(QWidget* parent, const QTextDocument& document, platform::SettingsStore& settings,
                        base::MessageBox& messages);

// A picture's Print (File > Print > Graph): the print dialog, then the
// picture on one page inside the stored margins, framed when `frame`.
bool PrintPictureDialog(QWidget* parent, const QImage& picture, platform::SettingsStore& settings,
                        base::MessageBox& messages, bool frame);

}  // namespace velmora::output_qt
