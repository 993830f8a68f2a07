// The Velmora program: the main frame with its graph windows.
//
// Test hooks (for the test suite, the benchmarks and `make screenshots`;
// a user never needs them):
//   VELMORA_TEST_BOXES=stderr  message boxes are written to standard error
//                              and answered with their default button;
//   VELMORA_STARTUP_PROBE=1    once "Graph 1" is shown, "startup: ready" is
//                              written to standard error and the program ends;
//   VELMORA_SCREENSHOTS=DIR    the frame with three example windows and the
//                              Plotting Options dialog are saved as PNG files
//                              into DIR, then the program ends;
//   VELMORA_STATE_PROBE=1      every change of the frame's state writes one
//                              "state: ..." line (StateLine) to standard error;
//   VELMORA_PRINT_TO=FILE.pdf  the print commands write this PDF file instead
//                              of showing the print dialog.
#include <cstdio>
#include <memory>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include "app/frmmain.h"
#include "app/screenshots.h"
#include "app/singleinstance.h"
#include "app/stateprobe.h"
#include "app/toolicons.h"
#include "app/toolregistry.h"
#include "output/qt/printdialogs.h"
#include "platform/printingmessagebox.h"
#include "platform/qt/qtcolordialog.h"
#include "platform/qt/qtfiledialog.h"
#include "platform/qt/qtinputbox.h"
#include "platform/qt/qtmessagebox.h"
#include "platform/qt/qtsettingsstore.h"
#include "platform/qt/qtshelllauncher.h"

namespace {

// The documentation the Help menu opens: the installed copy, or the one
// of a source tree the program was built in.
QString ReadMePath() {
  const QDir bin(QCoreApplication::applicationDirPath());
  for (const QString& candidate : {QStringLiteral("../share/doc/velmora/README.md"),
                                   QStringLiteral("../README.md"), QStringLiteral("../../README.md")}) {
    if (QFileInfo::exists(bin.filePath(candidate))) return QDir::cleanPath(bin.filePath(candidate));
  }
  return QDir::cleanPath(bin.filePath(QStringLiteral("../share/doc/velmora/README.md")));
}

// The HTML manual the Help menu opens: the installed copy, or the one of
// the source tree the program was built in. The path is kept even when the
// file is missing, so that the message names what was looked for.
QString HelpPath() {
  const QDir bin(QCoreApplication::applicationDirPath());
  for (const QString& candidate :
       {QStringLiteral("../share/doc/velmora/help/index.html"), QStringLiteral("../docs/help/index.html"),
        QStringLiteral("../../docs/help/index.html")}) {
    if (QFileInfo::exists(bin.filePath(candidate))) return QDir::cleanPath(bin.filePath(candidate));
  }
  return QDir::cleanPath(bin.filePath(QStringLiteral("../share/doc/velmora/help/index.html")));
}

}  // namespace

int main(int argc, char** argv) {
  // Windows are laid out in device-independent pixels and Qt scales them
  // by the screen's exact factor (150% stays 1.5, not 2): fonts, controls
  // and the graph surface follow the screen, and a picture is drawn at the
  // screen's pixel density.
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Velmora"));
  QApplication::setApplicationName(QStringLiteral("Velmora"));
  QApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
  QApplication::setWindowIcon(velmora::app::ProgramIcon());

  const QString screenshots = qEnvironmentVariable("VELMORA_SCREENSHOTS");
  const bool probe = qEnvironmentVariable("VELMORA_STARTUP_PROBE") == QLatin1String("1");
  std::unique_ptr<velmora::platform::MessageBox> messages;
  if (qEnvironmentVariable("VELMORA_TEST_BOXES") == QLatin1String("stderr") || !screenshots.isEmpty()) {
    messages = std::make_unique<velmora::platform::PrintingMessageBox>();
  } else {
    messages = std::make_unique<velmora::qtplatform::QtMessageBox>();
  }

  QStringList arguments = QCoreApplication::arguments();
  arguments.removeFirst();

  // A second start with a file hands it to the first, whose Matrix
  // Calculator opens it; a plain second start warns and ends at once. The
  // first goes on untouched.
  velmora::app::SingleInstance instance;
  if (!instance.TryLock()) {
    if (!arguments.isEmpty() &&
        instance.HandOver(QFileInfo(arguments.join(QLatin1Char(' '))).absoluteFilePath())) {
      return 0;
    }
    messages->Show(QApplication::applicationName().toStdString() + " is already running!", "Velmora Warning",
                   velmora::platform::MsgIcon::Exclamation);
    return 0;
  }

  velmora::qtplatform::QtSettingsStore settings;
  velmora::qtplatform::QtInputBox input;
  velmora::qtplatform::QtColorDialog colours;
  velmora::qtplatform::QtFileDialog files;
  velmora::qtplatform::QtShellLauncher shell;
  velmora::app::FrameServices services;
  services.settings = &settings;
  services.messages = messages.get();
  services.input = &input;
  services.colours = &colours;
  services.files = &files;
  services.shell = &shell;
  services.programFolder = QCoreApplication::applicationDirPath();
  services.readMePath = ReadMePath();
  services.helpPath = HelpPath();
  // Print commands write this PDF file in place of asking for a printer.
  const QString printTo = qEnvironmentVariable("VELMORA_PRINT_TO");
  if (!printTo.isEmpty()) {
    velmora::output_qt::SetPrinterChooser([printTo](QPrinter& printer, QWidget*) {
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(printTo);
      return true;
    });
  }

  velmora::app::FrmMain frame(services);
  if (qEnvironmentVariable("VELMORA_STATE_PROBE") == QLatin1String("1")) {
    // Written once the event that changed the state is done (a layout
    // settles after its resize), and only when the line differs.
    auto pending = std::make_shared<bool>(false);
    auto last = std::make_shared<QString>();
    QObject::connect(&frame, &velmora::app::FrmMain::StateChanged, &frame, [&frame, pending, last] {
      if (*pending) return;
      *pending = true;
      QTimer::singleShot(0, &frame, [&frame, pending, last] {
        *pending = false;
        const QString line = velmora::app::StateLine(frame);
        if (line == *last) return;
        *last = line;
        std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
        std::fflush(stderr);
      });
    });
  }
  frame.ShowAsLastClosed();
  frame.Load(arguments);
  instance.Listen([&frame](const QString& file) { velmora::app::OpenMatrixFile(frame.Tools(), file); });

  if (!screenshots.isEmpty()) {
    QTimer::singleShot(0, &frame, [&frame, screenshots] {
      const int failures = velmora::app::TakeScreenshots(frame, screenshots);
      QCoreApplication::exit(failures == 0 ? 0 : 1);
    });
  } else if (probe) {
    QTimer::singleShot(0, &frame, [&frame] {
      std::fprintf(stderr, "startup: ready %s\n",
                   frame.Windows().WindowCount() > 0 ? "Graph 1" : "no window");
      std::fflush(stderr);
      QCoreApplication::exit(0);
    });
  }
  return QApplication::exec();
}
