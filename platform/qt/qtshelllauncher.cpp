#include "platform/qt/qtshelllauncher.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace velmora::qtplatform {
namespace {

constexpr int kSuccess = 33;
constexpr int kFileNotFound = 2;
constexpr int kPathNotFound = 3;
constexpr int kInvalidProgram = 11;
constexpr int kNoAssociation = 31;

}  // namespace

int QtShellLauncher::Execute(const std::string& file, const std::string& parameters,
                             const std::string& directory, const std::string& /*verb*/, bool runAsProgram) {
  const QString target = QString::fromStdString(file);
  const QString folder = QString::fromStdString(directory);
  if (!folder.isEmpty() && !QDir(folder).exists()) return kPathNotFound;
  const QUrl url =
      QUrl::fromUserInput(target, folder.isEmpty() ? QDir::currentPath() : folder, QUrl::AssumeLocalFile);
  if (url.isLocalFile()) {
    const QFileInfo info(url.toLocalFile());
    if (!info.dir().exists()) return kPathNotFound;
    if (!info.exists()) return kFileNotFound;
  }
  if (runAsProgram) {
    const QStringList arguments = QProcess::splitCommand(QString::fromStdString(parameters));
    const QString program = url.isLocalFile() ? url.toLocalFile() : target;
    return QProcess::startDetached(program, arguments, folder) ? kSuccess : kInvalidProgram;
  }
  return QDesktopServices::openUrl(url) ? kSuccess : kNoAssociation;
}

}  // namespace velmora::qtplatform
