#include "web/service_address.hpp"

#include <cmath>

#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

// Seconds as a setting, fractions allowed (tests wait a tenth of a second, not a minute).
std::chrono::milliseconds SecondsSetting(const SettingsStore& settings, const char* key, int defaultSeconds) {
  const double seconds = Val(settings.GetSetting("Settings", key, std::to_string(defaultSeconds)));
  if (!(seconds > 0) || !std::isfinite(seconds)) return std::chrono::seconds(defaultSeconds);
  return std::chrono::milliseconds(std::llround(std::min(seconds, 86400.0) * 1000));
}

}  // namespace

std::string ServiceUrl(const SettingsStore& settings, std::string_view pathAndQuery) {
  std::string base = Trim(settings.GetSetting("Settings", kServiceAddressKey, kDefaultServiceAddress));
  if (base.empty()) base = kDefaultServiceAddress;
  while (!base.empty() && base.back() == '/') base.pop_back();
  return base + std::string(pathAndQuery);
}

std::chrono::milliseconds RequestTimeout(const SettingsStore& settings) {
  return SecondsSetting(settings, kRequestTimeoutKey, kDefaultRequestTimeout);
}

std::chrono::milliseconds RetryWait(const SettingsStore& settings) {
  return SecondsSetting(settings, kRetryWaitKey, kDefaultRetryWait);
}

}  // namespace benchlog
