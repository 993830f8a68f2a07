#include "platform/qt/qtsettingsstore.h"

namespace velmora::qtplatform {
namespace {

QString KeyOf(std::string_view section, std::string_view name) {
  const QString value = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
  if (section.empty()) return value;
  return QString::fromUtf8(section.data(), static_cast<qsizetype>(section.size())) + QLatin1Char('/') + value;
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
  return value.toString().toStdString();
}

void QtSettingsStore::Store(std::string_view section, std::string_view name, std::string_view text) {
  settings_->setValue(KeyOf(section, name),
                      QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  settings_->sync();
}

QString QtSettingsStore::FileName() const { return settings_->fileName(); }

}  // namespace velmora::qtplatform
