#include "app/singleinstance.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

namespace velmora::app {
namespace {

QString DefaultFolder() {
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (!runtime.isEmpty() && QDir(runtime).exists()) return runtime;
  return QDir::tempPath();
}

}  // namespace

SingleInstance::SingleInstance(QString folder) {
  if (folder.isEmpty()) folder = DefaultFolder();
  path_ = QDir(folder).filePath(QStringLiteral("velmora.lock"));
  lock_ = std::make_unique<QLockFile>(path_);
  // The lock lives as long as the program: it never goes stale by age.
  lock_->setStaleLockTime(0);
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::TryLock() {
  // QLockFile takes over a lock whose process is gone or runs another program.
  if (lock_->tryLock(0)) return true;
  switch (lock_->error()) {
    case QLockFile::LockFailedError:
      // A live process holds the file itself: that is the first instance.
      // Otherwise the lock is left over and its number was reused; removing
      // it fails while a running instance still holds it.
      if (lock_->removeStaleLockFile() && lock_->tryLock(0)) return true;
      return false;
    case QLockFile::PermissionError:
    case QLockFile::UnknownError:
    case QLockFile::NoError: break;
  }
  return true;
}

}  // namespace velmora::app
