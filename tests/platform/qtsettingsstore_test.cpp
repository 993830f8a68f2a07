#include "platform/qt/qtsettingsstore.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "platform/qt/qtstring.h"
#include "platform/settingskeys.h"
#include "tests/support/filebytes.h"

namespace velmora::qtplatform {
namespace {

class QtSettingsStoreTest : public ::testing::Test {
 protected:
  QString File(const char* name) const { return dir_.filePath(QString::fromUtf8(name)); }
  static QByteArray Bytes(const QString& path) {
    return QByteArray::fromStdString(velmora::testing::ReadFileBytes(path.toStdString()));
  }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
  }
  QTemporaryDir dir_;
};

TEST_F(QtSettingsStoreTest, AbsentMeansDefaultAndWritesReadBack) {
  QtSettingsStore store(File("v.ini"));
  EXPECT_FALSE(store.Query("Grid", "Autored").has_value());
  EXPECT_EQ(platform::ReadSetting(store, "Grid", "Autored"), "1");
  platform::SetRegValue(store, "Grid", "Autored", "0");
  EXPECT_EQ(platform::ReadSetting(store, "Grid", "Autored"), "0");
  platform::SetRegValue(store, "Boje", "Grafik", std::int32_t{255});
  EXPECT_EQ(store.Query("Boje", "Grafik"), std::optional<std::string>("255"));
}

TEST_F(QtSettingsStoreTest, MissingFileReadsDefaultsAndFirstWriteCreatesItsFolders) {
  const QString path = File("sub/dir/Velmora.ini");
  QtSettingsStore store(path);
  EXPECT_EQ(platform::ReadSetting(store, "Grid", "Autored"), "1");
  EXPECT_FALSE(QFile::exists(path));  // reading writes nothing
  platform::SetRegValue(store, "Grid", "Autored", "0");
  EXPECT_TRUE(QFile::exists(path));
  EXPECT_EQ(platform::ReadSetting(store, "Grid", "Autored"), "0");
}

TEST_F(QtSettingsStoreTest, NoCacheBetweenTwoStoresOnOneFile) {
  QtSettingsStore a(File("v.ini"));
  QtSettingsStore b(File("v.ini"));
  platform::SetRegValue(a, "Grid", "Rnd", "1");
  EXPECT_EQ(platform::ReadSetting(b, "Grid", "Rnd"), "1");  // the other window sees it at once
  platform::SetRegValue(b, "Grid", "Rnd", "0");
  EXPECT_EQ(platform::ReadSetting(a, "Grid", "Rnd"), "0");
}

// The program and velmora-cli each hold a store on the user's file; a write
// by one must not drop what the other wrote since it last read.
TEST_F(QtSettingsStoreTest, TwoWritersOnOneFileLoseNothing) {
  QtSettingsStore gui(File("v.ini"));
  QtSettingsStore cli(File("v.ini"));
  platform::SetRegValue(gui, "Grid", "Ozna", "1");
  platform::SetRegValue(cli, "Recent Functions", "Recent1", "SinX ; K | Cartesian");
  platform::SetRegValue(gui, "Grid", "Trigo", "1");
  QtSettingsStore fresh(File("v.ini"));
  EXPECT_EQ(platform::ReadSetting(fresh, "Grid", "Ozna"), "1");
  EXPECT_EQ(platform::ReadSetting(fresh, "Recent Functions", "Recent1"), "SinX ; K | Cartesian");
  EXPECT_EQ(platform::ReadSetting(fresh, "Grid", "Trigo"), "1");
}

// The layout of the file, as the README describes it: sections in brackets,
// a blank in a name as %20, a value with ";" in quotes.
TEST_F(QtSettingsStoreTest, WritesTheIniLayout) {
  const QString path = File("v.ini");
  QtSettingsStore store(path);
  platform::SetRegValue(store, "Recent Functions", "Recent1", "SinX ; K | Cartesian");
  platform::SetRegValue(store, "Grid", "ScaleX", "1");
  EXPECT_EQ(Bytes(path).toStdString(),
            "[Grid]\n"
            "ScaleX=1\n"
            "\n"
            "[Recent%20Functions]\n"
            "Recent1=\"SinX ; K | Cartesian\"\n");
}

struct RoundTrip {
  const char* value;
  const char* why;
};

class QtSettingsRoundTripTest : public QtSettingsStoreTest,
                                public ::testing::WithParamInterface<RoundTrip> {};

// Every text a function box or a path can hold comes back as written, read
// by a second store on the file.
TEST_P(QtSettingsRoundTripTest, ATextReadsBackAsWritten) {
  QtSettingsStore writer(File("v.ini"));
  platform::SetRegValue(writer, "Recent Functions", "Recent1", GetParam().value);
  QtSettingsStore reader(File("v.ini"));
  EXPECT_EQ(platform::GetRegValue(reader, "Recent Functions", "Recent1", "?"), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Values, QtSettingsRoundTripTest,
    ::testing::Values(RoundTrip{"plain", "nothing to escape"},
                      RoundTrip{"a,b", "a comma, which would make a list"},
                      RoundTrip{"x;y", "a semicolon, which would start a comment"},
                      RoundTrip{"1/2=3", "an equals sign"}, RoundTrip{"end ", "a trailing blank"},
                      RoundTrip{" lead", "a leading blank"}, RoundTrip{"tab\there", "a control character"},
                      RoundTrip{"@at", "a leading at sign"}, RoundTrip{"#hash", "a hash"},
                      RoundTrip{"q\"b\\", "a quote and a backslash"}, RoundTrip{"\xC3\xB8 x", "UTF-8"},
                      RoundTrip{"", "empty"}));

struct HandWritten {
  const char* line;  // the value line under [Grid]
  const char* text;  // what Rnd reads
  const char* why;
};

class QtSettingsHandWrittenTest : public QtSettingsStoreTest,
                                  public ::testing::WithParamInterface<HandWritten> {};

// A file edited by hand reads as QSettings reads it.
TEST_P(QtSettingsHandWrittenTest, ReadsLikeQt) {
  Write(File("hand.ini"), QByteArray("; a comment\n[Grid]\n") + GetParam().line + "\n");
  QtSettingsStore store(File("hand.ini"));
  EXPECT_EQ(platform::ReadSetting(store, "Grid", "Rnd"), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Values, QtSettingsHandWrittenTest,
                         ::testing::Values(HandWritten{"Rnd=1", "1", "plain"},
                                           HandWritten{" Rnd = 1 ", "1", "blanks round name and value"},
                                           HandWritten{"Rnd=1 ; why", "1", "a comment after the value"},
                                           HandWritten{"Rnd=1,5", "", "a list reads as empty"},
                                           HandWritten{"Rnd=\"1,5\"", "1,5", "a quoted comma"},
                                           HandWritten{"Rnd=\\x41", "A", "a hex escape"},
                                           HandWritten{"Rnd=1\r", "1", "a CR LF line end"},
                                           HandWritten{"Other=1", "0", "another name: the default"}));

TEST_F(QtSettingsStoreTest, ASectionNameWithABlankReadsEitherWay) {
  Write(File("hand.ini"), "[Recent Functions]\nRecent1=\"SinX ; K | Cartesian\"\n");
  QtSettingsStore store(File("hand.ini"));
  EXPECT_EQ(platform::ReadSetting(store, "Recent Functions", "Recent1"), "SinX ; K | Cartesian");
}

TEST_F(QtSettingsStoreTest, AFolderWhereTheFileShouldBeIsAnErrorWithoutAWord) {
  QDir(dir_.path()).mkdir(QStringLiteral("isafolder"));
  QtSettingsStore store(File("isafolder"));
  platform::SetRegValue(store, "Grid", "Rnd", "1");
  EXPECT_EQ(store.Status(), QSettings::AccessError);
  EXPECT_TRUE(QFileInfo(File("isafolder")).isDir());
}

// Runs `attempt` in a child process as a user without rights on the folder
// (root writes anywhere, so root drops to "nobody" first); its answer comes
// back as the exit code.
bool InChildWithoutRights(const std::function<bool()>& attempt) {
  const pid_t pid = ::fork();
  if (pid == 0) {
    if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(2);
    ::_exit(attempt() ? 0 : 1);
  }
  int status = 0;
  ::waitpid(pid, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// A write that cannot replace the file leaves it byte for byte, with no
// temporary or lock file beside it.
TEST_F(QtSettingsStoreTest, AFailedWriteLeavesTheOldFile) {
  const QString path = File("v.ini");
  {
    QtSettingsStore store(path);
    platform::SetRegValue(store, "Grid", "Rnd", "0");
    platform::SetRegValue(store, "Recent Functions", "Recent1", "CosX ; K | Polar");
  }
  const QByteArray before = Bytes(path);
  const std::string folder = ToStdString(dir_.path());
  ASSERT_EQ(::chmod(folder.c_str(), 0555), 0);
  const bool stored = InChildWithoutRights([&] {
    QtSettingsStore store(path);
    platform::SetRegValue(store, "Grid", "Rnd", "1");
    return store.Status() == QSettings::NoError;
  });
  ::chmod(folder.c_str(), 0700);
  EXPECT_FALSE(stored);
  EXPECT_EQ(Bytes(path), before);
  EXPECT_EQ(QDir(dir_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{QStringLiteral("v.ini")});
}

TEST_F(QtSettingsStoreTest, DefaultStoreLivesUnderTheUsersConfigFolder) {
  QStandardPaths::setTestModeEnabled(true);
  QtSettingsStore store;
  EXPECT_TRUE(store.FileName().endsWith(QStringLiteral("Velmora/Velmora.ini")))
      << ToStdString(store.FileName());
}

}  // namespace
}  // namespace velmora::qtplatform

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
