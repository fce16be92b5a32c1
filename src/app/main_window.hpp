#pragma once
// frmMain's start and end: the load step, the splash wait and the closing step.
#include <functional>
#include <string>

#include "session/session.hpp"
#include "platform/platform.hpp"
#include "platform/window_placement.hpp"

namespace benchlog {

inline constexpr const char* kAppTitle = "Benchlog";

// "major.minor.revision" of this build.
std::string VersionText();
// The main window's caption before a dataset is open: "Benchlog Version 1.0.0".
std::string VersionCaption();

// The load step of the main window. Fills the session (caption, colours, dataset, configuration,
// index, menu, recent files) and returns the window placement to show. Returns false when support
// files are missing: the message has been shown and the program must end. Everything after the
// placement runs with failures ignored, step by step.
bool LoadMainWindow(Session& session, Platform& platform, WindowPlacement& placement);

// The closing step: position and size are saved only in the normal state, the state always.
void SaveMainWindowPlacement(SettingsStore& settings, const WindowPlacement& placement);

// 5 seconds on the first run (no "Top" saved for frmMain yet), 2 after.
int SplashSeconds(const SettingsStore& settings);
// Waits that long without burning the processor, calling `keepPainted` at least every 20 ms so that
// the splash window paints its texts at once and repaints whenever the desktop asks.
void WaitForSplash(Clock& clock, int seconds, const std::function<void()>& keepPainted);

}  // namespace benchlog
