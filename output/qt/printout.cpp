#include "output/qt/printout.h"

#include <algorithm>
#include <memory>

#include <QAbstractTextDocumentLayout>
#include <QFontDatabase>
#include <QMarginsF>
#include <QPageLayout>
#include <QPainter>

namespace velmora::output_qt {
namespace {

constexpr double kScreenDpi = 96.0;

}  // namespace

void ApplyMargins(QPagedPaintDevice& device, const output::PageMargins& margins) {
  QPageLayout layout = device.pageLayout();
  // Margins are measured from the paper's edge; a printer that cannot
  // print so near its edge keeps its own least margin there.
  layout.setMode(QPageLayout::StandardMode);
  layout.setUnits(QPageLayout::Inch);
  layout.setMargins(QMarginsF(margins.left, margins.top, margins.right, margins.bottom));
  if (!device.setPageLayout(layout)) {
    // Margins wider than the paper leave no room: the page keeps the
    // printer's least margins instead.
    layout.setMargins(layout.minimumMargins());
    device.setPageLayout(layout);
  }
}

int PrintDocument(QPagedPaintDevice& device, const QTextDocument& document,
                  const output::PageMargins& margins) {
  if (document.isEmpty()) return 0;
  ApplyMargins(device, margins);
  const QRectF body = device.pageLayout().paintRectPixels(device.logicalDpiX());
  if (body.width() <= 0 || body.height() <= 0) return -1;
  std::unique_ptr<QTextDocument> copy(document.clone());
  copy->documentLayout()->setPaintDevice(&device);
  copy->setDocumentMargin(0);
  copy->setPageSize(body.size());
  const int pages = copy->pageCount();
  QPainter painter;
  if (!painter.begin(&device)) return -1;
  const qreal height = body.height();
  for (int page = 0; page < pages; ++page) {
    if (page > 0) device.newPage();
    painter.save();
    painter.translate(0, -page * height);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(0, page * height, body.width(), height);
    painter.setClipRect(context.clip);
    copy->documentLayout()->draw(&painter, context);
    painter.restore();
  }
  painter.end();
  return pages;
}

bool PrintPicture(QPagedPaintDevice& device, const QImage& picture, const output::PageMargins& margins,
                  bool frame) {
  if (picture.isNull()) return false;
  ApplyMargins(device, margins);
  const double dpi = device.logicalDpiX();
  const QRectF body = device.pageLayout().paintRectPixels(static_cast<int>(dpi));
  if (body.width() <= 0 || body.height() <= 0) return false;
  // A picture drawn for a screen above 100% holds more pixels than its
  // size: its size is what it shows on screen.
  const QSizeF shown = picture.deviceIndependentSize();
  double width = shown.width() * dpi / kScreenDpi;
  double height = shown.height() * dpi / kScreenDpi;
  const double shrink = std::min({1.0, body.width() / width, body.height() / height});
  width *= shrink;
  height *= shrink;
  QPainter painter;
  if (!painter.begin(&device)) return false;
  painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
  const QRectF target(0, 0, width, height);
  painter.drawImage(target, picture);
  if (frame) {
    painter.setPen(QPen(Qt::black, std::max(1.0, dpi / kScreenDpi)));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(target);
  }
  painter.end();
  return true;
}

void FillPlainText(QTextDocument& document, const QString& text) {
  document.setDefaultFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  document.setPlainText(text);
}

}  // namespace velmora::output_qt
