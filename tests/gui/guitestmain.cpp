// The main of the GUI suites: an offscreen QApplication whose settings,
// data and runtime folders lie in a temporary folder, never the user's.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

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
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Velmora"));
  QApplication::setApplicationName(QStringLiteral("Velmora"));
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
