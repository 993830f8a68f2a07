#include "platform/qt/qtsavefile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/support/filebytes.h"

namespace velmora::qtplatform {
namespace {

class QtSaveFileTest : public ::testing::Test {
 protected:
  QString File(const char* name) const { return dir_.filePath(QString::fromUtf8(name)); }
  static QByteArray Bytes(const QString& path) {
    return QByteArray::fromStdString(velmora::testing::ReadFileBytes(path.toStdString()));
  }
  QStringList Names() const {
    return QDir(dir_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }
  QTemporaryDir dir_;
};

TEST_F(QtSaveFileTest, WritesAndReplaces) {
  const QString path = File("graph.bmp");
  ASSERT_TRUE(SaveFileAtomically(path, [](QIODevice& d) { return d.write("first picture") == 13; }));
  ASSERT_TRUE(SaveFileAtomically(path, [](QIODevice& d) { return d.write("2nd") == 3; }));
  EXPECT_EQ(Bytes(path), QByteArray("2nd"));
  EXPECT_EQ(Names(), QStringList{QStringLiteral("graph.bmp")});
}

TEST_F(QtSaveFileTest, AWriterThatFailsLeavesTheOldFile) {
  const QString path = File("graph.bmp");
  ASSERT_TRUE(SaveFileAtomically(path, [](QIODevice& d) { return d.write("old") == 3; }));
  EXPECT_FALSE(SaveFileAtomically(path, [](QIODevice& d) {
    d.write("half a pic");
    return false;  // the encoder gave up
  }));
  EXPECT_EQ(Bytes(path), QByteArray("old"));
  EXPECT_EQ(Names(), QStringList{QStringLiteral("graph.bmp")});
}

TEST_F(QtSaveFileTest, AMissingFolderFails) {
  bool called = false;
  EXPECT_FALSE(SaveFileAtomically(File("no/such/graph.bmp"), [&](QIODevice&) { return called = true; }));
  EXPECT_FALSE(called);
  EXPECT_TRUE(Names().isEmpty());
}

}  // namespace
}  // namespace velmora::qtplatform
