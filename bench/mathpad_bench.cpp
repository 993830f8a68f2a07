// MathPad with a large document: opening and saving a 5 MB RTF file with
// mixed formatting and three pictures, and one typed character at the end
// of a 1 MB document. The references are Qt's own rich text (the same
// document through QTextDocument's HTML) and a bare QTextEdit.
#include <benchmark/benchmark.h>

#include <fstream>

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QKeyEvent>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

#include "mathpad/documentfile.h"
#include "mathpad/qt/frmmapuskice.h"
#include "mathpad/qt/padconvert.h"
#include "platform/memorysettingsstore.h"
#include "rtf/rtfreader.h"
#include "rtf/rtfwriter.h"

namespace {

using namespace velmora;

// A noisy picture, so its PNG does not shrink to nothing.
rtf::Picture NoisePicture(int width, int height, quint32 seed) {
  QImage image(width, height, QImage::Format_RGB32);
  QRandomGenerator random(seed);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) image.setPixel(x, y, random.generate() | 0xFF000000u);
  }
  return mathpad_qt::PictureFromImage(image);
}

// About 5 MB of RTF: paragraphs of plain, bold, italic, coloured, raised
// and lowered text in three fonts, three pictures spread through it.
rtf::Document LargeDocument(std::size_t textBytes, bool pictures) {
  rtf::Document document;
  document.paragraphs.clear();
  rtf::CharFormat bold;
  bold.bold = true;
  rtf::CharFormat italic;
  italic.italic = true, italic.font = "Times New Roman";
  rtf::CharFormat colour;
  colour.color = rtf::Color{0, 0, 160}, colour.font = "Courier New";
  rtf::CharFormat raised;
  raised.offset = 4, raised.halfPoints = 17;
  std::size_t bytes = 0;
  int n = 0;
  while (bytes < textBytes) {
    rtf::Paragraph paragraph;
    paragraph.alignment = n % 7 == 0 ? rtf::Alignment::Center : rtf::Alignment::Left;
    paragraph.bullet = n % 5 == 1;
    rtf::AppendText(paragraph, {}, "Function " + std::to_string(n) + ": y = x");
    rtf::AppendText(paragraph, raised, "2");
    rtf::AppendText(paragraph, {}, " + sin x, evaluated at ");
    rtf::AppendText(paragraph, bold, "x = " + std::to_string(n % 100) + ".5");
    rtf::AppendText(paragraph, {}, " gives ");
    rtf::AppendText(paragraph, italic, "a value \xCE\xB1 = 0.25 and");
    rtf::AppendText(paragraph, colour, " [x;\t\ty;\t\tdy;]");
    rtf::AppendText(paragraph, {}, " for the table.");
    for (const auto& run : paragraph.runs) bytes += run.text.size() + 30;
    document.paragraphs.push_back(std::move(paragraph));
    ++n;
  }
  if (pictures) {
    for (int i = 0; i < 3; ++i) {
      rtf::Paragraph paragraph;
      paragraph.runs.push_back(rtf::Run{{}, {}, NoisePicture(300, 200, static_cast<quint32>(i + 1))});
      const auto at =
          document.paragraphs.begin() + static_cast<std::ptrdiff_t>((i + 1) * document.paragraphs.size() / 4);
      document.paragraphs.insert(at, std::move(paragraph));
    }
  }
  return document;
}

struct Pad {
  Pad() {
    mathpad_qt::MathPadServices services;
    services.settings = &settings;
    services.messages = &messages;
    services.input = nullptr;
    services.files = nullptr;
    window = new mathpad_qt::FrmMaPuskice(nullptr, services);
  }
  ~Pad() { delete window; }
  platform::MemorySettingsStore settings;
  base::SilentMessageBox messages;
  mathpad_qt::FrmMaPuskice* window;
};

const std::string& LargeFile() {
  static QTemporaryDir folder;
  static const std::string path = [] {
    const std::string p = folder.filePath("large.rtf").toStdString();
    mathpad::SaveDocument(LargeDocument(5'300'000, true), p);
    return p;
  }();
  return path;
}

void BM_OpenRtf5MB(benchmark::State& state) {
  Pad pad;
  const std::string path = LargeFile();
  for (auto _ : state) benchmark::DoNotOptimize(pad.window->File().OpenPath(path));
  state.counters["file_MB"] = static_cast<double>(mathpad::ReadFileBytes(path)->size()) / 1e6;
}
BENCHMARK(BM_OpenRtf5MB)->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_SaveRtf5MB(benchmark::State& state) {
  Pad pad;
  pad.window->File().OpenPath(LargeFile());
  for (auto _ : state) benchmark::DoNotOptimize(pad.window->File().Save());
}
BENCHMARK(BM_SaveRtf5MB)->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_CodecReadOnly5MB(benchmark::State& state) {
  const std::string bytes = *mathpad::ReadFileBytes(LargeFile());
  for (auto _ : state) benchmark::DoNotOptimize(rtf::ReadRtf(bytes));
}
BENCHMARK(BM_CodecReadOnly5MB)->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_CodecWriteOnly5MB(benchmark::State& state) {
  const rtf::Document document = rtf::ReadRtf(*mathpad::ReadFileBytes(LargeFile()));
  for (auto _ : state) benchmark::DoNotOptimize(rtf::WriteRtf(document));
}
BENCHMARK(BM_CodecWriteOnly5MB)->Unit(benchmark::kMillisecond)->Iterations(5);

// Qt's own rich text of the same document: HTML in and out of a QTextDocument.
void BM_Reference_QtHtmlRoundTrip5MB(benchmark::State& state) {
  Pad pad;
  pad.window->File().OpenPath(LargeFile());
  const QString html = pad.window->Editor()->document()->toHtml();
  for (auto _ : state) {
    QTextDocument document;
    document.setHtml(html);
    benchmark::DoNotOptimize(document.toHtml());
  }
}
BENCHMARK(BM_Reference_QtHtmlRoundTrip5MB)->Unit(benchmark::kMillisecond)->Iterations(3);

void TypeOne(QTextEdit* editor) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QApplication::sendEvent(editor, &press);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QApplication::sendEvent(editor, &release);
}

void BM_TypeAtEndOf1MB(benchmark::State& state) {
  Pad pad;
  mathpad_qt::PadPictures pictures;
  SetDocument(*pad.window->Editor()->document(), LargeDocument(1'000'000, false), pictures);
  pad.window->Editor()->moveCursor(QTextCursor::End);
  for (auto _ : state) TypeOne(pad.window->Editor());
}
BENCHMARK(BM_TypeAtEndOf1MB)->Unit(benchmark::kMicrosecond);

void BM_Reference_BareQTextEditTypeAtEndOf1MB(benchmark::State& state) {
  QTextEdit editor;
  mathpad_qt::PadPictures pictures;
  SetDocument(*editor.document(), LargeDocument(1'000'000, false), pictures);
  editor.moveCursor(QTextCursor::End);
  for (auto _ : state) TypeOne(&editor);
}
BENCHMARK(BM_Reference_BareQTextEditTypeAtEndOf1MB)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
