// The main of the graph window's widget tests: an offscreen QApplication
// whose settings, data and runtime folders are temporary, so no test reads
// or writes the user's own files.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

// The offscreen platform says on every window that it cannot pass size
// hints on; that is noise in a test's output.
void QuietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains(QStringLiteral("does not support propagateSizeHints"))) return;
  qt_message_output(type, context, message);
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(&QuietHandler);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QTemporaryDir home;
  if (!home.isValid()) return 2;
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
    const QString path = home.filePath(QString::fromLatin1(name));
    QDir().mkpath(path);
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv(name, path.toLocal8Bit());
  }
  QStandardPaths::setTestModeEnabled(true);
  QApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
