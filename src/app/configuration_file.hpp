#pragma once
// CheckLoadFiles: reads "Benchlog.ini" beside the program and tests that the support files exist.
#include <string>

#include "session/configuration.hpp"
#include "platform/platform.hpp"

namespace benchlog {

inline constexpr const char* kConfigurationFileName = "Benchlog.ini";

// The support files, in the order they are tested.
const char* const* SupportFileNames();  // null-terminated list
inline constexpr int kSupportFileCount = 8;

// Sets platform.paths.supportPath and `config` from "Benchlog.ini" in App.Path and returns the
// names of the missing files, each followed by CR LF; empty when all is there. When the
// configuration file itself is missing, only "Benchlog.ini" is reported. Keys and values are
// taken in upper case and later lines win. An E2 of 1 or more fails on the second eccentricity
// (RuntimeFailure), after which the support files have not been tested.
std::string CheckLoadFiles(Platform& platform, Configuration& config);

// The second eccentricity squared from the first: (sqrt(e2) / sqrt(1 - e2))^2. Fails with
// "Invalid procedure call or argument" for a negative root and "Division by zero" for E2 = 1.
double SecondEccentricitySquared(double e2);

// The existing file or folder whose path equals `path` but for letter case, or `path` itself when
// there is none: configuration values come in upper case, and this system's names do not.
std::string ResolvePathIgnoringCase(const std::string& path);

}  // namespace benchlog
