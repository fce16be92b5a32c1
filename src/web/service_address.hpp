#pragma once
// Where the agency's web service is and how long the program waits for it: settings of section
// "Settings", so that the program can talk to the agency, to a mirror or to the local stand-in.
#include <chrono>
#include <string>
#include <string_view>

#include "platform/settings_store.hpp"

namespace benchlog {

inline constexpr const char* kServiceAddressKey = "ServiceAddress";
inline constexpr const char* kDefaultServiceAddress = "http://127.0.0.1:8642";  // the local stand-in
inline constexpr const char* kRequestTimeoutKey = "RequestTimeout";  // seconds
inline constexpr int kDefaultRequestTimeout = 60;
inline constexpr const char* kRetryWaitKey = "RetryWait";  // seconds between two tries
inline constexpr int kDefaultRetryWait = 5;

// The service's base address (no trailing "/") followed by `pathAndQuery`, which starts with "/".
std::string ServiceUrl(const SettingsStore& settings, std::string_view pathAndQuery);

// The request time-out and the wait between tries; a setting that is not a positive number gives the
// default.
std::chrono::milliseconds RequestTimeout(const SettingsStore& settings);
std::chrono::milliseconds RetryWait(const SettingsStore& settings);

}  // namespace benchlog
