#include "platform/qt/qtsettingsstore.h"

#include "platform/qt/qtstring.h"

namespace velmora::qtplatform {
namespace {

QString KeyOf(std::string_view section, std::string_view name) {
  if (section.empty()) return ToQString(name);
  return ToQString(section) + QLatin1Char('/') + ToQString(name);
}

}  // namespace

QtSettingsStore::QtSettingsStore()
    : settings_(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                            QStringLiteral("Velmora"), QStringLiteral("Velmora"))) {}

QtSettingsStore::QtSettingsStore(const QString& iniFile)
    : settings_(std::make_unique<QSettings>(iniFile, QSettings::IniFormat)) {}

QtSettingsStore::~QtSettingsStore() = default;

std::optional<std::string> QtSettingsStore::Query(std::string_view section, std::string_view name) {
  settings_->sync();
  const QString key = KeyOf(section, name);
  if (!settings_->contains(key)) return std::nullopt;
  const QVariant value = settings_->value(key);
  // A list (an unquoted "," in the file) has no single text and reads as empty.
  if (value.typeId() == QMetaType::QStringList) return std::string();
  return ToStdString(value.toString());
}

void QtSettingsStore::Store(std::string_view section, std::string_view name, std::string_view text) {
  settings_->setValue(KeyOf(section, name), ToQString(text));
  // Written at once: QSettings takes the file's lock, merges what another
  // process wrote meanwhile, and replaces the file through QSaveFile, so a
  // failed write leaves the old file. The failure itself is not reported.
  settings_->sync();
}

QString QtSettingsStore::FileName() const { return settings_->fileName(); }

QSettings::Status QtSettingsStore::Status() const { return settings_->status(); }

}  // namespace velmora::qtplatform
