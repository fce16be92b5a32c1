#pragma once
// The per-user settings store: application "Benchlog", then section and key, text values. Every
// read names its default.
#include <string>

namespace benchlog {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::string GetSetting(const std::string& section, const std::string& key,
                                 const std::string& defaultValue) const = 0;
  virtual void SaveSetting(const std::string& section, const std::string& key, const std::string& value) = 0;
};

}  // namespace benchlog
