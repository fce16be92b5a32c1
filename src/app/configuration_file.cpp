#include "app/configuration_file.hpp"

#include <cmath>
#include <filesystem>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

const char* const kSupportFiles[] = {"Contrib.dat",          "Country.dat",   "Groups.dat", "Monument_Category.dat",
                                     "Zones.txt",            "Horizontal_Datum.dat", "Ellipsoid.dat", "Towns.txt",
                                     nullptr};

void StoreValue(const std::string& key, const std::string& value, Platform& platform, Configuration& config) {
  if (key == "SUPPORT FILE PATH=") platform.paths.supportPath = ResolvePathIgnoringCase(value);
  else if (key == "HELP FILE=") config.helpFile = value;
  else if (key == "ELLIPSOID A=") config.ellipsoidA = Val(value);
  else if (key == "ELLIPSOID E2=") config.ellipsoidE2 = Val(value);
  else if (key == "COUNTRY=") config.country = value;
  else if (key == "STATE=") config.state = value;
  else if (key == "GROUP=") config.group = value;
  else if (key == "AGENCY=") config.agency = value;
  else if (key == "COP=") config.cop = value;
  else if (key == "UNITS=") config.units = value;
  else if (key == "HEMI1=") config.hemi1 = value;
  else if (key == "HEMI2=") config.hemi2 = value;
}

}  // namespace

const char* const* SupportFileNames() { return kSupportFiles; }

double SecondEccentricitySquared(double e2) {
  if (e2 < 0 || 1 - e2 < 0) throw InvalidProcedureCall();
  const double denominator = std::sqrt(1 - e2);
  if (denominator == 0) throw DivisionByZero();
  const double ratio = std::sqrt(e2) / denominator;
  return ratio * ratio;
}

std::string ResolvePathIgnoringCase(const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code error;
  if (path.empty() || fs::exists(path, error)) return path;
  // Walk the path from its root, matching each part in any letter case.
  fs::path resolved = fs::path(path).root_path();
  for (const auto& part : fs::path(path).relative_path()) {
    if (part.empty()) continue;
    fs::path next = resolved / part;
    if (!fs::exists(next, error)) {
      bool found = false;
      for (const auto& entry : fs::directory_iterator(resolved.empty() ? "." : resolved, error)) {
        if (LCase(entry.path().filename().string()) == LCase(part.string())) {
          next = resolved / entry.path().filename();
          found = true;
          break;
        }
      }
      if (!found) return path;
    }
    resolved = next;
  }
  std::string out = resolved.string();
  if (!path.empty() && IsPathSeparator(path.back()) && (out.empty() || !IsPathSeparator(out.back()))) out += '/';
  return out;
}

std::string CheckLoadFiles(Platform& platform, Configuration& config) {
  platform.paths.supportPath = platform.paths.appPath + "/";
  const std::string iniPath = JoinPath(platform.paths.appPath, kConfigurationFileName);
  if (!FileExists(iniPath)) return std::string(kConfigurationFileName) + kCrLf;

  for (const auto& line : SplitCrLf(ReadWholeFile(iniPath))) {
    const std::size_t equals = InStr(line, "=");
    const std::string key = UCase(Left(line, equals));
    const std::string value = UCase(Mid(line, equals + 1));
    StoreValue(key, value, platform, config);
  }
  config.ellipsoidEp2 = SecondEccentricitySquared(config.ellipsoidE2);

  std::string missing;
  for (const char* const* name = kSupportFiles; *name; ++name)
    if (!FileExists(platform.paths.supportPath + *name)) missing += std::string(*name) + kCrLf;
  return missing;
}

}  // namespace benchlog
