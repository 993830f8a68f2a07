#include "matrix/qt/filetype.h"

#include <QDir>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace velmora::matrix_qt {
namespace {

// $XDG_DATA_HOME, or its default; read from the environment so that the
// user's own folder is the one the desktop reads.
QString DataHome() {
  const QString home = qEnvironmentVariable("XDG_DATA_HOME");
  if (!home.isEmpty()) return home;
  return QDir::homePath() + QStringLiteral("/.local/share");
}

bool WriteText(const QString& path, const QString& text) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  const QByteArray bytes = text.toUtf8();
  if (file.write(bytes) != bytes.size()) {
    file.cancelWriting();
    return false;
  }
  return file.commit();
}

bool Run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(program, arguments);
  if (!process.waitForFinished(30000)) {
    process.kill();
    process.waitForFinished();
    return false;
  }
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

// An argument of Exec, quoted when it holds characters the desktop would
// otherwise split or expand.
QString ExecArgument(const QString& argument) {
  static const QString reserved = QStringLiteral(" \t\n\"'\\><~|&;$*?#()`");
  bool plain = !argument.isEmpty();
  for (const QChar c : argument)
    if (reserved.contains(c)) plain = false;
  if (plain) return argument;
  QString quoted;
  for (const QChar c : argument) {
    if (c == QLatin1Char('"') || c == QLatin1Char('`') || c == QLatin1Char('$') || c == QLatin1Char('\\'))
      quoted += QLatin1Char('\\');
    quoted += c;
  }
  // The value itself is an escaped string: its backslashes are doubled.
  quoted.replace(QLatin1String("\\"), QLatin1String("\\\\"));
  return QLatin1Char('"') + quoted + QLatin1Char('"');
}

}  // namespace

QString MimePackageXml(const QString& mimeType, const QString& extension) {
  return QStringLiteral(
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
             "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
             "  <mime-type type=\"%1\">\n"
             "    <comment>Velmora matrix</comment>\n"
             "    <sub-class-of type=\"text/plain\"/>\n"
             "    <glob pattern=\"*.%2\"/>\n"
             "  </mime-type>\n"
             "</mime-info>\n")
      .arg(mimeType, extension);
}

QString OpenWithEntry(const QString& program, const QString& mimeType) {
  return QStringLiteral(
             "[Desktop Entry]\n"
             "Type=Application\n"
             "Version=1.0\n"
             "Name=Velmora\n"
             "Comment=Open matrix files in the Matrix Calculator\n"
             "Exec=%1 %f\n"
             "Icon=velmora\n"
             "Terminal=false\n"
             "NoDisplay=true\n"
             "MimeType=%2;\n")
      .arg(ExecArgument(program), mimeType);
}

bool RegisterFileType(const QString& extension, const QString& program) {
  const QString xdgMime = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
  if (xdgMime.isEmpty()) return false;
  const QString type = extension == QLatin1String("mcf")
                           ? QString::fromLatin1(kMatrixMimeType)
                           : QStringLiteral("application/x-velmora-") + extension;
  // xdg-mime takes the package from a file named vendor-name.xml.
  QTemporaryDir scratch;
  if (!scratch.isValid()) return false;
  const QString package = scratch.filePath(QStringLiteral("velmora-%1.xml").arg(extension));
  if (!WriteText(package, MimePackageXml(type, extension))) return false;
  if (!Run(xdgMime, {QStringLiteral("install"), QStringLiteral("--mode"), QStringLiteral("user"), package}))
    return false;
  const QString applications = DataHome() + QStringLiteral("/applications");
  if (!QDir().mkpath(applications)) return false;
  const QString entry = QString::fromLatin1(kMatrixDesktopEntry);
  if (!WriteText(applications + QLatin1Char('/') + entry, OpenWithEntry(program, type))) return false;
  return Run(xdgMime, {QStringLiteral("default"), entry, type});
}

}  // namespace velmora::matrix_qt
