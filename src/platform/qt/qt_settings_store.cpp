#include "platform/qt/qt_settings_store.hpp"

#include <QFile>

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {

QtSettingsStore::QtSettingsStore() : settings_(QSettings::NativeFormat, QSettings::UserScope, "Benchlog", "Benchlog") {}

std::string QtSettingsStore::GetSetting(const std::string& section, const std::string& key,
                                        const std::string& defaultValue) const {
  const QVariant value = settings_.value(ToQt(section) + "/" + ToQt(key));
  return value.isValid() ? FromQt(value.toString()) : defaultValue;
}

void QtSettingsStore::SaveSetting(const std::string& section, const std::string& key, const std::string& value) {
  settings_.setValue(ToQt(section) + "/" + ToQt(key), ToQt(value));
  settings_.sync();
}

void QtSettingsStore::KeepToOwner() {
  settings_.sync();
  QFile::setPermissions(FileName(), QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace benchlog::qt
