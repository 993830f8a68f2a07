#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QtGlobal>

namespace velmora::bench {

// For a benchmark that opens windows: the offscreen platform unless one is
// chosen already, and the user's config, data and runtime folders inside
// `home`, so no run touches the real ones. Call before the application
// object is made.
inline void UseOffscreenHome(const QTemporaryDir& home) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
    const QString path = home.filePath(QString::fromLatin1(name));
    QDir().mkpath(path);
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv(name, path.toLocal8Bit());
  }
}

}  // namespace velmora::bench
