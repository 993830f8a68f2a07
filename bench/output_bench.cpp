// Pictures and paper. The JPEG save of an 800 x 600 graph (goal: under
// 30 ms), against Qt's own JPEG writer at the same quality as the
// reference; and a 20-page document printed to a PDF file (goal: under
// 1 s), against Qt's own QTextDocument::print as the reference.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include <QBuffer>
#include <QDir>
#include <QImageWriter>
#include <QPageSize>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextDocument>

#include "graph/graphwindow.h"
#include "graph/qt/headlessgui.h"
#include "graph/qt/qimagesurface.h"
#include "output/qt/picturefiles.h"
#include "output/qt/printout.h"
#include "platform/memorysettingsstore.h"

namespace {

using namespace velmora;

class NoInput final : public platform::InputBox {
 public:
  std::optional<std::string> Ask(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
};

graph_qt::HeadlessGui& Gui() {
  static graph_qt::HeadlessGui gui;
  return gui;
}

// An 800 x 600 graph window with grid, numbers and three curves.
QImage Graph() {
  Gui();
  static const QImage picture = [] {
    graph_qt::QImageSurface surface(800, 600);
    platform::MemorySettingsStore settings;
    for (const char* key : {"BrojX", "BrojY", "Ozna", "Skala"}) settings.Store("Grid", key, "1");
    platform::SilentMessageBox messages;
    NoInput input;
    graph::GraphWindow window(surface, graph::StandardServices(settings, messages, input));
    for (const char* y : {"SinX", "X/2+CosX", "2*Exp(-X/4)*Cos(3*X)"}) {
      window.optFunk(graph::kCartesian);
      window.SetFunctionTexts(y, "K");
      window.DrawFromTxtY();
    }
    return surface.Image().copy();
  }();
  return picture;
}

QTemporaryDir& Folder() {
  static QTemporaryDir dir;
  return dir;
}

void BM_JpegSave800x600(benchmark::State& state) {
  const QImage picture = Graph();
  const QString file = Folder().filePath(QStringLiteral("graph.jpg"));
  for (auto _ : state) {
    if (!output_qt::SaveJpeg(picture, file, static_cast<int>(state.range(0)))) state.SkipWithError("no file");
  }
}
BENCHMARK(BM_JpegSave800x600)->Arg(100)->Arg(75)->Unit(benchmark::kMillisecond);

void BM_QtJpegWriterReference(benchmark::State& state) {
  const QImage picture = Graph();
  const QString file = Folder().filePath(QStringLiteral("qt.jpg"));
  for (auto _ : state) {
    QImageWriter writer(file, "jpg");
    writer.setQuality(static_cast<int>(state.range(0)));
    if (!writer.write(picture)) state.SkipWithError("no file");
  }
}
BENCHMARK(BM_QtJpegWriterReference)->Arg(100)->Arg(75)->Unit(benchmark::kMillisecond);

// About 20 pages of Letter paper at 1-inch margins: headings, paragraphs
// and results in bold, as a MathPad notebook holds them.
const QTextDocument& TwentyPages() {
  static const std::unique_ptr<QTextDocument> document = [] {
    auto doc = std::make_unique<QTextDocument>();
    QString html;
    for (int section = 1; section <= 67; ++section) {
      html += QStringLiteral("<h2>Result %1</h2>").arg(section);
      for (int p = 0; p < 4; ++p) {
        html += QStringLiteral(
            "<p>The function <i>Y(X) = SinX</i> was drawn from -10 to 10; its zeros lie at multiples of pi, "
            "and the integral over one period is <b>0</b>. Value tables, intersections and critical points "
            "follow in the next paragraphs of this notebook, line after line of text.</p>");
      }
    }
    doc->setHtml(html);
    return doc;
  }();
  return *document;
}

void BM_TwentyPagesToPdf(benchmark::State& state) {
  Gui();
  const QString file = Folder().filePath(QStringLiteral("doc.pdf"));
  int pages = 0;
  for (auto _ : state) {
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    pages = output_qt::PrintDocument(writer, TwentyPages(), {1, 1, 1, 1});
  }
  state.counters["pages"] = pages;
}
BENCHMARK(BM_TwentyPagesToPdf)->Unit(benchmark::kMillisecond);

void BM_QtDocumentPrintReference(benchmark::State& state) {
  Gui();
  const QString file = Folder().filePath(QStringLiteral("qt.pdf"));
  for (auto _ : state) {
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    TwentyPages().print(&writer);
  }
}
BENCHMARK(BM_QtDocumentPrintReference)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
