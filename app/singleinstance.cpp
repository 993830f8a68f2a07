#include "app/singleinstance.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
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

SingleInstance::~SingleInstance() { delete server_; }

QString SingleInstance::SocketPath() const {
  return QFileInfo(path_).dir().filePath(QStringLiteral("velmora.socket"));
}

bool SingleInstance::HandOver(const QString& file) {
  QLocalSocket socket;
  socket.connectToServer(SocketPath());
  if (!socket.waitForConnected(3000)) return false;
  // The name travels as one line of UTF-8; the first instance answers with
  // one byte once it has taken it.
  socket.write(file.toUtf8() + '\n');
  if (!socket.waitForBytesWritten(3000)) return false;
  if (!socket.waitForReadyRead(5000)) return false;
  return socket.read(1) == "1";
}

void SingleInstance::Listen(std::function<void(const QString&)> open) {
  open_ = std::move(open);
  delete server_;
  server_ = new QLocalServer;
  server_->setSocketOptions(QLocalServer::UserAccessOption);
  // A socket file left by a crashed first instance is ours to replace: we hold the lock.
  QLocalServer::removeServer(SocketPath());
  if (!server_->listen(SocketPath())) return;
  QObject::connect(server_, &QLocalServer::newConnection, server_, [this] {
    while (QLocalSocket* socket = server_->nextPendingConnection()) {
      QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
      QObject::connect(socket, &QLocalSocket::readyRead, socket, [this, socket] {
        if (!socket->canReadLine()) return;
        const QString file = QString::fromUtf8(socket->readLine()).chopped(1);
        socket->write("1");
        socket->flush();
        if (open_) open_(file);
      });
    }
  });
}

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
