#include "app/main_window.hpp"

#include <functional>

#include "app/app_commands.hpp"
#include "app/configuration_file.hpp"
#include "app/menu_tree.hpp"
#include "app/recent_files.hpp"
#include "common/number_text.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/load_dataset_index.hpp"

namespace benchlog {
namespace {

// Runs one step of the load whose run-time failures are ignored, as the rest of the load goes
// on. Anything else is a fault of the program and is not hidden.
void IgnoringFailures(const std::function<void()>& step) {
  try {
    step();
  } catch (const RuntimeFailure&) {
  }
}

long SettingNumber(const SettingsStore& settings, const char* key, const char* defaultValue) {
  return static_cast<long>(Val(settings.GetSetting("frmMain", key, defaultValue)));
}

}  // namespace

std::string VersionText() {
  return std::to_string(BENCHLOG_VERSION_MAJOR) + "." + std::to_string(BENCHLOG_VERSION_MINOR) + "." +
         std::to_string(BENCHLOG_VERSION_PATCH);
}

std::string VersionCaption() { return std::string(kAppTitle) + " Version " + VersionText(); }

bool LoadMainWindow(Session& session, Platform& platform, WindowPlacement& placement) {
  auto& settings = platform.settings;
  placement.state = static_cast<int>(SettingNumber(settings, "WindowState", "0"));
  placement.top = SettingNumber(settings, "Top", "0");
  placement.left = SettingNumber(settings, "Left", "0");
  placement.height = SettingNumber(settings, "Height", "4000");
  placement.width = SettingNumber(settings, "Width", "4000");

  InitMenuState(session.menu);
  session.config.helpFile = JoinPath(platform.paths.appPath, "Benchlog.chm");
  session.shell.caption = VersionCaption();
  IgnoringFailures([&] {
    session.shell.foreColor = static_cast<std::uint32_t>(Val(settings.GetSetting("Settings", "ForeColor", "0")));
    session.shell.backColor = static_cast<std::uint32_t>(Val(settings.GetSetting("Settings", "BackColor", "16777215")));
  });
  session.dataset.DatFile = settings.GetSetting("Settings", "LastDatFullName", "");
  session.dataset.DatFilePath = settings.GetSetting("Settings", "LastDatDirectory", "");

  std::string missing;
  IgnoringFailures([&] { missing = CheckLoadFiles(platform, session.config); });
  if (!missing.empty()) {
    platform.ui.MsgBox("The following files were not found:" + std::string(kCrLf) + missing, MsgButtons::Ok,
                       MsgIcon::Critical, kAppTitle);
    return false;
  }
  if (!session.dataset.DatFile.empty()) {
    IgnoringFailures([&] { OfferDatasetLineEndConversion(session.dataset.DatFile, platform); });
    IgnoringFailures([&] { LoadDatasetIndex(session, platform); });
  }
  session.menu["mnuLatLoninTxt"].visible = false;
  IgnoringFailures([&] { LoadMRUList(session, settings); });
  return true;
}

void SaveMainWindowPlacement(SettingsStore& settings, const WindowPlacement& placement) {
  if (placement.state == kNormal) {
    settings.SaveSetting("frmMain", "Top", std::to_string(placement.top));
    settings.SaveSetting("frmMain", "Left", std::to_string(placement.left));
    settings.SaveSetting("frmMain", "Height", std::to_string(placement.height));
    settings.SaveSetting("frmMain", "Width", std::to_string(placement.width));
  }
  settings.SaveSetting("frmMain", "WindowState", std::to_string(placement.state));
}

int SplashSeconds(const SettingsStore& settings) { return settings.GetSetting("frmMain", "Top", "").empty() ? 5 : 2; }

void WaitForSplash(Clock& clock, int seconds, const std::function<void()>& keepPainted) {
  const auto end = clock.Now() + std::chrono::seconds(seconds);
  for (auto now = clock.Now(); now < end; now = clock.Now()) {
    keepPainted();
    clock.Sleep(std::min<Clock::Duration>(end - now, std::chrono::milliseconds(20)));
  }
}

}  // namespace benchlog
