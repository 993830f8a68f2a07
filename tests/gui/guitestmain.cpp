// The main of the GUI suites: an offscreen QApplication whose settings,
// data and runtime folders lie in a temporary folder, never the user's.
#include <gtest/gtest.h>

#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

// The offscreen platform says at every window that it cannot pass size
// hints on; that is noise in a test's output.
QtMessageHandler previous = nullptr;

void Filter(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains(QLatin1String("does not support propagateSizeHints"))) return;
  if (previous != nullptr) {
    previous(type, context, message);
  } else {
    std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
  }
}

}  // namespace

int main(int argc, char** argv) {
  QTemporaryDir home;
  if (!home.isValid()) return 2;
  for (const char* name : {"config", "data", "runtime", "cache"})
    QDir(home.path()).mkpath(QString::fromLatin1(name));
  QFile::setPermissions(home.filePath(QStringLiteral("runtime")),
                        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toLocal8Bit());
  qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toLocal8Bit());
  qputenv("XDG_CACHE_HOME", home.filePath(QStringLiteral("cache")).toLocal8Bit());
  qputenv("XDG_RUNTIME_DIR", home.filePath(QStringLiteral("runtime")).toLocal8Bit());
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  previous = qInstallMessageHandler(Filter);
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Velmora"));
  QApplication::setApplicationName(QStringLiteral("Velmora"));
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
