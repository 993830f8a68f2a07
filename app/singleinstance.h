#pragma once

#include <functional>
#include <memory>

#include <QString>

class QLocalServer;
class QLockFile;

namespace velmora::app {

// Tells a second process of the program from the first: the first holds a
// lock file in the user's runtime folder for as long as it runs. A lock left
// by a process that crashed is recognised (its process is gone, or the
// number now belongs to another program) and taken over.
class SingleInstance {
 public:
  // The lock is "velmora.lock" in `folder`; an empty folder means the user's
  // runtime folder ($XDG_RUNTIME_DIR), or the temporary folder when there is
  // none.
  explicit SingleInstance(QString folder = {});
  ~SingleInstance();
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  // True when this process is the first and now holds the lock. A lock that
  // cannot be made at all (a folder without write access) lets the program
  // run, since refusing would lock the user out for good.
  bool TryLock();
  QString LockPath() const { return path_; }

  // The second start's hand-over: the file name goes to the first instance
  // over the local socket "velmora.socket" beside the lock. True when the
  // first instance took it.
  bool HandOver(const QString& file);
  // The first instance serves the hand-over for as long as it runs: every
  // file a later start hands over is passed to `open`.
  void Listen(std::function<void(const QString&)> open);
  QString SocketPath() const;

 private:
  QString path_;
  std::unique_ptr<QLockFile> lock_;
  QLocalServer* server_ = nullptr;
  std::function<void(const QString&)> open_;
};

}  // namespace velmora::app
