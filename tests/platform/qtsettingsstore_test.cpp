#include "platform/qt/qtsettingsstore.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "platform/inisettingsstore.h"
#include "platform/settingskeys.h"

namespace velmora::qtplatform {
namespace {

class QtSettingsStoreTest : public ::testing::Test {
 protected:
  QString File(const char* name) const { return dir_.filePath(QString::fromUtf8(name)); }
  QTemporaryDir dir_;
};

TEST_F(QtSettingsStoreTest, AbsentMeansDefaultAndWritesReadBack) {
  QtSettingsStore store(File("v.ini"));
  EXPECT_FALSE(store.Query("Grid", "Autored").has_value());
  EXPECT_EQ(platform::ReadSetting(store, "Grid", "Autored"), "1");
  platform::SetRegValue(store, "Grid", "Autored", "0");
  EXPECT_EQ(platform::ReadSetting(store, "Grid", "Autored"), "0");
  platform::SetRegValue(store, "Boje", "Grafik", std::int32_t{255});
  EXPECT_EQ(platform::GetRegNumber(store, "Boje", "Grafik", "0"), 255);
  platform::SetRegValue(store, "Grid", "ScaleX", "abc");
  EXPECT_EQ(platform::GetRegNumber(store, "Grid", "ScaleX", "1"), 0);  // a non-number reads 0
}

TEST_F(QtSettingsStoreTest, NoCacheBetweenTwoStoresOnOneFile) {
  QtSettingsStore a(File("v.ini"));
  QtSettingsStore b(File("v.ini"));
  platform::SetRegValue(a, "Grid", "Rnd", "1");
  EXPECT_EQ(platform::ReadSetting(b, "Grid", "Rnd"), "1");
  platform::SetRegValue(b, "Grid", "Rnd", "0");
  EXPECT_EQ(platform::ReadSetting(a, "Grid", "Rnd"), "0");
}

// The batch front end's INI store and this one read each other's files.
TEST_F(QtSettingsStoreTest, IniStoreAndQtStoreShareTheLayout) {
  const QString path = File("shared.ini");
  QtSettingsStore qt(path);
  platform::IniSettingsStore ini(path.toStdString());
  const char* values[] = {"SinX ; K | Cartesian", "a,b", " lead", "q\"b\\", "@at", "\xC3\xB8", "1/2=3"};
  int i = 0;
  for (const char* v : values) {
    const std::string name = "Recent" + std::to_string(++i);
    platform::SetRegValue(qt, "Recent Functions", name, v);
    EXPECT_EQ(platform::GetRegValue(ini, "Recent Functions", name, "?"), v) << v;
  }
  i = 0;
  for (const char* v : values) {
    const std::string name = "Other" + std::to_string(++i);
    platform::SetRegValue(ini, "Recent Functions", name, v);
    EXPECT_EQ(platform::GetRegValue(qt, "Recent Functions", name, "?"), v) << v;
  }
}

TEST_F(QtSettingsStoreTest, DefaultStoreLivesUnderTheUsersConfigFolder) {
  QStandardPaths::setTestModeEnabled(true);
  QtSettingsStore store;
  EXPECT_TRUE(store.FileName().endsWith(QStringLiteral("Velmora/Velmora.ini")))
      << store.FileName().toStdString();
}

}  // namespace
}  // namespace velmora::qtplatform

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
