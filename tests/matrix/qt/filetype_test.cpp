// The .mcf type on the desktop: the per-user registration through xdg-mime
// under the temporary XDG folders of the test, read back with xdg-mime's own
// queries, and the desktop entries checked by desktop-file-validate.
#include "matrix/qt/filetype.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace velmora::matrix_qt {
namespace {

struct Result {
  int code = -1;
  QString out;
};

Result RunTool(const QString& program, const QStringList& arguments) {
  QProcess p;
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  // The generic desktop answers a file's type with file(1), which knows no
  // user types; the GNOME path asks gio, which reads $XDG_DATA_HOME/mime.
  env.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("GNOME"));
  p.setProcessEnvironment(env);
  p.start(program, arguments);
  if (!p.waitForFinished(60000)) return {};
  return {p.exitCode(), QString::fromLocal8Bit(p.readAllStandardOutput()).trimmed()};
}

QString ReadText(const QString& path) {
  QFile f(path);
  if (!f.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(f.readAll());
}

TEST(FileType, RegisteringMcfMakesTheProgramItsDefaultApplication) {
  // The test main points XDG_DATA_HOME and XDG_CONFIG_HOME at a temporary folder.
  const QString data = qEnvironmentVariable("XDG_DATA_HOME");
  ASSERT_FALSE(data.isEmpty());
  ASSERT_FALSE(data.startsWith(QDir::homePath() + QStringLiteral("/.local")));
  ASSERT_TRUE(RegisterFileType(QStringLiteral("mcf"), QStringLiteral("/opt/velmora 1/bin/velmora")));

  QTemporaryDir files;
  const QString matrix = files.filePath(QStringLiteral("m.mcf"));
  QFile f(matrix);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(" 1  1 \r\n5\r\n");
  f.close();
  const Result type =
      RunTool(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("filetype"), matrix});
  EXPECT_EQ(type.out, QStringLiteral("application/x-velmora-matrix"));
  const Result app = RunTool(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"),
                                                          QStringLiteral("application/x-velmora-matrix")});
  EXPECT_EQ(app.out, QStringLiteral("velmora-matrix.desktop"));

  const QString entry = data + QStringLiteral("/applications/velmora-matrix.desktop");
  const QString text = ReadText(entry);
  EXPECT_TRUE(text.contains(QStringLiteral("Exec=\"/opt/velmora 1/bin/velmora\" %f\n")))
      << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("MimeType=application/x-velmora-matrix;\n")));
  const Result valid = RunTool(QStringLiteral("desktop-file-validate"), {entry});
  EXPECT_EQ(valid.code, 0) << valid.out.toStdString();
}

TEST(FileType, TheInstalledEntryOpensMcfFilesAndValidates) {
  const QString entry = QStringLiteral(VELMORA_DESKTOP_ENTRY);
  const QString text = ReadText(entry);
  EXPECT_TRUE(text.contains(QStringLiteral("Exec=velmora %f\n")));
  EXPECT_TRUE(text.contains(QStringLiteral("MimeType=application/x-velmora-matrix;\n")));
  const Result valid = RunTool(QStringLiteral("desktop-file-validate"), {entry});
  EXPECT_EQ(valid.code, 0) << valid.out.toStdString();
}

TEST(FileType, TheInstalledPackageIsTheOneTheProgramRegisters) {
  EXPECT_EQ(ReadText(QStringLiteral(VELMORA_MIME_PACKAGE)),
            MimePackageXml(QStringLiteral("application/x-velmora-matrix"), QStringLiteral("mcf")));
}

}  // namespace
}  // namespace velmora::matrix_qt
