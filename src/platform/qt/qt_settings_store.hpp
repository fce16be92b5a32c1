#pragma once
// The settings store on this system: the INI file "Benchlog/Benchlog.conf" in the user's
// configuration folder (XDG_CONFIG_HOME honoured), one group per section, so a user or a script
// can read and seed it.
#include <QSettings>

#include "platform/settings_store.hpp"

namespace benchlog::qt {

class QtSettingsStore final : public SettingsStore {
 public:
  QtSettingsStore();
  std::string GetSetting(const std::string& section, const std::string& key,
                         const std::string& defaultValue) const override;
  void SaveSetting(const std::string& section, const std::string& key, const std::string& value) override;
  QString FileName() const { return settings_.fileName(); }
  // Makes the file readable and writable by its owner alone, as it holds a password; later saves
  // keep that.
  void KeepToOwner();

 private:
  mutable QSettings settings_;
};

}  // namespace benchlog::qt
