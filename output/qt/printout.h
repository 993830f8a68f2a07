#pragma once

#include <QImage>
#include <QPagedPaintDevice>
#include <QString>
#include <QTextDocument>

#include "output/pagemargins.h"

namespace velmora::output_qt {

// Puts the page margins (inches) on a printer or PDF writer. The device then
// paints inside them: its origin is the top left corner of the margins.
void ApplyMargins(QPagedPaintDevice& device, const output::PageMargins& margins);

// Prints a document page by page inside the margins, on the device as it is
// set up (a printer after its dialog, or a PDF writer). Lines are never cut
// by a page's end. Returns the number of pages printed: 0 for an empty
// document (nothing is printed), -1 when the device cannot be painted on.
int PrintDocument(QPagedPaintDevice& device, const QTextDocument& document,
                  const output::PageMargins& margins);

// Prints a picture on one page at its screen size (96 pixels an inch),
// made smaller, never larger, to fit inside the margins, at their top left;
// with `frame` a thin black frame round it. False when the picture is empty
// or the device cannot be painted on.
bool PrintPicture(QPagedPaintDevice& device, const QImage& picture, const output::PageMargins& margins,
                  bool frame);

// A plain text as a document in a fixed-pitch font, for the history.
void FillPlainText(QTextDocument& document, const QString& text);

}  // namespace velmora::output_qt
